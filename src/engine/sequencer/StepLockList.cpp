// The parameter locks of one step.
#include "engine/sequencer/StepLockList.h"

#include <algorithm>
#include <cmath>

#include "platform/Numbers.h"

namespace korvane {

namespace {
constexpr float kSmallestOffset = 0.0001f;
}

void StepLockList::Set(int param, float offset)
{
    if (param < 0 || param >= kChannelSlots) return;
    const int last = count;
    int at = 0;
    while (at < last && At(at).param != param) ++at;
    const bool keep = std::fabs(offset) >= kSmallestOffset; // false for NaN too
    if (keep) {
        if (at < last)
            Put(at, {param, offset});
        else
            Append(param, offset);
    } else if (at < last) {
        for (; at + 1 < last; ++at) Put(at, At(at + 1));
        count = last - 1;
    }
}

bool StepLockList::Append(int param, float offset)
{
    const int last = count;
    if (last >= kCapacity) return false;
    Put(last, {param, offset});
    count = last + 1;
    return true;
}

float StepLockList::Offset(int param) const
{
    const int last = count;
    for (int n = 0; n < last; ++n)
        if (const StepLock lock = At(n); lock.param == param) return lock.offset;
    return 0.0f;
}

void StepLockList::ApplyTo(float* block) const
{
    const int last = count;
    for (int n = 0; n < last; ++n) {
        const StepLock lock = At(n);
        if (lock.param >= 0 && lock.param < kChannelSlots)
            block[lock.param] = Clamp(block[lock.param] + lock.offset, 0.0f, 1.0f);
    }
}

void StepLockList::CopyFrom(const StepLockList& other)
{
    const int last = other.count;
    for (int n = 0; n < last; ++n) Put(n, other.At(n));
    count = last;
}

void StepLockList::SwapWith(StepLockList& other)
{
    const int mine = count, others = other.count;
    for (int n = 0; n < std::max(mine, others); ++n) {
        const StepLock kept = n < mine ? At(n) : StepLock{};
        if (n < others) Put(n, other.At(n));
        if (n < mine) other.Put(n, kept);
    }
    count = others;
    other.count = mine;
}

} // namespace korvane
