// Echo: tape length, filters, send and tail.
#include "engine/fx/Echo.h"

#include "engine/fx/DelayLengths.h"
#include "engine/fx/Tail.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Part of the tape that one LFO period takes.
float DelayOf(float lfoSeconds) { return Clamp(lfoSeconds / kLongDelaySeconds, 0.01f, kLongestTapePart); }

} // namespace

void Echo::Allocate(float rate) { delays = std::make_unique<TapeDelay<Stereo>>(LongDelayFrames(rate)); }

void Echo::Reset() { delays->Clear(); }

bool Echo::Runs(const UnitControls& unit) const { return !unit.bypass || unit.holdFrames >= 0; }

void Echo::Set(const UnitControls& unit)
{
    delays->speed = delays->SpeedFor(static_cast<double>(DelayOf(unit.lfoSeconds)));
    delays->lowpass = law::EchoLowPass(unit.y);
    delays->highpass = law::EchoHighPass(unit.y);
    delays->feedback = law::EchoSend(unit.x);
}

void Echo::Process(UnitControls& unit, const StereoBlock& block)
{
    Set(unit);
    TapeDelay<Stereo>& tapes = *delays;
    const float send = law::EchoSend(unit.x);
    const std::int32_t full = LongDelayFrames(unit.sampleRate);
    const float target = unit.Target();
    float level = unit.mix;
    std::int32_t tail = unit.holdFrames;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * UnitControls::kOnStep;
        tapes.inputGain = level * send;
        const Stereo dry = LoadFrame(block.left, block.right, n);
        const Stereo wet = tapes.Process(dry);
        const Stereo out = dry + wet;
        tail = TailLeft(tail, CanBeHeard(dry) || CanBeHeard(out), full);
        StoreFrame(out, block.left, block.right, n);
    }
    unit.mix = level;
    unit.holdFrames = tail;
}

} // namespace korvane
