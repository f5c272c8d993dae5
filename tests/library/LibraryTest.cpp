// The factory content: every file loads, sounds, and is like no other. The bundle is copied away first, so nothing may
// depend on where it was made.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <numeric>
#include <set>

#include "content/CWaveSample.h"
#include "factory/Synthesis.h"
#include "framework/ParameterTable.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr int kBlock = 441;
constexpr double kRate = 44100.0;

/// The main mix, and how much of it each channel is.
struct Mix {
    std::vector<float> left, right;
    std::array<double, kChannels> energy{};

    float Peak() const
    {
        float peak = 0.0f;
        for (std::size_t n = 0; n < left.size(); ++n)
            peak = std::max(peak, std::max(std::fabs(left[n]), std::fabs(right[n])));
        return peak;
    }
    double Mean() const // of the side that has more
    {
        const auto mean = [](const std::vector<float>& side) {
            return std::fabs(std::accumulate(side.begin(), side.end(), 0.0)) / static_cast<double>(side.size());
        };
        return std::max(mean(left), mean(right));
    }
    double RmsDb() const
    {
        const double sum = std::inner_product(left.begin(), left.end(), left.begin(), 0.0) +
                           std::inner_product(right.begin(), right.end(), right.begin(), 0.0);
        return 10.0 * std::log10(sum / (2.0 * static_cast<double>(left.size())));
    }
    bool Finite() const
    {
        const auto good = [](float x) { return std::isfinite(x); };
        return std::all_of(left.begin(), left.end(), good) && std::all_of(right.begin(), right.end(), good);
    }
};

constexpr double kFloor = -60.0; // dB

/// Third octaves from 32 Hz to 16 kHz in four spans of the note, in dB below the loudest of them.
using Print = std::vector<double>;

Print PrintOf(const Mix& mix)
{
    constexpr std::array<double, 5> kSpans = {0.0, 0.08, 0.3, 0.8, 2.0}; // seconds
    Print print;
    for (int band = 0; band < 28; ++band) {
        factory::Filter filter(factory::Pass::Band, 31.5 * std::exp2(band / 3.0), 4.3);
        std::size_t n = 0;
        for (std::size_t span = 1; span < kSpans.size(); ++span) {
            double energy = 1e-30;
            const auto end = std::min(mix.left.size(), static_cast<std::size_t>(kSpans[span] * kRate));
            for (; n < end; ++n) {
                const double x = filter.Step(static_cast<double>(mix.left[n]) + static_cast<double>(mix.right[n]));
                energy += x * x;
            }
            print.push_back(10.0 * std::log10(energy / (kSpans[span] - kSpans[span - 1])));
        }
    }
    const double loudest = *std::max_element(print.begin(), print.end());
    for (double& level : print) level = std::max(level - loudest, kFloor);
    return print;
}

/// Mean difference in dB where at least one of the two has anything to say.
double Distance(const Print& a, const Print& b)
{
    double sum = 0.0, count = 0.0;
    for (std::size_t n = 0; n < a.size(); ++n) {
        if (a[n] <= kFloor && b[n] <= kFloor) continue;
        sum += std::fabs(a[n] - b[n]);
        count += 1.0;
    }
    return sum / count;
}

class Library : public SynthTest {
protected:
    Library()
    {
        for (const auto& entry : fs::directory_iterator(KORVANE_BUNDLE))
            if (entry.path().extension() != ".so" && entry.path().filename() != "linkmap")
                fs::copy(entry.path(), root / entry.path().filename(), fs::copy_options::recursive);
        Renew();
    }

    /// Nothing of what was played before rings on.
    void Renew()
    {
        Close();
        Synth().SetSampleRate(kRate);
        Synth().SetProgram(0);
    }

    std::vector<fs::path> Files(const char* folder) const
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder))
            if (entry.is_regular_file()) files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        return files;
    }

    Mix Play(double seconds)
    {
        Mix mix;
        std::array<std::vector<float>, 28> outputs;
        std::array<float*, 28> pointers;
        for (std::size_t n = 0; n < 28; ++n) outputs[n].resize(kBlock), pointers[n] = outputs[n].data();
        for (int blocks = static_cast<int>(seconds * kRate / kBlock); blocks > 0; --blocks) {
            Synth().ProcessBlock(nullptr, pointers.data(), kBlock, true);
            mix.left.insert(mix.left.end(), outputs[0].begin(), outputs[0].end());
            mix.right.insert(mix.right.end(), outputs[1].begin(), outputs[1].end());
            for (std::size_t n = 2; n < 28; ++n)
                mix.energy[n / 2 - 1] +=
                    std::inner_product(outputs[n].begin(), outputs[n].end(), outputs[n].begin(), 0.0);
        }
        return mix;
    }

    /// How many files the channels ask for, before a block, or hold, after it.
    int FilesInUse(int first = 0, int last = kChannels - 1)
    {
        int count = 0;
        for (int c = first; c <= last; ++c)
            for (const SampleSlot& slot : Synth().engine->Channel(c).sampleSlots) count += !slot.path.Empty();
        return count;
    }

    void ExpectGoodSound(const Mix& mix)
    {
        EXPECT_TRUE(mix.Finite());
        EXPECT_GT(mix.Peak(), 0.02f) << "silent";
        EXPECT_LT(mix.Peak(), 1.0f) << "clips";
        EXPECT_LT(mix.Mean(), 0.003) << "DC";
    }
};

TEST_F(Library, IsComplete)
{
    const std::tuple<const char*, std::size_t> shelves[] = {{"Drum Samples", 60},   {"Synth Waves", 48},
                                                            {"Synth Programs", 70}, {"Sampler Programs", 40},
                                                            {"Parts", 12},          {"Grooves", 8}};
    std::set<std::string> names;
    for (const auto& [folder, atLeast] : shelves) {
        const std::vector<fs::path> files = Files(folder);
        EXPECT_GE(files.size(), atLeast) << folder;
        for (const fs::path& file : files) {
            EXPECT_TRUE(names.insert(file.filename().string()).second) << file << " has a twin";
            const std::vector<std::uint8_t> bytes = ReadBytes(file);
            for (const std::string& place : {std::string(KORVANE_SOURCE), EnginePath(KORVANE_SOURCE),
                                             std::string(KORVANE_BUNDLE), EnginePath(KORVANE_BUNDLE)})
                EXPECT_EQ(std::search(bytes.begin(), bytes.end(), place.begin(), place.end()), bytes.end())
                    << file << " knows where it was made";
        }
    }
    EXPECT_TRUE(fs::exists(root / "default.kvprj"));
}

TEST_F(Library, SamplesAreFitForUse)
{
    for (const fs::path& file : Files("Drum Samples")) {
        SCOPED_TRACE(file.filename());
        CWaveSample sample;
        ASSERT_TRUE(sample.LoadWav(EnginePath(file.c_str()).c_str(), 10));
        EXPECT_EQ(sample.sampleRate, kRate);
        EXPECT_LE(sample.numFrames, 3 * kRate);
        float peak = 0.0f;
        for (int c = 0; c < sample.numChannels; ++c) {
            const float* data = sample.channelData[c].get();
            double sum = 0.0;
            for (int n = 0; n < sample.numFrames; ++n) {
                peak = std::max(peak, std::fabs(data[n]));
                sum += static_cast<double>(data[n]);
            }
            EXPECT_LT(std::fabs(sum / sample.numFrames), 1e-4);
            EXPECT_EQ(data[sample.numFrames - 1], 0.0f);
        }
        EXPECT_GT(peak, 0.5f);
        EXPECT_LT(peak, 0.967f);
    }
    for (const fs::path& file : Files("Synth Waves")) {
        SCOPED_TRACE(file.filename());
        CWaveSample wave;
        ASSERT_TRUE(wave.LoadWav(EnginePath(file.c_str()).c_str(), 10));
        ASSERT_EQ(wave.numFrames, 2048);
        double mean = 0.0, sine = 0.0, cosine = 0.0;
        float peak = 0.0f;
        for (int n = 0; n < 2048; ++n) {
            const double x = static_cast<double>(wave.channelData[0][n]), angle = 2.0 * std::numbers::pi * n / 2048.0;
            mean += x / 2048.0, sine += x * std::sin(angle), cosine += x * std::cos(angle);
            peak = std::max(peak, std::fabs(wave.channelData[0][n]));
        }
        EXPECT_NEAR(mean, 0.0, 1e-6);
        EXPECT_GT(peak, 0.99f);
        EXPECT_NEAR(std::atan2(cosine, sine), 0.0, 1e-3) << "the first harmonic is a sine";
    }
}

TEST_F(Library, ProgramsSoundEachInItsOwnWay)
{
    std::map<std::string, Print> prints;
    for (const char* folder : {"Synth Programs", "Sampler Programs"}) {
        const int channel = folder[1] == 'y' ? 8 : 0;
        for (const fs::path& file : Files(folder)) {
            SCOPED_TRACE(file.filename());
            Synth().engine->ResetGroove();
            Synth().Reset();
            Synth().engine->selectedChannel = channel;
            ASSERT_TRUE(Synth().LoadProgramFile(EnginePath(file.c_str()).c_str()));
            const int asked = FilesInUse(channel, channel);
            Synth().QueueEvent(0x90, 36, 100, 0, 0);
            Mix mix = Play(1.0);
            EXPECT_EQ(FilesInUse(channel, channel), asked) << "a file is missing";
            Synth().QueueEvent(0x80, 36, 0, 0, 0);
            const Mix tail = Play(1.0);
            mix.left.insert(mix.left.end(), tail.left.begin(), tail.left.end());
            mix.right.insert(mix.right.end(), tail.right.begin(), tail.right.end());
            ExpectGoodSound(mix);
            const Print print = PrintOf(mix);
            for (const auto& [name, other] : prints) EXPECT_GT(Distance(print, other), 1.5) << "sounds like " << name;
            prints[file.stem().string()] = print;
        }
    }
}

TEST_F(Library, GroovesPlay)
{
    std::vector<fs::path> grooves = Files("Grooves");
    grooves.push_back(root / "default.kvprj");
    for (const fs::path& file : grooves) {
        SCOPED_TRACE(file.filename());
        Renew();
        ASSERT_TRUE(Synth().LoadGrooveFile(EnginePath(file.c_str()).c_str()));
        const std::string name = file.stem().string();
        const double tempo = name == "default" ? 120.0 : std::stod(name.substr(name.rfind(' ') + 1));
        const int asked = FilesInUse();
        Synth().SetTempo(tempo);
        Synth().SetPlaying(true);
        const Mix mix = Play(16 * 60.0 / tempo);
        Synth().SetPlaying(false);
        EXPECT_EQ(FilesInUse(), asked) << "a file is missing";
        ExpectGoodSound(mix);
        EXPECT_GT(mix.RmsDb(), -21.0);
        EXPECT_LT(mix.RmsDb(), -11.0);
        const double loudest = *std::max_element(mix.energy.begin(), mix.energy.end());
        const GroovePattern& pattern = Synth().engine->Pattern();
        for (int c = 0; c < kChannels; ++c) {
            const auto* steps = pattern.steps[c];
            if (std::all_of(steps, steps + 4 * kStepsPerBar, [](const auto& step) { return step == 0u; })) continue;
            EXPECT_GT(mix.energy[static_cast<std::size_t>(c)], 1e-3 * loudest) << "channel " << c << " is buried";
        }
    }
}

TEST_F(Library, PartsPlay)
{
    for (const fs::path& file : Files("Parts")) {
        SCOPED_TRACE(file.filename());
        const bool sampler = ReadBytes(file)[1] == 'D';
        Renew();
        Synth().engine->ResetGroove();
        Synth().engine->selectedChannel = sampler ? 3 : 10;
        ASSERT_TRUE(Synth().LoadPartFile(EnginePath(file.c_str()).c_str()));
        const int asked = FilesInUse();
        Synth().SetPlaying(true);
        ExpectGoodSound(Play(4.0));
        Synth().SetPlaying(false);
        EXPECT_EQ(FilesInUse(), asked) << "a file is missing";
    }
}

} // namespace
} // namespace korvane
