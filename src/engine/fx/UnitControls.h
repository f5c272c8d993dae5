// What an effect unit and the effect in it share: pad, LFO, fade and tail.
#pragma once

#include <cstdint>

#include "engine/dsp/LfoShape.h"

namespace korvane {

/// Settings that the unit writes before each block and the few values that its effect moves on. Audio thread.
struct UnitControls {
    float sampleRate = 0.0f;            // Hz; 0 before the unit's first Reset, usable (Limits.h) while the effect runs
    float x = 0.0f, y = 0.0f;           // pad position, 0..1
    float lfoBeats = 0.0f;              // LFO period; stutter: slice length
    float lfoSeconds = 0.0f;            // the same at the current tempo
    float lfoAmount = 0.0f;             // -1..1
    LfoShape lfoShape = LfoShape::Sine; // the ramp rises
    std::uint8_t bypass = 0;            // neither played nor glued
    std::uint8_t reverse = 0;           // stutter: play the slice backwards
    double lfoPhase = 0.0;              // 0..1; stutter: position in the slice; the effect moves it
    double lfoIncrement = 0.0;          // phase per frame
    float mix = 0.0f;                   // on-level, smoothed by kOnStep, 0..1; the effect moves it
    std::int32_t holdFrames = 0;        // frames of tail still to be produced after release; TailLeft counts them down

    /// Where mix goes.
    float Target() const { return bypass ? 0.0f : 1.0f; }
    /// Released, and mix has arrived.
    bool FadedOut() const;

    /// The LFO at the start of the block, scaled by the amount; moves the phase on to its end.
    float BlockLfo(int frames);
    /// The LFO of each frame, likewise.
    void FillLfo(float* lfo, int frames);
    /// Its phase of each frame; moves it on behind the last one.
    void FillPhases(double* phases, int frames);

private:
    void ShapePhases(const double* phases, float* lfo, int frames) const;
    double AdvancedPhase(int frames) const;
};

} // namespace korvane
