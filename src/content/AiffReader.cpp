// AIFF into a sample.
#include <algorithm>
#include <cstring>
#include <map>

#include "content/CFileStreamer.h"
#include "content/CWaveSample.h"
#include "content/SoundData.h"

namespace korvane {

namespace {

constexpr int kMaxMarkers = 1024;               // of a chunk; more are damage
constexpr int kMarkerBudget = 64 * kMaxMarkers; // of a whole file: bounds what damaged chunks cost

struct AiffHeader {
    int channels = 1;
    std::uint32_t frames = 0;
    int bits = 16;
    std::uint32_t rate = 44100;
    bool loop = false;
    int beginMarker = -1, endMarker = -1;
    std::map<int, std::uint32_t> markers; // of the last chunk; of markers with one id the last counts
    int markerBudget = kMarkerBudget;
};

bool ReadCommon(CFileStreamer& file, std::uint32_t size, AiffHeader& header)
{
    constexpr int kCommonBytes = 18;
    if (size < kCommonBytes) return false;
    header.channels = file.ReadWordBigEndian();
    header.frames = file.ReadDwordBigEndian();
    header.bits = file.ReadWordBigEndian();
    const int exponent = std::max(std::min(file.ReadWordBigEndian() & 0xFF, 30), 0);
    header.rate = file.ReadDwordBigEndian() >> (30 - (exponent < 2 ? 1 : exponent));
    return (header.bits == 16 || header.bits == 24) && (header.channels == 1 || header.channels == 2);
}

void ReadMarkers(CFileStreamer& file, AiffHeader& header)
{
    header.markers.clear();
    const int count = std::min<int>(file.ReadWordBigEndian(), kMaxMarkers);
    for (int n = 0; n < count && header.markerBudget > 0 && file.position < file.fileSize; ++n) {
        --header.markerBudget;
        const int id = static_cast<std::int16_t>(file.ReadWordBigEndian());
        header.markers[id] = file.ReadDwordBigEndian();
        const int text = file.ReadByte();
        file.Skip(text | 1); // count byte and text together have an even length
    }
}

bool ReadSound(CFileStreamer& file, CWaveSample& sample, const AiffHeader& header, std::uint32_t size, int padFrames)
{
    if (size < 8) return false;
    const int valueBytes = header.bits / 8;
    const std::int64_t bytes = std::int64_t{header.frames} * valueBytes * header.channels;
    const std::uint32_t offset = file.ReadDwordBigEndian();
    file.ReadDwordBigEndian();
    if (size < bytes + offset + 8) return false;
    if (offset > 0) file.Skip(offset);
    sample.Clear();
    if (header.frames == 0) return true;
    const auto read = [&](auto convert) {
        return ReadFrames(file, sample, bytes, header.channels, valueBytes, header.frames, padFrames, 1, convert);
    };
    if (header.bits == 16)
        return read([](const std::uint8_t* p) { return FromInt16(std::uint32_t{p[0]} << 8 | p[1]); });
    return read(
        [](const std::uint8_t* p) { return FromInt24(std::uint32_t{p[0]} << 16 | std::uint32_t{p[1]} << 8 | p[2]); });
}

} // namespace

bool CWaveSample::LoadAiff(const char* path, int padFrames)
{
    CFileStreamer file;
    char tag[4];
    if (!file.Open(path)) return false;
    file.ReadBlock(tag, 4);
    if (std::memcmp(tag, "FORM", 4) != 0) return false;
    const std::uint32_t formSize = file.ReadDwordBigEndian();
    file.ReadBlock(tag, 4);
    if (std::memcmp(tag, "AIFF", 4) != 0) return false;

    AiffHeader header;
    std::uint32_t soundFrames = 0; // the announced count is valid only together with sound
    bool good = true;
    while (good && static_cast<std::uint32_t>(file.position - 8) < formSize && file.position < file.fileSize) {
        file.ReadBlock(tag, 4);
        const std::uint32_t size = file.ReadDwordBigEndian();
        const std::int64_t data = file.position;
        if (std::memcmp(tag, "COMM", 4) == 0) {
            good = ReadCommon(file, size, header);
        } else if (std::memcmp(tag, "MARK", 4) == 0) {
            ReadMarkers(file, header);
        } else if (std::memcmp(tag, "INST", 4) == 0) {
            constexpr int kInstrumentBytes = 20, kSustainMarkers = 10; // in "INST"
            good = size >= kInstrumentBytes;
            file.Seek(data + kSustainMarkers);
            header.beginMarker = static_cast<std::int16_t>(file.ReadWordBigEndian());
            header.endMarker = static_cast<std::int16_t>(file.ReadWordBigEndian());
            header.loop = true;
        } else if (std::memcmp(tag, "SSND", 4) == 0) {
            good = ReadSound(file, *this, header, size, padFrames);
            soundFrames = header.frames;
        }
        file.Seek((data + size + 1) & ~std::int64_t{1});
    }
    if (!good) {
        Clear();
        return false;
    }
    numChannels = header.channels;
    numFrames = channelData[0] ? static_cast<std::int32_t>(std::min(soundFrames, header.frames)) : 0;
    if (numChannels == 2 && numFrames > 0 && !channelData[1]) numChannels = 1; // the header changed behind its sound
    sampleRate = header.rate;
    std::int64_t start = 0, end = numFrames;
    if (header.loop) {
        if (const auto marker = header.markers.find(header.beginMarker); marker != header.markers.end())
            start = static_cast<std::int32_t>(marker->second); // a position beyond that is below 0
        if (const auto marker = header.markers.find(header.endMarker); marker != header.markers.end())
            end = marker->second;
    }
    loopEnd = static_cast<std::int32_t>(std::min<std::int64_t>(end, numFrames));
    loopStart = static_cast<std::int32_t>(std::clamp<std::int64_t>(start, 0, loopEnd));
    return true;
}

} // namespace korvane
