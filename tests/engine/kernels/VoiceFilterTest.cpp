// The voice filter of each instruction set against its plain form.
#include "engine/kernels/OnEachIsa.h"

#include <bit>
#include <cstring>

namespace korvane {
namespace {

struct Voice {
    float state[2][kFilterStages] = {};
    std::vector<float> left, right, cutoff, gain;
    float resonance = 0.0f;
    FilterType type = FilterType::LowPass;
};

struct Rig {
    std::vector<Voice> voices;
    std::vector<float> mix[2][2];

    Rig(int count, int resonant)
    {
        Edges edges;
        voices.resize(static_cast<std::size_t>(count));
        for (Voice& voice : voices) {
            for (auto* row : {&voice.left, &voice.right, &voice.cutoff, &voice.gain}) *row = edges.Row(kMaxRun);
            for (auto& side : voice.state)
                for (float& stage : side) stage = 0.5f * edges();
            voice.resonance = edges.Below(10) < resonant ? std::abs(edges()) : 0.0f;
            voice.type = static_cast<FilterType>(edges.Below(3));
        }
        for (auto& channel : mix)
            for (auto& side : channel) side.assign(kMaxRun, 0.25f);
    }

    std::vector<FilterJob> Jobs()
    {
        std::vector<FilterJob> jobs;
        for (std::size_t v = 0; v < voices.size(); ++v) {
            Voice& voice = voices[v];
            auto& channel = mix[v % 2];
            jobs.push_back({voice.state, voice.left.data(), voice.right.data(), voice.cutoff.data(), voice.gain.data(),
                            voice.resonance, voice.type, channel[0].data(), channel[1].data()});
        }
        return jobs;
    }
};

void FilterPlainly(const FilterJob& job, const CutoffPair* table, int frames)
{
    float* const inputs[] = {job.left, job.right};
    float* const mixes[] = {job.mixLeft, job.mixRight};
    for (int side = 0; side < 2; ++side) {
        float(&s)[kFilterStages] = job.state[side];
        Ladder<float> ladder{s[0], s[1], s[2], s[3]};
        for (int n = 0; n < frames; ++n) {
            const CutoffPair pair = table[CutoffIndex(job.cutoff[n])];
            for (int pass = 0; pass < kOversampling; ++pass)
                ladder.Pass(inputs[side][n], pair.g, pair.k, job.resonance);
            const float upper = (job.type == FilterType::HighPass ? ladder.u : ladder.s3) - ladder.s4;
            mixes[side][n] += (job.type == FilterType::LowPass ? ladder.s4 : upper) * job.gain[n];
        }
        s[0] = ladder.s1, s[1] = ladder.s2, s[2] = ladder.s3, s[3] = ladder.s4;
    }
}

TEST(VoiceFilterKernel, GivesTheBitsOfThePlainForm)
{
    const CutoffPair* const table = CutoffTable();
    for (const int count : {0, 1, 2, 3, 8, 9, 25, 41, 78})
        for (const int resonant : {0, 5, 10})
            for (const int frames : {0, 1, 4, 5, 15, 16, 33, 128, 512}) {
                SCOPED_TRACE(count * 10000 + frames * 10 + resonant);
                Rig plain(count, resonant);
                for (const FilterJob& job : plain.Jobs()) FilterPlainly(job, table, frames);
                OnEachIsa([&](const Kernels& isa) {
                    Rig rig(count, resonant);
                    isa.filterVoices(rig.Jobs().data(), count, table, frames);
                    for (int m = 0; m < 4; ++m)
                        EXPECT_EQ(
                            std::memcmp(rig.mix[m / 2][m % 2].data(), plain.mix[m / 2][m % 2].data(), 4 * kMaxRun), 0);
                    for (std::size_t v = 0; v < rig.voices.size(); ++v)
                        EXPECT_EQ(std::memcmp(rig.voices[v].state, plain.voices[v].state, sizeof Voice::state), 0) << v;
                });
            }
}

} // namespace
} // namespace korvane
