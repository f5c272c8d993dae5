// The VST 2.4 additions to the effect interface.
#pragma once

#include "shell/vst2/AudioEffect.h"

namespace korvane {

/// Adds the requests that came with the interface's second version.
class AudioEffectX : public AudioEffect {
public:
    using AudioEffect::AudioEffect;

    std::intptr_t Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                           float option) override;

    virtual std::int32_t ProcessEvents(const VstEvents*) { return 0; }
    virtual bool CanParameterBeAutomated(std::int32_t index) { return index >= 0 && index < record.numParams; }
    virtual std::int32_t CanDo(const char*) { return 0; }
};

} // namespace korvane
