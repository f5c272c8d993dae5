// An editor in memory: its window, an engine of plain numbers, and what both were told.
#pragma once

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "gui/controls/CControlTextDisplay.h"
#include "gui/window/CSynthEditor.h"
#include "platform/window/MemoryWindow.h"

namespace korvane {

using Log = std::vector<std::string>;

constexpr Color kPage = 0x102030; // all over the page, bitmap 77

/// A host that writes down what it hears; `during` runs inside each call.
struct LoggingHost : CPluginWrapper {
    explicit LoggingHost(Log& lines) : log(lines) {}
    void ParameterAutomated(int index, float value) override { Note("automate", index, value); }
    CPluginEditor* GetEditor() override { return nullptr; }
    void BeginEdit(int index) override { Note("begin", index, 0.0f); }
    void EndEdit(int index) override { Note("end", index, 0.0f); }
    bool RealTime() override { return false; }

    std::function<void()> during;

private:
    void Note(const char* what, int index, float value)
    {
        char line[64];
        std::snprintf(line, sizeof line, "%s %d %g", what, index, static_cast<double>(value));
        log.push_back(line);
        if (during) during();
    }
    Log& log;
};

/// Values without a sound: the default of parameter n is n / 1000.
struct NumberEngine : CSynthesizer {
    using CSynthesizer::CSynthesizer;
    float GetParameter(int index) override
    {
        if (index < 0 || index >= 196) return 0.0f;
        return values[index];
    }
    float GetParameterDefault(int index) override { return static_cast<float>(index) / 1000.0f; }
    void SetParameter(int index, float value) override
    {
        if (index >= 0 && index < 196) values[index] = value;
    }
    void GetParameterName(int index, char* text) override { std::snprintf(text, 256, "name %d", index); }
    void GetParameterDisplay(int index, char* text) override { std::snprintf(text, 256, "display %d", index); }
    void GetParameterLabel(int index, char* text) override { std::snprintf(text, 256, "label %d", index); }

    Shared<float> values[196];
};

/// `fill` makes the content; the log has what the window's operations were called with, and what users changed.
struct TestEditor : CSynthEditor {
    TestEditor(std::unique_ptr<Window> window, CSynthesizer* engine, Log& lines)
        : CSynthEditor(std::move(window), nullptr, {200, 300}, engine), log(lines)
    {
        page.Create(200, 300, false);
        std::fill_n(page.pixels.get(), 200 * 300, kPage);
    }
    bool CreateContent() override { return !fill || fill(); }
    CBitmap* FindBitmap(int n) override { return n == 77 ? &page : picture ? picture : CSynthEditor::FindBitmap(n); }
    void ControlChanged(CControl* control) override
    {
        if (synth && synth->wrapper) synth->wrapper->ParameterAutomated(control->GetId(), control->GetValue());
        if (onChange) onChange(control);
    }
    void MouseEvent(int x, int y, int modifierBits, int type) override
    {
        char line[64];
        std::snprintf(line, sizeof line, "mouse %d %d mod %d type %d", x, y, modifierBits, type);
        log.push_back(line);
        CSynthEditor::MouseEvent(x, y, modifierBits, type);
    }
    bool OnKeyDown(int code) override
    {
        log.push_back("key " + std::to_string(code));
        return code == key::Space;
    }
    bool DropFile(const char* path, int x, int y) override
    {
        log.push_back("drop " + std::string(path) + " " + std::to_string(x) + " " + std::to_string(y));
        return CSynthEditor::DropFile(path, x, y);
    }

    std::function<bool()> fill;
    std::function<void(CControl*)> onChange;
    CBitmap page{77}, *picture = nullptr; // bitmap 77, and that of every other number
    Log& log;
};

/// An editor of 300 x 200 pixels and what is around it. Everything on this thread; the window opens in Open.
struct EditorRig {
    EditorRig() : host(log), engine(&host)
    {
        auto made = std::make_unique<MemoryWindow>();
        window = made.get();
        editor = std::make_unique<TestEditor>(std::move(made), &engine, log);
    }
    bool Open()
    {
        const bool opened = editor->Open(200, 300, nullptr);
        log.clear();
        window->copies.clear();
        return opened;
    }
    void Tick()
    {
        window->Advance(editor->timerPeriod);
        window->Serve(0);
    }
    void Move(int x, int y)
    {
        window->MoveTo(x, y);
        window->Serve(0);
    }
    void Press(int kind)
    {
        window->Press(kind);
        window->Serve(0);
    }
    /// What was logged since the last time.
    Log Take() { return std::exchange(log, {}); }

    Log log;
    LoggingHost host;
    NumberEngine engine;
    MemoryWindow* window = nullptr;
    std::unique_ptr<TestEditor> editor;
};

/// One that is open and shows its page.
struct ControlRig : EditorRig {
    ControlRig()
    {
        editor->fill = [this] { return editor->SetBackground(77), true; };
        Open();
        editor->Idle();
    }
    /// Its parameter is number 100, with that value.
    template <class T>
    T* Add(Rect place, float value = 0.0f, CBitmap* image = nullptr)
    {
        auto* const control = new T(place, 100);
        engine.SetParameter(100, value);
        editor->AddControl(control);
        if (image) control->bitmap = image;
        return control;
    }
    void Mouse(int kind, int x, int y, int modifiers = 0) { editor->MouseEvent(x, y, modifiers, kind); }
    void Click(int x, int y) { Mouse(mouse::LeftDown, x, y), Mouse(mouse::LeftUp, x, y); }
    /// What was logged since the last time, but for mouse events.
    Log Heard()
    {
        std::erase_if(log, [](const std::string& line) { return line.starts_with("mouse"); });
        return Take();
    }
    Color At(int x, int y) const { return editor->backBuffer.pixels[(199 - y) * 300 + x]; }
    Color OnScreen(int x, int y) const { return window->shown[static_cast<std::size_t>(y) * 300 + x]; }
};

/// Draws its colour anew on each tick.
struct Blinker : CControlTextDisplay {
    Blinker(Rect place, int number) : CControlTextDisplay(place, number) { SetText(""); }
    void OnTick() override { dirty = true, ++ticks; }
    int ticks = 0;
};

constexpr Color Cell(int number) { return 0x101010u * number; }

/// As images mix: (a * weight + b * (255 - weight)) >> 8, each byte.
inline Color Mixed(Color a, Color b, int weight)
{
    const auto byte = [=](int n) { return ((a >> n & 255) * weight + (b >> n & 255) * (255 - weight)) >> 8 << n; };
    return byte(0) | byte(8) | byte(16);
}

/// An image of cells, each in the colour of its number, counted from 1, row by row from the top.
/// opacity  of all pixels; negative: no alpha
struct Cells : CBitmap {
    Cells(int columns, int rows, int cellWidth, int cellHeight, int opacity = -1) : CBitmap(1)
    {
        Create(rows * cellHeight, columns * cellWidth, opacity >= 0);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                pixels[(height - 1 - y) * width + x] = Cell(y / cellHeight * columns + x / cellWidth + 1);
        if (alpha) std::fill_n(alpha.get(), width * height, static_cast<std::uint8_t>(opacity));
    }
};

} // namespace korvane
