// The score editor: how it opens and closes, and what the hand does on it.
#include "editor/score/ScoreEditControl.h"

#include <algorithm>
#include <cstdlib>

#include "editor/layout/Skin.h"
#include "editor/score/ScoreButtons.h"
#include "editor/score/ScoreClipboard.h"
#include "editor/score/ScoreMove.h"
#include "engine/Transport.h"
#include "framework/ParameterTable.h"
#include "gui/controls/CControlGroup.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kBarWidth = kStepsPerBar * ScoreGrid::cellWidth;
constexpr float kLengthPerNotch = 0.025f;
constexpr int kFlashFade = 30; // per tick

constexpr Color kClosedColor = Rgb(255, 0, 0); // where nobody should see it

Rect Between(Point a, Point b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

} // namespace

ScoreEditControl::ScoreEditControl(Rect place, KVSynth& editedSynth)
    : CControl(place, -1), notes(*editedSynth.engine), lane(editedSynth, notes), synth(editedSynth),
      sequencer(*editedSynth.engine), painter(notes, lane, state), closedRect(place)
{
}

/// Within the open editor's coordinates; as far away as four editors at most.
Point ScoreEditControl::Inside(int x, int y) const
{
    constexpr int kFarthest = 4096;
    return {std::clamp(x, -kFarthest, kFarthest) - rect.x, std::clamp(y, -kFarthest, kFarthest) - rect.y};
}

bool ScoreEditControl::Playing() { return synth.GetParameter(param::Play) != 0.0f; }

/// What is drawn here goes into the pattern, not into a step that the panel edits.
void ScoreEditControl::LeaveEditMode()
{
    if (ShownModes(sequencer).editMode) SetEdit(sequencer, false);
}

void ScoreEditControl::TogglePlay()
{
    const float on = Playing() ? 0.0f : 1.0f;
    synth.SetParameter(param::Play, on);
    if (synth.wrapper) synth.wrapper->ParameterAutomated(param::Play, on);
}

// Opening and closing

void ScoreEditControl::Open()
{
    CDrawBuffer* const page = GetDrawBuffer();
    if (!page) return;
    SetFocus(true);
    CaptureMouse(false);
    notes.channel = sequencer.selection.selectedChannel;
    notes.pattern = sequencer.score.currentPattern;
    notes.grid = sequencer.selection.OnSampler() ? &kDrumGrid : &kPianoRoll;
    state = {};
    const Rect open = Grid().openRect;
    gridImage = std::make_unique<CDrawBuffer>();
    workImage = std::make_unique<CDrawBuffer>();
    if (!gridImage->Create(open.h, open.w, false) || !workImage->Create(open.h, open.w, false)) return Close();
    closedRect = rect;
    SetRect(open.x, open.y, open.w, open.h);
    page->Draw(gridImage.get(), {0, 0, open.w, open.h}, {open.x, open.y});
    SetDirty(true);
    LeaveEditMode();
}

void ScoreEditControl::Close()
{
    if (!IsOpen()) return;
    EndAudition();
    ReleaseMouse();
    SetFocus(false);
    gridImage.reset();
    workImage.reset();
    SetRect(closedRect.x, closedRect.y, closedRect.w, closedRect.h);
    InvalidateAll();
}

void ScoreEditControl::CancelInteraction() { Close(); }
void ScoreEditControl::OnRightDown(int, int) { Close(); }

// Presses

void ScoreEditControl::OnLeftDown(int x, int y)
{
    if (!IsOpen()) return Open();
    if (!rect.Contains(x, y)) return OnRightDown(x, y);
    LeaveEditMode();
    EndAudition();
    state.pressColumn = state.pressRow = state.barPick = -1;
    state.dragged = state.rubberBand = state.laneDrag = state.keyDrag = false;
    const Point at = Inside(x, y);
    state.pressActive = !PressButton(at);
    if (state.pressActive) PressPage(at);
}

bool ScoreEditControl::PressButton(Point at)
{
    for (const ScoreButton& button : kScoreButtons) {
        if (!button.PlaceOn(Grid()).Contains(at.x, at.y)) continue;
        switch (button.command) {
        case ScoreCommand::Copy: Copy(); break;
        case ScoreCommand::Paste: Paste(); break;
        case ScoreCommand::Clear: Clear(); break;
        case ScoreCommand::Play: TogglePlay(); break;
        }
        return true;
    }
    return false;
}

void ScoreEditControl::PressPage(Point at)
{
    const Rect grid = Grid().GridRect();
    pressPoint = lastPoint = at;
    Hover(at);
    if (at.y >= grid.y + grid.h) return;
    if (Grid().KeyStripRect().Contains(at.x, at.y)) {
        state.keyDrag = true;
        return Follow(at);
    }
    if (state.hoverBar >= 0) return PressBar();
    if (ScoreGrid::laneRect.Contains(at.x, at.y)) {
        state.laneDrag = true;
        return Follow(at);
    }
    if (!state.OnCell()) return;
    const bool outside = !state.selection.Contains(at);
    if (outside) state.selection.Remove();
    PressCell();
    if (IsCtrlDown() && outside) StartRubberBand(at);
    SetDirty(true);
}

void ScoreEditControl::PressBar()
{
    state.barPick = state.hoverBar;
    SelectBars(state.barPick, state.barPick);
}

void ScoreEditControl::PressCell()
{
    state.pressColumn = state.hoverColumn;
    state.pressRow = state.hoverRow;
    if (!Playing() && !state.selection.Holds(Grid(), state.hoverColumn, state.hoverRow)) Audition(state.hoverRow);
    if (!IsCtrlDown() && !state.selection.Exists() && notes.IsNoteAt(state.hoverColumn, state.hoverRow)) SelectNote();
}

/// In the piano roll the whole chord.
void ScoreEditControl::SelectNote()
{
    const Rect cell = Grid().CellRect(state.pressColumn, state.pressRow), grid = Grid().GridRect();
    const int inside = cell.w - 2;
    state.selection.rect =
        Grid().drumMode ? Rect{cell.x + 1, cell.y + 1, inside, cell.h - 2} : Rect{cell.x + 1, grid.y, inside, grid.h};
}

// Moves

void ScoreEditControl::OnMouseMove(int x, int y)
{
    if (!IsOpen()) return;
    LeaveEditMode();
    Follow(Inside(x, y));
}

void ScoreEditControl::Hover(Point at)
{
    const bool onGrid = Grid().GridRect().Contains(at.x, at.y);
    const bool onLane = state.laneDrag && ScoreGrid::laneRect.Contains(at.x, at.y);
    const bool onBars = ScoreGrid::barStripRect.Contains(at.x, at.y);
    const int column = onGrid || onLane ? ScoreGrid::ColumnAt(at.x) : -1;
    const int row = onGrid ? Grid().RowAt(at.y) : -1;
    const int bar = onBars ? (at.x - ScoreGrid::barStripRect.x) / kBarWidth : -1;
    if (column == state.hoverColumn && row == state.hoverRow && bar == state.hoverBar) return;
    state.hoverColumn = column;
    state.hoverRow = row;
    state.hoverBar = bar;
    SetDirty(true);
}

void ScoreEditControl::Follow(Point at)
{
    Hover(at);
    if (state.pressActive) Drag(at);
    lastPoint = at;
}

void ScoreEditControl::Drag(Point at)
{
    const bool onPressed = state.hoverColumn == state.pressColumn && state.hoverRow == state.pressRow;
    if (!onPressed || state.rubberBand) state.dragged = true;
    if (state.keyDrag) return FollowKeys(at);
    if (state.barPick >= 0) return FollowBars(at);
    if (state.laneDrag) return FollowLane(at);
    FollowRubberBand(at);
    if (state.dragged) EndAudition();
}

void ScoreEditControl::FollowKeys(Point at)
{
    const int row = Grid().RowAt(at.y);
    if (row >= 0 && row != state.auditionRow) Audition(row);
}

void ScoreEditControl::FollowBars(Point at)
{
    const int bar = std::clamp(at.x - ScoreGrid::barStripRect.x, 0, ScoreGrid::barStripRect.w - 1) / kBarWidth;
    SelectBars(std::min(state.barPick, bar), std::max(state.barPick, bar));
}

void ScoreEditControl::SelectBars(int first, int last)
{
    const Rect bars = Grid().ColumnsRect(first * kStepsPerBar, (last - first + 1) * kStepsPerBar);
    state.selection.rect = {bars.x + 1, bars.y + 1, bars.w - 2, bars.h - 2};
    SetDirty(true);
}

void ScoreEditControl::FollowLane(Point at)
{
    lane.Draw(lastPoint, at, state.selection);
    SetDirty(true);
}

void ScoreEditControl::StartRubberBand(Point origin)
{
    rubberOrigin = origin;
    state.pressColumn = state.pressRow = -1;
    state.rubberBand = true;
}

void ScoreEditControl::FollowRubberBand(Point at)
{
    if (!state.selection.Exists() && state.pressColumn >= 0 && state.dragged) StartRubberBand(pressPoint);
    if (!state.rubberBand) return;
    state.selection.rect = Between(rubberOrigin, at);
    SetDirty(true);
}

// Releases

void ScoreEditControl::OnLeftUp(int x, int y)
{
    if (!IsOpen()) return;
    LeaveEditMode();
    if (!state.pressActive) return;
    if (const Point at = Inside(x, y); at != lastPoint) Follow(at);
    state.pressActive = state.rubberBand = false;
    SetDirty(true);
    EndAudition();
    if (EndOtherDrag()) return;
    if (!state.dragged && state.OnCell()) ToggleHovered();
    if (!notes.AnyIn(state.selection)) state.selection.Remove();
    MoveSelection();
}

/// Of keys, lane or bars; whether it was one.
bool ScoreEditControl::EndOtherDrag()
{
    const bool other = state.keyDrag || state.laneDrag || state.barPick >= 0;
    state.keyDrag = state.laneDrag = false;
    state.barPick = -1;
    return other;
}

void ScoreEditControl::ToggleHovered()
{
    const int column = state.hoverColumn, row = state.hoverRow;
    notes.SetNoteAt(column, row, !notes.IsNoteAt(column, row));
}

void ScoreEditControl::MoveSelection()
{
    if (state.CarriesSelection()) ScoreMove::Carried(notes, state).Apply(notes, state.selection, IsCtrlDown());
    state.pressColumn = state.pressRow = -1;
}

void ScoreEditControl::OnWheel(int, int notches)
{
    if (!IsOpen() || notches == 0 || state.hoverColumn < 0) return;
    const float change = static_cast<float>(notches) * kLengthPerNotch;
    if (notes.HasNoteInColumn(state.hoverColumn, notes.channel)) {
        if (notes.ChangeNoteLength(state.hoverColumn, change)) SetDirty(true);
        return;
    }
    const float length = sequencer.GetChannelParameter(slot::NoteLength);
    const float changed = Clamp(length + change, 0.0f, 1.0f);
    if (changed == length) return;
    sequencer.SetChannelParameter(slot::NoteLength, changed);
    SetDirty(true);
}

// Listening

void ScoreEditControl::Audition(int row)
{
    EndAudition();
    const bool drums = Grid().drumMode;
    auditionChannel = drums ? Grid().ChannelOfRow(row) : static_cast<int>(sequencer.selection.selectedChannel);
    auditionNote = drums ? 0 : kFirstNote + row;
    state.auditionRow = row;
    sequencer.NoteOn(auditionChannel, auditionNote, 1.0f);
    SetDirty(true);
}

void ScoreEditControl::EndAudition()
{
    if (state.auditionRow < 0) return;
    state.auditionRow = -1;
    sequencer.ReleaseNote(auditionChannel, auditionNote);
    SetDirty(true);
}

// Clipboard

void ScoreEditControl::Copy()
{
    if (!IsOpen() || !state.selection.Exists()) return;
    Flash(ScoreCommand::Copy);
    CopiedScore().Copy(sequencer.score.Current(), notes.channel, state.selection.Columns(Grid()));
}

void ScoreEditControl::Paste()
{
    if (!IsOpen() || !state.selection.Exists() || !CopiedScore().Fits(Grid())) return;
    Flash(ScoreCommand::Paste);
    CopiedScore().Paste(sequencer.score.Current(), Grid(), notes.channel, state.selection);
}

void ScoreEditControl::Clear()
{
    if (!IsOpen() || !state.selection.Exists()) return;
    Flash(ScoreCommand::Clear);
    if (notes.Clear(state.selection)) state.selection.Remove();
    SetDirty(true);
}

// Drawing

void ScoreEditControl::OnTick()
{
    if (!IsOpen()) return;
    state.playColumn = sequencer.clock.playing ? static_cast<int>(sequencer.clock.patternStep) : -1;
    for (int& light : state.flash) light = std::max(light - kFlashFade, 0);
    SetDirty(true);
}

void ScoreEditControl::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    if (!IsOpen()) {
        DrawPage(buffer, rect);
        const Color before = buffer->GetFillColor();
        buffer->SetFillColor(kClosedColor);
        buffer->FillRect(rect);
        buffer->SetFillColor(before);
        return;
    }
    char name[256] = "";
    synth.GetParameterName(lane.laneParameter, name);
    const ScoreSkin skin{{group->GetBitmap(image::ScoreEdit), group->GetBitmap(image::DrumsEditor)},
                         group->GetBitmap(image::NoteEditorButtons)};
    painter.Draw(*workImage, skin, name, Playing(), IsCtrlDown());
    gridImage->Draw(buffer, rect, {0, 0});
    workImage->Draw(buffer, rect, {0, 0});
}

} // namespace korvane
