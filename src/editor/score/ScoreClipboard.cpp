// What was copied in a score editor.
#include "editor/score/ScoreClipboard.h"

#include <algorithm>
#include <iterator>

namespace korvane {

namespace {

void CopyInOrder(StepLockList& to, const StepLockList& from)
{
    to.Clear();
    const int count = from.Count();
    if (count == 0) return;
    float offsets[kChannelSlots] = {};
    for (int n = count - 1; n >= 0; --n) // of two for the same parameter the first one, as Offset has it
        if (const StepLock lock = from.At(n); lock.param >= 0 && lock.param < kChannelSlots)
            offsets[lock.param] = lock.offset;
    for (int param = 0; param < kChannelSlots; ++param) to.Set(param, offsets[param]);
}

} // namespace

void ScoreClipboard::Copy(const GroovePattern& from, int channel, ScoreSpan columns)
{
    const std::lock_guard hold(turn);
    for (int c = 0; c < kChannels; ++c) {
        std::copy(std::begin(from.steps[c]), std::end(from.steps[c]), copied.steps[c]);
        for (int s = 0; s < kSteps; ++s) CopyInOrder(copied.locks[c][s], from.locks[c][s]);
    }
    clipFirstColumn = columns.first;
    clipLastColumn = columns.last;
    clipChannel = channel;
}

bool ScoreClipboard::Fits(const ScoreGrid& grid) const
{
    const std::lock_guard hold(turn);
    return Matches(grid);
}

bool ScoreClipboard::Matches(const ScoreGrid& grid) const
{
    return clipFirstColumn >= 0 && clipLastColumn >= 0 && (clipChannel < kSamplerChannels) == grid.drumMode;
}

void ScoreClipboard::Paste(GroovePattern& to, const ScoreGrid& grid, int channel, const ScoreSelection& selection) const
{
    const std::lock_guard hold(turn);
    if (!Matches(grid)) return;
    const ScoreSpan columns = selection.Columns(grid), rows = selection.Rows(grid);
    int source = clipFirstColumn;
    for (int column = columns.first; column <= columns.last && source <= clipLastColumn; ++column, ++source) {
        if (!grid.drumMode) to.CopyStep(channel, column, copied, clipChannel, source);
        for (int row = rows.first; grid.drumMode && row <= rows.last; ++row) {
            const int ofRow = grid.ChannelOfRow(row);
            to.CopyStep(ofRow, column, copied, ofRow, source);
        }
        to.SettleLocks(); // before the next copy comes
    }
}

ScoreClipboard& CopiedScore()
{
    static ScoreClipboard clipboard;
    return clipboard;
}

} // namespace korvane
