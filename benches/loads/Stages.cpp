// What the stages of a block take of it.
#include "loads/Stages.h"

#include <algorithm>
#include <chrono>

#include "engine/ChannelStages.h"
#include "engine/RenderLoop.h"
#include "engine/kernels/Kernels.h"
#include "engine/voice/Modulation.h"
#include "engine/voice/SamplerVoice.h"
#include "engine/voice/SynthVoice.h"
#include "framework/ParameterTable.h"
#include "loads/Load.h"

namespace korvane::loads {
namespace {

constexpr int kFrames = 128, kBlocks = 750, kSettling = 100, kPasses = 5;
constexpr std::int8_t kStutterCode = 5;

/// The engine's loop taken apart; RenderFrames has it whole.
struct Bench {
    std::unique_ptr<GrooveEngine> engine;
    std::array<GrooveChannel*, kChannels> channels{};
    std::array<float, kFrames> mainLeft{}, mainRight{};
    std::uint32_t audible = 0; // a bit for each channel

    explicit Bench(std::unique_ptr<GrooveEngine> playing) : engine(std::move(playing))
    {
        for (int c = 0; c < kChannels; ++c) channels[static_cast<std::size_t>(c)] = &engine->Channel(c);
    }

    void WholeBlock()
    {
        std::array<float*, 2 + 2 * kChannels> nowhere{};
        RenderFrames(*engine, nowhere.data(), kFrames);
    }

    void Mix()
    {
        std::array<StripJob, kChannels> jobs;
        int count = 0;
        for (int c = 0; c < kChannels; ++c)
            if ((audible >> c & 1u) != 0)
                jobs[static_cast<std::size_t>(count++)] = channels[static_cast<std::size_t>(c)]->strip.Job(
                    engine->samplePool->ChannelLeft(c), engine->samplePool->ChannelRight(c), nullptr, nullptr, c == 0);
        kernels.mixStrips(jobs.data(), count, mainLeft.data(), mainRight.data(), kFrames);
        for (int c = 0, n = 0; c < kChannels; ++c) {
            MixerStrip& strip = channels[static_cast<std::size_t>(c)]->strip;
            if ((audible >> c & 1u) != 0)
                strip.Mixed(jobs[static_cast<std::size_t>(n++)]);
            else
                strip.Skip();
        }
    }

    StageTimes Block()
    {
        SamplePool& pool = *engine->samplePool;
        const float tempo = engine->clock.tempo;
        std::array<SoundingVoice, kChannels * kVoices> all;
        std::size_t count = 0;
        StageTimes times;
        auto stage = times.begin();
        auto last = std::chrono::steady_clock::now();
        const auto ends = [&stage, &last] {
            const auto now = std::chrono::steady_clock::now();
            *stage++ = std::chrono::duration<double, std::nano>(now - last).count();
            last = now;
        };
        for (GrooveChannel* channel : channels) channel->Refresh(tempo);
        for (GrooveChannel* channel : channels)
            for (auto& voice : channel->voices)
                if (voice->active) all[count++] = {&channel->sound, &channel->voices, voice.get()};
        const SoundingVoices sounding(all.data(), count);
        ends();
        ModulateVoices(sounding, kFrames);
        ends();
        RenderSamplers(sounding, kFrames);
        ends();
        RenderSynths(sounding, kFrames);
        ShapeVoices(sounding, kFrames);
        ends();
        for (int c = 0; c < kChannels; ++c)
            for (float* mix : {pool.ChannelLeft(c), pool.ChannelRight(c)}) std::fill_n(mix, kFrames, 0.0f);
        FilterChannels(channels, pool, kFrames);
        ends();
        audible = ProcessRacks(channels, kFrames, tempo);
        ends();
        Mix();
        ends();
        engine->clock.Pass(kFrames);
        return times;
    }
};

} // namespace

StageTimes TimesOfStages(const std::vector<std::uint8_t>& state, const std::filesystem::path& bundle, bool stutter)
{
    std::vector<StageTimes> least(kBlocks);
    for (StageTimes& times : least) times.fill(1.0e99);
    int timed = 0;
    for (int pass = 0; pass < kPasses; ++pass) {
        Bench bench(Playing(state, bundle));
        bench.WholeBlock();
        for (auto& code : bench.engine->buttons.stutterCode) code = stutter ? kStutterCode : std::int8_t{0};
        for (int n = 0; n < kSettling; ++n) bench.WholeBlock();
        timed = 0;
        for (int n = 0; n < kBlocks; ++n) {
            if (bench.engine->clock.samplesToNextStep < kFrames || bench.engine->clock.lateTickPending) {
                bench.WholeBlock();
                continue;
            }
            const StageTimes times = bench.Block();
            StageTimes& so = least[static_cast<std::size_t>(timed++)];
            for (std::size_t s = 0; s < times.size(); ++s) so[s] = std::min(so[s], times[s]);
        }
    }
    StageTimes mean{};
    for (int n = 0; n < timed; ++n)
        for (std::size_t s = 0; s < mean.size(); ++s) mean[s] += least[static_cast<std::size_t>(n)][s] / timed;
    return mean;
}

} // namespace korvane::loads
