// An audio file, read as a sample and as an oscillator's wave.
#pragma once

#include "content/CWaveSample.h"
#include "content/WaveTables.h"
#include "fuzz/Instrument.h"

namespace korvane::fuzz {

inline int TryAudio(bool (CWaveSample::*load)(const char*, int), const Bytes& file)
{
    static const Content content;
    static std::vector<float> tables(kWaveTableFloats);
    const Limits limits(file.size());
    const std::string path = content.File("input", file);
    CWaveSample sample;
    if (!(sample.*load)(path.c_str(), CWaveSample::kPadFrames)) return 0;
    const auto [start, end, frames] = std::array{sample.loopStart, sample.loopEnd, sample.numFrames};
    Require(0 <= start && start <= end && end <= frames, "a loop that is not in its sample");
    for (int c = 0; frames > 0 && c < sample.numChannels; ++c)
        Require(sample.channelData[c][frames + CWaveSample::kPadFrames - 1] == 0.0f, "sound in the padding");
    Require(BuildWaveTables(path.c_str(), tables.data()), "a sample that is no wave");
    return 0;
}

} // namespace korvane::fuzz
