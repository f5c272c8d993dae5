// A walk through the controls of a group that holds while they change.
#include "gui/controls/ControlWalk.h"

namespace korvane {

ControlWalk::ControlWalk(CControlGroup& group) : walked(&group), outer(group.walks), following(group.controls)
{
    group.walks = this;
}

ControlWalk::~ControlWalk()
{
    if (walked) walked->walks = outer;
}

CControl* ControlWalk::Next()
{
    current = following;
    if (current) following = current->next;
    return current;
}

void ControlWalk::Forget(const CControl* control)
{
    if (following == control) following = control->next;
    if (current == control) current = nullptr;
}

} // namespace korvane
