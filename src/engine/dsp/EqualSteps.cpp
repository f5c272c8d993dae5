// Steps between two powers of two, which are all alike.
#include "engine/dsp/EqualSteps.h"

#include <bit>
#include <cstdint>

namespace korvane {

namespace {

/// The largest power of two up to a positive number.
double PowerBelow(double value)
{
    constexpr std::uint64_t kExponent = 0x7ff0000000000000;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) & kExponent);
}

} // namespace

/// A sum is rounded to the spacing of the numbers around it, which is the same from one power of two to the next, so
/// every step there is rounded to the same multiple of it. A step that ends half way between two of them is rounded to
/// the even one: from such a sum on all steps are equal as well. Three steps lead to it; multiples of the fourth and
/// their sums are exact.
int StepBelowOne(double& value, double step, int frames, double* sums)
{
    double last = value;
    int done = 0;
    do {
        double before = last, first = 0.0;
        int count = 0;
        do {
            if (sums) sums[done] = last;
            before = last;
            last += step;
            if (count == 0) first = last;
            ++count;
            ++done;
        } while (count < 3 && done < frames && last < 1.0);
        const double rounded = last - before, room = 2.0 * PowerBelow(first) - last - 2.0 * rounded;
        if (count < 3 || !(room >= 0.0)) continue;
        const int left = frames - done;
        const int more = room < left * rounded ? static_cast<int>(room / rounded) : left;
        if (sums)
            for (int n = 0; n < more; ++n) sums[done + n] = last + n * rounded;
        last += more * rounded;
        done += more;
    } while (done < frames && last < 1.0);
    value = last;
    return done;
}

} // namespace korvane
