// A stereo WAV file that exists only when it is whole.
#include "render/WavOutput.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <utility>

#include "render/Failure.h"

namespace korvane::render {

namespace {

/// The library writes the format of floats without the size of its (empty) extension, which some readers warn of, and
/// leaves space behind it: the one moves into the other. A file laid out in another way stays as it is. False when the
/// disk refuses.
bool CompleteFormat(const std::string& path)
{
    constexpr std::size_t kFormatSize = 16, kExtension = 36, kPad = 48, kPadSize = 52, kEnd = 56;
    std::array<char, kEnd + 2> head{};
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    if (!file.read(head.data(), kEnd)) return file.eof();
    if (head[kFormatSize] != 16 || std::memcmp(&head[kPad], "PAD ", 4) != 0) return true;
    std::copy_backward(&head[kExtension], &head[kEnd], head.end());
    head[kExtension] = head[kExtension + 1] = 0;
    head[kFormatSize] += 2;
    head[kPadSize + 2] -= 2;
    return !!file.seekp(0).write(head.data(), head.size()).flush();
}

} // namespace

WavOutput::WavOutput(std::string target, double rate, bool integers)
    : path(std::move(target)), partial(path + ".part" + std::to_string(getpid()))
{
    SF_INFO info{};
    info.samplerate = static_cast<int>(rate);
    info.channels = 2;
    info.format = SF_FORMAT_WAV | (integers ? SF_FORMAT_PCM_24 : SF_FORMAT_FLOAT);
    file = sf_open(partial.c_str(), SFM_WRITE, &info);
    if (!file) throw Failure("cannot write '" + path + "': " + sf_strerror(nullptr));
    sf_command(file, SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE); // it holds the time: equal renderings, equal files
    sf_command(file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
}

WavOutput::WavOutput(WavOutput&& other) noexcept
    : path(std::move(other.path)), partial(std::move(other.partial)), file(std::exchange(other.file, nullptr))
{
}

WavOutput::~WavOutput()
{
    if (!file) return;
    sf_close(file);
    std::remove(partial.c_str());
}

void WavOutput::Write(const float* left, const float* right, int frames)
{
    interleaved.resize(2 * static_cast<std::size_t>(frames));
    for (std::size_t n = 0; n < static_cast<std::size_t>(frames); ++n) {
        interleaved[2 * n] = left[n];
        interleaved[2 * n + 1] = right[n];
    }
    if (sf_writef_float(file, interleaved.data(), frames) != frames)
        throw Failure("cannot write '" + path + "': " + sf_strerror(file));
}

void WavOutput::Finish()
{
    const bool closed = sf_close(std::exchange(file, nullptr)) == 0;
    if (closed && CompleteFormat(partial) && std::rename(partial.c_str(), path.c_str()) == 0) return;
    std::remove(partial.c_str());
    throw Failure("cannot write '" + path + "'");
}

} // namespace korvane::render
