// Low-frequency oscillator of a channel.
#pragma once

#include "engine/dsp/LfoShape.h"

namespace korvane {

/// What an envelope or LFO acts on.
namespace destination {
inline constexpr int Cutoff = 0;
inline constexpr int ModAmount = 1; // of the synth's oscillator modulation
inline constexpr int Pitch = 2;
inline constexpr int Depth = 3;     // envelopes: depth of the LFO with the same number
inline constexpr int Amplitude = 3; // LFOs
} // namespace destination

/// Shared by the channel's voices; runs while one of them sounds. Audio thread only.
struct Lfo {
    float phase = 0.0f;              // 0..1
    float increment = 0.0f;          // cycles per frame, 0..2^24
    LfoShape shape = LfoShape::Sine; // the ramp falls; a value beyond the shapes gives silence
    float amount = 0.0f;             // signed depth
    int destination = 0;             // 0..3, anything else acts on nothing

    /// Writes the sines of the next `frames` phases; the LFO stays where it is.
    void FillSines(float* values, int frames) const;
};

/// Cycles per second, >= 0 and finite.
/// rateValue  0..1: about 25 Hz down to 0.01 Hz when free, else one of nine lengths from 1/8 to 8 beats
/// syncValue  below 0.5 free; below 1 tempo, the length is a period in beats; from 1 on in bars of four
/// tempo      beats per minute; not positive stops a synced LFO
float LfoFrequency(float rateValue, float syncValue, float tempo);

} // namespace korvane
