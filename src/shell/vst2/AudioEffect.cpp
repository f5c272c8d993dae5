// Base of everything that has the VST 2 effect interface.
#include "shell/vst2/AudioEffect.h"

#include <exception>

namespace korvane {

namespace {

AudioEffect& Of(AEffect* record) { return *static_cast<AudioEffect*>(record->object); }

std::intptr_t DispatchEntry(AEffect* record, std::int32_t opcode, std::int32_t index, std::intptr_t value,
                            void* pointer, float option)
{
    AudioEffect& effect = Of(record);
    std::intptr_t answer = 0;
    try {
        answer = effect.Dispatch(opcode, index, value, pointer, option);
    } catch (const std::exception&) { // out of memory: the request is not carried out
    }
    if (opcode == request::Close) delete &effect;
    return answer;
}

void ProcessEntry(AEffect* r, float** in, float** out, std::int32_t frames) { Of(r).Process(in, out, frames); }
void ReplacingEntry(AEffect* r, float** in, float** out, std::int32_t frames)
{
    Of(r).ProcessReplacing(in, out, frames);
}
void DoubleEntry(AEffect*, double**, double**, std::int32_t) {}
void SetEntry(AEffect* r, std::int32_t index, float value) { Of(r).SetParameter(index, value); }
float GetEntry(AEffect* r, std::int32_t index) { return Of(r).GetParameter(index); }

} // namespace

AudioEffect::AudioEffect(AudioMasterCallback hostCallback, std::int32_t numPrograms, std::int32_t numParams)
    : callback(hostCallback)
{
    record.magic = FourBytes("PtsV");
    record.dispatcher = DispatchEntry;
    record.process = ProcessEntry;
    record.setParameter = SetEntry;
    record.getParameter = GetEntry;
    record.numPrograms = numPrograms;
    record.numParams = numParams;
    record.flags = effect_flag::CanReplacing;
    record.ioRatio = 1.0f;
    record.object = this;
    record.version = 1;
    record.processReplacing = ReplacingEntry;
    record.processDoubleReplacing = DoubleEntry;
}

std::intptr_t AudioEffect::Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                                    float option)
{
    char* text = static_cast<char*>(pointer);
    switch (opcode) {
    case request::Close: return 1;
    case request::GetParameterLabel:
        if (text) GetParameterLabel(index, text);
        return 0;
    case request::GetParameterDisplay:
        if (text) GetParameterDisplay(index, text);
        return 0;
    case request::GetParameterName:
        if (text) GetParameterName(index, text);
        return 0;
    case request::SetSampleRate: SetSampleRate(option); return 0;
    case request::SetBlockSize: SetBlockSize(static_cast<std::int32_t>(value)); return 0;
    case request::Identify: return FourBytes("fEvN");
    default: return 0;
    }
}

} // namespace korvane
