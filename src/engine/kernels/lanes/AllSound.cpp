// Whether a block is sound or has run wild.
#include "engine/kernels/AllSound.h"

#include <bit>

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

AllSoundKernel AllSound;

namespace {

// Magnitudes of floats have the order of their bits; those of NaN are the greatest.
constexpr std::int32_t kBound = std::bit_cast<std::int32_t>(kOverflow);

Ints Wild(const float* samples) { return (Load<Ints>(samples) & 0x7fffffff) >= kBound; }

} // namespace

bool AllSound(const float* left, const float* right, int frames)
{
    if (frames < kLanes) {
        bool sound = true;
        for (int n = 0; n < frames; ++n) sound = sound && IsSound(left[n]) && IsSound(right[n]);
        return sound;
    }
    const int last = frames - kLanes; // where the last vector begins; it may overlap the one before
    Ints wild = Wild(left + last) | Wild(right + last);
    for (int n = 0; n < last; n += kLanes) wild |= Wild(left + n) | Wild(right + n);
    return !Any(wild);
}

} // namespace korvane::KORVANE_ISA_SPACE
