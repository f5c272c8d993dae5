// One sounding note of a channel.
#pragma once

#include <cstdint>

#include "engine/Limits.h"

namespace korvane {

/// Level moving toward a target by a fraction of the distance per frame.
struct Envelope {
    float level = 0.0f;
    float target = 0.0f;
    float rate = 0.0f;      // fraction of the distance per frame
    float decayRate = 0.0f; // takes over when the attack has reached 1
};

/// One layer of a sampler voice; fixed at note start but for position, increment, delay, hold, envelope and filters.
struct SamplerLayer {
    /// Second-order section: y = b0 (x ∓ 2 x1 + x2) − a1 y1 − a2 y2.
    struct Section {
        float b0, a1, a2;
        float x1, x2, y1, y2;
    };
    bool bypassed;
    bool reverse;
    double position;  // read position in frames of the sample
    double increment; // frames of the sample per output frame
    std::int32_t delayFrames;
    std::int32_t holdFrames;
    float pitch; // semitones
    float gainLeft, gainRight;
    Section loCutLeft, loCutRight, hiCutLeft, hiCutRight;
    float envLevel, envTarget, envRate, decayRate;
};

/// Phases of one of the stacked unison voices; a full cycle is 2^32.
struct UnisonPhases {
    std::uint32_t osc1, sync, osc2, osc3;
};

/// One of the six voices of a channel: what the note is, its envelopes and sources, and its render buffers. Audio
/// thread only.
struct ChannelVoice {
    std::uint32_t age = 0; // stamp from the channel's voiceCounter
    bool active = false;
    bool releasing = false;
    bool fromSequencer = false;
    bool restartPhases = false; // oscillators restart at the voice's next block
    std::int32_t note = -1;
    std::int32_t pitchNote = 0;    // note after transposition
    float velocity = 0.0f;         // 0..1
    std::int32_t lengthFrames = 0; // frames until the sequencer releases the voice

    Envelope amp; // amp.target becomes ampSustain when the attack is over
    float ampReleaseRate = 0.0f, ampSustain = 0.0f;
    Envelope env1, env2;
    float gain = -1.0f, gainTarget = 1.0f; // gain -1: takes the target at first use
    float glidePitch = 0.0f;               // semitones
    float cutoffOffset = 0.0f;             // added to the channel's cutoff
    float resonance = 0.0f;
    float lfo1Out = 0.0f, lfo2Out = 0.0f;
    float filterState[2][4] = {}; // left, right; four stages

    SamplerLayer layers[kLayers] = {};
    UnisonPhases phases[kUnison] = {};

    // Of the current run; the filter stage of the mixer reads the first four.
    alignas(64) float left[kMaxRun];
    alignas(64) float right[kMaxRun];
    alignas(64) float cutoffFrames[kMaxRun];
    alignas(64) float gainFrames[kMaxRun];
};

} // namespace korvane
