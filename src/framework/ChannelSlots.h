// The channel parameters: what each of a channel's 212 values is, where it starts and how it steps.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "framework/Limits.h"
#include "framework/Rows.h"

namespace korvane {

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
    Unused = 188,
    VelocityAmount = 198,
    VelocityDestination = 199,
    VelocitySensitivity = 200,
    WheelAmount = 201,
    WheelDestination = 202,
    PressureAmount = 203,
    PressureDestination = 204,
    BendRange = 205,
    EqOn = 206,
    EqGain = 207,
    Count = 212,
    // clang-format on
};
} // namespace slot

/// Which selection a channel parameter index is banked by.
enum class Bank : std::uint8_t { None, Envelope, Lfo, Layer, Fx };

/// A channel parameter, or the members of a bank, which stand side by side.
struct ChannelSlot {
    int first, count;
    Bank bank;
    float samplerDefault, synthDefault; // in a new channel
    float resetValue;                   // what the editor resets the control to
    int lastPosition;                   // of its switch, which holds p / last; 0 when it has none
    int laneSteps;                      // between 0 and 1 in a lane of the score editor; 0: it moves evenly
    int sourceCodes[2];                 // which modulation destinations its first two members are; 0 none
};

// Codes of modulation destinations are positions in the editor's list, where headings and separators count.
// FxLfoRate starts at 5.01 ninths: one beat, the sixth of the nine lengths, clear of its edge at 5 / 9.
// clang-format off
inline constexpr ChannelSlot kChannelSlotTable[] = {
//   first                        n bank            sampler      synth        reset to     last lane source codes
    {slot::MixLevel,             1, Bank::None,     0.75f,       0.75f,       0.75f,         0,   0, {}},
    {slot::Panning,              1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::Pitch,                1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::NoteLength,           1, Bank::None,     0.44444445f, 0.44444445f, 1.0f / 3.0f,   0,   0, {}},
    {slot::AmpAttack,            1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {20}},
    {slot::AmpDecay,             1, Bank::None,     1.0f,        1.0f,        1.0f,          0,   0, {21}},
    {slot::AmpSustain,           1, Bank::None,     1.0f,        1.0f,        1.0f,          0,   0, {}},
    {slot::AmpRelease,           1, Bank::None,     0.1f,        0.1f,        0.1f,          0,   0, {}},
    {slot::AmpLevel,             1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::ShuffleEnable,        1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::SlideTime,            1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::SlideEnable,          1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::FilterCutoff,         1, Bank::None,     0.0f,        1.0f,        1.0f,          0,   0, {1}},
    {slot::FilterResonance,      1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {2}},
    {slot::FilterTracking,       1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::FilterType,           1, Bank::None,     1.0f,        0.0f,        0.0f,          2,   3, {}},
    {slot::EnvelopeAmount,       2, Bank::Envelope, 0.0f,        0.0f,        0.0f,          0,   0, {8, 12}},
    {slot::EnvelopeInvert,       2, Bank::Envelope, 0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::EnvelopeAttack,       2, Bank::Envelope, 0.0f,        0.0f,        0.0f,          0,   0, {6, 10}},
    {slot::EnvelopeDecay,        2, Bank::Envelope, 1.0f,        1.0f,        1.0f,          0,   0, {7, 11}},
    {slot::EnvelopeDestination,  2, Bank::Envelope, 0.0f,        0.0f,        0.0f,          3,   4, {}},
    {slot::LfoRetrig,            2, Bank::Lfo,      0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::LfoAmount,            2, Bank::Lfo,      0.0f,        0.0f,        0.0f,          0,   0, {15, 18}},
    {slot::LfoInvert,            2, Bank::Lfo,      0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::LfoShape,             2, Bank::Lfo,      0.0f,        0.0f,        0.0f,          3,   4, {}},
    {slot::LfoRate,              2, Bank::Lfo,      0.0f,        0.0f,        0.5f,          0,   0, {14, 17}},
    {slot::LfoSync,              2, Bank::Lfo,      0.0f,        0.0f,        0.0f,          2,   3, {}},
    {slot::LfoDestination,       2, Bank::Lfo,      0.0f,        0.0f,        0.0f,          3,   4, {}},
    {slot::MonoVoice,            1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::UnisonVoices,         1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::UnisonDetune,         1, Bank::None,     0.25f,       0.25f,       0.25f,         0,   0, {}},
    {slot::UnisonStereo,         1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::Octave,               1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   5, {}},
    {slot::NoiseMix,             1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::UnisonPhase,          1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::UnisonRetrig,         1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::MixOsc2,              1, Bank::None,     0.0f,        0.0f,        1.0f,          0,   0, {}},
    {slot::MixOsc3,              1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::Modulation,           1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {4}},
    {slot::ModKind,              1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::PhaseOffsetOsc2,      1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::PhaseRetrigOsc2,      1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::Osc2Invert,           1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::Osc1Pitch,            1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::Osc1Detune,           1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::Osc2Pitch,            1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::Osc2Detune,           1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::Osc3Pitch,            1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::Osc3Detune,           1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::LayerLevel,           4, Bank::Layer,    0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::LayerPan,             4, Bank::Layer,    0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::LayerPitch,           4, Bank::Layer,    0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::LayerAttack,          4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::LayerHold,            4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::LayerDecay,           4, Bank::Layer,    1.0f,        1.0f,        1.0f,          0,   0, {}},
    {slot::LayerLoCut,           4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::LayerHiCut,           4, Bank::Layer,    1.0f,        1.0f,        1.0f,          0,   0, {}},
    {slot::LayerBandwidth,       4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::LayerDelay,           4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::LayerStart,           4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::LayerInvert,          4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::LayerReverse,         4, Bank::Layer,    0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::LayerBypass,          4, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::FxX,                 10, Bank::Fx,       0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::FxY,                 10, Bank::Fx,       0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::FxLfoRate,           10, Bank::Fx,       0.5566667f,  0.5566667f,  0.5f,          0,   9, {}},
    {slot::FxGlue,              10, Bank::Fx,       0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::FxLfoShape,          10, Bank::Fx,       0.0f,        0.0f,        0.0f,          3,   4, {}},
    {slot::FxLfoSync,           10, Bank::Fx,       0.0f,        0.0f,        0.0f,          1,   2, {}},
    {slot::FxLfoAmount,         10, Bank::Fx,       0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::FxBypassStutter,      1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   1, {}},
    {slot::Unused,              10, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::VelocityAmount,       1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::VelocityDestination,  1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::VelocitySensitivity,  1, Bank::None,     1.0f,        1.0f,        0.0f,          0,   0, {}},
    {slot::WheelAmount,          1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::WheelDestination,     1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::PressureAmount,       1, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
    {slot::PressureDestination,  1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::BendRange,            1, Bank::None,     1.0f / 6.0f, 1.0f / 6.0f, 1.0f / 6.0f,   0,   0, {}},
    {slot::EqOn,                 1, Bank::None,     0.0f,        0.0f,        0.0f,          0,   0, {}},
    {slot::EqGain,               5, Bank::None,     0.5f,        0.5f,        0.5f,          0,   0, {}},
};
// clang-format on

static_assert(RowsFollowEachOther(kChannelSlotTable, kChannelSlots));

/// Where the row of each channel parameter stands in the table.
inline constexpr auto kSlotRows = RowsOf<kChannelSlots>(kChannelSlotTable);

/// index  0..211
constexpr const ChannelSlot& SlotOf(int index) { return kChannelSlotTable[kSlotRows[static_cast<std::size_t>(index)]]; }

/// The bank of a base, Bank::None for every other index.
Bank BankOf(int base);

/// Value of a channel parameter in a new channel; 0 outside 0..211.
float ChannelBlockDefault(int index, bool isSampler);

namespace slot {

/// Highest position of a stepped parameter, which its switch turns to before it starts again; 3 for what has no switch.
constexpr int LastPosition(int base)
{
    constexpr int kOthers = 3;
    const bool known = base >= 0 && base < kChannelSlots && SlotOf(base).lastPosition != 0;
    return known ? SlotOf(base).lastPosition : kOthers;
}

/// Where the score editor's lane shows a value: within 0..1, at the nearest step of a stepped parameter.
/// index  0..211
float LaneValue(int index, float value);

inline constexpr int NoTarget = -1;
inline constexpr auto kModulationTargets = [] {
    constexpr int kCodes = 22; // entries of the editor's list of destinations
    std::array<int, kCodes> targets{};
    targets.fill(NoTarget);
    for (const ChannelSlot& row : kChannelSlotTable)
        for (int n = 0; n < 2; ++n)
            if (row.sourceCodes[n] != 0) targets[static_cast<std::size_t>(row.sourceCodes[n])] = row.first + n;
    return targets;
}();

/// The channel parameter that a modulation destination code means; NoTarget for headings and everything else.
constexpr int ModulationTarget(int code)
{
    const bool known = code > 0 && code < static_cast<int>(kModulationTargets.size());
    return known ? kModulationTargets[static_cast<std::size_t>(code)] : NoTarget;
}

} // namespace slot
} // namespace korvane
