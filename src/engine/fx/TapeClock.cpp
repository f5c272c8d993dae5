// Tape clock: positions, entries, the search among them.
#include "engine/fx/TapeClock.h"

#include <algorithm>

#include "engine/dsp/EqualSteps.h"

namespace korvane {

namespace {

constexpr int kSpare = 16; // a loop at the lowest speed, its closing entry and those of Clear fit

} // namespace

TapeClock::TapeClock(int newLength)
    : length(std::max(newLength, 4)), room(length + kSpare), minSpeed(1.0 / length),
      times(std::make_unique<double[]>(static_cast<std::size_t>(room)))
{
    Clear();
}

/// NaN gives the lowest.
double TapeClock::Kept(double speed) const
{
    constexpr double kMaxSpeed = 0.2;
    return std::max(minSpeed, std::min(speed, kMaxSpeed));
}

/// The loop that is read holds silence that never ends, the one that is recorded starts with silence.
/// time  of that entry
void TapeClock::StartBehind(double time)
{
    constexpr double kNever = 2.0;
    times[0] = times[1] = kNever;
    times[2] = time;
    read = 1;
    passStart = 2;
    write = 3;
}

void TapeClock::Clear()
{
    position = 0.0;
    StartBehind(-1.0);
}

void TapeClock::Run(const double* speeds, int frames, TapePlace* places)
{
    double* const time = times.get();
    double now = position;
    int to = write, after = read, start = passStart;
    for (int n = 0; n < frames; ++n) {
        while (time[after] < now) after = Next(after); // the closing entry lies behind every position
        const int before = after > 0 ? after - 1 : room - 1;
        const double span = time[after] - time[before]; // at the start of a loop: negative
        const float fraction = span > 0.0 ? static_cast<float>((now - time[before]) / span) : 0.0f;
        places[n] = {before, after, fraction, to, to};
        now += Kept(speeds[n]);
        if (now >= 1.0) {
            time[to] = now;
            to = Next(to);
            now -= 1.0;
            after = start;
            start = places[n].writeAgain = to;
        }
        time[to] = now;
        to = Next(to);
    }
    position = now;
    write = to;
    read = after;
    passStart = start;
}

void TapeClock::RunSilent(double speed, int frames)
{
    while (frames > 0) {
        frames -= StepBelowOne(position, Kept(speed), frames);
        if (position >= 1.0) position -= 1.0;
    }
    StartBehind(position);
}

} // namespace korvane
