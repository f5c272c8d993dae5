// The waveform lists of the three oscillators.
#include "editor/commands/WaveformMenus.h"

#include "editor/commands/MenuRow.h"
#include "platform/Numbers.h"

namespace korvane {

constexpr int kLoadWaveform = 0, kFirstWave = 2; // a heading stands between them

void WaveformMenus::Attach(int oscillator, CControlDropDownList* list)
{
    if (oscillator >= 0 && oscillator < kFirstLayerSlot) lists[static_cast<std::size_t>(oscillator)] = list;
}

void WaveformMenus::Fill()
{
    for (CControlDropDownList* list : lists) {
        if (!list || list->items.Count() > 0) continue;
        list->AddItem("Load Waveform", item::Command);
        list->AddItem("Library", item::Heading);
        char name[256];
        for (std::int32_t n = 0; instrument.waveforms.GetEntry(n, name); ++n) list->AddItem(ShownName(name));
    }
}

void WaveformMenus::ShowNames()
{
    const GrooveEngine& engine = *instrument.engine;
    const auto& slots = engine.Channel(engine.selection.selectedChannel).sound.sampleSlots;
    std::size_t oscillator = 0;
    for (CControlDropDownList* list : lists) {
        char name[256];
        slots[oscillator++].name.Get(name);
        if (list) list->SetClosedText(ShownName(name));
    }
}

/// The list keeps no choice: what the oscillator plays is what it shows.
void WaveformMenus::Chosen(int oscillator)
{
    if (oscillator < 0 || oscillator >= kFirstLayerSlot) return;
    CControlDropDownList* const list = lists[static_cast<std::size_t>(oscillator)];
    if (!list) return;
    const int index = Truncate(list->GetValue());
    list->SetValue(-1.0f);
    if (index == kLoadWaveform)
        commands.ImportWave(oscillator);
    else
        commands.LibraryWave(oscillator, index - kFirstWave);
}

} // namespace korvane
