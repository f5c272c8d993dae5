// Unison loop, four frames side by side.
#include "engine/voice/SynthKernel.h"

#include <algorithm>

#include "engine/dsp/Vectors.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kLanes = 4; // consecutive frames

// What oscillator 2 at 1 does to oscillator 1 at full modulation; by ear.
constexpr float kPhaseDepth = 15.0f;    // quarter cycles
constexpr float kAmplitudeDepth = 3.0f; // of the amplitude

constexpr Word4 kRamp = {0, 1, 2, 3};

/// Several steps of the generator at once: x becomes multiplier × x + increment.
struct Jump {
    std::uint32_t multiplier = 1, increment = 0;

    template <class S>
    constexpr S operator()(S x) const
    {
        return x * multiplier + increment;
    }
    constexpr Jump Then(Jump next) const
    {
        return {multiplier * next.multiplier, increment * next.multiplier + next.increment};
    }
};

constexpr Jump JumpOf(std::uint32_t draws)
{
    Jump jump, power = {RandomGenerator::kMultiplier, RandomGenerator::kIncrement};
    for (; draws != 0; draws >>= 1) {
        if (draws & 1u) jump = jump.Then(power);
        power = power.Then(power);
    }
    return jump;
}

constexpr int kDraws = 4; // of a unison voice per frame
constexpr Jump kDraw[kDraws] = {JumpOf(1), JumpOf(2), JumpOf(3), JumpOf(4)};

Word4 Dither(Word4 draw) { return draw & ((1u << kTableShift) - 1u); }

Float4 Read(const float* table, Word4 phase)
{
    const Word4 index = phase >> kTableShift;
    Float4 values{};
    for (int lane = 0; lane < kLanes; ++lane) values[lane] = table[index[lane]];
    return values;
}

/// The first `count` of four numbers, the rest 0: what lies behind the run is nobody's.
Float4 LoadUpTo(const float* from, int count)
{
    if (count >= kLanes) return Load<Float4>(from);
    Float4 values{};
    for (int lane = 0; lane < count; ++lane) values[lane] = from[lane];
    return values;
}

Word4 PhasesOf(Float4 quarterCycles)
{
    const Float4 steps = (quarterCycles + kPhaseBias) * kPhaseSteps;
    const Float4 low = steps > -kPhaseLimit ? steps : Float4{} - kPhaseLimit;
    const Float4 inside = low < kPhaseLimit ? low : Float4{} + kPhaseLimit;
    return (Word4) __builtin_convertvector(inside, Int4) << 8;
}

/// One unison voice within a run.
struct Unison {
    UnisonPhases phase, increment;
    float gainLeft[kOscillatorsAndNoise], gainRight[kOscillatorsAndNoise];

    /// Read phases of oscillator 1, which restarts whenever the reference completes a cycle.
    Word4 SyncedPhases(int frames)
    {
        const std::uint64_t end = phase.sync + std::uint64_t{increment.sync} * static_cast<unsigned>(frames);
        Word4 read = phase.osc1 + kRamp * increment.osc1;
        if (end >> 32 == 0) {
            phase.sync = static_cast<std::uint32_t>(end);
            phase.osc1 += increment.osc1 * static_cast<unsigned>(frames);
            return read;
        }
        for (int lane = 0; lane < frames; ++lane) {
            read[lane] = phase.osc1;
            phase.sync += increment.sync;
            if (phase.sync < increment.sync) phase.osc1 = phase.sync;
            phase.osc1 += increment.osc1;
        }
        return read;
    }
};

template <OscillatorModulation kModulation, bool kSecond, bool kThird, bool kNoise>
void Render(const UnisonMix& mix, const UnisonTuning& tuning, const float* modAmount, Unison* unison,
            std::uint32_t random, float* left, float* right, int frames)
{
    const int count = mix.unisonCount;
    const Jump frame = JumpOf(static_cast<std::uint32_t>(kDraws * count));
    const Jump group = JumpOf(static_cast<std::uint32_t>(kDraws * count * (kLanes - 1)));
    const float sign2 = mix.invert2 ? -1.0f : 1.0f;
    Word4 draws{}; // each lane stands where its frame begins
    for (int lane = 0; lane < kLanes; ++lane, random = frame(random)) draws[lane] = random;

    for (int n = 0; n < frames; n += kLanes) {
        const int groupFrames = std::min(kLanes, frames - n);
        const Float4 amount = LoadUpTo(modAmount + n, groupFrames);
        Float4 mixLeft{}, mixRight{};
        for (int u = 0; u < count; ++u) {
            Unison& voice = unison[u];
            Float4 s2{};
            if constexpr (kSecond || kModulation != OscillatorModulation::Sync) {
                const Word4 phase = voice.phase.osc2 + kRamp * voice.increment.osc2;
                s2 = Read(tuning.tables[1], phase + mix.phaseOffset2 + Dither(kDraw[0](draws))) * sign2;
            }
            Word4 phase1;
            if constexpr (kModulation == OscillatorModulation::Sync) {
                phase1 = voice.SyncedPhases(groupFrames);
            } else {
                phase1 = voice.phase.osc1 + kRamp * voice.increment.osc1;
                voice.phase.osc1 += voice.increment.osc1 * static_cast<unsigned>(groupFrames);
            }
            if constexpr (kModulation == OscillatorModulation::Phase) phase1 += PhasesOf(kPhaseDepth * amount * s2);
            Float4 s1 = Read(tuning.tables[0], phase1 + Dither(kDraw[1](draws)));
            if constexpr (kModulation == OscillatorModulation::Amplitude)
                s1 = s1 * (1.0f - kAmplitudeDepth * amount * s2);

            Float4 sumLeft{}, sumRight{};
            const auto add = [&](const Float4& source, int number) {
                sumLeft += source * voice.gainLeft[number];
                sumRight += source * voice.gainRight[number];
            };
            if constexpr (kSecond) add(s2, 1);
            if constexpr (kThird) {
                const Word4 phase3 = voice.phase.osc3 + kRamp * voice.increment.osc3;
                add(Read(tuning.tables[2], phase3 + Dither(kDraw[2](draws))), 2);
            }
            draws = kDraw[3](draws);
            if constexpr (kNoise) add(__builtin_convertvector(draws, Float4) * 0x1p-32f - 0.5f, 3);
            add(s1, 0);
            mixLeft += sumLeft;
            mixRight += sumRight;
            voice.phase.osc2 += voice.increment.osc2 * static_cast<unsigned>(groupFrames);
            voice.phase.osc3 += voice.increment.osc3 * static_cast<unsigned>(groupFrames);
        }
        Store(mixLeft, left + n);
        Store(mixRight, right + n);
        draws = group(draws);
    }
}

using RenderFunction = decltype(&Render<OscillatorModulation::Sync, false, false, false>);

template <OscillatorModulation kModulation>
RenderFunction FunctionFor(bool second, bool third, bool noise)
{
    constexpr OscillatorModulation m = kModulation;
    static constexpr RenderFunction kFunctions[] = {
        Render<m, false, false, false>, Render<m, false, false, true>, Render<m, false, true, false>,
        Render<m, false, true, true>,   Render<m, true, false, false>, Render<m, true, false, true>,
        Render<m, true, true, false>,   Render<m, true, true, true>,
    };
    return kFunctions[4 * second + 2 * third + noise];
}

bool Heard(const UnisonMix& mix, int source)
{
    const auto zero = [](float gain) { return gain == 0.0f; };
    return !std::all_of(mix.gainLeft[source], mix.gainLeft[source] + mix.unisonCount, zero) ||
           !std::all_of(mix.gainRight[source], mix.gainRight[source] + mix.unisonCount, zero);
}

} // namespace

void RenderUnison(const UnisonMix& mix, const UnisonTuning& tuning, const float* modAmount, UnisonPhases* phases,
                  RandomGenerator& random, float* left, float* right, int frames)
{
    Unison unison[kUnison];
    for (int u = 0; u < mix.unisonCount; ++u) {
        unison[u].phase = phases[u];
        unison[u].increment = {tuning.increments[0][u], tuning.syncIncrements[u], tuning.increments[1][u],
                               tuning.increments[2][u]};
        for (int source = 0; source < kOscillatorsAndNoise; ++source) {
            unison[u].gainLeft[source] = mix.gainLeft[source][u];
            unison[u].gainRight[source] = mix.gainRight[source][u];
        }
    }
    // A source at gain 0 adds nothing, but its numbers are drawn all the same.
    const bool second = Heard(mix, 1), third = Heard(mix, 2), noise = Heard(mix, 3);
    const RenderFunction render = mix.modulation == OscillatorModulation::Sync
                                      ? FunctionFor<OscillatorModulation::Sync>(second, third, noise)
                                  : mix.modulation == OscillatorModulation::Phase
                                      ? FunctionFor<OscillatorModulation::Phase>(second, third, noise)
                                      : FunctionFor<OscillatorModulation::Amplitude>(second, third, noise);
    render(mix, tuning, modAmount, unison, random.state, left, right, frames);
    random.state = JumpOf(static_cast<std::uint32_t>(kDraws * mix.unisonCount * frames))(random.state);
    for (int u = 0; u < mix.unisonCount; ++u) phases[u] = unison[u].phase;
}

std::uint32_t PhaseOf(float quarterCycles)
{
    const float steps = Clamp((quarterCycles + kPhaseBias) * kPhaseSteps, -kPhaseLimit, kPhaseLimit);
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(steps)) << 8;
}

} // namespace korvane
