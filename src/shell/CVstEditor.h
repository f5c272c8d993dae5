// The editor window as a VST 2 host sees it.
#pragma once

#include "shell/PluginInstance.h"
#include "shell/vst2/AEffEditor.h"

namespace korvane {

/// Holds its rectangle.
class CVstEditor : public AEffEditor {
public:
    explicit CVstEditor(PluginInstance& shown) : instance(shown)
    {
        int height = 0, width = 0;
        instance.editor->GetEditorSize(height, width);
        rectangle.bottom = static_cast<std::int16_t>(height);
        rectangle.right = static_cast<std::int16_t>(width);
    }

    bool GetRect(ERect** answer) override
    {
        *answer = &rectangle;
        return true;
    }
    bool Open(void* parentWindow) override { return instance.OpenEditor(parentWindow); }
    void Close() override { instance.CloseEditor(); }

private:
    PluginInstance& instance;
    ERect rectangle{};
};

} // namespace korvane
