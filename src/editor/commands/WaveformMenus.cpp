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

int WaveformMenus::ItemOf(const std::string& path) const
{
    for (std::int32_t n = 0; n < instrument.waveforms.Count(); ++n)
        if (path == instrument.waveforms.GetEntry(n)) return kFirstWave + n;
    return -1;
}

void WaveformMenus::ShowNames()
{
    const GrooveEngine& engine = *instrument.engine;
    const auto& slots = engine.Channel(engine.selection.selectedChannel).sound.sampleSlots;
    for (std::size_t oscillator = 0; oscillator < lists.size(); ++oscillator) {
        CControlDropDownList* const list = lists[oscillator];
        if (!list) continue;
        char name[256], path[512];
        slots[oscillator].name.Get(name);
        slots[oscillator].path.Get(path);
        list->SetClosedText(ShownName(name));
        Playing& shown = playing[oscillator];
        if (shown.path != path) shown = {path, ItemOf(path)};
        list->SetValue(static_cast<float>(shown.item));
    }
}

void WaveformMenus::Chosen(int oscillator)
{
    if (oscillator < 0 || oscillator >= kFirstLayerSlot) return;
    CControlDropDownList* const list = lists[static_cast<std::size_t>(oscillator)];
    if (!list) return;
    const int index = Truncate(list->GetValue()); // what the oscillator plays is shown by the next tick
    if (index == kLoadWaveform)
        commands.ImportWave(oscillator);
    else
        commands.LibraryWave(oscillator, index - kFirstWave);
}

} // namespace korvane
