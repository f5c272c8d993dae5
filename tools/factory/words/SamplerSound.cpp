// From a row of a sampler kit to the channel's parameters.
#include "factory/words/SamplerSound.h"

#include "framework/KnobLaws.h"
#include "framework/ParameterTable.h"

namespace korvane::factory {

namespace {

void SetLayer(Patch& patch, int index, const Layer& layer)
{
    const auto set = [&patch, index](int bank, double value) { patch.Set(bank + index, value); };
    patch.Sample(index + 1, layer.sample);
    set(slot::LayerLevel, law::LayerDbKnob(layer.levelDb));
    set(slot::LayerPan, law::PanKnob(layer.pan));
    set(slot::LayerPitch, law::LayerSemitonesKnob(layer.semitones));
    set(slot::LayerDelay, law::LayerDelayKnob(layer.delay));
    set(slot::LayerAttack, law::LayerAttackKnob(law::RiseConstant(layer.attack)));
    set(slot::LayerHold, law::LayerHoldKnob(layer.hold));
    if (layer.decay > 0.0) set(slot::LayerDecay, law::LayerDecayKnob(law::FallConstant(layer.decay)));
    if (layer.lowCut > 0.0) set(slot::LayerLoCut, law::LayerLoCutKnob(layer.lowCut));
    if (layer.highCut > 0.0) set(slot::LayerHiCut, law::LayerHiCutKnob(layer.highCut));
    set(slot::LayerStart, layer.start);
    set(slot::LayerReverse, layer.way == Way::Reverse ? 1.0 : 0.0);
    set(slot::LayerInvert, layer.way == Way::Inverted ? 1.0 : 0.0);
}

} // namespace

void Apply(const SamplerProgram& program, Patch& patch)
{
    patch.Set(slot::AmpLevel, law::AmpKnob(program.levelDb));
    patch.Set(slot::NoteLength, law::NoteBeatsKnob(program.beats));
    patch.Set(slot::AmpRelease, law::AmpReleaseKnob(law::FallConstant(program.fade)));
    patch.Set(slot::AmpAttack, program.attack);
    for (std::size_t n = 0; n < program.layers.size(); ++n) SetLayer(patch, static_cast<int>(n), program.layers[n]);
    SetShared(patch, program);
}

} // namespace korvane::factory
