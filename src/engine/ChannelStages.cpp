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
    for (GrooveChannel* channel : channels)
        ForEachBit(channel->activeVoices, [&](int v) {
            ChannelVoice* const voice = channel->voices[static_cast<std::size_t>(v)].get();
            list.voices[list.count++] = {&channel->sound, &channel->voices, voice};
        });
    return list;
}

} // namespace

void RenderVoices(RunChannels channels, int frames)
{
    const VoiceList list = Sounding(channels);
    const SoundingVoices sounding = list;
    if (sounding.empty()) return;
    ModulateVoices(sounding, frames);
    RenderSamplers(sounding, frames);
    RenderSynths(sounding, frames);
    ShapeVoices(sounding, frames);
    if (frames > 0)
        for (const SoundingVoice& each : sounding) each.voice->sounded = true;
}

void FilterChannels(RunChannels channels, SamplePool& pool, int frames)
{
    FilterJob jobs[kChannels * kVoices];
    int count = 0;
    for (GrooveChannel* channel : channels) {
        const FilterType type = static_cast<FilterType>(channel->sound.filterType);
        ForEachBit(channel->activeVoices, [&](int v) {
            ChannelVoice& voice = *channel->voices[static_cast<std::size_t>(v)];
            jobs[count++] = {voice.filterState, voice.left, voice.right,      voice.cutoffFrames, voice.gainFrames,
                             voice.resonance,   type,       channel->mixLeft, channel->mixRight};
        });
    }
    if (count > 0) kernels.filterVoices(jobs, count, pool.engineTable, frames);
}

namespace {

/// The stutter, then "FX 1" to "FX 10".
constexpr int kStages = 1 + kEffects;

FXUnit& UnitOf(GrooveChannel& channel, int stage)
{
    return stage == 0 ? *channel.stutterUnit : *channel.fxUnits[static_cast<std::size_t>(stage - 1)];
}

/// The units of a stage that have something to do.
struct StageRun {
    std::array<UnitRun, kChannels> units;
    std::array<int, kChannels> channels; // their places in the run
    std::size_t count = 0;
};

StageRun UnitsOf(RunChannels channels, std::uint32_t candidates, int stage, std::uint32_t audible, int frames)
{
    StageRun run;
    ForEachBit(candidates, [&](int c) {
        GrooveChannel& channel = *channels[static_cast<std::size_t>(c)];
        const bool sounds = stage == 0 || (audible >> c & 1u) != 0;
        const auto has = [stage](std::uint16_t units) { return (units >> stage & 1u) != 0; };
        if (!(sounds && has(channel.unitsHeard)) && !has(channel.unitsAwake)) return;
        FXUnit& unit = UnitOf(channel, stage);
        if (stage > 0) unit.bypass = !(sounds && has(channel.unitsOn));
        run.channels[run.count] = c;
        run.units[run.count++] = {&unit, {channel.mixLeft, channel.mixRight, frames}};
    });
    return run;
}

} // namespace

std::uint32_t ProcessRacks(RunChannels channels, int frames, float tempo)
{
    assert(channels.size() <= kChannels);
    std::uint32_t audible = 0;
    std::array<std::uint32_t, kStages> candidates{}; // of each stage, a bit for each channel
    for (std::size_t c = 0; c < channels.size(); ++c) {
        GrooveChannel& channel = *channels[c];
        if (channel.soundedThisBlock) audible |= 1u << c;
        ForEachBit(channel.unitsHeard | channel.unitsAwake,
                   [&](int stage) { candidates[static_cast<std::size_t>(stage)] |= 1u << c; });
    }
    for (int stage = 0; stage < kStages; ++stage) {
        const std::uint32_t some = candidates[static_cast<std::size_t>(stage)];
        if (some == 0) continue;
        const StageRun run = UnitsOf(channels, some, stage, audible, frames);
        if (run.count == 0) continue;
        ProcessUnits({run.units.data(), run.count}, tempo);
        for (std::size_t n = 0; n < run.count; ++n) {
            const FXUnit& unit = *run.units[n].unit;
            const int c = run.channels[n];
            if (unit.audible) audible |= 1u << c;
            if (frames < 1) continue; // nothing has moved
            std::uint16_t& awake = channels[static_cast<std::size_t>(c)]->unitsAwake;
            const std::uint16_t bit = static_cast<std::uint16_t>(1u << stage);
            awake = static_cast<std::uint16_t>(unit.AtRest() ? awake & ~bit : awake | bit);
        }
    }
    return audible;
}

} // namespace korvane
