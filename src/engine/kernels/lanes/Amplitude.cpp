// Amplitudes of all voices.
#include "engine/kernels/Amplitude.h"

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

ShapeVoicesKernel ShapeVoices;

namespace {

constexpr std::int32_t kInfinity = 0x7f800000;

/// Lanes of `to` that are no numbers any more.
Ints Shape(float* to, Floats amp)
{
    const Floats value = Load<Floats>(to) * amp;
    Store(value, to);
    return reinterpret_cast<Ints>(Magnitude(value)) >= kInfinity;
}

void Shape(const AmplitudeJob& job, int frames)
{
    Ints broken{};
    int n = 0;
    const auto shape = [&] {
        const Floats amp = Load<Floats>(job.amp + n);
        return Shape(job.left + n, amp) | Shape(job.right + n, amp);
    };
    for (; n + kLanes <= frames; n += kLanes) broken |= shape();
    if (n < frames) broken |= shape() & (LaneNumbers() < frames - n);
    if (!Any(broken)) return;
    for (n = 0; n < frames; ++n) job.left[n] = job.right[n] = 0.0f;
}

} // namespace

void ShapeVoices(const AmplitudeJob* jobs, int count, int frames)
{
    constexpr int kFew = 4; // frames that were written one by one: a vector would wait for them
    if (frames <= kFew) return ShapeVoicesPlainly(jobs, count, frames);
    for (int v = 0; v < count; ++v) Shape(jobs[v], frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
