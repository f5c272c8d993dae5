// The render loop: clock, channels, mix.
#include "engine/RenderLoop.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <new>

#include "engine/ChannelStages.h"
#include "engine/SequencerTick.h"
#include "engine/Transport.h"
#include "engine/kernels/Kernels.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// The channels of a run.
struct RunList {
    std::array<GrooveChannel*, kChannels> channels;
    std::array<int, kChannels> numbers;
    std::size_t count = 0;

    operator RunChannels() const { return {channels.data(), count}; }
};

GrooveEngine::RunInputs InputsOf(const GrooveEngine& engine)
{
    GrooveEngine::RunInputs inputs;
    inputs.changes = engine.changes.Now(); // before anything that it counts is read
    inputs.offers = engine.samplePool->returned.offers.Now();
    inputs.selected = engine.selection.selectedChannel;
    for (int c = 0; c < kChannels; ++c)
        inputs.silenced |= static_cast<std::uint32_t>(engine.mixer.Silences(c, inputs.selected)) << c;
    inputs.tempo = engine.clock.tempo;
    inputs.modWheel = engine.liveModWheel;
    inputs.pitchBend = engine.livePitchBend;
    inputs.pressure = engine.livePressure;
    return inputs;
}

/// All channels, or where nothing has changed for them those that are not at rest.
/// ticked  a tick has come since the last run
RunList RefreshChannels(GrooveEngine& engine, bool ticked)
{
    const GrooveEngine::RunInputs now = InputsOf(engine);
    const bool moved = ticked || now != engine.lastRun;
    engine.lastRun = now;
    RunList run;
    for (int c = 0; c < kChannels; ++c) {
        GrooveChannel& channel = engine.Channel(c);
        if (!moved && channel.atRest) continue;
        if (moved) {
            const bool live = c == now.selected;
            channel.sound.muted = (now.silenced >> c & 1u) != 0;
            channel.sound.modWheelIn = live ? now.modWheel : 0.0f;
            channel.sound.pitchBendIn = live ? now.pitchBend : 0.0f;
            channel.sound.pressureIn = live ? now.pressure : 0.0f;
        }
        channel.Refresh(now.tempo);
        run.numbers[run.count] = c;
        run.channels[run.count++] = &channel;
    }
    return run;
}

/// Where a chunk goes; null where nobody listens, but for the main pair.
struct Outputs {
    GrooveEngine& engine;
    float* const* pointers;
    int offset = 0; // of the run

    float* Main(int side) const
    {
        return (pointers[side] ? pointers[side] : engine.samplePool->Scratch(side)) + offset;
    }
    float* Direct(int c, int side) const
    {
        float* const pointer = pointers[2 + 2 * c + side];
        return pointer ? pointer + offset : nullptr;
    }
};

void MixStrips(const RunList& run, std::uint32_t audible, const Outputs& outputs, int frames)
{
    std::array<StripJob, kChannels> jobs;
    std::array<MixerStrip*, kChannels> strips;
    std::size_t count = 0;
    for (std::size_t n = 0; n < run.count; ++n) {
        GrooveChannel& channel = *run.channels[n];
        const int c = run.numbers[n];
        const bool mixed = (audible >> n & 1u) != 0;
        channel.atRest = !mixed && channel.activeVoices == 0 && channel.unitsAwake == 0 && (channel.unitsOn & 1u) == 0;
        if (mixed) {
            // Made where it stands: a copy would wait for its fields.
            ::new (&jobs[count]) StripJob(channel.strip.Job(channel.mixLeft, channel.mixRight, outputs.Direct(c, 0),
                                                            outputs.Direct(c, 1), c == 0));
            strips[count++] = &channel.strip;
        } else {
            channel.strip.Skip();
        }
    }
    if (count > 0) kernels.mixStrips(jobs.data(), static_cast<int>(count), outputs.Main(0), outputs.Main(1), frames);
    for (std::size_t n = 0; n < count; ++n) strips[n]->Mixed(jobs[n]);
}

void RenderChannels(GrooveEngine& engine, const RunList& run, const Outputs& outputs, int frames)
{
    if (run.count == 0) return;
    for (GrooveChannel* channel : static_cast<RunChannels>(run)) {
        std::fill_n(channel->mixLeft, frames, 0.0f);
        std::fill_n(channel->mixRight, frames, 0.0f);
    }
    RenderVoices(run, frames);
    FilterChannels(run, *engine.samplePool, frames);
    MixStrips(run, ProcessRacks(run, frames, engine.clock.tempo), outputs, frames);
}

} // namespace

void RenderFrames(GrooveEngine& engine, float* const* outputs, int frames)
{
    assert(frames <= kMaxRun);
    Clock& clock = engine.clock;
    ServeTransport(engine);
    engine.ServeVoices();

    Outputs out{engine, outputs};
    if (frames < 1) return;
    std::fill_n(out.Main(0), frames, 0.0f);
    std::fill_n(out.Main(1), frames, 0.0f);

    // A late tick comes with the first run that begins after its instant. Without shuffle that instant is the step's
    // own, which no run begins after, so the two ticks come together.
    const float straightness = clock.Straightness();
    while (frames > 0) {
        bool ticked = false;
        if (clock.lateTickPending &&
            (clock.samplesToNextStep < clock.LateThreshold(straightness) || straightness == 1.0f)) {
            SequencerTick(engine, true);
            ticked = true;
            clock.lateTickPending = false;
        }
        const int framesToStep = std::max(0, Truncate(static_cast<double>(clock.samplesToNextStep)));
        int run = std::min(framesToStep, frames);
        if (framesToStep == 0) {
            SequencerTick(engine, false);
            ticked = true;
            if (clock.patternStep & 1) clock.lateTickPending = true;
            clock.samplesToNextStep = clock.samplesToNextStep + clock.StepFrames();
            run = 0; // the channels still take over what the tick has changed
        }
        RenderChannels(engine, RefreshChannels(engine, ticked), out, run);
        if (clock.Recording()) engine.mixer.click.Add(out.Main(0), out.Main(1), run);
        clock.Pass(run);
        out.offset += run;
        frames -= run;
    }
}

} // namespace korvane
