// A window with every kind of control.
#pragma once

#include <memory>
#include <string>

#include "gui/window/CSynthEditor.h"

namespace korvane {
class CControlTextDisplay;
class CControlDropDownList;
} // namespace korvane

namespace korvane::demo {

/// The engine that the demo shows; made before the window.
struct DemoEngine {
    DemoEngine();
    struct End {
        void operator()(CSynthesizer* synth) const { synth->Destroy(); }
    };
    std::unique_ptr<CSynthesizer, End> engine;
};

/// Its images are drawn when it first opens. What is dropped, typed and chosen in dialogs is shown in a line of text.
class DemoEditor : private DemoEngine, public CSynthEditor {
public:
    explicit DemoEditor(std::unique_ptr<Window> platformWindow);

    bool OnKeyDown(int code) override;
    bool OnKeyUp(int code) override;
    bool DropFile(const char* path, int x, int y) override;
    void ControlChanged(CControl* control) override;
    bool CreateContent() override;

private:
    void AddKnobs();
    void AddButtons();
    void AddTabs();
    void AddSliders();
    void AddLists();
    void Label(int x, int y, int across, const char* text);
    void Say(const std::string& text);
    void AskForFile(bool save);

    CControlTextDisplay* message = nullptr; // of the main group, as the next two
    CControlDropDownList* commands = nullptr;
    CControlDropDownList* choices = nullptr;
};

} // namespace korvane::demo
