// Chorus: tape speed and feedback, frame by frame.
#include "engine/fx/Chorus.h"

#include <algorithm>

#include "engine/fx/DelayLengths.h"
#include "engine/fx/Fade.h"
#include "engine/kernels/Kernels.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kPiece = 128;  // frames
constexpr int kTogether = 4; // channels

struct Piece {
    TapePlace places[kPiece];
    float gains[kPiece];
};

/// Part of the tape's length: the deeper, the shorter.
float DelayOf(float x, float lfo) { return Clamp((1.0f - x) - lfo, 0.0f, kLongestTapePart); }

void MoveTapes(TapeClock& clock, float x, const float* lfo, int frames, TapePlace* places)
{
    float delays[kMaxRun];
    double speeds[kMaxRun];
    for (int n = 0; n < frames; ++n) delays[n] = DelayOf(x, lfo[n]);
    kernels.tapeSpeeds(delays, clock.length, speeds, frames);
    clock.Run(speeds, frames, places);
}

} // namespace

void Chorus::Allocate(float rate) { delays = std::make_unique<TapeDelay<StereoChain>>(ShortDelayFrames(rate)); }

void Chorus::Reset() { delays->Clear(); }

void Chorus::Process(UnitControls& unit, const StereoBlock& block)
{
    const EffectRun run{this, &unit, block};
    ProcessAll({&run, 1});
}

void Chorus::ProcessAll(std::span<const EffectRun> runs)
{
    for (std::size_t n = 0; n < runs.size(); n += kTogether)
        ProcessSome(runs.subspan(n, std::min<std::size_t>(runs.size() - n, kTogether)));
}

void Chorus::ProcessSome(std::span<const EffectRun> runs)
{
    float lfo[kTogether][kMaxRun];
    Piece pieces[kTogether];
    ChainedTapesJob jobs[kTogether];
    const int frames = runs.front().block.frames, count = static_cast<int>(runs.size());
    for (int c = 0; c < count; ++c) runs[c].unit->FillLfo(lfo[c], frames);
    for (int from = 0; from < frames; from += kPiece) {
        const int size = std::min(frames - from, kPiece);
        for (int c = 0; c < count; ++c) {
            const auto& [effect, unit, block] = runs[c];
            TapeDelay<StereoChain>& tapes = *static_cast<Chorus*>(effect)->delays;
            Piece& piece = pieces[c];
            MoveTapes(tapes.clock, unit->x, lfo[c] + from, size, piece.places);
            FillLevels(*unit, piece.gains, size);
            for (int n = 0; n < size; ++n) piece.gains[n] = -piece.gains[n]; // three in series invert the sum, too
            jobs[c] = {
                block.left + from, block.right + from,      piece.places, piece.gains, law::ChorusFeedback(unit->y),
                tapes.Entries(),   &tapes.path.lowpassState};
        }
        kernels.chainTapes(jobs, count, size);
    }
}

} // namespace korvane
