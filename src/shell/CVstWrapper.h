// The engine as a VST 2 plug-in.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Shared.h"
#include "shell/CPluginWrapper.h"
#include "shell/CVstEditor.h"
#include "shell/PluginInstance.h"
#include "shell/vst2/AudioEffectX.h"

namespace korvane {

/// Translates each host call into one call of the engine. Blocks and events come on the host's audio thread, parameters
/// on any, everything else on its others. Deletes itself with the host's close request.
class CVstWrapper : public AudioEffectX, public CPluginWrapper {
public:
    explicit CVstWrapper(AudioMasterCallback hostCallback);

    std::intptr_t Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                           float option) override;
    void Process(float** inputs, float** outputs, std::int32_t frames) override
    {
        RenderBlock(inputs, outputs, frames, false);
    }
    void ProcessReplacing(float** inputs, float** outputs, std::int32_t frames) override
    {
        RenderBlock(inputs, outputs, frames, true);
    }
    void SetParameter(std::int32_t index, float value) override { instance.SetParameter(index, value); }
    float GetParameter(std::int32_t index) override { return engine ? engine->GetParameter(index) : 0.0f; }
    void GetParameterLabel(std::int32_t index, char* text) override;
    void GetParameterDisplay(std::int32_t index, char* text) override;
    void GetParameterName(std::int32_t index, char* text) override;
    void SetSampleRate(float newRate) override;
    std::int32_t ProcessEvents(const VstEvents* events) override;
    std::int32_t CanDo(const char* text) override;

    void ParameterAutomated(int index, float value) override;
    CPluginEditor* GetEditor() override { return instance.editor.get(); }
    void BeginEdit(int index) override;
    void EndEdit(int index) override;
    bool RealTime() override { return AskHost(host_request::ProcessLevel) == kRealTimeLevel; }

private:
    void RenderBlock(float** inputs, float** outputs, std::int32_t frames, bool replacing);
    const VstTimeInfo* AskTime(std::int32_t filter);
    void Power(bool on);
    std::intptr_t OutputProperties(std::int32_t index, VstPinProperties* properties);
    std::intptr_t GetChunk(bool preset, void** data);
    std::intptr_t EditorRequest(std::int32_t opcode, void* pointer);

    PluginInstance instance;
    CSynthesizer* const engine = instance.engine.get();
    std::unique_ptr<CVstEditor> editor;
    // Handed to the host by the last get-chunk request, and the host's until the next one: it asks from one thread.
    std::vector<std::uint8_t> chunk;
    Shared<std::int32_t> programNumber; // as the host gave it; any of its threads sets and asks
};

} // namespace korvane
