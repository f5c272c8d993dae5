// The instrument's MIDI side: links, pads, note play, and the file in which links survive.
#include <array>
#include <cstdio>
#include <cstring>

#include "content/CFileStreamer.h"
#include "engine/KVSynth.h"

namespace korvane {

namespace {

constexpr int kPitchWheel = 128;
constexpr int kFirstKeySource = 129;
constexpr std::size_t kLinkBytes = 2 * KVSynth::kSources;
constexpr std::size_t kLinkMapBytes = kLinkBytes + KVSynth::kSources;

} // namespace

void KVSynth::GetLastSourceText(char* buffer) const
{
    const int source = lastSource;
    if (source < 0)
        std::strcpy(buffer, "---");
    else if (source < kPitchWheel)
        std::snprintf(buffer, 256, "CC %d", source);
    else if (source == kPitchWheel)
        std::strcpy(buffer, "Pitch Wheel");
    else
        std::snprintf(buffer, 256, "Key %d Velocity", source - kFirstKeySource);
}

void KVSynth::GetLastParameterText(char* buffer)
{
    const int parameter = lastParameter;
    std::strcpy(buffer, "---");
    if (parameter >= 0) GetParameterName(parameter, buffer);
}

void KVSynth::NoteEvent(std::int8_t key, std::int8_t velocity)
{
    if (key < 0) return;
    const float value = static_cast<float>(velocity) / 127.0f;
    if (velocity > 0) {
        engine->liveVelocity = value;
        lastSource = kFirstKeySource + key;
    }
    const int linked = links[kFirstKeySource + key];
    const int pad = key - kFirstNote;
    if (linked >= 0) {
        SetParameter(linked, value);
    } else if (pad >= 0 && pad < kNotes) {
        keyTrigger = true; // the pad sounds at the key's velocity
        SetParameter(param::Step1 + pad, value);
        keyTrigger = false;
    } else if (velocity > 0) {
        engine->StepButton(pad);
    } else {
        engine->ReleaseNote(engine->selectedChannel, key);
    }
}

void KVSynth::PitchBendChanged()
{
    lastSource = kPitchWheel;
    const float bend = static_cast<float>(pitchBend);
    engine->livePitchBend = bend;
    if (links[kPitchWheel] >= 0) SetParameter(links[kPitchWheel], bend);
}

void KVSynth::ControllerChanged(std::int8_t number)
{
    if (number < 0) return;
    lastSource = number;
    const float value = static_cast<float>(controllers[number]);
    if (number == 1) engine->liveModWheel = value;
    const int linked = links[number];
    if (linked < 0) return;
    if (ignoreValue[number]) {
        SetParameter(linked, 1.0f);
        SetParameter(linked, 0.0f);
    } else {
        SetParameter(linked, value);
    }
}

void KVSynth::ChannelPressureChanged() { engine->livePressure = static_cast<float>(channelPressure); }

void KVSynth::Link(bool link)
{
    const int source = lastSource;
    const int parameter = lastParameter;
    if (source < 0 || parameter < 0) return;
    links[source] = static_cast<std::int16_t>(link ? parameter : -1);
    if (!link) ignoreValue[source] = std::uint8_t{0};
}

void KVSynth::SetIgnoreValue(bool on)
{
    const int source = lastSource;
    if (source < 0 || source >= kPitchWheel || links[source] != lastParameter) return;
    ignoreValue[source] = static_cast<std::uint8_t>(on);
}

void KVSynth::ReadLinkMap()
{
    char path[1100];
    std::snprintf(path, sizeof path, "%s\\linkmap", folders.root);
    CFileStreamer file;
    if (!file.Open(path)) return;
    std::array<std::uint8_t, kLinkMapBytes> bytes{};
    const std::size_t present = std::min<std::size_t>(bytes.size(), static_cast<std::size_t>(file.fileSize));
    file.ReadBlock(bytes.data(), static_cast<std::int32_t>(present));
    for (std::size_t n = 0; n < kSources && 2 * n + 1 < present; ++n)
        links[n] = static_cast<std::int16_t>(bytes[2 * n] | bytes[2 * n + 1] << 8);
    for (std::size_t n = 0; n < kSources && kLinkBytes + n < present; ++n) ignoreValue[n] = bytes[kLinkBytes + n];
}

void KVSynth::WriteLinkMap()
{
    char path[1100];
    std::snprintf(path, sizeof path, "%s\\linkmap", folders.root);
    std::array<std::uint8_t, kLinkMapBytes> bytes{};
    for (std::size_t n = 0; n < kSources; ++n) {
        const auto entry = static_cast<std::uint16_t>(links[n]);
        bytes[2 * n] = static_cast<std::uint8_t>(entry & 0xFF);
        bytes[2 * n + 1] = static_cast<std::uint8_t>(entry >> 8);
        bytes[kLinkBytes + n] = ignoreValue[n];
    }
    CFileStreamer file;
    if (file.Create(path))
        file.Write(bytes.data(), static_cast<std::int32_t>(bytes.size())); // a read-only root is no error
}

} // namespace korvane
