// Sample layers side by side give the bits of each by itself.
#include "engine/kernels/OnEachIsa.h"

#include <cstddef>

namespace korvane {
namespace {

/// Layers of all kinds, a few of each voice.
struct Layers {
    static constexpr int kSampleFrames = 3000;

    Layers(int count, int frames, unsigned seed)
        : data(2, std::vector<float>(kSampleFrames + 2)), states(count), mix(2 * count, std::vector<float>(frames))
    {
        std::mt19937 random(seed);
        const auto any = [&random](float low, float high) { return std::uniform_real_distribution(low, high)(random); };
        const auto below = [&random](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
        const auto chance = [&below](int oneIn) { return below(oneIn) == 0; };
        for (auto& side : data)
            for (int i = 0; i < kSampleFrames; ++i) side[i] = any(-1, 1) * (chance(8) ? 1e-9f : chance(50) ? 1e30f : 1);
        for (int l = 0; l < count; ++l) {
            LayerState& s = states[l];
            s.increment = chance(2) ? 1.0 : any(0.1f, 4.0f);
            const int from = chance(4) ? below(frames) : 0, to = chance(4) ? from + 1 + below(frames - from) : frames;
            s.position = any(0, kSampleFrames - 1.0f - static_cast<float>(s.increment * (to - from)));
            s.gainLeft = any(-2, 2);
            s.gainRight = chance(3) ? 0.0f : 1e-3f;
            s.envLevel = any(0, 1);
            s.envTarget = chance(2) ? 5.0f : 0.0f;
            s.envRate = any(0, 0.1f);
            s.decayRate = chance(2) ? 0.0f : any(0, 1);
            s.plateauFrames = below(40);
            s.coefficients = {any(0.5f, 1), any(-1.9f, -1), any(0.5f, 0.9f), any(0, 0.1f), any(-1.9f, 0), any(0, 0.9f)};
            for (auto& filter : s.filters) filter = {any(-1, 1), any(-1, 1), 0, 1e-8f, any(-1, 1), any(-1, 1)};
            const float *left = data[0].data(), *right = data[below(2)].data();
            float *mixLeft = mix[2 * (l / 3)].data(), *mixRight = mix[2 * (l / 3) + 1].data();
            jobs.push_back({&s, {left, right}, kSampleFrames, chance(3), from, to, mixLeft, mixRight, 0, 0});
        }
    }

    std::vector<std::vector<float>> data;
    std::vector<LayerState> states;
    std::vector<std::vector<float>> mix;
    std::vector<LayerJob> jobs;
};

bool SameState(const LayerState& a, const LayerState& b)
{
    constexpr auto kBytes = offsetof(LayerState, filters) + sizeof a.filters; // without what pads it
    return std::memcmp(&a, &b, kBytes) == 0;
}

TEST(LayerKernels, GiveTheBitsOfThePlainForm)
{
    unsigned seed = 0;
    for (const int count : {1, 2, 3, 5, 8, 9, 16, 17, 50, 192})
        for (const int frames : {1, 2, 7, 16, 61, 128, 512}) {
            Layers plain(count, frames, ++seed);
            for (LayerJob& job : plain.jobs) PlayLayer(job, 0.005f);
            OnEachIsa([&](const Kernels& each) {
                SCOPED_TRACE(testing::Message() << count << " of " << frames);
                Layers lanes(count, frames, seed);
                each.playLayers(lanes.jobs.data(), count, 0.005f);
                for (std::size_t m = 0; m < lanes.mix.size(); ++m) EXPECT_TRUE(SameBits(lanes.mix[m], plain.mix[m]));
                for (int l = 0; l < count; ++l) {
                    EXPECT_TRUE(SameState(lanes.states[l], plain.states[l]));
                    EXPECT_EQ(lanes.jobs[l].lastLeft, plain.jobs[l].lastLeft);
                    EXPECT_EQ(lanes.jobs[l].lastRight, plain.jobs[l].lastRight);
                }
            });
        }
}

} // namespace
} // namespace korvane
