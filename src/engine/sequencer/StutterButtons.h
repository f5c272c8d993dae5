// The five stutter buttons and what holding them means.
#pragma once

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// Lengths in button order: 1/1, 3/4, 1/2, 3/8, 1/4 of a beat. The button pressed last counts; when it is let go, the
/// last one still held does. "1/4" held with exactly one other gives that one's second form, so five buttons play all
/// nine codes. Any thread may press, release and read; two threads pressing in the same instant may share a rank,
/// then the shorter length counts.
class StutterButtons {
public:
    void Press(int button);   // 0..4, others are ignored
    void Release(int button); // 0..4, others are ignored
    void Clear();
    bool Held(int button) const { return button >= 0 && button < kStutterButtons && ranks[button] != 0; }

    /// 1..5: 1/1, 3/4, 1/2, 3/8, 1/4 beat; 6..8: 1/1, 3/4, 1/2 reversed; 9: 1/8; 0: no button held.
    int Code() const;

private:
    Shared<int> ranks[kStutterButtons]; // 0 released; the latest press has the highest
};

} // namespace korvane
