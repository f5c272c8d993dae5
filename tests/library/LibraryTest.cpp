// The factory content: every file loads, sounds, and is like no other. The bundle is copied away first, so nothing may
// depend on where it was made.
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <set>

#include "content/CWaveSample.h"
#include "factory/sound/Synthesis.h"
#include "framework/ParameterTable.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

using Mix = std::array<std::vector<float>, 28>; // of every output, the main mix first

constexpr double kRate = 44100.0;
/// Third octaves from 32 Hz to 16 kHz in four spans of the note, in dB below the loudest of them, down to -60.
using Print = std::vector<double>;

Print PrintOf(const Mix& mix)
{
    Print print;
    for (int band = 0; band < 28; ++band) {
        factory::Filter filter(factory::Pass::Band, 31.5 * std::exp2(band / 3.0), 4.3);
        std::size_t n = 0;
        for (const double span : {0.08, 0.22, 0.5, 1.2}) { // seconds
            double energy = 1e-30;
            for (const std::size_t end = n + static_cast<std::size_t>(span * kRate); n < end; ++n) {
                const double x = filter.Step(static_cast<double>(mix[0][n]) + static_cast<double>(mix[1][n]));
                energy += x * x;
            }
            print.push_back(10.0 * std::log10(energy / span));
        }
    }
    const double loudest = *std::max_element(print.begin(), print.end());
    for (double& level : print) level = std::max(level - loudest, -60.0);
    return print;
}

/// Mean of a sound, or of its square.
double Mean(const std::vector<float>& samples, bool square = false)
{
    double sum = 0.0;
    for (const float x : samples) sum += static_cast<double>(square ? x * x : x);
    return sum / static_cast<double>(samples.size());
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
        Engine().ResetGroove();
    }

    std::vector<fs::path> Files(const char* folder) const
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder))
            if (entry.is_regular_file()) files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        return files;
    }

    int FilesInUse()
    {
        int count = 0;
        for (int n = 0; n < kChannels * kSampleSlots; ++n)
            count += !Engine().Channel(n % kChannels).sound.sampleSlots[n / kChannels].path.Empty();
        return count;
    }

    /// What the instrument plays, which has to be good. No file that it asks for may be missing.
    /// release  when the key goes up
    Mix Play(double seconds, double release = -1.0)
    {
        const int asked = FilesInUse();
        Mix mix;
        const int frames = static_cast<int>(seconds * kRate);
        for (auto& side : mix) side.resize(frames);
        for (int at = 0; at < frames; at += 441) {
            std::array<float*, 28> outputs;
            for (std::size_t n = 0; n < 28; ++n) outputs[n] = &mix[n][at];
            if (at == static_cast<int>(release * kRate)) Synth().QueueEvent(0x80, 36, 0, 0, 0);
            Synth().ProcessBlock(nullptr, outputs.data(), std::min(441, frames - at), true);
        }
        EXPECT_EQ(FilesInUse(), asked) << "a file is missing";
        EXPECT_LT(std::max(std::fabs(Mean(mix[0])), std::fabs(Mean(mix[1]))), 0.003) << "DC, or no number";
        EXPECT_GT(Peak(mix[0]), 0.02f) << "silent";
        EXPECT_LT(std::max(Peak(mix[0]), Peak(mix[1])), 1.0f) << "clips";
        return mix;
    }
};

TEST_F(Library, IsComplete)
{
    std::set<fs::path> names;
    // clang-format off
    for (const auto& [folder, atLeast] : {std::pair{"Drum Samples", 60u}, {"Synth Waves", 48u}, {"Synth Programs", 70u},
                                          {"Sampler Programs", 40u}, {"Parts", 12u}, {"Grooves", 8u}}) {
        // clang-format on
        const std::vector<fs::path> files = Files(folder);
        EXPECT_GE(files.size(), atLeast) << folder;
        for (const fs::path& file : files) {
            EXPECT_TRUE(names.insert(file.filename()).second) << file << " has a twin";
            const std::string bytes = ReadBytes<std::string>(file);
            for (const std::string& place : {std::string(KORVANE_SOURCE), EnginePath(KORVANE_SOURCE)})
                EXPECT_EQ(bytes.find(place), std::string::npos) << file << " knows where it was made";
        }
    }
}

TEST_F(Library, SamplesAreFitForUse)
{
    const auto read = [](const fs::path& file) { // of each side
        CWaveSample sample;
        EXPECT_TRUE(sample.LoadWav(file.c_str(), 10) && sample.sampleRate == kRate);
        std::vector<std::vector<float>> sides;
        for (int c = 0; c < sample.numChannels; ++c)
            sides.emplace_back(&sample.channelData[c][0], &sample.channelData[c][sample.numFrames]);
        return sides;
    };
    for (const fs::path& file : Files("Drum Samples")) {
        SCOPED_TRACE(file.filename());
        float peak = 0.0f;
        for (const std::vector<float>& side : read(file)) {
            ASSERT_TRUE(!side.empty() && static_cast<double>(side.size()) <= 3 * kRate && side.back() == 0.0f);
            EXPECT_LT(std::fabs(Mean(side)), 1e-4);
            peak = std::max(peak, Peak(side));
        }
        EXPECT_TRUE(0.5f < peak && peak < 0.967f) << peak;
    }
    for (const fs::path& file : Files("Synth Waves")) {
        SCOPED_TRACE(file.filename());
        const std::vector<float> wave = read(file).at(0);
        ASSERT_EQ(wave.size(), 2048u);
        double sine = 0.0, cosine = 0.0;
        for (int n = 0; n < 2048; ++n) {
            const double x = static_cast<double>(wave[n]), angle = 2.0 * std::numbers::pi * n / 2048.0;
            sine += x * std::sin(angle);
            cosine += x * std::cos(angle);
        }
        EXPECT_TRUE(std::fabs(Mean(wave)) < 1e-6 && Peak(wave) > 0.99f) << Mean(wave);
        EXPECT_NEAR(std::atan2(cosine, sine), 0.0, 1e-3) << "the first harmonic is a sine";
    }
}

TEST_F(Library, ProgramsSoundEachInItsOwnWay)
{
    std::map<std::string, Print> prints;
    for (const auto& [folder, channel] : {std::pair{"Synth Programs", kSamplerChannels}, {"Sampler Programs", 0}}) {
        for (const fs::path& file : Files(folder)) {
            SCOPED_TRACE(file.filename());
            Engine().ResetGroove();
            Synth().Reset();
            Engine().selection.selectedChannel = channel;
            ASSERT_TRUE(Synth().LoadProgramFile(EnginePath(file.c_str()).c_str()));
            Synth().QueueEvent(0x90, 36, 100, 0, 0);
            const Print print = PrintOf(Play(2.0, 1.0));
            for (const auto& [name, other] : prints) {
                double distance = 0.0;
                for (std::size_t n = 0; n < print.size(); ++n) distance += std::fabs(print[n] - other[n]);
                EXPECT_GT(distance, 100.0) << "sounds like " << name;
            }
            prints[file.stem()] = print;
        }
    }
}

TEST_F(Library, GroovesAndPartsPlay)
{
    std::vector<fs::path> files = Files("Grooves");
    files.push_back(root / "default.kvprj");
    const std::ptrdiff_t grooves = std::ssize(files);
    for (const fs::path& part : Files("Parts")) files.push_back(part);
    for (std::ptrdiff_t n = 0; n < std::ssize(files); ++n) {
        const std::string path = EnginePath(files[n].c_str()), name = files[n].stem();
        SCOPED_TRACE(name);
        Renew();
        Engine().selection.selectedChannel = ReadBytes(files[n])[1] == 'D' ? 3 : 10;
        ASSERT_TRUE(n < grooves ? Synth().LoadGrooveFile(path.c_str()) : Synth().LoadPartFile(path.c_str()));
        const double tempo = n < grooves && name != "default" ? std::stod(name.substr(name.rfind(' ') + 1)) : 120.0;
        Synth().SetTempo(tempo);
        Synth().SetPlaying(true);
        const Mix mix = Play(16 * 60.0 / tempo);
        if (n >= grooves) continue;
        EXPECT_NEAR(10.0 * std::log10(Mean(mix[0], true)), -16.0, 5.0);
        std::vector<double> heard;
        for (int c = 0; c < kChannels; ++c) heard.push_back(Mean(mix[2 + 2 * c], true) + Mean(mix[3 + 2 * c], true));
        const double loudest = *std::max_element(heard.begin(), heard.end());
        for (int c = 0; c < kChannels; ++c) {
            const auto* steps = Engine().score.Current().steps[c];
            if (std::all_of(steps, steps + 4 * kStepsPerBar, [](const auto& step) { return step == 0u; })) continue;
            EXPECT_GT(heard[c], 1e-3 * loudest) << "channel " << c << " is buried";
        }
    }
}

} // namespace
} // namespace korvane
