// A sample that is no sound is found wherever it is.
#include "engine/kernels/OnEachIsa.h"

#include <limits>

namespace korvane {
namespace {

TEST(AllSound, FindsEachBadSample)
{
    using Limits = std::numeric_limits<float>;
    OnEachIsa([](const Kernels& each) {
        for (const float bad : {Limits::quiet_NaN(), -Limits::infinity(), 1.0e25f, -1.1e25f})
            for (const int frames : {0, 1, 3, 15, 16, 17, 61, 128}) {
                std::vector<float> sides[2] = {std::vector<float>(frames + 1, -9.9e24f),
                                               std::vector<float>(frames + 1)};
                sides[0].back() = sides[1].back() = bad; // behind the end
                const auto sound = [&] { return each.allSound(sides[0].data(), sides[1].data(), frames); };
                ASSERT_TRUE(sound()) << frames;
                for (auto& side : sides)
                    for (int n = 0; n < frames; ++n) {
                        const float good = std::exchange(side[n], bad);
                        ASSERT_FALSE(sound()) << frames << ' ' << n;
                        side[n] = good;
                    }
            }
    });
}

} // namespace
} // namespace korvane
