// The step clock and what the transport does.
#include "engine/sequencer/Clock.h"

#include <cmath>

#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

void Clock::Locate()
{
    constexpr double kOnTheStep = 0.01; // a position this little behind a step counts as on it
    const double position = hostPosition > 0.0 ? static_cast<double>(hostPosition) : 0.0;
    hostPosition = position;
    const double steps = 4.0 * position;
    const double whole = std::floor(steps);
    const double fraction = steps - whole;
    const bool between = fraction > kOnTheStep;
    samplesToNextStep = between ? (1.0 - fraction) * StepFrames() : 0.0;
    stepCounter = static_cast<std::uint8_t>(Truncate(std::fmod(between ? whole + 1.0 : whole, kSteps)));
    patternStep = std::uint8_t{0};
    if (!recordMode || editMode) return;
    samplesToNextStep = 0.0;
    stepCounter = std::uint8_t{0};
}

void Clock::Advance()
{
    if (countIn < 1) {
        countIn = std::int8_t{-1};
        stepCounter = static_cast<std::uint8_t>((stepCounter + 1) & (kSteps - 1)); // eight bars, the longest pattern
    } else {
        patternStep = stepCounter = std::uint8_t{0};
        countIn = static_cast<std::int8_t>(countIn - 1);
    }
}

void Clock::Pass(int frames)
{
    const std::int32_t clock = frameClock;
    const auto sum = static_cast<std::uint32_t>(clock) + static_cast<std::uint32_t>(frames);
    frameClock.Replace(clock, static_cast<std::int32_t>(sum)); // a press meanwhile starts it anew
    samplesToNextStep = samplesToNextStep - frames;
}

void Clock::Reset()
{
    samplesToNextStep = 0.0;
    stepCounter = patternStep = std::uint8_t{0};
    editMode = recordMode = playing = playBar = false;
}

} // namespace korvane
