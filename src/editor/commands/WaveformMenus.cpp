// The waveform lists of the three oscillators.
#include "editor/commands/WaveformMenus.h"

namespace korvane {

void WaveformMenus::Attach(int oscillator, CControlDropDownList* list)
{
    if (oscillator >= 0 && oscillator < kFirstLayerSlot) lists[static_cast<std::size_t>(oscillator)] = list;
}

void WaveformMenus::Fill() {}
void WaveformMenus::ShowNames() {}
void WaveformMenus::Chosen(int) {}

} // namespace korvane
