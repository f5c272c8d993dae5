// Sample layers.
#include "engine/voice/SamplerVoice.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/Biquad.h"
#include "engine/dsp/StereoFrame.h"
#include "engine/voice/ChannelSound.h"
#include "engine/voice/Modulation.h"
#include "engine/voice/VoiceLife.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kHoldLevel = 1.00001f; // beyond full level, so that every frame of the hold finds the attack over

/// The sample of a layer, or null. A file that could not be read is a sample of 0 frames.
const CWaveSample* SampleOf(const ChannelSound& channel, int l)
{
    const PoolEntry* entry = channel.sampleSlots[static_cast<std::size_t>(kFirstLayerSlot + l)].Playing();
    return entry ? entry->sample.get() : nullptr;
}

void StartFilters(LayerFilters& filters, float loCut, float hiCut, float bandwidth, float rate)
{
    const float q = law::LayerQ(bandwidth);
    const FilterCoefficients lo = HighPassCoefficients(law::LayerLoCutHz(loCut), q, rate);
    const FilterCoefficients hi = LowPassCoefficients(law::LayerHiCutHz(hiCut), q, rate);
    filters = {};
    for (int lane = 0; lane < 4; ++lane) {
        const FilterCoefficients& section = lane < 2 ? lo : hi;
        filters.b0[lane] = section.b;
        filters.a1[lane] = section.a1;
        filters.a2[lane] = section.a2;
    }
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
        StartFilters(layer.filters, value(slot::LayerLoCut), value(slot::LayerHiCut), value(slot::LayerBandwidth),
                     rate);

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

/// Frames of one layer on their way through its stages, interleaved left and right.
struct LayerRun {
    alignas(64) float stereo[2 * kMaxRun];
    alignas(64) float envelope[kMaxRun];
};

/// Reads the sample, with gain applied. Returns the frames that the layer could play before the sample's end; the
/// position moves on through the whole run.
template <bool kStereo, bool kReverse>
int ReadFrames(SamplerLayer& layer, const CWaveSample& sample, float* out, int frames)
{
    const float* const data0 = sample.channelData[0].get();
    const float* const data1 = kStereo ? sample.channelData[1].get() : data0;
    const std::int32_t numFrames = sample.numFrames;
    const double end = numFrames, increment = layer.increment;
    const float gainLeft = layer.gainLeft, gainRight = layer.gainRight;
    double position = layer.position;
    int n = 0;
    for (; n < frames && position < end; ++n) {
        std::int32_t i = static_cast<std::int32_t>(position);
        float f = static_cast<float>(position - i);
        if constexpr (kReverse) {
            f = 1.0f - f;
            i = numFrames - i; // up to numFrames; the sample has zeros after its last frame
        }
        const float left = data0[i] * (1.0f - f) + data0[i + 1] * f;
        const float right = kStereo ? data1[i] * (1.0f - f) + data1[i + 1] * f : left;
        out[2 * n] = Flushed(left * gainLeft);
        out[2 * n + 1] = Flushed(right * gainRight);
        position += increment;
    }
    for (int rest = n; rest < frames; ++rest) position += increment;
    layer.position = position;
    return n;
}

int ReadFrames(SamplerLayer& layer, const CWaveSample& sample, float* out, int frames)
{
    if (sample.numChannels == 2)
        return layer.reverse ? ReadFrames<true, true>(layer, sample, out, frames)
                             : ReadFrames<true, false>(layer, sample, out, frames);
    return layer.reverse ? ReadFrames<false, true>(layer, sample, out, frames)
                         : ReadFrames<false, false>(layer, sample, out, frames);
}

void RunEnvelope(SamplerLayer& layer, float* gains, int frames)
{
    float level = layer.envLevel, target = layer.envTarget, rate = layer.envRate;
    std::int32_t hold = layer.plateauFrames;
    for (int n = 0; n < frames; ++n) {
        level += (target - level) * rate;
        if (level > 1.0f) {
            if (hold > 0) {
                level = kHoldLevel;
                --hold;
            } else {
                level = 1.0f;
                target = 0.0f;
                rate = layer.decayRate;
            }
        }
        gains[n] = level * level * kSourceScale;
    }
    layer.envLevel = Flushed(level);
    layer.envTarget = target;
    layer.envRate = rate;
    layer.plateauFrames = hold;
}

/// sample  null when there is none any more and the layer dies away
void RenderLayer(SamplerLayer& layer, const CWaveSample* sample, float* left, float* right, int frames)
{
    const int delay = std::min(layer.delayFrames, frames);
    layer.delayFrames -= delay;

    LayerRun run;
    const int wanted = frames - delay;
    int played = sample ? ReadFrames(layer, *sample, run.stereo, wanted) : 0;
    if (layer.seam.Heard()) {
        std::fill(run.stereo + 2 * played, run.stereo + 2 * wanted, 0.0f);
        played = wanted;
    }
    layer.seam.Join(run.stereo, run.stereo + 1, played, 2);
    if (played < wanted) layer.seam.End();
    RunEnvelope(layer, run.envelope, played);
    FilterLayer(layer.filters, run.stereo, played);
    for (int n = 0; n < played; ++n) {
        left[delay + n] += run.stereo[2 * n] * run.envelope[n];
        right[delay + n] += run.stereo[2 * n + 1] * run.envelope[n];
    }
}

void RenderLayers(ChannelSound& channel, ChannelVoice& voice, int frames)
{
    std::fill_n(voice.left, frames, 0.0f);
    std::fill_n(voice.right, frames, 0.0f);
    for (int l = 0; l < kLayers; ++l) {
        const CWaveSample* sample = SampleOf(channel, l);
        SamplerLayer& layer = voice.layers[l];
        if (!layer.bypassed && (sample || layer.seam.Heard()))
            RenderLayer(layer, sample, voice.left, voice.right, frames);
    }
}

} // namespace

void RenderSamplers(SoundingVoices sounding, int frames)
{
    for (const auto& [channel, voices, voice] : sounding)
        if (channel->isSampler) RenderLayers(*channel, *voice, frames);
}

} // namespace korvane
