// Decoded audio.
#pragma once

#include <cstdint>
#include <memory>

namespace korvane {

/// One audio file as float frames, nominally -1..1, at the file's own rate. Filled once by a reader, then only read.
///
/// After a load each used buffer holds at least numFrames + padFrames floats; what no decoder wrote is 0. Always
/// 0 <= loopStart <= loopEnd <= numFrames.
class CWaveSample {
public:
    static constexpr int kPadFrames = 10; // zero frames after every sample; interpolation reads two of them at most

    CWaveSample() = default;
    virtual ~CWaveSample() = default;

    // The readers look at the contents, not at the name. False for a file that cannot be opened, is of the other
    // kind, breaks its own format or does not fit into memory; numFrames is then 0 unless the file ended before its
    // sound. padFrames is the number of zero frames wanted after the last one.
    //
    // A file that was cut short plays silence for what its sound chunk announces but does not hold. It is refused
    // when the chunk announces more than four times the file and another 1 MiB: such a length is a fault, and no
    // reason to take memory.

    /// RIFF WAVE: integers of 16, 24 or 32 bits or 32-bit floats, mono or stereo. First frame at index 0. A loop counts
    /// only when it follows the sound.
    bool LoadWav(const char* path, int padFrames);

    /// AIFF, uncompressed: integers of 16 or 24 bits, mono or stereo. First frame at index 1, index 0 stays 0. The loop
    /// is the sustain loop. Frames that no sound chunk carries do not count.
    bool LoadAiff(const char* path, int padFrames);

    /// Empty buffers and counts; rate and key stay.
    void Clear();

    std::unique_ptr<float[]> channelData[2]; // left, right; null where unused
    std::int32_t numChannels = 0;            // 1 or 2 after a load
    std::int32_t numFrames = 0;
    double sampleRate = 44100.0; // Hz
    std::int32_t keyField = 48;  // no reader sets it
    std::int32_t loopStart = 0;  // frames
    std::int32_t loopEnd = 0;    // frames, as the file gives it
};

} // namespace korvane
