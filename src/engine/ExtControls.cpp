// The five external controls and what each drives.
#include "engine/ExtControls.h"

namespace korvane {

void ExtControls::Written(int channel, int param, float value)
{
    if (extLearn.Replace(true, false)) {
        ExtControl& learner = extControls[extIndex];
        learner.channel = channel;
        learner.param = param;
    }
    for (ExtControl& control : extControls)
        if (control.channel == channel && control.param == param) control.value = value;
}

void ExtControls::Reset()
{
    for (ExtControl& control : extControls) control.param = -1;
    extIndex = 0;
    extLearn = false;
}

} // namespace korvane
