// Peak and RMS of every output, by tenths of a second, and how they are kept in a file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace korvane {

/// What a rendering sounded like, and a hash of its bits.
struct Levels {
    struct Tenth {
        double peak = 0.0, rms = 0.0; // full scale 1
    };
    struct Output {
        std::string name;
        std::vector<Tenth> tenths;
    };
    std::vector<Output> outputs;
    std::uint64_t hash = 14695981039346656037u; // FNV-1a over the 32-bit words of the samples
    std::uint64_t maths = 0;                    // MathsLibrary() of the machine that rendered

    /// Takes one tenth of a second, `frames` samples, of output n.
    void Add(std::size_t n, const float* samples, int frames);

    void Save(const std::filesystem::path& file) const;
    /// Without outputs when the file is missing or damaged.
    static Levels Load(const std::filesystem::path& file);
};

/// Hash of what this machine's library gives in double precision for the functions that the sound is made with. Their
/// last bit differs between processors with and without fused multiplication; float functions agree everywhere.
std::uint64_t MathsLibrary();

/// What differs, empty when nothing does: the output and tenth of a second that moved first, before and after, and how
/// many outputs moved at all. Bits count where both libraries agree, else levels within 0.05 dB.
std::string Difference(const Levels& kept, const Levels& now);

} // namespace korvane
