// The plug-in as hosts get it: its file, its clock, its bytes.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "engine/GrooveEngine.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"
#include "render/Failure.h"
#include "render/PluginHost.h"
#include "support/ContentRoot.h"
#include "support/Riff.h"

namespace korvane {
namespace {

using render::PluginHost;
using State = std::vector<std::uint8_t>;
using Sound = std::vector<float>; // the left side of an output pair

const std::string kPlugin = std::string(KORVANE_BUNDLE) + "/korvane.so";

struct PluginTest : testing::Test {
    /// 64 frames of half scale: a sound whose first frame is not silent and that ends before the next step.
    PluginTest() { WriteText(click, riff::WavOf(Sound(64, 0.5f))); }

    /// Channel 0 on every fourth step, channel 1 shuffled on odd ones.
    State ClockGroove(float shuffle) const
    {
        GrooveEngine engine;
        engine.ResetGroove();
        engine.shuffleAmount = shuffle;
        for (int c : {0, 1}) {
            engine.Channel(c).sampleSlots[kFirstLayerSlot].path.Set(EnginePath(click.c_str()).c_str());
            engine.storedParams[c][slot::ShuffleEnable] = static_cast<float>(c);
            for (int s = c; s < kStepsPerBar; s += c == 0 ? 4 : 2) engine.patterns[0]->steps[c][s] = 1u << s;
        }
        State state(static_cast<std::size_t>(engine.SaveState(nullptr)));
        engine.SaveState(state.data());
        return state;
    }

    const ContentRoot root;
    const std::filesystem::path click = root.path / "click.wav";
};

/// The main mix and the first two channels.
std::array<Sound, 3> Play(PluginHost& host, int frames, int block, double tempo)
{
    std::array<Sound, 3> sounds;
    host.SetTempo(tempo);
    host.SetPlaying(true);
    for (int done = 0; done < frames; done += block) {
        const int run = std::min(block, frames - done);
        host.Render(run);
        for (int n = 0; n < 3; ++n) sounds[n].insert(sounds[n].end(), host.Output(2 * n), host.Output(2 * n) + run);
    }
    return sounds;
}

std::vector<int> Onsets(const Sound& sound)
{
    std::vector<int> onsets;
    for (int n = 0; n < std::ssize(sound); ++n)
        if (sound[n] != 0.0f && (onsets.empty() || n - onsets.back() > 1000)) onsets.push_back(n);
    return onsets;
}

/// The first frame after an instant at which a run may begin: blocks are rendered in chunks of 128.
int RunAfter(double instant, int block)
{
    int frame = static_cast<int>(std::floor(instant)) + 1;
    while (frame % block % 128 != 0) ++frame;
    return frame;
}

// From the host's position on, every step starts at the frame in which its instant lies, whatever blocks the host asks
// for; a late one with the first run after its instant.
TEST_F(PluginTest, StepsSoundAtTheirFrames)
{
    // clang-format off
    struct Case { double rate, tempo; float shuffle; int block, firstStep; };
    std::vector<Case> cases = {{44100.0, 120.0, 0.0f, 512, 0}, {44100.0, 120.0, 1.0f, 512, 0}, {44100.0, 120.0, 0.0f, 512, 3}};
    // clang-format on
    for (double rate : {44100.0, 48000.0, 96000.0})
        for (int block : {1, 64, 441, 4096}) cases.push_back({rate, 123.0, 0.37f, block, 0});
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.rate << " Hz, shuffle " << c.shuffle << ", blocks of " << c.block);
        PluginHost host(kPlugin, c.rate, c.block);
        const State groove = ClockGroove(c.shuffle);
        host.SetState(groove, "groove");
        host.SetPosition(c.firstStep / 4.0);
        const double step = c.rate * 15.0 / c.tempo;
        const std::array<Sound, 3> sounds = Play(host, static_cast<int>(6 * step), c.block, c.tempo);
        std::vector<int> onTime, shuffled;
        for (int s = c.firstStep; s < c.firstStep + 6; ++s) {
            const double start = (s - c.firstStep) * step, late = 0.5 * static_cast<double>(c.shuffle) * step;
            if (s % 4 == 0) onTime.push_back(static_cast<int>(start));
            if (s % 2 == 1) shuffled.push_back(late > 0.0 ? RunAfter(start + late, c.block) : static_cast<int>(start));
        }
        EXPECT_EQ(Onsets(sounds[1]), onTime);
        EXPECT_EQ(Onsets(sounds[2]), shuffled);
        EXPECT_THROW(host.SetState(State(100, 'x'), "noise"), render::Failure);
        EXPECT_TRUE(host.GetState() == groove) << "playing, or a refused state, changes it";
    }
}

// Rates, tempi and blocks from the edge of what hosts do: finite sound, no crash.
TEST_F(PluginTest, SurvivesOddHosts)
{
    for (double rate : {8000.0, 384000.0}) {
        PluginHost host(kPlugin, rate, 65536);
        host.SetState(ClockGroove(0.5f), "groove");
        for (const auto& [tempo, position] : {std::pair{1.0, 1.0e15}, {999.0, 2.6}, {1.0e30, -1.0e9}, {NAN, 2.6}}) {
            host.SetPosition(position);
            const Sound sound = Play(host, 4000, 4000, tempo)[0];
            EXPECT_TRUE(std::all_of(sound.begin(), sound.end(), [](float x) { return std::isfinite(x); }));
        }
        for (int n = 0; n < 3000; ++n)
            host.QueueMidi(n % 7 * 100 - 200, static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(3 * n), 255);
        host.Render(129);
    }
}

// The dynamic symbol table shows the entries and nothing of the engine.
TEST_F(PluginTest, ExportsItsEntriesOnly)
{
    const std::string list = "nm -D --defined-only --format=posix '" + kPlugin + "' | cut -d ' ' -f 1";
    EXPECT_EQ(std::system(("test \"$(" + list + " | LC_ALL=C sort | xargs)\" = 'DllMain VSTPluginMain main'").c_str()),
              0);
}

} // namespace
} // namespace korvane
