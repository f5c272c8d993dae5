// The VST 2.4 additions to the effect interface.
#include "shell/vst2/AudioEffectX.h"

namespace korvane {

namespace {

struct DefaultAnswer {
    std::int32_t opcode;
    std::intptr_t answer;
};

// The interface's own answers to requests that nothing here acts on, where a 0 would tell the host something untrue.
// Every other request is answered by 0: "not offered" (bypass, arrangements, offline, double precision, key names) or
// "use your default" (input pins, tail, vendor version, number of MIDI channels, rate and block size in one request).
constexpr DefaultAnswer kDefaultAnswers[] = {
    // clang-format off
//   request                        answer  what a 0 would say
    {request::ProgramCategories,     1},  // there are no programs to list
    {request::ConnectInput,          1},  // the pin cannot be connected
    {request::ConnectOutput,         1},
    {request::KeysRequired,          1},  // the host must pass on what is typed; the editor's window gets that by itself
    {request::CurrentMidiProgram,   -1},  // each MIDI channel plays a program of its own, now the first
    // clang-format on
};

} // namespace

std::intptr_t AudioEffectX::Dispatch(std::int32_t opcode, std::int32_t index, std::intptr_t value, void* pointer,
                                     float option)
{
    switch (opcode) {
    case request::ProcessEvents: return ProcessEvents(static_cast<const VstEvents*>(pointer));
    case request::CanBeAutomated: return CanParameterBeAutomated(index) ? 1 : 0;
    case request::CanDo: return CanDo(static_cast<const char*>(pointer));
    case request::InterfaceVersion: return 2400;
    case request::TotalFrames: return static_cast<std::int32_t>(value); // of an offline run; a 0 would say none
    default: break;
    }
    for (const DefaultAnswer& row : kDefaultAnswers)
        if (row.opcode == opcode) return row.answer;
    return AudioEffect::Dispatch(opcode, index, value, pointer, option);
}

} // namespace korvane
