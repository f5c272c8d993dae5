// The skin's images: which file has which number.
#pragma once

#include <array>

namespace korvane {

namespace image {
// clang-format off
enum : int {
    ScoreEdit = 0, DrumsEditor = 1, NoteEditorButtons = 2, PageSampler = 3, PageSynth = 4, PageChannel = 5, Knob = 6,
    ButtonSteps = 7, ButtonParts = 8, ButtonClear = 9, ButtonCopy = 10, ButtonPaste = 11, ButtonEdit = 12,
    ButtonPlay = 13, ButtonPrev = 14, ButtonNext = 15, Led = 16, ButtonMute = 17, ButtonSolo = 18, FaderHandle = 20,
    ButtonGlue = 21, ButtonPatterns = 23, ButtonStutter = 24, ButtonFX = 25, ButtonRec = 26, ButtonLcd = 27,
    FaderLcdHandle = 29, TabSampleLayer = 30, StepFaderHandle = 31, ButtonLink = 32, TabEnvelope = 33, TabLfo = 34,
    LoopBar = 35, FaderLevel = 36, KnobLcd = 37, TabModKind = 38, Osc2Invert = 39, UnisonVoices = 40,
    UnisonStereo = 41, MonoVoice = 42, TabOctaves = 43, LinkSwitch = 44, IgnoreController = 45, TrackEnable = 46,
    ProgramArrows = 47, WaveArrows = 48, ScreenSwitch = 49, ButtonSynth = 50, ButtonSynthLed = 51,
    SampleLayerIcons = 52, About = 53
};
// clang-format on
} // namespace image

struct SkinImage {
    const char* file; // in the skin folder
    int id;           // of image::
};

// clang-format off
/// In the order in which they are read.
inline constexpr std::array<SkinImage, 51> kSkinImages {{
    {"1_Knob.tga",              image::Knob},
    {"1_BackgroundSynth.tga",   image::PageSynth},
    {"1_BackgroundSampler.tga", image::PageSampler},
    {"1_BackgroundChannel.tga", image::PageChannel},
    {"1_Led.tga",               image::Led},
    {"1_ButtonSynth.tga",       image::ButtonSynth},
    {"1_ButtonSynthLED.tga",    image::ButtonSynthLed},
    {"1_TabEnvelopeSwitch.tga", image::TabEnvelope},
    {"1_TabLFOSwitch.tga",      image::TabLfo},
    {"1_ButtonSteps.tga",       image::ButtonSteps},
    {"1_ButtonPatterns.tga",    image::ButtonPatterns},
    {"1_ButtonParts.tga",       image::ButtonParts},
    {"1_ButtonMute.tga",        image::ButtonMute},
    {"1_ButtonSolo.tga",        image::ButtonSolo},
    {"1_ButtonEdit.tga",        image::ButtonEdit},
    {"1_ButtonPlay.tga",        image::ButtonPlay},
    {"1_ButtonPrev.tga",        image::ButtonPrev},
    {"1_ButtonNext.tga",        image::ButtonNext},
    {"1_ButtonRec.tga",         image::ButtonRec},
    {"1_ButtonClear.tga",       image::ButtonClear},
    {"1_ButtonCopy.tga",        image::ButtonCopy},
    {"1_ButtonPaste.tga",       image::ButtonPaste},
    {"1_ButtonFX.tga",          image::ButtonFX},
    {"1_ButtonGlue.tga",        image::ButtonGlue},
    {"1_ButtonLink.tga",        image::ButtonLink},
    {"1_LoopBar.tga",           image::LoopBar},
    {"1_ButtonStutter.tga",     image::ButtonStutter},
    {"1_TabModKind.tga",        image::TabModKind},
    {"1_ButtonPrgArrows.tga",   image::ProgramArrows},
    {"1_FaderLevel.tga",        image::FaderLevel},
    {"1_SampleLayerIcons.tga",  image::SampleLayerIcons},
    {"1_WaveArrows.tga",        image::WaveArrows},
    {"1_ButtonScrSwitch.tga",   image::ScreenSwitch},
    {"1_NoteEditorButtons.tga", image::NoteEditorButtons},
    {"About.tga",               image::About},
    {"fader handle.tga",        image::FaderHandle},
    {"button lcd.tga",          image::ButtonLcd},
    {"fader lcd handle.tga",    image::FaderLcdHandle},
    {"tab sample layer.tga",    image::TabSampleLayer},
    {"step fader handle.tga",   image::StepFaderHandle},
    {"knob lcd.tga",            image::KnobLcd},
    {"button osc2 inv.tga",     image::Osc2Invert},
    {"knob unison voices.tga",  image::UnisonVoices},
    {"knob unison stereo.tga",  image::UnisonStereo},
    {"button mono voice.tga",   image::MonoVoice},
    {"tab octaves.tga",         image::TabOctaves},
    {"score edit.tga",          image::ScoreEdit},
    {"drums editor.tga",        image::DrumsEditor},
    {"midi link switch.tga",    image::LinkSwitch},
    {"ignore cc.tga",           image::IgnoreController},
    {"btn track enable.tga",    image::TrackEnable},
}};
// clang-format on

} // namespace korvane
