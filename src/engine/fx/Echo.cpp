// Echo: tape length, filters, send and tail.
#include "engine/fx/Echo.h"

#include <algorithm>

#include "engine/fx/DelayLengths.h"
#include "engine/fx/Fade.h"
#include "engine/fx/Tail.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Part of the tape that one LFO period takes.
float DelayOf(float lfoSeconds) { return Clamp(lfoSeconds / kLongDelaySeconds, 0.01f, kLongestTapePart); }

constexpr int kSilent = 1 << 30; // frames, more than any tape holds

bool IsZero(Stereo frame) { return frame[0] == 0.0f && frame[1] == 0.0f; }

} // namespace

void Echo::Allocate(float rate)
{
    delays = std::make_unique<TapeDelay<Stereo>>(LongDelayFrames(rate));
    silentFrames = kSilent;
}

void Echo::Reset()
{
    delays->Clear();
    silentFrames = kSilent;
}

bool Echo::Runs(const UnitControls& unit) const { return !unit.bypass || unit.holdFrames >= 0; }

void Echo::Set(const UnitControls& unit)
{
    delays->speed = delays->SpeedFor(DelayOf(unit.lfoSeconds));
    delays->lowpass = law::EchoLowPass(unit.y);
    delays->highpass = law::EchoHighPass(unit.y);
    delays->feedback = law::EchoSend(unit.x);
}

void Echo::Process(UnitControls& unit, const StereoBlock& block)
{
    Set(unit);
    const bool nothingComes = unit.bypass && unit.mix == 0.0f;
    const bool silent = nothingComes && silentFrames >= delays->clock.Entries();
    const int heard = silent ? Pass(block) : Play(unit, block);
    const std::int32_t full = LongDelayFrames(unit.sampleRate);
    unit.holdFrames = std::max((heard < 0 ? unit.holdFrames : full) - (block.frames - 1 - heard), -1);
}

/// The tape gives silence and records it. Returns the last frame that can be heard, or -1.
int Echo::Pass(const StereoBlock& block)
{
    for (float* side : {block.left, block.right})
        for (int n = 0; n < block.frames; ++n) side[n] += 0.0f;
    delays->RunSilent(block.frames);
    int heard = block.frames - 1;
    while (heard >= 0 && !CanBeHeard(LoadFrame(block.left, block.right, heard))) --heard;
    return heard;
}

/// Returns the last frame that can be heard before or behind the echo, or -1.
int Echo::Play(UnitControls& unit, const StereoBlock& block)
{
    double speeds[kMaxRun];
    TapePlace places[kMaxRun];
    TapeDelay<Stereo>& tapes = *delays;
    std::fill_n(speeds, block.frames, tapes.speed);
    tapes.clock.Run(speeds, block.frames, places);
    const float send = law::EchoSend(unit.x);
    const float feedback = tapes.feedback, lowpass = tapes.lowpass, highpass = tapes.highpass;
    float levels[kMaxRun];
    FillLevels(unit, levels, block.frames);
    RecordPath<Stereo> path = tapes.path;
    int heard = -1;
    bool silent = true;
    for (int n = 0; n < block.frames; ++n) {
        const Stereo dry = LoadFrame(block.left, block.right, n);
        const Stereo wet = tapes.Read(places[n]);
        const Stereo recorded = path.Step(levels[n] * send * dry + feedback * wet, lowpass, highpass);
        tapes.Write(recorded, places[n]);
        const Stereo out = dry + wet;
        if (CanBeHeard(dry) || CanBeHeard(out)) heard = n;
        silent = silent && IsZero(recorded);
        StoreFrame(out, block.left, block.right, n);
    }
    silent = silent && IsZero(path.lowpassState) && IsZero(path.highpassState);
    silentFrames = silent ? std::min(silentFrames + block.frames, kSilent) : 0;
    tapes.path = path;
    return heard;
}

} // namespace korvane
