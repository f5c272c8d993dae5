// The instrument's editor.
#pragma once

#include <memory>

#include "editor/commands/EditorCommands.h"
#include "editor/commands/ProgramMenus.h"
#include "editor/commands/WaveformMenus.h"
#include "editor/layout/PlacedControls.h"
#include "editor/score/ScoreEditControl.h"
#include "gui/window/CSynthEditor.h"

namespace korvane {

/// A window of fixed size whose controls come from the layout. It reads the engine once per tick and never waits for
/// it; only what replaces a whole state, a file command say, returns when that is done. Opens and closes any number of
/// times; images stay loaded. The window's thread.
class KVEditor : public CSynthEditor {
public:
    /// shownInstrument  outlives the editor
    KVEditor(std::unique_ptr<Window> platformWindow, void* module, KVInstrument& shownInstrument);
    ~KVEditor() override;

    // clang-format off
    void Idle() override;
    bool OnKeyDown(int code) override;
    bool OnKeyUp(int code) override;
    void MouseEvent(int x, int y, int modifierBits, int type) override;
    bool DropFile(const char* path, int x, int y) override; // takes every file
    void RefreshAll() override;
    void ControlChanged(CControl* control) override;
    bool CreateContent() override;                          // false when an image is missing
    void CancelAll() override;                              // carries out no command
    // clang-format on

    int laneParameter = 88;     // that the score editor's lane shows; at first "CHN: Amp Level"
    bool samplerPage = false;   // a sampler channel is shown
    signed char blinkPhase = 0; // -2..2, of a cycle of five ticks
    int shownChannel = -1;      // whose menus are shown; -1 before the first tick

    PlacedControls panel; // while the window is open

private:
    struct RoleRule;

    bool LoadSkin();
    void AddLayout();
    void AttachMenus();
    Page ShownPage() const;
    bool ScreenStored() const { return instrument.GetParameter(kScreenSwitchId) != 0.0f; }

    // The tick.
    void FollowChannel();
    void ShowParameters(int first, int count);
    void ShowLevels();
    void ShowTexts();
    void ShowLights();
    static void ShowLight(CControlTextDisplay& button, int imageRow);
    void ShowLinks();

    // What the user does.
    bool ListIsOpen() const;
    ScoreEditControl* Score() const { return panel.Of<ScoreEditControl>(Role::Score); }
    bool OpenScore(int x, int y);
    bool ScoreKey(int code);
    void Send(int parameter, float value);
    void ChangeParameter(const PlacedControl& placed);
    bool LetGo(const PlacedControl& placed) const;
    void ChangeScreen(const PlacedControl& placed);
    void ChangeLink(const PlacedControl& placed);
    void ChangeIgnore(const PlacedControl& placed);
    void ResetStart(const PlacedControl& placed);
    void LayerCommand(const PlacedControl& placed);
    void ChooseFolder(const PlacedControl& placed);
    void ChooseProgram(const PlacedControl& placed);
    void StepProgram(const PlacedControl& placed);
    void ChooseGrooveCommand(const PlacedControl& placed);
    void ChooseWave(const PlacedControl& placed);
    void StepWave(const PlacedControl& placed);

    bool shownScreen = false; // the screen switch's parameter, when the page was chosen
    KVInstrument& instrument;
    EditorCommands commands;
    ProgramMenus programs;
    WaveformMenus waveforms;
    bool cancelling = false; // what is let go, the user did not let go
};

} // namespace korvane
