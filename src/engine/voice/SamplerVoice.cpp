// Sample layers.
#include "engine/voice/SamplerVoice.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/Biquad.h"
#include "engine/kernels/Kernels.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/Modulation.h"
#include "engine/voice/VoiceLife.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// The sample of a layer, or null. A file that could not be read is a sample of 0 frames.
const CWaveSample* SampleOf(const ChannelSound& channel, int l)
{
    const PoolEntry* entry = channel.sampleSlots[static_cast<std::size_t>(kFirstLayerSlot + l)].Playing();
    return entry ? entry->sample.get() : nullptr;
}

void StartFilters(LayerState& layer, float loCut, float hiCut, float bandwidth, float rate)
{
    const float q = law::LayerQ(bandwidth);
    const FilterCoefficients lo = HighPassCoefficients(law::LayerLoCutHz(loCut), q, rate);
    const FilterCoefficients hi = LowPassCoefficients(law::LayerHiCutHz(hiCut), q, rate);
    layer.coefficients = {lo.b, lo.a1, lo.a2, hi.b, hi.a1, hi.a2};
    for (LayerFilter<float>& filter : layer.filters) filter = {};
}

} // namespace

void StartLayers(ChannelSound& channel, ChannelVoice& voice)
{
    const float rate = channel.rate;
    for (int l = 0; l < kLayers; ++l) {
        const auto value = [&](int index) { return channel.Modulated(index + l); };
        SamplerLayer& layer = voice.layers[l];
        layer.bypassed = value(slot::LayerBypass) != 0.0f;
        layer.reverse = value(slot::LayerReverse) != 0.0f;
        layer.seam = {};
        if (const CWaveSample* sample = SampleOf(channel, l))
            layer.position = std::max(0.0f, value(slot::LayerStart) * static_cast<float>(sample->numFrames));
        layer.delayFrames = std::max(0, Truncate(law::LayerDelaySeconds(value(slot::LayerDelay)) * rate));
        layer.pitch = law::LayerSemitones(value(slot::LayerPitch));

        const float pan = value(slot::LayerPan), upright = law::LayerGain(value(slot::LayerLevel));
        const float gain = value(slot::LayerInvert) != 0.0f ? -upright : upright;
        layer.gainLeft = law::LayerPanLeft(pan) * gain;
        layer.gainRight = law::LayerPanRight(pan) * gain;
        StartFilters(layer, value(slot::LayerLoCut), value(slot::LayerHiCut), value(slot::LayerBandwidth), rate);

        const float decay = value(slot::LayerDecay);
        layer.envLevel = 0.0f;
        layer.envTarget = kAttackTarget;
        layer.envRate = law::EnvelopeRate(law::LayerAttackSeconds(value(slot::LayerAttack)), rate);
        layer.plateauFrames = Truncate(law::LayerHoldSeconds(value(slot::LayerHold)) * rate);
        layer.decayRate = decay >= law::kNoLayerDecay ? 0.0f : law::EnvelopeRate(law::LayerDecaySeconds(decay), rate);
    }
}

bool LayersCanPlay(const ChannelSound& channel, const ChannelVoice& voice)
{
    for (int l = 0; l < kLayers; ++l) {
        const CWaveSample* sample = SampleOf(channel, l);
        const SamplerLayer& layer = voice.layers[l];
        if (layer.bypassed) continue;
        if (layer.seam.Heard() || (sample && layer.position < sample->numFrames)) return true;
    }
    return false;
}

void TuneLayers(ChannelSound& channel, ChannelVoice& voice)
{
    const float transpose = static_cast<float>(ChannelTranspose(channel));
    const float modulation = PitchModulation(channel, voice, 1.0f);
    for (SamplerLayer& layer : voice.layers) {
        const float semitones = layer.pitch + transpose + modulation;
        if (semitones == layer.semitones) continue;
        layer.semitones = semitones;
        layer.increment = std::pow(2.0, static_cast<double>(semitones) / 12.0);
    }
}

namespace {

/// How many frames the position stays inside the sample.
int FramesInside(const SamplerLayer& layer, const CWaveSample& sample, int wanted)
{
    const double end = sample.numFrames;
    if (layer.position + layer.increment * wanted < end - 1.0) return wanted; // by more than all that rounding does
    int n = 0;
    for (double position = layer.position; n < wanted && position < end; ++n) position += layer.increment;
    return n;
}

/// A layer in a run of some frames: after its delay it plays until its sample ends.
/// sample  null when there is none any more and the layer dies away
/// job     filled where it stands: a copy would wait for its fields
void Begin(SamplerLayer& layer, ChannelVoice& voice, const CWaveSample* sample, int frames, LayerJob& job)
{
    const int delay = std::min(layer.delayFrames, frames);
    layer.delayFrames -= delay;
    job.state = &layer;
    job.reverse = layer.reverse;
    job.from = job.to = delay;
    job.mixLeft = voice.left;
    job.mixRight = voice.right;
    if (!sample) return;
    job.data[0] = sample->channelData[0].get();
    job.data[1] = sample->channelData[sample->numChannels == 2 ? 1 : 0].get();
    job.numFrames = sample->numFrames;
    job.to += FramesInside(layer, *sample, frames - delay);
}

/// Where it does not sound the layer moves on all the same.
void MoveOn(SamplerLayer& layer, int frames)
{
    for (int n = 0; n < frames; ++n) layer.position += layer.increment;
}

bool SeamHeard(const ChannelVoice& voice)
{
    return std::any_of(std::begin(voice.layers), std::end(voice.layers),
                       [](const SamplerLayer& layer) { return !layer.bypassed && layer.seam.Heard(); });
}

/// A layer whose sample has been replaced, or one beside it.
void RenderJoined(SamplerLayer& layer, ChannelVoice& voice, const CWaveSample* sample, int frames)
{
    float left[kMaxRun], right[kMaxRun];
    LayerJob job = {};
    Begin(layer, voice, sample, frames, job);
    ReadLayer(job, left, right);
    if (sample) MoveOn(layer, frames - job.to);
    if (layer.seam.Heard()) {
        std::fill(left + job.to, left + frames, 0.0f);
        std::fill(right + job.to, right + frames, 0.0f);
        job.to = frames;
    }
    layer.seam.Join(left + job.from, right + job.from, job.to - job.from);
    if (job.to < frames) layer.seam.End();
    ShapeLayer(job, left, right, kSourceScale);
}

void RenderJoined(ChannelSound& channel, ChannelVoice& voice, int frames)
{
    for (int l = 0; l < kLayers; ++l) {
        const CWaveSample* sample = SampleOf(channel, l);
        SamplerLayer& layer = voice.layers[l];
        if (!layer.bypassed && (sample || layer.seam.Heard())) RenderJoined(layer, voice, sample, frames);
    }
}

/// The layers of all voices.
struct LayerList {
    LayerJob jobs[kSamplerChannels * kVoices * kLayers];
    SamplerLayer* layers[kSamplerChannels * kVoices * kLayers];
    int count = 0;

    void Add(SamplerLayer& layer, ChannelVoice& voice, const CWaveSample& sample, int frames)
    {
        Begin(layer, voice, &sample, frames, jobs[count]);
        layers[count] = &layer;
        if (jobs[count].from < jobs[count].to)
            ++count;
        else
            End(layer, frames - jobs[count].to);
    }

    void Play(int frames)
    {
        // What packing them costs pays only when there is some work.
        if (count > 1 && frames > 2)
            kernels.playLayers(jobs, count, kSourceScale);
        else
            for (int j = 0; j < count; ++j) PlayLayer(jobs[j], kSourceScale);
        for (int j = 0; j < count; ++j) {
            layers[j]->seam.Pass(jobs[j].lastLeft, jobs[j].lastRight);
            End(*layers[j], frames - jobs[j].to);
        }
    }

    /// silent  frames left in the run
    static void End(SamplerLayer& layer, int silent)
    {
        if (silent < 1) return;
        MoveOn(layer, silent);
        layer.seam.End();
    }
};

void AddLayers(LayerList& list, ChannelSound& channel, ChannelVoice& voice, int frames)
{
    for (int l = 0; l < kLayers; ++l)
        if (const CWaveSample* sample = SampleOf(channel, l); sample && !voice.layers[l].bypassed)
            list.Add(voice.layers[l], voice, *sample, frames);
}

} // namespace

void RenderSamplers(SoundingVoices sounding, int frames)
{
    LayerList list;
    for (const auto& [channel, voices, voice] : sounding) {
        if (!channel->isSampler) continue;
        std::fill_n(voice->left, frames, 0.0f);
        std::fill_n(voice->right, frames, 0.0f);
        if (SeamHeard(*voice))
            RenderJoined(*channel, *voice, frames);
        else
            AddLayers(list, *channel, *voice, frames);
    }
    list.Play(frames);
}

} // namespace korvane
