// The instrument's editor over an engine that plays while it is looked at.
#pragma once

#include <filesystem>
#include <memory>

#include "editor/KVEditor.h"

namespace korvane::demo {

/// A host that says nothing, and the instrument with the content of the build.
struct ShownEngine {
    ShownEngine();
    ~ShownEngine();
    /// Has the engine play that long, at 44100 Hz.
    void Play(int milliseconds);

    struct Host : CPluginWrapper {
        void ParameterAutomated(int, float) override {}
        CPluginEditor* GetEditor() override { return nullptr; }
        void BeginEdit(int) override {}
        void EndEdit(int) override {}
        bool RealTime() override { return false; }
    } host;
    const std::filesystem::path root; // links to the build's content, so that nothing is written there
    std::unique_ptr<KVInstrument> instrument;
};

/// Each tick plays as long as it lasts. Everything on the window's thread.
class ShownEditor : private ShownEngine, public KVEditor {
public:
    explicit ShownEditor(std::unique_ptr<Window> platformWindow)
        : KVEditor(std::move(platformWindow), nullptr, *ShownEngine::instrument)
    {
    }

    void Idle() override;
};

} // namespace korvane::demo
