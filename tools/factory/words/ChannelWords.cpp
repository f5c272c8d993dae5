// From the words of a program to the channel's parameters.
#include "factory/words/ChannelWords.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace korvane::factory {

namespace {

/// Position of the rate control, and whether its lengths count four times.
struct SyncedRate {
    double value;
    bool inBars;
};

SyncedRate Synced(double beats)
{
    constexpr double kLengths[] = {0.125, 0.25, 0.375, 0.5, 0.75, 1.0, 2.0, 4.0, 8.0};
    for (const bool inBars : {false, true})
        for (int n = 0; n < 9; ++n)
            if (kLengths[n] * (inBars ? 4.0 : 1.0) == beats) return {(n + 0.5) / 9.0, inBars};
    std::fprintf(stderr, "korvane-factory: no LFO runs over %g beats\n", beats);
    std::exit(1);
}

} // namespace

double Cutoff(double hz)
{
    constexpr double kLowest = 14.04, kOctaves = 9.7736; // of the ladder's coefficient table
    return std::clamp(std::log2(hz / kLowest) / kOctaves, 0.0, 1.0);
}

double EnvelopeFall(double seconds)
{
    const double time = std::max(0.0, seconds / (6.907755 / 8.82) - 0.001);
    return std::clamp((std::pow(time / 70.0, 0.2) - 0.2) / 0.8, 0.0, 1.0);
}

void SetFilter(Patch& patch, const FilterSetting& filter)
{
    patch.Position(slot::FilterType, static_cast<int>(filter.type), 2);
    patch.Set(slot::FilterCutoff, filter.cutoff);
    patch.Set(slot::FilterResonance, filter.resonance);
    patch.Set(slot::FilterTracking, filter.tracking);
}

void SetEnvelope(Patch& patch, int number, const EnvelopeSetting& envelope)
{
    patch.Position(slot::EnvelopeDestination + number, envelope.acts, 3);
    patch.Signed(slot::EnvelopeAmount + number, slot::EnvelopeInvert + number, envelope.amount);
    patch.Set(slot::EnvelopeAttack + number, envelope.attack);
    patch.Set(slot::EnvelopeDecay + number, envelope.decay);
}

void SetLfo(Patch& patch, int number, const LfoSetting& lfo)
{
    constexpr double kFastest = 25.0, kSlowest = 0.01; // Hz
    patch.Position(slot::LfoDestination + number, lfo.acts, 3);
    patch.Signed(slot::LfoAmount + number, slot::LfoInvert + number, lfo.amount);
    patch.Position(slot::LfoShape + number, static_cast<int>(lfo.shape), 3);
    patch.Switch(slot::LfoRetrig + number, lfo.restarts);
    if (lfo.rate.beats > 0.0) {
        const SyncedRate synced = Synced(lfo.rate.beats);
        patch.Set(slot::LfoRate + number, synced.value);
        patch.Position(slot::LfoSync + number, synced.inBars ? 2 : 1, 2);
    } else {
        patch.Set(slot::LfoRate + number, 1.0 - std::sqrt((lfo.rate.hz - kSlowest) / kFastest));
        patch.Position(slot::LfoSync + number, 0, 2);
    }
}

void SetRoute(Patch& patch, int amount, int destination, const Route& route)
{
    patch.Set(amount, 0.5 + 0.5 * route.amount);
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
    patch.Set(slot::FxLfoAmount + k, 0.5 + 0.5 * effect.lfo);
    patch.Position(slot::FxLfoShape + k, static_cast<int>(effect.shape), 3);
}

void SetEqualiser(Patch& patch, const EqDb& gainsDb)
{
    constexpr double kRangeDb = 24.0;
    bool flat = true;
    for (int band = 0; band < kEqBands; ++band) {
        patch.Set(slot::EqGain + band, 0.5 + gainsDb[band] / kRangeDb);
        flat = flat && gainsDb[band] == 0.0;
    }
    patch.Switch(slot::EqOn, !flat);
}

} // namespace korvane::factory
