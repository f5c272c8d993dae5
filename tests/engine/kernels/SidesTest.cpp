// Effects side by side on each instruction set against their plain forms.
#include "engine/kernels/OnEachIsa.h"

#include "framework/Limits.h"

namespace korvane {
namespace {

/// Channels whose rows end with the block; sides hold small numbers, so that nothing grows without end.
template <template <class> class Side>
struct Rig {
    std::vector<Side<Stereo>> sides;
    std::vector<float> rows;
    std::vector<SidesJob<Side>> jobs;

    Rig(int channels, int frames) : sides(channels), rows(3 * channels * frames), jobs(channels)
    {
        Edges edges;
        float* const values = reinterpret_cast<float*>(sides.data());
        for (std::size_t n = 0; n < sides.size() * sizeof(Side<Stereo>) / 4; ++n) values[n] = 0.1f * edges();
        for (float& x : rows) x = edges();
        for (int c = 0; c < channels; ++c) {
            float* const row = rows.data() + 3 * c * frames;
            jobs[c] = {row, row + frames, &sides[c], row + 2 * frames};
        }
    }
    bool operator==(const Rig& other) const { return SameBits(sides, other.sides) && SameBits(rows, other.rows); }
};

template <template <class> class Side>
void ExpectThePlainBits(SidesKernel<Side>* Kernels::*kernel)
{
    for (const int channels : {0, 1, 2, 3, 5, 8, 9, kChannels})
        for (const int frames : {0, 1, 3, 4, 8, 15, 17, 33, 128, kMaxRun}) {
            SCOPED_TRACE(std::to_string(channels) + " channels, frames: " + std::to_string(frames));
            Rig<Side> plain(channels, frames);
            for (const auto& job : plain.jobs) RunSides(job, frames);
            OnEachIsa([&](const Kernels& isa) {
                Rig<Side> rig(channels, frames);
                (isa.*kernel)(rig.jobs.data(), channels, frames);
                EXPECT_TRUE(rig == plain);
            });
        }
}

TEST(SidesKernels, GiveTheBitsOfThePlainForm)
{
    ExpectThePlainBits(&Kernels::distort);
    ExpectThePlainBits(&Kernels::decimate);
    ExpectThePlainBits(&Kernels::phase);
    ExpectThePlainBits(&Kernels::filterSides);
    ExpectThePlainBits(&Kernels::equalise);
}

} // namespace
} // namespace korvane
