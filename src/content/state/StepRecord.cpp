// One step of one channel in an image: notes and parameter locks.
#include "content/state/StepRecord.h"

namespace korvane {

void WriteStepRecord(ByteWriter& out, const GroovePattern& pattern, int channel, int step)
{
    const StepLockList& locks = pattern.locks[channel][step];
    const int count = locks.Count();
    out.Write(static_cast<std::uint32_t>(pattern.steps[channel][step]));
    out.Write(static_cast<std::int16_t>(count));
    for (int n = 0; n < count; ++n) {
        const StepLock lock = locks.At(n);
        out.Write(static_cast<std::int16_t>(lock.param));
        out.Write(lock.offset);
    }
}

bool ReadStepRecord(ByteReader& in, GroovePattern& pattern, int channel, int step)
{
    StepLockList& locks = pattern.locks[channel][step];
    locks.Clear();
    pattern.steps[channel][step] = in.Read<std::uint32_t>();
    const int count = in.Read<std::int16_t>(); // negative: none
    const bool fits = count <= StepLockList::kCapacity;
    for (int n = 0; n < count; ++n) {
        const int param = in.Read<std::int16_t>();
        const float offset = in.Read<float>();
        if (fits || (param >= 0 && param < kChannelSlots)) locks.Append(param, offset);
    }
    return in.Ok();
}

} // namespace korvane
