// Writes sounds as RIFF WAVE files, 24 bit, 44.1 kHz.
#include "factory/sound/WavFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <vector>

namespace korvane::factory {

namespace {

constexpr std::uint32_t kBytes = 3; // of a sample
constexpr double kFullScale = 8388607.0;

void Put(std::vector<char>& out, std::uint32_t value, int bytes)
{
    for (int n = 0; n < bytes; ++n) out.push_back(static_cast<char>(value >> (8 * n) & 0xFFu));
}

void PutTag(std::vector<char>& out, const char* tag) { out.insert(out.end(), tag, tag + 4); }

void PutSample(std::vector<char>& out, double value)
{
    Put(out, static_cast<std::uint32_t>(std::lround(std::clamp(value, -1.0, 1.0) * kFullScale)), kBytes);
}

} // namespace

bool WriteWav(const std::string& path, const Sound& sound)
{
    constexpr std::uint32_t kWaveRate = static_cast<std::uint32_t>(kRate), kFormatBytes = 16, kPcm = 1;
    const std::uint32_t channels = sound.Stereo() ? 2 : 1;
    const std::uint32_t block = channels * kBytes;
    const std::uint32_t size = static_cast<std::uint32_t>(sound.Frames()) * block;
    std::vector<char> out;
    PutTag(out, "RIFF"), Put(out, 4 + 8 + kFormatBytes + 8 + size + size % 2, 4), PutTag(out, "WAVE");
    PutTag(out, "fmt "), Put(out, kFormatBytes, 4);
    Put(out, kPcm, 2), Put(out, channels, 2), Put(out, kWaveRate, 4), Put(out, kWaveRate * block, 4);
    Put(out, block, 2), Put(out, kBytes * 8, 2);
    PutTag(out, "data"), Put(out, size, 4);
    for (std::size_t n = 0; n < sound.Frames(); ++n) {
        PutSample(out, sound.left[n]);
        if (sound.Stereo()) PutSample(out, sound.right[n]);
    }
    if (size % 2) Put(out, 0, 1); // chunks end on even offsets
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    return file.write(out.data(), static_cast<std::streamsize>(out.size())) && file.flush();
}

} // namespace korvane::factory
