// The five external controls and what each drives.
#include "engine/ExtControls.h"

namespace korvane {

void ExtControls::Written(const ExtBinding& written, float value)
{
    if (extLearn.Replace(true, false)) extControls[extIndex].binding = written;
    for (ExtControl& control : extControls)
        if (control.binding == written) control.value = value;
}

void ExtControls::Reset()
{
    for (ExtControl& control : extControls) {
        ExtBinding unbound = control.binding; // its channel is stored all the same
        unbound.param = -1;
        control.binding = unbound;
    }
    extIndex = 0;
    extLearn = false;
}

} // namespace korvane
