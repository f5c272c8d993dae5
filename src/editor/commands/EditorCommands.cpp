// What menus, arrows and dropped files of the editor do with files and programs.
#include "editor/commands/EditorCommands.h"

#include <cassert>

#include "content/PathText.h"
#include "editor/commands/DialogRow.h"
#include "gui/window/CFileSelector.h"

namespace korvane {

namespace {

/// The path before (-1) or after (1) a file's in its folder, by name; empty: there is none. The file itself may be
/// gone.
std::string Neighbour(const std::string& file, int direction)
{
    const std::string folder(FolderOf(file));
    CFileList list;
    for (const char* extension : {"wav", "aif", "aiff"}) list.AddFilter(extension, false);
    if (folder.empty() || !list.Scan(folder.c_str())) return {};
    std::string nearest;
    for (std::int32_t n = 0; n < list.Count(); ++n) {
        const std::string path = list.GetEntry(n);
        const bool beyond = direction < 0 ? path < file : path > file;
        const bool nearer = nearest.empty() || (direction < 0 ? path > nearest : path < nearest);
        if (beyond && nearer) nearest = path;
    }
    return nearest;
}

/// -1: it is none of them.
int IndexOf(const CFileList& list, const std::string& path)
{
    for (std::int32_t n = 0; n < list.Count(); ++n)
        if (path == list.GetEntry(n)) return n;
    return -1;
}

} // namespace

// Dialogs

void EditorCommands::Run(const DialogRow& row)
{
    const int channel = instrument.engine->selection.selectedChannel;
    const std::string path = Ask(row);
    if (path.empty()) return;
    if (row.ofChannel)
        (instrument.*row.ofChannel)(channel, path.c_str());
    else
        (instrument.*row.operation)(path.c_str());
}

std::string EditorCommands::Ask(const DialogRow& row)
{
    const bool sampler = instrument.engine->selection.OnSampler();
    const DialogStart start = row.start(instrument);
    CFileSelector selector(owner.moduleHandle);
    for (const DialogFilter& filter : row.filters)
        if (filter.Offered(sampler))
            selector.AddFilter(filter.description, {filter.extensions[0], filter.extensions[1], filter.extensions[2]});
    selector.SetTitle(row.title);
    selector.SetFolder(start.folder.c_str());
    selector.SetName(start.name.c_str());
    const char* const path = row.save ? selector.Save(&owner) : selector.Open(&owner);
    return path ? path : "";
}

// Grooves, parts, programs

void EditorCommands::SaveGroove() { Run(dialog::kSaveGroove); }
void EditorCommands::SaveGrooveWithSamples() { Run(dialog::kSaveAll); }
void EditorCommands::LoadGroove() { Run(dialog::kLoadGroove); }
void EditorCommands::ResetGroove() { instrument.ResetGroove(); }
void EditorCommands::SavePart() { Run(dialog::kSavePart); }
void EditorCommands::LoadPart() { Run(dialog::kLoadPart); }
void EditorCommands::ResetPart() { instrument.ResetPart(); }
void EditorCommands::SaveProgram() { Run(dialog::kSaveProgram); }
void EditorCommands::LoadProgram() { Run(dialog::kLoadProgram); }
void EditorCommands::ResetProgram() { instrument.ResetProgram(); }

// Samples

SampleSlot& EditorCommands::CurrentLayer()
{
    GrooveEngine& engine = *instrument.engine;
    const int slot = kFirstLayerSlot + engine.selection.layerNumber;
    return engine.Channel(engine.selection.selectedChannel).sound.sampleSlots[static_cast<std::size_t>(slot)];
}

/// The layer that was current when the dialog came up takes the sample, whatever is selected meanwhile.
void EditorCommands::LoadWaveSample()
{
    SampleSlot& layer = CurrentLayer();
    const std::string path = Ask(dialog::kLoadWaveSample);
    if (path.empty()) return;
    LastSampleFolder().Set(dialog::FolderIn(path).c_str());
    layer.Ask(path.c_str());
}

void EditorCommands::RemoveSample() { CurrentLayer().Ask(""); }

void EditorCommands::NeighbourSample(int direction)
{
    SampleSlot& layer = CurrentLayer();
    const std::string path = Neighbour(dialog::TextIn(layer.path), direction);
    if (!path.empty()) layer.Ask(path.c_str());
}

// Waveforms

SampleSlot& EditorCommands::Oscillator(int oscillator)
{
    assert(oscillator >= 0 && oscillator < kFirstLayerSlot);
    GrooveEngine& engine = *instrument.engine;
    return engine.Channel(engine.selection.selectedChannel).sound.sampleSlots[static_cast<std::size_t>(oscillator)];
}

/// As with samples, of the channel that was selected when the dialog came up.
void EditorCommands::ImportWave(int oscillator)
{
    SampleSlot& slot = Oscillator(oscillator);
    if (const std::string path = Ask(dialog::kImportWave); !path.empty()) slot.Ask(path.c_str());
}

void EditorCommands::LibraryWave(int oscillator, int index)
{
    if (const char* const path = instrument.waveforms.GetEntry(index)) Oscillator(oscillator).Ask(path);
}

void EditorCommands::StepWave(int oscillator, int direction)
{
    const int current = IndexOf(instrument.waveforms, dialog::TextIn(Oscillator(oscillator).path));
    LibraryWave(oscillator, current < 0 ? 0 : current + direction);
}

// Drops

void EditorCommands::Drop(const char* path)
{
    if (!path || instrument.LoadGrooveFile(path) || instrument.LoadProgramFile(path)) return;
    CurrentLayer().Ask(path);
}

} // namespace korvane
