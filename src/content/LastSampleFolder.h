// The folder in which the sample dialog opens.
#pragma once

#include "platform/SharedText.h"

namespace korvane {

/// One text for all instances in the process. A new engine sets it to its drum samples, a chosen file to its folder.
/// Any thread but audio; of two writers at once either may win, and the dialog merely opens elsewhere.
inline SharedText<1024>& LastSampleFolder()
{
    static SharedText<1024> folder;
    return folder;
}

} // namespace korvane
