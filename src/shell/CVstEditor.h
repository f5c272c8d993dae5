// The editor window as a VST 2 host sees it.
#pragma once

#include <memory>

#include "shell/CPluginEditor.h"
#include "shell/vst2/AEffEditor.h"

namespace korvane {

/// Owns the window object and holds its rectangle.
class CVstEditor : public AEffEditor {
public:
    explicit CVstEditor(std::unique_ptr<CPluginEditor> editorWindow) : window(std::move(editorWindow))
    {
        int height = 0, width = 0;
        window->GetEditorSize(height, width);
        rectangle.bottom = static_cast<std::int16_t>(height);
        rectangle.right = static_cast<std::int16_t>(width);
    }

    bool GetRect(ERect** answer) override
    {
        *answer = &rectangle;
        return true;
    }
    bool Open(void* newParent) override
    {
        parentWindow = newParent;
        return window->Open(newParent, rectangle.bottom, rectangle.right);
    }
    void Close() override { window->Close(); }

    CPluginEditor* Window() { return window.get(); }

private:
    std::unique_ptr<CPluginEditor> window;
    void* parentWindow = nullptr;
    ERect rectangle{};
};

} // namespace korvane
