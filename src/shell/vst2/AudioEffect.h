// Base of everything that has the VST 2 effect interface.
#pragma once

#include "shell/vst2/AEffect.h"

namespace korvane {

/// Fills the effect record and forwards its entries to the object. Operations that are not overridden do nothing, and
/// requests that it does not know are answered by 0. Usable without a host: with a null callback every host request
/// answers 0.
class AudioEffect {
public:
    AudioEffect(AudioMasterCallback hostCallback, std::int32_t numPrograms, std::int32_t numParams);
    AudioEffect(const AudioEffect&) = delete;
    virtual ~AudioEffect() = default;

    virtual std::intptr_t Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                                   float option);
    virtual void Reset() {}
    virtual void SetSampleRate(float newRate) { sampleRate = newRate; }
    virtual void SetBlockSize(std::int32_t frames) { blockSize = frames; }
    virtual void ProcessReplacing(float**, float**, std::int32_t) {}
    virtual void SetParameter(std::int32_t, float) {}
    virtual float GetParameter(std::int32_t) { return 0.0f; }
    virtual void GetParameterLabel(std::int32_t, char* text) { *text = '\0'; }
    virtual void GetParameterDisplay(std::int32_t, char* text) { *text = '\0'; }
    virtual void GetParameterName(std::int32_t, char* text) { *text = '\0'; }
    virtual void Process(float** inputs, float** outputs,
                         std::int32_t frames) = 0; // as the engine fills them, see CSynthesizer

    AEffect* Record() { return &record; }

protected:
    std::intptr_t AskHost(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0, void* pointer = nullptr,
                          float option = 0.0f)
    {
        return callback ? callback(&record, opcode, index, value, pointer, option) : 0;
    }

    AEffect record{};
    float sampleRate = 44100.0f;   // Hz
    std::int32_t blockSize = 1024; // frames

private:
    AudioMasterCallback callback;
};

} // namespace korvane
