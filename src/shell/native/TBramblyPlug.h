// The maker's native plug-in interface: its records, what a plug-in asks of the host, what the host asks of a plug-in.
#pragma once

#include <cstddef>
#include <cstdint>

namespace korvane {

namespace native_flag {
enum : std::int32_t { Effect = 0x200000, Instrument = 0x200011 };
}

/// What the module is. One static record for all of its plug-ins.
struct NativeInfo {
    std::int32_t one = 1;       // what every host looks at first
    const char* longName = "";  // for lists
    const char* shortName = ""; // for where there is little room
    std::int32_t flags = 0;     // native_flag
    std::int32_t numParams = 0; // that ProcessParameter takes
    std::int32_t reserved[30] = {};
};
static_assert(sizeof(NativeInfo) == 152 && offsetof(NativeInfo, flags) == 24 && offsetof(NativeInfo, numParams) == 28);

/// What the host tells of a voice; the host's own memory, for as long as the voice lives.
struct NativeVoice {
    float pan;    // -1..+1
    float volume; // 1.0 is full, more is allowed
    float pitch;  // cents; key 60 is 6000
};
static_assert(sizeof(NativeVoice) == 12);

struct NativeMidiMessage {
    std::uint8_t status, data1, data2;
    std::uint8_t port; // of the host's MIDI inputs
};
static_assert(sizeof(NativeMidiMessage) == 4);

/// Bytes of a project that is saved or loaded, one after another.
class NativeStream {
public:
    // clang-format off
    /// Into or from a buffer of `size` bytes. The answer: how many bytes; 0 where the stream ends.
    virtual std::int32_t Read(void* buffer, std::int32_t size) = 0;        // 1
    virtual std::int32_t Write(const void* buffer, std::int32_t size) = 0; // 2
    // clang-format on

protected:
    ~NativeStream() = default;
};

/// Requests of the plug-in to HostDispatch.
namespace native_request {
enum : std::int32_t { First = 29, Instrument = 33 }; // what they do is the host's; the latter has value 1
}

/// What the host is to its plug-ins.
///
/// tag       of the plug-in, as the host gave it to the entry
/// voiceTag  of a voice, as the host gave it to TriggerVoice
class TBramblyHost {
public:
    static constexpr std::int32_t kVoiceTriggered = 6; // to HostVoiceNotification; what it does is the host's

    // clang-format off
    virtual std::intptr_t HostDispatch(std::int32_t tag, std::int32_t id, std::int32_t index,
                                       std::intptr_t value) = 0;                                       // 1
    /// The plug-in itself moved a parameter; 256 is 1.0.
    virtual void HostParameterChanged(std::int32_t tag, std::int32_t index, std::int32_t value) = 0;   // 2
    virtual void HostShowHint(std::int32_t tag, const char* text) = 0;                                 // 3
    /// The plug-in has forgotten the voice.
    virtual void HostVoiceFinished(std::intptr_t voiceTag, std::intptr_t reserved) = 0;                // 4
    virtual std::intptr_t HostVoiceNotification(std::intptr_t voiceTag, std::int32_t id, std::intptr_t a,
                                                std::intptr_t b) = 0;                                  // 5
    /// Interleaved stereo that sound may be added to, or null. Instruments ask between HostLockMix and HostUnlockMix.
    virtual float* HostGetMixBuffer(std::int32_t tag, std::int32_t target) = 0;                        // 6
    virtual void HostLockMix() = 0;                                                                    // 7
    virtual void HostUnlockMix() = 0;                                                                  // 8
    // clang-format on

protected:
    ~TBramblyHost() = default;
};

/// The last parameters of a plug-in stand for the MIDI controllers 0..127 and the channel pressure.
inline constexpr int kNativeControllers = 129;

/// Flags of ProcessParameter.
namespace native_parameter {
enum : std::int32_t {
    Set = 0x1,
    Get = 0x2,
    Fine = 0x20, // the value comes as 0..65536
};
}

/// Sections of GetName.
namespace native_name {
enum : std::int32_t { Parameter = 0, ParameterValue = 1, Extra = 2, Program = 6 };
}

/// Requests of the host to Dispatch.
namespace native_dispatch {
enum : std::int32_t { ShowEditor = 0, Reset = 2, SetSampleRate = 4 };
}

/// Kinds of HostEvent.
namespace native_event {
enum : std::int32_t { Tempo = 0 };
}

/// What a plug-in is to the host, which calls its operations by their slots and reads its fields. In this platform's
/// classes a destructor has two slots, so that KillAllVoices has the twenty-first.
///
/// Voices, MIDI and sound are asked for on the host's audio thread, tempo and parameters on any, the rest on its
/// others.
class TBramblyPlug {
public:
    TBramblyPlug(TBramblyHost& owner, std::int32_t tag, const NativeInfo& module)
        : hostTag(tag), host(&owner), info(&module)
    {
    }
    TBramblyPlug(const TBramblyPlug&) = delete;

    // clang-format off
    virtual void Destroy() = 0;                                                                            // 1
    /// id      native_dispatch, with a value: the number of the parent window, 0 closes; none; Hz
    virtual std::int32_t Dispatch(std::int32_t id, std::int32_t index, std::intptr_t value) = 0;           // 2
    virtual void Idle(std::intptr_t) = 0;                                                                  // 3
    /// save    not 0: into the stream
    virtual void SaveRestoreState(NativeStream* stream, std::int32_t save) = 0;                            // 4
    /// section native_name
    /// buffer  256 bytes
    virtual void GetName(std::int32_t section, std::int32_t index, std::int32_t value, char* buffer) = 0;  // 5
    /// value   of a native_event: beats per minute
    virtual std::int32_t HostEvent(std::int32_t kind, float value) = 0;                                    // 6
    /// value   256 is 1.0; flags: native_parameter
    virtual std::int32_t ProcessParameter(std::int32_t index, std::int32_t value, std::int32_t flags) = 0; // 7
    /// Interleaved stereo from the one into the other.
    virtual void RenderEffect(const float* source, float* destination, std::int32_t frames) = 0;           // 8
    /// Adds to interleaved stereo.
    virtual void RenderGenerator(float* destination, std::int32_t frames) = 0;                             // 9
    /// The plug-in's handle of the voice.
    virtual std::intptr_t TriggerVoice(NativeVoice* voice, std::intptr_t voiceTag) = 0;                    // 10
    virtual void ReleaseVoice(std::intptr_t handle) = 0;                                                   // 11
    virtual void KillVoice(std::intptr_t handle) = 0;                                                      // 12
    virtual std::intptr_t Reserved13() = 0;                                                                // 13
    virtual std::intptr_t Reserved14() = 0;                                                                // 14
    virtual void Reserved15(std::intptr_t) = 0;                                                            // 15
    virtual void Reserved16(std::intptr_t) = 0;                                                            // 16
    virtual void MidiIn(const NativeMidiMessage* message) = 0;                                             // 17
    virtual void Reserved18(std::intptr_t, std::intptr_t) = 0;                                             // 18
    virtual ~TBramblyPlug() = default;                                                                     // 19
    virtual void KillAllVoices() = 0;                                                                      // 20
    // clang-format on

    const std::int32_t hostTag;
    TBramblyHost* const host;
    const NativeInfo* const info;
    void* editorHandle = nullptr; // the editor's window in the system, null while it is closed
};

} // namespace korvane
