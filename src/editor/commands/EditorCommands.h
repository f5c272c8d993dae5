// What menus, arrows and dropped files of the editor do with files and programs.
#pragma once

#include <string>

#include "content/state/KVInstrument.h"
#include "gui/window/CPluginFrame.h"

namespace korvane {

struct DialogRow;

/// Asks for files with the desktop's dialogs, which the editor's window owns. The window's thread. What is cancelled or
/// refused changes nothing that the instrument's operations do not name.
class EditorCommands {
public:
    EditorCommands(KVInstrument& shownInstrument, CPluginFrame& dialogOwner)
        : instrument(shownInstrument), owner(dialogOwner)
    {
    }

    // Grooves and parts

    void SaveGroove();
    void SaveGrooveWithSamples();
    void LoadGroove();
    void ResetGroove();
    void SavePart();
    void LoadPart();
    void ResetPart();

    // Programs, of the selected channel

    void SaveProgram();
    void LoadProgram();
    void ResetProgram();

    // The samples of the selected channel's current layer

    void LoadWaveSample();
    void RemoveSample();
    /// The audio file before (-1) or after (1) it in its folder, by name; at the end of the folder nothing.
    void NeighbourSample(int direction);

    // The waveforms of the selected channel's oscillators, 0..2

    void ImportWave(int oscillator);
    /// index  of the library's files
    void LibraryWave(int oscillator, int index);
    /// The one before (-1) or after (1) it in the library; the first when it is none of the library's.
    void StepWave(int oscillator, int direction);

    /// A groove, a program, or else a sample for the selected channel's current layer.
    void Drop(const char* path);

private:
    void Run(const DialogRow& row);
    std::string Ask(const DialogRow& row); // the chosen path; empty: none, and the editor may be closed
    SampleSlot& CurrentLayer();
    SampleSlot& Oscillator(int oscillator);

    KVInstrument& instrument;
    CPluginFrame& owner;
};

} // namespace korvane
