// The instrument's editor in memory, over the factory content.
#pragma once

#include <memory>
#include <utility>

#include "editor/KVEditor.h"
#include "support/ContentRoot.h"
#include "support/EditorRig.h"

namespace korvane {

/// Everything on this thread; blocks are played by hand. The log has what the host hears.
struct PanelRig {
    explicit PanelRig(int scale = 1) : host(log), instrument(std::make_unique<KVInstrument>(&host))
    {
        instrument->SetSampleRate(44100.0);
        instrument->SetProgram(0);
        auto made = std::make_unique<MemoryWindow>(scale);
        window = made.get();
        editor = std::make_unique<KVEditor>(std::move(made), nullptr, *instrument);
    }
    bool Open()
    {
        const bool opened = editor->Open(kEditorSize.height, kEditorSize.width, nullptr);
        log.clear();
        window->copies.clear();
        return opened;
    }
    void Tick()
    {
        window->Advance(editor->timerPeriod);
        window->Serve(0);
    }
    void Play(int frames)
    {
        std::vector<std::vector<float>> memory(28, std::vector<float>(static_cast<std::size_t>(frames)));
        std::vector<float*> outputs;
        for (auto& pin : memory) outputs.push_back(pin.data());
        instrument->ProcessBlock(nullptr, outputs.data(), frames, true);
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
    void Click(int x, int y, int kind = mouse::LeftDown)
    {
        Move(x, y);
        Press(kind);
        Press(kind + mouse::LeftUp - mouse::LeftDown);
    }
    void Key(int code, bool down)
    {
        window->Key(code, down);
        window->Serve(0);
    }
    /// Selects a channel and a screen as a host does, and shows them.
    void Show(int channel, bool screen)
    {
        Engine().selection.selectedChannel = channel;
        instrument->SetParameter(kScreenSwitchId, screen);
        editor->RefreshAll();
        Tick();
        log.clear();
        window->copies.clear();
    }
    /// What the host has heard since the last time.
    Log Take() { return std::exchange(log, {}); }
    GrooveEngine& Engine() { return *instrument->engine; }

    BundleRoot root;
    Log log;
    LoggingHost host;
    std::unique_ptr<KVInstrument> instrument;
    MemoryWindow* window = nullptr;
    std::unique_ptr<KVEditor> editor;
};

} // namespace korvane
