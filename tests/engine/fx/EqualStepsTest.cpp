// Sums of equal steps against single steps.
#include <gtest/gtest.h>

#include "engine/dsp/EqualSteps.h"

namespace korvane {
namespace {

// Odd multiples of 2^-54 end half way between two numbers of 0.5 to 1.
TEST(EqualSteps, SumToTheLastBit)
{
    const double steps[] = {1.0 / 72000, 0.0, 0.2, 1.5, 1e-9, 0x1p-6 + 0x1p-54, 0x1p-7 + 3 * 0x1p-54, 1.0 / 24000};
    for (double step : steps)
        for (double start : {0.0, 0.3, 0.5 + 0x1p-53, 0.3 + 0x1p-54, 0.99})
            for (int frames : {1, 2, 100, 5000}) {
                double sums[5000], value = start, single = start;
                const int done = StepBelowOne(value, step, frames, sums);
                ASSERT_TRUE(done == frames || value >= 1.0) << step;
                for (int n = 0; n < done; ++n, single += step)
                    ASSERT_TRUE(sums[n] == single && (n == 0 || single < 1.0)) << step << ' ' << start << ' ' << n;
                EXPECT_EQ(value, single) << step << ' ' << start;
            }
}

} // namespace
} // namespace korvane
