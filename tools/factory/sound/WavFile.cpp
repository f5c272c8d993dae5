// Writes sounds as RIFF WAVE files, 24 bit, 44.1 kHz.
#include "factory/sound/WavFile.h"

#include <cstddef>

#include <sndfile.h>

namespace korvane::factory {

namespace {

Buffer Interleaved(const Sound& sound)
{
    Buffer frames;
    for (std::size_t n = 0; n < sound.Frames(); ++n) {
        frames.push_back(sound.left[n]);
        if (sound.Stereo()) frames.push_back(sound.right[n]);
    }
    return frames;
}

} // namespace

bool WriteWav(const std::string& path, const Sound& sound)
{
    SF_INFO info{};
    info.samplerate = static_cast<int>(kRate);
    info.channels = sound.Stereo() ? 2 : 1;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_24;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    if (!file) return false;
    const auto frames = static_cast<sf_count_t>(sound.Frames());
    const bool written = sf_writef_double(file, Interleaved(sound).data(), frames) == frames;
    return sf_close(file) == 0 && written;
}

} // namespace korvane::factory
