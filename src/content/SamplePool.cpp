// The audio files in use, each decoded once, and the memory that the engine's voices share.
#include "content/SamplePool.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <utility>

#include "content/CFileStreamer.h"
#include "content/PathText.h"
#include "content/SampleSlot.h"
#include "content/SharedSounds.h"

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

/// A new entry with one user, in no list. Null when memory runs out.
std::unique_ptr<PoolEntry> Read(const char* foundPath, int kind, const FileStamp& stamp)
try {
    auto entry = std::make_unique<PoolEntry>();
    entry->kind = static_cast<std::uint8_t>(kind);
    entry->stamp = stamp;
    SetText(entry->path, foundPath);
    SetText(entry->name, StemOf(foundPath));
    if (kind == kind::Waveform)
        entry->waveTables = SharedWaveTables(foundPath, stamp);
    else
        entry->sample = SharedSample(foundPath, stamp);
    return entry;
} catch (const std::bad_alloc&) {
    return nullptr;
}

/// Takes an entry out of its list, to the front of another one.
void Move(std::unique_ptr<PoolEntry>& from, std::unique_ptr<PoolEntry>& to)
{
    std::unique_ptr<PoolEntry> entry = std::move(from);
    from = std::move(entry->next);
    entry->next = std::move(to);
    to = std::move(entry);
}

} // namespace

SamplePool::SamplePool() : engineTable(CutoffTable()) {}

SamplePool::~SamplePool()
{
    for (auto* list : {&entries, &outdated})
        while (*list) *list = std::move((*list)->next); // one by one: the list may be long
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

PoolEntry* SamplePool::Load(const char* path, int kind)
{
    char found[1024];
    if (!path || !Find(path, kind, found)) return nullptr;
    const FileStamp stamp = StampOf(found);
    std::unique_ptr<PoolEntry>* at = &entries;
    while (*at && ((*at)->kind != kind || std::strcmp((*at)->path, found) != 0)) at = &(*at)->next;
    if (*at && (*at)->stamp == stamp) {
        ++(*at)->refCount;
        return at->get();
    }
    std::unique_ptr<PoolEntry> entry = Read(found, kind, stamp);
    if (!entry) return nullptr;
    if (*at) Move(*at, outdated);
    for (at = &entries; *at;) at = &(*at)->next;
    *at = std::move(entry);
    return at->get();
}

void SamplePool::Release(PoolEntry* entry)
{
    if (!entry || --entry->refCount >= 1) return;
    std::unique_ptr<PoolEntry> gone; // is freed when nobody has to wait any more
    const std::lock_guard guard(readers);
    for (auto* list : {&entries, &outdated})
        for (std::unique_ptr<PoolEntry>* at = list; *at; at = &(*at)->next)
            if (at->get() == entry) return Move(*at, gone);
}

std::shared_ptr<const CWaveSample> SamplePool::SoundOf(const SampleSlot& slot) const
{
    const std::lock_guard guard(readers);
    const PoolEntry* const entry = slot.entry.load(std::memory_order_acquire);
    return entry ? entry->sample : nullptr;
}

SoundUse* SamplePool::Use(const char* path, int kind)
{
    auto use = std::make_unique<SoundUse>();
    if (std::strcmp(path, "!") != 0) use->entry = Load(path, kind);
    return use.release();
}

void SamplePool::Collect()
{
    for (SoundUse* use = returned.TakeAll(); use;) {
        Release(use->entry);
        delete std::exchange(use, use->next);
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
