// The lane of the score editor: one parameter's locks, step by step.
#include "editor/score/ScoreLane.h"

#include <algorithm>
#include <cmath>

#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kNoLock = 0.05f; // so near the channel's own value a hand means that value

/// The height of a straight stroke at a place between its ends.
int HeightAt(Point from, Point to, int x)
{
    if (from.x == to.x) return to.y;
    const std::int64_t way = std::int64_t{to.x} - from.x;
    return Saturate(to.y + (std::int64_t{to.y} - from.y) * (std::int64_t{x} - to.x) / way);
}

} // namespace

int ScoreLane::Base() const
{
    const bool known = laneParameter >= 0 && laneParameter < param::Count;
    return known ? kParameters[static_cast<std::size_t>(laneParameter)].slotBase : kFromProgram;
}

int ScoreLane::Index() const { return notes.engine.selection.ChannelIndexOf(Base()); }

float ScoreLane::Own() const { return notes.engine.storedParams[notes.channel][Index()]; }

float ScoreLane::LaneValue() const { return HasLocks() ? slot::LaneValue(Index(), Own()) : 0.0f; }

float ScoreLane::LaneValue(int column) const
{
    if (!HasLocks()) return 0.0f;
    return slot::LaneValue(Index(), notes.engine.StepParameter(notes.Pattern(), notes.channel, column, Base()));
}

void ScoreLane::SetLock(int column, int y)
{
    constexpr Rect kLane = ScoreGrid::laneRect;
    const float drawn = Clamp(1.0f - (static_cast<float>(y) - kLane.y) / kLane.h, 0.0f, 1.0f);
    const float own = Own();
    const float value = std::fabs(drawn - own) <= kNoLock ? own : drawn;
    notes.engine.SetStepParameter(notes.Pattern(), notes.channel, column, Base(), value);
    notes.Pattern().SettleLocks();
    notes.engine.HearStep(notes.Pattern(), notes.channel, column);
    synth.links.lastParameter = laneParameter;
}

void ScoreLane::Draw(Point from, Point to, const ScoreSelection& within)
{
    if (!HasLocks()) return;
    constexpr Rect kLane = ScoreGrid::laneRect;
    const ScoreSpan columns = within.Exists() ? within.Columns(*notes.grid) : ScoreSpan{0, kSteps - 1};
    const int left = std::min(from.x, to.x), right = std::max(from.x, to.x);
    for (int column = notes.NextNote(-1), next; column < kSteps; column = next) {
        next = notes.NextNote(column);
        const int start = kLane.x + column * ScoreGrid::cellWidth, end = kLane.x + next * ScoreGrid::cellWidth;
        if (right < start || left >= end || !columns.Holds(column)) continue;
        const int leaves = std::clamp(to.x, start, end - 1);
        SetLock(column, HeightAt(from, to, leaves));
    }
}

} // namespace korvane
