// How large each image is.
#pragma once

#include "editor/layout/Layout.h"

namespace korvane::skin {

struct ImageSize {
    int id; // of image::
    int width, height;
    bool alpha;
};

// clang-format off
inline constexpr ImageSize kImageSizes[] = {
    {image::ScoreEdit,         1065, 549,                    false},
    {image::DrumsEditor,       1065, 436,                    false},
    {image::NoteEditorButtons, 296,  94,                     true},
    {image::PageSampler,       1065, 630,                    false},
    {image::PageSynth,         1065, 630,                    false},
    {image::PageChannel,       1065, 630,                    false},
    {image::Knob,              35,   35 * kKnobFrames,       true},
    {image::ButtonSteps,       960,  276,                    true},
    {image::ButtonParts,       546,  294,                    true},
    {image::ButtonClear,       47,   58,                     true},
    {image::ButtonCopy,        47,   58,                     true},
    {image::ButtonPaste,       47,   58,                     true},
    {image::ButtonEdit,        63,   200,                    true},
    {image::ButtonPlay,        63,   200,                    true},
    {image::ButtonPrev,        63,   100,                    true},
    {image::ButtonNext,        63,   100,                    true},
    {image::Led,               28,   26,                     true},
    {image::ButtonMute,        39,   96,                     true},
    {image::ButtonSolo,        39,   192,                    true},
    {image::FaderHandle,       17,   28,                     true},
    {image::ButtonGlue,        48,   116,                    true},
    {image::ButtonPatterns,    336,  196,                    true},
    {image::ButtonStutter,     250,  66,                     true},
    {image::ButtonFX,          300,  62,                     true},
    {image::ButtonRec,         63,   200,                    true},
    {image::ButtonLcd,         25,   30,                     true},
    {image::FaderLcdHandle,    14,   20,                     true},
    {image::TabSampleLayer,    128,  36,                     true},
    {image::StepFaderHandle,   24,   38,                     true},
    {image::ButtonLink,        47,   116,                    true},
    {image::TabEnvelope,       72,   40,                     true},
    {image::TabLfo,            72,   40,                     true},
    {image::LoopBar,           39,   192,                    true},
    {image::FaderLevel,        33,   34,                     true},
    {image::KnobLcd,           22,   22 * kSmallKnobFrames,  true},
    {image::TabModKind,        195,  36,                     true},
    {image::Osc2Invert,        24,   18,                     true},
    {image::UnisonVoices,      54,   416,                    true},
    {image::UnisonStereo,      44,   120,                    true},
    {image::MonoVoice,         45,   50,                     true},
    {image::TabOctaves,        170,  24,                     true},
    {image::LinkSwitch,        16,   52,                     true},
    {image::IgnoreController,  99,   22,                     true},
    {image::TrackEnable,       14,   52,                     true},
    {image::ProgramArrows,     22,   36,                     true},
    {image::WaveArrows,        14,   22,                     true},
    {image::ScreenSwitch,      58,   40,                     true},
    {image::ButtonSynth,       32,   42,                     true},
    {image::ButtonSynthLed,    32,   96,                     true},
    {image::SampleLayerIcons,  160,  20,                     true},
    {image::About,             1065, 630,                    true},
};
// clang-format on

/// Of an image that is there.
constexpr const ImageSize& SizeOf(int id)
{
    for (const ImageSize& row : kImageSizes)
        if (row.id == id) return row;
    return kImageSizes[0];
}

/// Where a control of a row stands in the window.
constexpr Rect PlaceOf(const ControlRow& row, int n)
{
    for (const ImageSize& size : kImageSizes)
        if (size.id == row.image) return korvane::PlaceOf(row, n, Size{size.height, size.width});
    return korvane::PlaceOf(row, n, Size{});
}

} // namespace korvane::skin
