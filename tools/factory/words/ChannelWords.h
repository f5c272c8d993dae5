// The words that programs of both kinds are written in: filter, envelopes, LFOs, routes, effects, equaliser. What is
// no unit here is the position of a knob, 0..1.
#pragma once

#include <array>
#include <cstddef>

#include "engine/dsp/LfoShape.h"
#include "engine/fx/FXUnit.h"
#include "engine/kernels/VoiceFilter.h"
#include "engine/voice/Lfo.h"
#include "factory/words/Patch.h"
#include "framework/KnobLaws.h"
#include "framework/ParameterTable.h"

namespace korvane::factory {

/// What an envelope or LFO acts on. Pitch: 24 semitones times amount squared for an envelope, 12 for an LFO. Depth: an
/// envelope shapes the LFO of the same number. Amplitude: an LFO acts on the level.
namespace to = destination;

using Fx = FxType;

/// Knob of the filter's cutoff.
inline double Cutoff(double hz) { return law::CutoffKnob(hz); }

struct FilterSetting {
    FilterType type = FilterType::LowPass;
    double cutoff = 1.0; // knob; 12 dB down at 14 Hz for 0, an octave higher every 0.102
    double resonance = 0.0;
    double tracking = 0.0; // knob; 1 follows the keys
};

/// Knob of an envelope's decay: what it moves falls to a thousandth.
inline double EnvelopeFall(double seconds) { return law::EnvelopeDecayKnob(law::LevelFallConstant(seconds)); }

struct EnvelopeSetting {
    int acts = to::Cutoff;
    double amount = 0.0; // knob, -1..1, squared by the engine with its sign
    double attack = 0.0; // knob
    double decay = 1.0;  // knob
};

/// Hz or beats.
struct Rate {
    double hz = 1.0;
    double beats = 0.0; // 1/8, 1/4, 3/8, 1/2, 3/4, 1, 2, 4, 8 and four times these; 0: free
};
constexpr Rate Hz(double hz) { return {hz, 0.0}; }
constexpr Rate Beats(double beats) { return {0.0, beats}; }

struct LfoSetting {
    int acts = to::Cutoff;
    double amount = 0.0; // knob, -1..1, squared by the engine with its sign
    Rate rate = {};
    LfoShape shape = LfoShape::Sine; // the ramp falls
    bool restarts = false;           // with every note
};

/// Code of a modulation destination; a parameter that is none does not compile.
consteval int CodeOf(int slotIndex)
{
    std::size_t code = 0;
    while (slot::kModulationTargets.at(code) != slotIndex) ++code;
    return static_cast<int>(code);
}

/// What velocity, wheel and pressure may move.
enum class Target : int {
    None = 0,
    Cutoff = CodeOf(slot::FilterCutoff),
    Resonance = CodeOf(slot::FilterResonance),
    Modulation = CodeOf(slot::Modulation),
    Env1Attack = CodeOf(slot::EnvelopeAttack),
    Env1Decay = CodeOf(slot::EnvelopeDecay),
    Env1Amount = CodeOf(slot::EnvelopeAmount),
    Env2Attack = CodeOf(slot::EnvelopeAttack + 1),
    Env2Decay = CodeOf(slot::EnvelopeDecay + 1),
    Env2Amount = CodeOf(slot::EnvelopeAmount + 1),
    Lfo1Rate = CodeOf(slot::LfoRate),
    Lfo1Amount = CodeOf(slot::LfoAmount),
    Lfo2Rate = CodeOf(slot::LfoRate + 1),
    Lfo2Amount = CodeOf(slot::LfoAmount + 1),
    AmpAttack = CodeOf(slot::AmpAttack),
    AmpDecay = CodeOf(slot::AmpDecay),
};
struct Route {
    Target target = Target::None;
    double amount = 0.0; // -1..1, added to the knob at full velocity, wheel or pressure
};

/// An effect that is glued on. X and Y as on the pad.
struct Effect {
    Fx unit;
    double x = 0.5, y = 0.5;
    double beats = 1.0;              // of its LFO, and the echo's time
    double lfo = 0.0;                // -1..1, squared by the engine with its sign
    LfoShape shape = LfoShape::Sine; // here the ramp rises
};

/// dB, -12..12: 80 Hz shelf, 220, 1200 and 6000 Hz, 12 kHz shelf.
using EqDb = std::array<double, kEqBands>;

void SetFilter(Patch& patch, const FilterSetting& filter);
/// number  0 or 1
void SetEnvelope(Patch& patch, int number, const EnvelopeSetting& envelope);
void SetLfo(Patch& patch, int number, const LfoSetting& lfo);
/// amount, destination  slots of the source
void SetRoute(Patch& patch, int amount, int destination, const Route& route);
/// Glues the effect on; no other parameter changes.
void Glue(Patch& patch, const Effect& effect);
void SetEqualiser(Patch& patch, const EqDb& gainsDb);

/// Sets all that a row of either kind says in these words.
template <class Row>
void SetShared(Patch& patch, const Row& row)
{
    SetFilter(patch, row.filter);
    int envelopes = 0, lfos = 0;
    for (const EnvelopeSetting& envelope : row.envelopes) SetEnvelope(patch, envelopes++, envelope);
    for (const LfoSetting& lfo : row.lfos) SetLfo(patch, lfos++, lfo);
    SetRoute(patch, slot::VelocityAmount, slot::VelocityDestination, row.velocity);
    SetRoute(patch, slot::WheelAmount, slot::WheelDestination, row.wheel);
    SetRoute(patch, slot::PressureAmount, slot::PressureDestination, row.pressure);
    for (const Effect& effect : row.effects) Glue(patch, effect);
    SetEqualiser(patch, row.eqDb);
}

} // namespace korvane::factory
