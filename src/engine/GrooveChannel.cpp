// A channel's notes and its rendering.
#include "engine/GrooveChannel.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>

#include "engine/fx/FxSettings.h"
#include "engine/voice/Modulation.h"
#include "engine/voice/SamplerVoice.h"
#include "engine/voice/SynthVoice.h"
#include "engine/voice/VoiceLife.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Channel parameter that a modulation destination code targets, −1 none. Codes are positions in the editor's list of
/// destinations, in which headings and separators count.
constexpr int kNoTarget = -1;
constexpr int kModulationTargets[] = {
    kNoTarget,                // "---"
    slot::FilterCutoff,       //
    slot::FilterResonance,    //
    kNoTarget,                // separator
    slot::Modulation,         //
    kNoTarget,                // "Envelope 1"
    slot::EnvelopeAttack,     //
    slot::EnvelopeDecay,      //
    slot::EnvelopeAmount,     //
    kNoTarget,                // "Envelope 2"
    slot::EnvelopeAttack + 1, //
    slot::EnvelopeDecay + 1,  //
    slot::EnvelopeAmount + 1, //
    kNoTarget,                // "LFO 1"
    slot::LfoRate,            //
    slot::LfoAmount,          //
    kNoTarget,                // "LFO 2"
    slot::LfoRate + 1,        //
    slot::LfoAmount + 1,      //
    kNoTarget,                // "Amplitude EG"
    slot::AmpAttack,          //
    slot::AmpDecay,           //
};

bool Targets(float code, int index)
{
    if (code == 0.0f) return false;
    const int c = Truncate(code);
    return c > 0 && c < static_cast<int>(std::size(kModulationTargets)) && kModulationTargets[c] == index;
}

/// Modulation source A of a voice that sounds.
float SourceVelocity(const ChannelVoice& voice) { return voice.fromSequencer ? 0.0f : voice.velocity; }

/// Shapes a voice's block by its amplitude. A block that is not finite, which takes parameters far outside 0..1,
/// becomes silence: nothing of it must reach filters, effects and the mix.
void ApplyAmplitude(ChannelVoice& voice, const float* amp, int frames)
{
    std::int32_t largest = 0;
    const auto magnitude = [](float x) { return std::bit_cast<std::int32_t>(x) & 0x7fffffff; };
    for (int n = 0; n < frames; ++n) {
        voice.left[n] *= amp[n];
        voice.right[n] *= amp[n];
        largest = std::max(largest, std::max(magnitude(voice.left[n]), magnitude(voice.right[n])));
    }
    if (largest < magnitude(HUGE_VALF)) return;
    std::fill_n(voice.left, frames, 0.0f);
    std::fill_n(voice.right, frames, 0.0f);
}

void FillPhases(ChannelVoice& voice, RandomGenerator& random)
{
    const auto word = [&] {
        const std::uint32_t drawn = random.Next();
        for (int skipped = 0; skipped < 31; ++skipped) random.Next();
        return drawn;
    };
    for (UnisonPhases& phases : voice.phases)
        for (std::uint32_t* phase : {&phases.osc1, &phases.sync, &phases.osc2, &phases.osc3}) *phase = word();
}

} // namespace

GrooveChannel::GrooveChannel(SamplePool& pool, RandomGenerator& generator) : samplePool(pool), random(generator)
{
    for (auto& voice : voices) voice = std::make_unique<ChannelVoice>();
    for (std::size_t k = 0; k < fxUnits.size(); ++k) fxUnits[k] = std::make_unique<FXUnit>(static_cast<FxType>(k));
    stutterUnit = std::make_unique<FXUnit>(FxType::Stutter);
}

float GrooveChannel::Modulated(int index) const
{
    if (index < 0 || index >= kChannelSlots) return 0.0f;
    float value = params[index];
    const auto modulate = [&](int destination, int amount, float source) {
        if (Targets(params[destination], index))
            value = Clamp(value + (params[amount] - 0.5f) * 2.0f * source, 0.0f, 1.0f);
    };
    modulate(slot::VelocityDestination, slot::VelocityAmount, velocityIn);
    modulate(slot::WheelDestination, slot::WheelAmount, modWheelIn);
    modulate(slot::PressureDestination, slot::PressureAmount, pressureIn);
    return value;
}

bool GrooveChannel::AnyVoiceActive() const
{
    return std::any_of(voices.begin(), voices.end(), [](const auto& voice) { return voice->active; });
}

void GrooveChannel::Render(int frames, float tempo)
{
    soundedThisBlock = false;
    for (int s = 0; s < kSampleSlots; ++s)
        ServeRequest(samplePool, sampleSlots[static_cast<std::size_t>(s)],
                     s < kFirstLayerSlot ? kind::Waveform : kind::Sample);
    SetUpModulation(*this, tempo);
    UpdateFxSettings(params, fxActive, fxUnits, *stutterUnit);
    RefreshVoices();
    if (soundedThisBlock) RenderVoices(frames);
}

void GrooveChannel::RefreshVoices()
{
    if (!AnyVoiceActive()) return;
    const float levelGain = LevelGain(Modulated(slot::AmpLevel));
    for (auto& voice : voices) {
        if (!voice->active) continue;
        velocityIn = SourceVelocity(*voice);
        if (RefreshVoice(*this, *voice, levelGain)) soundedThisBlock = true;
    }
}

void GrooveChannel::RenderVoices(int frames)
{
    ChannelFrames shared;
    RunChannelModulation(*this, Modulated(slot::Modulation), shared, frames);
    const float slideTime = Modulated(slot::SlideTime);
    const float glideRate = EnvelopeRate(2.0f * (slideTime * slideTime * slideTime), rate);
    SynthSettings synth;
    if (!isSampler) SetUpSynth(*this, synth);

    for (auto& slot : voices) {
        ChannelVoice& voice = *slot;
        if (!voice.active) continue;
        velocityIn = SourceVelocity(voice);
        VoiceFrames own;
        if (isSampler) {
            TuneLayers(*this, voice);
            RunVoiceModulation(*this, voice, shared, glideRate, own, frames);
            RenderLayers(*this, voice, frames);
        } else {
            UnisonTuning tuning;
            TuneOscillators(*this, voice, synth, tuning);
            RunVoiceModulation(*this, voice, shared, glideRate, own, frames);
            RenderUnison(synth.mix, tuning, own.modAmount, voice.phases, random, voice.left, voice.right, frames);
        }
        ApplyAmplitude(voice, own.amp, frames);
    }
}

ChannelVoice& GrooveChannel::VoiceForNote()
{
    if (Modulated(slot::MonoVoice) != 0.0f) return *voices[0];
    const auto free = std::find_if(voices.rbegin(), voices.rend(), [](const auto& voice) { return !voice->active; });
    if (free != voices.rend()) return **free;
    return **std::min_element(voices.begin(), voices.end(),
                              [](const auto& a, const auto& b) { return a->age < b->age; });
}

void GrooveChannel::NoteOn(int note, float tempo, float velocity)
{
    velocityIn = velocity;
    ChannelVoice& voice = VoiceForNote();
    voice.note = note;
    voice.pitchNote = PitchNote(*this, note);
    voice.velocity = velocity;
    voice.age = voiceCounter++;
    voice.fromSequencer = tempo != 0.0f;
    if (voice.fromSequencer) {
        const float beats = 0.125f * std::pow(2.0f, 8.0f * Modulated(slot::NoteLength));
        voice.lengthFrames = Truncate(beats * rate * 60.0f / tempo);
    } else {
        voice.lengthFrames = kLiveLengthFrames;
    }
    StartVoice(*this, voice);
    lastPitch = static_cast<float>(voice.pitchNote);
}

void GrooveChannel::ReleaseNote(int note)
{
    for (auto& voice : voices)
        if (voice->note == note) ReleaseVoice(*voice);
}

void GrooveChannel::ReleaseLive()
{
    for (auto& voice : voices)
        if (!voice->fromSequencer) ReleaseVoice(*voice);
}

void GrooveChannel::ReleaseSequenced()
{
    for (auto& voice : voices)
        if (voice->fromSequencer) ReleaseVoice(*voice);
}

void GrooveChannel::Reset(float newRate)
{
    if (newRate != 0.0f) rate = newRate;
    peakLeft = 0.0f;
    peakRight = 0.0f;
    outGainLeft = outGainRight = -1.0f;
    for (auto& unit : fxUnits) unit->Reset(newRate);
    stutterUnit->Reset(newRate);
    voiceCounter = 0;
    lastPitch = -1.0f;
    for (auto& voice : voices) {
        EndVoice(*voice); // its gain stays where it was
        voice->amp = voice->env1 = voice->env2 = {};
        FillPhases(*voice, random);
    }
}

} // namespace korvane
