// The kernels of tapes and pump of each instruction set against their plain forms.
#include "engine/kernels/OnEachIsa.h"

#include <cmath>

#include "framework/Limits.h"

namespace korvane {
namespace {

constexpr int kLengths[] = {0, 1, 17, 128, kMaxRun};

TEST(TapeSpeeds, AreThoseOfThePlainForm)
{
    Edges edges;
    const std::vector<float> delays = edges.Row(kMaxRun);
    std::vector<double> plain(kMaxRun), lanes(kMaxRun);
    OnEachIsa([&](const Kernels& each) {
        for (int frames : kLengths) {
            TapeSpeeds(delays.data(), 96, plain.data(), frames);
            each.tapeSpeeds(delays.data(), 96, lanes.data(), frames);
            EXPECT_TRUE(SameBits(plain, lanes)) << frames;
        }
    });
}

struct Chains {
    std::vector<std::vector<float>> left, right, gains;
    std::vector<std::vector<StereoChain>> entries;
    std::vector<StereoChain> last = std::vector<StereoChain>(kChannels);
    std::vector<TapePlace> places;

    Chains()
    {
        Edges edges;
        for (int c = 0; c < kChannels; ++c) {
            for (auto* rows : {&left, &right, &gains}) rows->push_back(edges.Row(kMaxRun));
            entries.emplace_back(100);
        }
        for (int n = 0; n < kMaxRun; ++n) {
            const int after = (n + 60) % 100;
            places.push_back({(after + 99) % 100, after, std::abs(edges()), n % 100, (n + n % 9 / 8) % 100});
        }
    }

    void Run(ChainTapesKernel* kernel, int count, int frames)
    {
        std::vector<ChainedTapesJob> jobs;
        for (std::size_t c = 0; c < kChannels; ++c)
            jobs.push_back(
                {left[c].data(), right[c].data(), places.data(), gains[c].data(), -0.3f, entries[c].data(), &last[c]});
        kernel(jobs.data(), count, frames);
    }
};

TEST(ChainedTapes, AreThoseOfThePlainForm)
{
    OnEachIsa([&](const Kernels& each) {
        for (int count : {0, 1, 3, kChannels})
            for (int frames : kLengths) {
                Chains plain, lanes;
                plain.Run(ChainTapes, count, frames);
                lanes.Run(each.chainTapes, count, frames);
                EXPECT_TRUE(SameBits(plain.last, lanes.last)) << count << ' ' << frames;
                for (std::size_t c = 0; c < kChannels; ++c)
                    EXPECT_TRUE(SameBits(plain.left[c], lanes.left[c]) && SameBits(plain.right[c], lanes.right[c]) &&
                                SameBits(plain.entries[c], lanes.entries[c]))
                        << count << ' ' << frames << ' ' << c;
            }
    });
}

struct Pumps {
    std::vector<double> phases;
    std::vector<float> levels = std::vector<float>(kChannels * kMaxRun), envelopes = std::vector<float>(kChannels);

    Pumps()
    {
        for (int n = 0; n < kChannels * kMaxRun; ++n) phases.push_back(std::fmod(n * 0.0007, 1.0));
    }

    void Run(PumpKernel* kernel, int count, int frames)
    {
        std::vector<PumpJob> jobs;
        for (int c = 0; c < kChannels; ++c)
            jobs.push_back({&phases[c * kMaxRun], 1.0f + 4.0f * static_cast<float>(c), &levels[c * kMaxRun],
                            &envelopes[static_cast<std::size_t>(c)]});
        kernel(jobs.data(), count, frames);
    }
};

TEST(PumpLevels, AreThoseOfThePlainForm)
{
    OnEachIsa([&](const Kernels& each) {
        for (int count : {0, 1, 3, kChannels})
            for (int frames : kLengths) {
                Pumps plain, lanes;
                plain.Run(PumpLevels, count, frames);
                lanes.Run(each.pump, count, frames);
                EXPECT_TRUE(SameBits(plain.levels, lanes.levels) && SameBits(plain.envelopes, lanes.envelopes))
                    << count << ' ' << frames;
            }
    });
}

} // namespace
} // namespace korvane
