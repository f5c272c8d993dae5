// What moves a channel's sound within a run: LFOs, smoothed knobs, envelopes, glide.
#pragma once

#include "engine/voice/ChannelVoice.h"
#include "framework/Limits.h"

namespace korvane {

struct ChannelSound;

/// Values of each frame of a run that all voices of the channel share.
struct ChannelFrames {
    alignas(64) float cutoff[kMaxRun];
    alignas(64) float modAmount[kMaxRun];
    alignas(64) float lfo1[kMaxRun];
    alignas(64) float lfo2[kMaxRun];
};

/// Values of each frame of a run that one voice's source and amplitude need.
struct VoiceFrames {
    alignas(64) float amp[kMaxRun];
    alignas(64) float modAmount[kMaxRun]; // of the synth's oscillator modulation
};

/// Reads LFO rates, routing, filter type and cutoff for the coming run.
/// voicesSound  a voice is active; else the routing stays
/// tempo        beats per minute
void SetUpModulation(ChannelSound& channel, bool voicesSound, float tempo);

/// Fills the channel's frames. Once per run in which a voice sounds.
/// modulation  the modulated "SYNTH: Modulation"
void RunChannelModulation(ChannelSound& channel, float modulation, ChannelFrames& shared, int frames);

/// Moves the voice's glide, envelopes and gain through the run and fills its frames, cutoff and gain included. A note
/// whose length ends within the run releases every voice of the channel that plays the same key: itself from the next
/// frame on, voices that have had their run already from their next one.
/// voices     of the channel
/// glideRate  fraction of the distance per frame
void RunVoiceModulation(const ChannelSound& channel, ChannelVoices& voices, ChannelVoice& voice,
                        const ChannelFrames& shared, float glideRate, VoiceFrames& own, int frames);

/// What envelopes and LFOs add to the pitch of a voice where it stands now, in semitones.
/// lfoSemitones  of an LFO at 1
float PitchModulation(const ChannelSound& channel, const ChannelVoice& voice, float lfoSemitones);

/// base plus what they add to the amount of the synth's oscillator modulation.
float ModulatedAmount(const ChannelSound& channel, const ChannelVoice& voice, float base);

} // namespace korvane
