// One pattern: eight bars of steps for thirteen channels.
#include "engine/sequencer/GroovePattern.h"

#include <sys/mman.h>

#include <cstddef>
#include <new>

namespace korvane {

namespace {

/// Places for the entries of a bar of one channel: the first entries of its steps side by side, then their second ones
/// and so on. Few locks on many steps thus share a page.
constexpr std::size_t kBarPlaces = std::size_t{kStepsPerBar} * StepLockList::kCapacity;
constexpr std::size_t kEntryBytes = sizeof(std::uint64_t) * kBarPlaces * kBars * kChannels;

/// Pages that read 0 and are the system's until they are written. The allocator would serve a second instance from
/// what the first has left, and wipe it; and a large page would come as a whole with its first lock.
std::uint64_t* MapEntries()
{
    void* pages = mmap(nullptr, kEntryBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) throw std::bad_alloc();
    madvise(pages, kEntryBytes, MADV_NOHUGEPAGE); // systems without large pages refuse
    return static_cast<std::uint64_t*>(pages);
}

} // namespace

GroovePattern::GroovePattern() : entries(MapEntries())
{
    for (std::size_t c = 0; c < kChannels; ++c)
        for (std::size_t s = 0; s < kSteps; ++s)
            locks[c][s].first = &entries[(c * kBars + s / kStepsPerBar) * kBarPlaces + s % kStepsPerBar];
}

void GroovePattern::Unmap::operator()(std::uint64_t* pages) const { munmap(pages, kEntryBytes); }

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
    ClearLocks(channel, step);
}

void GroovePattern::ClearLocks(int channel, int step) { lockEdits.Clear(&locks[channel][step], 1); }

void GroovePattern::ClearChannel(int channel)
{
    Fill(steps[channel], 0u);
    lockEdits.Clear(locks[channel], kSteps);
}

std::uint32_t GroovePattern::SetNotes(int channel, int step, std::uint32_t notes)
{
    return steps[channel][step].Update([notes](std::uint32_t word) { return word | notes; });
}

std::uint32_t GroovePattern::ClearNotes(int channel, int step, std::uint32_t notes)
{
    return steps[channel][step].Update([notes](std::uint32_t word) { return word & ~notes; });
}

std::uint32_t GroovePattern::FlipNotes(int channel, int step, std::uint32_t notes)
{
    return steps[channel][step].Update([notes](std::uint32_t word) { return word ^ notes; });
}

void GroovePattern::SetLock(int channel, int step, int param, float offset)
{
    lockEdits.Set(locks[channel][step], param, offset);
}

/// Memory for locks is there before who changes lists comes to it, who may be the audio thread.
void GroovePattern::Copy(int channel, int step, const GroovePattern& from, int fromChannel, int fromStep, int count)
{
    for (int n = 0; n < count; ++n) {
        locks[channel][step + n].Touch(from.locks[fromChannel][fromStep + n].Count());
        steps[channel][step + n] = from.steps[fromChannel][fromStep + n];
    }
    lockEdits.Copy(&locks[channel][step], &from.locks[fromChannel][fromStep], count);
}

void GroovePattern::CopySteps(int channel, int step, const GroovePattern& from, int fromStep, int count)
{
    Copy(channel, step, from, channel, fromStep, count);
}

void GroovePattern::CopyStep(int channel, int step, const GroovePattern& from, int fromChannel, int fromStep)
{
    Copy(channel, step, from, fromChannel, fromStep, 1);
}

/// At each moment a step has its old word or its new one.
void GroovePattern::SwapSteps(int channel, int a, int b)
{
    const Moving moving(*this);
    const std::uint32_t wordA = steps[channel][a], wordB = steps[channel][b];
    const auto exchange = [this, channel](int step, std::uint32_t old, std::uint32_t notes) {
        const std::uint32_t own = channel < kSamplerChannels ? SamplerBit(step) : 0u;
        steps[channel][step].Update([=](std::uint32_t word) {
            const std::uint32_t next = (word & ~old) | notes;
            return own != 0 && next != 0 ? own : next;
        });
    };
    exchange(a, wordA, wordB);
    exchange(b, wordB, wordA);
    StepLockList& mine = locks[channel][a];
    StepLockList& others = locks[channel][b];
    mine.Touch(others.Count());
    others.Touch(mine.Count());
    lockEdits.Swap(mine, others);
}

void GroovePattern::UpdateLength()
{
    const std::uint32_t before = moves;
    if (before % kEnded != 0) return;
    int bars = 1;
    for (int s = kSteps - 1; s >= kStepsPerBar && bars == 1; --s)
        for (int c = 0; c < kChannels; ++c)
            if (steps[c][s] != 0) {
                bars = s / kStepsPerBar + 1;
                break;
            }
    if (moves != before) return; // a note may have gone from where this look came to where it had been
    length = kStepsPerBar * (bars > 4 ? 8 : bars > 2 ? 4 : bars);
}

} // namespace korvane
