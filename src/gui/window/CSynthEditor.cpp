// Controls and the engine's parameters.
#include "gui/window/CSynthEditor.h"

#include <cstring>

namespace korvane {

bool CSynthEditor::Open(int newHeight, int newWidth, void* parent)
{
    if (!windowHandle) notices.Clear();
    return CPluginUI::Open(newHeight, newWidth, parent);
}

void CSynthEditor::BeginTick()
{
    if (!activeGroup && notices.TakeAll()) RefreshAll(); // an active group would be refreshed alone
    notices.Take([this](int index, float value) { ParameterChanged(index, value); });
    CPluginUI::BeginTick();
}

float CSynthEditor::GetParameterValue(CControl* control)
{
    return synth && control ? synth->GetParameter(control->GetId()) : 0.0f;
}

float CSynthEditor::GetDefaultValue(CControl* control)
{
    return synth && control ? synth->GetParameterDefault(control->GetId()) : 0.0f;
}

void CSynthEditor::GetParameterLabel(CControl* control, char* text)
{
    std::strcpy(text, "undefined");
    if (synth && control) synth->GetParameterLabel(control->GetId(), text);
}

void CSynthEditor::GetParameterDisplay(CControl* control, char* text)
{
    std::strcpy(text, "undefined");
    if (synth && control) synth->GetParameterDisplay(control->GetId(), text);
}

void CSynthEditor::GetParameterName(CControl* control, char* text)
{
    std::strcpy(text, "undefined");
    if (synth && control) synth->GetParameterName(control->GetId(), text);
}

/// Where a host hears of gestures on a control; null where it does not.
static CPluginWrapper* HostOf(CSynthesizer* synth, CControl* control)
{
    const bool automated = synth && control && control->GetId() >= 0 && control->GetId() < param::HostCount;
    return automated ? synth->wrapper : nullptr;
}

void CSynthEditor::BeginEdit(CControl* control)
{
    if (CPluginWrapper* host = HostOf(synth, control)) host->BeginEdit(control->GetId());
}

void CSynthEditor::EndEdit(CControl* control)
{
    if (CPluginWrapper* host = HostOf(synth, control)) host->EndEdit(control->GetId());
}

void CSynthEditor::ParameterChanged(int index, float value)
{
    CControl* control = windowHandle ? FindControl(index) : nullptr;
    if (control && control->SetValue(value)) control->SetDirty(true);
}

} // namespace korvane
