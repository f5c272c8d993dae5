// Meter, pad, monitor and about page.
#include "editor/elements/CAboutPage.h"
#include "editor/elements/FXControl.h"
#include "editor/elements/KVMeter.h"
#include "editor/elements/KVMonitor.h"
#include "support/EditorRig.h"
#include "support/SynthRig.h"

namespace korvane::test {

// A light for 6.15 dB; from one tick to the next the level falls by 6.02.
TEST(Meter, LightsByDecibels)
{
    Cells leds(2, 2, 14, 13);
    ControlRig rig;
    auto* meter = new KVMeter({10, 50, 11, 110}, &leds);
    rig.editor->AddControl(meter);
    for (const auto& [peak, lit] : {std::pair{0.0f, 0}, {3e-4f, 1}, {0.5f, 12}, {0, 11}, {2, 13}, {0, 13}, {0, 12}}) {
        meter->level = std::max(meter->level, peak), meter->SetDirty(true), rig.Tick();
        for (int n = 0; n < 13; ++n) // each light's lowest row, which no other covers
            EXPECT_EQ(rig.OnScreen(20, 160 - 8 * n), Cell((n < lit ? 3 : 1) + (n < 10))) << lit << " " << n;
    }
}

using Pad = SynthTest;
TEST_F(Pad, PlaysWhereItIsHeld)
{
    ControlRig rig;
    KVSynth synth(&rig.host);
    rig.editor->AddControl(new FXControl({10, 10, 100, 50}, 69, synth));
    // clang-format off
    const struct { int kind, x, y; Log heard; int dotX, dotY, size; Color dot; } cases[] = {
        {mouse::Move,     35,  35,  {},                                    60,  35, 4, 0xFF0000}, // the middle
        {mouse::LeftDown, 35,  35,  {"automate 77 0.25", "automate 69 1"}, 35,  35, 8, 0xFFFF00}, // as high as it was
        {mouse::Move,     -5,  -5,  {"automate 77 0", "automate 78 1"},    10,  10, 8, 0xFFFF00},
        {mouse::LeftUp,   50,  50,  {"automate 69 0"},                     10,  10, 4, 0xFF0000}};
    // clang-format on
    for (const auto& c : cases) {
        rig.Mouse(c.kind, c.x, c.y), rig.Tick();
        EXPECT_EQ(rig.Heard(), c.heard) << &c - cases;
        EXPECT_EQ(std::count(rig.window->shown.begin(), rig.window->shown.end(), c.dot), c.size * c.size) << &c - cases;
        EXPECT_EQ(rig.OnScreen(c.dotX - c.size / 2, c.dotY + c.size / 2 - 1), c.dot) << &c - cases;
    }
    synth.SetParameter(77, 1.0f), rig.Tick(); // by a host
    EXPECT_EQ(rig.OnScreen(110, 10), 0xFF0000u);
}

TEST(About, IsAboveEverything)
{
    Cells picture(1, 1, 300, 200, 100);
    ControlRig rig;
    rig.editor->picture = &picture, rig.editor->AddGroup(new CAboutPage(rig.editor.get()));
    // clang-format off
    const struct { int x, y; bool open; int kind = mouse::LeftDown; } events[] = {
        {419, 0, false}, {720, 79, false}, {420, 80, false},  {420, 0, false, mouse::RightDown}, {420, 0, true},
        {5, 5, true, mouse::LeftUp}, {5, 5, true, mouse::RightDown}, {5, 5, false}, {719, 79, true}};
    // clang-format on
    for (const auto& e : events) {
        rig.Mouse(e.kind, e.x, e.y), rig.Tick();
        EXPECT_EQ(rig.editor->activeGroup != nullptr, e.open) << &e - events; // alone hears what is done
        EXPECT_EQ(rig.OnScreen(0, 199), e.open ? Mixed(Cell(1), kPage, 100) : kPage) << &e - events;
    }
}

// 200 frames in 200 columns, with a pulse of 0.8 around frame 50; the frame that it scrolls to is at column 34.9.
TEST(Monitor, ShowsTheLayerAsItIsPlayed)
{
    PoolEntry file;
    const auto sample = std::make_shared<CWaveSample>();
    file.sample = sample, sample->numFrames = 200, sample->channelData[0] = std::make_unique<float[]>(210);
    std::fill_n(&sample->channelData[0][40], 20, 0.8f);
    GrooveEngine engine;
    engine.selection.selectedChannel = 0, engine.selection.editStep = 3; // its locks are shown
    for (SampleSlot& layer : engine.Channel(0).sound.sampleSlots) layer.entry = &file;
    auto* monitor = new KVMonitor({10, 10, 200, 100}, engine);
    ControlRig rig;
    rig.editor->AddControl(monitor);
    // clang-format off
    const struct { float layer[3]; int notches, x, drag; float zoom, scroll; int peak, shaded; } cases[] = {
        {{0.25f, 0, 1}, 0,  10,  0,   0,    0,  185, 85}, {{0.25f, 1, 0}, 4,   10, 0,    1,  0,           135,   135},
        {{0,     0, 0}, 1,  9,   -20, 1,    0,  135, 35}, {{0,     0, 0}, 0,   99, -20,  1,  10,          115,   15},
        {{0,     0, 0}, 6,  209, 999, 2.5f, 0,  318, 35}, {{0,     0, 0}, 50,  99, -9,   10, 9 / 1024.0f, 51226, 26},
        {{0,     0, 0}, 0,  10,  999, 10,   0, 9999, 35}, {{0,     0, 0}, -50, 99, -999, 0,  200,         -99,   0}};
    // clang-format on
    for (const auto& c : cases) {
        for (int n = 0; n < 3; ++n) engine.SetChannelParameter(slot::LayerStart + 4 * n, c.layer[n]); // invert, reverse
        rig.Tick(), rig.Move(c.x, 109), rig.window->Wheel(c.notches), rig.Press(mouse::LeftDown);
        rig.Move(c.x + c.drag, 20), rig.Press(mouse::LeftUp), rig.Tick();
        EXPECT_TRUE(monitor->zoom == c.zoom && std::fabs(monitor->scroll - c.scroll) < 1e-5f) << &c - cases;
        for (int x = 0; x < 200; ++x) {
            const bool slate = (rig.OnScreen(10 + x, c.layer[1] == 1 ? 100 : 20) & 0xF8F8F8) == 0x284050;
            EXPECT_TRUE(slate || std::abs(x - c.peak) >= 8) << &c - cases << " " << x; // ten frames to each side
            EXPECT_EQ(rig.OnScreen(10 + x, 12), x < c.shaded ? Mixed(0x2E4657, kPage, 50) : kPage) << &c - cases;
        }
    }
    rig.window->copies.clear(), engine.selection.layerNumber = 1, rig.Tick(); // of the same file
    EXPECT_TRUE(rig.window->copies.empty() && monitor->scroll == 200);
    engine.Channel(0).sound.sampleSlots[4].entry = nullptr, rig.Tick();
    EXPECT_TRUE(monitor->scroll == 0 && rig.OnScreen(95, 20) == kPage && rig.OnScreen(95, 60) != kPage);
}

} // namespace korvane::test
