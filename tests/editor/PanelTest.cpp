// What the panel shows of the engine: pages, lights, levels, links, texts.
#include <gtest/gtest.h>

#include "editor/elements/KVMeter.h"
#include "engine/Transport.h"
#include "gui/controls/CControlDropDownList.h"
#include "support/PanelRig.h"

namespace korvane {
namespace {

struct PanelTest : testing::Test, PanelRig {
    PanelTest() { Open(); }

    template <class Control = CControlTextDisplay>
    Control& Of(Role role, int number = 0)
    {
        return *editor->panel.Of<Control>(role, number);
    }
    int RowOf(Role role, int number) { return Of(role, number).imageOffset.y / Of(role, number).rect.h; }
    GroovePattern& Pattern() { return Engine().score.Current(); }
    /// Ticks until the cycle has its dark part, or its lit one.
    void TickTo(bool dark)
    {
        do Tick();
        while ((editor->blinkPhase < 0) != dark);
    }
};

TEST_F(PanelTest, ChannelAndScreenChooseThePage)
{
    constexpr struct {
        int channel;
        bool screen;
        int background;
        Page page;
    } kRows[] = {{0, false, image::PageSampler, Page::Sampler}, {7, false, image::PageSampler, Page::Sampler},
                 {8, false, image::PageSynth, Page::Synth},     {12, true, image::PageChannel, Page::Channel},
                 {0, true, image::PageChannel, Page::Channel},  {12, false, image::PageSynth, Page::Synth}};
    for (const auto& row : kRows) {
        instrument->SetParameter(kScreenSwitchId, row.screen);
        Of(Role::ScreenSwitch).SetValue(row.screen);
        editor->RefreshAll();
        Engine().selection.selectedChannel = row.channel; // by MIDI, say: the next tick sees it
        Tick();
        EXPECT_EQ(editor->backgroundId, row.background) << row.channel;
        for (const PlacedControl& placed : editor->panel) {
            EXPECT_EQ(placed.control->hidden, placed.row->page != Page::All && placed.row->page != row.page);
            if (ShowsPage(placed.row->widget)) {
                const auto& text = static_cast<CControlTextDisplay&>(*placed.control);
                EXPECT_EQ(text.bitmap, editor->FindBitmap(row.background));
                EXPECT_EQ(text.imageOffset, (Point{text.rect.x, text.rect.y}));
            }
        }
    }
}

TEST_F(PanelTest, TheScreenSwitchShowsTheChannelPageAtOnceAndAfterReopening)
{
    Show(9, false);
    Click(70, 240);
    EXPECT_EQ(editor->backgroundId, image::PageChannel);
    editor->Close();
    Open();
    EXPECT_EQ(editor->backgroundId, image::PageChannel);
    instrument->SetParameter(kScreenSwitchId, 0.0f); // by a MIDI link
    Tick();
    EXPECT_EQ(editor->backgroundId, image::PageSynth);
}

TEST_F(PanelTest, StepButtonsShowNotesTheEditedStepAndWhereItPlays)
{
    Show(9, false);
    Pattern().Clear();
    Engine().selection.selectedBar = 1;
    Pattern().SetNotes(9, 16, 1);
    Pattern().SetNotes(9, 17, 1);
    Pattern().SetNotes(9, 50, 1);
    Engine().clock.editMode = true;
    Engine().selection.editStep = 1;
    TickTo(false);
    const auto rows = [&](std::initializer_list<int> buttons) {
        std::vector<int> found;
        for (const int k : buttons) found.push_back(RowOf(Role::Step, k));
        return found;
    };
    // note; edited note; empty; bars 1 (empty), 2 (selected), 4 (notes)
    EXPECT_EQ(rows({0, 1, 2, 16, 17, 19}), (std::vector{2, 4, 0, 0, 4, 2}));
    Engine().selection.editStep = 2; // empty
    Engine().clock.playing = true;
    Engine().clock.patternStep = 16;
    TickTo(false);
    EXPECT_EQ(rows({0, 1, 2}), (std::vector{2, 2, 0}));
    TickTo(true);
    EXPECT_EQ(rows({0, 1, 2, 19}), (std::vector{4, 2, 2, 2}));
    Engine().selection.selectedBarMark = 3;
    TickTo(true);
    EXPECT_EQ(rows({19}), (std::vector{4}));
    Engine().selection.selectedBar = 0; // what plays is elsewhere
    TickTo(true);
    EXPECT_EQ(rows({0}), (std::vector{0}));
}

TEST_F(PanelTest, ChannelButtonsShowWhichIsSelectedSoundsAndIsMarked)
{
    Show(3, false);
    Engine().Channel(5).soundedThisBlock = true;
    TickTo(true);
    EXPECT_EQ(RowOf(Role::Channel, 3), 4);
    EXPECT_EQ(RowOf(Role::Channel, 5), 2);
    EXPECT_EQ(RowOf(Role::Channel, 4), 0);
    Engine().selection.channelMarked[3] = Engine().selection.channelMarked[4] = true;
    TickTo(true);
    EXPECT_EQ(RowOf(Role::Channel, 4), 0); // only in edit mode
    Engine().clock.editMode = true;
    TickTo(true);
    EXPECT_EQ(RowOf(Role::Channel, 3), 4);
    EXPECT_EQ(RowOf(Role::Channel, 4), 2);
    TickTo(false);
    EXPECT_EQ(RowOf(Role::Channel, 3), 2);
    EXPECT_EQ(RowOf(Role::Channel, 4), 0);
}

TEST_F(PanelTest, TwoOfFiveTicksAreDark)
{
    std::string cycle;
    for (int n = 0; n < 10; ++n) {
        Tick();
        cycle += editor->blinkPhase < 0 ? 'd' : 'l';
    }
    EXPECT_NE(std::string("ddlllddlllddlll").find(cycle), std::string::npos) << cycle;
}

TEST_F(PanelTest, LedsShowEffectsControllersAndSteps)
{
    Show(9, false);
    for (int n = 0; n < kEffects; ++n) Engine().storedParams[9][slot::FxGlue + n] = 0.0f;
    Engine().buttons.fxOn[2] = true;
    Engine().selection.selectedFx = 4;
    Engine().storedParams[9][slot::FxGlue + 7] = 1.0f;
    Engine().storedParams[8][slot::FxGlue + 8] = 1.0f; // another channel's
    Engine().ext.extIndex = 3;
    Engine().ext.extLearn = true;
    Tick();
    const auto lit = [&](Role role, int count) {
        std::string leds;
        for (int n = 0; n < count; ++n) leds += Of(role, n).GetValue() != 0.0f ? '*' : '.';
        return leds;
    };
    EXPECT_EQ(lit(Role::FxLed, 10), "..*....*..");
    EXPECT_EQ(lit(Role::ExtLed, 5), "...*.");
    EXPECT_EQ(RowOf(Role::ExtLearn, 0), 2);
    Engine().buttons.fxPad = true;
    Engine().clock.playing = true;
    Engine().clock.patternStep = 37;
    Engine().ext.extLearn = false;
    Tick();
    EXPECT_EQ(lit(Role::FxLed, 10), "..*.*..*..");
    EXPECT_EQ(lit(Role::StepLed, 24), ".....*.........."
                                      "..*.....");
    EXPECT_EQ(RowOf(Role::ExtLearn, 0), 0);
    Pattern().ClearStep(9, 0);
    Pattern().SetNotes(9, 0, 0b1000000000000000101);
    Engine().clock.editMode = true;
    Engine().selection.selectedBar = 0;
    Engine().selection.editStep = 0; // its chord
    Tick();
    EXPECT_EQ(lit(Role::StepLed, 24), "*.*............."
                                      "..*.....");
}

TEST_F(PanelTest, MetersTakeTheHigherOfPeakAndFall)
{
    Show(2, false);
    MixerStrip& strip = Engine().Channel(2).strip;
    strip.peakLeft = 7.0f;
    strip.peakRight = 0.5f;
    Tick();
    EXPECT_EQ(strip.peakLeft, 0.0f);
    EXPECT_FLOAT_EQ(Of<KVMeter>(Role::Meter, 0).level, 0.5f); // drawn at 1, halved since
    EXPECT_FLOAT_EQ(Of<KVMeter>(Role::Meter, 1).level, 0.25f);
    strip.peakLeft = 0.125f;
    Tick();
    EXPECT_FLOAT_EQ(Of<KVMeter>(Role::Meter, 0).level, 0.25f);
}

TEST_F(PanelTest, LinksShowWhatMovedLastAndAreMadeAndIgnored)
{
    Show(9, false);
    MidiLinks& links = instrument->links;
    EXPECT_STREQ(Of(Role::LinkText, 1).text, "---");
    links.lastSource = 7;
    instrument->SetParameter(80, 0.5f);
    Tick();
    EXPECT_STREQ(Of(Role::LinkText, 0).text, "CHN: Mix Level");
    EXPECT_STREQ(Of(Role::LinkText, 1).text, "CC 7");
    EXPECT_EQ(Of(Role::LinkSwitch).GetValue(), 0.0f);
    const auto click = [&](Role role) {
        Click(Of(role).rect.x + 3, Of(role).rect.y + 3);
        Tick();
    };
    click(Role::IgnoreController); // nothing is linked
    EXPECT_EQ(links.ignoreValue[7], 0);
    EXPECT_EQ(Of(Role::IgnoreController).GetValue(), 0.0f);
    click(Role::LinkSwitch);
    EXPECT_EQ(links.links[7], 80);
    EXPECT_EQ(Of(Role::LinkSwitch).GetValue(), 1.0f);
    click(Role::IgnoreController);
    EXPECT_EQ(links.ignoreValue[7], 1);
    EXPECT_EQ(Of(Role::IgnoreController).GetValue(), 1.0f);
    instrument->SetParameter(81, 0.5f); // not what the controller is linked to
    Tick();
    EXPECT_EQ(Of(Role::LinkSwitch).GetValue() + Of(Role::IgnoreController).GetValue(), 0.0f);
    instrument->SetParameter(80, 0.5f);
    Tick();
    click(Role::LinkSwitch);
    EXPECT_EQ(links.links[7], -1);
    EXPECT_EQ(links.ignoreValue[7], 0);
    links.lastSource = source::FirstKey + 60; // a key has no value to ignore
    Tick();
    click(Role::LinkSwitch);
    click(Role::IgnoreController);
    EXPECT_EQ(Of(Role::LinkSwitch).GetValue(), 1.0f);
    EXPECT_EQ(Of(Role::IgnoreController).GetValue(), 0.0f);
}

TEST_F(PanelTest, ThePadsAxesAreNamedByTheSelectedEffect)
{
    for (const auto& [effect, names] : {std::pair{0, "Distortion/Lowpass"},
                                        {3, "Depth/Feedback"},
                                        {8, "Panning/Binaural"},
                                        {9, "Release/Drop Level"}}) {
        Engine().selection.selectedFx = effect;
        Tick();
        EXPECT_EQ(std::string(Of(Role::PadAxis, 0).text) + "/" + Of(Role::PadAxis, 1).text, names);
    }
}

TEST_F(PanelTest, ATickWithNothingNewDrawsOnlyMetersAndWhatBlinks)
{
    Show(9, false);
    for (int n = 0; n < 20; ++n) Tick(); // what glides arrives
    window->copies.clear();
    Tick();
    for (const Rect& part : window->copies) EXPECT_EQ(part.w, 11) << part.x << ' ' << part.y;
}

} // namespace
} // namespace korvane
