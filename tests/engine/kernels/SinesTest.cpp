// Sines of many phases: the bits of the library's, rounded.
#include "engine/kernels/OnEachIsa.h"

namespace korvane {
namespace {

/// Even, around the quarters of a turn, so small that they are hardly there, and next to where the rounding changes.
std::vector<double> Phases()
{
    std::vector<double> phases;
    for (int n = 0; n < 1'000'003; ++n) phases.push_back(n / 1'000'003.0);
    for (double quarter = 0.0; quarter <= 1.0; quarter += 0.125)
        for (int bits = 0; bits < 70; ++bits)
            for (const double sign : {-1.0, 1.0}) phases.push_back(std::fabs(quarter + sign * std::ldexp(1.0, -bits)));
    for (double phase = 1.0; phase > 1e-300; phase *= 0.7) phases.push_back(phase);
    for (int n = 0; n < 100'000; ++n) { // halfway between two floats
        const double sine = 0.25 + std::ldexp(2.0 * n + 1.0, -26);
        phases.push_back(std::asin(sine) / (2.0 * std::numbers::pi));
    }
    return phases;
}

TEST(Sines, AreThoseOfTheLibrary)
{
    const std::vector<double> phases = Phases();
    std::vector<float> expected, sines(phases.size() + 1);
    for (const double phase : phases) expected.push_back(SineOf(phase) * 0.7f);
    OnEachIsa([&](const Kernels& each) {
        int length = 0; // each odd length, at each place of a vector
        for (std::size_t from = 0; from < phases.size(); from += static_cast<std::size_t>(length)) {
            length = std::min(length % 137 + 1, static_cast<int>(phases.size() - from));
            sines[from + static_cast<std::size_t>(length)] = 5.0f;
            each.sines(&phases[from], 0.7f, &sines[from], length);
            ASSERT_EQ(sines[from + static_cast<std::size_t>(length)], 5.0f);
        }
        EXPECT_TRUE(SameBits(expected, sines));
    });
}

} // namespace
} // namespace korvane
