// From a row of a program table to the channel's parameters.
#include "factory/words/SynthSound.h"

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "factory/waves/Waves.h"
#include "framework/KnobLaws.h"
#include "framework/ParameterTable.h"

namespace korvane::factory::synth {

namespace {

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

/// The mix knobs fade from the sources so far to the next one, by their square.
void SetSources(Patch& patch, const SynthSound& sound)
{
    constexpr int kMixKnobs[kOscillators - 1] = {slot::MixOsc2, slot::MixOsc3}; // oscillator 1 is what they fade from
    double sum = 0.0;
    for (int osc = 0; osc < kOscillators; ++osc) {
        const Oscillator& setting = sound.oscillators[osc];
        patch.Set(slot::Osc1Pitch + 2 * osc, law::OscillatorSemitonesKnob(setting.semitones));
        patch.Set(slot::Osc1Detune + 2 * osc, law::OscillatorCentsKnob(setting.cents));
        const double level = setting.wave ? setting.level : 0.0;
        sum += level;
        if (osc > 0) patch.Set(kMixKnobs[osc - 1], sum > 0.0 ? law::MixShareKnob(level / sum) : 0.0);
        if (!setting.wave) continue;
        CheckWave(sound, setting.wave);
        patch.Wave(osc + 1, setting.wave);
    }
    patch.Set(slot::NoiseMix, sound.noise > 0.0 ? law::MixShareKnob(sound.noise / (sum + sound.noise)) : 0.0);
}

void SetUnison(Patch& patch, const Unison& unison)
{
    patch.Set(slot::UnisonVoices, law::UnisonVoicesKnob(unison.voices));
    patch.Set(slot::UnisonDetune, unison.detune);
    patch.Set(slot::UnisonStereo, unison.stereo);
    patch.Switch(slot::UnisonRetrig, unison.restarts);
    patch.Set(slot::UnisonPhase, unison.phase);
}

void SetModulation(Patch& patch, const Modulation& modulation)
{
    patch.Set(slot::ModKind, static_cast<double>(modulation.kind)); // the kind itself, not a position
    patch.Set(slot::Modulation, modulation.amount);
    patch.Set(slot::PhaseOffsetOsc2, modulation.phase2);
    patch.Switch(slot::Osc2Invert, modulation.invert2);
    patch.Switch(slot::PhaseRetrigOsc2, modulation.restarts);
}

void SetAmplifier(Patch& patch, const SynthSound& sound)
{
    patch.Set(slot::AmpAttack, sound.amp.attack);
    patch.Set(slot::AmpDecay, sound.amp.decay);
    patch.Set(slot::AmpSustain, sound.amp.sustain);
    patch.Set(slot::AmpRelease, sound.amp.release);
    patch.Set(slot::AmpLevel, law::AmpKnob(sound.levelDb));
}

void SetPlaying(Patch& patch, const Playing& playing)
{
    patch.Switch(slot::MonoVoice, playing.mono);
    patch.Switch(slot::SlideEnable, playing.slide >= 0.0);
    patch.Set(slot::SlideTime, std::fmax(0.0, playing.slide));
    patch.Set(slot::Octave, law::OctavesKnob(playing.octave));
    patch.Set(slot::BendRange, law::BendKnob(playing.bend));
    patch.Switch(slot::VelocitySensitivity, playing.dynamic);
}

} // namespace

void Apply(const SynthSound& sound, Patch& patch)
{
    SetSources(patch, sound);
    SetUnison(patch, sound.unison);
    SetModulation(patch, sound.modulation);
    SetAmplifier(patch, sound);
    SetPlaying(patch, sound.playing);
    SetShared(patch, sound);
}

} // namespace korvane::factory::synth
