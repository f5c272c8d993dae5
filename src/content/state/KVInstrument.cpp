// The whole instrument: the synthesizer with its grooves, parts, programs and the host's chunks.
#include "content/state/KVInstrument.h"

#include <cstring>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "content/PathText.h"
#include "content/state/ChannelChunk.h"
#include "content/state/PartImage.h"
#include "content/state/StateImage.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"

namespace korvane {

namespace {

/// What a channel keeps whatever program it plays.
constexpr int kKeptSettings[] = {slot::MixLevel, slot::Panning, slot::NoteLength, slot::ShuffleEnable};

Image MakeState(const GrooveEngine& engine)
{
    return MakeImage([&engine](ByteWriter& out) { WriteState(out, engine); });
}

std::string FolderText(const std::string& path) { return std::string(FolderOf(path)); }
std::string GrooveName(const std::string& path) { return std::string(StemOf(path)); }

} // namespace

KVInstrument::KVInstrument(CPluginWrapper* bridge)
    : KVSynth(bridge), synthPrograms(folders.synthPrograms, "kvsynth"),
      samplerPrograms(folders.samplerPrograms, "kvsmp")
{
    synthPrograms.Refresh();
    samplerPrograms.Refresh();
    for (const char* extension : {"wav", "aif", "aiff"}) waveforms.AddFilter(extension, false);
    waveforms.Scan(folders.synthWaves);
    LoadDefaultGroove();
}

// Grooves and parts

bool KVInstrument::SaveGrooveFile(const char* path)
{
    if (!WriteImageFile(path, MakeState(*engine))) return false;
    grooveName.Set(GrooveName(EnginePath(path)).c_str());
    return true;
}

bool KVInstrument::SaveGrooveWithSamples(const char* path)
{
    if (!WriteImageFile(path, MakeState(*engine))) return false;
    constexpr std::pair<int, const char*> kFolders[] = {{kind::Sample, "Samples"}, {kind::Waveform, "Waveforms"}};
    for (const auto& [fileKind, name] : kFolders) {
        const std::string folder = FolderText(EnginePath(path)) + name;
        if (!CreateFolder(folder.c_str())) continue;
        std::vector<std::string> files;
        {
            ProgramSwitch exclusive(*this); // the list is the audio thread's; blocks need not wait for the copying
            files = engine->samplePool->FilePaths(fileKind);
        }
        SamplePool::CopyFiles(files, folder.c_str());
    }
    return true;
}

bool KVInstrument::LoadGrooveFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    const std::string file = EnginePath(path);
    const std::uint32_t ordered = engine->commands.transport.Pushed(); // the load stops what was started before it
    bool loaded = false;
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->SetGrooveFolders(FolderText(file).c_str());
        ServeOrders(ordered);
        loaded = LoadState(*engine, image.bytes.get(), image.size);
    }
    if (!loaded) return false;
    grooveName.Set(GrooveName(file).c_str());
    ReportParameters();
    RefreshEditor();
    return true;
}

bool KVInstrument::SavePartFile(const char* path)
{
    return WriteImageFile(path, MakeImage([this](ByteWriter& out) { WritePart(out, *engine); }));
}

bool KVInstrument::LoadPartFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    bool loaded = false;
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->SetGrooveFolders(FolderText(EnginePath(path)).c_str());
        const float level = engine->GetChannelParameter(slot::MixLevel); // as shown: an edited step's lock included
        const float panning = engine->GetChannelParameter(slot::Panning);
        loaded = LoadPart(*engine, image.bytes.get(), image.size);
        for (const auto& [base, value] : {std::pair{slot::MixLevel, level}, {slot::Panning, panning}})
            if (engine->GetChannelParameter(base) != value) engine->SetChannelParameter(base, value);
    }
    if (!loaded) return false;
    ReportParameters();
    RefreshEditor();
    return true;
}

void KVInstrument::LoadDefaultGroove()
{
    Image image;
    if (ReadImageFile(folders.defaultGroove, image)) {
        ProgramSwitch exclusive(*this);
        LoadState(*engine, image.bytes.get(), image.size);
    }
    grooveName.Set("Default Groove");
}

// Chunks

std::int32_t KVInstrument::SetProgramChunk(const void* data, std::int32_t size)
{
    const std::uint32_t ordered = engine->commands.transport.Pushed(); // as in LoadGrooveFile
    bool loaded = false;
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->ClearGrooveFolders();
        ServeOrders(ordered);
        loaded = LoadState(*engine, static_cast<const std::uint8_t*>(data), size);
    }
    if (!loaded) return 0;
    RefreshEditor();
    return size;
}

/// Hosts ask for the size, then for the bytes; in between another thread may add locks. A groove that has outgrown the
/// size told is given as it was then.
std::int32_t KVInstrument::GetProgramChunk(void* buffer)
{
    Image image = MakeState(*engine);
    if (!buffer) {
        sizedChunk = std::move(image);
        return sizedChunk.size;
    }
    const Image sized = std::move(sizedChunk);
    sizedChunk = {};
    const Image& given = sized.size > 0 && image.size > sized.size ? sized : image;
    if (given.size > 0) std::memcpy(buffer, given.bytes.get(), static_cast<std::size_t>(given.size));
    return given.size;
}

// Programs

bool KVInstrument::SaveProgramFile(const char* path)
{
    const int channel = engine->selection.selectedChannel;
    if (!WriteImageFile(path, MakeImage([&](ByteWriter& out) { WriteChannelChunk(out, *engine, channel); })))
        return false;
    engine->Channel(channel).programPath.Set(EnginePath(path).c_str());
    RefreshEditor();
    return true;
}

bool KVInstrument::LoadProgramFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image, kChannelChunkBytes)) return false; // what may follow is nobody's
    const std::string file = EnginePath(path);
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->SetGrooveFolders(std::string(FolderOf(file)).c_str());
        float kept[std::size(kKeptSettings)]; // as shown: an edited step's locks included
        for (std::size_t n = 0; n < std::size(kept); ++n) kept[n] = engine->GetChannelParameter(kKeptSettings[n]);
        const int channel = engine->selection.selectedChannel;
        const bool loaded = LoadChannelChunk(*engine, image.bytes.get(), image.size, channel);
        for (std::size_t n = 0; n < std::size(kept); ++n) engine->SetChannelParameter(kKeptSettings[n], kept[n]);
        if (!loaded) return false;
        engine->Channel(channel).programPath.Set(file.c_str());
    }
    ReportParameters();
    RefreshEditor();
    return true;
}

void KVInstrument::ProgramChangeReceived(int program)
{
    CPresetList& list = Library();
    if (list.SelectEntry(program)) LoadProgramFile(list.filePath);
}

bool KVInstrument::BankSelectReceived(int bank)
{
    CPresetList& list = Library();
    list.SelectFolder(bank);
    LoadProgramFile(list.filePath);
    return true;
}

CPresetList& KVInstrument::Library() { return engine->selection.OnSampler() ? samplerPrograms : synthPrograms; }

} // namespace korvane
