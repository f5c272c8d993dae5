// The eight patterns, which of them plays, and what copy and paste do to them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "engine/sequencer/GroovePattern.h"
#include "engine/sequencer/Selection.h"
#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// What a groove plays. Owned by GrooveEngine. There are two sets of patterns, which live as long as it does: one
/// plays, the other is filled beside it by a load and then takes its place.
///
/// Threads: host, editor and MIDI (on the audio thread) edit, the audio thread reads steps and locks and moves on from
/// one pattern to the next. A step's notes are changed in one piece; its locks, and an edit of many steps, may be heard
/// half done for one tick. Two selections of patterns in the same instant leave one of them. `lastStep` is the audio
/// thread's, others read it.
class Score {
public:
    Score();

    GroovePattern& Current() { return *patterns[currentPattern]; }
    const GroovePattern& Current() const { return *patterns[currentPattern]; }
    /// Goes back from a play-once pattern that is over, or counts down to it. Audio thread, before a regular tick.
    /// patternStep  of the tick before
    /// looping      a bar is looped or recorded: nothing comes to its end
    void ReturnFromPlayOnce(int patternStep, bool looping);
    /// Forgets pattern changes and played steps: what plays now goes on from here.
    void Restart();

    /// The current pattern into the clipboard, with the bar and the step that were selected.
    void Copy(const Selection& selection);
    /// The clipboard into the marked pattern, else bar, else step, else the marked channels. Takes the pattern's mark
    /// and the edited step from the selection.
    void Paste(Selection& selection);
    /// Empties the edited step, else the marked bar, else the marked channels; ends the marks.
    void Clear(Selection& selection);
    /// Moves the held steps that hold notes by one, within the selected bar of the selected channel. False when there
    /// is none.
    /// direction  -1 or 1
    bool NudgeHeldSteps(const Selection& selection, const Shared<bool>* stepHeld, int direction);

    /// Empties the patterns and selects the first. The clipboard stays.
    void Reset();
    /// The same but for the patterns.
    void ResetSelection();

    /// Waits, as LockEdits::Settle, until no change of locks reads or writes the set that does not play. The loader,
    /// before it fills a part of that.
    void SettleLocks() const;
    /// Empties the whole set; the loader may then write its lists.
    void ClearSpare();
    /// The set that does not play becomes the one that does. Who has the engine to itself.
    void SwapPatterns();

    Shared<GroovePattern*> patterns[kPatterns]; // who swaps them writes
    GroovePattern* spare[kPatterns];            // the loader's
    Shared<std::int32_t> currentPattern;        // 0..7
    Shared<std::int32_t> nextPattern;           // to return to after a play-once pattern
    Shared<std::int32_t> patternRepeats;        // ticks to wait before the return check
    Shared<bool> playOnce[kPatterns];
    Shared<std::int32_t> lastStep[kChannels]; // pattern step that last played, its locks stay applied; -1 none
    const std::unique_ptr<GroovePattern> clipboard;
    Shared<std::int32_t> copiedBar = -1, copiedStep = -1;

private:
    std::array<std::unique_ptr<GroovePattern>, 2 * kPatterns> memory;
};

} // namespace korvane
