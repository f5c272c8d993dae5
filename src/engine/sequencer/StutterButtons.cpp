// Stutter buttons: press order into one code.
#include "engine/sequencer/StutterButtons.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr int kQuarterButton = 4;
constexpr int kSecondForms[kQuarterButton] = {6, 7, 8, 9}; // of 1/1, 3/4, 1/2, 3/8

} // namespace

void StutterButtons::Press(int button)
{
    if (button < 0 || button >= kStutterButtons) return;
    int latest = 0;
    for (const auto& rank : ranks) latest = std::max<int>(latest, rank);
    ranks[button] = latest + 1;
}

void StutterButtons::Release(int button)
{
    if (button >= 0 && button < kStutterButtons) ranks[button] = 0;
}

void StutterButtons::Clear()
{
    for (auto& rank : ranks) rank = 0;
}

int StutterButtons::Code() const
{
    int held = 0, latest = 0, last = -1, other = -1;
    for (int n = 0; n < kStutterButtons; ++n) {
        const int rank = ranks[n];
        if (rank == 0) continue;
        ++held;
        if (n != kQuarterButton) other = n;
        if (rank >= latest) {
            latest = rank;
            last = n;
        }
    }
    if (held == 2 && Held(kQuarterButton) && other >= 0) return kSecondForms[other];
    return last + 1;
}

} // namespace korvane
