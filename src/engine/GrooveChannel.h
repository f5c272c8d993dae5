// One of the thirteen channels: voices, samples, modulation, effects.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <memory>

#include "content/SamplePool.h"
#include "engine/dsp/RandomGenerator.h"
#include "engine/fx/FXUnit.h"
#include "engine/mix/MixerStrip.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/ChannelVoice.h"
#include "engine/voice/VoiceLife.h"
#include "framework/Limits.h"
#include "platform/Shared.h"
#include "platform/SharedText.h"

namespace korvane {

/// One of the thirteen channels: six voices, seven sample slots, ten effect units, a stutter and a mixer strip. Owned
/// by GrooveEngine. Operations and fields are the audio thread's unless they say otherwise.
class GrooveChannel {
public:
    /// number  0..12; whose mix buffers it has
    GrooveChannel(SamplePool& pool, RandomGenerator& generator, int number = 0);

    /// Takes the files that are offered to the slots, refreshes modulation and effect settings and gets the active
    /// voices ready for the coming run (ChannelStages.h). A run of 0 frames does so as well, so a tick is heard at its
    /// exact frame.
    /// tempo   beats per minute
    void Refresh(float tempo);

    /// Starts a note on a free voice, else on the oldest one; in mono mode always on voice 0.
    /// note      key number; the pad offset plus 48, any integer that pads and keys can give
    /// tempo     beats per minute; 0 means a live note, which nothing but a release ends
    /// velocity  0..1
    void NoteOn(int note, float tempo, float velocity);

    /// Silences every voice, refills its phases from the generator, clears effects, meters and smoothed gains. Audio
    /// thread or under the program-switch handshake.
    /// newRate  Hz; 0 keeps the rate
    void Reset(float newRate);

    ChannelSound sound;
    SharedText<512> programPath; // last program file saved from or loaded into the channel; who does so writes
    std::array<std::unique_ptr<FXUnit>, kEffects> fxUnits;
    std::unique_ptr<FXUnit> stutterUnit;
    Shared<bool> fxActive[kEffects]; // whether each unit is played; whoever moves buttons writes, audio thread reads
    ChannelVoices voices;
    std::uint8_t activeVoices = 0;  // a bit for each that is active
    std::uint32_t voiceCounter = 0; // notes since the last reset; stamps the voices' age
    Shared<bool> soundedThisBlock;  // a voice was active in the last run; audio thread writes, every thread reads
    MixerStrip strip;
    float* const mixLeft;  // kMaxRun frames each
    float* const mixRight; //

    // A channel at rest is silent, and a run of it with the same inputs and without a tick or a new note would change
    // nothing.
    bool atRest = false;
    // A bit for each unit of the rack: the stutter, then "FX 1" to "FX 10".
    static constexpr std::uint16_t kWholeRack = (1u << (1 + kEffects)) - 1;
    std::uint16_t unitsOn = 0;    // played or glued
    std::uint16_t unitsHeard = 0; // these and the one whose equaliser is on: what changes a channel that sounds
    std::uint16_t unitsAwake = kWholeRack; // not at rest, see FXUnit

private:
    /// What settings are worked out from, but for the velocity.
    struct Inputs {
        std::uint32_t changes;
        float modWheel, pitchBend, pressure, rate, tempo;
        bool operator==(const Inputs&) const = default;
    };

    bool TakeOffers(); // whether one slot plays another sound
    void TakeInputs(float tempo);
    bool RefreshVoices(); // whether one is active
    void TuneVoices();
    int VoiceForNote(); // its number

    Inputs inputs{};
    std::uint32_t offersSeen;
};

/// Calls `act` for each bit that is set, from the lowest.
template <class Act>
void ForEachBit(std::uint32_t bits, Act act)
{
    for (; bits != 0; bits &= bits - 1) act(std::countr_zero(bits));
}

using Channels = std::array<std::unique_ptr<GrooveChannel>, kChannels>;

} // namespace korvane
