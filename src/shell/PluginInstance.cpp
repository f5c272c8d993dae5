// One instance as every bridge holds it: the engine and its editor.
#include "shell/PluginInstance.h"

#include "shell/CPluginDefinition.h"

namespace korvane {

PluginInstance::PluginInstance(CPluginWrapper* bridge)
{
    engine.reset(Definition()->CreateSynth(bridge)); // which may ask the bridge for the editor
    if (engine) engine->SetSampleRate(44100.0);
}

PluginInstance::~PluginInstance()
{
    CloseEditor();                    // before what its thread uses ends
    if (engine) engine->EndThreads(); // they report to host and editor
}

void PluginInstance::CreateEditor()
{
    if (engine && Definition()->hasEditor != 0) editor.reset(Definition()->CreateEditor(engine.get()));
}

bool PluginInstance::OpenEditor(void* parent)
{
    if (!editor) return false;
    int height = 0, width = 0;
    editor->GetEditorSize(height, width);
    return editor->Open(parent, height, width);
}

void PluginInstance::CloseEditor()
{
    if (editor) editor->Close();
}

void PluginInstance::SetParameter(int index, float value)
{
    if (!engine) return;
    engine->SetParameter(index, value);
    if (editor) editor->ShowParameter(index, value);
}

bool PluginInstance::IsAutomated(int index) { return index >= 0 && index < Definition()->numHostParams; }

std::vector<std::uint8_t> PluginInstance::Chunk(bool preset)
{
    std::vector<std::uint8_t> chunk;
    if (!engine) return chunk;
    const auto fill = [&](void* buffer) {
        return preset ? engine->GetProgramChunk(buffer) : engine->GetBankChunk(buffer);
    };
    const std::int32_t size = fill(nullptr);
    if (size < 2) return chunk;
    chunk.resize(static_cast<std::size_t>(size));
    const std::int32_t filled = fill(chunk.data()); // less than told when a step has lost its locks meanwhile
    chunk.resize(static_cast<std::size_t>(filled));
    return chunk;
}

std::int32_t PluginInstance::SetChunk(bool preset, const void* data, std::intptr_t size)
{
    if (!engine || !data || size < 0 || size > INT32_MAX) return 0;
    const auto bytes = static_cast<std::int32_t>(size);
    return preset ? engine->SetProgramChunk(data, bytes) : engine->SetBankChunk(data, bytes);
}

} // namespace korvane
