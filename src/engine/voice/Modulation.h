// What moves a channel's sound within a run: LFOs, smoothed knobs, envelopes, glide.
#pragma once

#include "engine/voice/SoundingVoice.h"

namespace korvane {

struct ChannelSound;

/// Reads LFO rates, routing, filter type, level and cutoff for the coming run.
/// voicesSound  a voice is active; else routing and level stay
/// tempo        beats per minute
void SetUpModulation(ChannelSound& channel, bool voicesSound, float tempo);

/// Reads what all voices of the channel need in the coming run. Once the voices are refreshed, if one sounds.
void SetUpVoices(ChannelSound& channel);

/// Moves the channels' LFOs and smoothed knobs and the voices' glides, envelopes and gains through the run and fills
/// the frames of both. A note whose length ends within the run releases every voice of the channel that plays the same
/// key: itself from the next frame on, voices before it in the list from their next run, those behind it at once.
/// frames  0..kMaxRun
void ModulateVoices(SoundingVoices sounding, int frames);

/// Shapes the voices' blocks by their amplitudes. A block that is not finite, which takes parameters far outside 0..1,
/// becomes silence: nothing of it must reach filters, effects and the mix.
void ShapeVoices(SoundingVoices sounding, int frames);

/// What envelopes and LFOs add to the pitch of a voice where it stands now, in semitones.
/// lfoSemitones  of an LFO at 1
float PitchModulation(const ChannelSound& channel, const ChannelVoice& voice, float lfoSemitones);

/// base plus what they add to the amount of the synth's oscillator modulation.
float ModulatedAmount(const ChannelSound& channel, const ChannelVoice& voice, float base);

} // namespace korvane
