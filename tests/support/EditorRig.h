// An editor in memory: its window, an engine of plain numbers, and what both were told.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "gui/window/CSynthEditor.h"
#include "platform/window/MemoryWindow.h"

namespace korvane {

using Log = std::vector<std::string>;

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

/// `fill` makes the content; the log has what the window's operations were called with.
struct TestEditor : CSynthEditor {
    TestEditor(std::unique_ptr<Window> window, CSynthesizer* engine, Log& lines)
        : CSynthEditor(std::move(window), nullptr, {200, 300}, engine), log(lines)
    {
    }
    bool CreateContent() override { return !fill || fill(); }
    void ControlChanged(CControl* control) override
    {
        if (synth && synth->wrapper) synth->wrapper->ParameterAutomated(control->GetId(), control->GetValue());
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

} // namespace korvane
