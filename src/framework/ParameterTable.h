// Every control of the instrument that a host, a MIDI link or the editor can move.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "framework/ChannelSlots.h"

namespace korvane {

/// Parameter indices; hosts see those below HostCount.
namespace param {
enum : int {
    // clang-format off
    ShuffleAmount = 0,
    Play = 1,
    PlayBar = 2,
    Record = 3,
    Back = 4,
    Forward = 5,
    Edit = 6,
    Clear = 7,
    Copy = 8,
    Paste = 9,
    MuteSelected = 10,
    Solo = 11,
    Pattern1 = 12,
    PlayOnce = 20,
    Channel1 = 21,
    Enable1 = 34,
    Ext1 = 47,
    ExtLearn = 52,
    Fx1 = 53,
    Stutter1_1 = 63,
    Stutter3_4 = 64,
    Stutter1_2 = 65,
    Stutter3_8 = 66,
    Stutter1_4 = 68,
    FxActivate = 69,
    FxLfoShapeSwitch = 73,
    FxLfoSyncSwitch = 75,
    FxX = 77,
    FxY = 78,
    FilterTypeSwitch = 96,
    EnvelopeNumber = 97,
    EnvelopeDestinationSwitch = 98,
    LfoNumber = 104,
    LfoSyncSwitch = 109,
    LfoDestinationSwitch = 111,
    LfoShapeSwitch = 113,
    LayerNumber = 152,
    LayerResetStart = 153,
    Step1 = 155,
    Bar1 = 171,
    EngineFlag = 180,
    HostCount = 154,
    Count = 196,
    // clang-format on
};
} // namespace param

/// How a written value acts on the engine; "on" means not 0.
enum class Kind : std::uint8_t {
    Value,   // applied as it is
    Follow,  // toggles an engine state that differs
    Trigger, // acts on a rising edge
    Change,  // acts on every edge
    Press,   // presses and releases a button
    Select,  // chooses a page
    None,    // stored only
};

/// Rule of the value's text.
enum class Display : std::uint8_t {
    Percent,
    Sync,
    MixDb,
    Pan,
    Semitones24,
    Length,
    AmpDb,
    Voices,
    Semitones36,
    Detune,
    Bipolar,
    Smt,
    GainDb,
};

inline constexpr int kFromProgram = -1; // read back: the value last written
inline constexpr int kEngineState = -2; // read back: a state of the engine

struct ParameterInfo {
    int index;
    const char* name;
    Kind kind;
    int slotBase; // channel parameter before banking, or kFromProgram, kEngineState
    Display display;
    float defaultValue = slotBase < 0 ? 0.0f : SlotOf(slotBase).resetValue; // what the editor resets the control to
};

// clang-format off
inline constexpr std::array<ParameterInfo, param::Count> kParameters {{
//   index shown name                            a write        a read                         text
    {  0, "Shuffle Amuont",                     Kind::Value,   kEngineState,                 Display::Percent},
    {  1, "TRSNP: Play",                        Kind::Follow,  kEngineState,                 Display::Percent},
    {  2, "TRSNP: Play Bar",                    Kind::Follow,  kEngineState,                 Display::Percent},
    {  3, "TRSNP: Record Mode",                 Kind::Follow,  kEngineState,                 Display::Percent},
    {  4, "TRSNP: FW",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    {  5, "TRSNP: FF",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    {  6, "TRSNP: Edit Mode",                   Kind::Follow,  kEngineState,                 Display::Percent},
    {  7, "TRSNP: Clear",                       Kind::Trigger, kFromProgram,                 Display::Percent},
    {  8, "TRSNP: Copy",                        Kind::Trigger, kFromProgram,                 Display::Percent},
    {  9, "TRSNP: Paste",                       Kind::Trigger, kFromProgram,                 Display::Percent},
    { 10, "Mute Selected Tracks",               Kind::Change,  kFromProgram,                 Display::Percent},
    { 11, "Solo Currrent Track",                Kind::Follow,  kEngineState,                 Display::Percent},
    { 12, "PATTERN 1",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 13, "PATTERN 2",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 14, "PATTERN 3",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 15, "PATTERN 4",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 16, "PATTERN 5",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 17, "PATTERN 6",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 18, "PATTERN 7",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 19, "PATTERN 8",                          Kind::Trigger, kFromProgram,                 Display::Percent},
    { 20, "Ptrn Play Once",                     Kind::Follow,  kEngineState,                 Display::Percent},
    { 21, "CHANNEL 1: Sampler 1",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 22, "CHANNEL 2: Sampler 2",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 23, "CHANNEL 3: Sampler 3",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 24, "CHANNEL 4: Sampler 4",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 25, "CHANNEL 5: Sampler 5",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 26, "CHANNEL 6: Sampler 6",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 27, "CHANNEL 7: Sampler 7",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 28, "CHANNEL 8: Sampler 8",               Kind::Press,   kFromProgram,                 Display::Percent},
    { 29, "CHANNEL 9: Synth 1",                 Kind::Press,   kFromProgram,                 Display::Percent},
    { 30, "CHANNEL 10: Synth 2",                Kind::Press,   kFromProgram,                 Display::Percent},
    { 31, "CHANNEL 11: Synth 3",                Kind::Press,   kFromProgram,                 Display::Percent},
    { 32, "CHANNEL 12: Synth 4",                Kind::Press,   kFromProgram,                 Display::Percent},
    { 33, "CHANNEL 13: Synth 5",                Kind::Press,   kFromProgram,                 Display::Percent},
    { 34, "CHANNEL 1: Sampler 1 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 35, "CHANNEL 2: Sampler 2 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 36, "CHANNEL 3: Sampler 3 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 37, "CHANNEL 4: Sampler 4 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 38, "CHANNEL 5: Sampler 5 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 39, "CHANNEL 6: Sampler 6 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 40, "CHANNEL 7: Sampler 7 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 41, "CHANNEL 8: Sampler 8 Enable",        Kind::Follow,  kEngineState,                 Display::Percent},
    { 42, "CHANNEL 9: Synth 1 Enable",          Kind::Follow,  kEngineState,                 Display::Percent},
    { 43, "CHANNEL 10: Synth 2 Enable",         Kind::Follow,  kEngineState,                 Display::Percent},
    { 44, "CHANNEL 11: Synth 3 Enable",         Kind::Follow,  kEngineState,                 Display::Percent},
    { 45, "CHANNEL 12: Synth 4 Enable",         Kind::Follow,  kEngineState,                 Display::Percent},
    { 46, "CHANNEL 13: Synth 5 Enable",         Kind::Follow,  kEngineState,                 Display::Percent},
    { 47, "EXT Ctrl 1",                         Kind::Value,   kEngineState,                 Display::Percent},
    { 48, "EXT Ctrl 2",                         Kind::Value,   kEngineState,                 Display::Percent},
    { 49, "EXT Ctrl 3",                         Kind::Value,   kEngineState,                 Display::Percent},
    { 50, "EXT Ctrl 4",                         Kind::Value,   kEngineState,                 Display::Percent},
    { 51, "EXT Ctrl 5",                         Kind::Value,   kEngineState,                 Display::Percent},
    { 52, "EXT Ctrl Learn",                     Kind::Trigger, kFromProgram,                 Display::Percent},
    { 53, "FX 1",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 54, "FX 2",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 55, "FX 3",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 56, "FX 4",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 57, "FX 5",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 58, "FX 6",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 59, "FX 7",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 60, "FX 8",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 61, "FX 9",                               Kind::Press,   kFromProgram,                 Display::Percent},
    { 62, "FX 10",                              Kind::Press,   kFromProgram,                 Display::Percent},
    { 63, "STUTTER 1/1",                        Kind::Change,  kEngineState,                 Display::Percent},
    { 64, "STUTTER 3/4",                        Kind::Change,  kEngineState,                 Display::Percent},
    { 65, "STUTTER 1/2",                        Kind::Change,  kEngineState,                 Display::Percent},
    { 66, "STUTTER 3/8",                        Kind::Change,  kEngineState,                 Display::Percent},
    { 67, "unknown",                            Kind::None,    kFromProgram,                 Display::Percent},
    { 68, "STUTTER 1/4",                        Kind::Change,  kEngineState,                 Display::Percent},
    { 69, "FX Activate",                        Kind::Select,  kFromProgram,                 Display::Percent},
    { 70, "FX Glue",                            Kind::Value,   slot::FxGlue,                 Display::Percent},
    { 71, "FX LFO Rate",                        Kind::Value,   slot::FxLfoRate,              Display::Sync},
    { 72, "FX LFO Amount",                      Kind::Value,   slot::FxLfoAmount,            Display::Percent},
    { 73, "FX LFO Shape Switch",                Kind::Trigger, kFromProgram,                 Display::Percent},
    { 74, "FX LFO Shape",                       Kind::Value,   slot::FxLfoShape,             Display::Percent},
    { 75, "FX LFO Sync Switch",                 Kind::Trigger, kFromProgram,                 Display::Percent},
    { 76, "FX LFO Sync",                        Kind::Value,   slot::FxLfoSync,              Display::Percent},
    { 77, "FX Param X",                         Kind::Value,   slot::FxX,                    Display::Percent},
    { 78, "FX Param Y",                         Kind::Value,   slot::FxY,                    Display::Percent},
    { 79, "FX Bypass Stutter",                  Kind::Value,   slot::FxBypassStutter,        Display::Percent},
    { 80, "CHN: Mix Level",                     Kind::Value,   slot::MixLevel,               Display::MixDb},
    { 81, "CHN: Panning",                       Kind::Value,   slot::Panning,                Display::Pan},
    { 82, "CHN: Pitch",                         Kind::Value,   slot::Pitch,                  Display::Semitones24},
    { 83, "CHN: Note Length",                   Kind::Value,   slot::NoteLength,             Display::Length},
    { 84, "CHN: Amp Attack",                    Kind::Value,   slot::AmpAttack,              Display::Percent},
    { 85, "CHN: Amp Decay",                     Kind::Value,   slot::AmpDecay,               Display::Percent},
    { 86, "CHN: Amp Sustain",                   Kind::Value,   slot::AmpSustain,             Display::Percent},
    { 87, "CHN: Amp Release",                   Kind::Value,   slot::AmpRelease,             Display::Percent},
    { 88, "CHN: Amp Level",                     Kind::Value,   slot::AmpLevel,               Display::AmpDb},
    { 89, "CHN: Shuffle Enable",                Kind::Value,   slot::ShuffleEnable,          Display::Percent},
    { 90, "CHN: Slide Time",                    Kind::Value,   slot::SlideTime,              Display::Percent},
    { 91, "CHN: Slide Enable",                  Kind::Value,   slot::SlideEnable,            Display::Percent},
    { 92, "Filter Cutoff",                      Kind::Value,   slot::FilterCutoff,           Display::Percent},
    { 93, "Filter Resonance",                   Kind::Value,   slot::FilterResonance,        Display::Percent},
    { 94, "Filter KBD Tracking",                Kind::Value,   slot::FilterTracking,         Display::Percent},
    { 95, "Filter Type",                        Kind::Value,   slot::FilterType,             Display::Percent},
    { 96, "Filter Type Switch",                 Kind::Trigger, kFromProgram,                 Display::Percent},
    { 97, "Envelope Number",                    Kind::Select,  kEngineState,                 Display::Percent},
    { 98, "Envelope Destination Switch",        Kind::Trigger, kFromProgram,                 Display::Percent},
    { 99, "Envelope Destination",               Kind::Value,   slot::EnvelopeDestination,    Display::Percent},
    {100, "Envelope Attack",                    Kind::Value,   slot::EnvelopeAttack,         Display::Percent},
    {101, "Envelope Decay",                     Kind::Value,   slot::EnvelopeDecay,          Display::Percent},
    {102, "Envelope Amount",                    Kind::Value,   slot::EnvelopeAmount,         Display::Percent},
    {103, "Envelope Invert",                    Kind::Value,   slot::EnvelopeInvert,         Display::Percent},
    {104, "LFO Number",                         Kind::Select,  kEngineState,                 Display::Percent},
    {105, "LFO Rate",                           Kind::Value,   slot::LfoRate,                Display::Sync},
    {106, "LFO Amount",                         Kind::Value,   slot::LfoAmount,              Display::Percent},
    {107, "LFO Retrig",                         Kind::Value,   slot::LfoRetrig,              Display::Percent},
    {108, "LFO Invert",                         Kind::Value,   slot::LfoInvert,              Display::Percent},
    {109, "LFO Sync Switch",                    Kind::Trigger, kFromProgram,                 Display::Percent},
    {110, "LFO Sync",                           Kind::Value,   slot::LfoSync,                Display::Percent},
    {111, "LFO Destination Switch",             Kind::Trigger, kFromProgram,                 Display::Percent},
    {112, "LFO Destination",                    Kind::Value,   slot::LfoDestination,         Display::Percent},
    {113, "LFO Shape Switch",                   Kind::Trigger, kFromProgram,                 Display::Percent},
    {114, "LFO Shape",                          Kind::Value,   slot::LfoShape,               Display::Percent},
    {115, "SYNTH: Mono Voice",                  Kind::Value,   slot::MonoVoice,              Display::Percent},
    {116, "SYNTH: Unison Voices",               Kind::Value,   slot::UnisonVoices,           Display::Voices},
    {117, "SYNTH: Unison Detune",               Kind::Value,   slot::UnisonDetune,           Display::Percent},
    {118, "SYNTH: Unison Stereo",               Kind::Value,   slot::UnisonStereo,           Display::Percent},
    {119, "SYNTH: Octave",                      Kind::Value,   slot::Octave,                 Display::Percent},
    {120, "SYNTH: Noise Mix",                   Kind::Value,   slot::NoiseMix,               Display::Percent},
    {121, "SYNTH: Unison Phase",                Kind::Value,   slot::UnisonPhase,            Display::Percent},
    {122, "SYNTH: Unison Phase Retrig",         Kind::Value,   slot::UnisonRetrig,           Display::Percent},
    {123, "SYNTH: Mix Oscllator 2",             Kind::Value,   slot::MixOsc2,                Display::Percent},
    {124, "SYNTH: Mix Oscillator 3",            Kind::Value,   slot::MixOsc3,                Display::Percent},
    {125, "SYNTH: Modulation",                  Kind::Value,   slot::Modulation,             Display::Percent},
    {126, "SYNTH: Mod Kind",                    Kind::Value,   slot::ModKind,                Display::Percent},
    {127, "SYNTH: Phase Offset Osc 2",          Kind::Value,   slot::PhaseOffsetOsc2,        Display::Percent},
    {128, "SYNTH: Phase Retrig Osc 2",          Kind::Value,   slot::PhaseRetrigOsc2,        Display::Percent},
    {129, "SYNTH: Osc 2 Invert",                Kind::Value,   slot::Osc2Invert,             Display::Percent},
    {130, "SYNTH: Osc 1 Pitch",                 Kind::Value,   slot::Osc1Pitch,              Display::Semitones36},
    {131, "SYNTH: Osc 1 Detune",                Kind::Value,   slot::Osc1Detune,             Display::Detune},
    {132, "SYNTH: Osc 2 Pitch",                 Kind::Value,   slot::Osc2Pitch,              Display::Semitones36},
    {133, "SYNTH: Osc 2 Detune",                Kind::Value,   slot::Osc2Detune,             Display::Detune},
    {134, "SYNTH: Osc 3 Pitch",                 Kind::Value,   slot::Osc3Pitch,              Display::Semitones36},
    {135, "SYNTH: Osc 3 Detune",                Kind::Value,   slot::Osc3Detune,             Display::Detune},
    {136, "SAMPLER: Layer Level",               Kind::Value,   slot::LayerLevel,             Display::Percent},
    {137, "SAMPLER: Layer Pan",                 Kind::Value,   slot::LayerPan,               Display::Percent},
    {138, "SAMPLER: Layer Pitch",               Kind::Value,   slot::LayerPitch,             Display::Percent},
    {139, "SAMPLER: Layer Attack",              Kind::Value,   slot::LayerAttack,            Display::Percent},
    {140, "SAMPLER: Layer Hold",                Kind::Value,   slot::LayerHold,              Display::Percent},
    {141, "SAMPLER: Layer Decay",               Kind::Value,   slot::LayerDecay,             Display::Percent},
    {142, "SAMPLER: Layer Lo-Cut",              Kind::Value,   slot::LayerLoCut,             Display::Percent},
    {143, "SAMPLER: Layer Hi-Cut",              Kind::Value,   slot::LayerHiCut,             Display::Percent},
    {144, "SAMPLER: Layer Filters BW",          Kind::Value,   slot::LayerBandwidth,         Display::Percent},
    {145, "SAMPLER: Layer Delay",               Kind::Value,   slot::LayerDelay,             Display::Percent},
    {146, "SAMPLER: Layer Invert",              Kind::Value,   slot::LayerInvert,            Display::Percent},
    {147, "SAMPLER: Layer Reverse",             Kind::Value,   slot::LayerReverse,           Display::Percent},
    {148, "SAMPLER: Layer 1 Bypass",            Kind::Value,   slot::LayerBypass,            Display::Percent},
    {149, "SAMPLER: Layer 2 Bypass",            Kind::Value,   slot::LayerBypass + 1,        Display::Percent},
    {150, "SAMPLER: Layer 3 Bypass",            Kind::Value,   slot::LayerBypass + 2,        Display::Percent},
    {151, "SAMPLER: Layer 4 Bypass",            Kind::Value,   slot::LayerBypass + 3,        Display::Percent},
    {152, "SAMPLER: Layer Number",              Kind::Select,  kEngineState,                 Display::Percent},
    {153, "SAMPLER: Layer Reset Start",         Kind::None,    kFromProgram,                 Display::Percent},
    {154, "unknown",                            Kind::None,    kFromProgram,                 Display::Percent},
    {155, "SEQ Step 1",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {156, "SEQ Step 2",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {157, "SEQ Step 3",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {158, "SEQ Step 4",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {159, "SEQ Step 5",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {160, "SEQ Step 6",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {161, "SEQ Step 7",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {162, "SEQ Step 8",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {163, "SEQ Step 9",                         Kind::Press,   kFromProgram,                 Display::Percent},
    {164, "SEQ Step 10",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {165, "SEQ Step 11",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {166, "SEQ Step 12",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {167, "SEQ Step 13",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {168, "SEQ Step 14",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {169, "SEQ Step 15",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {170, "SEQ Step 16",                        Kind::Press,   kFromProgram,                 Display::Percent},
    {171, "SEQ Step Bar 1",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {172, "SEQ Step Bar 2",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {173, "SEQ Step Bar 3",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {174, "SEQ Step Bar 4",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {175, "SEQ Step Bar 5",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {176, "SEQ Step Bar 6",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {177, "SEQ Step Bar 7",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {178, "SEQ Step Bar 8",                     Kind::Press,   kFromProgram,                 Display::Percent},
    {179, "unknown",                            Kind::None,    kFromProgram,                 Display::Percent},
    {180, "unknown",                            Kind::None,    kEngineState,                 Display::Percent},
    {181, "unknown",                            Kind::None,    kFromProgram,                 Display::Percent},
    {182, "unknown",                            Kind::Value,   slot::VelocityAmount,         Display::Bipolar},
    {183, "unknown",                            Kind::Value,   slot::VelocityDestination,    Display::Percent},
    {184, "unknown",                            Kind::Value,   slot::VelocitySensitivity,    Display::Percent},
    {185, "unknown",                            Kind::Value,   slot::WheelAmount,            Display::Bipolar},
    {186, "unknown",                            Kind::Value,   slot::WheelDestination,       Display::Percent},
    {187, "unknown",                            Kind::Value,   slot::PressureAmount,         Display::Bipolar},
    {188, "unknown",                            Kind::Value,   slot::PressureDestination,    Display::Percent},
    {189, "unknown",                            Kind::Value,   slot::BendRange,              Display::Smt},
    {190, "unknown",                            Kind::Value,   slot::EqOn,                   Display::Percent},
    {191, "unknown",                            Kind::Value,   slot::EqGain,                 Display::GainDb},
    {192, "unknown",                            Kind::Value,   slot::EqGain + 1,             Display::GainDb},
    {193, "unknown",                            Kind::Value,   slot::EqGain + 2,             Display::GainDb},
    {194, "unknown",                            Kind::Value,   slot::EqGain + 3,             Display::GainDb},
    {195, "unknown",                            Kind::Value,   slot::EqGain + 4,             Display::GainDb},
}};
// clang-format on

constexpr bool EveryRowStandsAtItsIndex()
{
    for (std::size_t n = 0; n < kParameters.size(); ++n)
        if (kParameters[n].index != static_cast<int>(n)) return false;
    return true;
}
static_assert(EveryRowStandsAtItsIndex());

/// Writes the text of a value, at most 31 characters and a zero.
void FormatDisplay(Display display, float value, char* buffer);

} // namespace korvane
