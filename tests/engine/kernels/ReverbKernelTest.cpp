// Reverbs side by side: the bits of each one frame by frame.
#include "engine/kernels/OnEachIsa.h"

#include "engine/fx/reverb/ReverbTank.h"

namespace korvane {
namespace {

/// Reverbs of different rooms, some without low cut, some with reflections, at a rate whose lines are short.
struct Hall {
    std::vector<ReverbCoefficients> coefficients;
    std::vector<ReverbTank> tanks;
    std::vector<std::vector<float>> sound; // left, right of each

    Hall(int count, float rate, int frames) : tanks(static_cast<std::size_t>(count))
    {
        std::minstd_rand random(static_cast<unsigned>(count));
        for (ReverbTank& tank : tanks) {
            ReverbSteps steps;
            for (const ReverbParameter& row : kReverbParameters)
                steps[static_cast<std::size_t>(row.index)] =
                    ReverbStep(row.index, static_cast<float>(random() % 1000) / 999.0f);
            if (random() % 2) steps[reverb::LowCut] = 0;
            coefficients.push_back(ComputeReverb(steps, rate));
            tank.Allocate(rate, true);
            tank.Fit(coefficients.back(), false);
            tank.state.level = 0.1f;
            for (int side = 0; side < 2; ++side)
                for (auto& x : sound.emplace_back(frames)) x = static_cast<float>(random()) / 1e9f - 1.0f;
        }
    }

    template <class Run>
    void Play(const Run& run, int from, int frames)
    {
        std::vector<ReverbJob> jobs;
        for (std::size_t n = 0; n < tanks.size(); ++n) {
            float *const left = &sound[2 * n][from], *const right = &sound[2 * n + 1][from];
            jobs.push_back({&coefficients[n], &tanks[n].state, left, right, left, right, n % 2 == 1});
            jobs.back().send = n % 3 == 0 ? 0.0f : 1.0f;
        }
        run(jobs.data(), static_cast<int>(jobs.size()), frames);
    }
};

TEST(ReverbKernel, GivesTheBitsOfFrameByFrame)
{
    const auto plain = [](ReverbJob* jobs, int count, int frames) {
        for (int n = 0; n < count; ++n) RunReverb(jobs[n], frames);
    };
    OnEachIsa([&](const Kernels& each) {
        for (const float rate : {2000.0f, 44100.0f})
            for (const int count : {1, 2, 13}) {
                constexpr int kFrames = 3000;
                Hall one(count, rate, kFrames), other(count, rate, kFrames);
                for (int from = 0, frames = 1; from < kFrames; from += frames, frames = frames * 5 % 301) {
                    frames = std::min(frames, kFrames - from);
                    one.Play(plain, from, frames);
                    other.Play(*each.runReverbs, from, frames);
                }
                for (std::size_t n = 0; n < one.tanks.size(); ++n)
                    EXPECT_EQ(one.tanks[n].state.cuts.lowOut, other.tanks[n].state.cuts.lowOut);
                EXPECT_EQ(one.sound, other.sound) << rate << ' ' << count;
            }
    });
}

} // namespace
} // namespace korvane
