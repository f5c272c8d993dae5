// Every control of the editor: what it is, where it stands, what it shows and what it is bound to.
#pragma once

#include <cstdint>

#include "editor/layout/Skin.h"
#include "framework/Limits.h"
#include "framework/ParameterTable.h"
#include "platform/window/Geometry.h"

namespace korvane {

inline constexpr Size kEditorSize{630, 1065};

/// What a control is; the rest of its looks goes with that, see ControlFactory.
enum class Widget : std::uint8_t {
    Toggle,    // a button; frames off, on
    Latch,     // frames off, on and held, on, off and held
    Momentary, // frames off, on; further pairs below them for states that it shows
    Led,       // shows only; frames off, on
    Knob,      // 129 frames below each other
    SmallKnob, // 141
    Steps,     // a knob with `parts` frames
    LedTab,    // a column of `parts` lights
    Tab,       // `parts` tabs beside each other
    TabColumn, // below each other; their images beside each other
    Fader,     // a handle on a vertical way
    LevelFader,
    LengthFader, // a handle on a horizontal way
    ModulationFader,
    DarkNumber,
    LightNumber,
    List, // drops down
    Text,
    GlowingText,
    Meter,
    Pad,
    Monitor,
    Score // off the window while it is closed
};

/// The pages that have a control.
enum class Page : std::uint8_t { All, Synth, Sampler, Channel };

/// Whose business a control is, beyond its parameter.
enum class Role : std::uint8_t {
    None,
    Pattern,
    Channel,
    Step, // and bars
    StepLed,
    FxLed,
    ExtLed,
    ExtLearn,
    PadAxis,
    Meter,     // left, right
    WaveArrow, // of three oscillators, back and on
    WaveList,
    ResetStart,
    LayerCommand, // remove, the file before, the file after, load
    Destination,
    FolderList,
    ProgramMenu,
    ProgramArrow, // back, on
    GrooveMenu,
    Score,
    LinkSwitch,
    IgnoreController,
    LinkText, // parameter, source
    ScreenSwitch
};

/// Bits, or-ed, of what a row may add to its widget.
namespace look {
enum : unsigned {
    Reversed = 1,   // the first of a column is the last
    Normalized = 2, // a tab's value goes from 0 to 1
    NoPopup = 4,    // does not show its value while it is dragged
    Detent = 8,     // stays for a while at its centre
    Crossfade = 16, // between frames
    TwoSpeeds = 32, // Ctrl slows it down
    Amber = 64      // text
};
}

/// A control, or a run of them at equal distances. What is 0 of width and height is as its image has it.
struct ControlRow {
    Widget widget;
    int x, y, w, h; // of the first, pixels
    int image;      // of image::; -1 none, the page shows
    int id;         // of the first, the others follow it; -1: none of them has one
    Page page;
    Role role;
    int count = 1;
    int dx = 0, dy = 0;             // from one to the next
    int column = 0, columnStep = 0; // of the image, of the first and from one to the next
    int parts = 0;                  // frames or tabs
    unsigned look = 0;              // of look::
    int first = 0;                  // which of its role the first is
};

inline constexpr int kNoImage = -1, kNoId = -1;
inline constexpr int kFirstPageParameter = 182; // of those that only the channel page shows
inline constexpr int kGrooveMenuId = 179, kScreenSwitchId = 181;

// clang-format off
/// In the order in which they are created, drawn and looked at under the pointer.
inline constexpr ControlRow kLayout[] = {
//   widget                   x    y    w    h   image                     id   page           role           n   dx  dy  col dcol parts  look
    // Transport, patterns, channels, steps
    {Widget::Latch,          664, 393,  63,  50, image::ButtonEdit,         6,  Page::All,     Role::None},
    {Widget::Momentary,      726, 393,  63,  50, image::ButtonPrev,         4,  Page::All,     Role::None},
    {Widget::Momentary,      788, 393,  63,  50, image::ButtonNext,         5,  Page::All,     Role::None},
    {Widget::Latch,          850, 393,  63,  50, image::ButtonRec,          3,  Page::All,     Role::None},
    {Widget::Latch,          912, 393,  63,  50, image::ButtonPlay,         1,  Page::All,     Role::None},
    {Widget::Latch,          981, 394,  39,  48, image::LoopBar,            2,  Page::All,     Role::None},
    {Widget::Momentary,      668, 483,  47,  29, image::ButtonCopy,         8,  Page::All,     Role::None},
    {Widget::Momentary,      721, 483,  47,  29, image::ButtonPaste,        9,  Page::All,     Role::None},
    {Widget::Momentary,      774, 483,  47,  29, image::ButtonClear,        7,  Page::All,     Role::None},
    {Widget::Momentary,      570, 466,  39,  48, image::ButtonMute,        10,  Page::All,     Role::None},
    {Widget::Latch,          610, 466,  39,  48, image::ButtonSolo,        11,  Page::All,     Role::None},
    {Widget::Knob,           984, 549,   0,   0, image::Knob,               0,  Page::All,     Role::None},
    {Widget::Momentary,      665, 342,  38,  49, image::ButtonPatterns,    12,  Page::All,     Role::Pattern,  8, 38,  0,   0,  42},
    {Widget::Latch,          985, 364,  32,  24, image::ButtonSynthLed,    20,  Page::All,     Role::None},
    {Widget::Momentary,       43, 462,  38,  49, image::ButtonParts,       21,  Page::All,     Role::Channel,  8, 38,  0,   0,  42},
    {Widget::Momentary,      361, 462,  38,  49, image::ButtonParts,       29,  Page::All,     Role::Channel,  5, 38,  0, 336,  42, 0, 0, 8},
    {Widget::Latch,           58, 512,  14,  13, image::TrackEnable,       34,  Page::All,     Role::None,     8, 38},
    {Widget::Latch,          376, 512,  14,  13, image::TrackEnable,       42,  Page::All,     Role::None,     5, 38},
    {Widget::Momentary,       44, 548,  38,  46, image::ButtonSteps,      155,  Page::All,     Role::Step,    24, 38,  0,   0,  40},
    {Widget::Led,             57, 592,  14,  14, image::Led,            kNoId,  Page::All,     Role::StepLed, 24, 38},
    // Effects, stutter, controllers
    {Widget::Momentary,      650,  96,  30,  31, image::ButtonFX,          53,  Page::All,     Role::None,    10, 30,  0,   0,  30},
    {Widget::Led,            660, 126,  11,  12, image::Led,            kNoId,  Page::All,     Role::FxLed,   10, 30},
    {Widget::Momentary,      975, 153,  50,  33, image::ButtonStutter,     63,  Page::All,     Role::None,     4,  0, 34,   0,  50},
    {Widget::Momentary,      975, 289,  50,  33, image::ButtonStutter,     68,  Page::All,     Role::None,     1,  0,  0, 200},
    {Widget::Knob,            68,  42,   0,   0, image::Knob,              47,  Page::All,     Role::None,     5, 64},
    {Widget::Led,             50,  48,  14,  14, image::Led,            kNoId,  Page::All,     Role::ExtLed,   5, 64},
    {Widget::Momentary,      369,  40,  47,  29, image::ButtonLink,        52,  Page::All,     Role::ExtLearn},
    {Widget::Pad,            659, 144, 111, 111, kNoImage,                 69,  Page::All,     Role::None},
    {Widget::Latch,          973,  97,  48,  29, image::ButtonGlue,        70,  Page::All,     Role::None},
    {Widget::LedTab,         782, 143,   0,   0, image::Led,               71,  Page::All,     Role::None,     1,  0,  0,   0,   0, 9, look::Reversed},
    {Widget::Fader,          829, 164,   0,   0, image::FaderHandle,       72,  Page::All,     Role::None,     1,  0,  0,   0,   0, 0, look::NoPopup},
    {Widget::Momentary,      870, 219,  32,  21, image::ButtonSynth,       73,  Page::All,     Role::None},
    {Widget::LedTab,         904, 202,   0,   0, image::Led,               74,  Page::All,     Role::None,     1,  0,  0,   0,   0, 4},
    {Widget::Momentary,      870, 171,  32,  21, image::ButtonSynth,       75,  Page::All,     Role::None},
    {Widget::LedTab,         904, 164,   0,   0, image::Led,               76,  Page::All,     Role::None,     1,  0,  0,   0,   0, 2},
    {Widget::Knob,           656, 281,   0,   0, image::Knob,              77,  Page::All,     Role::None},
    {Widget::Knob,           791, 281,   0,   0, image::Knob,              78,  Page::All,     Role::None},
    {Widget::Latch,          919, 284,  32,  24, image::ButtonSynthLed,    79,  Page::All,     Role::None},
    {Widget::Text,           693, 285,  80,  19, kNoImage,              kNoId,  Page::All,     Role::PadAxis,  2, 135},
    // Channel strip
    {Widget::Meter,          580, 137,  11, 110, image::Led,            kNoId,  Page::All,     Role::Meter,    2, 44},
    {Widget::LevelFader,     589, 143,   0,   0, image::FaderLevel,        80,  Page::All,     Role::None},
    {Widget::Knob,           594, 276,   0,   0, image::Knob,              81,  Page::All,     Role::None},
    {Widget::LightNumber,    594, 323,  30,  16, kNoImage,                 82,  Page::All,     Role::None},
    {Widget::LengthFader,    839, 482, 188,  45, image::StepFaderHandle,   83,  Page::All,     Role::None},
    {Widget::Knob,           518, 221,   0,   0, image::Knob,              84,  Page::All,     Role::None},
    {Widget::Knob,           518, 276,   0,   0, image::Knob,              85,  Page::All,     Role::None},
    {Widget::Knob,           518, 331,   0,   0, image::Knob,              86,  Page::All,     Role::None},
    {Widget::Knob,           518, 387,   0,   0, image::Knob,              87,  Page::All,     Role::None},
    {Widget::Knob,           518, 143,   0,   0, image::Knob,              88,  Page::All,     Role::None},
    {Widget::Latch,          982, 586,  32,  24, image::ButtonSynthLed,    89,  Page::All,     Role::None},
    {Widget::Knob,           594, 364,   0,   0, image::Knob,              90,  Page::All,     Role::None},
    {Widget::Latch,          593, 399,  32,  24, image::ButtonSynthLed,    91,  Page::All,     Role::None},
    // Filter, envelope, LFO
    {Widget::Fader,           69, 314,   0,   0, image::FaderHandle,       92,  Page::All,     Role::None,     2, 30},
    {Widget::Latch,          124, 303,  32,  24, image::ButtonSynthLed,    94,  Page::All,     Role::None},
    {Widget::LedTab,         121, 358,   0,   0, image::Led,               95,  Page::All,     Role::None,     1,  0,  0,   0,   0, 3},
    {Widget::Momentary,      125, 339,  32,  21, image::ButtonSynth,       96,  Page::All,     Role::None},
    {Widget::Tab,            199, 414,   0,   0, image::TabEnvelope,       97,  Page::All,     Role::None,     1,  0,  0,   0,   0, 2},
    {Widget::Momentary,      267, 339,  32,  21, image::ButtonSynth,       98,  Page::All,     Role::None},
    {Widget::LedTab,         262, 358,   0,   0, image::Led,               99,  Page::All,     Role::None,     1,  0,  0,   0,   0, 4},
    {Widget::Fader,          179, 314,   0,   0, image::FaderHandle,      100,  Page::All,     Role::None,     3, 30},
    {Widget::Latch,          266, 303,  32,  24, image::ButtonSynthLed,   103,  Page::All,     Role::None},
    {Widget::Tab,            359, 414,   0,   0, image::TabLfo,           104,  Page::All,     Role::None,     1,  0,  0,   0,   0, 2},
    {Widget::Fader,          322, 314,   0,   0, image::FaderHandle,      105,  Page::All,     Role::None,     2, 66},
    {Widget::Latch,          415, 303,  32,  24, image::ButtonSynthLed,   107,  Page::All,     Role::None,     2, 39},
    {Widget::Momentary,      349, 339,  32,  21, image::ButtonSynth,      109,  Page::All,     Role::None},
    {Widget::LedTab,         344, 358,   0,   0, image::Led,              110,  Page::All,     Role::None,     1,  0,  0,   0,   0, 3},
    {Widget::Momentary,      416, 339,  32,  21, image::ButtonSynth,      111,  Page::All,     Role::None},
    {Widget::LedTab,         411, 358,   0,   0, image::Led,              112,  Page::All,     Role::None,     1,  0,  0,   0,   0, 4},
    {Widget::Momentary,      455, 339,  32,  21, image::ButtonSynth,      113,  Page::All,     Role::None},
    {Widget::LedTab,         454, 358,   0,   0, image::Led,              114,  Page::All,     Role::None,     1,  0,  0,   0,   0, 4},
    // Synth page
    {Widget::Toggle,         438, 207,  45,  25, image::MonoVoice,        115,  Page::Synth,   Role::None},
    {Widget::Steps,          384, 141,   0,   0, image::UnisonVoices,     116,  Page::Synth,   Role::None,     1,  0,  0,   0,   0, 16},
    {Widget::Steps,          389, 175,   0,   0, image::UnisonStereo,     118,  Page::Synth,   Role::None,     1,  0,  0,   0,   0, 5, look::Crossfade | look::TwoSpeeds},
    {Widget::TabColumn,      449, 138,   0,   0, image::TabOctaves,       119,  Page::Synth,   Role::None,     1,  0,  0,   0,   0, 5, look::Normalized | look::Reversed},
    {Widget::SmallKnob,      400, 210,   0,   0, image::KnobLcd,          117,  Page::Synth,   Role::None},
    {Widget::SmallKnob,      299, 210,   0,   0, image::KnobLcd,          120,  Page::Synth,   Role::None},
    {Widget::SmallKnob,      347, 210,   0,   0, image::KnobLcd,          121,  Page::Synth,   Role::None},
    {Widget::SmallKnob,      299, 133,   0,   0, image::KnobLcd,          123,  Page::Synth,   Role::None},
    {Widget::SmallKnob,      299, 174,   0,   0, image::KnobLcd,          124,  Page::Synth,   Role::None},
    {Widget::SmallKnob,      347, 133,   0,   0, image::KnobLcd,          127,  Page::Synth,   Role::None},
    {Widget::Toggle,         345, 184,  20,  15, image::ButtonLcd,        122,  Page::Synth,   Role::None},
    {Widget::Toggle,         345, 155,  20,  15, image::ButtonLcd,        128,  Page::Synth,   Role::None},
    {Widget::ModulationFader, 83, 207, 179,  22, image::FaderLcdHandle,   125,  Page::Synth,   Role::None},
    {Widget::Tab,             68, 180,   0,   0, image::TabModKind,       126,  Page::Synth,   Role::None,     1,  0,  0,   0,   0, 3},
    {Widget::Toggle,         294, 153,  24,   9, image::Osc2Invert,       129,  Page::Synth,   Role::None},
    {Widget::DarkNumber,     216, 117,  30,  16, kNoImage,                130,  Page::Synth,   Role::None},
    {Widget::DarkNumber,     216, 133,  30,  16, kNoImage,                132,  Page::Synth,   Role::None},
    {Widget::DarkNumber,     216, 149,  30,  16, kNoImage,                134,  Page::Synth,   Role::None},
    {Widget::DarkNumber,     250, 117,  30,  16, kNoImage,                131,  Page::Synth,   Role::None},
    {Widget::DarkNumber,     250, 133,  30,  16, kNoImage,                133,  Page::Synth,   Role::None},
    {Widget::DarkNumber,     250, 149,  30,  16, kNoImage,                135,  Page::Synth,   Role::None},
    {Widget::List,            87, 117, 116,  16, kNoImage,              kNoId,  Page::Synth,   Role::WaveList, 3,  0, 16},
    {Widget::Momentary,       79, 119,   7,  11, image::WaveArrows,     kNoId,  Page::Synth,   Role::WaveArrow, 3, 0, 16},
    {Widget::Momentary,      205, 119,   7,  11, image::WaveArrows,     kNoId,  Page::Synth,   Role::WaveArrow, 3, 0, 16,  7,   0, 0, 0, 3},
    // Sampler page
    {Widget::SmallKnob,       77, 129,   0,   0, image::KnobLcd,          136,  Page::Sampler, Role::None,     3, 27},
    {Widget::SmallKnob,      168, 129,   0,   0, image::KnobLcd,          139,  Page::Sampler, Role::None},
    {Widget::SmallKnob,      194, 129,   0,   0, image::KnobLcd,          140,  Page::Sampler, Role::None,     2, 27},
    {Widget::SmallKnob,      258, 129,   0,   0, image::KnobLcd,          142,  Page::Sampler, Role::None,     2, 26},
    {Widget::SmallKnob,      311, 129,   0,   0, image::KnobLcd,          144,  Page::Sampler, Role::None,     2, 40},
    {Widget::Toggle,         387, 134,  20,  15, image::ButtonLcd,        146,  Page::Sampler, Role::None,     2, 42},
    {Widget::Toggle,         108, 164,  20,  15, image::ButtonLcd,        148,  Page::Sampler, Role::None,     4,  0, 18},
    {Widget::TabColumn,       72, 166,   0,   0, image::TabSampleLayer,   152,  Page::Sampler, Role::None,     1,  0,  0,   0,   0, 4, look::Normalized},
    {Widget::Monitor,        132, 166, 349,  70, kNoImage,              kNoId,  Page::Sampler, Role::None},
    {Widget::Momentary,      150, 154,  32,  10, image::SampleLayerIcons, 153,  Page::Sampler, Role::ResetStart},
    {Widget::Momentary,      300, 154,  32,  10, image::SampleLayerIcons, kNoId, Page::Sampler, Role::LayerCommand, 1, 0, 0, 32},
    {Widget::Momentary,      370, 154,  32,  10, image::SampleLayerIcons, kNoId, Page::Sampler, Role::LayerCommand, 3, 40, 0, 64,  32, 0, 0, 1},
    // Channel page
    {Widget::SmallKnob,      101, 163,   0,   0, image::KnobLcd,          182,  Page::Channel, Role::None,     1,  0,  0,   0,   0, 0, look::Detent},
    {Widget::SmallKnob,      245, 163,   0,   0, image::KnobLcd,          185,  Page::Channel, Role::None,     1,  0,  0,   0,   0, 0, look::Detent},
    {Widget::SmallKnob,      343, 163,   0,   0, image::KnobLcd,          187,  Page::Channel, Role::None,     1,  0,  0,   0,   0, 0, look::Detent},
    {Widget::List,            73, 132,  70,  16, kNoImage,                183,  Page::Channel, Role::Destination},
    {Widget::List,           217, 132,  70,  16, kNoImage,                186,  Page::Channel, Role::Destination},
    {Widget::List,           315, 132,  70,  16, kNoImage,                188,  Page::Channel, Role::Destination},
    {Widget::Toggle,         165, 152,  25,  15, image::ButtonLcd,        184,  Page::Channel, Role::None},
    {Widget::Toggle,         162, 212,  20,  15, image::ButtonLcd,        190,  Page::Channel, Role::None},
    {Widget::DarkNumber,     429, 147,  30,  16, kNoImage,                189,  Page::Channel, Role::None},
    {Widget::SmallKnob,      210, 211,   0,   0, image::KnobLcd,          191,  Page::Channel, Role::None,     5, 50,  0,   0,   0, 0, look::Detent},
    // Programs
    {Widget::List,           164, 240, 115,  16, kNoImage,              kNoId,  Page::All,     Role::FolderList},
    {Widget::List,           356, 240, 115,  16, kNoImage,              kNoId,  Page::All,     Role::ProgramMenu},
    {Widget::Momentary,      345, 239,  11,  18, image::ProgramArrows,  kNoId,  Page::All,     Role::ProgramArrow, 2, 126, 0, 0, 11},
    // Groove, MIDI links, screen
    {Widget::List,           903,  31, 120,  38, kNoImage,      kGrooveMenuId,  Page::All,     Role::GrooveMenu, 1, 0, 0,  0,   0, 0, look::Amber},
    {Widget::Score,          -50, -50,  20,  20, kNoImage,              kNoId,  Page::All,     Role::Score},
    {Widget::Toggle,         734,  35,  16,  26, image::LinkSwitch,     kNoId,  Page::All,     Role::LinkSwitch},
    {Widget::Toggle,         734,  67,  99,  11, image::IgnoreController, kNoId, Page::All,    Role::IgnoreController},
    {Widget::GlowingText,    779,  32, 110,  16, kNoImage,              kNoId,  Page::All,     Role::LinkText, 2,  0, 18},
    {Widget::Toggle,          67, 238,  58,  20, image::ScreenSwitch, kScreenSwitchId, Page::All, Role::ScreenSwitch},
};
// clang-format on

/// Drawn over what the page shows there.
constexpr bool ShowsPage(Widget widget) { return widget >= Widget::Fader && widget <= Widget::GlowingText; }

inline constexpr int kKnobFrames = 129, kSmallKnobFrames = 141;
inline constexpr Rect kLogoArea{420, 0, 300, 80}; // a click there opens the about page

/// Where a control of a row stands.
/// picture  the size of its image
constexpr Rect PlaceOf(const ControlRow& row, int n, Size picture)
{
    constexpr int kFaderHeight = 107;
    const int x = row.x + n * row.dx, y = row.y + n * row.dy;
    switch (row.widget) {
    case Widget::Knob: return {x, y, picture.width, picture.height / kKnobFrames};
    case Widget::SmallKnob: return {x - 3, y - 3, picture.width, picture.height / kSmallKnobFrames};
    case Widget::Steps: return {x, y, picture.width, picture.height / row.parts};
    case Widget::LedTab: return {x, y, picture.width / 2, picture.height / 2 * row.parts};
    case Widget::Tab: return {x, y, picture.width, picture.height / 2};
    case Widget::TabColumn: return {x, y, picture.width / row.parts, picture.height / 2 * row.parts};
    case Widget::Fader: return {x + 1, y - 10, 17, kFaderHeight};
    case Widget::LevelFader: return {x + 1, y - 10, picture.width, kFaderHeight + 20};
    default: return {x, y, row.w, row.h};
    }
}

} // namespace korvane
