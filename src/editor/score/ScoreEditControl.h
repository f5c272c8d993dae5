// The score editor: a pattern's notes and one parameter's locks on one page.
#pragma once

#include <memory>

#include "editor/score/ScoreHand.h"
#include "editor/score/ScoreLane.h"
#include "editor/score/ScorePainter.h"
#include "editor/score/ScoreState.h"
#include "engine/KVSynth.h"
#include "gui/controls/CControl.h"

namespace korvane {

/// Waits outside of the window and opens over most of it, for the channel and pattern that are selected then. While it
/// is open all events are its own: it has focus and mouse. It changes the engine's own pattern while the sequencer goes
/// on; a change is heard when its step plays next, a lock of the step that plays at once, and no other step hears of
/// it.
class ScoreEditControl : public CControl {
public:
    /// place  of the closed editor
    ScoreEditControl(Rect place, KVSynth& editedSynth);

    // clang-format off
    void CancelInteraction() override;       // closes it
    void OnLeftDown(int x, int y) override;  // opens it, wherever; outside of the open one closes it
    void OnLeftUp(int x, int y) override;
    void OnRightDown(int x, int y) override; // closes it
    void OnMouseMove(int x, int y) override;
    void OnWheel(int, int notches) override; // lengthens and shortens the notes under the pointer
    void Draw(CDrawBuffer* buffer) override;
    void OnTick() override;
    // clang-format on

    bool IsOpen() const { return workImage != nullptr; }

    // Act on the selection; without one they do nothing.
    void Copy();
    void Paste();
    void Clear();

    ScoreNotes notes;
    ScoreLane lane;
    ScoreState state;

private:
    const ScoreGrid& Grid() const { return *notes.grid; }
    Point Inside(int x, int y) const;
    void LeaveEditMode();
    void Open();
    void Close();
    bool PressButton(Point at);
    void TogglePlay();
    void Flash(ScoreCommand command) { state.flash[static_cast<int>(command)] = 255; }
    void DrawClosed(CDrawBuffer& buffer);

    KVSynth& synth;
    GrooveEngine& sequencer;
    ScoreHand hand;
    ScorePainter painter;
    std::unique_ptr<CDrawBuffer> gridImage, workImage; // the window below, and the editor; null while closed
    Rect closedRect;
};

} // namespace korvane
