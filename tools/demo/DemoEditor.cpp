// The demo's controls, a section after the other.
#include "demo/DemoEditor.h"

#include <stdexcept>

#include "demo/DemoSkin.h"
#include "framework/ParameterTable.h"
#include "gui/controls/CControlDropDownList.h"
#include "gui/controls/CControlSlider.h"
#include "gui/controls/CControlTab.h"
#include "gui/window/CFileSelector.h"
#include "shell/SMX_Def.h"

namespace korvane::demo {

namespace {

constexpr Color kText = Rgb(210, 192, 164), kInk = Rgb(87, 70, 46), kAccent = Rgb(240, 136, 63);

} // namespace

DemoEngine::DemoEngine() : engine(SMX_Def::Install().CreateSynth(nullptr))
{
    if (!engine) throw std::runtime_error("there is no engine");
}

DemoEditor::DemoEditor(std::unique_ptr<Window> platformWindow)
    : CSynthEditor(std::move(platformWindow), nullptr, {kPageHeight, kPageWidth}, engine.get())
{
    timerPeriod = 25;
}

bool DemoEditor::CreateContent()
{
    if (!LoadSkin(*this)) return false;
    SetBackground(image::Page);
    AddKnobs();
    AddButtons();
    AddTabs();
    AddSliders();
    AddLists();
    return true;
}

void DemoEditor::Label(int x, int y, int across, const char* text)
{
    auto* label = new CControlTextDisplay({x, y, across, 14}, -1);
    label->bitmap = FindBitmap(image::Led);
    label->imageOffset = {0, 100}; // beyond the image: only the page shows behind the text
    label->align = align::Left;
    label->textColor = label->hoverTextColor = kText;
    label->SetText(text);
    AddControl(label);
}

void DemoEditor::AddKnobs()
{
    struct Row {
        const char* name;
        int id;
        void (*set)(CControlKnob&);
    };
    // clang-format off
    constexpr Row kRows[] = {
        {"Crossfade",  92,    [](CControlKnob& knob) { knob.crossfade = true; knob.smoothing = 0.8f; }},
        {"Plain",      93, [](CControlKnob&) {}},
        {"Steps",      105,         [](CControlKnob& knob) { knob.steps = 8; }},
        {"Spring",     77,        [](CControlKnob& knob) { knob.springBack = true; }},
        {"Detent",     81,         [](CControlKnob& knob) { knob.centreDetent = 0.2f; }},
        {"Pointer",    84,       [](CControlKnob& knob) { knob.bitmap = nullptr; knob.drawPointer = true; knob.pointerWidth = 3; knob.pointerColor = kAccent; knob.backgroundColor = kBlack; }},
        {"Inverted",   85,        [](CControlKnob& knob) { knob.inverted = true; }},
    };
    // clang-format on
    int x = 20;
    for (const Row& row : kRows) {
        auto* knob = new CControlKnob({x, 30, kKnobSize, kKnobSize}, row.id);
        knob->bitmap = FindBitmap(image::Knob);
        knob->frameCount = kKnobFrames;
        knob->showValuePopup = true;
        row.set(*knob);
        AddControl(knob);
        Label(x, 12, 64, row.name);
        x += 72;
    }
}

void DemoEditor::AddButtons()
{
    constexpr const char* kNames[] = {"Toggle", "Pressed", "LED", "Momentary"};
    for (int mode = 0; mode < 4; ++mode) {
        const int x = 20 + 90 * mode;
        const bool led = mode == 2;
        auto* button = new CControlButton(led ? Rect{x, 115, 14, 14} : Rect{x, 110, 72, 24}, param::Enable1 + mode);
        button->bitmap = FindBitmap(led ? image::Led : mode == 1 ? image::Button : image::Toggle);
        button->mode = mode;
        button->drawText = !led;
        button->textColor = button->hoverTextColor = kText;
        button->activeTextColor = kAccent;
        button->SetText(kNames[mode]);
        AddControl(button);
    }
}

void DemoEditor::AddTabs()
{
    Label(400, 92, 180, "Tabs: press, release, column");
    const auto add = [this](Rect place, int id, int img, int mode) {
        auto* tab = new CControlTab(place, id);
        tab->bitmap = FindBitmap(img);
        tab->mode = mode;
        tab->tabCount = 4;
        tab->normalized = true;
        AddControl(tab);
        return tab;
    };
    for (int mode = 0; mode < 2; ++mode) {
        CControlTab* row = add({400, 110 + 30 * mode, 160, 22}, mode == 0 ? 99 : 112, image::TabRow, mode);
        row->tabWidth = 40;
        row->tabHeight = 22;
    }
    CControlTab* column = add({580, 110, 40, 72}, 95, image::TabColumn, 0);
    column->tabWidth = 40;
    column->tabHeight = 18;
    column->vertical = column->reversed = column->sharedImage = true;
}

void DemoEditor::AddSliders()
{
    Label(20, 150, 180, "Sliders and number");
    auto* vertical = new CControlSlider({20, 170, 24, 110}, 72);
    vertical->backgroundColor = kBlack;
    vertical->handle = FindBitmap(image::Handle);
    vertical->track = vertical->rect;
    vertical->horizontalTrack = true;
    vertical->crossfade = vertical->showValuePopup = true;
    AddControl(vertical);
    auto* across = new CControlSlider({70, 170, 180, 24}, 83);
    across->backgroundColor = kBlack;
    across->handle = FindBitmap(image::WideHandle);
    across->track = across->rect;
    across->horizontal = across->showValuePopup = true;
    AddControl(across);
    auto* number = new CControlNumber({70, 210, 60, 18}, 82);
    number->bitmap = FindBitmap(image::Panel);
    number->textColor = number->hoverTextColor = kInk;
    AddControl(number);
    auto* glowing = new CControlTextDisplay({150, 210, 160, 18}, -1);
    glowing->textColor = kAccent;
    glowing->hoverTextColor = kWhite;
    glowing->hoverHighlight = true;
    glowing->glow = 0.2f;
    glowing->font = 1;
    glowing->SetText("Glowing, hovered white");
    AddControl(glowing);
    message = new CControlTextDisplay({20, 390, 680, 18}, -1);
    message->align = align::Left;
    message->textColor = message->hoverTextColor = kText;
    message->SetText("Drop a file, press a key, choose a command");
    AddControl(message);
}

void DemoEditor::AddLists()
{
    Label(400, 190, 180, "Lists: choices, commands");
    const auto add = [this](Rect place) {
        auto* list = new CControlDropDownList(place, -1);
        list->bitmap = FindBitmap(image::Panel);
        list->textColor = list->hoverTextColor = kInk;
        AddControl(list);
        return list;
    };
    choices = add({400, 210, 140, 18});
    choices->AddItem("Waveforms", item::Heading);
    for (int n = 1; n <= 60; ++n) choices->AddItem(("Waveform " + std::to_string(n)).c_str(), item::Choice);
    choices->SetValue(1);
    commands = add({560, 350, 140, 18});
    commands->AddItem("File", item::Heading);
    commands->AddItem("Open...", item::Command);
    commands->AddItem("Save...", item::Command);
    commands->AddItem("", item::Separator);
    commands->AddItem("Marked", item::Command);
}

void DemoEditor::Say(const std::string& text)
{
    if (!message) return;
    message->SetText(text.c_str());
    message->SetDirty(true);
}

bool DemoEditor::OnKeyDown(int code)
{
    if (code != key::Space && (code < 'A' || code > 'Z')) return false;
    Say("Key " + std::to_string(code) + " down");
    return true;
}

bool DemoEditor::OnKeyUp(int code)
{
    if (code != key::Space && (code < 'A' || code > 'Z')) return false;
    Say("Key " + std::to_string(code) + " up");
    return true;
}

bool DemoEditor::DropFile(const char* path, int x, int y)
{
    Say("Dropped at " + std::to_string(x) + ", " + std::to_string(y) + ": " + path);
    return true;
}

void DemoEditor::AskForFile(bool save)
{
    CFileSelector selector(moduleHandle);
    selector.AddFilter("Sounds", {"wav", "aif"});
    selector.AddFilter("Texts", {"txt"});
    selector.SetTitle(save ? "Save a sound" : "Open a sound");
    selector.SetName(save ? "take 1" : "");
    const char* path = save ? selector.Save(this) : selector.Open(this);
    Say(path ? path : "No file was chosen");
}

void DemoEditor::ControlChanged(CControl* control)
{
    if (control == commands) {
        const int chosen = static_cast<int>(control->GetValue());
        if (chosen == 1 || chosen == 2) AskForFile(chosen == 2);
        return;
    }
    const int id = control->GetId();
    if (!synth || id < 0 || id >= param::Count) return;
    synth->SetParameter(id, control->GetValue());
    if (synth->wrapper && id < param::HostCount) synth->wrapper->ParameterAutomated(id, control->GetValue());
}

} // namespace korvane::demo
