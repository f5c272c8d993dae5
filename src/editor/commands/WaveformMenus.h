// The waveform lists of the three oscillators.
#pragma once

#include <array>
#include <string>

#include "content/state/KVInstrument.h"
#include "editor/commands/EditorCommands.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane {

/// Each offers a file of the player's and those of the library, and shows what its oscillator of the selected channel
/// plays. The window's thread.
class WaveformMenus {
public:
    WaveformMenus(KVInstrument& shownInstrument, EditorCommands& menuCommands)
        : instrument(shownInstrument), commands(menuCommands)
    {
    }

    /// A new list, without items; null: none.
    /// oscillator  0..2
    void Attach(int oscillator, CControlDropDownList* list);
    /// Gives the lists their items, those that have none.
    void Fill();
    /// On each tick; draws nothing that has not changed. The item of what the oscillator plays is the current one.
    void ShowNames();
    void Chosen(int oscillator);

private:
    struct Playing {
        std::string path;
        int item = -1; // of the list; none for files of elsewhere
    };
    int ItemOf(const std::string& path) const;

    KVInstrument& instrument;
    EditorCommands& commands;
    std::array<CControlDropDownList*, kFirstLayerSlot> lists{};
    std::array<Playing, kFirstLayerSlot> playing;
};

} // namespace korvane
