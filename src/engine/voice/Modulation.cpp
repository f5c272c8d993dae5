// Per-frame modulation of a channel and its voices.
#include "engine/voice/Modulation.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "engine/kernels/Kernels.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/SynthVoice.h"
#include "engine/voice/VoiceLife.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kEnvelopeSemitones = 24.0f; // of an envelope at full level and amount

void SetUpLfo(const ChannelSound& channel, Lfo& lfo, int number, float tempo)
{
    const float frequency =
        LfoFrequency(channel.Modulated(slot::LfoRate + number), channel.Modulated(slot::LfoSync + number), tempo);
    const float increment = frequency / channel.rate;
    constexpr float kFastest = 0x1p24f; // from here on all give phase 0
    lfo.increment = std::isfinite(increment) ? std::min(increment, kFastest) : 0.0f;
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

using Mix = MixOf<float>;

Mix MixFor(const ChannelSound& channel, int destination)
{
    return {channel.env1.destination == destination ? channel.env1.amount : 0.0f,
            channel.env2.destination == destination ? channel.env2.amount : 0.0f,
            channel.lfo1.destination == destination ? 1.0f : 0.0f,
            channel.lfo2.destination == destination ? 1.0f : 0.0f};
}

/// An LFO beyond the shapes stands still at 0.
void DescribeLfo(const Lfo& lfo, int l, const EnvelopeRoute& envelope, ChannelMotion<float>& motion)
{
    constexpr float kNoShape = -1.0f;
    const bool known = lfo.shape >= LfoShape::Sine && lfo.shape <= LfoShape::Square;
    const bool stands = lfo.amount != 0.0f && !known;
    motion.phase[l] = lfo.phase;
    motion.increment[l] = stands ? 0.0f : lfo.increment;
    motion.amount[l] = stands ? 0.0f : lfo.amount;
    motion.shape[l] = lfo.amount != 0.0f && known ? static_cast<float>(lfo.shape) : kNoShape;
    motion.scaled[l] = envelope.destination == destination::Depth ? 1.0f : 0.0f;
    motion.toAmp[l] = lfo.destination == destination::Amplitude ? 1.0f : 0.0f;
}

void DescribeMotion(const ChannelSound& channel, ChannelMotion<float>& motion)
{
    std::fill(std::begin(motion.unused), std::end(motion.unused), 0.0f);
    DescribeLfo(channel.lfo1, 0, channel.env1, motion);
    DescribeLfo(channel.lfo2, 1, channel.env2, motion);
    motion.cutoff = channel.cutoffSmooth;
    motion.modAmount = channel.modAmountSmooth;
    motion.cutoffBase = channel.cutoffBase;
    motion.modTarget = channel.modTarget;
    motion.glideRate = channel.glideRate;
    motion.toCutoff = MixFor(channel, destination::Cutoff);
    motion.toModAmount = MixFor(channel, destination::ModAmount);
}

bool NeedsModAmount(const ChannelSound& channel)
{
    return !channel.isSampler && channel.synth.mix.modulation != OscillatorModulation::Sync;
}

/// One that an envelope scales counts even at amount 0: levels that leave all bounds make a NaN of it.
bool Acts(const ChannelSound& channel, const Lfo& lfo, const EnvelopeRoute& envelope)
{
    if (envelope.destination == destination::Depth) return true;
    if (lfo.amount == 0.0f) return false;
    return lfo.destination == destination::Cutoff || lfo.destination == destination::Amplitude ||
           (lfo.destination == destination::ModAmount && NeedsModAmount(channel));
}

/// A channel of a run.
struct Motion {
    union { // both filled before they are read
        ChannelMotion<float> begin;
    };
    union {
        ChannelMotion<float> moved;
    };

    Motion() {}
};

/// What the channel's jobs have in common, into the first one.
void DescribeChannel(ChannelSound& channel, Motion& run, int frames, MotionJob& job)
{
    ChannelMotion<float>& motion = run.begin;
    DescribeMotion(channel, motion);
    job.channel = &motion;
    job.moved = &run.moved;
    job.sines[0] = job.sines[1] = nullptr;
    job.lfosAct = false;
    job.release = kNeverReleased;
    const Lfo* const lfos[kLfos] = {&channel.lfo1, &channel.lfo2};
    const EnvelopeRoute* const envelopes[kLfos] = {&channel.env1, &channel.env2};
    for (int l = 0; l < kLfos; ++l) {
        if (!Acts(channel, *lfos[l], *envelopes[l])) continue;
        job.lfosAct = true;
        if (motion.shape[l] != static_cast<float>(LfoShape::Sine)) continue;
        lfos[l]->FillSines(channel.frames.sines[l], frames);
        job.sines[l] = channel.frames.sines[l];
    }
}

/// What further voices of the channel have in common with its first one, whose note may have been released.
void CopyChannel(const MotionJob& first, MotionJob& job)
{
    job.channel = first.channel;
    job.moved = first.moved;
    for (int l = 0; l < kLfos; ++l) job.sines[l] = first.sines[l];
    job.lfosAct = first.lfosAct;
    job.release = kNeverReleased;
}

void TakeOver(ChannelSound& channel, const ChannelMotion<float>& moved)
{
    channel.lfo1.phase = moved.phase[0];
    channel.lfo2.phase = moved.phase[1];
    channel.cutoffSmooth = moved.cutoff;
    channel.modAmountSmooth = moved.modAmount;
}

void DescribeVoice(bool needsModAmount, ChannelVoice& voice, MotionJob& job)
{
    job.voice = &voice;
    job.cutoff = voice.cutoffFrames;
    job.gain = voice.gainFrames;
    job.amp = voice.ampFrames;
    job.modAmount = needsModAmount ? voice.modAmountFrames : nullptr;
    voice.glideTarget = static_cast<float>(voice.pitchNote);
}

/// Counts the note of voice v down. Those before it have been counted already, those behind it not yet.
void CountDown(SoundingVoices sounding, std::size_t v, MotionJob* jobs, int frames)
{
    const ChannelVoice& ending = *sounding[v].voice;
    if (ending.releasing) return;
    const int sounds = std::min(frames, std::max(ending.lengthFrames, 1));
    sounding[v].voice->lengthFrames -= sounds;
    if (ending.lengthFrames >= 1) return;
    const auto released = [&](std::size_t other) {
        return sounding[other].channel == sounding[v].channel && sounding[other].voice->note == ending.note;
    };
    for (std::size_t other = 0; other <= v; ++other) {
        if (!released(other)) continue;
        sounding[other].voice->releasing = true;
        jobs[other].release = other == v ? sounds : frames;
    }
    for (std::size_t other = v + 1; other < sounding.size(); ++other)
        if (released(other)) ReleaseVoice(*sounding[other].voice);
}

} // namespace

void SetUpModulation(ChannelSound& channel, bool voicesSound, float tempo)
{
    const InputStamp now = channel.Stamp();
    if (channel.modulationOf != now) {
        channel.modulationOf = now;
        SetUpLfo(channel, channel.lfo1, 0, tempo);
        SetUpLfo(channel, channel.lfo2, 1, tempo);
        constexpr int last = slot::LastPosition(slot::FilterType);
        channel.filterType = Clamp(law::Position(channel.Modulated(slot::FilterType), last), 0, last);
        channel.cutoffBase = channel.params[slot::FilterCutoff];
    }
    if (voicesSound && channel.routingOf != now) {
        channel.routingOf = now;
        SetUpRouting(channel, 0, channel.env1, channel.lfo1);
        SetUpRouting(channel, 1, channel.env2, channel.lfo2);
        channel.levelGain = LevelGain(channel.Modulated(slot::AmpLevel));
        ++channel.tuneCount;
    }
    if (!(channel.cutoffSmooth >= 0.0f) || !std::isfinite(channel.cutoffSmooth))
        channel.cutoffSmooth = channel.cutoffBase;
    if (!std::isfinite(channel.modAmountSmooth)) channel.modAmountSmooth = 0.0f;
}

void SetUpVoices(ChannelSound& channel)
{
    const InputStamp now = channel.Stamp();
    if (channel.voicesOf == now) return;
    channel.voicesOf = now;
    ++channel.tuneCount;
    channel.modTarget = law::ModulationAmount(channel.Modulated(slot::Modulation));
    channel.glideRate = law::EnvelopeRate(law::SlideSeconds(channel.Modulated(slot::SlideTime)), channel.rate);
    if (!channel.isSampler) SetUpSynth(channel, channel.synth);
}

void ModulateVoices(SoundingVoices sounding, int frames)
{
    if (frames < 1 || sounding.empty()) return;
    Motion channels[kChannels];
    MotionJob jobs[kChannels * kVoices];
    ChannelSound* sounds[kChannels];
    int count = 0;
    bool needsModAmount = false;
    std::size_t first = 0; // of the channel
    for (std::size_t v = 0; v < sounding.size(); ++v) {
        ChannelSound* const channel = sounding[v].channel;
        if (count == 0 || channel != sounds[count - 1]) {
            first = v;
            DescribeChannel(*channel, channels[count], frames, jobs[v]);
            needsModAmount = NeedsModAmount(*channel);
            sounds[count++] = channel;
        } else {
            CopyChannel(jobs[first], jobs[v]);
        }
        DescribeVoice(needsModAmount, *sounding[v].voice, jobs[v]);
        CountDown(sounding, v, jobs, frames);
    }
    kernels.modulateVoices(jobs, static_cast<int>(sounding.size()), frames);
    for (int c = 0; c < count; ++c) TakeOver(*sounds[c], channels[c].moved);
}

void ShapeVoices(SoundingVoices sounding, int frames)
{
    if (sounding.empty()) return;
    AmplitudeJob jobs[kChannels * kVoices];
    int count = 0;
    for (const SoundingVoice& each : sounding)
        jobs[count++] = {each.voice->left, each.voice->right, each.voice->ampFrames};
    kernels.shapeVoices(jobs, count, frames);
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
