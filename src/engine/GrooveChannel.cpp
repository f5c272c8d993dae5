// A channel's notes and its rendering.
#include "engine/GrooveChannel.h"

#include <algorithm>
#include <cstddef>

#include "engine/fx/FxSettings.h"
#include "engine/voice/Modulation.h"
#include "engine/voice/SamplerVoice.h"
#include "engine/voice/SynthVoice.h"
#include "engine/voice/VoiceLife.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Modulation source A of a voice that sounds.
float SourceVelocity(const ChannelVoice& voice) { return voice.fromSequencer ? 0.0f : voice.velocity; }

void FillPhases(ChannelVoice& voice, RandomGenerator& random)
{
    const auto word = [&] {
        const std::uint32_t drawn = random.Next();
        for (int skipped = 0; skipped < 31; ++skipped) random.Next();
        return drawn;
    };
    UnisonPhases& phases = voice.phases;
    for (int u = 0; u < kUnison; ++u)
        for (std::uint32_t* phase : {phases.osc1, phases.sync, phases.osc2, phases.osc3}) phase[u] = word();
}

} // namespace

GrooveChannel::GrooveChannel(SamplePool& pool, RandomGenerator& generator) : sound(pool, generator)
{
    for (auto& voice : voices) voice = std::make_unique<ChannelVoice>();
    for (std::size_t k = 0; k < fxUnits.size(); ++k) fxUnits[k] = std::make_unique<FXUnit>(static_cast<FxType>(k));
    stutterUnit = std::make_unique<FXUnit>(FxType::Stutter);
}

void GrooveChannel::Refresh(float tempo)
{
    TakeOffers();
    SetUpModulation(sound, AnyVoiceActive(voices), tempo);
    UpdateFxSettings(sound.params, fxActive, fxUnits, *stutterUnit);
    const bool sounds = RefreshVoices();
    soundedThisBlock = sounds; // once, so that who watches sees no gap
    if (sounds) TuneVoices();
}

void GrooveChannel::TakeOffers()
{
    for (int s = 0; s < kSampleSlots; ++s) {
        if (!sound.sampleSlots[static_cast<std::size_t>(s)].TakeOffer(sound.samplePool.returned)) continue;
        const bool isLayer = s >= kFirstLayerSlot;
        if (isLayer != sound.isSampler) continue;
        for (auto& voice : voices) {
            if (!isLayer) {
                voice->seam.Begin();
                continue;
            }
            SamplerLayer& layer = voice->layers[s - kFirstLayerSlot];
            layer.seam.Begin(voice->sounded && layer.position > 0.0 && layer.delayFrames == 0);
        }
    }
}

bool GrooveChannel::RefreshVoices()
{
    if (!AnyVoiceActive(voices)) return false;
    bool sounds = false;
    const float levelGain = LevelGain(sound.Modulated(slot::AmpLevel));
    for (auto& voice : voices) {
        if (!voice->active) continue;
        sound.velocityIn = SourceVelocity(*voice);
        sounds |= RefreshVoice(sound, *voice, levelGain);
    }
    return sounds;
}

void GrooveChannel::TuneVoices()
{
    SetUpVoices(sound);
    for (auto& voice : voices) {
        if (!voice->active) continue;
        sound.velocityIn = SourceVelocity(*voice);
        if (sound.isSampler)
            TuneLayers(sound, *voice);
        else
            TuneOscillators(sound, *voice);
    }
}

ChannelVoice& GrooveChannel::VoiceForNote()
{
    if (sound.Modulated(slot::MonoVoice) != 0.0f) return *voices[0];
    const auto free = std::find_if(voices.rbegin(), voices.rend(), [](const auto& voice) { return !voice->active; });
    if (free != voices.rend()) return **free;
    return **std::min_element(voices.begin(), voices.end(),
                              [](const auto& a, const auto& b) { return a->age < b->age; });
}

void GrooveChannel::NoteOn(int note, float tempo, float velocity)
{
    sound.velocityIn = velocity;
    ChannelVoice& voice = VoiceForNote();
    voice.note = note;
    voice.pitchNote = PitchNote(sound, note);
    voice.velocity = velocity;
    voice.age = voiceCounter++;
    voice.fromSequencer = tempo != 0.0f;
    if (voice.fromSequencer) {
        const float beats = law::NoteBeats(sound.Modulated(slot::NoteLength));
        voice.lengthFrames = Truncate(beats * sound.rate * 60.0f / tempo);
    } else {
        voice.lengthFrames = kLiveLengthFrames;
    }
    StartVoice(sound, voice);
    sound.lastPitch = static_cast<float>(voice.pitchNote);
}

void GrooveChannel::Reset(float newRate)
{
    if (newRate != 0.0f) sound.rate = newRate;
    strip.Reset();
    for (auto& unit : fxUnits) unit->Reset(newRate);
    stutterUnit->Reset(newRate);
    voiceCounter = 0;
    sound.lastPitch = -1.0f;
    for (auto& voice : voices) {
        EndVoice(*voice); // its gain stays where it was
        voice->amp = voice->env1 = voice->env2 = {};
        FillPhases(*voice, sound.random);
    }
}

} // namespace korvane
