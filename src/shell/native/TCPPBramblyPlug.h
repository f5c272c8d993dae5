// Base of a native plug-in.
#pragma once

#include "shell/native/TBramblyPlug.h"

namespace korvane {

/// Greets the host. Operations that are not overridden do nothing, and answer 0.
class TCPPBramblyPlug : public TBramblyPlug {
public:
    TCPPBramblyPlug(TBramblyHost& owner, std::int32_t tag, const NativeInfo& module) : TBramblyPlug(owner, tag, module)
    {
        host->HostDispatch(hostTag, native_request::First, 0, 0);
    }

    // clang-format off
    void Destroy() override { delete this; }
    std::int32_t Dispatch(std::int32_t, std::int32_t, std::intptr_t) override { return 0; }
    void Idle(std::intptr_t) override {}
    void SaveRestoreState(NativeStream*, std::int32_t) override {}
    void GetName(std::int32_t, std::int32_t, std::int32_t, char*) override {}
    std::int32_t HostEvent(std::int32_t, float) override { return 0; }
    std::int32_t ProcessParameter(std::int32_t, std::int32_t value, std::int32_t) override { return value; }
    void RenderEffect(const float*, float*, std::int32_t) override {}
    void RenderGenerator(float*, std::int32_t) override {}
    std::intptr_t TriggerVoice(NativeVoice*, std::intptr_t) override { return 0; }
    void ReleaseVoice(std::intptr_t) override {}
    void KillVoice(std::intptr_t handle) override { ReleaseVoice(handle); }
    std::intptr_t Reserved13() override { return 0; }
    std::intptr_t Reserved14() override { return 0; }
    void Reserved15(std::intptr_t) override {}
    void Reserved16(std::intptr_t) override {}
    void MidiIn(const NativeMidiMessage*) override {}
    void Reserved18(std::intptr_t, std::intptr_t) override {}
    void KillAllVoices() override {}
    // clang-format on
};

} // namespace korvane
