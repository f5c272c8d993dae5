// Amplitudes of each instruction set against their plain form.
#include "engine/kernels/OnEachIsa.h"

#include <algorithm>
#include <limits>

namespace korvane {
namespace {

// A block with a value that is no number becomes silence; what lies behind the run plays no part.
TEST(AmplitudeKernel, GivesTheBitsOfThePlainForm)
{
    constexpr float kBad[] = {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::quiet_NaN()};
    for (const int frames : {0, 1, 3, 16, 17, 127, 512})
        for (const int bad : {-1, 0, frames / 2, frames - 1, frames}) {
            SCOPED_TRACE(frames * 1000 + bad);
            const auto run = [&](ShapeVoicesKernel* shape) {
                Edges edges;
                std::vector<float> rows[3] = {edges.Row(kMaxRun), edges.Row(kMaxRun), edges.Row(kMaxRun)};
                if (bad >= 0 && bad < kMaxRun) rows[bad % 2][static_cast<std::size_t>(bad)] = kBad[bad / 2 % 2];
                std::replace(rows[2].begin(), rows[2].end(), 0.0f, 2.0f);
                const AmplitudeJob job = {rows[0].data(), rows[1].data(), rows[2].data()};
                shape(&job, 1, frames);
                for (int side = 0; side < 2; ++side) rows[side].resize(static_cast<std::size_t>(frames));
                return std::pair(rows[0], rows[1]);
            };
            OnEachIsa([&](const Kernels& isa) { EXPECT_EQ(run(isa.shapeVoices), run(ShapeVoicesPlainly)); });
        }
}

} // namespace
} // namespace korvane
