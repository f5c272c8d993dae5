// Per-frame modulation of a channel and its voices.
#include "engine/voice/Modulation.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "engine/voice/ChannelSound.h"
#include "engine/voice/SynthVoice.h"
#include "engine/voice/VoiceLife.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kSmoothing = 0.01f;         // of cutoff, modulation amount and gain, fraction per frame; by ear
constexpr float kEnvelopeSemitones = 24.0f; // of an envelope at full level and amount

void SetUpLfo(const ChannelSound& channel, Lfo& lfo, int number, float tempo)
{
    const float frequency =
        LfoFrequency(channel.Modulated(slot::LfoRate + number), channel.Modulated(slot::LfoSync + number), tempo);
    const float increment = frequency / channel.rate;
    lfo.increment = std::isfinite(increment) ? increment : 0.0f;
}

void SetUpRouting(const ChannelSound& channel, int number, EnvelopeRoute& envelope, Lfo& lfo)
{
    const auto value = [&](int index) { return channel.Modulated(index + number); };
    const auto position = [&](int index) { return law::Position(value(index), slot::LastPosition(index)); };
    envelope.destination = position(slot::EnvelopeDestination);
    envelope.amount = law::Depth(value(slot::EnvelopeAmount), value(slot::EnvelopeInvert) != 0.0f);
    lfo.destination = position(slot::LfoDestination);
    lfo.shape = static_cast<LfoShape>(position(slot::LfoShape));
    lfo.amount = law::Depth(value(slot::LfoAmount), value(slot::LfoInvert) != 0.0f);
}

/// How much of each modulator reaches one destination; an unrouted one has factor 0.
struct Mix {
    float env1, env2, lfo1, lfo2;

    float AddTo(float base, float env1Level, float env2Level, float lfo1Out, float lfo2Out) const
    {
        return base + env1 * env1Level + env2 * env2Level + lfo1 * lfo1Out + lfo2 * lfo2Out;
    }
};

Mix MixFor(const ChannelSound& channel, int destination)
{
    return {channel.env1.destination == destination ? channel.env1.amount : 0.0f,
            channel.env2.destination == destination ? channel.env2.amount : 0.0f,
            channel.lfo1.destination == destination ? 1.0f : 0.0f,
            channel.lfo2.destination == destination ? 1.0f : 0.0f};
}

struct Levels {
    alignas(64) float amp[kMaxRun], env1[kMaxRun], env2[kMaxRun];
};

/// Frames `from` to `to` - 1 of the recurrences.
void RunLevels(ChannelVoice& voice, float glideRate, Levels& levels, int from, int to)
{
    Envelope amp = voice.amp, env1 = voice.env1, env2 = voice.env2;
    float gain = voice.gain, glidePitch = voice.glidePitch;
    const float gainTarget = voice.gainTarget, pitchNote = static_cast<float>(voice.pitchNote);
    for (int n = from; n < to; ++n) {
        glidePitch += (pitchNote - glidePitch) * glideRate;
        env1.Step();
        env2.Step();
        amp.Step();
        gain += (gainTarget - gain) * kSmoothing;
        levels.env1[n] = env1.level;
        levels.env2[n] = env2.level;
        levels.amp[n] = amp.level;
        voice.gainFrames[n] = gain;
    }
    voice.amp = amp;
    voice.env1 = env1;
    voice.env2 = env2;
    voice.gain = gain;
    voice.glidePitch = glidePitch;
}

/// An LFO as the voice hears it, its depth scaled by the envelope where that is routed to it.
void ScaleLfo(const float* lfo, const float* envelope, bool scaled, float* out, int frames)
{
    if (!scaled) {
        std::copy_n(lfo, frames, out);
        return;
    }
    for (int n = 0; n < frames; ++n) out[n] = lfo[n] * envelope[n];
}

/// Fills the channel's frames.
void RunChannelModulation(ChannelSound& channel, int frames)
{
    ChannelFrames& shared = channel.frames;
    const float cutoffBase = channel.cutoffBase, modTarget = channel.modTarget;
    float cutoff = channel.cutoffSmooth, modAmount = channel.modAmountSmooth;
    for (int n = 0; n < frames; ++n) {
        cutoff += (cutoffBase - cutoff) * kSmoothing;
        modAmount += (modTarget - modAmount) * kSmoothing;
        shared.cutoff[n] = cutoff;
        shared.modAmount[n] = modAmount;
    }
    channel.cutoffSmooth = cutoff;
    channel.modAmountSmooth = modAmount;
    channel.lfo1.Run(shared.lfo1, frames);
    channel.lfo2.Run(shared.lfo2, frames);
}

void RunVoiceModulation(const ChannelSound& channel, ChannelVoices& voices, ChannelVoice& voice, int frames)
{
    const ChannelFrames& shared = channel.frames;
    const float glideRate = channel.glideRate;
    Levels levels;
    int sounding = 0; // frames before the release
    if (!voice.releasing) {
        sounding = std::min(frames, std::max(voice.lengthFrames, 1));
        RunLevels(voice, glideRate, levels, 0, sounding);
        voice.lengthFrames -= sounding;
        if (voice.lengthFrames < 1 && sounding > 0) ReleaseNote(voices, voice.note);
    }
    RunLevels(voice, glideRate, levels, sounding, frames);
    if (frames < 1) return;

    alignas(64) float lfo1[kMaxRun], lfo2[kMaxRun];
    ScaleLfo(shared.lfo1, levels.env1, channel.env1.destination == destination::Depth, lfo1, frames);
    ScaleLfo(shared.lfo2, levels.env2, channel.env2.destination == destination::Depth, lfo2, frames);
    voice.lfo1Out = lfo1[frames - 1];
    voice.lfo2Out = lfo2[frames - 1];

    const Mix toCutoff = MixFor(channel, destination::Cutoff), toModAmount = MixFor(channel, destination::ModAmount),
              toAmp = MixFor(channel, destination::Amplitude);
    const float cutoffOffset = voice.cutoffOffset;
    for (int n = 0; n < frames; ++n) {
        const float env1 = levels.env1[n], env2 = levels.env2[n];
        voice.cutoffFrames[n] = toCutoff.AddTo(shared.cutoff[n] + cutoffOffset, env1, env2, lfo1[n], lfo2[n]);
        voice.modAmountFrames[n] = toModAmount.AddTo(shared.modAmount[n], env1, env2, lfo1[n], lfo2[n]);
        const float amp = levels.amp[n] * levels.amp[n] + toAmp.lfo1 * lfo1[n] + toAmp.lfo2 * lfo2[n];
        voice.ampFrames[n] = amp > 0.0f ? amp : 0.0f;
    }
}

void ApplyAmplitude(ChannelVoice& voice, int frames)
{
    const float* const amp = voice.ampFrames;
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

} // namespace

void SetUpModulation(ChannelSound& channel, bool voicesSound, float tempo)
{
    SetUpLfo(channel, channel.lfo1, 0, tempo);
    SetUpLfo(channel, channel.lfo2, 1, tempo);
    if (voicesSound) {
        SetUpRouting(channel, 0, channel.env1, channel.lfo1);
        SetUpRouting(channel, 1, channel.env2, channel.lfo2);
    }
    constexpr int last = slot::LastPosition(slot::FilterType);
    channel.filterType = Clamp(law::Position(channel.Modulated(slot::FilterType), last), 0, last);
    channel.cutoffBase = channel.params[slot::FilterCutoff];
    if (!(channel.cutoffSmooth >= 0.0f) || !std::isfinite(channel.cutoffSmooth))
        channel.cutoffSmooth = channel.cutoffBase;
    if (!std::isfinite(channel.modAmountSmooth)) channel.modAmountSmooth = 0.0f;
}

void SetUpVoices(ChannelSound& channel)
{
    channel.modTarget = law::ModulationAmount(channel.Modulated(slot::Modulation));
    channel.glideRate = law::EnvelopeRate(law::SlideSeconds(channel.Modulated(slot::SlideTime)), channel.rate);
    if (!channel.isSampler) SetUpSynth(channel, channel.synth);
}

void ModulateVoices(SoundingVoices sounding, int frames)
{
    const ChannelSound* last = nullptr;
    for (const auto& [channel, voices, voice] : sounding) {
        if (channel != last) RunChannelModulation(*channel, frames);
        last = channel;
        RunVoiceModulation(*channel, *voices, *voice, frames);
    }
}

void ShapeVoices(SoundingVoices sounding, int frames)
{
    for (const SoundingVoice& each : sounding) ApplyAmplitude(*each.voice, frames);
}

float PitchModulation(const ChannelSound& channel, const ChannelVoice& voice, float lfoSemitones)
{
    const Mix mix = MixFor(channel, destination::Pitch);
    return mix.env1 * voice.env1.level * kEnvelopeSemitones + mix.env2 * voice.env2.level * kEnvelopeSemitones +
           mix.lfo1 * voice.lfo1Out * lfoSemitones + mix.lfo2 * voice.lfo2Out * lfoSemitones;
}

float ModulatedAmount(const ChannelSound& channel, const ChannelVoice& voice, float base)
{
    return MixFor(channel, destination::ModAmount)
        .AddTo(base, voice.env1.level, voice.env2.level, voice.lfo1Out, voice.lfo2Out);
}

} // namespace korvane
