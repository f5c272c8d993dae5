// Tuning and start of the synth oscillators.
#include "engine/voice/SynthVoice.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "engine/dsp/Vectors.h"
#include "engine/kernels/Kernels.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/Modulation.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kRichestTable = kWaveTables - 1;
constexpr float kHighestFrequency = 0.4999f;  // of the sample rate; just below its half, where phases turn back
constexpr std::uint32_t kRestartFrames = 512; // a restarted phase lies up to so many frames into the cycle; by ear
constexpr float kLoudnessOfOne = 0.15f;       // what each further unison voice counts of the first; by ear
constexpr float kSyncSpan = 3.0f;             // full modulation raises oscillator 1 by so many times its frequency
constexpr float kLfoSemitones = 12.0f;        // of an LFO at 1
constexpr int kFewFrames = 5;                 // of unison voices: sooner rendered than set up side by side

MixKnobs ReadMixKnobs(const ChannelSound& channel, int unisonCount)
{
    const auto value = [&](int index) { return channel.Modulated(index); };
    const auto share = [&](int index) { return law::MixShare(value(index)); };
    return {share(slot::MixOsc2), share(slot::MixOsc3), share(slot::NoiseMix), value(slot::UnisonStereo), unisonCount};
}

void SetUpMix(const MixKnobs& knobs, UnisonMix& mix)
{
    const float a = knobs.share2, b = knobs.share3, z = knobs.shareNoise;
    const float levels[kOscillatorsAndNoise] = {(1.0f - a) * (1.0f - b) * (1.0f - z), a * (1.0f - b) * (1.0f - z),
                                                b * (1.0f - z), z};
    const int count = knobs.unisonCount;
    std::fill(mix.heard + 1, mix.heard + kOscillatorsAndNoise, false);
    const float norm = kSourceScale / (static_cast<float>(count - 1) * kLoudnessOfOne + 1.0f);
    for (int u = 0; u < count; ++u) {
        const float sign = u == 0 && count % 2 == 1 ? 0.0f : u % 2 == 0 ? 1.0f : -1.0f;
        const float left = law::StereoLeft(sign * knobs.stereo), right = law::StereoRight(sign * knobs.stereo);
        for (int source = 0; source < kOscillatorsAndNoise; ++source) {
            mix.gainLeft[source][u] = levels[source] * left * norm;
            mix.gainRight[source][u] = levels[source] * right * norm;
            mix.heard[source] |= mix.gainLeft[source][u] != 0.0f || mix.gainRight[source][u] != 0.0f;
        }
    }
}

void SetUpDetune(SynthSettings& settings, int count, float octaves, float rate)
{
    if (count == settings.mix.unisonCount && octaves == settings.octaves && rate == settings.rate) return;
    settings.mix.unisonCount = count;
    settings.octaves = octaves;
    settings.rate = rate;
    ++settings.detunes;
    for (int u = 0; u < count; ++u) {
        const float position = static_cast<float>(u) / static_cast<float>(count - 1) - 0.5f;
        settings.detune[u] = count == 1 ? 1.0f : std::pow(2.0f, position * octaves);
    }
}

int TableOf(float frequency, float rate)
{
    if (frequency <= rate / static_cast<float>(kWaveTablePoints)) return kRichestTable;
    return Clamp(Truncate(rate / (2.0f * frequency)), 0, kRichestTable);
}

/// tunedTo  the frequency that the increments have
void FillIncrements(float frequency, const SynthSettings& settings, float& tunedTo, std::uint32_t* increments)
{
    if (frequency == tunedTo) return;
    tunedTo = frequency;
    const float limit = kHighestFrequency * settings.rate;
    for (int u = 0; u < settings.mix.unisonCount; u += 4) {
        const Float4 detuned = frequency * Load<Float4>(settings.detune + u);
        const Float4 cycles = (limit < detuned ? Float4{} + limit : detuned) / settings.rate;
        const Float4 steps = cycles * 0x1p32f; // below 2^31, by the limit
        const Int4 whole = __builtin_convertvector(steps > 0.0f ? steps : Float4{}, Int4);
        std::memcpy(increments + u, &whole, sizeof whole);
    }
}

void RestartPhases(RandomGenerator& random, ChannelVoice& voice, const UnisonTuning& tuning, int unisonCount)
{
    for (int u = 0; u < unisonCount; ++u) {
        const std::uint32_t frames = (random.Next() + 1u) % kRestartFrames;
        voice.phases.osc1[u] = tuning.increments[0][u] * frames;
        voice.phases.osc2[u] = tuning.increments[1][u] * frames;
    }
    voice.restartPhases = false;
}

} // namespace

void SetUpSynth(const ChannelSound& channel, SynthSettings& settings)
{
    const auto value = [&](int index) { return channel.Modulated(index); };
    const int count = Clamp(Truncate(law::UnisonVoices(value(slot::UnisonVoices))), 1, kUnison);
    SetUpDetune(settings, count, law::UnisonOctaves(value(slot::UnisonDetune)), channel.rate);
    for (int osc = 0; osc < kOscillators; ++osc) {
        const float whole = static_cast<float>(law::OscillatorSemitones(value(slot::Osc1Pitch + 2 * osc)));
        const float cents = static_cast<float>(law::OscillatorCents(value(slot::Osc1Detune + 2 * osc)));
        const float semitones = whole + 0.01f * cents;
        if (semitones == settings.semitones[osc]) continue;
        settings.semitones[osc] = semitones;
        settings.ratios[osc] = law::PitchRatio(semitones);
    }
    settings.bendSemitones = static_cast<float>(law::BendSemitones(value(slot::BendRange)));
    settings.slides = value(slot::SlideEnable) != 0.0f;

    UnisonMix& mix = settings.mix;
    mix.modulation = static_cast<OscillatorModulation>(Clamp(Truncate(value(slot::ModKind)), 0, 2));
    mix.phaseOffset2 = PhaseOf(2.0f * value(slot::PhaseOffsetOsc2));
    mix.invert2 = value(slot::Osc2Invert) != 0.0f;
    const MixKnobs knobs = ReadMixKnobs(channel, count);
    if (!(knobs == settings.mixKnobs)) SetUpMix(knobs, mix);
    settings.mixKnobs = knobs;
}

void StartOscillators(ChannelSound& channel, ChannelVoice& voice)
{
    if (channel.Modulated(slot::UnisonRetrig) == 0.0f) {
        voice.restartPhases = channel.Modulated(slot::PhaseRetrigOsc2) != 0.0f;
        return;
    }
    const float spread = channel.Modulated(slot::UnisonPhase);
    for (int u = 0; u < kUnison; ++u) {
        UnisonPhases& phases = voice.phases;
        phases.osc1[u] = phases.sync[u] = phases.osc2[u] = phases.osc3[u] =
            PhaseOf(4.0f * static_cast<float>(u) * spread);
    }
    voice.restartPhases = false;
}

void TuneOscillators(ChannelSound& channel, ChannelVoice& voice)
{
    const SynthSettings& settings = channel.synth;
    UnisonTuning& tuning = voice.tuning;
    if (!settings.slides) voice.glidePitch = static_cast<float>(voice.pitchNote);
    const float pitch = voice.glidePitch + PitchModulation(channel, voice, kLfoSemitones) +
                        settings.bendSemitones * channel.pitchBendIn;
    OscillatorPitch& tunedTo = voice.tunedTo;
    if (tunedTo.detunes != settings.detunes) tunedTo = {.detunes = settings.detunes};
    if (pitch != tunedTo.note) tunedTo.hertz = law::NoteHz(pitch);
    tunedTo.note = pitch;

    float frequencies[kOscillators];
    for (int osc = 0; osc < kOscillators; ++osc) frequencies[osc] = tunedTo.hertz * settings.ratios[osc];
    FillIncrements(frequencies[0], settings, tunedTo.syncHertz, tuning.syncIncrements);
    if (settings.mix.modulation == OscillatorModulation::Sync) {
        const float amount = ModulatedAmount(channel, voice, channel.Modulated(slot::Modulation));
        frequencies[0] *= 1.0f + kSyncSpan * Clamp(amount, 0.0f, 1.0f);
    }
    for (int osc = 0; osc < kOscillators; ++osc) {
        FillIncrements(frequencies[osc], settings, tunedTo.oscillators[osc], tuning.increments[osc]);
        const PoolEntry* entry = channel.sampleSlots[static_cast<std::size_t>(osc)].Playing();
        const float* tables = entry ? entry->waveTables.get() : nullptr;
        tuning.tables[osc] = tables ? tables + kWaveTablePoints * TableOf(frequencies[osc], settings.rate)
                                    : channel.samplePool.silentTable;
    }
}

void RenderSynths(SoundingVoices sounding, int frames)
{
    for (const auto& [channel, voices, voice] : sounding) {
        if (channel->isSampler) continue;
        const UnisonMix& mix = channel->synth.mix;
        if (voice->restartPhases) RestartPhases(channel->random, *voice, voice->tuning, mix.unisonCount);
        RenderUnisonKernel* const render =
            frames * mix.unisonCount <= kFewFrames ? RenderUnisonPlainly : kernels.renderUnison;
        render({&mix, &voice->tuning, voice->modAmountFrames, &voice->phases, voice->left, voice->right},
               channel->random, frames);
        voice->seam.Join(voice->left, voice->right, frames);
    }
}

} // namespace korvane
