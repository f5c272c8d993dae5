// One pattern: eight bars of steps for thirteen channels.
#include "engine/sequencer/GroovePattern.h"

namespace korvane {

void GroovePattern::Clear()
{
    length = kStepsPerBar;
    for (int c = 0; c < kChannels; ++c) ClearChannel(c);
}

void GroovePattern::CopyFrom(const GroovePattern& other)
{
    for (int c = 0; c < kChannels; ++c)
        for (int s = 0; s < kSteps; ++s) CopyStep(c, s, other, c, s);
}

void GroovePattern::ClearStep(int channel, int step)
{
    steps[channel][step] = 0u;
    locks[channel][step].Clear();
}

void GroovePattern::ClearChannel(int channel)
{
    for (int s = 0; s < kSteps; ++s) ClearStep(channel, s);
}

std::uint32_t GroovePattern::SetNotes(int channel, int step, std::uint32_t notes)
{
    return steps[channel][step].Update([notes](std::uint32_t word) { return word | notes; });
}

std::uint32_t GroovePattern::FlipNotes(int channel, int step, std::uint32_t notes)
{
    return steps[channel][step].Update([notes](std::uint32_t word) { return word ^ notes; });
}

void GroovePattern::CopyStep(int channel, int step, const GroovePattern& from, int fromChannel, int fromStep)
{
    steps[channel][step] = from.steps[fromChannel][fromStep];
    locks[channel][step].CopyFrom(from.locks[fromChannel][fromStep]);
}

void GroovePattern::SwapSteps(int channel, int a, int b)
{
    const std::uint32_t word = steps[channel][a];
    StepLockList kept;
    kept.CopyFrom(locks[channel][a]);
    CopyStep(channel, a, *this, channel, b);
    steps[channel][b] = word;
    locks[channel][b].CopyFrom(kept);
}

void GroovePattern::UpdateLength()
{
    int bars = 1;
    for (int s = kSteps - 1; s >= kStepsPerBar && bars == 1; --s)
        for (int c = 0; c < kChannels; ++c)
            if (steps[c][s] != 0) {
                bars = s / kStepsPerBar + 1;
                break;
            }
    length = kStepsPerBar * (bars > 4 ? 8 : bars > 2 ? 4 : bars);
}

} // namespace korvane
