// The sound, to the bit: grooves rendered as a host plays them, against what is kept beside this file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>

#include "framework/ParameterTable.h"
#include "golden/Corners.h"
#include "golden/Levels.h"
#include "render/Library.h"
#include "support/ContentRoot.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using render::PluginHost;

constexpr int kRate = 44100, kTenth = kRate / 10;

class Golden : public testing::TestWithParam<fs::path> {
protected:
    static Levels Rendered(PluginHost& host, int tenths, const std::function<void(int)>& play)
    {
        Levels levels;
        levels.maths = MathsLibrary();
        for (int n = 0; n < 2 * host.Pairs(); ++n)
            levels.outputs.push_back({host.PairName(n / 2) + (n % 2 == 0 ? " left" : " right"), {}});
        for (int tenth = 0; tenth < tenths; ++tenth) {
            play(tenth);
            host.Render(kTenth);
            for (int n = 0; n < 2 * host.Pairs(); ++n) levels.Add(static_cast<std::size_t>(n), host.Output(n), kTenth);
        }
        return levels;
    }

    static void Compare(const std::string& name, const Levels& levels)
    {
        const fs::path kept = fs::path(KORVANE_SOURCE) / "tests/golden" / (name + ".levels");
        if (std::getenv("KORVANE_UPDATE_REFERENCES")) levels.Save(kept);
        EXPECT_EQ(Difference(Levels::Load(kept), levels), "") << name;
    }

    const BundleRoot root;
    PluginHost host{KORVANE_BUNDLE "/korvane.so", kRate, kTenth};
};

std::vector<fs::path> FactoryGrooves()
{
    std::vector<fs::path> grooves;
    for (const auto& entry : fs::directory_iterator(KORVANE_BUNDLE "/Grooves")) grooves.push_back(entry.path());
    std::sort(grooves.begin(), grooves.end());
    return grooves;
}

INSTANTIATE_TEST_SUITE_P(Factory, Golden, testing::ValuesIn(FactoryGrooves()), [](const auto& groove) {
    std::string name = groove.param.stem().string();
    std::erase(name, ' ');
    return name;
});

// Eight seconds, two of each of the first four patterns: the main mix and every channel of it.
TEST_P(Golden, GrooveSoundsAsKept)
{
    const std::string name = GetParam().stem().string();
    host.SetState(ReadBytes(GetParam()), name);
    host.SetTempo(render::TempoInName(name).value());
    host.SetPlaying(true);
    Compare(name, Rendered(host, 80, [this](int tenth) {
                if (tenth % 20 == 0) host.SetParameter(param::Pattern1 + tenth / 20, 1.0f);
            }));
}

// A groove that is gone is missed; one that is not kept fails by itself.
TEST_F(Golden, KnowsEveryGroove)
{
    std::size_t kept = 0;
    for (const auto& entry : fs::directory_iterator(KORVANE_SOURCE "/tests/golden"))
        kept += entry.path().extension() == ".levels";
    EXPECT_EQ(kept, FactoryGrooves().size() + 1) << "the factory's and Corners";
}

// Twelve seconds in which a player and a host do whatever can be done.
TEST_F(Golden, CornersSoundAsKept)
{
    host.SetState(CornersGroove(), "Corners");
    const Levels levels = Rendered(host, 120, [this](int tenth) { PlayCorners(host, tenth); });
    for (const Levels::Output& output : levels.outputs) {
        const auto louder = [](const auto& a, const auto& b) { return a.peak < b.peak; };
        const double peak = std::max_element(output.tenths.begin(), output.tenths.end(), louder)->peak;
        EXPECT_GT(peak, 0.001) << output.name;
        EXPECT_LT(peak, 10.0) << output.name;
    }
    Compare("Corners", levels);
}

// A failure names the output and the tenth of a second that moved first, and by how much.
TEST(Levels, TellWhatMovedFirst)
{
    Levels kept;
    kept.outputs = {{"one", {{1.0, 0.5}, {1.0, 0.5}, {0.0, 0.0}}}, {"two", {{1.0, 0.5}, {1.0, 0.5}, {1.0, 0.5}}}};
    Levels now = kept;
    EXPECT_EQ(Difference(kept, now), "");
    now.hash = 1;
    EXPECT_EQ(Difference(kept, now), "bits moved, but no level in its first five digits");
    now.outputs[0].tenths[2] = {0.25, 0.0};
    now.outputs[0].tenths[1].rms = now.outputs[1].tenths[1].rms = 1.0;
    EXPECT_EQ(Difference(kept, now), "two moved first, at 0.1 s: peak 1 became 1 (+0 dB), RMS 0.5 became 1 (+6.02 dB);"
                                     " outputs that moved: 2");
    now = kept;
    now.maths = now.hash = 1;
    now.outputs[1].tenths[1].rms = 0.502;
    EXPECT_EQ(Difference(kept, now), "") << "another library, hardly another sound";
    now.outputs[1].tenths[1].rms = std::nan("");
    EXPECT_EQ(Difference(kept, now).substr(0, 27), "two moved first, at 0.1 s: ");
    now.outputs[1].tenths.pop_back();
    EXPECT_EQ(Difference(kept, now), "two has another name or length");
    EXPECT_EQ(Difference({}, now), "no levels of these outputs are kept");
}

} // namespace
} // namespace korvane
