// The audio files in use, each decoded once, and the memory that the engine's voices share.
#include "content/SamplePool.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>

#include "content/CFileStreamer.h"
#include "content/PathText.h"
#include "platform/Files.h"

namespace korvane {

namespace {

constexpr int kCopyBytes = 65536; // at a time

bool CopyFile(const char* from, const char* to)
{
    CFileStreamer source, target;
    if (!source.Open(from) || !target.Create(to)) return false;
    std::vector<char> block(kCopyBytes);
    for (std::int32_t left = source.fileSize; left > 0;) {
        const std::int32_t count = std::min(left, kCopyBytes);
        source.ReadBlock(block.data(), count);
        if (!target.Write(block.data(), count)) return false;
        left -= count;
    }
    return true;
}

} // namespace

SamplePool::SamplePool() : engineTable(CutoffTable()) {}

SamplePool::~SamplePool()
{
    while (entries) entries = std::move(entries->next); // one by one: the list may be long
}

bool SamplePool::Find(const char* path, int kind, char (&found)[1024]) const
{
    const auto backslashes = [](char* text) { std::replace(text, text + std::strlen(text), '/', '\\'); };
    char wanted[1024];
    SetText(wanted, path);
    backslashes(wanted);
    char grooveFolder[1024];
    (kind == kind::Sample ? grooveSampleFolder : grooveWaveFolder).Get(grooveFolder);
    backslashes(grooveFolder);
    const char* slash = std::strrchr(wanted, '\\');
    const char* name = slash ? slash + 1 : "";

    SetText(found, wanted);
    if (FileExists(found)) return true;
    for (const char* folder :
         {static_cast<const char*>(grooveFolder), kind == kind::Sample ? sampleFolder : waveFolder}) {
        if (*folder == '\0') continue;
        const int length = std::snprintf(found, sizeof found, "%s\\%s", folder, name);
        if (length < static_cast<int>(sizeof found) && FileExists(found)) return true;
    }
    return false;
}

std::unique_ptr<PoolEntry> SamplePool::Decode(const char* foundPath, int kind)
{
    std::unique_ptr<PoolEntry> entry(new (std::nothrow) PoolEntry);
    if (!entry) return nullptr;
    entry->kind = static_cast<std::uint8_t>(kind);
    SetText(entry->path, foundPath);
    SetText(entry->name, StemOf(foundPath));
    if (kind == kind::Waveform) {
        entry->waveTables.reset(new (std::nothrow) float[kWaveTableFloats]());
        if (!entry->waveTables) return nullptr;
        BuildWaveTables(foundPath, entry->waveTables.get());
    } else {
        entry->sample.reset(new (std::nothrow) CWaveSample);
        if (!entry->sample) return nullptr;
        if (!entry->sample->LoadWav(foundPath, CWaveSample::kPadFrames))
            entry->sample->LoadAiff(foundPath, CWaveSample::kPadFrames);
    }
    return entry;
}

PoolEntry* SamplePool::Load(const char* path, int kind)
{
    char found[1024];
    if (!path || !Find(path, kind, found)) return nullptr;
    std::unique_ptr<PoolEntry>* end = &entries;
    for (; *end; end = &(*end)->next) {
        if ((*end)->kind != kind || std::strcmp((*end)->path, found) != 0) continue;
        ++(*end)->refCount;
        return end->get();
    }
    *end = Decode(found, kind);
    return end->get();
}

void SamplePool::Release(PoolEntry* entry)
{
    if (!entry || --entry->refCount >= 1) return;
    for (std::unique_ptr<PoolEntry>* at = &entries; *at; at = &(*at)->next) {
        if (at->get() != entry) continue;
        const std::unique_ptr<PoolEntry> gone = std::move(*at);
        *at = std::move(gone->next);
        return;
    }
}

void SamplePool::SetGrooveFolders(const char* folder)
{
    const std::string base(folder);
    grooveWaveFolder.Set((base + "Waveforms\\").c_str());
    grooveSampleFolder.Set((base + "Samples\\").c_str());
}

void SamplePool::ClearGrooveFolders()
{
    grooveWaveFolder.Set("");
    grooveSampleFolder.Set("");
}

std::vector<std::string> SamplePool::FilePaths(int kind) const
{
    std::vector<std::string> paths;
    for (const PoolEntry* entry = entries.get(); entry; entry = entry->next.get())
        if (entry->kind == kind) paths.emplace_back(entry->path);
    return paths;
}

bool SamplePool::CopyFiles(const std::vector<std::string>& paths, const char* folder)
{
    bool all = true;
    for (const std::string& path : paths) {
        const std::string target = std::string(folder) + "\\" + std::string(FileNameOf(path));
        if (SameFile(path.c_str(), target.c_str())) continue; // creating it would empty it
        if (!CopyFile(path.c_str(), target.c_str())) all = false;
    }
    return all;
}

} // namespace korvane
