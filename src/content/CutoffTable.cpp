// Coefficients of the channel filter by cutoff.
#include "content/CutoffTable.h"

#include <cmath>
#include <vector>

namespace korvane {

void BuildCutoffTable(CutoffPair* pairs)
{
    // All by ear. Range and feedback keep the factors of their last tuning apart: products would round otherwise.
    constexpr float kOctaves = 10.05f, kOctavesTuned = 0.9725f;
    constexpr float kLowest = 0.0005f;      // 14 Hz at 44.1 kHz
    constexpr float kFeedbackByGain = 1.5f; // more feedback for high cutoffs
    constexpr float kFeedback = 5.0f, kFeedbackTuned = 0.77f, kFeedbackTunedAgain = 0.9825f;
    for (int i = 0; i < kCutoffPairs; ++i) {
        const float cutoff = static_cast<float>(i) / static_cast<float>(kCutoffPairs);
        const float g = kLowest * std::pow(2.0f, cutoff * kOctaves * kOctavesTuned);
        pairs[i] = {g, (kFeedbackByGain * g + 1.0f) * kFeedback * kFeedbackTuned * kFeedbackTunedAgain};
    }
}

const CutoffPair* CutoffTable()
{
    static const std::vector<CutoffPair> table = [] {
        std::vector<CutoffPair> pairs(kCutoffPairs);
        BuildCutoffTable(pairs.data());
        return pairs;
    }();
    return table.data();
}

} // namespace korvane
