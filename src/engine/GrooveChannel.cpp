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

/// A voice has to be tuned before each run: something that moves within runs has a part in it.
bool PitchMoves(const ChannelSound& sound)
{
    if (sound.Moves(destination::Pitch)) return true;
    const bool synced = !sound.isSampler && sound.synth.mix.modulation == OscillatorModulation::Sync;
    return synced && sound.Moves(destination::ModAmount);
}

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

GrooveChannel::GrooveChannel(SamplePool& pool, RandomGenerator& generator, int number)
    : sound(pool, generator), mixLeft(pool.ChannelLeft(number)), mixRight(pool.ChannelRight(number)),
      offersSeen(pool.returned.offers.Now() - 1)
{
    for (auto& voice : voices) voice = std::make_unique<ChannelVoice>();
    for (std::size_t k = 0; k < fxUnits.size(); ++k) fxUnits[k] = std::make_unique<FXUnit>(static_cast<FxType>(k));
    stutterUnit = std::make_unique<FXUnit>(FxType::Stutter);
}

void GrooveChannel::Refresh(float tempo)
{
    TakeInputs(tempo);
    HoldStutter(sound.params, *stutterUnit);
    const std::uint16_t stutter = stutterUnit->bypass ? 0 : 1;
    unitsOn = static_cast<std::uint16_t>((unitsOn & ~1u) | stutter);
    unitsHeard = static_cast<std::uint16_t>((unitsHeard & ~1u) | stutter);
    SetUpModulation(sound, activeVoices != 0, tempo);
    const bool sounds = RefreshVoices();
    soundedThisBlock = sounds; // once, so that who watches sees no gap
    if (sounds) TuneVoices();
}

void GrooveChannel::TakeInputs(float tempo)
{
    const bool otherSound = TakeOffers();
    const Inputs now{sound.params.changes.Now(), sound.modWheelIn, sound.pitchBendIn,
                     sound.pressureIn,           sound.rate,       tempo};
    if (!otherSound && sound.inputCount != 0 && now == inputs) return;
    inputs = now;
    ++sound.inputCount;
    unitsAwake = kWholeRack; // one may have to go on where it was left, as an equaliser that is switched on
    sound.velocityModulates = sound.params[slot::VelocityDestination] != 0.0f;
    UpdateFxSettings(sound.params, fxActive, fxUnits);
    strip.Set(sound.params[slot::MixLevel], sound.params[slot::Panning]);
    unitsOn = 0;
    for (int k = 0; k < kEffects; ++k)
        if (!fxUnits[static_cast<std::size_t>(k)]->bypass) unitsOn |= static_cast<std::uint16_t>(2u << k);
    unitsHeard = unitsOn;
    if (fxUnits.back()->eqOn) unitsHeard |= 1u << kEffects;
}

bool GrooveChannel::TakeOffers()
{
    const std::uint32_t offers = sound.samplePool.returned.offers.Now();
    if (offers == offersSeen) return false;
    offersSeen = offers;
    bool taken = false;
    for (int s = 0; s < kSampleSlots; ++s) {
        if (!sound.sampleSlots[static_cast<std::size_t>(s)].TakeOffer(sound.samplePool.returned)) continue;
        taken = true;
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
    return taken;
}

bool GrooveChannel::RefreshVoices()
{
    ForEachBit(activeVoices, [this](int v) {
        ChannelVoice& voice = *voices[static_cast<std::size_t>(v)];
        sound.velocityIn = SourceVelocity(voice);
        if (!RefreshVoice(sound, voice)) activeVoices &= static_cast<std::uint8_t>(~(1u << v));
    });
    return activeVoices != 0;
}

void GrooveChannel::TuneVoices()
{
    SetUpVoices(sound);
    const bool moves = PitchMoves(sound);
    ForEachBit(activeVoices, [&](int v) {
        ChannelVoice& voice = *voices[static_cast<std::size_t>(v)];
        sound.velocityIn = SourceVelocity(voice);
        const bool glides = !sound.isSampler && voice.tunedPitch != voice.glidePitch;
        if (!moves && !glides && voice.tunedAt == sound.tuneCount) return;
        if (sound.isSampler)
            TuneLayers(sound, voice);
        else
            TuneOscillators(sound, voice);
        voice.tunedPitch = voice.glidePitch;
        voice.tunedAt = sound.tuneCount;
    });
}

int GrooveChannel::VoiceForNote()
{
    if (sound.Modulated(slot::MonoVoice) != 0.0f) return 0;
    for (int v = kVoices - 1; v >= 0; --v)
        if ((activeVoices >> v & 1u) == 0) return v;
    const auto oldest =
        std::min_element(voices.begin(), voices.end(), [](const auto& a, const auto& b) { return a->age < b->age; });
    return static_cast<int>(oldest - voices.begin());
}

void GrooveChannel::NoteOn(int note, float tempo, float velocity)
{
    sound.velocityIn = velocity;
    const int number = VoiceForNote();
    ChannelVoice& voice = *voices[static_cast<std::size_t>(number)];
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
    activeVoices |= static_cast<std::uint8_t>(1u << number);
    atRest = false;
    sound.lastPitch = static_cast<float>(voice.pitchNote);
}

void GrooveChannel::Reset(float newRate)
{
    if (newRate != 0.0f) sound.rate = newRate;
    strip.Reset();
    for (auto& unit : fxUnits) unit->Reset(newRate);
    stutterUnit->Reset(newRate);
    unitsAwake = kWholeRack;
    activeVoices = 0;
    atRest = false;
    voiceCounter = 0;
    sound.lastPitch = -1.0f;
    for (auto& voice : voices) {
        EndVoice(*voice); // its gain stays where it was
        voice->amp = voice->env1 = voice->env2 = {};
        FillPhases(*voice, sound.random);
    }
}

} // namespace korvane
