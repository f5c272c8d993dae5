// A plug-in's window as a VST 2 host asks for it.
#pragma once

#include "shell/vst2/AEffect.h"

namespace korvane {

class AEffEditor {
public:
    virtual ~AEffEditor() = default;
    virtual bool GetRect(ERect** rectangle) = 0;
    virtual bool Open(void* parentWindow) = 0;
    virtual void Close() = 0;
};

} // namespace korvane
