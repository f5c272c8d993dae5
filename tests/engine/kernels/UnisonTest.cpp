// Unison voices side by side.
#include "engine/kernels/OnEachIsa.h"

namespace korvane {
namespace {

struct Voice {
    UnisonPhases phases = {};
    RandomGenerator random;
    alignas(64) float left[kMaxRun], right[kMaxRun];
};

struct Rig {
    RandomGenerator random;
    std::vector<float> tables = std::vector<float>(kOscillators * kWaveTablePoints);
    UnisonMix mix;
    UnisonTuning tuning;
    alignas(64) float modAmount[kMaxRun];

    float Number() { return static_cast<float>(random.Next()) * 0x1p-31f - 1.0f; }

    /// octaves  of the increments, up to half the rate
    Rig(int count, OscillatorModulation kind, int heard, int octaves)
    {
        for (float& point : tables) point = random.Next() % 7 == 0 ? 0.0f : Number();
        for (float& amount : modAmount) amount = random.Next() % 9 == 0 ? -0.0f : 2.0f * Number();
        modAmount[5] = 1e30f;
        modAmount[6] = 1e-42f;
        mix = {.unisonCount = count, .modulation = kind, .phaseOffset2 = random.Next(), .invert2 = heard % 2 == 0};
        for (int source = 0; source < kOscillatorsAndNoise; ++source) {
            mix.heard[source] = source == 0 || (heard >> source & 1) != 0;
            for (int u = 0; u < count && mix.heard[source]; ++u) {
                mix.gainLeft[source][u] = Number();
                mix.gainRight[source][u] = u % 3 == 0 ? 0.0f : Number();
            }
        }
        for (int osc = 0; osc < kOscillators; ++osc) tuning.tables[osc] = &tables[osc * kWaveTablePoints];
        for (int u = 0; u < kUnison; ++u) {
            for (auto& increments : tuning.increments) increments[u] = random.Next() >> 1;
            tuning.syncIncrements[u] = u == 3 ? 0 : random.Next() >> (1 + octaves);
        }
    }

    void Play(RenderUnisonKernel* render, Voice& voice, int frames)
    {
        render({&mix, &tuning, modAmount, &voice.phases, voice.left, voice.right}, voice.random, frames);
    }
};

void ExpectSame(const Voice& a, const Voice& b, int frames)
{
    const auto bytes = static_cast<std::size_t>(frames) * sizeof(float);
    EXPECT_EQ(std::memcmp(a.left, b.left, bytes), 0);
    EXPECT_EQ(std::memcmp(a.right, b.right, bytes), 0);
    EXPECT_EQ(std::memcmp(&a.phases, &b.phases, sizeof a.phases), 0);
    EXPECT_EQ(a.random.state, b.random.state);
}

TEST(UnisonKernel, GivesTheBitsOfThePlainForm)
{
    const OscillatorModulation kinds[] = {OscillatorModulation::Sync, OscillatorModulation::Phase,
                                          OscillatorModulation::Amplitude};
    OnEachIsa([&](const Kernels& each) {
        for (int count : {1, 2, 3, 5, 8, 9, 16})
            for (const OscillatorModulation kind : kinds)
                for (int heard = 0; heard < 16; heard += 2) {
                    SCOPED_TRACE(testing::Message()
                                 << count << " voices, kind " << static_cast<int>(kind) << ", sources " << heard);
                    Rig rig(count, kind, heard, heard);
                    Voice plain, lanes;
                    for (int frames : {0, 1, 2, 3, 7, 1, 16, 19, 33, 128, kMaxRun}) {
                        rig.Play(RenderUnisonPlainly, plain, frames);
                        rig.Play(each.renderUnison, lanes, frames);
                        ExpectSame(plain, lanes, frames);
                    }
                }
    });
}

} // namespace
} // namespace korvane
