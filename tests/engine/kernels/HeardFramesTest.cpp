// A block is heard up to its last loud sample, wherever that is.
#include "engine/kernels/OnEachIsa.h"

#include <limits>

namespace korvane {
namespace {

TEST(HeardFrames, EndAtTheLastSampleThatExceedsSilence)
{
    constexpr float kQuiet[] = {kSilence, -kSilence, -0.0f, std::numeric_limits<float>::quiet_NaN()};
    OnEachIsa([&](const Kernels& each) {
        for (const int frames : {0, 1, 3, 15, 16, 17, 61, 128})
            for (int heard = 0; heard <= frames; ++heard)
                for (const int side : {0, 1}) {
                    std::vector<float> sides[2] = {std::vector<float>(frames + 1, 1.0f), {}};
                    for (int n = heard; n < frames; ++n) sides[0][n] = kQuiet[n % 4];
                    if (heard > 0) sides[0][heard - 1] = -1.5f * kSilence;
                    sides[1].assign(frames + 1, kQuiet[heard % 4]);
                    sides[1].back() = 1.0f; // behind the end
                    EXPECT_EQ(each.heardFrames(sides[side].data(), sides[1 - side].data(), frames), heard) << frames;
                }
    });
}

} // namespace
} // namespace korvane
