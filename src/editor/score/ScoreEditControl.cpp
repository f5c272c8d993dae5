// The score editor: how it opens and closes, its buttons and how it is drawn.
#include "editor/score/ScoreEditControl.h"

#include <algorithm>

#include "editor/layout/Skin.h"
#include "editor/score/ScoreButtons.h"
#include "editor/score/ScoreClipboard.h"
#include "engine/Transport.h"
#include "framework/ParameterTable.h"
#include "gui/controls/CControlGroup.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kLengthPerNotch = 0.025f;
constexpr int kFlashFade = 30;                 // per tick
constexpr Color kClosedColor = Rgb(255, 0, 0); // where nobody should see it

} // namespace

ScoreEditControl::ScoreEditControl(Rect place, KVSynth& editedSynth)
    : CControl(place, -1), notes(*editedSynth.engine), lane(editedSynth, notes), synth(editedSynth),
      sequencer(*editedSynth.engine), hand(notes, lane, state), painter(notes, lane, state), closedRect(place)
{
}

/// Within the open editor's coordinates; as far away as four editors at most.
Point ScoreEditControl::Inside(int x, int y) const
{
    constexpr int kFarthest = 4096;
    return {std::clamp(x, -kFarthest, kFarthest) - rect.x, std::clamp(y, -kFarthest, kFarthest) - rect.y};
}

/// What is drawn here goes into the pattern, not into a step that the panel edits.
void ScoreEditControl::LeaveEditMode()
{
    if (ShownModes(sequencer).editMode) SetEdit(sequencer, false);
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
    notes.grid = notes.channel < kSamplerChannels ? &kDrumGrid : &kPianoRoll;
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
    hand.Drop();
    ReleaseMouse();
    SetFocus(false);
    gridImage.reset();
    workImage.reset();
    SetRect(closedRect.x, closedRect.y, closedRect.w, closedRect.h);
    InvalidateAll();
}

void ScoreEditControl::CancelInteraction() { Close(); }
void ScoreEditControl::OnRightDown(int, int) { Close(); }

// Hands

void ScoreEditControl::OnLeftDown(int x, int y)
{
    if (!IsOpen()) return Open();
    if (!rect.Contains(x, y)) return OnRightDown(x, y);
    LeaveEditMode();
    hand.Drop();
    if (const Point at = Inside(x, y); !PressButton(at)) hand.Press(at, IsCtrlDown());
    SetDirty(true);
}

void ScoreEditControl::OnMouseMove(int x, int y)
{
    if (!IsOpen()) return;
    LeaveEditMode();
    hand.Move(Inside(x, y));
    SetDirty(true);
}

void ScoreEditControl::OnLeftUp(int x, int y)
{
    if (!IsOpen()) return;
    LeaveEditMode();
    hand.Release(Inside(x, y), IsCtrlDown());
    SetDirty(true);
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

// Commands

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

void ScoreEditControl::TogglePlay()
{
    const float on = ShownModes(sequencer).playing ? 0.0f : 1.0f;
    synth.SetParameter(param::Play, on);
    if (synth.wrapper) synth.wrapper->ParameterAutomated(param::Play, on);
}

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
}

// Drawing

/// What plays and records goes on below the hand: it is drawn on each tick.
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
    if (!IsOpen()) return DrawClosed(*buffer);
    char name[256] = "";
    synth.GetParameterName(lane.laneParameter, name);
    const ScoreSkin skin{{group->GetBitmap(image::ScoreEdit), group->GetBitmap(image::DrumsEditor)},
                         group->GetBitmap(image::NoteEditorButtons)};
    painter.Draw(*workImage, skin, name, ShownModes(sequencer).playing, IsCtrlDown());
    gridImage->Draw(buffer, rect, {0, 0});
    workImage->Draw(buffer, rect, {0, 0});
}

void ScoreEditControl::DrawClosed(CDrawBuffer& buffer)
{
    DrawPage(&buffer, rect);
    const Color before = buffer.GetFillColor();
    buffer.SetFillColor(kClosedColor);
    buffer.FillRect(rect);
    buffer.SetFillColor(before);
}

} // namespace korvane
