// Pump envelopes of all channels, side by side.
#include "engine/kernels/Pump.h"

#include "engine/kernels/lanes/Transpose.h"

namespace korvane::KORVANE_ISA_SPACE {

PumpKernel PumpAll;

namespace {

constexpr int kFewJobs = 2; // that cost less one by one

void FillEnvelopes(const PumpJob& job, int frames)
{
    const float release = job.release;
    const double* const phases = job.phases;
    float* const levels = job.levels;
    for (int n = 0; n < frames; ++n) levels[n] = PumpEnvelope(static_cast<float>(phases[n]), release);
}

void SmoothOne(const PumpJob& job, int from, int frames)
{
    float level = *job.envelope;
    for (int n = from; n < frames; ++n) job.levels[n] = level += (job.levels[n] - level) * kPumpStep;
    *job.envelope = level;
}

/// Up to kLanes channels; whole vectors of frames.
void SmoothMany(const PumpJob* jobs, int count, int frames)
{
    Floats level = {};
    for (int lane = 0; lane < count; ++lane) level[lane] = *jobs[lane].envelope;
    for (int from = 0; from < frames; from += kLanes) {
        Floats rows[kLanes];
        for (int lane = 0; lane < kLanes; ++lane)
            rows[lane] = Load<Floats>((lane < count ? jobs[lane].levels : kNoRow) + from);
        Transpose(rows);
        for (Floats& row : rows) row = level += (row - level) * kPumpStep;
        Transpose(rows);
        for (int lane = 0; lane < kLanes; ++lane)
            if (lane < count) Store(rows[lane], jobs[lane].levels + from);
    }
    for (int lane = 0; lane < count; ++lane) *jobs[lane].envelope = level[lane];
}

} // namespace

void PumpAll(const PumpJob* jobs, int count, int frames)
{
    for (int n = 0; n < count; ++n) FillEnvelopes(jobs[n], frames);
    const int whole = frames - frames % kLanes;
    for (int from = 0; from < count; from += kLanes) {
        const int size = count - from < kLanes ? count - from : kLanes;
        const int together = size > kFewJobs ? whole : 0;
        if (together > 0) SmoothMany(jobs + from, size, together);
        for (int n = 0; n < size; ++n) SmoothOne(jobs[from + n], together, frames);
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
