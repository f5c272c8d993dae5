// A walk through the controls of a group that holds while they change.
#pragma once

#include "gui/controls/CControlGroup.h"

namespace korvane {

/// Visits each control of a group once. Whoever is called on the way may remove any of them, or end the group.
class ControlWalk {
public:
    explicit ControlWalk(CControlGroup& group);
    ControlWalk(const ControlWalk&) = delete;
    ~ControlWalk();

    /// Null at the end, and when the group is no more.
    CControl* Next();
    /// Null when the control that was visited last is no more.
    CControl* Current() const { return current; }
    bool GroupEnded() const { return !walked; }

private:
    friend class CControlGroup;
    void Forget(const CControl* control);

    CControlGroup* walked;
    ControlWalk* outer;
    CControl* current = nullptr;
    CControl* following;
};

} // namespace korvane
