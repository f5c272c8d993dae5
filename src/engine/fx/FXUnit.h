// One effect of a channel's rack, or its stutter.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "engine/fx/Biquad.h"
#include "engine/fx/Equaliser.h"
#include "engine/fx/MFXTapeDelay.h"
#include "engine/fx/StutterLoop.h"
#include "platform/StereoFrame.h"

namespace korvane {

class fxReverb;

/// What a unit does; "FX 1" to "FX 10" are the types 0 to 9.
enum class FxType : std::int32_t {
    Distortion = 0, // x drive, y lowpass
    Decimator = 1,  // x crush, y lowpass
    Chorus = 2,     // x depth, y feedback
    Phaser = 3,     // x depth, y feedback
    LowPass = 4,    // x frequency, y resonance
    HighPass = 5,   // x frequency, y resonance
    Echo = 6,       // x send and feedback, y filter; one LFO period long
    Reverb = 7,     // x send and decay, y damping
    Panner = 8,     // x position, y level difference
    Pump = 9,       // x release, y drop level; carries the channel's equaliser
    Stutter = 11,
};

/// Works in place on the channel's stereo block. Settings are written before each block by UpdateFxSettings (the
/// stutter's by SetStutter at each step); everything belongs to the audio thread.
class FXUnit {
public:
    explicit FXUnit(FxType unitType);
    ~FXUnit();
    FXUnit(const FXUnit&) = delete;
    FXUnit& operator=(const FXUnit&) = delete;

    /// Allocates the delay memory that the type needs at the current rate; a rate outside 1..1000000 Hz gets none.
    void AllocateBuffers();

    /// Silences the unit: delay memory, filters, recording, LFO phase, on-level and tail.
    /// newRate  Hz; 0 keeps the rate. Only a rate that differs from the present one allocates
    void Reset(float newRate);

    /// Does nothing when the rate is outside 1..1000000 Hz or the tempo below 1. Allocates nothing. An input that is
    /// not finite, or overflows, gives one silent block and a reset.
    /// frames  0..kMaxRun; 0 changes nothing, the tail flag included
    /// tempo   beats per minute
    void Process(float* left, float* right, int frames, float tempo);

    /// The unit ran in the last block: it is on, fading out or ringing, so what follows it in the rack has to run and
    /// the channel is heard. The equaliser alone counts only while it rings above −80 dB.
    bool HasTail() const { return audible != 0; }

    std::uint8_t reverse = 0; // stutter: play the slice backwards
    std::uint8_t audible = 0; // see HasTail
    const FxType type;
    float sampleRate = 0.0f;     // Hz; 0 before the first Reset
    float x = 0.0f, y = 0.0f;    // pad position, 0..1
    float lfoBeats = 0.0f;       // LFO period; stutter: slice length
    float lfoSeconds = 0.0f;     // the same at the current tempo
    float lfoAmount = 0.0f;      // -1..1
    std::int32_t lfoShape = 0;   // 0 sine, 1 triangle, 2 rising ramp, 3 square
    std::uint8_t bypass = 0;     // neither played nor glued
    double lfoPhase = 0.0;       // 0..1; stutter: position in the slice
    double lfoIncrement = 0.0;   // phase per frame
    float mix = 0.0f;            // smoothed on-level, 0..1
    std::int32_t holdFrames = 0; // tail still to be produced after release

    // Pump only: the channel's equaliser.
    std::array<float, kEqBands> eqGains;            // 0..1, 0.5 is 0 dB
    std::array<std::uint8_t, kEqBands> eqChanged{}; // the band has to be computed before it is used
    std::uint8_t eqOn = 0;

private:
    struct Block {
        float* left;
        float* right;
        int frames;
    };

    bool Usable() const;
    bool Off() const; // faded out
    float Target() const { return bypass ? 0.0f : 1.0f; }
    float BlockLfo(int frames);
    void FillLfo(float* lfo, int frames);
    double AdvancedPhase(int frames) const;
    void Silence(const Block& block);

    // FXUnitFilters.cpp
    template <class Wet>
    void Crossfade(const Block& block, Wet wet);
    void Distort(const Block& block);
    void Decimate(const Block& block);
    template <bool highPass>
    void Filter(const Block& block);
    // FXUnitModulation.cpp
    void Chorus(const Block& block);
    void Phase(const Block& block);
    void Pan(const Block& block);
    void PumpAndEqualise(const Block& block);
    void Pump(const Block& block);
    // FXUnitSpace.cpp
    void Echo(const Block& block);
    void AllocateReverb();
    void Reverberate(const Block& block);
    // FXUnit.cpp
    void Stutter(const Block& block);

    static constexpr float kOnStep = 0.01f; // of the way to on or off per frame
    static constexpr int kFilterStages = 4;
    static constexpr int kPhaserStages = 6;

    BiquadChain<Stereo, 1> tone;               // behind distortion and decimator
    BiquadChain<Stereo, kFilterStages> filter; // lowpass and highpass

    Stereo held{}; // decimator
    int holdCounter = 0;

    std::array<Stereo, kPhaserStages> phaserStates{};
    Stereo phaserLast{};       // output of the last stage in the frame before
    float phaserDepth = -1.0f; // smoothed; -1 before the first frame

    float pumpLevel = 0.0f; // smoothed envelope
    Equaliser equaliser;

    std::unique_ptr<TapeDelay<StereoChain>> chorusDelays; // three in series per side
    std::unique_ptr<TapeDelay<Stereo>> echoDelays;
    std::unique_ptr<MFXTapeDelay> panDelays[2];
    std::unique_ptr<fxReverb> reverb;
    StutterLoop loop;
};

} // namespace korvane
