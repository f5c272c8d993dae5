// One sounding note of a channel.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <memory>

#include "engine/kernels/Layers.h"
#include "engine/kernels/Unison.h"
#include "engine/kernels/VoiceMotion.h"
#include "engine/voice/Seam.h"
#include "framework/Limits.h"

namespace korvane {

inline constexpr float kSourceScale =
    0.005f; // full scale of the sources, low in the filter's limiter; the output gain undoes it

/// One layer of a sampler voice; fixed at note start but for position, increment, delay, hold, envelope and filters.
struct SamplerLayer : LayerState {
    bool bypassed = false;
    bool reverse = false;
    float semitones = 0.0f;       // sounding pitch of the run
    float pitch = 0.0f;           // the layer's own transposition in semitones
    std::int32_t delayFrames = 0; // silence left before the layer starts
    Seam seam;
};

inline constexpr float kNotYet = std::numeric_limits<float>::quiet_NaN(); // equals nothing

/// What the oscillators were last tuned to, so that nothing is computed again for a note that holds its pitch.
struct OscillatorPitch {
    float note = kNotYet, hertz = 0.0f;                            // in semitones
    float syncHertz = kNotYet;                                     // of the reference
    float oscillators[kOscillators] = {kNotYet, kNotYet, kNotYet}; // in Hz
    std::uint32_t detunes = 0;                                     // of SynthSettings
};

/// One of the six voices of a channel: what the note is, its envelopes, gain, glide and sources, and its render
/// buffers. Audio thread only.
struct ChannelVoice : VoiceMotion<float> {
    std::uint32_t age = 0; // stamp from the channel's voiceCounter
    bool active = false;
    bool releasing = false;
    bool sounded = false; // the note has been through a run
    bool fromSequencer = false;
    bool restartPhases = false;    // oscillators 1 and 2 restart at the voice's next block
    std::int32_t note = -1;        // -1 none
    std::int32_t pitchNote = 0;    // note after transposition
    float velocity = 0.0f;         // 0..1
    std::int32_t lengthFrames = 0; // frames until the note is released

    float cutoff = 0.0f, tracking = 0.0f; // what cutoffOffset is made of: the voice's own, how far the pitch moves it
    bool followsVelocity = false;         // the output gain does
    float resonance = 0.0f;
    float filterState[2][4] = {}; // left, right; four stages

    SamplerLayer layers[kLayers];
    UnisonPhases phases = {};
    UnisonTuning tuning; // of the run
    OscillatorPitch tunedTo;
    float tunedPitch = 0.0f;                // glidePitch when the oscillators were tuned
    std::uint64_t setUpAt = 0, tunedAt = 0; // the channel's inputCount and tuneCount then; 0: not for this note yet
    Seam seam;                              // of the oscillators

    // Of the current run.
    alignas(64) float left[kMaxRun];
    alignas(64) float right[kMaxRun];
    alignas(64) float cutoffFrames[kMaxRun];
    alignas(64) float gainFrames[kMaxRun];
    alignas(64) float ampFrames[kMaxRun];
    alignas(64) float modAmountFrames[kMaxRun]; // where oscillator 2 modulates oscillator 1
};

using ChannelVoices = std::array<std::unique_ptr<ChannelVoice>, kVoices>; // of one channel

} // namespace korvane
