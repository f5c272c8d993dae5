// Unison voices, frames or voices side by side.
#include "engine/kernels/Unison.h"

#include <utility>

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

RenderUnisonKernel RenderUnison;

namespace {

template <int... lane>
constexpr Words RampOf(std::integer_sequence<int, lane...>)
{
    return Words{lane...};
}
constexpr Words kRamp = RampOf(std::make_integer_sequence<int, kLanes>());

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

constexpr Jump JumpOf(int draws)
{
    Jump jump;
    for (int n = 0; n < draws; ++n) jump = jump.Then({RandomGenerator::kMultiplier, RandomGenerator::kIncrement});
    return jump;
}

constexpr int kDraws = 4; // of a unison voice per frame
constexpr Jump kDraw[kDraws] = {JumpOf(1), JumpOf(2), JumpOf(3), JumpOf(4)};

/// Lane after lane further on by the same number of draws.
struct Spread {
    alignas(64) std::uint32_t multiplier[kLanes] = {}, increment[kLanes] = {};
    Jump whole; // a vector further

    Words operator()(std::uint32_t x) const { return x * Load<Words>(multiplier) + Load<Words>(increment); }
};

struct Spreads {
    Spread of[kUnison + 1]; // so many unison voices from lane to lane

    constexpr Spreads() : of()
    {
        for (int count = 1; count <= kUnison; ++count) {
            const Jump step = JumpOf(kDraws * count);
            Jump jump;
            for (int lane = 0; lane < kLanes; ++lane, jump = jump.Then(step)) {
                of[count].multiplier[lane] = jump.multiplier;
                of[count].increment[lane] = jump.increment;
            }
            of[count].whole = jump;
        }
    }
};
constexpr Spreads kSpreads;

Floats Read(const float* table, Words phase, Words draw)
{
    return Gather(table, (phase + (draw & kDither)) >> kTableShift);
}

Words PhasesOf(Floats quarterCycles)
{
    const Floats steps = (quarterCycles + kPhaseBias) * kPhaseSteps;
    const Floats above = Select(steps > -kPhaseLimit, steps, Splat(-kPhaseLimit)); // NaN as well
    const Floats inside = Select(above < kPhaseLimit, above, Splat(kPhaseLimit));
    return reinterpret_cast<Words>(__builtin_convertvector(inside, Ints)) << 8;
}

/// A vector of reads, of one unison voice at several frames or of several at one frame.
struct Place {
    Words phase1, phase2, phase3;
    Words draws; // where the four begin
};

struct Stereo {
    Floats left{}, right{};
};

/// What is the same for the whole run.
template <OscillatorModulation modulation, bool second, bool third, bool noise>
struct Sources {
    static constexpr bool kSyncs = modulation == OscillatorModulation::Sync;
    const UnisonMix& mix;
    const UnisonTuning& tuning;
    float sign2 = mix.invert2 ? -1.0f : 1.0f;

    /// amount  of the modulation
    /// gain    of a row of gains
    template <class Amount, class GainOf>
    [[gnu::always_inline]] Stereo At(const Place& at, const Amount& amount, const GainOf& gain) const
    {
        Floats s2{};
        if constexpr (second || !kSyncs)
            s2 = Read(tuning.tables[1], at.phase2 + mix.phaseOffset2, kDraw[0](at.draws)) * sign2;
        Words phase1 = at.phase1;
        if constexpr (modulation == OscillatorModulation::Phase) phase1 += PhasesOf(kPhaseDepth * amount * s2);
        Floats s1 = Read(tuning.tables[0], phase1, kDraw[1](at.draws));
        if constexpr (modulation == OscillatorModulation::Amplitude) s1 = s1 * (1.0f - kAmplitudeDepth * amount * s2);

        Stereo sum;
        const auto add = [&](const Floats& source, int number) {
            sum.left += source * gain(mix.gainLeft[number]);
            sum.right += source * gain(mix.gainRight[number]);
        };
        if constexpr (second) add(s2, 1);
        if constexpr (third) add(Read(tuning.tables[2], at.phase3, kDraw[2](at.draws)), 2);
        if constexpr (noise) add(__builtin_convertvector(kDraw[3](at.draws), Floats) * 0x1p-32f - 0.5f, 3);
        add(s1, 0);
        return sum;
    }
};

/// Read phases of oscillator 1, which restarts whenever the reference completes a cycle. Moves both on.
[[gnu::always_inline]] inline Words SyncedPhases(const UnisonTuning& tuning, UnisonPhases& phases, int u, int frames)
{
    const std::uint32_t step1 = tuning.increments[0][u], stepSync = tuning.syncIncrements[u];
    std::uint32_t osc1 = phases.osc1[u], sync = phases.sync[u];
    const Words ramp1 = kRamp * step1;
    Words read = osc1 + ramp1;
    const std::uint64_t end = sync + std::uint64_t{stepSync} * static_cast<unsigned>(frames);
    if (end >> 32 != 0) {
        const Words behind = sync + stepSync + kRamp * stepSync; // the reference behind each frame
        for (unsigned wraps = Bits(behind < stepSync) & ((1u << frames) - 1u); wraps != 0; wraps &= wraps - 1u) {
            const auto frame = static_cast<unsigned>(__builtin_ctz(wraps));
            osc1 = sync + (frame + 1u) * stepSync - frame * step1; // where it would have begun
            read = kRamp > frame ? osc1 + ramp1 : read;
        }
    }
    phases.osc1[u] = osc1 + static_cast<unsigned>(frames) * step1;
    phases.sync[u] = static_cast<std::uint32_t>(end);
    return read;
}

/// kLanes frames of a unison voice side by side.
template <class S>
void RenderFrames(const S& sources, const UnisonJob& job, RandomGenerator& random, int frames)
{
    const UnisonTuning& tuning = sources.tuning;
    UnisonPhases& phases = *job.phases;
    const int count = sources.mix.unisonCount;
    const Spread& spread = kSpreads.of[count];
    Words starts = spread(random.state);
    for (int n = 0; n < frames; n += kLanes) {
        const Words frame = kRamp + static_cast<unsigned>(n);
        const Floats amount = Load<Floats>(job.modAmount + n);
        const int left = frames - n < kLanes ? frames - n : kLanes;
        Words draws = starts;
        Stereo mix;
        for (int u = 0; u < count; ++u) {
            const Place place = {S::kSyncs ? SyncedPhases(tuning, phases, u, left)
                                           : phases.osc1[u] + frame * tuning.increments[0][u],
                                 phases.osc2[u] + frame * tuning.increments[1][u],
                                 phases.osc3[u] + frame * tuning.increments[2][u], draws};
            const Stereo sum = sources.At(place, amount, [u](const float* gains) { return gains[u]; });
            mix.left += sum.left;
            mix.right += sum.right;
            draws = kDraw[3](draws);
        }
        Store(mix.left, job.left + n);
        Store(mix.right, job.right + n);
        const Words next = spread.whole(starts);
        random.state = left < kLanes ? starts[left] : next[0];
        starts = next;
    }
    const auto moved = static_cast<unsigned>(frames);
    for (int u = 0; u < count; ++u) {
        if (!S::kSyncs) phases.osc1[u] += moved * tuning.increments[0][u];
        phases.osc2[u] += moved * tuning.increments[1][u];
        phases.osc3[u] += moved * tuning.increments[2][u];
    }
}

/// kLanes unison voices of a frame side by side, for a few frames.
/// frames  0..kLanes
template <class S>
void RenderVoices(const S& sources, const UnisonJob& job, RandomGenerator& random, int from, int frames)
{
    const UnisonTuning& tuning = sources.tuning;
    UnisonPhases& phases = *job.phases;
    const int count = sources.mix.unisonCount;
    const Jump frame = {kSpreads.of[count].multiplier[1], kSpreads.of[count].increment[1]};
    const Spread& voices = kSpreads.of[1];
    alignas(64) float left[kLanes][kUnison], right[kLanes][kUnison];
    Words starts = voices(random.state);
    for (int u = 0; u < count; u += kLanes) {
        const auto used = reinterpret_cast<Words>(kRamp + static_cast<unsigned>(u) < static_cast<unsigned>(count));
        const auto step = [&](const std::uint32_t* increments) { return Load<Words>(increments + u) & used; };
        const Words step1 = step(tuning.increments[0]), stepSync = step(tuning.syncIncrements),
                    step2 = step(tuning.increments[1]), step3 = step(tuning.increments[2]);
        Place place = {Load<Words>(phases.osc1 + u), Load<Words>(phases.osc2 + u), Load<Words>(phases.osc3 + u),
                       starts};
        Words sync = Load<Words>(phases.sync + u);
        for (int n = 0; n < frames; ++n) {
            const Stereo sum =
                sources.At(place, job.modAmount[from + n], [u](const float* gains) { return Load<Floats>(gains + u); });
            Store(sum.left, left[n] + u);
            Store(sum.right, right[n] + u);
            if constexpr (S::kSyncs) {
                sync += stepSync;
                place.phase1 = sync < stepSync ? sync : place.phase1;
            }
            place.phase1 += step1;
            place.phase2 += step2;
            place.phase3 += step3;
            place.draws = frame(place.draws);
        }
        Store(place.phase1, phases.osc1 + u);
        Store(sync, phases.sync + u);
        Store(place.phase2, phases.osc2 + u);
        Store(place.phase3, phases.osc3 + u);
        if (u == 0) random.state = place.draws[0];
        starts = voices.whole(starts);
    }
    for (int n = 0; n < frames; ++n) {
        float mixLeft = 0.0f, mixRight = 0.0f;
        for (int u = 0; u < count; ++u) {
            mixLeft += left[n][u];
            mixRight += right[n][u];
        }
        job.left[from + n] = mixLeft;
        job.right[from + n] = mixRight;
    }
}

/// So few frames of so many unison voices take less time voices side by side; adding them up one by one counts as much
/// as rendering them.
bool VoicesFirst(int count, int frames)
{
    const int vectors = (count + kLanes - 1) / kLanes;
    return frames * (vectors * kLanes + count) < count * kLanes;
}

template <OscillatorModulation modulation, bool second, bool third, bool noise>
void Render(const UnisonJob& job, RandomGenerator& random, int frames)
{
    const Sources<modulation, second, third, noise> sources = {*job.mix, *job.tuning};
    const int rest = frames % kLanes;
    if (rest != 0 && VoicesFirst(job.mix->unisonCount, rest)) {
        if (frames > rest) RenderFrames(sources, job, random, frames - rest);
        RenderVoices(sources, job, random, frames - rest, rest);
    } else {
        RenderFrames(sources, job, random, frames);
    }
}

template <OscillatorModulation m>
constexpr RenderUnisonKernel* kForms[2][2][2] = {
    // by the sources that are heard: oscillators 2 and 3, noise
    {{Render<m, false, false, false>, Render<m, false, false, true>},
     {Render<m, false, true, false>, Render<m, false, true, true>}},
    {{Render<m, true, false, false>, Render<m, true, false, true>},
     {Render<m, true, true, false>, Render<m, true, true, true>}},
};

} // namespace

void RenderUnison(const UnisonJob& job, RandomGenerator& random, int frames)
{
    // A source at gain 0 adds nothing, but its numbers are drawn all the same.
    const auto choose = [&heard = job.mix->heard](const auto& forms) { return forms[heard[1]][heard[2]][heard[3]]; };
    switch (job.mix->modulation) {
    case OscillatorModulation::Sync: return choose(kForms<OscillatorModulation::Sync>)(job, random, frames);
    case OscillatorModulation::Phase: return choose(kForms<OscillatorModulation::Phase>)(job, random, frames);
    case OscillatorModulation::Amplitude: return choose(kForms<OscillatorModulation::Amplitude>)(job, random, frames);
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
