// Strips: the bits of frame by frame.
#include "engine/kernels/OnEachIsa.h"

#include <algorithm>
#include <limits>

namespace korvane {
namespace {

constexpr int kStrips = 3; // a gain moves, has arrived, moves where nobody listens to the strip

struct Desk {
    float in[kStrips][2][kMaxRun], direct[kStrips][2][kMaxRun], main[2][kMaxRun], gains[kStrips][2], peaks[kStrips][2];

    StripSide Side(int strip, int side)
    {
        return {in[strip][side], strip == 2 ? nullptr : direct[strip][side], 0.5f, strip == 1 ? 0.5f : 0.1f, 0.4f};
    }

    void Mix(MixStripsKernel& kernel, int frames)
    {
        StripJob jobs[kStrips];
        for (int n = 0; n < kStrips; ++n) jobs[n] = {Side(n, 0), Side(n, 1), n == 0 && frames % 2 == 0};
        kernel(jobs, kStrips, main[0], main[1], frames);
        for (int n = 0; n < kStrips; ++n)
            for (const int side : {0, 1}) {
                gains[n][side] = (side ? jobs[n].right : jobs[n].left).gain;
                peaks[n][side] = (side ? jobs[n].right : jobs[n].left).peak;
            }
    }
};

void Plain(StripJob* jobs, int count, float* mainLeft, float* mainRight, int frames)
{
    for (int n = 0; n < count; ++n) {
        MixSide(jobs[n].left, jobs[n].first, mainLeft, frames);
        MixSide(jobs[n].right, jobs[n].first, mainRight, frames);
    }
}

TEST(StripMix, IsThatOfFrameByFrame)
{
    static Desk plain, lanes;
    std::minstd_rand random(1);
    float* const samples = plain.in[0][0];
    std::generate_n(samples, kStrips * 2 * kMaxRun, [&] { return static_cast<float>(random()) / 1e9f - 1.0f; });
    samples[5] = -0.0f;
    samples[70] = std::numeric_limits<float>::quiet_NaN();
    OnEachIsa([](const Kernels& each) {
        for (const int frames : {0, 1, 7, 16, 61, 128, 512}) {
            lanes = plain;
            plain.Mix(Plain, frames);
            lanes.Mix(*each.mixStrips, frames);
            EXPECT_EQ(std::memcmp(&plain, &lanes, sizeof plain), 0) << frames;
        }
    });
}

} // namespace
} // namespace korvane
