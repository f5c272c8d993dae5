// What the voices of one channel share.
#pragma once

#include <array>

#include "content/SamplePool.h"
#include "content/SampleSlot.h"
#include "engine/voice/Lfo.h"
#include "engine/dsp/RandomGenerator.h"
#include "engine/voice/SynthVoice.h"
#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// Where a voice envelope of the channel goes.
struct EnvelopeRoute {
    float amount = 0.0f; // signed
    int destination = 0; // 0..3
};

/// What all voices of the channel share of each frame of a run.
struct ChannelFrames {
    alignas(64) float sines[kLfos][kMaxRun]; // of the LFOs, where they are sines that act on something
};

/// A channel as its voices see it: parameters, samples, live inputs, modulation. Owned by GrooveChannel; audio thread
/// but where a field says otherwise.
struct ChannelSound {
    ChannelSound(SamplePool& pool, RandomGenerator& generator) : samplePool(pool), random(generator) {}

    /// The working value of a channel parameter after the three modulation sources; 0 outside 0..211.
    float Modulated(int index) const;

    Shared<float> params[kChannelSlots]; // working block, step locks applied, -1000..1000; any thread writes
    bool isSampler = false;              // fixed before the first block
    std::array<SampleSlot, kSampleSlots> sampleSlots; // 0..2 oscillator waveforms, 3..6 layer samples
    SamplePool& samplePool;
    RandomGenerator& random;

    // Inputs of a run, written by the render loop.
    bool muted = false;
    float modWheelIn = 0.0f, pitchBendIn = 0.0f, pressureIn = 0.0f;
    float velocityIn = 0.0f; // modulation source A: of the note being started or, live notes only, the voice refreshed

    float rate = 0.0f;       // Hz
    float lastPitch = -1.0f; // pitch of the last note started, the glide's source; -1 none

    // Modulation of the run, the same for every voice.
    Lfo lfo1, lfo2;
    EnvelopeRoute env1, env2;
    int filterType = 0;                             // 0 low-pass, 1 band-pass, 2 high-pass
    float cutoffBase = 0.0f, cutoffSmooth = -1.0f;  // -1 before first use
    float modTarget = 0.0f, modAmountSmooth = 0.0f; // of the synth's oscillator modulation
    float glideRate = 0.0f;                         // fraction of the distance per frame
    SynthSettings synth;                            // of a synth channel
    ChannelFrames frames;
};

} // namespace korvane
