// One instance as every bridge holds it: the engine and its editor.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "framework/CSynthesizer.h"
#include "shell/CPluginEditor.h"
#include "shell/CPluginWrapper.h"

namespace korvane {

/// Made and ended with its bridge. Operations without an engine do nothing and answer 0.
class PluginInstance {
    struct EngineEnd {
        void operator()(CSynthesizer* synth) const { synth->Destroy(); }
    };

public:
    /// The engine, at 44.1 kHz until the host tells its rate.
    explicit PluginInstance(CPluginWrapper* bridge);
    /// Waits for the editor's thread and the engine's, however long the host keeps them: both may ask for engine and
    /// editor until they end. The editor ends first.
    ~PluginInstance();
    PluginInstance(const PluginInstance&) = delete;

    /// The editor, where the plug-in has one. The bridge's constructor calls it once.
    void CreateEditor();
    /// Opens the editor as a child of the host's window, in its own size. Whether it is open afterwards.
    bool OpenEditor(void* parent);
    void CloseEditor();

    /// The host moved a parameter: engine and editor follow. Any thread.
    void SetParameter(int index, float value);
    /// Whether hosts hear of a parameter when the plug-in itself moves it.
    static bool IsAutomated(int index);

    /// The state as the host keeps it; empty without an engine.
    std::vector<std::uint8_t> Chunk(bool preset);
    /// Bytes of a state that were accepted, 0 when it was refused.
    std::int32_t SetChunk(bool preset, const void* data, std::intptr_t size);

    std::unique_ptr<CSynthesizer, EngineEnd> engine; // null when it could not be made
    std::unique_ptr<CPluginEditor> editor;           // after the engine, so that it ends first
};

} // namespace korvane
