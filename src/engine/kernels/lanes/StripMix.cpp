// Levels of the channels' strips and their sum, many frames at a time.
#include "engine/kernels/StripMix.h"

#include "engine/kernels/lanes/Glides.h"
#include "framework/Limits.h"

namespace korvane::KORVANE_ISA_SPACE {

MixStripsKernel MixStrips;

namespace {

template <bool kFirst, bool kDirect>
void MixVectors(StripSide& side, const Glide& gain, float* main, int frames)
{
    Floats peak = Floats{} + side.peak;
    const float* const row = gain.row;
    const Floats still = Floats{} + gain.value;
    for (int n = 0; n < frames; n += kLanes) {
        const Floats sound = Load<Floats>(side.in + n) * (row ? Load<Floats>(row + n) : still);
        const Floats magnitude = Magnitude(sound);
        peak = Select(peak < magnitude, magnitude, peak);
        Store(kFirst ? sound : Load<Floats>(main + n) + sound, main + n);
        if constexpr (kDirect) Store(sound, side.direct + n);
    }
    for (int lane = 0; lane < kLanes; ++lane)
        if (side.peak < peak[lane]) side.peak = peak[lane];
}

void MixVectors(StripSide& side, bool first, const Glide& gain, float* main, int frames)
{
    if (first && side.direct) return MixVectors<true, true>(side, gain, main, frames);
    if (first) return MixVectors<true, false>(side, gain, main, frames);
    if (side.direct) return MixVectors<false, true>(side, gain, main, frames);
    MixVectors<false, false>(side, gain, main, frames);
}

/// The frames behind the last whole vector.
void MixRest(StripSide& side, bool first, float* main, int from, int frames)
{
    StripSide rest = side;
    rest.in += from;
    if (rest.direct) rest.direct += from;
    MixSide(rest, first, main + from, frames - from);
    side.gain = rest.gain;
    side.peak = rest.peak;
}

} // namespace

void MixStrips(StripJob* jobs, int count, float* mainLeft, float* mainRight, int frames)
{
    constexpr int kSides = 2 * kChannels;
    const int whole = frames / kLanes * kLanes;
    if (whole == 0) {
        for (int n = 0; n < count; ++n) {
            MixSide(jobs[n].left, jobs[n].first, mainLeft, frames);
            MixSide(jobs[n].right, jobs[n].first, mainRight, frames);
        }
        return;
    }
    Glide gains[kSides];
    float rows[kSides][kMaxRun];
    for (int n = 0; n < 2 * count; ++n) {
        const StripSide& side = n % 2 == 0 ? jobs[n / 2].left : jobs[n / 2].right;
        gains[n] = {side.gain, side.target, rows[n]};
    }
    RunGlides<kSides>(gains, 2 * count, kGainStep, whole);
    for (int n = 0; n < count; ++n) {
        auto& [left, right, first] = jobs[n];
        left.gain = gains[2 * n].value;
        right.gain = gains[2 * n + 1].value;
        MixVectors(left, first, gains[2 * n], mainLeft, whole);
        MixVectors(right, first, gains[2 * n + 1], mainRight, whole);
        if (whole < frames) {
            MixRest(left, first, mainLeft, whole, frames);
            MixRest(right, first, mainRight, whole, frames);
        }
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
