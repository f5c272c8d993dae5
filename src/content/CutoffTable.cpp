// Coefficients of the channel filter by cutoff.
#include "content/CutoffTable.h"

#include <cmath>
#include <vector>

namespace korvane {

void BuildCutoffTable(CutoffPair* pairs)
{
    for (int i = 0; i < kCutoffPairs; ++i) {
        const float t = std::pow(2.0f, static_cast<float>(i) / 65536.0f * 10.05f * 0.9725f);
        const float g = 0.0005f * t;
        pairs[i] = {g, (1.5f * g + 1.0f) * 5.0f * 0.77f * 0.9825f};
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
