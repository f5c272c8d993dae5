// One effect of a channel's rack, or its stutter.
#pragma once

#include <array>
#include <cstdint>

namespace korvane {

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

inline constexpr int kEqBands = 5;

/// Works in place on the channel's stereo block. Settings are written before each block by UpdateFxSettings (the
/// stutter's by SetStutter at each step); everything belongs to the audio thread.
class FXUnit {
public:
    explicit FXUnit(FxType unitType);
    ~FXUnit();
    FXUnit(const FXUnit&) = delete;
    FXUnit& operator=(const FXUnit&) = delete;

    /// Allocates the delay memory that the type needs at the current rate; rates outside 1..1000000 Hz get none.
    void AllocateBuffers();

    /// Silences the unit: delay memory, filters, recording and LFO phase.
    /// newRate  Hz; 0 keeps the rate and allocates nothing, any other rate reallocates the buffers
    void Reset(float newRate);

    /// Does nothing when the rate is outside 1..1000000 Hz or the tempo below 1. Allocates nothing.
    /// frames  0 changes nothing, the tail flag included
    /// tempo   beats per minute
    void Process(float* left, float* right, int frames, float tempo);

    /// The unit put something into the last block that may sound without input: it was switched on, is fading out or
    /// is ringing. What follows it in the rack has to run, and the channel is heard.
    bool HasTail() const { return audible != 0; }

    std::uint8_t reverse = 0; // stutter: play the slice backwards
    std::uint8_t audible = 0; // see HasTail
    FxType type;
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
    std::array<float, kEqBands> eqGains{};          // 0..1, 0.5 is 0 dB
    std::array<std::uint8_t, kEqBands> eqChanged{}; // the band's gain moved since it was last computed
    std::uint8_t eqOn = 0;
};

} // namespace korvane
