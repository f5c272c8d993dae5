// Levels of the channels' strips and their sum, many frames at a time.
#include "engine/kernels/StripMix.h"

#include "engine/kernels/lanes/Lanes.h"
#include "framework/Limits.h"

namespace korvane::KORVANE_ISA_SPACE {

MixStripsKernel MixStrips;

namespace {

/// Gains of the two sides, frame by frame.
struct Gains {
    float left[kMaxRun], right[kMaxRun];
};

bool Arrived(const StripSide& side) { return GainAfter(side.gain, side.target) == side.gain; }

/// Both at once: each waits for its own result.
void Move(StripJob& job, Gains& gains, int frames)
{
    float left = job.left.gain, right = job.right.gain;
    for (int n = 0; n < frames; ++n) {
        gains.left[n] = left = GainAfter(left, job.left.target);
        gains.right[n] = right = GainAfter(right, job.right.target);
    }
    job.left.gain = left;
    job.right.gain = right;
}

/// gains  of the frames; null: the side's gain has arrived
template <bool kFirst, bool kDirect>
void MixVectors(StripSide& side, const float* gains, float* main, int frames)
{
    Floats peak = Floats{} + side.peak;
    Floats gain = Floats{} + side.gain;
    for (int n = 0; n < frames; n += kLanes) {
        if (gains) gain = Load<Floats>(gains + n);
        const Floats sound = Load<Floats>(side.in + n) * gain;
        const Floats magnitude = Magnitude(sound);
        peak = Select(peak < magnitude, magnitude, peak);
        Store(kFirst ? sound : Load<Floats>(main + n) + sound, main + n);
        if constexpr (kDirect) Store(sound, side.direct + n);
    }
    for (int lane = 0; lane < kLanes; ++lane)
        if (side.peak < peak[lane]) side.peak = peak[lane];
}

void MixVectors(StripSide& side, bool first, const float* gains, float* main, int frames)
{
    if (first && side.direct) return MixVectors<true, true>(side, gains, main, frames);
    if (first) return MixVectors<true, false>(side, gains, main, frames);
    if (side.direct) return MixVectors<false, true>(side, gains, main, frames);
    MixVectors<false, false>(side, gains, main, frames);
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
    Gains gains;
    const int whole = frames / kLanes * kLanes;
    for (StripJob* job = jobs; job < jobs + count; ++job) {
        const bool moving = !Arrived(job->left) || !Arrived(job->right);
        if (whole > 0) {
            if (moving) Move(*job, gains, whole);
            MixVectors(job->left, job->first, moving ? gains.left : nullptr, mainLeft, whole);
            MixVectors(job->right, job->first, moving ? gains.right : nullptr, mainRight, whole);
        }
        if (whole < frames) {
            MixRest(job->left, job->first, mainLeft, whole, frames);
            MixRest(job->right, job->first, mainRight, whole, frames);
        }
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
