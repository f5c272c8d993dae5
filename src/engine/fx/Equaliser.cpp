// Equaliser: band table, coefficients, and which equalisers have something to do.
#include "engine/fx/Equaliser.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "engine/fx/Tail.h"
#include "engine/kernels/Kernels.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

enum class Shape { LowShelf, Peak, HighShelf };

struct Band {
    float frequencyHz;
    Shape shape;
    float bandwidth; // octaves
};

// clang-format off
constexpr std::array<Band, kEqBands> kBands {{
    {   80.0f, Shape::LowShelf,  1.0f},
    {  220.0f, Shape::Peak,      2.5f},
    { 1200.0f, Shape::Peak,      2.8f},
    { 6000.0f, Shape::Peak,      2.5f},
    {12000.0f, Shape::HighShelf, 2.0f},
}};
// clang-format on

BandCoefficients<float> Normalised(float b0, float b1, float b2, float a0, float a1, float a2)
{
    return {Flushed(b0 / a0), Flushed(b1 / a0), Flushed(b2 / a0), Flushed(a1 / a0), Flushed(a2 / a0)};
}

bool Silent(const StereoBlock& block)
{
    const auto isZero = [](float sample) { return sample == 0.0f; };
    return std::all_of(block.left, block.left + block.frames, isZero) &&
           std::all_of(block.right, block.right + block.frames, isZero);
}

} // namespace

BandCoefficients<float> EqualiserBand(int band, float gain, float rate)
{
    const Band& row = kBands[static_cast<std::size_t>(band)];
    const float w = Clamp(2.0f * std::numbers::pi_v<float> * row.frequencyHz / rate, 0.0f, 3.0f);
    const float c = std::cos(w);
    const float sine = std::sin(w);
    const float A = law::DbGain(law::EqDb(gain));
    const float alpha = sine * std::sinh(std::numbers::ln2_v<float> / 2.0f * row.bandwidth * w / sine);
    const float r = 2.0f * std::sqrt(A) * alpha;
    switch (row.shape) {
    case Shape::LowShelf:
        return Normalised(A * ((A + 1.0f) - (A - 1.0f) * c + r), 2.0f * A * ((A - 1.0f) - (A + 1.0f) * c),
                          A * ((A + 1.0f) - (A - 1.0f) * c - r), (A + 1.0f) + (A - 1.0f) * c + r,
                          -2.0f * ((A - 1.0f) + (A + 1.0f) * c), (A + 1.0f) + (A - 1.0f) * c - r);
    case Shape::HighShelf:
        return Normalised(A * ((A + 1.0f) + (A - 1.0f) * c + r), -2.0f * A * ((A - 1.0f) + (A + 1.0f) * c),
                          A * ((A + 1.0f) + (A - 1.0f) * c - r), (A + 1.0f) - (A - 1.0f) * c + r,
                          2.0f * ((A - 1.0f) - (A + 1.0f) * c), (A + 1.0f) - (A - 1.0f) * c - r);
    case Shape::Peak: break;
    }
    return Normalised(1.0f + alpha * A, -2.0f * c, 1.0f - alpha * A, 1.0f + alpha / A, -2.0f * c, 1.0f - alpha / A);
}

void Equaliser::SetBand(int band, float gain, float rate)
{
    const BandCoefficients<float> c = EqualiserBand(band, gain, rate);
    const auto both = [](float value) { return Stereo{value, value}; };
    sides.bands[band] = {both(c.b0), both(c.b1), both(c.b2), both(c.a1), both(c.a2)};
}

void Equaliser::Clear() { sides.chain = {}; }

void Equaliser::ProcessAll(std::span<const EqualiserRun> runs)
{
    std::array<SidesJob<EqualiserSide>, kChannels> jobs;
    int count = 0;
    for (const auto& [equaliser, block] : runs) {
        if (equaliser->Silent() && korvane::Silent(block)) continue;
        jobs[static_cast<std::size_t>(count++)] = {block.left, block.right, &equaliser->sides, nullptr};
    }
    if (count > 0) kernels.equalise(jobs.data(), count, runs.front().block.frames);
}

bool Equaliser::Ringing() const
{
    const auto& past = sides.chain.past;
    return std::any_of(std::begin(past) + 1, std::end(past), CanBeHeard);
}

bool Equaliser::Silent() const
{
    const auto isZero = [](Stereo value) { return value[0] == 0.0f && value[1] == 0.0f; };
    return std::ranges::all_of(sides.chain.past, isZero) && std::ranges::all_of(sides.chain.beforePast, isZero);
}

} // namespace korvane
