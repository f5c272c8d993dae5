// The step clock and what the transport does.
#pragma once

#include <cstdint>

#include "engine/sequencer/Modes.h"
#include "platform/Numbers.h"
#include "platform/Shared.h"

namespace korvane {

/// Where the sequencer is and in which mode. Owned by GrooveEngine.
///
/// Threads: every thread reads. The audio thread writes, or whoever has the engine to itself; but for `playBar` and
/// `shuffleAmount`, which whoever moves the parameter writes, and `frameClock`, which a record press sets to 0.
struct Clock {
    /// Frames of a sixteenth note.
    double StepFrames() const { return sampleRate * 15.0 / static_cast<double>(tempo); }
    /// Frames left in an odd step when its late tick is due: from all of it without shuffle to half of it.
    double LateThreshold(float straightness) const
    {
        return StepFrames() * (0.5 + 0.5 * static_cast<double>(straightness));
    }
    /// 1 without shuffle, 0 with all of it.
    float Straightness() const { return Clamp(1.0f - shuffleAmount, 0.0f, 1.0f); }

    Modes CurrentModes() const { return {playing, recordMode, editMode, recordStartedWhilePlaying}; }
    bool Recording() const { return recordMode && playing && !editMode; }
    /// A recording that was started from standstill: bars are counted in and the position does not wrap.
    bool CountingIn() const { return Recording() && !recordStartedWhilePlaying; }
    /// Frames that have passed of the current step, as its share.
    double StepGone() const { return 1.0 - samplesToNextStep / StepFrames(); }

    /// Takes the position that a start begins at: the host's, or 0 for a recording.
    void Locate();
    /// The end of a regular tick: on to the next step, or down the count-in.
    void Advance();
    /// Frames have been rendered.
    void Pass(int frames);
    /// Stops, in no mode, at the first step. What a start sets stays until then, and so does the shuffle.
    void Reset();

    Shared<double> sampleRate = 44100.0; // Hz
    Shared<float> tempo = 120.0f;        // beats per minute, > 0; of the host, before every chunk
    Shared<double> hostPosition;         // quarter notes; of the host, before every chunk
    Shared<double> samplesToNextStep;    // frames, may be fractional
    Shared<bool> lateTickPending;        // the shuffled half of the current step is still due
    Shared<std::uint8_t> stepCounter;    // sixteenths since the start, 0..127
    Shared<std::uint8_t> patternStep;    // position in the pattern, 0..127
    Shared<float> shuffleAmount;         // 0..1
    Shared<bool> playing, recordMode, editMode, playBar;
    Shared<bool> recordStartedWhilePlaying;
    Shared<std::int8_t> countIn;     // steps left; -1 once used up
    Shared<std::int32_t> frameClock; // frames since the last record press, which any thread may make
};

} // namespace korvane
