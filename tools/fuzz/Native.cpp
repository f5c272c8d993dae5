// The native plug-in under a host that asks for anything, in any order; but its pointers are null or lead to what is
// promised.
#include <cmath>

#include "fuzz/NativeHost.h"
#include "shell/CHarrowdeckWrapper.h"
#include "shell/CPluginDefinition.h"
#include "shell/ModuleInfo.h"

using namespace korvane;
using namespace korvane::fuzz;

namespace {

NativeHost owner;
TBramblyPlug* plugin = nullptr;
bool spent = false; // another sample rate: the next input gets a new plug-in

void Close()
{
    if (plugin) plugin->Destroy();
    plugin = nullptr;
    spent = false;
}

void Block(ByteReader& in)
{
    const auto kind = in.Read<std::uint8_t>();
    const int frames = in.Read<std::int16_t>() % 2000 * (kind == 255 ? 40 : 1); // then more than there is room for
    owner.mixes.assign(1, std::vector<float>(2 * static_cast<std::size_t>(std::max(frames, 0)), 0.5f));
    const auto source = owner.mixes[0];
    float* const main = kind & 1 ? nullptr : owner.mixes[0].data();
    if (kind % 8 < 6) {
        plugin->RenderGenerator(main, frames);
        Require(owner.voices == 0, "a voice outlives its block");
    } else {
        plugin->RenderEffect(kind & 8 ? main : kind & 16 ? nullptr : source.data(), main, frames);
    }
    for (const auto& mix : owner.mixes)
        for (const float x : mix) Require(std::isfinite(x), "sound that is no number");
}

void Parameter(ByteReader& in)
{
    const std::int32_t index = 2 * (Number(in) % 1000), value = Number(in), flags = Number(in);
    plugin->ProcessParameter(index + (value & 1), flags & native_parameter::Fine ? 256 * (value % 1000) : value, flags);
}

Bytes Saved()
{
    NativeState state;
    plugin->SaveRestoreState(&state, 1);
    return state.bytes;
}

void Restore(const Bytes& bytes, int lie = NativeState::None)
{
    NativeState state(bytes, lie);
    plugin->SaveRestoreState(&state, 0);
}

/// The plug-in's own state comes back to it with some bytes changed; and what it saves then, as it is.
void State(ByteReader& in)
{
    const int lie = in.Read<std::uint8_t>() % 8;
    const Bytes changes = Some(in);
    Restore(Altered(Saved(), changes.data(), changes.size()), lie);
    const Bytes saved = Saved();
    Restore(saved);
    Require(Saved() == saved, "what was saved is restored as something else");
}

void Dispatch(ByteReader& in)
{
    const std::int32_t id = Number(in), index = Number(in);
    std::int64_t value = in.Read<std::int8_t>() < 0 ? in.Read<std::int64_t>() : Number(in);
    if (id == native_dispatch::ShowEditor) value = 0; // there is no window to open in
    if (id == native_dispatch::SetSampleRate) spent = true;
    const auto rate = static_cast<std::int32_t>(value);
    if (rate > 96000 && rate < 2000000) value = 96000; // an instrument takes a kilobyte for each hertz
    plugin->Dispatch(id, index, static_cast<std::intptr_t>(value));
}

void Name(ByteReader& in)
{
    const std::int32_t section = Number(in) % 8, index = Number(in), value = Number(in);
    Bytes text(256);
    plugin->GetName(section, index, value, value == 7 ? nullptr : reinterpret_cast<char*>(text.data()));
}

void Trigger(ByteReader& in)
{
    auto* voice = new NativeVoice{in.Read<float>(), in.Read<float>(), in.Read<float>()};
    ++owner.voices;
    const auto handle = plugin->TriggerVoice(voice, reinterpret_cast<std::intptr_t>(voice));
    Require(handle >= 0 && handle < 128, "a voice without a key");
}

/// Little things, all at once.
void Little(ByteReader& in)
{
    const std::int32_t number = Number(in);
    const NativeMidiMessage message{in.Read<std::uint8_t>(), in.Read<std::uint8_t>(), in.Read<std::uint8_t>(), 0};
    plugin->MidiIn(number == 0 ? nullptr : &message);
    plugin->HostEvent(number % 4, in.Read<float>());
    plugin->KillVoice(number);
    if (number % 8 == 0) plugin->KillAllVoices();
    plugin->TriggerVoice(nullptr, number);
    plugin->SaveRestoreState(nullptr, number);
    plugin->Idle(plugin->Reserved13() + plugin->Reserved14());
    plugin->Reserved15(number);
    plugin->Reserved16(number);
    plugin->Reserved18(number, number);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr void (*kCalls[])(ByteReader&) = {Block, Block, Parameter, State, Dispatch, Name, Trigger, Little};
    const Bytes& state = Instrument::Get().state; // with its content folder around it
    static const ModuleInfo about(*Definition());
    static const std::shared_ptr<void> end(nullptr, [](void*) { Close(); });
    if (!plugin) plugin = new CHarrowdeckWrapper(owner, 1, about.record);
    const auto length = static_cast<std::int32_t>(state.size());
    NativeState block;
    block.Write("SSDH", 4);
    block.Write(&length, sizeof length);
    block.Write(state.data(), length);
    Restore(block.bytes);
    plugin->ProcessParameter(param::Play, 256, native_parameter::Set);
    ByteReader in(data, static_cast<std::int32_t>(size));
    for (int n = 0; n < 200 && in.Ok() && in.Left() > 0; ++n) {
        const Limits limits(size); // of each call: a byte can ask for much
        kCalls[in.Read<std::uint8_t>() % std::size(kCalls)](in);
    }
    plugin->RenderGenerator(nullptr, 0); // no voice waits for the next input
    if (spent) Close();
    return 0;
}
