// A stereo WAV file that exists only when it is whole.
#include "render/WavOutput.h"

#include <unistd.h>

#include <cstdio>
#include <utility>

#include "render/Failure.h"

namespace korvane::render {

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
    if (closed && std::rename(partial.c_str(), path.c_str()) == 0) return;
    std::remove(partial.c_str());
    throw Failure("cannot write '" + path + "'");
}

} // namespace korvane::render
