// Groove and part files, the host's chunks and the groove of the start-up.
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "content/PathText.h"
#include "content/state/ImageFile.h"
#include "content/state/ImageLayout.h"
#include "engine/KVSynth.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"

namespace korvane {

namespace {

Image MakeState(const GrooveEngine& engine)
{
    return MakeImage([&engine](ByteWriter& out) { WriteState(out, engine); });
}

std::string FolderText(const std::string& path) { return std::string(FolderOf(path)); }
std::string GrooveName(const std::string& path) { return std::string(StemOf(path)); }

} // namespace

bool KVSynth::SaveGrooveFile(const char* path)
{
    if (!WriteImageFile(path, MakeState(*engine))) return false;
    grooveName.Set(GrooveName(EnginePath(path)).c_str());
    return true;
}

bool KVSynth::SaveGrooveWithSamples(const char* path)
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

bool KVSynth::LoadGrooveFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    const std::string file = EnginePath(path);
    bool loaded = false;
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->SetGrooveFolders(FolderText(file).c_str());
        loaded = engine->LoadState(image.bytes.get(), image.size);
    }
    if (!loaded) return false;
    grooveName.Set(GrooveName(file).c_str());
    ReportParameters();
    RefreshEditor();
    return true;
}

bool KVSynth::SavePartFile(const char* path)
{
    return WriteImageFile(path, MakeImage([this](ByteWriter& out) { WritePart(out, *engine); }));
}

bool KVSynth::LoadPartFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    bool loaded = false;
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->SetGrooveFolders(FolderText(EnginePath(path)).c_str());
        const float level = engine->GetChannelParameter(slot::MixLevel); // as shown: an edited step's lock included
        const float panning = engine->GetChannelParameter(slot::Panning);
        loaded = engine->LoadPart(image.bytes.get(), image.size);
        for (const auto& [base, value] : {std::pair{slot::MixLevel, level}, {slot::Panning, panning}})
            if (engine->GetChannelParameter(base) != value) engine->SetChannelParameter(base, value);
    }
    if (!loaded) return false;
    ReportParameters();
    RefreshEditor();
    return true;
}

void KVSynth::LoadDefaultGroove()
{
    Image image;
    if (ReadImageFile(folders.defaultGroove, image)) {
        ProgramSwitch exclusive(*this);
        engine->LoadState(image.bytes.get(), image.size);
    }
    grooveName.Set("Default Groove");
}

std::int32_t KVSynth::SetProgramChunk(const void* data, std::int32_t size)
{
    bool loaded = false;
    {
        ProgramSwitch exclusive(*this);
        engine->samplePool->ClearGrooveFolders();
        loaded = engine->LoadState(static_cast<const std::uint8_t*>(data), size);
    }
    if (!loaded) return 0;
    RefreshEditor();
    return size;
}

std::int32_t KVSynth::SetBankChunk(const void* data, std::int32_t size) { return SetProgramChunk(data, size); }

/// Hosts ask for the size, then for the bytes; in between another thread may add locks. A groove that has outgrown the
/// size told is given as it was then.
std::int32_t KVSynth::GetProgramChunk(void* buffer)
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

std::int32_t KVSynth::GetBankChunk(void* buffer) { return GetProgramChunk(buffer); }

} // namespace korvane
