// Records and numbers of the VST 2.4 interface.
#pragma once

#include <cstddef>
#include <cstdint>

namespace korvane {

struct AEffect;

using AudioMasterCallback = std::intptr_t (*)(AEffect* effect, std::int32_t opcode, std::int32_t index,
                                              std::intptr_t value, void* pointer, float option);

constexpr std::int32_t FourBytes(const char (&text)[5])
{
    std::uint32_t number = 0;
    for (int n = 3; n >= 0; --n) number = number << 8 | static_cast<unsigned char>(text[n]);
    return static_cast<std::int32_t>(number);
}

/// What the host holds of a plug-in.
struct AEffect {
    std::int32_t magic; // "PtsV" in memory order
    std::intptr_t (*dispatcher)(AEffect*, std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                                float option);
    void (*process)(AEffect*, float** inputs, float** outputs, std::int32_t frames); // accumulating
    void (*setParameter)(AEffect*, std::int32_t index, float value);
    float (*getParameter)(AEffect*, std::int32_t index);
    std::int32_t numPrograms, numParams, numInputs, numOutputs;
    std::int32_t flags;
    std::intptr_t reserved1, reserved2;
    std::int32_t initialDelay, realQualities, offQualities;
    float ioRatio;
    void* object; // the plug-in's own
    void* user;
    std::int32_t uniqueId, version;
    void (*processReplacing)(AEffect*, float** inputs, float** outputs, std::int32_t frames);
    void (*processDoubleReplacing)(AEffect*, double** inputs, double** outputs, std::int32_t frames);
    char future[56];
};
static_assert(sizeof(AEffect) == 192 && offsetof(AEffect, flags) == 56 && offsetof(AEffect, uniqueId) == 112);

namespace effect_flag {
enum : std::int32_t { HasEditor = 0x1, CanReplacing = 0x10, ProgramChunks = 0x20, IsSynth = 0x100 };
}

/// Requests of the host.
namespace request {
enum : std::int32_t {
    Open = 0,
    Close = 1,
    SetProgram = 2,
    GetProgram = 3,
    SetProgramName = 4,
    GetProgramName = 5,
    GetParameterLabel = 6,
    GetParameterDisplay = 7,
    GetParameterName = 8,
    SetSampleRate = 10,
    SetBlockSize = 11,
    MainsChanged = 12,
    EditorRectangle = 13,
    EditorOpen = 14,
    EditorClose = 15,
    Identify = 22,
    GetChunk = 23,
    SetChunk = 24,
    ProcessEvents = 25,
    CanBeAutomated = 26,
    ProgramCategories = 28,
    ProgramNameByIndex = 29,
    ConnectInput = 31,
    ConnectOutput = 32,
    OutputProperties = 34,
    PlugCategory = 35,
    SetBlockSizeAndSampleRate = 43,
    EffectName = 45,
    VendorString = 47,
    ProductString = 48,
    CanDo = 51,
    KeysRequired = 57,
    InterfaceVersion = 58,
    CurrentMidiProgram = 63,
    TotalFrames = 73,
};
}

/// Requests of the plug-in.
namespace host_request {
enum : std::int32_t {
    Automate = 0,
    Version = 1,
    WantMidi = 6,
    GetTime = 7,
    ProcessLevel = 23,
    VendorString = 32,
    ProductString = 33,
    BeginEdit = 43,
    EndEdit = 44
};
}

inline constexpr std::intptr_t kRealTimeLevel = 2; // of the calling thread: it must not wait

struct VstTimeInfo {
    double samplePosition, sampleRate, nanoSeconds;
    double ppqPosition; // quarter notes
    double tempo;       // beats per minute
    double barStart, cycleStart, cycleEnd;
    std::int32_t timeSignatureNumerator, timeSignatureDenominator;
    std::int32_t smpteOffset, smpteFrameRate, samplesToNextClock;
    std::int32_t flags;
};
static_assert(sizeof(VstTimeInfo) == 88);

namespace time_flag {
enum : std::int32_t { TransportChanged = 0x1, TransportPlaying = 0x2, PpqPositionValid = 0x200, TempoValid = 0x400 };
}

struct VstEvent {
    std::int32_t type, byteSize, deltaFrames, flags;
    char data[16];
};

struct VstMidiEvent {
    static constexpr std::int32_t kType = 1;
    std::int32_t type, byteSize, deltaFrames, flags;
    std::int32_t noteLength, noteOffset;
    std::uint8_t midiData[4];
    char detune, noteOffVelocity, reserved1, reserved2;
};
static_assert(sizeof(VstMidiEvent) == 32 && sizeof(VstEvent) == 32);

struct VstEvents {
    std::int32_t numEvents;
    std::intptr_t reserved;
    VstEvent* events[2]; // numEvents of them
};

struct VstPinProperties {
    char label[64];
    std::int32_t flags; // 1 active, 2 stereo
    std::int32_t arrangementType;
    char shortLabel[8];
    char future[48];
};
static_assert(sizeof(VstPinProperties) == 128);

struct ERect {
    std::int16_t top, left, bottom, right;
};

} // namespace korvane
