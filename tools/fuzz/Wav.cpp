// A WAV file.
#include "fuzz/Audio.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return korvane::fuzz::TryAudio(&korvane::CWaveSample::LoadWav, {data, data + size});
}
