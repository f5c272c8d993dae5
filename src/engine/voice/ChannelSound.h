// What the voices of one channel share.
#pragma once

#include <array>
#include <cstdint>

#include "content/SamplePool.h"
#include "content/SampleSlot.h"
#include "engine/dsp/RandomGenerator.h"
#include "engine/voice/Lfo.h"
#include "engine/voice/SynthVoice.h"
#include "framework/Limits.h"
#include "framework/ParameterBlock.h"

namespace korvane {

/// Where a voice envelope of the channel goes.
struct EnvelopeRoute {
    float amount = 0.0f; // signed
    int destination = 0; // 0..3
};

/// Which inputs a setting was worked out from; a new one is from none.
struct InputStamp {
    std::uint64_t count = 0;
    float velocity = 0.0f;
    bool operator==(const InputStamp&) const = default;
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

    /// What settings are worked out from now. Those that carry another stamp are out of date.
    InputStamp Stamp() const { return {inputCount, velocityModulates ? velocityIn : 0.0f}; }
    /// An envelope or LFO reaches the destination.
    bool Moves(int destination) const
    {
        return env1.destination == destination || env2.destination == destination || lfo1.destination == destination ||
               lfo2.destination == destination;
    }

    ParameterBlock params;  // working block, step locks applied, -1000..1000; any thread writes
    bool isSampler = false; // fixed before the first block
    std::array<SampleSlot, kSampleSlots> sampleSlots; // 0..2 oscillator waveforms, 3..6 layer samples
    SamplePool& samplePool;
    RandomGenerator& random;

    // Inputs of a run, written by the render loop.
    bool muted = false;
    float modWheelIn = 0.0f, pitchBendIn = 0.0f, pressureIn = 0.0f;
    float velocityIn = 0.0f; // modulation source A: of the note being started or, live notes only, the voice refreshed

    // How often anything but velocityIn that settings are worked out from has changed: parameters, what the slots play,
    // live inputs, tempo, rate. From 1 on.
    std::uint64_t inputCount = 0;
    bool velocityModulates = false; // velocityIn has a destination

    float rate = 0.0f;       // Hz
    float lastPitch = -1.0f; // pitch of the last note started, the glide's source; -1 none

    // Modulation of the run, the same for every voice.
    InputStamp modulationOf, routingOf, voicesOf; // of the settings of SetUpModulation, with a voice, and SetUpVoices
    std::uint64_t tuneCount = 0;                  // how often something that voices are tuned by has been set up
    Lfo lfo1, lfo2;
    EnvelopeRoute env1, env2;
    int filterType = 0;                             // 0 low-pass, 1 band-pass, 2 high-pass
    float cutoffBase = 0.0f, cutoffSmooth = -1.0f;  // -1 before first use
    float modTarget = 0.0f, modAmountSmooth = 0.0f; // of the synth's oscillator modulation
    float glideRate = 0.0f;                         // fraction of the distance per frame
    float levelGain = 0.0f;                         // output gain of "CHN: Amp Level", see LevelGain
    SynthSettings synth;                            // of a synth channel
    ChannelFrames frames;
};

} // namespace korvane
