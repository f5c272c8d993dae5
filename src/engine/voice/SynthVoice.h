// The synth channel's source: three table oscillators and noise, stacked for unison.
#pragma once

#include "engine/kernels/Unison.h"
#include "engine/voice/SoundingVoice.h"

namespace korvane {

struct ChannelSound;

/// What a mix was computed from.
struct MixKnobs {
    float share2 = kNotYet, share3 = kNotYet, shareNoise = kNotYet; // 0..1, each of what those before it leave
    float stereo = kNotYet;
    int unisonCount = 0;

    bool operator==(const MixKnobs&) const = default;
};

/// What a run has in common for all voices of a synth channel.
struct SynthSettings {
    float ratios[kOscillators] = {};        // of the oscillators' frequencies to the note's
    alignas(64) float detune[kUnison] = {}; // frequency factors of the unison voices
    float bendSemitones = 0.0f;             // at full pitch bend
    bool slides = false;                    // pitch glides from the last note's
    UnisonMix mix;

    // What they were computed from.
    float semitones[kOscillators] = {kNotYet, kNotYet, kNotYet};
    float octaves = kNotYet, rate = kNotYet; // spread of the unison voices; sample rate in Hz
    std::uint32_t detunes = 0;               // how often detune or the rate has changed
    MixKnobs mixKnobs;
};

/// Reads the settings of the coming run.
void SetUpSynth(const ChannelSound& channel, SynthSettings& settings);

/// Sets the phases for the note that starts, or marks them for a restart at its first run.
void StartOscillators(ChannelSound& channel, ChannelVoice& voice);

/// Tunes the voice for the coming run. Pitch is read here, once per run.
void TuneOscillators(ChannelSound& channel, ChannelVoice& voice);

/// Renders the oscillators of the synth voices among them into their buffers, from the first to the last: they share
/// the engine's random numbers. A pending restart of phases comes first.
void RenderSynths(SoundingVoices sounding, int frames);

} // namespace korvane
