// The instrument's editor: its content, its pages and what the user does with them.
#include "editor/KVEditor.h"

#include <utility>

#include "editor/KeyTable.h"
#include "editor/LaneParameter.h"
#include "editor/commands/DestinationList.h"
#include "editor/commands/GrooveMenu.h"
#include "editor/elements/CAboutPage.h"
#include "editor/layout/ControlFactory.h"

namespace korvane {

namespace {

constexpr int kTickMilliseconds = 25;

constexpr int PictureOf(Page page)
{
    switch (page) {
    case Page::Channel: return image::PageChannel;
    case Page::Sampler: return image::PageSampler;
    default: return image::PageSynth;
    }
}

} // namespace

KVEditor::KVEditor(std::unique_ptr<Window> platformWindow, void* module, KVInstrument& shownInstrument)
    : CSynthEditor(std::move(platformWindow), module, kEditorSize, &shownInstrument), instrument(shownInstrument),
      commands(shownInstrument, *this), programs(shownInstrument, commands), waveforms(shownInstrument, commands)
{
    timerPeriod = kTickMilliseconds;
}

KVEditor::~KVEditor() { CPluginUI::Close(); }

// Content

bool KVEditor::LoadSkin()
{
    for (const SkinImage& skin : kSkinImages)
        if (!LoadBitmapFromFolder(instrument.folders.graphics, skin.file, skin.id)) return false;
    return true;
}

void KVEditor::AddLayout()
{
    ControlFactory factory(*this, instrument);
    panel.Clear();
    for (const ControlRow& row : kLayout)
        for (int n = 0; n < row.count; ++n) panel.Add({&row, n, factory.Add(row, n)});
}

void KVEditor::AttachMenus()
{
    FillGrooveMenu(*panel.Of<CControlDropDownList>(Role::GrooveMenu));
    for (const PlacedControl& placed : panel)
        if (placed.row->role == Role::Destination)
            FillDestinationList(static_cast<CControlDropDownList&>(*placed.control));
    programs.Attach(panel.Of<CControlDropDownList>(Role::FolderList),
                    panel.Of<CControlDropDownList>(Role::ProgramMenu));
    for (int n = 0; n < kOscillators; ++n) waveforms.Attach(n, panel.Of<CControlDropDownList>(Role::WaveList, n));
}

bool KVEditor::CreateContent()
{
    if (!LoadSkin()) return false;
    SetBackground(image::PageSynth);
    AddLayout();
    AttachMenus();
    AddGroup(new CAboutPage(this));
    shownChannel = -1;
    return true;
}

// Pages

Page KVEditor::ShownPage() const
{
    if (panel.Of(Role::ScreenSwitch)->GetValue() != 0.0f) return Page::Channel;
    return instrument.engine->selection.OnSampler() ? Page::Sampler : Page::Synth;
}

void KVEditor::RefreshAll()
{
    CSynthEditor::RefreshAll();
    if (!windowHandle || activeGroup) return;
    samplerPage = instrument.engine->selection.OnSampler();
    shownScreen = ScreenStored();
    const Page page = ShownPage();
    SetBackground(PictureOf(page));
    panel.ShowPage(page, GetBackgroundBitmap());
    programs.Rebuild();
    waveforms.Fill();
}

// Mouse and keyboard

bool KVEditor::OpenScore(int x, int y)
{
    constexpr Point kAnywhere{-100, -100};
    const CControl* const control = GetMainGroup()->ControlAt(x, y);
    if (!control || !OpensScore(control->id, laneParameter)) return false;
    Score()->lane.laneParameter = laneParameter;
    const bool before = std::exchange(cancelling, true); // what is held has to let go
    Score()->OnLeftDown(kAnywhere.x, kAnywhere.y);
    cancelling = before;
    if (Score()->IsOpen() && flags & 1) Platform().TakeFocus(); // it has keys of its own
    return true;
}

/// Keys while a group is above the panel: those of the score editor; the page about the instrument has none.
bool KVEditor::ScoreKey(int code)
{
    switch (Score()->IsOpen() ? code : 0) {
    case 'C': Score()->Copy(); return true;
    case 'V': Score()->Paste(); return true;
    case 'X': Score()->Clear(); return true;
    default: return false;
    }
}

bool KVEditor::ListIsOpen() const
{
    return capturingGroup && dynamic_cast<const CControlDropDownList*>(capturingGroup->capture);
}

/// An open list, which any press closes, lies above what opens the score.
void KVEditor::MouseEvent(int x, int y, int modifierBits, int type)
{
    const bool free = windowHandle && !activeGroup && !ListIsOpen();
    if (type == mouse::RightDown && free && OpenScore(x, y)) return;
    CSynthEditor::MouseEvent(x, y, modifierBits, type);
}

void KVEditor::Send(int parameter, float value)
{
    if (!instrument.wrapper || parameter < 0 || parameter >= param::Count) return;
    instrument.SetParameter(parameter, value);
    if (parameter < param::HostCount) instrument.wrapper->ParameterAutomated(parameter, value);
}

/// Other keys belong to the host.
bool KVEditor::OnKeyDown(int code)
{
    const PanelKey* const row = PanelKeyOf(code);
    if (activeGroup && code != key::Space) return ScoreKey(code);
    if (!row) return false;
    const bool on = !row->toggles || instrument.GetParameter(row->parameter) == 0.0f;
    Send(row->parameter, on ? 1.0f : 0.0f);
    return true;
}

bool KVEditor::OnKeyUp(int code)
{
    const PanelKey* const row = PanelKeyOf(code);
    if (!row) return false;
    if (!row->toggles) Send(row->parameter, 0.0f);
    return true;
}

bool KVEditor::DropFile(const char* path, int, int)
{
    commands.Drop(path);
    return true;
}

// What controls do

struct KVEditor::RoleRule {
    Role role;
    void (KVEditor::*change)(const PlacedControl&);
};

void KVEditor::ControlChanged(CControl* control)
{
    // clang-format off
    static constexpr RoleRule kRules[] = {
        {Role::ScreenSwitch,     &KVEditor::ChangeScreen},
        {Role::LinkSwitch,       &KVEditor::ChangeLink},
        {Role::IgnoreController, &KVEditor::ChangeIgnore},
        {Role::ResetStart,       &KVEditor::ResetStart},
        {Role::LayerCommand,     &KVEditor::LayerCommand},
        {Role::FolderList,       &KVEditor::ChooseFolder},
        {Role::ProgramMenu,      &KVEditor::ChooseProgram},
        {Role::ProgramArrow,     &KVEditor::StepProgram},
        {Role::GrooveMenu,       &KVEditor::ChooseGrooveCommand},
        {Role::WaveList,         &KVEditor::ChooseWave},
        {Role::WaveArrow,        &KVEditor::StepWave},
    };
    // clang-format on
    const PlacedControl* const placed = panel.Find(control);
    if (!placed) return;
    for (const RoleRule& rule : kRules)
        if (rule.role == placed->row->role) return (this->*rule.change)(*placed);
    ChangeParameter(*placed);
}

void KVEditor::ChangeParameter(const PlacedControl& placed) { Send(placed.control->id, placed.control->GetValue()); }

/// By the user: not because its page has gone, the window closes or somebody else took the mouse.
bool KVEditor::LetGo(const PlacedControl& placed) const
{
    return placed.control->GetValue() == 0.0f && !placed.control->hidden && windowHandle && !cancelling;
}

void KVEditor::CancelAll()
{
    cancelling = true;
    CSynthEditor::CancelAll();
    cancelling = false;
}

void KVEditor::ChangeScreen(const PlacedControl& placed)
{
    ChangeParameter(placed);
    RefreshAll();
}

void KVEditor::ChangeLink(const PlacedControl& placed) { instrument.links.Link(placed.control->GetValue() != 0.0f); }

void KVEditor::ChangeIgnore(const PlacedControl& placed)
{
    instrument.links.SetIgnoreValue(placed.control->GetValue() != 0.0f);
}

void KVEditor::ResetStart(const PlacedControl& placed)
{
    ChangeParameter(placed); // so that the button stays down
    if (placed.control->GetValue() != 0.0f) instrument.engine->SetChannelParameter(slot::LayerStart, 0.0f);
}

void KVEditor::LayerCommand(const PlacedControl& placed)
{
    if (!LetGo(placed)) return;
    switch (placed.NumberInRole()) {
    case 0: return commands.RemoveSample();
    case 1: return commands.NeighbourSample(-1);
    case 2: return commands.NeighbourSample(1);
    default: return commands.LoadWaveSample();
    }
}

void KVEditor::ChooseFolder(const PlacedControl&) { programs.FolderChosen(); }
void KVEditor::ChooseProgram(const PlacedControl&) { programs.ProgramChosen(); }

void KVEditor::StepProgram(const PlacedControl& placed)
{
    if (LetGo(placed)) programs.Step(placed.NumberInRole() == 0 ? -1 : 1);
}

void KVEditor::ChooseGrooveCommand(const PlacedControl& placed)
{
    ChooseInGrooveMenu(commands, Truncate(placed.control->GetValue()));
}

void KVEditor::ChooseWave(const PlacedControl& placed) { waveforms.Chosen(placed.NumberInRole()); }

/// The arrows back come first.
void KVEditor::StepWave(const PlacedControl& placed)
{
    const int number = placed.NumberInRole();
    if (LetGo(placed)) commands.StepWave(number % kOscillators, number < kOscillators ? -1 : 1);
}

} // namespace korvane
