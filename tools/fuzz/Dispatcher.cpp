// The plug-in under a host that asks for anything, in any order; but its pointers are null or lead to what is promised.
#include "fuzz/Instrument.h"
#include "shell/CVstWrapper.h"

using namespace korvane;
using namespace korvane::fuzz;

namespace {

VstTimeInfo hostTime{};
AEffect* effect = nullptr;
bool spent = false; // another sample rate: the next input gets a new plug-in

void Close()
{
    if (effect) effect->dispatcher(effect, request::Close, 0, 0, nullptr, 0.0f);
    effect = nullptr;
    spent = false;
}

std::intptr_t Host(AEffect*, std::int32_t opcode, std::int32_t, std::intptr_t, void*, float)
{
    if (opcode == host_request::Version) return 2400;
    return opcode == host_request::GetTime ? reinterpret_cast<std::intptr_t>(&hostTime) : 0;
}

std::intptr_t Ask(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0, void* pointer = nullptr,
                  float option = 0.0f)
{
    return effect->dispatcher(effect, opcode, index, value, pointer, option);
}

void Block(int frames, int kind)
{
    Outputs outputs(std::max(frames, 0));
    for (std::size_t n = 0; n < outputs.pointers.size(); n += 3)
        if (kind & 1) outputs.pointers[n] = nullptr; // nobody listens
    (kind & 2 ? effect->process : effect->processReplacing)(effect, kind & 4 ? outputs.pointers.data() : nullptr,
                                                            outputs.pointers.data(), frames);
}

void Events(ByteReader& in)
{
    std::vector<VstMidiEvent> events(in.Read<std::uint8_t>() % 32);
    Bytes list(sizeof(VstEvents) + events.size() * sizeof(VstEvent*));
    auto* all = reinterpret_cast<VstEvents*>(list.data());
    all->numEvents = static_cast<std::int32_t>(events.size());
    for (std::size_t n = 0; n < events.size(); ++n) {
        events[n].type = in.Read<std::uint8_t>() % 16 == 0 ? 6 : VstMidiEvent::kType; // 6: system exclusive
        events[n].deltaFrames = Number(in);
        for (auto& byte : events[n].midiData) byte = in.Read<std::uint8_t>();
        (&all->events[0])[n] = events[n].midiData[3] == 7 ? nullptr : reinterpret_cast<VstEvent*>(&events[n]);
    }
    Ask(request::ProcessEvents, Number(in), 0, all);
}

/// The plug-in's own state comes back to it with some bytes changed.
void Chunk(ByteReader& in)
{
    void* given = nullptr;
    const std::intptr_t size = Ask(request::GetChunk, Number(in), 0, &given);
    const auto* state = static_cast<const std::uint8_t*>(given);
    const Bytes changes = Some(in);
    Bytes image = Altered({state, state + size}, changes.data(), changes.size());
    Ask(request::SetChunk, Number(in), static_cast<std::intptr_t>(image.size()), image.data());
}

void AnyRequest(ByteReader& in)
{
    const std::int32_t opcode = Number(in), index = Number(in);
    const std::intptr_t value = in.Read<std::int8_t>() < 0 ? in.Read<std::int64_t>() : Number(in);
    auto option = in.Read<float>();
    if (option > 96000.0f && option < 2.0e6f) option = 96000.0f; // an instrument takes a kilobyte for each hertz
    Bytes text = Some(in);
    const bool none = text.size() % 8 == 1 || opcode == request::EditorOpen; // there is no window to open in
    switch (opcode) {
    case request::Close: return; // the last one of all
    case request::GetChunk:
    case request::SetChunk:
    case request::ProcessEvents: return static_cast<void>(Ask(opcode, index, value)); // with a buffer: above
    case request::SetSampleRate:
    case request::SetBlockSizeAndSampleRate: spent = true; break;
    case request::SetProgramName:
    case request::CanDo: text.push_back(0); break;
    default: text.resize(256); // what the host takes texts and records into
    }
    Ask(opcode, index, value, none ? nullptr : text.data(), option);
}

void Step(ByteReader& in)
{
    switch (in.Read<std::uint8_t>() % 8) {
    case 0: return Block(in.Read<std::int16_t>() % 2000, in.Read<std::uint8_t>());
    case 1: return effect->setParameter(effect, Number(in), in.Read<float>());
    case 2: return static_cast<void>(effect->getParameter(effect, Number(in)));
    case 3:
        hostTime.flags = in.Read<std::int32_t>();
        hostTime.tempo = in.Read<double>();
        hostTime.ppqPosition = in.Read<double>();
        return;
    case 4: return Events(in);
    case 5: return Chunk(in);
    default: return AnyRequest(in);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes& state = Instrument::Get().state; // with its content folder around it
    static const std::shared_ptr<void> end(nullptr, [](void*) { Close(); });
    if (!effect) effect = (new CVstWrapper(Host))->Record();
    Ask(request::SetChunk, 0, static_cast<std::intptr_t>(state.size()), state.data());
    hostTime = {};
    ByteReader in(data, static_cast<std::int32_t>(size));
    for (int n = 0; n < 200 && in.Ok() && in.Left() > 0; ++n) {
        const Limits limits(size); // of each call: a byte can ask for much
        Step(in);
    }
    if (spent) Close();
    return 0;
}
