// A window whose controls show the parameters of an engine.
#pragma once

#include "framework/CSynthesizer.h"
#include "gui/window/CPluginUI.h"
#include "gui/window/ParameterNotices.h"

namespace korvane {

/// A control's id is the parameter that it is bound to. The window's thread, but for `notices`.
class CSynthEditor : public CPluginUI {
public:
    /// engine  outlives the editor; null: every control is unbound
    CSynthEditor(std::unique_ptr<Window> platformWindow, void* module, Size editorSize, CSynthesizer* engine)
        : CPluginUI(std::move(platformWindow), module, editorSize), synth(engine)
    {
    }

    // clang-format off
    void BeginTick() override;                             // first shows what was noticed
    float GetParameterValue(CControl* control) override;
    void GetParameterLabel(CControl* control, char* text) override;
    void GetParameterDisplay(CControl* control, char* text) override;
    void GetParameterName(CControl* control, char* text) override;
    float GetDefaultValue(CControl* control) override;
    void BeginEdit(CControl* control) override;            // the host hears of parameters that it can automate
    void EndEdit(CControl* control) override;
    bool Open(int newHeight, int newWidth, void* parent) override;
    virtual void ParameterChanged(int index, float value); // not by the user
    // clang-format on

    CSynthesizer* const synth;
    ParameterNotices notices; // any thread posts
};

} // namespace korvane
