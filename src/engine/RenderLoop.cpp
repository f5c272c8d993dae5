// The render loop: clock, channels, mix.
#include "engine/RenderLoop.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cassert>

#include "engine/ChannelStages.h"
#include "engine/SequencerTick.h"
#include "engine/Transport.h"
#include "engine/kernels/Kernels.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kOutputs = 2 + 2 * kChannels;

void RefreshChannels(GrooveEngine& engine)
{
    const int selected = engine.selection.selectedChannel;
    for (int c = 0; c < kChannels; ++c) {
        ChannelSound& sound = engine.Channel(c).sound;
        const bool live = c == selected;
        sound.muted = engine.mixer.Silences(c, selected);
        sound.modWheelIn = live ? static_cast<float>(engine.liveModWheel) : 0.0f;
        sound.pitchBendIn = live ? static_cast<float>(engine.livePitchBend) : 0.0f;
        sound.pressureIn = live ? static_cast<float>(engine.livePressure) : 0.0f;
        engine.Channel(c).Refresh(engine.clock.tempo);
    }
}

void MixChannels(GrooveEngine& engine, const std::bitset<kChannels>& audible, float* const* outputs, int frames)
{
    SamplePool& pool = *engine.samplePool;
    std::array<StripJob, kChannels> jobs;
    std::array<MixerStrip*, kChannels> strips;
    std::size_t count = 0;
    for (int c = 0; c < kChannels; ++c) {
        GrooveChannel& channel = engine.Channel(c);
        MixerStrip& strip = channel.strip;
        strip.Set(channel.sound.params[slot::MixLevel], channel.sound.params[slot::Panning]);
        if (audible[static_cast<std::size_t>(c)]) {
            jobs[count] =
                strip.Job(pool.ChannelLeft(c), pool.ChannelRight(c), outputs[2 + 2 * c], outputs[3 + 2 * c], c == 0);
            strips[count++] = &strip;
        } else {
            strip.Skip();
        }
    }
    kernels.mixStrips(jobs.data(), static_cast<int>(count), outputs[0], outputs[1], frames);
    for (std::size_t n = 0; n < count; ++n) strips[n]->Mixed(jobs[n]);
}

void RenderChannels(GrooveEngine& engine, float* const* outputs, int frames)
{
    SamplePool& pool = *engine.samplePool;
    std::array<GrooveChannel*, kChannels> channels;
    for (int c = 0; c < kChannels; ++c) {
        channels[static_cast<std::size_t>(c)] = &engine.Channel(c);
        std::fill_n(pool.ChannelLeft(c), frames, 0.0f);
        std::fill_n(pool.ChannelRight(c), frames, 0.0f);
    }
    RenderVoices(channels, frames);
    FilterChannels(channels, pool, frames);
    const auto audible = ProcessRacks(channels, pool, frames, engine.clock.tempo);
    MixChannels(engine, audible, outputs, frames);
}

} // namespace

void RenderFrames(GrooveEngine& engine, float* const* outputs, int frames)
{
    assert(frames <= kMaxRun);
    Clock& clock = engine.clock;
    ServeTransport(engine);
    engine.ServeVoices();

    std::array<float*, kOutputs> out;
    std::copy_n(outputs, kOutputs, out.begin());
    for (int side = 0; side < 2; ++side)
        if (!out[side]) out[side] = engine.samplePool->Scratch(side);
    if (frames < 1) return;
    std::fill_n(out[0], frames, 0.0f);
    std::fill_n(out[1], frames, 0.0f);

    // A late tick comes with the first run that begins after its instant. Without shuffle that instant is the step's
    // own, which no run begins after, so the two ticks come together.
    const float straightness = clock.Straightness();
    const double lateThreshold = clock.LateThreshold(straightness);
    while (frames > 0) {
        if (clock.lateTickPending && (clock.samplesToNextStep < lateThreshold || straightness == 1.0f)) {
            SequencerTick(engine, true);
            clock.lateTickPending = false;
        }
        const int framesToStep = std::max(0, Truncate(static_cast<double>(clock.samplesToNextStep)));
        int run = std::min(framesToStep, frames);
        if (framesToStep == 0) {
            SequencerTick(engine, false);
            if (clock.patternStep & 1) clock.lateTickPending = true;
            clock.samplesToNextStep = clock.samplesToNextStep + clock.StepFrames();
            run = 0; // the channels still take over what the tick has changed
        }
        RefreshChannels(engine);
        RenderChannels(engine, out.data(), run);
        if (clock.Recording()) engine.mixer.click.Add(out[0], out[1], run);
        clock.Pass(run);
        for (float*& pointer : out)
            if (pointer) pointer += run;
        frames -= run;
    }
}

} // namespace korvane
