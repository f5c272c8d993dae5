// The channel filter, run once per voice.
#pragma once

#include "content/CutoffTable.h"
#include "engine/voice/ChannelVoice.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

/// Which signal of the ladder is heard.
enum class FilterType : int { LowPass = 0, BandPass = 1, HighPass = 2 };

inline constexpr int kOversampling = 4; // passes per frame

/// Four-pole resonant ladder (R. A. Moog, "A voltage-controlled low-pass high-pass filter for audio signal processing",
/// 1965) with the limiter in its feedback path, run four times per frame on the same input. S is float or a vector of
/// floats; every lane of the vector form gives the bits of the float form. The limiter keeps |u| at or below 2.5, so
/// the stages stay finite for every finite input.
template <class S>
struct Ladder {
    S s1{}, s2{}, s3{}, s4{};
    S u{}; // limited input of the last pass

    /// g, k       from the cutoff table
    /// resonance  0..1
    void Pass(S x, S g, S k, S resonance)
    {
        u = x - s4 * k * resonance;
        u = u / (1.0f + 0.04f * (u * u)); // bounds the self-oscillation; by ear
        s1 += (u - s1) * g;
        s2 += (s1 - s2) * g;
        s3 += (s2 - s3) * g;
        s4 += (s3 - s4) * g;
    }
};

/// Coefficients at a cutoff of 0..1; beyond it, and for NaN, the nearest end.
inline CutoffPair CutoffAt(const CutoffPair* table, float cutoff)
{
    constexpr auto kPairs = static_cast<float>(kCutoffPairs);
    return table[static_cast<int>(Clamp(cutoff * kPairs, 0.0f, kPairs - 1.0f))];
}

/// One voice to filter and the mix buffers that it is added to.
struct FilterJob {
    ChannelVoice* voice;
    FilterType type;
    float *mixLeft, *mixRight;
};

/// Filters voices and adds them to their mix buffers, in order. They lie side by side in vectors, as many at a time as
/// the machine can compute while one of them waits for its own result. Audio thread.
/// jobs    at most kChannels * kVoices
/// table   of the cutoff
/// frames  0..kMaxRun, of the run that the voices have just rendered
void FilterVoices(const FilterJob* jobs, int count, const CutoffPair* table, int frames);

} // namespace korvane
