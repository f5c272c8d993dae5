// Raw sample bytes of a sound chunk into float channels.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>

#include "content/CFileStreamer.h"
#include "content/CWaveSample.h"

namespace korvane {

/// A sound chunk may announce more than the whole file holds, so many times its size and so many bytes; what is missing
/// is silence. More is a fault, and so is what one read cannot take.
inline constexpr std::int64_t kMissingTimes = 4, kMissingBytes = 1 << 20, kLargestChunk = INT32_MAX;

/// Reads `bytes` from the file's position and converts them frame by frame into new buffers of the sample, from index
/// firstIndex on. False, with an empty sample, when memory runs out or the length is impossible.
/// convert  turns the bytes of one value into a float
template <class Convert>
bool ReadFrames(CFileStreamer& file, CWaveSample& sample, std::int64_t bytes, int channels, int valueBytes,
                std::int64_t frames, int padFrames, int firstIndex, Convert convert)
{
    sample.Clear();
    if (bytes > std::min(kLargestChunk, kMissingTimes * file.fileSize + kMissingBytes) || padFrames < firstIndex)
        return false;
    std::unique_ptr<std::uint8_t[]> raw(new (std::nothrow) std::uint8_t[static_cast<std::size_t>(bytes)]);
    if (!raw) return false;
    for (int c = 0; c < channels; ++c) {
        sample.channelData[c].reset(new (std::nothrow) float[static_cast<std::size_t>(frames + padFrames)]());
        if (!sample.channelData[c]) {
            sample.Clear();
            return false;
        }
    }
    file.ReadBlock(raw.get(), static_cast<std::int32_t>(bytes));
    const std::uint8_t* next = raw.get();
    for (std::int64_t n = 0; n < frames; ++n)
        for (int c = 0; c < channels; ++c, next += valueBytes) sample.channelData[c][n + firstIndex] = convert(next);
    return true;
}

inline float FromInt16(std::uint32_t bits) { return static_cast<float>(static_cast<std::int16_t>(bits)) * 0x1p-15f; }
inline float FromInt24(std::uint32_t bits)
{
    return static_cast<float>(static_cast<double>(static_cast<std::int32_t>(bits << 8) >> 8) /
                              8388607.0); // 2^23 - 1: full scale reaches 1
}

} // namespace korvane
