// One of the thirteen channels: voices, samples, modulation, effects.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "content/SamplePool.h"
#include "engine/fx/FXUnit.h"
#include "engine/mix/MixerStrip.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/ChannelVoice.h"
#include "engine/dsp/RandomGenerator.h"
#include "engine/voice/VoiceLife.h"
#include "framework/Limits.h"
#include "platform/Shared.h"
#include "platform/SharedText.h"

namespace korvane {

/// One of the thirteen channels: six voices, seven sample slots, ten effect units, a stutter and a mixer strip. Owned
/// by GrooveEngine. Operations and fields are the audio thread's unless they say otherwise.
class GrooveChannel {
public:
    GrooveChannel(SamplePool& pool, RandomGenerator& generator);

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
    std::uint32_t voiceCounter = 0; // notes since the last reset; stamps the voices' age
    Shared<bool> soundedThisBlock;  // a voice was active in the last run; audio thread writes, every thread reads
    MixerStrip strip;

private:
    void TakeOffers();
    bool RefreshVoices(); // whether one is active
    void TuneVoices();
    ChannelVoice& VoiceForNote();
};

using Channels = std::array<std::unique_ptr<GrooveChannel>, kChannels>;

} // namespace korvane
