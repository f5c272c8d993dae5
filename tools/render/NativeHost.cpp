// One plug-in as a host with the maker's native interface drives it.
#include "render/NativeHost.h"

#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "render/Failure.h"
#include "shell/SMX_Def.h"

namespace korvane::render {

namespace {

constexpr std::int32_t kTag = 1;
constexpr std::uint8_t kTagBytes[] = {'S', 'S', 'D', 'H'};
constexpr std::size_t kHead = sizeof kTagBytes + sizeof(std::uint32_t); // before a state's bytes
constexpr std::size_t kTail = sizeof(std::int32_t);                     // after them

/// What a volume has to be for the plug-in to strike a key so.
float VolumeOf(std::uint8_t velocity)
{
    return static_cast<float>((std::pow(21.0, (velocity + 0.5) / 127.0) - 1.0) / 10.0);
}

/// Rounded up, and neither more nor less where it is on the scale.
std::int32_t OnScale(double value) { return static_cast<std::int32_t>(std::ceil(std::clamp(value, 0.0, 1.0) * 256.0)); }

std::int32_t OnScale(std::uint8_t midiValue) { return OnScale(midiValue / 127.0); }

std::int32_t ControllerOnScale(std::uint8_t number, std::uint8_t value)
{
    constexpr std::uint8_t kPedal = 64;
    if (number == kPedal) return OnScale(value > 64 ? 1.0 : 0.0); // down or up, where MIDI has it so
    return OnScale(value);
}

SMX_Def& Module()
{
    static SMX_Def definition;
    return definition;
}

} // namespace

std::int32_t NativeBytes::Read(void* buffer, std::int32_t size)
{
    const std::size_t count = std::min(bytes.size() - position, static_cast<std::size_t>(std::max(size, 0)));
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(position), count, static_cast<std::uint8_t*>(buffer));
    position += count;
    return static_cast<std::int32_t>(count);
}

std::int32_t NativeBytes::Write(const void* buffer, std::int32_t size)
{
    const std::size_t end = bytes.size();
    bytes.resize(end + static_cast<std::size_t>(size));
    std::memcpy(bytes.data() + end, buffer, static_cast<std::size_t>(size));
    return size;
}

void NativeHost::Load(const std::string& path, double rate, int blockFrames)
{
    library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) throw Failure("cannot load the plug-in '" + path + "': " + dlerror());
    const auto entry = reinterpret_cast<Entry>(dlsym(library, "CreatePlugInstance"));
    if (!entry) throw Failure("'" + path + "' has no native interface");
    Make(entry, rate, blockFrames);
}

void NativeHost::Make(Entry entry, double rate, int blockFrames)
{
    plugin = entry(this, kTag);
    if (!plugin) throw Failure("the plug-in refuses this host");
    const auto pairs = static_cast<std::size_t>(Pairs()), frames = static_cast<std::size_t>(blockFrames);
    interleaved.assign(pairs, std::vector<float>(2 * frames));
    outputs.assign(2 * pairs, std::vector<float>(frames));
    plugin->Dispatch(native_dispatch::SetSampleRate, 0, static_cast<std::intptr_t>(rate));
    Reset();
    playSwitch = FindParameter("TRSNP: Play");
}

NativeHost::~NativeHost()
{
    if (plugin) plugin->Destroy();
    if (library) dlclose(library);
}

void NativeHost::Reset() { plugin->Dispatch(native_dispatch::Reset, 0, 0); }

void NativeHost::Begin()
{
    if (!stateSet) Reset(); // a state resets by itself
}

int NativeHost::Parameters() const { return plugin->info->numParams - kNativeControllers; }

std::string NativeHost::ParameterName(int index) const
{
    char text[256] = "";
    plugin->GetName(native_name::Parameter, index, 0, text);
    return text;
}

std::string NativeHost::ParameterDisplay(int index) const
{
    char text[256] = "";
    plugin->GetName(native_name::ParameterValue, index, 0, text);
    const std::string shown = text;
    return shown.substr(0, shown.find_last_not_of(' ') + 1);
}

void NativeHost::SetParameter(int index, float value)
{
    plugin->ProcessParameter(index, OnScale(static_cast<double>(value)), native_parameter::Set);
}

std::vector<std::uint8_t> NativeHost::GetState()
{
    NativeBytes stream;
    plugin->SaveRestoreState(&stream, 1);
    if (stream.bytes.size() < kHead + kTail) return {};
    return {stream.bytes.begin() + kHead, stream.bytes.end() - kTail};
}

/// The interface has no answer. But of a state that was refused nothing is there afterwards, and one that ended early
/// has become longer.
void NativeHost::SetState(const std::vector<std::uint8_t>& bytes, const std::string& name)
{
    const auto before = GetState();
    NativeBytes stream;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    const std::int32_t program = 0;
    stream.Write(kTagBytes, sizeof kTagBytes);
    stream.Write(&size, sizeof size);
    stream.Write(bytes.data(), static_cast<std::int32_t>(size));
    stream.Write(&program, sizeof program);
    plugin->SaveRestoreState(&stream, 0);
    stateSet = true;
    const auto after = GetState();
    const bool asBefore =
        after == before && !(bytes.size() >= before.size() && std::equal(before.begin(), before.end(), bytes.begin()));
    if (asBefore || after.size() > bytes.size()) throw Failure("the plug-in refuses '" + name + "'");
}

void NativeHost::QueueMidi(int, std::uint8_t status, std::uint8_t data1, std::uint8_t data2)
{
    switch (status & 0xF0) {
    case 0x80: plugin->ReleaseVoice(data1); break;
    case 0x90:
        if (data2 == 0)
            plugin->ReleaseVoice(data1);
        else
            StartVoice(data1, data2);
        break;
    case 0xB0:
        plugin->ProcessParameter(Parameters() + data1, ControllerOnScale(data1, data2), native_parameter::Set);
        break;
    case 0xD0: plugin->ProcessParameter(plugin->info->numParams - 1, OnScale(data1), native_parameter::Set); break;
    default: break;
    }
}

void NativeHost::StartVoice(std::uint8_t key, std::uint8_t velocity)
{
    NativeVoice& voice = voices[key & 0x7Fu];
    voice = {0.0f, VolumeOf(velocity), 100.0f * key};
    plugin->TriggerVoice(&voice, key);
}

void NativeHost::SetTempo(double bpm) { plugin->HostEvent(native_event::Tempo, static_cast<float>(bpm)); }
void NativeHost::SetPlaying(bool running) { SetParameter(playSwitch, running ? 1.0f : 0.0f); }

void NativeHost::Render(int frames)
{
    for (auto& pair : interleaved) std::fill_n(pair.begin(), 2 * frames, 0.0f);
    plugin->RenderGenerator(interleaved[0].data(), frames);
    for (std::size_t n = 0; n < outputs.size(); ++n)
        for (int frame = 0; frame < frames; ++frame)
            outputs[n][static_cast<std::size_t>(frame)] =
                interleaved[n / 2][2 * static_cast<std::size_t>(frame) + n % 2];
}

int NativeHost::Pairs() const { return Module().numOutputPairs; }

std::string NativeHost::PairName(int pair) const
{
    char name[512];
    Module().GetOutputName(pair, name);
    return name;
}

const float* NativeHost::Output(int channel) const { return outputs[static_cast<std::size_t>(channel)].data(); }

std::intptr_t NativeHost::HostDispatch(std::int32_t, std::int32_t, std::int32_t, std::intptr_t) { return 0; }
void NativeHost::HostParameterChanged(std::int32_t, std::int32_t, std::int32_t) {}
void NativeHost::HostShowHint(std::int32_t, const char*) {}
void NativeHost::HostVoiceFinished(std::intptr_t, std::intptr_t) {}
std::intptr_t NativeHost::HostVoiceNotification(std::intptr_t, std::int32_t, std::intptr_t, std::intptr_t) { return 0; }
void NativeHost::HostLockMix() { nextMix = 1; }
void NativeHost::HostUnlockMix() {}
float* NativeHost::HostGetMixBuffer(std::int32_t, std::int32_t)
{
    return nextMix < interleaved.size() ? interleaved[nextMix++].data() : nullptr;
}

} // namespace korvane::render
