// One of the thirteen channels: voices, samples, modulation, effects.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "content/SamplePool.h"
#include "content/SampleSlot.h"
#include "engine/fx/FXUnit.h"
#include "engine/voice/ChannelVoice.h"
#include "engine/voice/Lfo.h"
#include "engine/voice/RandomGenerator.h"
#include "framework/Limits.h"
#include "platform/Shared.h"
#include "platform/SharedText.h"

namespace korvane {

/// Where a voice envelope of the channel goes.
struct EnvelopeRoute {
    float amount = 0.0f; // signed
    int destination = 0; // 0..3
};

/// Six voices, seven sample slots, ten effect units and a stutter. Owned by GrooveEngine; operations are the audio
/// thread's unless they say otherwise.
class GrooveChannel {
public:
    GrooveChannel(SamplePool& pool, RandomGenerator& generator);

    /// Serves the load requests of the slots, refreshes modulation and effect settings and renders the active voices
    /// into their own buffers.
    /// frames  0..512; 0 still refreshes the modulation, so a tick is heard at its exact frame
    /// tempo   beats per minute
    void Render(int frames, float tempo);

    /// Starts a note on a free voice, else on the oldest one; in mono mode always on voice 0.
    /// note      key number; the pad offset plus 48, any integer that pads and keys can give
    /// tempo     beats per minute; 0 means a live note, which nothing but a release ends
    /// velocity  0..1
    void NoteOn(int note, float tempo, float velocity);

    void ReleaseNote(int note); // every voice that plays `note`
    void ReleaseLive();         // every voice that the sequencer did not start
    void ReleaseSequenced();    // every voice that the sequencer started

    /// Silences every voice, refills its phases from the generator, clears effects, meters and smoothed gains. Audio
    /// thread or under the program-switch handshake.
    /// newRate  Hz; 0 keeps the rate
    void Reset(float newRate);

    /// The working value of a channel parameter after the three modulation sources; 0 outside 0..211.
    float Modulated(int index) const;

    bool AnyVoiceActive() const;

    Shared<float> params[kChannelSlots]; // working block, step locks applied, -1000..1000; any thread writes
    bool isSampler = false;              // fixed before the first block
    std::array<SampleSlot, kSampleSlots> sampleSlots; // 0..2 oscillator waveforms, 3..6 layer samples
    SharedText<512> programPath;                      // last program file saved from or loaded into the channel
    std::array<std::unique_ptr<FXUnit>, kEffects> fxUnits;
    std::unique_ptr<FXUnit> stutterUnit;
    Shared<bool> fxActive[kEffects]; // whether each unit is played; any thread writes
    SamplePool& samplePool;
    RandomGenerator& random;

    // Inputs of a run, written by the render loop.
    bool muted = false;
    float modWheelIn = 0.0f, pitchBendIn = 0.0f, pressureIn = 0.0f;

    float rate = 0.0f; // Hz
    std::uint32_t voiceCounter = 0;
    float lastPitch = -1.0f; // pitch of the last note started, the glide's source; -1 none
    bool soundedThisBlock = false;
    float velocityIn = 0.0f; // modulation source A: of the note being started or, live notes only, the voice refreshed
    std::array<std::unique_ptr<ChannelVoice>, kVoices> voices;

    // Modulation of the run, the same for every voice.
    Lfo lfo1, lfo2;
    EnvelopeRoute env1, env2;
    int filterType = 0;                            // 0 low-pass, 1 band-pass, 2 high-pass
    float cutoffBase = 0.0f, cutoffSmooth = -1.0f; // -1 before first use
    float modAmountSmooth = 0.0f;

    // Mixer strip.
    float outGainLeft = -1.0f, outGainRight = -1.0f; // -1 before first use
    Shared<float> peakLeft, peakRight;               // audio raises them, the meter zeroes them

private:
    void RefreshVoices();
    void RenderVoices(int frames);
    ChannelVoice& VoiceForNote();
};

} // namespace korvane
