// Start, refresh, release and end of a voice, whatever its source.
#pragma once

#include <cstdint>

#include "engine/voice/ChannelVoice.h"

namespace korvane {

struct ChannelSound;

/// Pitch of a note on the channel: transposed by "CHN: Pitch" and "SYNTH: Octave", in whole semitones.
std::int32_t PitchNote(const ChannelSound& channel, int note);

/// "CHN: Pitch" in whole semitones, -24..24.
int ChannelTranspose(const ChannelSound& channel);

/// Starts what NoteOn has described in the voice: envelopes, gain, glide, LFO restart and the source. A voice that
/// still sounds keeps its amplitude and rises from there.
void StartVoice(ChannelSound& channel, ChannelVoice& voice);

/// At the start of a block: takes over what the channel's parameters say now, or ends a voice that has faded or whose
/// layers have all run out. False when the voice has ended.
bool RefreshVoice(ChannelSound& channel, ChannelVoice& voice);

/// Gain that "CHN: Amp Level" gives a note at full velocity: -25 dB to +25 dB, on top of the sources' own scale.
float LevelGain(float ampLevel);

/// Lets the note fade.
void ReleaseVoice(ChannelVoice& voice);

// Of a channel's voices.

void ReleaseNote(ChannelVoices& voices, int note); // every voice that plays `note`
void ReleaseLive(ChannelVoices& voices);           // every voice that the sequencer did not start
void ReleaseSequenced(ChannelVoices& voices);      // every voice that the sequencer started

/// The voice is free for the next note; its levels stay where they are.
void EndVoice(ChannelVoice& voice);

/// Silences the voice at once.
void ClearVoice(ChannelVoice& voice);

} // namespace korvane
