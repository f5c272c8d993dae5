// The VST 2.4 additions to the effect interface.
#pragma once

#include "shell/vst2/AudioEffect.h"

namespace korvane {

/// Adds the requests that came with the interface's second version. Those that nothing acts on get the interface's own
/// answer: 0 for "not offered" (bypass, arrangements, offline, double precision, key names) and for "your default"
/// (input pins, tail, vendor version, MIDI channels); another number where a 0 would tell the host something untrue.
class AudioEffectX : public AudioEffect {
public:
    using AudioEffect::AudioEffect;

    std::intptr_t Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                           float option) override
    {
        switch (opcode) {
        case request::ProcessEvents: return ProcessEvents(static_cast<const VstEvents*>(pointer));
        case request::CanBeAutomated: return index >= 0 && index < record.numParams;
        case request::ProgramCategories: return 1; // 0: there are no programs to list
        case request::ConnectInput:
        case request::ConnectOutput: return 1; // 0: the pin cannot be connected
        case request::SetBlockSizeAndSampleRate:
            SetBlockSize(static_cast<std::int32_t>(value));
            SetSampleRate(option);
            return 1;
        case request::CanDo: return CanDo(static_cast<const char*>(pointer));
        case request::KeysRequired: return 1; // 0: pass on what is typed; the editor's window gets that by itself
        case request::InterfaceVersion: return 2400;
        case request::CurrentMidiProgram: return -1; // 0: MIDI channels have programs of their own, now the first
        case request::TotalFrames: return static_cast<std::int32_t>(value); // 0: an offline run of no frames
        default: return AudioEffect::Dispatch(opcode, index, value, pointer, option);
        }
    }

    virtual std::int32_t ProcessEvents(const VstEvents*) { return 0; }
    virtual std::int32_t CanDo(const char*) { return 0; }
};

} // namespace korvane
