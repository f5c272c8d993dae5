// The plug-in as hosts get it: its file, its clock, its bytes.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>

#include "engine/GrooveEngine.h"
#include "framework/ParameterTable.h"
#include "render/Failure.h"
#include "render/PluginHost.h"
#include "support/ContentRoot.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using render::PluginHost;
using State = std::vector<std::uint8_t>;

const std::string kPlugin = std::string(KORVANE_BUNDLE) + "/korvane.so";

struct PluginTest : testing::Test {
    const ContentRoot root;
    const fs::path& folder = root.path;

    /// 64 frames of half scale: a sound whose first frame is not silent and that ends before the next step.
    std::string Click() const
    {
        const std::uint8_t header[] = {'R', 'I', 'F', 'F', 164, 0, 0,   0,   'W', 'A',  'V',  'E', 'f', 'm',  't',
                                       ' ', 16,  0,   0,   0,   1, 0,   1,   0,   0x44, 0xAC, 0,   0,   0x88, 0x58,
                                       1,   0,   2,   0,   16,  0, 'd', 'a', 't', 'a',  128,  0,   0,   0};
        std::ofstream file(folder / "click.wav", std::ios::binary);
        file.write(reinterpret_cast<const char*>(header), sizeof header);
        for (int n = 0; n < 64; ++n) file.write("\x00\x40", 2);
        std::string path = (folder / "click.wav").string();
        for (char& c : path) c = c == '/' ? '\\' : c;
        return path;
    }

    /// Channel 0 on every fourth step, channel 1 shuffled on odd ones.
    State ClockGroove(float shuffle) const
    {
        GrooveEngine engine;
        engine.ResetGroove();
        engine.shuffleAmount = shuffle;
        for (int c : {0, 1}) {
            engine.Channel(c).sampleSlots[3].path.Set(Click().c_str());
            engine.storedParams[c][slot::ShuffleEnable] = static_cast<float>(c);
            for (int s = c; s < 16; s += c == 0 ? 4 : 2) engine.patterns[0]->steps[c][s] = 1u << s;
        }
        State state(static_cast<std::size_t>(engine.SaveState(nullptr)));
        engine.SaveState(state.data());
        return state;
    }
};

/// The left side of an output pair.
using Sound = std::vector<float>;

std::vector<Sound> Play(PluginHost& host, const std::vector<int>& pairs, int frames, int block, double tempo = 120.0)
{
    std::vector<Sound> sounds(pairs.size());
    host.SetTempo(tempo);
    host.SetPlaying(true);
    for (int done = 0; done < frames; done += block) {
        const int run = std::min(block, frames - done);
        host.Render(run);
        for (std::size_t n = 0; n < pairs.size(); ++n)
            sounds[n].insert(sounds[n].end(), host.Output(2 * pairs[n]), host.Output(2 * pairs[n]) + run);
    }
    return sounds;
}

std::vector<int> Onsets(const Sound& sound)
{
    std::vector<int> onsets;
    for (int n = 0; n < static_cast<int>(sound.size()); ++n)
        if (sound[n] != 0.0f && (n == 0 || sound[n - 1] == 0.0f) && (onsets.empty() || n - onsets.back() > 1000))
            onsets.push_back(n);
    return onsets;
}

/// The first frame after an instant at which a run may begin: blocks are rendered in chunks of 128.
int RunAfter(double instant, int block)
{
    int frame = static_cast<int>(std::floor(instant)) + 1;
    while (frame % block % 128 != 0) ++frame;
    return frame;
}

// Every step starts at the frame in which its instant lies, whatever blocks the host asks for; a late one with the
// first run after its instant.
TEST_F(PluginTest, StepsSoundAtTheirFrames)
{
    struct Case {
        double rate, tempo;
        float shuffle;
        int block;
    };
    std::vector<Case> cases;
    for (double rate : {44100.0, 48000.0, 96000.0})
        for (int block : {1, 64, 441, 4096}) cases.push_back({rate, 123.0, 0.37f, block});
    cases.push_back({44100.0, 120.0, 0.0f, 512});
    cases.push_back({44100.0, 120.0, 1.0f, 512});
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.rate << " Hz, shuffle " << c.shuffle << ", blocks of " << c.block);
        PluginHost host(kPlugin, c.rate, c.block);
        host.SetState(ClockGroove(c.shuffle), "groove");
        const double step = c.rate * 15.0 / static_cast<double>(static_cast<float>(c.tempo));
        const std::vector<Sound> sounds = Play(host, {1, 2}, static_cast<int>(6 * step), c.block, c.tempo);
        for (int channel : {0, 1}) {
            std::vector<int> expected;
            for (int s = channel; s < 6; s += channel == 0 ? 4 : 2) {
                const bool late = channel == 1 && c.shuffle > 0.0f;
                const double instant = s * step + (late ? 0.5 * static_cast<double>(c.shuffle) * step : 0.0);
                expected.push_back(late ? RunAfter(instant, c.block) : static_cast<int>(std::floor(instant)));
            }
            EXPECT_EQ(Onsets(sounds[static_cast<std::size_t>(channel)]), expected);
        }
    }
}

// Equal chunks, equal bits; and nothing but the state decides what a fresh instance plays.
TEST_F(PluginTest, RendersTheSameBits)
{
    const State state = ClockGroove(0.5f);
    std::vector<Sound> sounds;
    for (int block : {128, 512, 4096, 4096}) {
        PluginHost host(kPlugin, 48000.0, block);
        host.SetState(state, "groove");
        host.SetParameter(host.FindParameter("SYNTH: Noise Mix"), 0.5f);
        host.QueueMidi(0, 0x90, 40, 100);
        sounds.push_back(Play(host, {0}, 49152, block)[0]);
    }
    EXPECT_GT(Onsets(sounds[0]).size(), 0u);
    for (const Sound& sound : sounds) EXPECT_TRUE(sound == sounds[0]);
}

TEST_F(PluginTest, StateComesBackToTheByte)
{
    const State state = ClockGroove(0.25f);
    PluginHost host(kPlugin, 44100.0, 64);
    host.SetState(state, "groove");
    EXPECT_TRUE(host.GetState() == state);
    Play(host, {0}, 6400, 64);
    EXPECT_TRUE(host.GetState() == state);
    EXPECT_THROW(host.SetState(State(100, 'x'), "noise"), render::Failure);
    EXPECT_TRUE(host.GetState() == state);
}

// Rates, tempi and blocks from the edge of what hosts do: finite sound, no crash.
TEST_F(PluginTest, SurvivesOddHosts)
{
    for (double rate : {8000.0, 384000.0}) {
        PluginHost host(kPlugin, rate, 65536);
        host.SetState(ClockGroove(0.5f), "groove");
        for (double tempo : {1.0, 999.0, 1.0e30, std::nan("")}) {
            for (double position : {-1.0e9, 2.6, 1.0e15}) {
                host.SetPosition(position);
                const Sound sound = Play(host, {0}, 4000, 4000, tempo)[0];
                for (const float sample : sound) ASSERT_TRUE(std::isfinite(sample));
            }
        }
        host.Render(0);
        host.Render(65536);
        for (int n = 0; n < 3000; ++n)
            host.QueueMidi(n % 7 * 100 - 200, static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(3 * n), 255);
        host.Render(129);
    }
}

// The dynamic symbol table shows the entries and nothing of the engine.
TEST_F(PluginTest, ExportsItsEntriesOnly)
{
    std::FILE* list = popen(("nm -D --defined-only --format=posix '" + kPlugin + "'").c_str(), "r");
    ASSERT_TRUE(list);
    std::set<std::string> names;
    for (char line[512]; std::fgets(line, sizeof line, list);)
        names.insert(std::string(line, std::strcspn(line, " \n")));
    pclose(list);
    EXPECT_EQ(names, (std::set<std::string>{"DllMain", "VSTPluginMain", "main"}));
}

} // namespace
} // namespace korvane
