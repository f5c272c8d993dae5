// Stages of a run over all channels.
#include "engine/ChannelStages.h"

#include <array>
#include <cassert>

#include "engine/kernels/Kernels.h"
#include "engine/voice/Modulation.h"
#include "engine/voice/SamplerVoice.h"
#include "engine/voice/SynthVoice.h"

namespace korvane {

namespace {

struct VoiceList {
    std::array<SoundingVoice, kChannels * kVoices> voices;
    std::size_t count = 0;

    operator SoundingVoices() const { return {voices.data(), count}; }
};

VoiceList Sounding(RunChannels channels)
{
    VoiceList list;
    for (GrooveChannel* channel : channels) {
        if (!channel->soundedThisBlock) continue;
        for (auto& voice : channel->voices)
            if (voice->active) list.voices[list.count++] = {&channel->sound, &channel->voices, voice.get()};
    }
    return list;
}

} // namespace

void RenderVoices(RunChannels channels, int frames)
{
    const VoiceList list = Sounding(channels);
    const SoundingVoices sounding = list;
    ModulateVoices(sounding, frames);
    RenderSamplers(sounding, frames);
    RenderSynths(sounding, frames);
    ShapeVoices(sounding, frames);
    if (frames > 0)
        for (const SoundingVoice& each : sounding) each.voice->sounded = true;
}

void FilterChannels(RunChannels channels, SamplePool& pool, int frames, int first)
{
    FilterJob jobs[kChannels * kVoices];
    int count = 0;
    for (std::size_t c = 0; c < channels.size(); ++c) {
        const int number = first + static_cast<int>(c);
        const FilterType type = static_cast<FilterType>(channels[c]->sound.filterType);
        for (const auto& each : channels[c]->voices) {
            ChannelVoice& voice = *each;
            if (!voice.active) continue;
            jobs[count++] = {voice.filterState,        voice.left,      voice.right, voice.cutoffFrames,
                             voice.gainFrames,         voice.resonance, type,        pool.ChannelLeft(number),
                             pool.ChannelRight(number)};
        }
    }
    kernels.filterVoices(jobs, count, pool.engineTable, frames);
}

namespace {

/// The stutter, then "FX 1" to "FX 10".
constexpr int kStages = 1 + kEffects;

FXUnit& UnitOf(GrooveChannel& channel, int stage)
{
    return stage == 0 ? *channel.stutterUnit : *channel.fxUnits[static_cast<std::size_t>(stage - 1)];
}

} // namespace

std::bitset<kChannels> ProcessRacks(RunChannels channels, SamplePool& pool, int frames, float tempo)
{
    assert(channels.size() <= kChannels);
    std::bitset<kChannels> audible;
    for (std::size_t c = 0; c < channels.size(); ++c) audible[c] = channels[c]->soundedThisBlock;
    for (int stage = 0; stage < kStages; ++stage) {
        std::array<UnitRun, kChannels> runs;
        for (std::size_t c = 0; c < channels.size(); ++c) {
            FXUnit& unit = UnitOf(*channels[c], stage);
            if (stage > 0 && !audible[c]) unit.bypass = 1;
            const int number = static_cast<int>(c);
            runs[c] = {&unit, {pool.ChannelLeft(number), pool.ChannelRight(number), frames}};
        }
        ProcessUnits({runs.data(), channels.size()}, tempo);
        for (std::size_t c = 0; c < channels.size(); ++c) audible[c] = audible[c] || runs[c].unit->audible;
    }
    return audible;
}

} // namespace korvane
