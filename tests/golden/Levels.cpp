// Peak and RMS of every output, by tenths of a second, and how they are kept in a file.
#include "golden/Levels.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace korvane {
namespace {

constexpr std::uint64_t kPrime = 1099511628211u;
constexpr double kSilence = 1.0e-6; // -120 dB: below it a level may move as it likes

void Mix(std::uint64_t& hash, std::uint64_t word) { hash = (hash ^ word) * kPrime; }

/// Six digits, as the file has them.
std::string Text(double level)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", level);
    return text;
}

/// What is not a number has moved, too.
bool Moved(double before, double after, double tolerance)
{
    return !(std::fabs(after - before) <= tolerance * std::max(std::fabs(before), kSilence));
}

std::string Step(const char* what, double before, double after)
{
    std::string text = std::string(what) + " " + Text(before) + " became " + Text(after);
    char decibels[32];
    std::snprintf(decibels, sizeof decibels, " (%+.3g dB)", 20.0 * std::log10(after / before));
    return before > 0.0 && after > 0.0 ? text + decibels : text;
}

} // namespace

void Levels::Add(std::size_t n, const float* samples, int frames)
{
    double peak = 0.0, energy = 0.0;
    for (int i = 0; i < frames; ++i) {
        const double x = static_cast<double>(samples[i]);
        peak = std::max(peak, std::fabs(x));
        energy += x * x;
        Mix(hash, std::bit_cast<std::uint32_t>(samples[i]));
    }
    outputs[n].tenths.push_back({peak, std::sqrt(energy / frames)});
}

void Levels::Save(const std::filesystem::path& path) const
{
    std::ofstream file(path);
    file << "Peak and RMS of each output in every tenth of a second, full scale 1.\n";
    file << "hash " << std::hex << hash << "\nmaths " << maths << "\n";
    for (const Output& output : outputs) {
        file << output.name << ":";
        for (const Tenth& tenth : output.tenths) file << " " << Text(tenth.peak) << " " << Text(tenth.rms);
        file << "\n";
    }
}

Levels Levels::Load(const std::filesystem::path& path)
{
    Levels levels;
    std::ifstream file(path);
    std::string line, word;
    std::getline(file, line);
    file >> word >> std::hex >> levels.hash >> word >> levels.maths;
    std::getline(file, line);
    while (std::getline(file, line)) {
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos) return {};
        Output output{line.substr(0, colon), {}};
        std::istringstream numbers(line.substr(colon + 1));
        for (Tenth tenth; numbers >> tenth.peak >> tenth.rms;) output.tenths.push_back(tenth);
        levels.outputs.push_back(output);
    }
    return levels;
}

std::uint64_t MathsLibrary()
{
    std::uint64_t hash = 0;
    for (int n = 1; n <= 10000; ++n) {
        const volatile double x = 0.001 * n; // computed here and now, not by the compiler
        for (const double y : {std::sin(x), std::cos(x), std::tan(x), std::sinh(x), std::log2(x), std::pow(2.0, x),
                               std::pow(10.0, -x), std::pow(x, 4.3)})
            Mix(hash, std::bit_cast<std::uint64_t>(y));
    }
    return hash;
}

std::string Difference(const Levels& kept, const Levels& now)
{
    if (kept.outputs.size() != now.outputs.size()) return "no levels of these outputs are kept";
    const double tolerance = kept.maths == now.maths ? 1.0e-5 : 0.0058; // the sixth digit; 0.05 dB
    std::size_t first = ~std::size_t{0}, moved = 0;
    std::string what;
    for (std::size_t n = 0; n < kept.outputs.size(); ++n) {
        const auto &before = kept.outputs[n].tenths, &after = now.outputs[n].tenths;
        if (kept.outputs[n].name != now.outputs[n].name || before.size() != after.size())
            return kept.outputs[n].name + " has another name or length";
        std::size_t t = 0;
        const auto moves = [&] {
            return Moved(before[t].peak, after[t].peak, tolerance) || Moved(before[t].rms, after[t].rms, tolerance);
        };
        while (t < before.size() && !moves()) ++t;
        moved += t < before.size();
        if (t == before.size() || t > first) continue; // of several, the last: a channel rather than the mix of all
        first = t;
        what = kept.outputs[n].name + " moved first, at " + Text(0.1 * static_cast<double>(t)) +
               " s: " + Step("peak", before[t].peak, after[t].peak) + ", " + Step("RMS", before[t].rms, after[t].rms);
    }
    if (moved > 0) return what + "; outputs that moved: " + std::to_string(moved);
    if (kept.maths == now.maths && kept.hash != now.hash) return "bits moved, but no level in its first five digits";
    return "";
}

} // namespace korvane
