// Every control of the instrument that a host, a MIDI link or the editor can move.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

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
    EngineFlag = 180,    HostCount = 154,
    Count = 196,
    // clang-format on
};
} // namespace param

/// Channel parameter indices (0..211). Those of a bank name its first member.
namespace slot {
enum : int {
    // clang-format off
    MixLevel = 0,
    Panning = 1,
    Pitch = 2,
    NoteLength = 3,
    AmpAttack = 4,
    AmpDecay = 5,
    AmpSustain = 6,
    AmpRelease = 7,
    AmpLevel = 8,
    ShuffleEnable = 9,
    SlideTime = 10,
    SlideEnable = 11,
    FilterCutoff = 12,
    FilterResonance = 13,
    FilterTracking = 14,
    FilterType = 15,
    EnvelopeAmount = 16,
    EnvelopeInvert = 18,
    EnvelopeAttack = 20,
    EnvelopeDecay = 22,
    EnvelopeDestination = 24,
    LfoRetrig = 26,
    LfoAmount = 28,
    LfoInvert = 30,
    LfoShape = 32,
    LfoRate = 34,
    LfoSync = 36,
    LfoDestination = 38,
    MonoVoice = 40,
    UnisonVoices = 41,
    UnisonDetune = 42,
    UnisonStereo = 43,
    Octave = 44,
    NoiseMix = 45,
    UnisonPhase = 46,
    UnisonRetrig = 47,
    MixOsc2 = 48,
    MixOsc3 = 49,
    Modulation = 50,
    ModKind = 51,
    PhaseOffsetOsc2 = 52,
    PhaseRetrigOsc2 = 53,
    Osc2Invert = 54,
    Osc1Pitch = 55,
    Osc1Detune = 56,
    Osc2Pitch = 57,
    Osc2Detune = 58,
    Osc3Pitch = 59,
    Osc3Detune = 60,
    LayerLevel = 61,
    LayerPan = 65,
    LayerPitch = 69,
    LayerAttack = 73,
    LayerHold = 77,
    LayerDecay = 81,
    LayerLoCut = 85,
    LayerHiCut = 89,
    LayerBandwidth = 93,
    LayerDelay = 97,
    LayerStart = 101,
    LayerInvert = 105,
    LayerReverse = 109,
    LayerBypass = 113,
    FxX = 117,
    FxY = 127,
    FxLfoRate = 137,
    FxGlue = 147,
    FxLfoShape = 157,
    FxLfoSync = 167,
    FxLfoAmount = 177,
    FxBypassStutter = 187,
    VelocityAmount = 198,
    VelocityDestination = 199,
    VelocitySensitivity = 200,
    WheelAmount = 201,
    WheelDestination = 202,
    PressureAmount = 203,
    PressureDestination = 204,
    BendRange = 205,
    EqOn = 206,
    EqGain = 207,    Count = 212,
    // clang-format on
};
} // namespace slot

/// Which selection a channel parameter index is banked by.
enum class Bank : std::uint8_t { None, Envelope, Lfo, Layer, Fx };

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
    Percent, Sync, MixDb, Pan, Semitones24, Length, AmpDb, Voices, Semitones36, Detune, Bipolar, Smt, GainDb,
};

inline constexpr int kFromProgram = -1; // read back: the value last written
inline constexpr int kEngineState = -2; // read back: a state of the engine

struct ParameterInfo {
    int index;
    const char* name;
    Kind kind;
    int slotBase;       // channel parameter before banking, or kFromProgram, kEngineState
    float defaultValue; // what the editor resets the control to; a channel's block starts elsewhere
    Display display;
};

// clang-format off
inline constexpr std::array<ParameterInfo, param::Count> kParameters {{
//   index shown name                            a write        a read                         reset to      text
    {  0, "Shuffle Amuont",                     Kind::Value,   kEngineState,                 0.0f,        Display::Percent},
    {  1, "TRSNP: Play",                        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    {  2, "TRSNP: Play Bar",                    Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    {  3, "TRSNP: Record Mode",                 Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    {  4, "TRSNP: FW",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {  5, "TRSNP: FF",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {  6, "TRSNP: Edit Mode",                   Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    {  7, "TRSNP: Clear",                       Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {  8, "TRSNP: Copy",                        Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {  9, "TRSNP: Paste",                       Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 10, "Mute Selected Tracks",               Kind::Change,  kFromProgram,                 0.0f,        Display::Percent},
    { 11, "Solo Currrent Track",                Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 12, "PATTERN 1",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 13, "PATTERN 2",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 14, "PATTERN 3",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 15, "PATTERN 4",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 16, "PATTERN 5",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 17, "PATTERN 6",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 18, "PATTERN 7",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 19, "PATTERN 8",                          Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 20, "Ptrn Play Once",                     Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 21, "CHANNEL 1: Sampler 1",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 22, "CHANNEL 2: Sampler 2",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 23, "CHANNEL 3: Sampler 3",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 24, "CHANNEL 4: Sampler 4",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 25, "CHANNEL 5: Sampler 5",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 26, "CHANNEL 6: Sampler 6",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 27, "CHANNEL 7: Sampler 7",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 28, "CHANNEL 8: Sampler 8",               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 29, "CHANNEL 9: Synth 1",                 Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 30, "CHANNEL 10: Synth 2",                Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 31, "CHANNEL 11: Synth 3",                Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 32, "CHANNEL 12: Synth 4",                Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 33, "CHANNEL 13: Synth 5",                Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 34, "CHANNEL 1: Sampler 1 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 35, "CHANNEL 2: Sampler 2 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 36, "CHANNEL 3: Sampler 3 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 37, "CHANNEL 4: Sampler 4 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 38, "CHANNEL 5: Sampler 5 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 39, "CHANNEL 6: Sampler 6 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 40, "CHANNEL 7: Sampler 7 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 41, "CHANNEL 8: Sampler 8 Enable",        Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 42, "CHANNEL 9: Synth 1 Enable",          Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 43, "CHANNEL 10: Synth 2 Enable",         Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 44, "CHANNEL 11: Synth 3 Enable",         Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 45, "CHANNEL 12: Synth 4 Enable",         Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 46, "CHANNEL 13: Synth 5 Enable",         Kind::Follow,  kEngineState,                 0.0f,        Display::Percent},
    { 47, "EXT Ctrl 1",                         Kind::Value,   kEngineState,                 0.0f,        Display::Percent},
    { 48, "EXT Ctrl 2",                         Kind::Value,   kEngineState,                 0.0f,        Display::Percent},
    { 49, "EXT Ctrl 3",                         Kind::Value,   kEngineState,                 0.0f,        Display::Percent},
    { 50, "EXT Ctrl 4",                         Kind::Value,   kEngineState,                 0.0f,        Display::Percent},
    { 51, "EXT Ctrl 5",                         Kind::Value,   kEngineState,                 0.0f,        Display::Percent},
    { 52, "EXT Ctrl Learn",                     Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 53, "FX 1",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 54, "FX 2",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 55, "FX 3",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 56, "FX 4",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 57, "FX 5",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 58, "FX 6",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 59, "FX 7",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 60, "FX 8",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 61, "FX 9",                               Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 62, "FX 10",                              Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    { 63, "STUTTER 1/1",                        Kind::Change,  kEngineState,                 0.0f,        Display::Percent},
    { 64, "STUTTER 3/4",                        Kind::Change,  kEngineState,                 0.0f,        Display::Percent},
    { 65, "STUTTER 1/2",                        Kind::Change,  kEngineState,                 0.0f,        Display::Percent},
    { 66, "STUTTER 3/8",                        Kind::Change,  kEngineState,                 0.0f,        Display::Percent},
    { 67, "unknown",                            Kind::None,    kFromProgram,                 0.0f,        Display::Percent},
    { 68, "STUTTER 1/4",                        Kind::Change,  kEngineState,                 0.0f,        Display::Percent},
    { 69, "FX Activate",                        Kind::Select,  kFromProgram,                 0.0f,        Display::Percent},
    { 70, "FX Glue",                            Kind::Value,   slot::FxGlue,                 0.0f,        Display::Percent},
    { 71, "FX LFO Rate",                        Kind::Value,   slot::FxLfoRate,              0.5f,        Display::Sync},
    { 72, "FX LFO Amount",                      Kind::Value,   slot::FxLfoAmount,            0.5f,        Display::Percent},
    { 73, "FX LFO Shape Switch",                Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 74, "FX LFO Shape",                       Kind::Value,   slot::FxLfoShape,             0.0f,        Display::Percent},
    { 75, "FX LFO Sync Switch",                 Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 76, "FX LFO Sync",                        Kind::Value,   slot::FxLfoSync,              0.0f,        Display::Percent},
    { 77, "FX Param X",                         Kind::Value,   slot::FxX,                    0.5f,        Display::Percent},
    { 78, "FX Param Y",                         Kind::Value,   slot::FxY,                    0.5f,        Display::Percent},
    { 79, "FX Bypass Stutter",                  Kind::Value,   slot::FxBypassStutter,        0.0f,        Display::Percent},
    { 80, "CHN: Mix Level",                     Kind::Value,   slot::MixLevel,               0.75f,       Display::MixDb},
    { 81, "CHN: Panning",                       Kind::Value,   slot::Panning,                0.5f,        Display::Pan},
    { 82, "CHN: Pitch",                         Kind::Value,   slot::Pitch,                  0.5f,        Display::Semitones24},
    { 83, "CHN: Note Length",                   Kind::Value,   slot::NoteLength,             1.0f / 3.0f, Display::Length},
    { 84, "CHN: Amp Attack",                    Kind::Value,   slot::AmpAttack,              0.0f,        Display::Percent},
    { 85, "CHN: Amp Decay",                     Kind::Value,   slot::AmpDecay,               1.0f,        Display::Percent},
    { 86, "CHN: Amp Sustain",                   Kind::Value,   slot::AmpSustain,             1.0f,        Display::Percent},
    { 87, "CHN: Amp Release",                   Kind::Value,   slot::AmpRelease,             0.1f,        Display::Percent},
    { 88, "CHN: Amp Level",                     Kind::Value,   slot::AmpLevel,               0.5f,        Display::AmpDb},
    { 89, "CHN: Shuffle Enable",                Kind::Value,   slot::ShuffleEnable,          0.0f,        Display::Percent},
    { 90, "CHN: Slide Time",                    Kind::Value,   slot::SlideTime,              0.0f,        Display::Percent},
    { 91, "CHN: Slide Enable",                  Kind::Value,   slot::SlideEnable,            0.0f,        Display::Percent},
    { 92, "Filter Cutoff",                      Kind::Value,   slot::FilterCutoff,           1.0f,        Display::Percent},
    { 93, "Filter Resonance",                   Kind::Value,   slot::FilterResonance,        0.0f,        Display::Percent},
    { 94, "Filter KBD Tracking",                Kind::Value,   slot::FilterTracking,         0.0f,        Display::Percent},
    { 95, "Filter Type",                        Kind::Value,   slot::FilterType,             0.0f,        Display::Percent},
    { 96, "Filter Type Switch",                 Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 97, "Envelope Number",                    Kind::Select,  kEngineState,                 0.0f,        Display::Percent},
    { 98, "Envelope Destination Switch",        Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    { 99, "Envelope Destination",               Kind::Value,   slot::EnvelopeDestination,    0.0f,        Display::Percent},
    {100, "Envelope Attack",                    Kind::Value,   slot::EnvelopeAttack,         0.0f,        Display::Percent},
    {101, "Envelope Decay",                     Kind::Value,   slot::EnvelopeDecay,          1.0f,        Display::Percent},
    {102, "Envelope Amount",                    Kind::Value,   slot::EnvelopeAmount,         0.0f,        Display::Percent},
    {103, "Envelope Invert",                    Kind::Value,   slot::EnvelopeInvert,         0.0f,        Display::Percent},
    {104, "LFO Number",                         Kind::Select,  kEngineState,                 0.0f,        Display::Percent},
    {105, "LFO Rate",                           Kind::Value,   slot::LfoRate,                0.5f,        Display::Sync},
    {106, "LFO Amount",                         Kind::Value,   slot::LfoAmount,              0.0f,        Display::Percent},
    {107, "LFO Retrig",                         Kind::Value,   slot::LfoRetrig,              0.0f,        Display::Percent},
    {108, "LFO Invert",                         Kind::Value,   slot::LfoInvert,              0.0f,        Display::Percent},
    {109, "LFO Sync Switch",                    Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {110, "LFO Sync",                           Kind::Value,   slot::LfoSync,                0.0f,        Display::Percent},
    {111, "LFO Destination Switch",             Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {112, "LFO Destination",                    Kind::Value,   slot::LfoDestination,         0.0f,        Display::Percent},
    {113, "LFO Shape Switch",                   Kind::Trigger, kFromProgram,                 0.0f,        Display::Percent},
    {114, "LFO Shape",                          Kind::Value,   slot::LfoShape,               0.0f,        Display::Percent},
    {115, "SYNTH: Mono Voice",                  Kind::Value,   slot::MonoVoice,              0.0f,        Display::Percent},
    {116, "SYNTH: Unison Voices",               Kind::Value,   slot::UnisonVoices,           0.0f,        Display::Voices},
    {117, "SYNTH: Unison Detune",               Kind::Value,   slot::UnisonDetune,           0.25f,       Display::Percent},
    {118, "SYNTH: Unison Stereo",               Kind::Value,   slot::UnisonStereo,           0.0f,        Display::Percent},
    {119, "SYNTH: Octave",                      Kind::Value,   slot::Octave,                 0.5f,        Display::Percent},
    {120, "SYNTH: Noise Mix",                   Kind::Value,   slot::NoiseMix,               0.0f,        Display::Percent},
    {121, "SYNTH: Unison Phase",                Kind::Value,   slot::UnisonPhase,            0.0f,        Display::Percent},
    {122, "SYNTH: Unison Phase Retrig",         Kind::Value,   slot::UnisonRetrig,           0.0f,        Display::Percent},
    {123, "SYNTH: Mix Oscllator 2",             Kind::Value,   slot::MixOsc2,                1.0f,        Display::Percent},
    {124, "SYNTH: Mix Oscillator 3",            Kind::Value,   slot::MixOsc3,                0.0f,        Display::Percent},
    {125, "SYNTH: Modulation",                  Kind::Value,   slot::Modulation,             0.0f,        Display::Percent},
    {126, "SYNTH: Mod Kind",                    Kind::Value,   slot::ModKind,                0.0f,        Display::Percent},
    {127, "SYNTH: Phase Offset Osc 2",          Kind::Value,   slot::PhaseOffsetOsc2,        0.0f,        Display::Percent},
    {128, "SYNTH: Phase Retrig Osc 2",          Kind::Value,   slot::PhaseRetrigOsc2,        0.0f,        Display::Percent},
    {129, "SYNTH: Osc 2 Invert",                Kind::Value,   slot::Osc2Invert,             0.0f,        Display::Percent},
    {130, "SYNTH: Osc 1 Pitch",                 Kind::Value,   slot::Osc1Pitch,              0.5f,        Display::Semitones36},
    {131, "SYNTH: Osc 1 Detune",                Kind::Value,   slot::Osc1Detune,             0.5f,        Display::Detune},
    {132, "SYNTH: Osc 2 Pitch",                 Kind::Value,   slot::Osc2Pitch,              0.5f,        Display::Semitones36},
    {133, "SYNTH: Osc 2 Detune",                Kind::Value,   slot::Osc2Detune,             0.5f,        Display::Detune},
    {134, "SYNTH: Osc 3 Pitch",                 Kind::Value,   slot::Osc3Pitch,              0.5f,        Display::Semitones36},
    {135, "SYNTH: Osc 3 Detune",                Kind::Value,   slot::Osc3Detune,             0.5f,        Display::Detune},
    {136, "SAMPLER: Layer Level",               Kind::Value,   slot::LayerLevel,             0.5f,        Display::Percent},
    {137, "SAMPLER: Layer Pan",                 Kind::Value,   slot::LayerPan,               0.5f,        Display::Percent},
    {138, "SAMPLER: Layer Pitch",               Kind::Value,   slot::LayerPitch,             0.5f,        Display::Percent},
    {139, "SAMPLER: Layer Attack",              Kind::Value,   slot::LayerAttack,            0.0f,        Display::Percent},
    {140, "SAMPLER: Layer Hold",                Kind::Value,   slot::LayerHold,              0.0f,        Display::Percent},
    {141, "SAMPLER: Layer Decay",               Kind::Value,   slot::LayerDecay,             1.0f,        Display::Percent},
    {142, "SAMPLER: Layer Lo-Cut",              Kind::Value,   slot::LayerLoCut,             0.0f,        Display::Percent},
    {143, "SAMPLER: Layer Hi-Cut",              Kind::Value,   slot::LayerHiCut,             1.0f,        Display::Percent},
    {144, "SAMPLER: Layer Filters BW",          Kind::Value,   slot::LayerBandwidth,         0.0f,        Display::Percent},
    {145, "SAMPLER: Layer Delay",               Kind::Value,   slot::LayerDelay,             0.0f,        Display::Percent},
    {146, "SAMPLER: Layer Invert",              Kind::Value,   slot::LayerInvert,            0.0f,        Display::Percent},
    {147, "SAMPLER: Layer Reverse",             Kind::Value,   slot::LayerReverse,           0.0f,        Display::Percent},
    {148, "SAMPLER: Layer 1 Bypass",            Kind::Value,   slot::LayerBypass,            0.0f,        Display::Percent},
    {149, "SAMPLER: Layer 2 Bypass",            Kind::Value,   slot::LayerBypass + 1,        0.0f,        Display::Percent},
    {150, "SAMPLER: Layer 3 Bypass",            Kind::Value,   slot::LayerBypass + 2,        0.0f,        Display::Percent},
    {151, "SAMPLER: Layer 4 Bypass",            Kind::Value,   slot::LayerBypass + 3,        0.0f,        Display::Percent},
    {152, "SAMPLER: Layer Number",              Kind::Select,  kEngineState,                 0.0f,        Display::Percent},
    {153, "SAMPLER: Layer Reset Start",         Kind::None,    kFromProgram,                 0.0f,        Display::Percent},
    {154, "unknown",                            Kind::None,    kFromProgram,                 0.0f,        Display::Percent},
    {155, "SEQ Step 1",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {156, "SEQ Step 2",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {157, "SEQ Step 3",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {158, "SEQ Step 4",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {159, "SEQ Step 5",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {160, "SEQ Step 6",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {161, "SEQ Step 7",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {162, "SEQ Step 8",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {163, "SEQ Step 9",                         Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {164, "SEQ Step 10",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {165, "SEQ Step 11",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {166, "SEQ Step 12",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {167, "SEQ Step 13",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {168, "SEQ Step 14",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {169, "SEQ Step 15",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {170, "SEQ Step 16",                        Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {171, "SEQ Step Bar 1",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {172, "SEQ Step Bar 2",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {173, "SEQ Step Bar 3",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {174, "SEQ Step Bar 4",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {175, "SEQ Step Bar 5",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {176, "SEQ Step Bar 6",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {177, "SEQ Step Bar 7",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {178, "SEQ Step Bar 8",                     Kind::Press,   kFromProgram,                 0.0f,        Display::Percent},
    {179, "unknown",                            Kind::None,    kFromProgram,                 0.0f,        Display::Percent},
    {180, "unknown",                            Kind::None,    kEngineState,                 0.0f,        Display::Percent},
    {181, "unknown",                            Kind::None,    kFromProgram,                 0.0f,        Display::Percent},
    {182, "unknown",                            Kind::Value,   slot::VelocityAmount,         0.5f,        Display::Bipolar},
    {183, "unknown",                            Kind::Value,   slot::VelocityDestination,    0.0f,        Display::Percent},
    {184, "unknown",                            Kind::Value,   slot::VelocitySensitivity,    0.0f,        Display::Percent},
    {185, "unknown",                            Kind::Value,   slot::WheelAmount,            0.5f,        Display::Bipolar},
    {186, "unknown",                            Kind::Value,   slot::WheelDestination,       0.0f,        Display::Percent},
    {187, "unknown",                            Kind::Value,   slot::PressureAmount,         0.5f,        Display::Bipolar},
    {188, "unknown",                            Kind::Value,   slot::PressureDestination,    0.0f,        Display::Percent},
    {189, "unknown",                            Kind::Value,   slot::BendRange,              1.0f / 6.0f, Display::Smt},
    {190, "unknown",                            Kind::Value,   slot::EqOn,                   0.0f,        Display::Percent},
    {191, "unknown",                            Kind::Value,   slot::EqGain,                 0.5f,        Display::GainDb},
    {192, "unknown",                            Kind::Value,   slot::EqGain + 1,             0.5f,        Display::GainDb},
    {193, "unknown",                            Kind::Value,   slot::EqGain + 2,             0.5f,        Display::GainDb},
    {194, "unknown",                            Kind::Value,   slot::EqGain + 3,             0.5f,        Display::GainDb},
    {195, "unknown",                            Kind::Value,   slot::EqGain + 4,             0.5f,        Display::GainDb},
}};
// clang-format on

constexpr bool EveryRowStandsAtItsIndex()
{
    for (std::size_t n = 0; n < kParameters.size(); ++n)
        if (kParameters[n].index != static_cast<int>(n)) return false;
    return true;
}
static_assert(EveryRowStandsAtItsIndex());

/// The bank of a base, Bank::None for every other index.
Bank BankOf(int base);

/// Value of a channel parameter in a new channel.
/// index    0..211
float ChannelBlockDefault(int index, bool isSampler);

/// Writes the text of a value, at most 31 characters and a zero.
void FormatDisplay(Display display, float value, char* buffer);

} // namespace korvane
