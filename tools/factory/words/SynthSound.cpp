// From a row of a program table to the channel's parameters.
#include "factory/words/SynthSound.h"

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "factory/waves/Waves.h"
#include "framework/ParameterTable.h"

namespace korvane::factory::synth {

namespace {

/// Sets parameters from doubles.
class Controls {
public:
    explicit Controls(Patch& channel) : patch(channel) {}

    void Set(int slotIndex, double value) { patch.Set(slotIndex, static_cast<float>(value)); }
    void Switch(int slotIndex, bool on) { Set(slotIndex, on ? 1.0 : 0.0); }
    /// Position p of a control with positions 0..last.
    void Position(int slotIndex, int p, int last) { Set(slotIndex, static_cast<double>(p) / last); }
    /// A whole number that the engine truncates out of value * span - centre; set half a step above it.
    void Whole(int slotIndex, int number, double centre, double span)
    {
        const double half = number > 0 ? 0.5 : number < 0 ? -0.5 : 0.0;
        Set(slotIndex, std::fmin(1.0, std::fmax(0.0, (number + half + centre) / span)));
    }
    /// A knob and the switch that gives it a minus.
    void Signed(int knob, int inverting, double amount)
    {
        Set(knob, std::fabs(amount));
        Switch(inverting, amount < 0.0);
    }

    Patch& patch;
};

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

/// A misspelt name would only be heard as silence.
void CheckWave(const SynthSound& sound, const char* wave)
{
    static const std::set<std::string> names = [] {
        std::set<std::string> all;
        for (const Cycle& cycle : AllCycles()) all.insert(cycle.name);
        return all;
    }();
    if (names.count(wave)) return;
    std::fprintf(stderr, "korvane-factory: '%s' wants the wave '%s', which is not made\n", sound.name, wave);
    std::exit(1);
}

/// The mix controls fade from the sources so far to the next one, by their square.
void SetSources(Controls& controls, const SynthSound& sound)
{
    constexpr int kMixSlots[] = {0, slot::MixOsc2, slot::MixOsc3};
    double sum = 0.0;
    for (int osc = 0; osc < 3; ++osc) {
        const Oscillator& setting = sound.oscillators[osc];
        controls.Whole(slot::Osc1Pitch + 2 * osc, setting.semitones, 36.0, 72.0);
        controls.Whole(slot::Osc1Detune + 2 * osc, setting.cents, 50.0, 100.0);
        const double level = setting.wave ? setting.level : 0.0;
        sum += level;
        if (osc > 0) controls.Set(kMixSlots[osc], sum > 0.0 ? std::sqrt(level / sum) : 0.0);
        if (!setting.wave) continue;
        CheckWave(sound, setting.wave);
        controls.patch.Wave(osc + 1, setting.wave);
    }
    controls.Set(slot::NoiseMix, sound.noise > 0.0 ? std::sqrt(sound.noise / (sum + sound.noise)) : 0.0);
}

void SetUnison(Controls& controls, const Unison& unison)
{
    controls.Whole(slot::UnisonVoices, unison.voices - 1, 0.0, 15.0);
    controls.Set(slot::UnisonDetune, unison.detune);
    controls.Set(slot::UnisonStereo, unison.stereo);
    controls.Switch(slot::UnisonRetrig, unison.restarts);
    controls.Set(slot::UnisonPhase, unison.phase);
}

void SetModulation(Controls& controls, const Modulation& modulation)
{
    controls.Set(slot::ModKind, static_cast<double>(modulation.kind)); // the kind itself, not a position
    controls.Set(slot::Modulation, modulation.amount);
    controls.Set(slot::PhaseOffsetOsc2, modulation.phase2);
    controls.Switch(slot::Osc2Invert, modulation.invert2);
    controls.Switch(slot::PhaseRetrigOsc2, modulation.restarts);
}

void SetShape(Controls& controls, const SynthSound& sound)
{
    controls.Position(slot::FilterType, static_cast<int>(sound.filter.type), 2);
    controls.Set(slot::FilterCutoff, sound.filter.cutoff);
    controls.Set(slot::FilterResonance, sound.filter.resonance);
    controls.Set(slot::FilterTracking, sound.filter.tracking);
    controls.Set(slot::AmpAttack, sound.amp.attack);
    controls.Set(slot::AmpDecay, sound.amp.decay);
    controls.Set(slot::AmpSustain, sound.amp.sustain);
    controls.Set(slot::AmpRelease, sound.amp.release);
    controls.Set(slot::AmpLevel, (sound.levelDb + 25.0) / 50.0);
}

void SetEnvelope(Controls& controls, int number, const EnvelopeSetting& envelope)
{
    controls.Position(slot::EnvelopeDestination + number, static_cast<int>(envelope.to), 3);
    controls.Signed(slot::EnvelopeAmount + number, slot::EnvelopeInvert + number, envelope.amount);
    controls.Set(slot::EnvelopeAttack + number, envelope.attack);
    controls.Set(slot::EnvelopeDecay + number, envelope.decay);
}

void SetLfo(Controls& controls, int number, const LfoSetting& lfo)
{
    constexpr double kFastest = 25.0, kSlowest = 0.01; // Hz
    controls.Position(slot::LfoDestination + number, static_cast<int>(lfo.to), 3);
    controls.Signed(slot::LfoAmount + number, slot::LfoInvert + number, lfo.amount);
    controls.Position(slot::LfoShape + number, static_cast<int>(lfo.shape), 3);
    controls.Switch(slot::LfoRetrig + number, lfo.restarts);
    if (lfo.rate.beats > 0.0) {
        const SyncedRate synced = Synced(lfo.rate.beats);
        controls.Set(slot::LfoRate + number, synced.value);
        controls.Position(slot::LfoSync + number, synced.inBars ? 2 : 1, 2);
    } else {
        controls.Set(slot::LfoRate + number, 1.0 - std::sqrt((lfo.rate.hz - kSlowest) / kFastest));
        controls.Position(slot::LfoSync + number, 0, 2);
    }
}

void SetPlaying(Controls& controls, const Playing& playing)
{
    controls.Switch(slot::MonoVoice, playing.mono);
    controls.Switch(slot::SlideEnable, playing.slide >= 0.0);
    controls.Set(slot::SlideTime, std::fmax(0.0, playing.slide));
    controls.Position(slot::Octave, playing.octave + 2, 4);
    controls.Whole(slot::BendRange, playing.bend, 0.0, 12.0);
    controls.Switch(slot::VelocitySensitivity, playing.dynamic);
}

void SetRoute(Controls& controls, int amount, int destination, const Route& route)
{
    controls.Set(amount, 0.5 + 0.5 * route.amount);
    controls.Set(destination, static_cast<double>(route.target));
}

void SetEqualiser(Controls& controls, const double (&gainsDb)[5])
{
    constexpr double kRangeDb = 24.0;
    bool flat = true;
    for (int band = 0; band < 5; ++band) {
        controls.Set(slot::EqGain + band, 0.5 + gainsDb[band] / kRangeDb);
        flat = flat && gainsDb[band] == 0.0;
    }
    controls.Switch(slot::EqOn, !flat);
}

} // namespace

void Apply(const Effect& effect, Patch& patch)
{
    if (effect.unit == Fx::None) return;
    Controls controls(patch);
    const int k = static_cast<int>(effect.unit);
    const SyncedRate synced = Synced(effect.beats);
    controls.Switch(slot::FxGlue + k, true);
    controls.Set(slot::FxX + k, effect.x);
    controls.Set(slot::FxY + k, effect.y);
    controls.Set(slot::FxLfoRate + k, synced.value);
    controls.Switch(slot::FxLfoSync + k, synced.inBars);
    controls.Set(slot::FxLfoAmount + k, 0.5 + 0.5 * effect.lfo);
    controls.Position(slot::FxLfoShape + k, static_cast<int>(effect.shape), 3);
}

void Apply(const SynthSound& sound, Patch& patch)
{
    Controls controls(patch);
    SetSources(controls, sound);
    SetUnison(controls, sound.unison);
    SetModulation(controls, sound.modulation);
    SetShape(controls, sound);
    for (int n = 0; n < 2; ++n) {
        SetEnvelope(controls, n, sound.envelopes[n]);
        SetLfo(controls, n, sound.lfos[n]);
    }
    SetPlaying(controls, sound.playing);
    SetRoute(controls, slot::VelocityAmount, slot::VelocityDestination, sound.velocity);
    SetRoute(controls, slot::WheelAmount, slot::WheelDestination, sound.wheel);
    SetRoute(controls, slot::PressureAmount, slot::PressureDestination, sound.pressure);
    for (const Effect& effect : sound.effects) Apply(effect, patch);
    SetEqualiser(controls, sound.eqDb);
}

} // namespace korvane::factory::synth
