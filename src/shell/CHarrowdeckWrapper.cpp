// The engine as a plug-in of the maker's own host.
#include "shell/CHarrowdeckWrapper.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <exception>
#include <utility>

#include "platform/Numbers.h"
#include "shell/CPluginDefinition.h"

namespace korvane {

namespace {

constexpr char kStateTag[] = {'S', 'S', 'D', 'H'};
constexpr int kPressure = kNativeControllers - 1; // among the controllers

// 256 is 1.0.
std::int32_t ToHost(float value) { return Truncate(value * 256.0f); }
float FromHost(std::int32_t value) { return Clamp(static_cast<float>(value) / 256.0f, 0.0f, 1.0f); }

bool IsInstrument() { return Definition()->isEffect == 0; }

/// Of a parameter that stands for a controller the controller's number; -1 for the engine's own.
int ControllerOf(int index)
{
    const int first = Definition()->numHostParams;
    return index < first ? -1 : index - first;
}

int KeyOf(const NativeVoice& voice) { return Clamp(Truncate(static_cast<double>(voice.pitch) * 0.01), 0, 127); }

/// A volume of 2 is as loud as keys can be struck.
int VelocityOf(const NativeVoice& voice)
{
    const double volume = static_cast<double>(voice.volume);
    return Clamp(Truncate(127.0 * std::log(1.0 + 10.0 * volume) / std::log(21.0)), 0, 127);
}

/// Leaves the value where the stream has not all of it.
template <class Value>
bool ReadValue(NativeStream& stream, Value& value)
{
    Value read;
    if (stream.Read(&read, sizeof read) != static_cast<std::int32_t>(sizeof read)) return false;
    value = read;
    return true;
}

/// No more than there is, whatever size the stream itself tells.
std::vector<std::uint8_t> ReadBytes(NativeStream& stream, std::uint32_t size)
{
    constexpr std::size_t kPiece = 0x10000;
    std::vector<std::uint8_t> bytes;
    while (bytes.size() < size) {
        const std::size_t have = bytes.size(), asked = std::min(kPiece, size - have);
        bytes.resize(have + asked);
        const std::int32_t came = stream.Read(bytes.data() + have, static_cast<std::int32_t>(asked));
        bytes.resize(have + std::min(asked, static_cast<std::size_t>(std::max(came, 0))));
        if (came <= 0) break;
    }
    return bytes;
}

} // namespace

CHarrowdeckWrapper::CHarrowdeckWrapper(TBramblyHost& owner, std::int32_t tag, const NativeInfo& module)
    : TCPPBramblyPlug(owner, tag, module), numPairs(Definition()->numOutputPairs),
      mix(2 * static_cast<std::size_t>(numPairs) * kMixFrames), outputEnabled(static_cast<std::size_t>(numPairs), 1),
      instance(this)
{
    for (int n = 0; n < 2 * numPairs; ++n) outputs.push_back(mix.data() + n * static_cast<std::ptrdiff_t>(kMixFrames));
    mainOutputs.resize(outputs.size());
    std::copy_n(outputs.begin(), 2, mainOutputs.begin());
    instance.CreateEditor();
    if (IsInstrument()) host->HostDispatch(hostTag, native_request::Instrument, 0, 1);
}

std::int32_t CHarrowdeckWrapper::Dispatch(std::int32_t id, std::int32_t, std::intptr_t value)
{
    try {
        switch (id) {
        case native_dispatch::ShowEditor: ShowEditor(value); break;
        case native_dispatch::Reset:
            if (instance.engine) instance.engine->Reset();
            break;
        case native_dispatch::SetSampleRate: SetSampleRate(static_cast<std::int32_t>(value)); break;
        default: break;
        }
    } catch (const std::exception&) { // out of memory: the request is not carried out
    }
    return 0;
}

void CHarrowdeckWrapper::ShowEditor(std::intptr_t parent)
{
    if (parent == 0)
        instance.CloseEditor();
    else
        instance.OpenEditor(reinterpret_cast<void*>(parent));
    editorHandle = parent != 0 && instance.editor ? instance.editor->Handle() : nullptr;
}

void CHarrowdeckWrapper::SetSampleRate(std::int32_t rate)
{
    sampleRate = rate;
    const bool first = std::exchange(firstStart, false);
    if (!instance.engine) return;
    instance.engine->SetSampleRate(rate);
    if (first) SetProgram(0);
}

// State

void CHarrowdeckWrapper::SaveRestoreState(NativeStream* stream, std::int32_t save)
{
    if (!stream) return;
    try {
        save != 0 ? SaveState(*stream) : RestoreState(*stream);
    } catch (const std::exception&) { // out of memory: nothing is saved or changed
    }
}

void CHarrowdeckWrapper::SaveState(NativeStream& stream)
{
    const std::vector<std::uint8_t> image = instance.Chunk(false);
    const auto size = static_cast<std::uint32_t>(image.size());
    stream.Write(kStateTag, sizeof kStateTag);
    stream.Write(&size, sizeof size);
    if (image.empty()) return;
    stream.Write(image.data(), static_cast<std::int32_t>(size));
    const std::int32_t program = instance.engine->CurrentProgram();
    stream.Write(&program, sizeof program);
}

void CHarrowdeckWrapper::RestoreState(NativeStream& stream)
{
    std::array<char, sizeof kStateTag> tag{};
    std::uint32_t size = 0;
    if (!ReadValue(stream, tag) || !std::equal(tag.begin(), tag.end(), kStateTag)) return;
    if (!ReadValue(stream, size) || size == 0) return;
    const std::vector<std::uint8_t> image = ReadBytes(stream, size);
    std::int32_t program = 0;
    ReadValue(stream, program);
    if (!instance.engine) return;
    const auto put = [&] { return instance.SetChunk(false, image.data(), std::ssize(image)) != 0; };
    const bool whole = put();
    SetProgram(program);
    // The program moves the external controls to where they stand, and they what they are bound to.
    if (whole && instance.Chunk(false) != image) put();
    for (int n = 0; n < Definition()->numHostParams; ++n) ParameterAutomated(n, instance.engine->GetParameter(n));
}

/// Without the host's hearing of it.
void CHarrowdeckWrapper::SetProgram(std::int32_t program)
{
    programSetting = true;
    instance.engine->SetProgram(std::clamp(program, 0, std::max(Definition()->numPrograms - 1, 0)));
    programSetting = false;
}

// Parameters

std::int32_t CHarrowdeckWrapper::ProcessParameter(std::int32_t index, std::int32_t value, std::int32_t flags)
{
    const int extra = ControllerOf(index);
    if (index < 0 || extra >= kNativeControllers) return value;
    if (flags & native_parameter::Fine) value = static_cast<std::int32_t>((std::int64_t{value} * 256) >> 16);
    if (flags & native_parameter::Get) {
        if (extra >= 0)
            value = ToHost(controllerValues[extra]);
        else
            value = instance.engine ? ToHost(instance.engine->GetParameter(index)) : 0;
    }
    if (flags & native_parameter::Set) {
        if (extra >= 0)
            SetExtraParameter(extra, FromHost(value));
        else
            instance.SetParameter(index, FromHost(value));
    }
    return value;
}

void CHarrowdeckWrapper::SetExtraParameter(int number, float value)
{
    controllerValues[number] = value;
    if (!instance.engine) return;
    if (number == kPressure)
        instance.engine->MoveChannelPressure(static_cast<double>(value));
    else
        instance.engine->MoveController(number, static_cast<double>(value));
}

void CHarrowdeckWrapper::GetName(std::int32_t section, std::int32_t index, std::int32_t, char* buffer)
{
    if (!buffer) return;
    CSynthesizer* const engine = instance.engine.get();
    switch (section) {
    case native_name::Parameter: ParameterName(index, buffer); break;
    case native_name::ParameterValue: ParameterValue(index, buffer); break;
    case native_name::Extra:
        if (engine) engine->GetExtraName(index, buffer);
        break;
    case native_name::Program:
        if (engine) engine->GetProgramName(0, buffer);
        break;
    default: break;
    }
}

void CHarrowdeckWrapper::ParameterName(int index, char* buffer)
{
    const int extra = ControllerOf(index);
    if (extra < 0) {
        if (instance.engine) instance.engine->GetParameterName(index, buffer);
    } else if (extra == kPressure) {
        std::strcpy(buffer, "Chn. Aftertouch");
    } else if (extra < kPressure) {
        std::sprintf(buffer, "MIDI CC %d", extra);
    }
}

void CHarrowdeckWrapper::ParameterValue(int index, char* buffer)
{
    const int extra = ControllerOf(index);
    if (extra < 0) {
        if (!instance.engine) return;
        char display[256] = "", label[256] = "";
        instance.engine->GetParameterDisplay(index, display);
        instance.engine->GetParameterLabel(index, label);
        std::snprintf(buffer, 256, "%.128s %.126s", display, label); // no byte more than the buffer has
    } else if (extra < kNativeControllers) {
        std::sprintf(buffer, "%d", Truncate(controllerValues[extra] * 127.0f));
    }
}

void CHarrowdeckWrapper::ParameterAutomated(int index, float value)
{
    CSynthesizer* const engine = instance.engine.get();
    if (!PluginInstance::IsAutomated(index) || !engine || programSetting) return;
    host->HostParameterChanged(hostTag, index, ToHost(value));
    char name[256] = "", display[256] = "", label[256] = "", hint[400];
    engine->GetParameterName(index, name);
    engine->GetParameterDisplay(index, display);
    engine->GetParameterLabel(index, label);
    std::snprintf(hint, sizeof hint, "%.128s %.128s %.128s", name, display, label);
    host->HostShowHint(hostTag, hint);
}

std::int32_t CHarrowdeckWrapper::HostEvent(std::int32_t kind, float value)
{
    if (kind == native_event::Tempo && instance.engine) instance.engine->SetTempo(static_cast<double>(value));
    return 0;
}

// The audio thread

std::intptr_t CHarrowdeckWrapper::TriggerVoice(NativeVoice* record, std::intptr_t voiceTag)
{
    if (!instance.engine || !record) return 0;
    const int key = KeyOf(*record);
    Finish(std::exchange(voices[static_cast<std::size_t>(key)], {record, voiceTag}));
    QueueNote(key, VelocityOf(*record));
    host->HostVoiceNotification(voiceTag, TBramblyHost::kVoiceTriggered, 0, 0);
    return key;
}

void CHarrowdeckWrapper::ReleaseVoice(std::intptr_t handle)
{
    if (handle >= 0 && handle < std::ssize(voices)) QueueNote(static_cast<int>(handle), 0);
}

void CHarrowdeckWrapper::KillAllVoices()
{
    for (int key = 0; key < std::ssize(voices); ++key) KillVoice(key);
}

void CHarrowdeckWrapper::QueueNote(int key, int velocity)
{
    if (!instance.engine) return;
    instance.engine->QueueEvent(0x90, static_cast<std::uint8_t>(key), static_cast<std::uint8_t>(velocity), 0, 0);
}

/// The engine keeps nothing of the host's voices: they end with the block that starts them, and notes with their key.
void CHarrowdeckWrapper::Finish(const Voice& voice)
{
    if (voice.record) host->HostVoiceFinished(voice.tag, 0);
}

void CHarrowdeckWrapper::MidiIn(const NativeMidiMessage* message)
{
    const int port = instance.engine ? instance.engine->GetMidiPort() : -1;
    if (port < 0 || !message || message->port != port) return;
    instance.engine->QueueEvent(message->status, message->data1, message->data2, 0, 0);
}

void CHarrowdeckWrapper::RenderGenerator(float* destination, std::int32_t frames)
{
    CSynthesizer* const engine = instance.engine.get();
    if (!engine) return;
    frames = std::clamp(frames, 0, kMixFrames);
    engine->ProcessBlock(nullptr, outputs.data(), frames, true);
    for (Voice& voice : voices) Finish(std::exchange(voice, {}));
    if (IsInstrument()) host->HostLockMix();
    for (int pair = 0; pair < numPairs; ++pair) {
        if (!outputEnabled[static_cast<std::size_t>(pair)]) continue;
        Mix(pair == 0 ? destination : host->HostGetMixBuffer(hostTag, engine->GetOutputTarget(pair - 1)), pair, frames);
    }
    if (IsInstrument()) host->HostUnlockMix();
}

/// destination  interleaved stereo; null: nobody listens
void CHarrowdeckWrapper::Mix(float* destination, int pair, std::int32_t frames) const
{
    if (!destination) return;
    const float* const* const sides = outputs.data() + 2 * pair;
    const float *const left = sides[0], *const right = sides[1];
    for (std::int32_t n = 0; n < frames; ++n) {
        destination[2 * n] += left[n];
        destination[2 * n + 1] += right[n];
    }
}

void CHarrowdeckWrapper::RenderEffect(const float* source, float* destination, std::int32_t frames)
{
    if (!instance.engine || !source || !destination) return;
    frames = std::clamp(frames, 0, kMixFrames);
    float *const left = outputs[0], *const right = outputs[1];
    for (std::int32_t n = 0; n < frames; ++n) {
        left[n] = source[2 * n];
        right[n] = source[2 * n + 1];
    }
    instance.engine->ProcessBlock(mainOutputs.data(), mainOutputs.data(), frames, false); // in place
    for (std::int32_t n = 0; n < frames; ++n) {
        destination[2 * n] = left[n];
        destination[2 * n + 1] = right[n];
    }
}

} // namespace korvane
