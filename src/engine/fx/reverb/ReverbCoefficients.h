// What the reverb's parameters mean at a sample rate: gains, filter coefficients, line lengths and taps.
#pragma once

#include <array>

#include "engine/fx/reverb/ReverbParameters.h"

namespace korvane {

inline constexpr int kReverbLines = 12; // 0..3 input diffusers, 4..7 left branch, 8..11 right branch
inline constexpr int kReverbTaps = 7;   // of each output
inline constexpr int kReflections = 8;  // of each side; the left sum uses the first seven

struct ReverbCoefficients {
    float inputGain, dryGain, reflectionsGain, reverbTarget;
    float lowCut;               // of the allpass; 0 switches the low cut off
    float highCut, highDamping; // of one-pole lowpasses; 1 passes everything
    float input1, input2;       // diffusion
    float decay1, decay2;
    float decay;     // gain of half a branch
    float bassBoost; // of what the crossover allpass leaves of the low band
    float crossover;
    float w1, w2, w3, w4, w5;              // weights of the output taps
    float width;                           // 1: as it is
    std::array<int, kReverbLines> lengths; // frames
    int predelayFrames;
    std::array<int, kReverbTaps> leftTaps, rightTaps;                // frames
    std::array<int, kReflections> leftReflections, rightReflections; // frames
    std::array<float, kReflections> leftReflectionGains, rightReflectionGains;
};

/// rate  Hz, > 0
ReverbCoefficients ComputeReverb(const ReverbSteps& steps, float rate);

} // namespace korvane
