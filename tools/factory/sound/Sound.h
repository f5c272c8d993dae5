// Sounds in the making, and what brings them into shape for a file.
#pragma once

#include <cstddef>
#include <vector>

namespace korvane::factory {

inline constexpr double kRate = 44100.0; // Hz, of everything made here

using Buffer = std::vector<double>; // one side, full scale 1.0

/// A one-shot. Mono while `right` is empty.
struct Sound {
    Buffer left, right;

    Sound() = default;
    Sound(Buffer mono) : left(std::move(mono)) {}
    Sound(Buffer l, Buffer r) : left(std::move(l)), right(std::move(r)) {}
    bool Stereo() const { return !right.empty(); }
    std::size_t Frames() const { return left.size(); }
};

inline std::size_t FramesOf(double seconds) { return static_cast<std::size_t>(seconds * kRate); }

/// Adds `part` times `gain` from `at` on; `sum` grows as needed.
void Mix(Buffer& sum, const Buffer& part, double gain = 1.0, double atSeconds = 0.0);
void Scale(Buffer& sound, double gain);
double Peak(const Sound& sound);

/// Makes a raw sound fit for a file: no DC, no silent tail, faded to digital silence.
/// peakDb    of the loudest frame, dBFS
/// longest   seconds
Sound Finished(Sound raw, double peakDb, double longest);

} // namespace korvane::factory
