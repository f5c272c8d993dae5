// Equaliser: band table, coefficients and the run of five sections.
#include "engine/fx/Equaliser.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "engine/fx/Tail.h"
#include "framework/KnobLaws.h"
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

BandCoefficients Normalised(float b0, float b1, float b2, float a0, float a1, float a2)
{
    return {Flushed(b0 / a0), Flushed(b1 / a0), Flushed(b2 / a0), Flushed(a1 / a0), Flushed(a2 / a0)};
}

} // namespace

BandCoefficients EqualiserBand(int band, float gain, float rate)
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
    coefficients[static_cast<std::size_t>(band)] = EqualiserBand(band, gain, rate);
}

void Equaliser::Process(float* left, float* right, int frames)
{
    const auto isZero = [](float sample) { return sample == 0.0f; };
    if (Silent() && std::all_of(left, left + frames, isZero) && std::all_of(right, right + frames, isZero)) return;
    auto bands = states;
    for (int n = 0; n < frames; ++n) {
        StoreFrame(bands.Step(LoadFrame(left, right, n), coefficients.data()), left, right, n);
    }
    states = bands;
}

void Equaliser::Clear() { states = {}; }

bool Equaliser::Ringing() const { return std::any_of(std::begin(states.past) + 1, std::end(states.past), CanBeHeard); }

bool Equaliser::Silent() const
{
    const auto isZero = [](Stereo value) { return value[0] == 0.0f && value[1] == 0.0f; };
    return std::all_of(std::begin(states.past), std::end(states.past), isZero) &&
           std::all_of(std::begin(states.beforePast), std::end(states.beforePast), isZero);
}

} // namespace korvane
