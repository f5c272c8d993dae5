// Program files: one channel's sound, from the editor, a library or MIDI.
#include <iterator>
#include <string>

#include "content/PathText.h"
#include "content/state/ImageFile.h"
#include "content/state/ImageLayout.h"
#include "engine/KVSynth.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"
#include "shell/CPluginEditor.h"

namespace korvane {

namespace {

/// What a channel keeps whatever program it plays.
constexpr int kKeptSettings[] = {slot::MixLevel, slot::Panning, slot::NoteLength, slot::ShuffleEnable};

/// The library that MIDI chooses from.
CPresetList& Library(KVSynth& synth)
{
    return synth.engine->selectedChannel < kSamplerChannels ? *synth.samplerPrograms : *synth.synthPrograms;
}

} // namespace

bool KVSynth::SaveProgramFile(const char* path)
{
    const int channel = engine->selectedChannel;
    if (!WriteImageFile(path, MakeImage([&](ByteWriter& out) { WriteChannelChunk(out, *engine, channel); })))
        return false;
    engine->Channel(channel).programPath.Set(EnginePath(path).c_str());
    RefreshEditor();
    return true;
}

bool KVSynth::LoadProgramFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image, kChannelChunkBytes)) return false; // what may follow is nobody's
    const std::string file = EnginePath(path);
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->SetGrooveFolders(std::string(FolderOf(file)).c_str());
        float kept[std::size(kKeptSettings)]; // as shown: an edited step's locks included
        for (std::size_t n = 0; n < std::size(kept); ++n) kept[n] = engine->GetChannelParameter(kKeptSettings[n]);
        const int channel = engine->selectedChannel;
        const bool loaded = engine->LoadChannelChunk(image.bytes.get(), image.size, channel);
        for (std::size_t n = 0; n < std::size(kept); ++n) engine->SetChannelParameter(kKeptSettings[n], kept[n]);
        if (!loaded) return false;
        engine->Channel(channel).programPath.Set(file.c_str());
    }
    ReportParameters();
    RefreshEditor();
    return true;
}

void KVSynth::ProgramChangeReceived(int program)
{
    CPresetList& list = Library(*this);
    if (list.SelectEntry(program)) LoadProgramFile(list.filePath);
}

bool KVSynth::BankSelectReceived(int bank)
{
    CPresetList& list = Library(*this);
    list.SelectFolder(bank);
    LoadProgramFile(list.filePath);
    return true;
}

void KVSynth::ReportParameters()
{
    if (!wrapper) return;
    for (int index = 0; index < param::Count; ++index) wrapper->ParameterAutomated(index, GetParameter(index));
}

void KVSynth::RefreshEditor()
{
    if (CPluginEditor* editor = wrapper ? wrapper->GetEditor() : nullptr) editor->RefreshAll();
}

} // namespace korvane
