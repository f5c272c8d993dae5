// Tapes of all channels, side by side.
#include "engine/kernels/Tape.h"

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

TapeSpeedsKernel SpeedsOfTapes;
ChainTapesKernel ChainAll;

void SpeedsOfTapes(const float* delays, int length, double* speeds, int frames)
{
    const double range = 1.0 - 2.0 / length, shortest = 2.0 / length;
    for (int n = 0; n < frames; ++n) speeds[n] = 1.0 / (length * (range * static_cast<double>(delays[n]) + shortest));
}

namespace {

// The tapes of a channel: a vector of eight lanes, or two of four.
constexpr int kWidth = kLanes == 4 ? 4 : 8;
constexpr int kParts = 8 / kWidth;
typedef float Part __attribute__((vector_size(4 * kWidth)));

/// Every tape gets what the one before gives, the first of a side the input.
template <class P>
[[gnu::always_inline]] inline P InputOf(P out, float left, float right)
{
    if constexpr (sizeof(P) == 32)
        return __builtin_shufflevector(P{left, 0.0f, 0.0f, 0.0f, right}, out, 0, 8, 9, 1, 4, 12, 13, 5);
    else
        return __builtin_shufflevector(P{left}, out, 0, 4, 5, 1);
}

[[gnu::always_inline]] inline const float* EntryOf(const ChainedTapesJob& job, int entry, int part)
{
    return reinterpret_cast<const float*>(job.entries + entry) + part * kWidth;
}

template <class P>
[[gnu::always_inline]] inline void AddOutput(P out, float (&sides)[2], int part)
{
    sides[part] += out[2];
    if constexpr (sizeof(P) == 32) sides[1] += out[6];
}

/// A channel waits for its own past, so several run interleaved.
template <int kCount>
void ChainGroup(const ChainedTapesJob* jobs, int frames)
{
    Part states[kCount][kParts];
    for (int c = 0; c < kCount; ++c) std::memcpy(states[c], jobs[c].last, sizeof states[c]);
    for (int n = 0; n < frames; ++n)
        for (int c = 0; c < kCount; ++c) {
            const ChainedTapesJob& job = jobs[c];
            const TapePlace& place = job.places[n];
            float sides[2] = {job.left[n], job.right[n]};
            Part recorded[kParts];
            for (int part = 0; part < kParts; ++part) {
                const Part before = Load<Part>(EntryOf(job, place.before, part));
                const Part after = Load<Part>(EntryOf(job, place.after, part));
                const Part out = Flushed(before + (after - before) * place.fraction);
                const Part in = InputOf(out, sides[part], sides[1]);
                Part& state = states[c][part];
                state = OpenStep(state, job.gains[n] * in + job.feedback * out);
                recorded[part] = state;
                AddOutput(out, sides, part);
            }
            std::memcpy(job.entries + place.write, recorded, sizeof recorded);
            std::memcpy(job.entries + place.writeAgain, recorded, sizeof recorded);
            job.left[n] = sides[0];
            job.right[n] = sides[1];
        }
    for (int c = 0; c < kCount; ++c) std::memcpy(jobs[c].last, states[c], sizeof states[c]);
}

} // namespace

void ChainAll(const ChainedTapesJob* jobs, int count, int frames)
{
    constexpr int kTogether = kParts == 1 ? 4 : 2;
    for (; count >= kTogether; count -= kTogether, jobs += kTogether) ChainGroup<kTogether>(jobs, frames);
    for (; count >= 2; count -= 2, jobs += 2) ChainGroup<2>(jobs, frames);
    if (count == 1) ChainGroup<1>(jobs, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
