// The engine core's render loop: clock, channels, mixer, metronome.
#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

#include "engine/GrooveEngine.h"
#include "engine/voice/VoiceFilter.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kOutputs = 2 + 2 * kChannels;
constexpr float kGainFloor = 0.0001f;  // -80 dB: smaller gains count as silence
constexpr float kGainStep = 0.01f;     // share of the distance that a gain moves per frame
constexpr float kGainCeiling = 1.0e9f; // keeps a wild level finite

} // namespace

void GrooveEngine::RenderFrames(float* const* outputs, int frames)
{
    assert(frames <= kMaxRun);
    ExecuteVoiceCommands();

    std::array<float*, kOutputs> out;
    for (int n = 0; n < kOutputs; ++n) out[n] = outputs[n] ? outputs[n] : samplePool->Scratch(n & 1);
    if (frames < 1) return;
    std::fill_n(out[0], frames, 0.0f);
    std::fill_n(out[1], frames, 0.0f);

    // A late tick comes with the first run that begins after its instant. Without shuffle that instant is the step's
    // own, which no run begins after, so the two ticks come together.
    const double straightness = static_cast<double>(Clamp(1.0f - shuffleAmount, 0.0f, 1.0f));
    const double lateThreshold = StepFrames() * (0.5 + 0.5 * straightness);
    while (frames > 0) {
        if (lateTickPending && (samplesToNextStep < lateThreshold || straightness == 1.0)) {
            SequencerTick(true);
            lateTickPending = false;
        }
        const int framesToStep = std::max(0, Truncate(static_cast<double>(samplesToNextStep)));
        int run = std::min(framesToStep, frames);
        if (framesToStep == 0) {
            SequencerTick(false);
            if (patternStep & 1) lateTickPending = true;
            samplesToNextStep = samplesToNextStep + StepFrames();
            run = 0; // the channels still take over what the tick has changed
        }

        const int selected = selectedChannel;
        for (int c = 0; c < kChannels; ++c) {
            GrooveChannel& channel = Channel(c);
            const bool live = c == selected;
            channel.sound.muted = muted[c] || (soloSelected && !live);
            channel.sound.modWheelIn = live ? static_cast<float>(liveModWheel) : 0.0f;
            channel.sound.pitchBendIn = live ? static_cast<float>(livePitchBend) : 0.0f;
            channel.sound.pressureIn = live ? static_cast<float>(livePressure) : 0.0f;
            channel.Render(run, tempo);
        }
        MixChannels(out.data(), run);
        AddMetronome(out[0], out[1], run);
        frameClock =
            static_cast<std::int32_t>(static_cast<std::uint32_t>(frameClock) + static_cast<std::uint32_t>(run));
        for (float*& pointer : out) pointer += run;
        samplesToNextStep = samplesToNextStep - run;
        frames -= run;
    }
}

void GrooveEngine::MixChannels(float* const* outputs, int frames)
{
    for (int c = 0; c < kChannels; ++c) {
        std::fill_n(samplePool->ChannelLeft(c), frames, 0.0f);
        std::fill_n(samplePool->ChannelRight(c), frames, 0.0f);
    }
    FilterChannels(channels, *samplePool, frames);
    for (int c = 0; c < kChannels; ++c) MixStrip(c, outputs, frames);
}

void GrooveEngine::MixStrip(int c, float* const* outputs, int frames)
{
    GrooveChannel& channel = Channel(c);
    float* left = samplePool->ChannelLeft(c);
    float* right = samplePool->ChannelRight(c);

    bool audible = channel.soundedThisBlock;
    channel.stutterUnit->Process(left, right, frames, tempo);
    audible = audible || channel.stutterUnit->HasTail();
    for (auto& unit : channel.fxUnits) {
        if (!audible) unit->bypass = 1;
        unit->Process(left, right, frames, tempo);
        audible = audible || unit->HasTail();
    }

    const float levelDb = 80.0f * channel.sound.params[slot::MixLevel] - 60.0f;
    const float gain = Clamp(std::pow(10.0f, levelDb / 20.0f), 0.0f, kGainCeiling);
    const float pan = channel.sound.params[slot::Panning];
    const float targetLeft = std::max(Clamp(1.0f - pan, 0.0f, 1.0f) * gain, kGainFloor);
    const float targetRight = std::max(Clamp(pan, 0.0f, 1.0f) * gain, kGainFloor);
    float gainLeft = channel.outGainLeft;
    float gainRight = channel.outGainRight;
    if (!audible) {
        channel.outGainLeft = targetLeft;
        channel.outGainRight = targetRight;
        return;
    }
    if (gainLeft < 0.0f) gainLeft = targetLeft;
    if (gainRight < 0.0f) gainRight = targetRight;
    if (gainLeft < kGainFloor) gainLeft = 0.0f;
    if (gainRight < kGainFloor) gainRight = 0.0f;

    float* mainLeft = outputs[0];
    float* mainRight = outputs[1];
    float* directLeft = outputs[2 + 2 * c];
    float* directRight = outputs[3 + 2 * c];
    float peakLeft = channel.peakLeft;
    float peakRight = channel.peakRight;
    for (int n = 0; n < frames; ++n) {
        gainLeft += (targetLeft - gainLeft) * kGainStep;
        gainRight += (targetRight - gainRight) * kGainStep;
        const float l = left[n] * gainLeft;
        const float r = right[n] * gainRight;
        peakLeft = std::max(peakLeft, std::fabs(l));
        peakRight = std::max(peakRight, std::fabs(r));
        mainLeft[n] = c == 0 ? l : mainLeft[n] + l;
        mainRight[n] = c == 0 ? r : mainRight[n] + r;
        directLeft[n] = l;
        directRight[n] = r;
    }
    channel.outGainLeft = gainLeft;
    channel.outGainRight = gainRight;
    channel.peakLeft = peakLeft;
    channel.peakRight = peakRight;
}

void GrooveEngine::AddMetronome(float* left, float* right, int frames)
{
    float level = clickLevel;
    if (!Recording() || level <= kGainFloor) return;
    const float increment = clickIncrement;
    float phase = clickPhase;
    for (int n = 0; n < frames; ++n) {
        phase += increment;
        level -= 0.01f * level;
        const float sample = phase <= 0.5f ? level : 0.0f;
        if (phase > 1.0f) phase -= 1.0f;
        left[n] += sample;
        right[n] += sample;
    }
    clickPhase = phase;
    clickLevel = level;
}

} // namespace korvane
