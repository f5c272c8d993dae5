// From a row of a sampler kit to the channel's parameters.
#include "factory/words/SamplerSound.h"

#include <algorithm>
#include <cmath>

#include "framework/ParameterTable.h"

namespace korvane::factory {

namespace {

// Levels move by 8.82 / (time * rate) of the distance per frame; amplitudes are squares of levels, so they lose 60 dB
// in half of ln(1000) time constants.
constexpr double kEnvelopeSpeed = 8.82;
constexpr double kFall = 0.5 * 6.907755 / kEnvelopeSpeed;
constexpr double kRise = 0.223144 / kEnvelopeSpeed; // attacks aim at five times the level that they reach
constexpr double kShortest = 0.001;                 // seconds, of every envelope time

double Value(double value) { return std::clamp(value, 0.0, 1.0); }
double TimeOf(double seconds, double speed) { return std::max(0.0, seconds / speed - kShortest); }

double LayerLevel(double db) { return Value(std::sqrt(0.5 * std::pow(10.0, db / 20.0))); }
double LayerPitch(double semitones)
{
    return Value(semitones >= 0.0 ? 0.5 + semitones / 96.0 : 0.5 - std::sqrt(-semitones / 96.0));
}
double LayerDelay(double seconds) { return Value(std::pow(4.0 * seconds, 0.25)); }
double LayerAttack(double seconds) { return Value(std::cbrt(TimeOf(seconds, kRise) / 250.0)); }
double LayerHold(double seconds) { return Value(std::sqrt(seconds)); }
double LayerDecay(double seconds)
{
    return seconds <= 0.0 ? 1.0 : Value(std::pow(TimeOf(seconds, kFall) / 50.0, 0.25));
}
double LayerLowCut(double hz) { return hz <= 0.0 ? 0.0 : Value((std::log2(hz) - 4.0) / 10.0); }
double LayerHighCut(double hz) { return hz <= 0.0 ? 1.0 : Value((std::log2(hz) - 8.0) / 6.3); }

double AmpGain(double db) { return Value(0.5 + db / 50.0); }
double NoteLength(double beats) { return Value(std::log2(8.0 * beats) / 8.0); }
double AmpRelease(double seconds) { return Value((std::cbrt(TimeOf(seconds, kFall) / 25.0) - 0.1) / 0.55); }

void SetLayer(Patch& patch, int index, const Layer& layer)
{
    const auto set = [&patch, index](int bank, double value) { patch.Set(bank + index, value); };
    patch.Sample(index + 1, layer.sample);
    set(slot::LayerLevel, LayerLevel(layer.levelDb));
    set(slot::LayerPan, Value(0.5 + 0.5 * layer.pan));
    set(slot::LayerPitch, LayerPitch(layer.semitones));
    set(slot::LayerDelay, LayerDelay(layer.delay));
    set(slot::LayerAttack, LayerAttack(layer.attack));
    set(slot::LayerHold, LayerHold(layer.hold));
    set(slot::LayerDecay, LayerDecay(layer.decay));
    set(slot::LayerLoCut, LayerLowCut(layer.lowCut));
    set(slot::LayerHiCut, LayerHighCut(layer.highCut));
    set(slot::LayerStart, layer.start);
    set(slot::LayerReverse, layer.way == Way::Reverse ? 1.0 : 0.0);
    set(slot::LayerInvert, layer.way == Way::Inverted ? 1.0 : 0.0);
}

} // namespace

void Apply(const SamplerProgram& program, Patch& patch)
{
    patch.Set(slot::AmpLevel, AmpGain(program.levelDb));
    patch.Set(slot::NoteLength, NoteLength(program.beats));
    patch.Set(slot::AmpRelease, AmpRelease(program.fade));
    patch.Set(slot::AmpAttack, program.attack);
    for (std::size_t n = 0; n < program.layers.size(); ++n) SetLayer(patch, static_cast<int>(n), program.layers[n]);
    SetShared(patch, program);
}

} // namespace korvane::factory
