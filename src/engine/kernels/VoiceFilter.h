// The channel filter, run once per voice.
#pragma once

#include "content/CutoffTable.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

/// Which signal of the ladder is heard.
enum class FilterType : int { LowPass = 0, BandPass = 1, HighPass = 2 };

inline constexpr int kOversampling = 4; // passes per frame
inline constexpr int kFilterStages = 4;

/// Four-pole resonant ladder (R. A. Moog, "A voltage-controlled low-pass high-pass filter for audio signal processing",
/// 1965) with the limiter in its feedback path, run four times per frame on the same input. S is float, which is the
/// definition, or a vector of floats. The limiter keeps |u| at or below 2.5, so the stages stay finite for every
/// finite input.
template <class S>
struct Ladder {
    S s1{}, s2{}, s3{}, s4{};
    S u{}; // limited input of the last pass

    /// x  input    k  feedback gain at full resonance, from the cutoff table    resonance  0..1
    [[gnu::always_inline]] void Limit(S x, S k, S resonance)
    {
        u = x - s4 * k * resonance;
        u = u / (1.0f + 0.04f * (u * u)); // bounds the self-oscillation; by ear
    }

    /// g  gain of a stage, from the cutoff table
    [[gnu::always_inline]] void Stages(S g)
    {
        s1 += (u - s1) * g;
        s2 += (s1 - s2) * g;
        s3 += (s2 - s3) * g;
        s4 += (s3 - s4) * g;
    }

    [[gnu::always_inline]] void Pass(S x, S g, S k, S resonance)
    {
        Limit(x, k, resonance);
        Stages(g);
    }
};

/// Where in the table a cutoff of 0..1 lies; beyond it, and for NaN, at the nearest end.
inline int CutoffIndex(float cutoff)
{
    constexpr auto kPairs = static_cast<float>(kCutoffPairs);
    return static_cast<int>(Clamp(cutoff * kPairs, 0.0f, kPairs - 1.0f));
}

/// One voice to filter and the mix buffers that it is added to. Rows hold kMaxRun floats, aligned to 64 bytes; those of
/// the input may change up to the next multiple of 16 frames.
struct FilterJob {
    float (*state)[kFilterStages]; // left, right; moved on
    float *left, *right;           // input; the output replaces it
    const float* cutoff;           // of each frame
    const float* gain;             // of each frame, applied to the output as it is mixed
    float resonance;
    FilterType type;
    float *mixLeft, *mixRight;
};

/// Filters voices and adds them to their mix buffers, in the order of the jobs. Audio thread.
/// count   0..kChannels * kVoices
/// frames  0..kMaxRun
using FilterVoicesKernel = void(const FilterJob* jobs, int count, const CutoffPair* table, int frames);

} // namespace korvane
