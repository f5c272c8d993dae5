// The factory content: every file loads, sounds, and is like no other. The bundle is copied away first, so nothing may
// depend on where it was made.
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

/// The main mix, and how much sound each output pair has, the mix first.
struct Mix {
    std::vector<float> left, right;
    std::array<double, 1 + kChannels> energy{};
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
            for (; n < mix.left.size() && static_cast<double>(n) < kSpans[span] * kRate; ++n) {
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
        sum += std::fabs(a[n] - b[n]);
        count += a[n] > kFloor || b[n] > kFloor;
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

    /// Nothing of what was played before rings on, nothing stands in the groove.
    void Renew()
    {
        Close();
        Synth().SetSampleRate(kRate);
        Synth().SetProgram(0);
        Synth().engine->ResetGroove();
    }

    std::vector<fs::path> Files(const char* folder) const
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder))
            if (entry.is_regular_file()) files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        return files;
    }

    /// Appends what the instrument plays. No file that it asks for may be missing.
    void Play(double seconds, Mix& mix)
    {
        const auto filesInUse = [this] {
            int count = 0;
            for (int c = 0; c < kChannels; ++c)
                for (const SampleSlot& slot : Synth().engine->Channel(c).sampleSlots) count += !slot.path.Empty();
            return count;
        };
        const int asked = filesInUse();
        std::array<std::vector<float>, 28> outputs;
        std::array<float*, 28> pointers;
        for (std::size_t n = 0; n < 28; ++n) outputs[n].resize(kBlock), pointers[n] = outputs[n].data();
        for (int blocks = static_cast<int>(seconds * kRate / kBlock); blocks > 0; --blocks) {
            Synth().ProcessBlock(nullptr, pointers.data(), kBlock, true);
            mix.left.insert(mix.left.end(), outputs[0].begin(), outputs[0].end());
            mix.right.insert(mix.right.end(), outputs[1].begin(), outputs[1].end());
            for (std::size_t n = 0; n < 28; ++n)
                for (const float x : outputs[n]) mix.energy[n / 2] += static_cast<double>(x) * static_cast<double>(x);
        }
        EXPECT_EQ(filesInUse(), asked) << "a file is missing";
    }

    static void ExpectGoodSound(const Mix& mix)
    {
        float peak = 0.0f;
        for (const auto& side : {mix.left, mix.right}) {
            for (const float x : side) peak = std::max(peak, std::fabs(x));
            const double mean = std::accumulate(side.begin(), side.end(), 0.0) / static_cast<double>(side.size());
            EXPECT_LT(std::fabs(mean), 0.003) << "DC, or no number";
        }
        EXPECT_GT(peak, 0.02f) << "silent";
        EXPECT_LT(peak, 1.0f) << "clips";
    }
};

TEST_F(Library, IsComplete)
{
    const std::string places[] = {KORVANE_SOURCE, EnginePath(KORVANE_SOURCE), KORVANE_BUNDLE,
                                  EnginePath(KORVANE_BUNDLE)};
    std::set<std::string> names;
    // clang-format off
    for (const auto& [folder, atLeast] : {std::pair{"Drum Samples", 60u}, {"Synth Waves", 48u}, {"Synth Programs", 70u},
                                          {"Sampler Programs", 40u}, {"Parts", 12u}, {"Grooves", 8u}}) {
        // clang-format on
        const std::vector<fs::path> files = Files(folder);
        EXPECT_GE(files.size(), atLeast) << folder;
        for (const fs::path& file : files) {
            EXPECT_TRUE(names.insert(file.filename().string()).second) << file << " has a twin";
            const std::vector<std::uint8_t> bytes = ReadBytes(file);
            for (const std::string& place : places)
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
        ASSERT_TRUE(sample.LoadWav(file.c_str(), 10));
        EXPECT_EQ(sample.sampleRate, kRate);
        EXPECT_LE(sample.numFrames, 3 * kRate);
        float peak = 0.0f;
        for (int c = 0; c < sample.numChannels; ++c) {
            const float *data = sample.channelData[c].get(), *end = data + sample.numFrames;
            EXPECT_LT(std::fabs(std::accumulate(data, end, 0.0) / sample.numFrames), 1e-4);
            EXPECT_EQ(end[-1], 0.0f);
            for (; data < end; ++data) peak = std::max(peak, std::fabs(*data));
        }
        EXPECT_GT(peak, 0.5f);
        EXPECT_LT(peak, 0.967f);
    }
    for (const fs::path& file : Files("Synth Waves")) {
        SCOPED_TRACE(file.filename());
        CWaveSample wave;
        ASSERT_TRUE(wave.LoadWav(file.c_str(), 10) && wave.numFrames == 2048);
        double mean = 0.0, sine = 0.0, cosine = 0.0, peak = 0.0;
        for (int n = 0; n < 2048; ++n) {
            const double x = static_cast<double>(wave.channelData[0][n]), angle = 2.0 * std::numbers::pi * n / 2048.0;
            mean += x / 2048.0, sine += x * std::sin(angle), cosine += x * std::cos(angle);
            peak = std::max(peak, std::fabs(x));
        }
        EXPECT_NEAR(mean, 0.0, 1e-6);
        EXPECT_GT(peak, 0.99);
        EXPECT_NEAR(std::atan2(cosine, sine), 0.0, 1e-3) << "the first harmonic is a sine";
    }
}

TEST_F(Library, ProgramsSoundEachInItsOwnWay)
{
    std::map<std::string, Print> prints;
    for (const auto& [folder, channel] : {std::pair{"Synth Programs", kSamplerChannels}, {"Sampler Programs", 0}}) {
        for (const fs::path& file : Files(folder)) {
            SCOPED_TRACE(file.filename());
            Synth().engine->ResetGroove();
            Synth().Reset();
            Synth().engine->selectedChannel = channel;
            ASSERT_TRUE(Synth().LoadProgramFile(EnginePath(file.c_str()).c_str()));
            Mix mix;
            Synth().QueueEvent(0x90, 36, 100, 0, 0);
            Play(1.0, mix);
            Synth().QueueEvent(0x80, 36, 0, 0, 0);
            Play(1.0, mix);
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
        Mix mix;
        Synth().SetTempo(tempo);
        Synth().SetPlaying(true);
        Play(16 * 60.0 / tempo, mix);
        ExpectGoodSound(mix);
        const double rmsDb = 10.0 * std::log10(mix.energy[0] / (2.0 * static_cast<double>(mix.left.size())));
        EXPECT_NEAR(rmsDb, -16.0, 5.0);
        const double loudest = *std::max_element(mix.energy.begin() + 1, mix.energy.end());
        for (int c = 0; c < kChannels; ++c) {
            const auto* steps = Synth().engine->Pattern().steps[c];
            if (std::all_of(steps, steps + 4 * kStepsPerBar, [](const auto& step) { return step == 0u; })) continue;
            EXPECT_GT(mix.energy[static_cast<std::size_t>(1 + c)], 1e-3 * loudest) << "channel " << c << " is buried";
        }
    }
}

TEST_F(Library, PartsPlay)
{
    for (const fs::path& file : Files("Parts")) {
        SCOPED_TRACE(file.filename());
        Renew();
        Synth().engine->selectedChannel = ReadBytes(file)[1] == 'D' ? 3 : 10;
        ASSERT_TRUE(Synth().LoadPartFile(EnginePath(file.c_str()).c_str()));
        Mix mix;
        Synth().SetPlaying(true);
        Play(4.0, mix);
        ExpectGoodSound(mix);
    }
}

} // namespace
} // namespace korvane
