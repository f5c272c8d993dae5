// From the words of a program to the channel's parameters.
#include "factory/words/ChannelWords.h"

#include <cstdio>
#include <cstdlib>

#include "framework/KnobLaws.h"

namespace korvane::factory {

namespace {

/// Position of the rate control, and whether its lengths count four times.
struct SyncedRate {
    double value;
    bool inBars;
};

SyncedRate Synced(double beats)
{
    for (const bool inBars : {false, true}) {
        int row = 0;
        for (const SyncLength& length : kSyncLengths) {
            if (length.beats * (inBars ? kBeatsPerBar : 1.0f) == beats) return {law::SyncKnob(row), inBars};
            ++row;
        }
    }
    std::fprintf(stderr, "korvane-factory: no LFO runs over %g beats\n", beats);
    std::exit(1);
}

} // namespace

void SetFilter(Patch& patch, const FilterSetting& filter)
{
    patch.Position(slot::FilterType, static_cast<int>(filter.type));
    patch.Set(slot::FilterCutoff, filter.cutoff);
    patch.Set(slot::FilterResonance, filter.resonance);
    patch.Set(slot::FilterTracking, filter.tracking);
}

void SetEnvelope(Patch& patch, int number, const EnvelopeSetting& envelope)
{
    patch.Position(slot::EnvelopeDestination + number, envelope.acts);
    patch.Signed(slot::EnvelopeAmount + number, slot::EnvelopeInvert + number, envelope.amount);
    patch.Set(slot::EnvelopeAttack + number, envelope.attack);
    patch.Set(slot::EnvelopeDecay + number, envelope.decay);
}

void SetLfo(Patch& patch, int number, const LfoSetting& lfo)
{
    patch.Position(slot::LfoDestination + number, lfo.acts);
    patch.Signed(slot::LfoAmount + number, slot::LfoInvert + number, lfo.amount);
    patch.Position(slot::LfoShape + number, static_cast<int>(lfo.shape));
    patch.Switch(slot::LfoRetrig + number, lfo.restarts);
    if (lfo.rate.beats > 0.0) {
        const SyncedRate synced = Synced(lfo.rate.beats);
        patch.Set(slot::LfoRate + number, synced.value);
        patch.Position(slot::LfoSync + number, synced.inBars ? 2 : 1);
    } else {
        patch.Set(slot::LfoRate + number, law::LfoFreeKnob(lfo.rate.hz));
        patch.Position(slot::LfoSync + number, 0);
    }
}

void SetRoute(Patch& patch, int amount, int destination, const Route& route)
{
    patch.Set(amount, law::SourceAmountKnob(route.amount));
    patch.Set(destination, static_cast<double>(route.target));
}

void Glue(Patch& patch, const Effect& effect)
{
    const int k = static_cast<int>(effect.unit);
    const SyncedRate synced = Synced(effect.beats);
    patch.Switch(slot::FxGlue + k, true);
    patch.Set(slot::FxX + k, effect.x);
    patch.Set(slot::FxY + k, effect.y);
    patch.Set(slot::FxLfoRate + k, synced.value);
    patch.Switch(slot::FxLfoSync + k, synced.inBars);
    patch.Set(slot::FxLfoAmount + k, law::SourceAmountKnob(effect.lfo)); // the turn of the knob; FxLfoDepth squares it
    patch.Position(slot::FxLfoShape + k, static_cast<int>(effect.shape));
}

void SetEqualiser(Patch& patch, const EqDb& gainsDb)
{
    bool flat = true;
    for (int band = 0; band < kEqBands; ++band) {
        patch.Set(slot::EqGain + band, law::EqKnob(gainsDb[band]));
        flat = flat && gainsDb[band] == 0.0;
    }
    patch.Switch(slot::EqOn, !flat);
}

} // namespace korvane::factory
