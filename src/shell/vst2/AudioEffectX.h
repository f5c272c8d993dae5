// The VST 2.4 additions to the effect interface.
#pragma once

#include "shell/vst2/AudioEffect.h"

namespace korvane {

/// Adds the requests that came with the interface's second version.
class AudioEffectX : public AudioEffect {
public:
    using AudioEffect::AudioEffect;

    std::intptr_t Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                           float option) override
    {
        switch (opcode) {
        case request::ProcessEvents: return ProcessEvents(static_cast<const VstEvents*>(pointer));
        case request::CanDo: return CanDo(static_cast<const char*>(pointer));
        case request::InterfaceVersion: return 2400;
        default: return AudioEffect::Dispatch(opcode, index, value, pointer, option);
        }
    }

    virtual std::int32_t ProcessEvents(const VstEvents*) { return 0; }
    virtual std::int32_t CanDo(const char*) { return 0; }
};

} // namespace korvane
