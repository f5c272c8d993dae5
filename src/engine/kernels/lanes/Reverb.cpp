// Reverbs: stage by stage through runs of frames, their serial filters side by side.
#include "engine/kernels/Reverb.h"

#include "engine/kernels/lanes/Glides.h"
#include "engine/kernels/lanes/Transpose.h"
#include "framework/Limits.h"

namespace korvane::KORVANE_ISA_SPACE {

RunReverbsKernel RunReverbs;

namespace {

constexpr int kRow = kLongestReverbRun + kLanes; // what stages make of the floats behind a run is of no use

/// A reverb on its way through a run.
struct Reverb {
    ReverbJob* job;
    Glide send, level;
    alignas(64) float x[kRow], left[kRow], right[kRow];
    alignas(64) float sends[kRow], levels[kRow];

    const ReverbCoefficients& C() const { return *job->coefficients; }
};

[[gnu::always_inline]] inline Floats LoadUpTo(const float* from, int count)
{
    if (count >= kLanes) return Load<Floats>(from);
    Floats some{};
    std::memcpy(&some, from, sizeof(float) * static_cast<unsigned>(count));
    return some;
}

[[gnu::always_inline]] inline void StoreUpTo(const Floats& value, float* to, int count)
{
    if (count >= kLanes) return Store(value, to);
    std::memcpy(to, &value, sizeof(float) * static_cast<unsigned>(count));
}

/// Replaces what lies in memory; only the lanes that are to be kept.
template <bool kWhole>
[[gnu::always_inline]] inline void Replace(float* to, Floats old, Floats value, Ints keep)
{
    Store(kWhole ? value : Select(keep, value, old), to);
}

void Advance(ReverbLine& line, int frames)
{
    line.position += frames;
    if (line.position >= line.length) line.position -= line.length;
}

/// A diffuser, or a delay that gives its output times gb.
struct Stage {
    ReverbLine* line;
    float ga, gb;
};

template <bool kDelay, bool kWhole>
[[gnu::always_inline]] inline Floats Pass(const Stage& stage, float* place, Floats in, Ints keep)
{
    const Floats buffer = Load<Floats>(place);
    if constexpr (kDelay) {
        Replace<kWhole>(place, buffer, in, keep);
        return buffer * stage.gb;
    } else {
        const Floats out = buffer - stage.ga * in;
        Replace<kWhole>(place, buffer, in + stage.gb * out, keep);
        return out;
    }
}

/// Sends a signal through stages in series: in parts that no line's end divides, many frames at a time.
template <bool... kDelays>
void Through(const Stage (&stages)[sizeof...(kDelays)], float* signal, int frames)
{
    constexpr int kStages = sizeof...(kDelays);
    for (int done = 0; done < frames;) {
        int count = frames - done;
        float* places[kStages];
        for (int k = 0; k < kStages; ++k) {
            const ReverbLine& line = *stages[k].line;
            places[k] = line.memory + line.position;
            if (line.length - line.position < count) count = line.length - line.position;
        }
        const auto pass = [&]<bool kWhole>(int n) {
            const Ints keep = LaneNumbers() < count - n;
            const Floats in = Load<Floats>(signal + done + n);
            Floats x = in;
            int k = 0;
            ((x = Pass<kDelays, kWhole>(stages[k], places[k] + n, x, keep), ++k), ...);
            Replace<kWhole>(signal + done + n, in, x, keep);
        };
        int n = 0;
        for (; n + kLanes <= count; n += kLanes) pass.template operator()<true>(n);
        if (n < count) pass.template operator()<false>(n);
        for (const Stage& stage : stages) Advance(*stage.line, count);
        done += count;
    }
}

/// The predelay may be shorter than the run.
void Predelay(ReverbLine& line, float* x, int frames)
{
    if (frames < line.length) return Through<true>({{&line, 0.0f, 1.0f}}, x, frames);
    float delayed[kRow];
    for (int n = 0; n < frames; ++n) {
        const int back = n - line.length;
        const int place = line.position + n;
        delayed[n] = back >= 0 ? x[back] : line.memory[place < line.length ? place : place - line.length];
    }
    line.position = (line.position + frames) % line.length;
    for (int n = 1; n <= line.length; ++n) {
        const int place = line.position - n;
        line.memory[place < 0 ? place + line.length : place] = x[frames - n];
    }
    std::memcpy(x, delayed, sizeof(float) * static_cast<unsigned>(frames));
}

/// What a line is about to give.
void Peek(const ReverbLine& line, float gain, float* out, int frames)
{
    int place = line.position;
    for (int done = 0; done < frames; place = 0) {
        const int count = line.length - place < frames - done ? line.length - place : frames - done;
        for (int n = 0; n < count; n += kLanes) Store(Load<Floats>(line.memory + place + n) * gain, out + done + n);
        done += count;
    }
}

/// Where a tap is read.
struct Tap {
    const float* memory;
    int length, place;
    float weight;
};

template <int kTaps>
void SumTaps(Tap (&taps)[kTaps], float* sum, int frames)
{
    for (int done = 0; done < frames;) {
        int count = frames - done;
        const float* from[kTaps];
        for (int t = 0; t < kTaps; ++t) {
            from[t] = taps[t].memory + taps[t].place;
            if (taps[t].length - taps[t].place < count) count = taps[t].length - taps[t].place;
        }
        for (int n = 0; n < count; n += kLanes) {
            Floats value{};
            for (int t = 0; t < kTaps; ++t) value += taps[t].weight * Load<Floats>(from[t] + n);
            Store(value, sum + done + n);
        }
        for (Tap& tap : taps) {
            tap.place += count;
            if (tap.place >= tap.length) tap.place = 0;
        }
        done += count;
    }
}

/// back  frames behind the line's position, 1..length
Tap TapOf(const ReverbLine& line, int back, float weight)
{
    const int place = line.position - back;
    return {line.memory, line.length, place < 0 ? place + line.length : place, weight};
}

/// Of a run that its lines have passed.
void SumOutput(const ReverbState& state, const std::array<std::size_t, kReverbTaps>& lines,
               const std::array<int, kReverbTaps>& taps, const std::array<float, kReverbTaps>& weights, float* sum,
               int frames)
{
    Tap reads[kReverbTaps];
    for (unsigned t = 0; t < kReverbTaps; ++t)
        reads[t] = TapOf(state.lines[lines[t]], frames + taps[t] - 1, weights[t]);
    SumTaps(reads, sum, frames);
}

template <int kTaps>
void SumReflections(const ReverbLine& line, const std::array<int, kReflections>& taps,
                    const std::array<float, kReflections>& gains, const std::array<float, kReflections>& signs,
                    float* sum, int frames)
{
    Tap reads[kTaps];
    for (unsigned t = 0; t < kTaps; ++t) reads[t] = TapOf(line, frames + taps[t], signs[t] * gains[t]);
    SumTaps(reads, sum, frames);
}

void Mono(Reverb& reverb, int frames)
{
    const ReverbJob& job = *reverb.job;
    const float gain = reverb.C().inputGain;
    for (int n = 0; n < frames; n += kLanes) {
        const Floats send = reverb.send.At(n);
        const Floats left = LoadUpTo(job.inLeft + n, frames - n) * send * gain;
        const Floats right = LoadUpTo(job.inRight + n, frames - n) * send * gain;
        Store((left + right) * 0.5f + kInputOffset, reverb.x + n);
    }
}

/// kLanes frames of some reverbs, each a lane; the others read the first one.
[[gnu::always_inline]] inline void LoadLanes(const Reverb* reverbs, int count, float (Reverb::*row)[kRow], int from,
                                             Floats (&frames)[kLanes])
{
    for (int lane = 0; lane < kLanes; ++lane)
        frames[lane] = Load<Floats>((reverbs[lane < count ? lane : 0].*row) + from);
    Transpose(frames);
}

[[gnu::always_inline]] inline void StoreLanes(Floats (&frames)[kLanes], Reverb* reverbs, int count,
                                              float (Reverb::*row)[kRow], int from)
{
    Transpose(frames);
    for (int lane = 0; lane < count; ++lane) Store(frames[lane], (reverbs[lane].*row) + from);
}

/// A value of each reverb as lanes.
template <class Get>
[[gnu::always_inline]] inline Floats Gather(const Reverb* reverbs, int count, const Get& get)
{
    Floats values{};
    for (int lane = 0; lane < count; ++lane) values[lane] = get(reverbs[lane]);
    return values;
}

void CutOne(Reverb& reverb, int frames)
{
    const float highCut = reverb.C().highCut, lowCut = reverb.C().lowCut;
    ReverbCuts<float> cuts = reverb.job->state->cuts;
    for (int n = 0; n < frames; ++n) {
        const float high = cuts.HighCut(reverb.x[n], highCut);
        reverb.x[n] = lowCut != 0.0f ? cuts.LowCut(high, lowCut) : high;
    }
    reverb.job->state->cuts = cuts;
}

/// count  1..kLanes
void Cut(Reverb* reverbs, int count, int frames)
{
    if (count == 1) return CutOne(*reverbs, frames);
    const Floats highCut = Gather(reverbs, count, [](const Reverb& r) { return r.C().highCut; });
    const Floats lowCut = Gather(reverbs, count, [](const Reverb& r) { return r.C().lowCut; });
    ReverbCuts<Floats> cuts;
    cuts.high = Gather(reverbs, count, [](const Reverb& r) { return r.job->state->cuts.high; });
    cuts.lowIn = Gather(reverbs, count, [](const Reverb& r) { return r.job->state->cuts.lowIn; });
    cuts.lowOut = Gather(reverbs, count, [](const Reverb& r) { return r.job->state->cuts.lowOut; });
    for (int from = 0; from < frames; from += kLanes) {
        Floats x[kLanes];
        LoadLanes(reverbs, count, &Reverb::x, from, x);
        for (int n = 0; n < kLanes && n < frames - from; ++n) {
            const Floats high = cuts.HighCut(x[n], highCut);
            x[n] = Select(lowCut != 0.0f, cuts.LowCut(high, lowCut), high);
        }
        StoreLanes(x, reverbs, count, &Reverb::x, from);
    }
    for (int lane = 0; lane < count; ++lane) {
        ReverbCuts<float>& state = reverbs[lane].job->state->cuts;
        state.high = cuts.high[lane];
        if (lowCut[lane] == 0.0f) continue; // what would have been
        state.lowIn = cuts.lowIn[lane];
        state.lowOut = cuts.lowOut[lane];
    }
}

void DampOne(Reverb& reverb, int frames)
{
    const ReverbCoefficients& c = reverb.C();
    auto [left, right] = reverb.job->state->damping;
    for (int n = 0; n < frames; ++n) {
        const float in = reverb.x[n] + kTankOffset;
        reverb.left[n] = left.Step(in, reverb.left[n], c.crossover, c.bassBoost, c.highDamping);
        reverb.right[n] = right.Step(in, reverb.right[n], c.crossover, c.bassBoost, c.highDamping);
    }
    reverb.job->state->damping = {left, right};
}

ReverbDamping<Floats> GatherDamping(const Reverb* reverbs, int count, unsigned side)
{
    ReverbDamping<Floats> all;
    for (int lane = 0; lane < count; ++lane) {
        const ReverbDamping<float>& one = reverbs[lane].job->state->damping[side];
        all.allpassIn[lane] = one.allpassIn;
        all.allpassOut[lane] = one.allpassOut;
        all.damping[lane] = one.damping;
    }
    return all;
}

void KeepDamping(const ReverbDamping<Floats>& all, Reverb* reverbs, int count, unsigned side)
{
    for (int lane = 0; lane < count; ++lane)
        reverbs[lane].job->state->damping[side] = {all.allpassIn[lane], all.allpassOut[lane], all.damping[lane]};
}

/// count  1..kLanes
void Damp(Reverb* reverbs, int count, int frames)
{
    if (count == 1) return DampOne(*reverbs, frames);
    const Floats crossover = Gather(reverbs, count, [](const Reverb& r) { return r.C().crossover; });
    const Floats bassBoost = Gather(reverbs, count, [](const Reverb& r) { return r.C().bassBoost; });
    const Floats highDamping = Gather(reverbs, count, [](const Reverb& r) { return r.C().highDamping; });
    ReverbDamping<Floats> left = GatherDamping(reverbs, count, 0), right = GatherDamping(reverbs, count, 1);
    for (int from = 0; from < frames; from += kLanes) {
        Floats x[kLanes], lefts[kLanes], rights[kLanes];
        LoadLanes(reverbs, count, &Reverb::x, from, x);
        LoadLanes(reverbs, count, &Reverb::left, from, lefts);
        LoadLanes(reverbs, count, &Reverb::right, from, rights);
        for (int n = 0; n < kLanes && n < frames - from; ++n) {
            const Floats in = x[n] + kTankOffset;
            lefts[n] = left.Step(in, lefts[n], crossover, bassBoost, highDamping);
            rights[n] = right.Step(in, rights[n], crossover, bassBoost, highDamping);
        }
        StoreLanes(lefts, reverbs, count, &Reverb::left, from);
        StoreLanes(rights, reverbs, count, &Reverb::right, from);
    }
    KeepDamping(left, reverbs, count, 0);
    KeepDamping(right, reverbs, count, 1);
}

/// From the cuts to the branches.
void DiffuseInput(Reverb& reverb, int frames)
{
    const ReverbCoefficients& c = reverb.C();
    ReverbState& state = *reverb.job->state;
    auto& lines = state.lines;
    float* const x = reverb.x;
    const Stage stages[] = {{&lines[0], c.input1, c.input1},
                            {&lines[1], c.input2, c.input1},
                            {&lines[2], c.input1, c.input1},
                            {&lines[3], c.input2, c.input1}};
    if (state.reflections.length > 1) {
        Through<false, false>({stages[0], stages[1]}, x, frames);
        float written[kRow];
        std::memcpy(written, x, sizeof written);
        Through<true>({{&state.reflections, 0.0f, 1.0f}}, written, frames);
        Through<false, false>({stages[2], stages[3]}, x, frames);
    } else {
        Through<false, false, false, false>(stages, x, frames);
    }
    Predelay(state.predelay, x, frames);
    Peek(lines[11], c.decay, reverb.left, frames);
    Peek(lines[7], c.decay, reverb.right, frames);
}

void RunBranches(Reverb& reverb, int frames)
{
    const ReverbCoefficients& c = reverb.C();
    const auto branch = [&](ReverbLine* lines, float* signal) {
        Through<false, true, false, true>({{&lines[0], c.decay1, c.decay1},
                                           {&lines[1], 0.0f, c.decay},
                                           {&lines[2], c.decay2, c.decay2},
                                           {&lines[3], 0.0f, 1.0f}},
                                          signal, frames);
    };
    branch(&reverb.job->state->lines[4], reverb.left);
    branch(&reverb.job->state->lines[8], reverb.right);
}

/// Reflections of a run, times their gain.
struct Early {
    float left[kRow], right[kRow];

    Early(const ReverbCoefficients& c, const ReverbState& state, int frames)
    {
        SumReflections<7>(state.reflections, c.leftReflections, c.leftReflectionGains, kLeftSigns, left, frames);
        SumReflections<8>(state.reflections, c.rightReflections, c.rightReflectionGains, kRightSigns, right, frames);
        for (float* side : {left, right})
            for (int n = 0; n < frames; n += kLanes) Store(c.reflectionsGain * Load<Floats>(side + n), side + n);
    }
};

template <bool kEarly>
void Output(Reverb& reverb, const Early* early, int frames)
{
    const ReverbCoefficients& c = reverb.C();
    const ReverbJob& job = *reverb.job;
    for (int n = 0; n < frames; n += kLanes) {
        const int rest = frames - n;
        const Floats level = reverb.level.At(n), send = reverb.send.At(n);
        const Floats wetLeft =
            (kEarly ? Load<Floats>(early->left + n) : Floats{}) + level * Load<Floats>(reverb.left + n);
        const Floats wetRight =
            (kEarly ? Load<Floats>(early->right + n) : Floats{}) + level * Load<Floats>(reverb.right + n);
        const Floats middle = wetLeft + wetRight;
        const Floats side = (wetLeft - wetRight) * c.width;
        Floats left = middle + side + c.dryGain * (LoadUpTo(job.inLeft + n, rest) * send * c.inputGain);
        Floats right = middle - side + c.dryGain * (LoadUpTo(job.inRight + n, rest) * send * c.inputGain);
        if (job.adds) {
            left = LoadUpTo(job.outLeft + n, rest) + left;
            right = LoadUpTo(job.outRight + n, rest) + right;
        }
        StoreUpTo(left, job.outLeft + n, rest);
        StoreUpTo(right, job.outRight + n, rest);
    }
}

void Finish(Reverb& reverb, int frames)
{
    const ReverbCoefficients& c = reverb.C();
    const ReverbState& state = *reverb.job->state;
    const ReverbWeights weights(c);
    SumOutput(state, kLeftTapLines, c.leftTaps, weights.left, reverb.left, frames);
    SumOutput(state, kRightTapLines, c.rightTaps, weights.right, reverb.right, frames);
    if (c.reflectionsGain != 0.0f) {
        const Early early(c, state, frames);
        Output<true>(reverb, &early, frames);
    } else {
        Output<false>(reverb, nullptr, frames);
    }
}

void Glides(Reverb* reverbs, int count, int frames)
{
    Glide sends[kChannels], levels[kChannels];
    for (int n = 0; n < count; ++n) {
        const ReverbJob& job = *reverbs[n].job;
        sends[n] = {job.send, job.sendTarget, reverbs[n].sends};
        levels[n] = {job.state->level, job.coefficients->reverbTarget, reverbs[n].levels};
    }
    RunGlides<kChannels>(sends, count, kOnStep, frames);
    RunGlides<kChannels>(levels, count, kLevelStep, frames);
    for (int n = 0; n < count; ++n) {
        reverbs[n].send = sends[n];
        reverbs[n].level = levels[n];
        reverbs[n].job->send = sends[n].value;
        reverbs[n].job->state->level = levels[n].value;
    }
}

/// Groups of up to kLanes.
template <class Body>
void InGroups(Reverb* reverbs, int count, const Body& body)
{
    for (int first = 0; first < count; first += kLanes)
        body(reverbs + first, count - first < kLanes ? count - first : kLanes);
}

void Run(Reverb* reverbs, int count, int frames)
{
    Glides(reverbs, count, frames);
    for (int n = 0; n < count; ++n) {
        for (float* row : {reverbs[n].x, reverbs[n].left, reverbs[n].right}) Store(Floats{}, row + frames);
        Mono(reverbs[n], frames);
    }
    InGroups(reverbs, count, [=](Reverb* group, int size) { Cut(group, size, frames); });
    for (int n = 0; n < count; ++n) DiffuseInput(reverbs[n], frames);
    InGroups(reverbs, count, [=](Reverb* group, int size) { Damp(group, size, frames); });
    for (int n = 0; n < count; ++n) {
        RunBranches(reverbs[n], frames);
        Finish(reverbs[n], frames);
        ReverbJob& job = *reverbs[n].job;
        for (const float** in : {&job.inLeft, &job.inRight}) *in += frames;
        for (float** out : {&job.outLeft, &job.outRight}) *out += frames;
    }
}

} // namespace

void RunReverbs(ReverbJob* jobs, int count, int frames)
{
    constexpr int kFew = 4; // frames that are sooner done one by one
    if (frames <= kFew) {
        for (int n = 0; n < count; ++n) RunReverb(jobs[n], frames);
        return;
    }
    Reverb reverbs[kChannels];
    int limit = kLongestReverbRun;
    for (int n = 0; n < count; ++n) {
        reverbs[n].job = &jobs[n];
        if (jobs[n].state->runLimit < limit) limit = jobs[n].state->runLimit;
    }
    for (int done = 0; done < frames; done += limit) Run(reverbs, count, frames - done < limit ? frames - done : limit);
}

} // namespace korvane::KORVANE_ISA_SPACE
