// The audio files in use, each decoded once, and the memory that the engine's voices share.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "content/CWaveSample.h"
#include "content/CutoffTable.h"
#include "content/SoundHandover.h"
#include "content/WaveTables.h"
#include "framework/Limits.h"
#include "platform/Files.h"
#include "platform/SharedText.h"

namespace korvane {

namespace kind {
inline constexpr int Sample = 0;   // a sampler layer's sound
inline constexpr int Waveform = 1; // a synth oscillator's cycle
} // namespace kind

struct SampleSlot;

/// One loaded file. Kind and path together tell entries apart: a file used both ways has two.
struct PoolEntry {
    std::uint8_t inUse = 1;
    std::shared_ptr<const float[]> waveTables; // waveforms: kWaveTableFloats floats; null for samples
    std::shared_ptr<const CWaveSample> sample; // samples; null for waveforms. 0 frames when no reader took the file
    std::uint8_t kind = kind::Sample;
    std::int32_t refCount = 1; // slots that use the entry
    std::unique_ptr<PoolEntry> next;
    char path[1024] = ""; // where the file was found
    char name[256] = "";  // file name without folder and extension, as the editor shows it
    FileStamp stamp;      // of the file when it was read
};

/// The loaded files of one engine, and its block buffers. Owned by GrooveEngine. What the files decode to is shared by
/// all engines of the process, see SharedSounds.
///
/// The list of entries belongs to the loader: Load, Use, Release, Collect and FilePaths are called there, or with
/// nobody else about. The audio thread reads entries that slots use, which stand still.
class SamplePool {
public:
    SamplePool();
    virtual ~SamplePool();
    SamplePool(const SamplePool&) = delete;
    SamplePool& operator=(const SamplePool&) = delete;

    /// Finds, loads or shares a file and counts one more user. A file that no reader takes gives an entry all the same.
    /// One that has changed on disk since it was read is read anew; who uses what it was keeps that. Null when nothing
    /// is found or memory runs out, which leaves the list as it was.
    /// path  '/' or backslash; null gives null
    PoolEntry* Load(const char* path, int kind);

    /// One user less; the last one takes the entry away. Null is nobody's.
    void Release(PoolEntry* entry);

    /// A slot's use of the file, to be offered to it. "!" and a file that is not found make it empty.
    SoundUse* Use(const char* path, int kind);

    /// Frees what slots have returned.
    void Collect();

    /// The sample that a slot of this pool's engine plays; null when there is none. Any thread but the audio thread; it
    /// may have to wait for another reader, or for the loader to take an entry from its list.
    std::shared_ptr<const CWaveSample> SoundOf(const SampleSlot& slot) const;

    /// Looks for the file where it was, then by its name beside the groove, then in the default folder of its kind.
    /// found  receives the first of these paths that can be opened, with backslashes
    bool Find(const char* path, int kind, char (&found)[1024]) const;

    /// The folders "Samples" and "Waveforms" beside a groove, part or program file. Any thread, one at a time.
    /// folder  of that file, with its last backslash
    void SetGrooveFolders(const char* folder);
    void ClearGrooveFolders();

    /// The paths of all files of a kind.
    std::vector<std::string> FilePaths(int kind) const;

    /// FilePaths and CopyFiles in one. Who may not hold up the loader calls them one by one.
    bool CopyFilesTo(const char* folder, int kind) const { return CopyFiles(FilePaths(kind), folder); }

    /// Copies files under their own names, over what is there. One that cannot be read or written is skipped; true when
    /// there was none. Touches no pool: any thread that may wait for the disk.
    static bool CopyFiles(const std::vector<std::string>& paths, const char* folder);

    float* ChannelLeft(int c) { return channelBuffers[c][0]; }  // c 0..12, kMaxRun floats
    float* ChannelRight(int c) { return channelBuffers[c][1]; } // of the channel's mix
    float* Scratch(int parity) { return engineBuffer[parity]; } // 0 left, 1 right: outputs that nobody hears

    const CutoffPair* engineTable;       // kCutoffPairs pairs, the same for every instance
    char sampleFolder[1024] = "";        // default folders, set at construction, no backslash at the end
    char waveFolder[1024] = "";          //
    SharedText<1024> grooveSampleFolder; // beside the groove, with a backslash at the end; empty when none
    SharedText<1024> grooveWaveFolder;   //
    std::unique_ptr<PoolEntry> entries;  // in order of first load
    std::unique_ptr<PoolEntry> outdated; // still in use; their files have changed
    SoundReturns returned;               // by whoever takes offers
    mutable std::mutex readers;          // of entries, but for loader and audio thread; see SoundHandover.h

    // Audio thread only.
    // A line apart in the cache's sets, which rows of equal distance would crowd.
    alignas(64) float channelBuffers[kChannels][2][kMaxRun + 16] = {};
    alignas(64) float engineBuffer[2][kMaxRun] = {};
    alignas(64) const float silentTable[kWaveTablePoints] = {}; // what an oscillator without a waveform reads
};

} // namespace korvane
