// A stereo WAV file that exists only when it is whole.
#pragma once

#include <sndfile.h>

#include <string>
#include <vector>

namespace korvane::render {

/// Writes beside its target and takes the target's name at the end. Throws Failure when the disk refuses.
class WavOutput {
public:
    WavOutput(std::string target, double rate, bool integers);
    ~WavOutput();
    WavOutput(WavOutput&& other) noexcept;
    WavOutput(const WavOutput&) = delete;

    void Write(const float* left, const float* right, int frames);
    /// Without it the destructor leaves nothing behind.
    void Finish();

private:
    std::string path, partial;
    SNDFILE* file = nullptr;
    std::vector<float> interleaved;
};

} // namespace korvane::render
