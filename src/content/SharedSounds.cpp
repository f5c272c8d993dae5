// What decoded files become, once in the process however many instruments use them.
#include "content/SharedSounds.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace korvane {

namespace {

/// The sounds of one kind that somebody uses.
template <class Sound>
class Shelf {
public:
    template <class Decode>
    std::shared_ptr<const Sound> Get(const char* path, const FileStamp& stamp, Decode decode)
    {
        const Key key{path, stamp};
        if (auto known = Find(key)) return known;
        return Keep(key, decode());
    }

private:
    using Key = std::pair<std::string, FileStamp>;

    std::shared_ptr<const Sound> Find(const Key& key)
    {
        const std::lock_guard guard(lock);
        const auto found = sounds.find(key);
        return found == sounds.end() ? nullptr : found->second.lock();
    }
    std::shared_ptr<const Sound> Keep(const Key& key, std::shared_ptr<const Sound> sound)
    {
        const std::lock_guard guard(lock);
        std::erase_if(sounds, [](const auto& row) { return row.second.expired(); });
        std::weak_ptr<const Sound>& row = sounds[key];
        if (auto known = row.lock()) return known; // somebody else was first
        row = sound;
        return sound;
    }

    std::mutex lock;
    std::map<Key, std::weak_ptr<const Sound>> sounds;
};

} // namespace

std::shared_ptr<const float[]> SharedWaveTables(const char* path, const FileStamp& stamp)
{
    static Shelf<float[]> shelf;
    return shelf.Get(path, stamp, [path] {
        auto tables = std::make_unique<float[]>(kWaveTableFloats);
        BuildWaveTables(path, tables.get());
        return std::shared_ptr<const float[]>(std::move(tables));
    });
}

std::shared_ptr<const CWaveSample> SharedSample(const char* path, const FileStamp& stamp)
{
    static Shelf<CWaveSample> shelf;
    return shelf.Get(path, stamp, [path] {
        auto sample = std::make_shared<CWaveSample>();
        if (!sample->LoadWav(path, CWaveSample::kPadFrames)) sample->LoadAiff(path, CWaveSample::kPadFrames);
        return std::shared_ptr<const CWaveSample>(std::move(sample));
    });
}

} // namespace korvane
