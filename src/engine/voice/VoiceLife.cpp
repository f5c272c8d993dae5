// Start, refresh, release and end of a voice.
#include "engine/voice/VoiceLife.h"

#include <cmath>
#include <cstring>

#include "engine/dsp/Silence.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/SamplerVoice.h"
#include "engine/voice/SynthVoice.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kLoudest = 1e9f; // output gain that only a parameter far outside 0..1 asks for

/// Envelopes and smoothed values are recurrences: one bad parameter value must not stay in them.
void Recover(float& value, float fallback)
{
    if (!std::isfinite(value)) value = fallback;
}

void StartEnvelopes(ChannelSound& channel, ChannelVoice& voice)
{
    const auto value = [&](int index) { return channel.Modulated(index); };
    const auto rate = [&channel](float seconds) { return law::EnvelopeRate(seconds, channel.rate); };

    voice.amp.Attack(rate(law::AmpAttackSeconds(value(slot::AmpAttack))));
    voice.amp.decayRate = rate(law::AmpDecaySeconds(value(slot::AmpDecay)));
    voice.amp.sustain = value(slot::AmpSustain);
    voice.ampReleaseRate = rate(law::AmpReleaseSeconds(value(slot::AmpRelease)));

    Envelope<float>* const envelopes[] = {&voice.env1, &voice.env2};
    for (int e = 0; e < 2; ++e) {
        Envelope<float>& envelope = *envelopes[e];
        envelope.level = 0.0f;
        envelope.Attack(rate(law::EnvelopeAttackSeconds(value(slot::EnvelopeAttack + e))));
        envelope.decayRate = rate(law::EnvelopeDecaySeconds(value(slot::EnvelopeDecay + e)));
    }
}

/// What the voice's own velocity has a part in.
void SetUpVoice(const ChannelSound& channel, ChannelVoice& voice)
{
    if (voice.setUpAt == channel.inputCount) return;
    voice.setUpAt = channel.inputCount;
    voice.tracking = channel.Modulated(slot::FilterTracking);
    voice.cutoff = channel.Modulated(slot::FilterCutoff);
    voice.resonance = Clamp(channel.Modulated(slot::FilterResonance), -kLoudest, kLoudest);
    voice.followsVelocity = !voice.fromSequencer && channel.Modulated(slot::VelocitySensitivity) != 0.0f;
    voice.pitchNote = PitchNote(channel, voice.note);
}

bool Faded(const ChannelVoice& voice)
{
    return voice.amp.level < kSilence && voice.amp.target == 0.0f && voice.gain < kSilence &&
           voice.gainTarget < kSilence;
}

} // namespace

int ChannelTranspose(const ChannelSound& channel)
{
    return Clamp(law::Semitones(channel.Modulated(slot::Pitch)), -law::kFarthestPitch, law::kFarthestPitch);
}

std::int32_t PitchNote(const ChannelSound& channel, int note)
{
    const int octaves = law::Octaves(channel.Modulated(slot::Octave));
    return Clamp(note, -law::kFarthestPitch, law::kFarthestPitch) + ChannelTranspose(channel) + 12 * octaves;
}

float LevelGain(float ampLevel) { return Clamp(law::AmpGain(ampLevel) / kSourceScale, 0.0f, kLoudest); }

void StartVoice(ChannelSound& channel, ChannelVoice& voice)
{
    voice.releasing = voice.sounded = false;
    voice.active = true;
    voice.lfo1Out = voice.lfo2Out = 0.0f;
    voice.seam = {};
    voice.setUpAt = voice.tunedAt = 0;

    const bool silenced = voice.fromSequencer && channel.muted;
    voice.gainTarget = silenced ? 0.0f : Clamp(law::Square(channel.Modulated(slot::AmpLevel)), 0.0f, kLoudest);
    if (voice.gain < 0.0f) voice.gain = voice.gainTarget;

    StartEnvelopes(channel, voice);
    if (channel.Modulated(slot::SlideEnable) != 0.0f && channel.lastPitch != -1.0f)
        voice.glidePitch = channel.lastPitch;
    if (channel.Modulated(slot::LfoRetrig) != 0.0f) channel.lfo1.phase = 0.0f;
    if (channel.Modulated(slot::LfoRetrig + 1) != 0.0f) channel.lfo2.phase = 0.0f;

    if (channel.isSampler)
        StartLayers(channel, voice);
    else
        StartOscillators(channel, voice);
}

bool RefreshVoice(ChannelSound& channel, ChannelVoice& voice)
{
    Recover(voice.amp.level, 0.0f);
    Recover(voice.env1.level, 0.0f);
    Recover(voice.env2.level, 0.0f);
    Recover(voice.gain, 0.0f);
    Recover(voice.glidePitch, static_cast<float>(voice.pitchNote));

    if (channel.isSampler && !LayersCanPlay(channel, voice)) {
        ClearVoice(voice);
        return false;
    }
    if (Faded(voice)) {
        EndVoice(voice);
        return false;
    }

    SetUpVoice(channel, voice);
    const float trackedCutoff = voice.tracking == 0.0f ? 0.0f : law::CutoffTracking(voice.glidePitch, voice.tracking);
    voice.cutoffOffset = trackedCutoff + voice.cutoff - channel.cutoffBase;

    const bool silenced = voice.fromSequencer && channel.muted;
    const bool released = voice.amp.level < kSilence && voice.amp.target == 0.0f;
    voice.gainTarget =
        silenced || released ? 0.0f : channel.levelGain * (voice.followsVelocity ? voice.velocity : 1.0f);
    return true;
}

void ReleaseVoice(ChannelVoice& voice)
{
    voice.releasing = true;
    voice.amp.rate = voice.ampReleaseRate;
    voice.amp.target = 0.0f;
}

void ReleaseNote(ChannelVoices& voices, int note)
{
    for (auto& voice : voices)
        if (voice->note == note) ReleaseVoice(*voice);
}

void ReleaseLive(ChannelVoices& voices)
{
    for (auto& voice : voices)
        if (!voice->fromSequencer) ReleaseVoice(*voice);
}

void ReleaseSequenced(ChannelVoices& voices)
{
    for (auto& voice : voices)
        if (voice->fromSequencer) ReleaseVoice(*voice);
}

void EndVoice(ChannelVoice& voice)
{
    voice.note = -1;
    voice.active = voice.releasing = false;
    std::memset(voice.filterState, 0, sizeof voice.filterState);
}

void ClearVoice(ChannelVoice& voice)
{
    EndVoice(voice);
    voice.gain = -1.0f;
    voice.gainTarget = 1.0f;
    voice.amp.level = voice.env1.level = voice.env2.level = 0.0f;
}

} // namespace korvane
