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
    for (int c = 0; c < kChannels; ++c) CopySteps(c, 0, other, 0, kSteps);
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

void GroovePattern::CopySteps(int channel, int step, const GroovePattern& from, int fromStep, int count)
{
    for (int n = 0; n < count; ++n) {
        steps[channel][step + n] = from.steps[channel][fromStep + n];
        locks[channel][step + n].CopyFrom(from.locks[channel][fromStep + n]);
    }
}

void GroovePattern::SwapSteps(int channel, int a, int b)
{
    const std::uint32_t wordA = steps[channel][a].Exchange(0u), wordB = steps[channel][b].Exchange(0u);
    SetNotes(channel, a, wordB);
    SetNotes(channel, b, wordA);
    StepLockList kept;
    kept.CopyFrom(locks[channel][a]);
    locks[channel][a].CopyFrom(locks[channel][b]);
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
