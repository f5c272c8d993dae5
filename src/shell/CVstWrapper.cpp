// The engine as a VST 2 plug-in.
#include "shell/CVstWrapper.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "shell/CPluginDefinition.h"

namespace korvane {

CVstWrapper::CVstWrapper(AudioMasterCallback hostCallback)
    : AudioEffectX(hostCallback, Definition()->numPrograms, Definition()->numHostParams), instance(this)
{
    CPluginDefinition& definition = *Definition();
    record.numInputs = definition.numInputs;
    record.numOutputs = 2 * definition.numOutputPairs;
    record.flags |= effect_flag::ProgramChunks;
    if (definition.isEffect == 0) record.flags |= effect_flag::IsSynth;
    std::memcpy(&record.uniqueId, definition.uniqueId, sizeof record.uniqueId);
    if (!engine) return;
    engine->Reset();
    instance.CreateEditor();
    if (instance.editor) {
        editor = std::make_unique<CVstEditor>(instance);
        record.flags |= effect_flag::HasEditor;
    }
    engine->SetProgram(0);
}

std::intptr_t CVstWrapper::Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                                    float option)
{
    const CPluginDefinition& definition = *Definition();
    char* text = static_cast<char*>(pointer);
    const auto answer = [text](const char* content) -> std::intptr_t {
        if (text) std::strcpy(text, content);
        return text != nullptr;
    };
    switch (opcode) {
    case request::SetProgram:
        if (engine) engine->SetProgram(static_cast<std::int32_t>(value));
        programNumber = static_cast<std::int32_t>(value);
        return 0;
    case request::GetProgram: return programNumber;
    case request::SetProgramName:
        if (engine) engine->SetProgramName(engine->CurrentProgram(), text);
        return 0;
    case request::GetProgramName:
        if (engine) engine->GetProgramName(programNumber, text);
        return 0;
    case request::MainsChanged: Power(value != 0); return 0;
    case request::EditorRectangle:
    case request::EditorOpen:
    case request::EditorClose: return EditorRequest(opcode, pointer);
    case request::GetChunk: return GetChunk(index != 0, static_cast<void**>(pointer));
    case request::SetChunk: return instance.SetChunk(index != 0, pointer, value);
    case request::ProgramNameByIndex:
        if (engine) engine->GetProgramName(index, text);
        return 1;
    case request::OutputProperties: return OutputProperties(index, static_cast<VstPinProperties*>(pointer));
    case request::PlugCategory: return definition.isEffect == 0 ? 2 : 1;
    case request::EffectName: return answer(definition.pluginName);
    case request::VendorString: return answer(definition.vendorName);
    case request::ProductString: {
        char product[1100];
        std::snprintf(product, sizeof product, "%s %s", definition.pluginName, definition.versionText);
        return answer(product);
    }
    default: return AudioEffectX::Dispatch(opcode, index, value, pointer, option);
    }
}

void CVstWrapper::Power(bool on)
{
    if (on) AskHost(host_request::WantMidi, 0, 1);
    if (engine) engine->Reset();
}

std::intptr_t CVstWrapper::EditorRequest(std::int32_t opcode, void* pointer)
{
    if (!editor) return 0;
    switch (opcode) {
    case request::EditorRectangle: return pointer && editor->GetRect(static_cast<ERect**>(pointer));
    case request::EditorOpen: return editor->Open(pointer);
    default: editor->Close(); return 0;
    }
}

std::intptr_t CVstWrapper::OutputProperties(std::int32_t index, VstPinProperties* properties)
{
    if (!properties || index < 0 || index >= record.numOutputs) return 0;
    char name[512];
    Definition()->GetOutputName(index / 2, name);
    std::snprintf(properties->label, sizeof properties->label, "%.63s", name);
    properties->flags = 3;
    return 1;
}

std::intptr_t CVstWrapper::GetChunk(bool preset, void** data)
{
    chunk = {};
    if (!data) return 0;
    chunk = instance.Chunk(preset);
    if (chunk.empty()) return 0;
    *data = chunk.data();
    return std::ssize(chunk);
}

void CVstWrapper::GetParameterLabel(std::int32_t index, char* text)
{
    if (engine) engine->GetParameterLabel(index, text);
}

void CVstWrapper::GetParameterDisplay(std::int32_t index, char* text)
{
    if (engine) engine->GetParameterDisplay(index, text);
}

void CVstWrapper::GetParameterName(std::int32_t index, char* text)
{
    if (engine) engine->GetParameterName(index, text);
}

void CVstWrapper::SetSampleRate(float newRate)
{
    sampleRate = newRate;
    if (engine) engine->SetSampleRate(static_cast<double>(newRate));
}

const VstTimeInfo* CVstWrapper::AskTime(std::int32_t filter)
{
    return reinterpret_cast<const VstTimeInfo*>(AskHost(host_request::GetTime, 0, filter));
}

void CVstWrapper::RenderBlock(float** inputs, float** outputs, std::int32_t frames, bool replacing)
{
    if (!engine) return;
    std::int32_t transport = 0;
    if (const VstTimeInfo* time = AskTime(time_flag::TempoValid)) {
        transport = time->flags;
        if (transport & time_flag::TempoValid) engine->SetTempo(time->tempo);
    }
    engine->songPosition = 0.0;
    if (const VstTimeInfo* time = AskTime(time_flag::PpqPositionValid))
        if (time->flags & time_flag::PpqPositionValid) engine->songPosition = time->ppqPosition;
    if (transport & time_flag::TransportChanged) engine->SetPlaying((transport & time_flag::TransportPlaying) != 0);
    engine->ProcessBlock(inputs, outputs, frames, replacing);
}

std::int32_t CVstWrapper::ProcessEvents(const VstEvents* events)
{
    if (!events || !engine) return 1;
    const std::int32_t count = std::min(events->numEvents, std::int32_t{0xFFFF}); // far beyond what the queue holds
    for (std::int32_t n = 0; n < count; ++n) {
        const VstEvent* event = *(&events->events[0] + n);
        if (!event || event->type != VstMidiEvent::kType) continue;
        const auto& midi = *reinterpret_cast<const VstMidiEvent*>(event);
        engine->QueueEvent(midi.midiData[0], midi.midiData[1], midi.midiData[2], midi.midiData[3], midi.deltaFrames);
    }
    return 1;
}

std::int32_t CVstWrapper::CanDo(const char* text)
{
    if (!text) return 0;
    for (const char* ability : {"receiveVstEvents", "receiveVstMidiEvent", "receiveVstTimeInfo"})
        if (std::strcmp(text, ability) == 0) return 1;
    return -1;
}

void CVstWrapper::ParameterAutomated(int index, float value)
{
    if (PluginInstance::IsAutomated(index)) AskHost(host_request::Automate, index, 0, nullptr, value);
}

void CVstWrapper::BeginEdit(int index)
{
    if (PluginInstance::IsAutomated(index)) AskHost(host_request::BeginEdit, index);
}

void CVstWrapper::EndEdit(int index)
{
    if (PluginInstance::IsAutomated(index)) AskHost(host_request::EndEdit, index);
}

} // namespace korvane
