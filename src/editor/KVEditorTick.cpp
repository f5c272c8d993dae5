// The instrument's editor: what each tick shows of the engine.
#include <algorithm>

#include "editor/KVEditor.h"
#include "editor/PanelLights.h"
#include "editor/elements/KVMeter.h"
#include "platform/Numbers.h"

namespace korvane {

void KVEditor::Idle()
{
    blinkPhase = static_cast<signed char>(blinkPhase == 2 ? -2 : blinkPhase + 1);
    if (windowHandle && !activeGroup) {
        FollowChannel();
        ShowParameters(0, param::HostCount);
        ShowLevels();
        ShowTexts();
        ShowLights();
        ShowLinks();
        ShowParameters(kFirstPageParameter, param::Count - kFirstPageParameter);
    }
    CSynthEditor::Idle();
}

void KVEditor::FollowChannel()
{
    const int channel = instrument.engine->selection.selectedChannel;
    if (samplerPage != (channel < kSamplerChannels) || shownScreen != ScreenStored()) RefreshAll();
    if (channel == shownChannel) return;
    shownChannel = channel;
    programs.Rebuild();
}

void KVEditor::ShowParameters(int first, int count)
{
    for (int id = first; id < first + count; ++id)
        if (CControl* const control = panel.Bound(id)) control->SetValue(instrument.GetParameter(id));
}

void KVEditor::ShowLevels()
{
    MixerStrip& strip = instrument.engine->Channel(shownChannel).strip;
    Shared<float>* const peaks[] = {&strip.peakLeft, &strip.peakRight};
    for (int side = 0; side < 2; ++side) {
        auto* const meter = panel.Of<KVMeter>(Role::Meter, side);
        meter->level = std::max(Clamp(peaks[side]->Exchange(0.0f), 0.0f, 1.0f), meter->level);
        meter->SetDirty(true);
    }
}

void KVEditor::ShowTexts()
{
    waveforms.ShowNames();
    programs.ShowName();
    const int effect = instrument.engine->selection.selectedFx;
    for (const bool vertical : {false, true})
        panel.Of<CControlTextDisplay>(Role::PadAxis, vertical)->SetText(PadAxisName(effect, vertical));
}

void KVEditor::ShowLight(CControlTextDisplay& button, int imageRow)
{
    const int y = imageRow * button.rect.h;
    if (button.imageOffset.y == y) return;
    button.imageOffset.y = y;
    button.SetDirty(true);
}

/// A button above it that is drawn covers the edge of its glow.
static void ShowLed(CControl& led, bool on, CControl* above)
{
    led.SetValue(on ? 1.0f : 0.0f);
    if (above && above->IsDirty()) led.SetDirty(true);
}

void KVEditor::ShowLights()
{
    const GrooveEngine& engine = *instrument.engine;
    const bool blink = blinkPhase < 0;
    for (const PlacedControl& placed : panel) {
        const int n = placed.NumberInRole();
        const auto show = [&](Light light) {
            ShowLight(static_cast<CControlTextDisplay&>(*placed.control), ImageRow(light, blink));
        };
        switch (placed.row->role) {
        case Role::Channel: show(ChannelLight(engine, n)); break;
        case Role::Step: show(StepLight(engine, n)); break;
        case Role::Pattern: show(PatternLight(engine, n)); break;
        case Role::ExtLearn: show(engine.ext.extLearn ? Light::Half : Light::Off); break;
        case Role::StepLed: ShowLed(*placed.control, StepLed(engine, n), panel.Bound(param::Step1 + n)); break;
        case Role::FxLed: ShowLed(*placed.control, FxLed(engine, n), panel.Bound(param::Fx1 + n)); break;
        case Role::ExtLed: ShowLed(*placed.control, engine.ext.extIndex == n, nullptr); break;
        default: break;
        }
    }
}

void KVEditor::ShowLinks()
{
    const MidiLinks& links = instrument.links;
    char texts[2][256];
    instrument.GetLastParameterText(texts[0]);
    links.GetLastSourceText(texts[1]);
    for (int n = 0; n < 2; ++n) panel.Of<CControlTextDisplay>(Role::LinkText, n)->SetText(texts[n]);

    const int midi = links.lastSource, parameter = links.lastParameter;
    const bool linked = midi >= 0 && parameter >= 0 && links.links[midi] == parameter;
    const bool ignored = linked && midi < source::PitchWheel && links.ignoreValue[midi];
    panel.Of(Role::LinkSwitch)->SetValue(linked ? 1.0f : 0.0f);
    panel.Of(Role::IgnoreController)->SetValue(ignored ? 1.0f : 0.0f);
}

} // namespace korvane
