// One plug-in as a host with the maker's native interface drives it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "render/Host.h"
#include "shell/native/TBramblyPlug.h"

namespace korvane::render {

/// Bytes in memory, written at their end and read from where the last read ended.
class NativeBytes : public NativeStream {
public:
    std::int32_t Read(void* buffer, std::int32_t size) override;
    std::int32_t Write(const void* buffer, std::int32_t size) override;

    std::vector<std::uint8_t> bytes;
    std::size_t position = 0;
};

/// The interface has no transport, so that playing is the plug-in's own play switch, and does not tell its outputs,
/// which are taken for Korvane's. The plug-in asks for a mix buffer once for each of its channels, and each gets one of
/// its own, whatever the target.
///
/// With every reset the plug-in draws the phases of its oscillators anew. It is reset as often as under the other host,
/// so that both render the same.
class NativeHost : public Host, public TBramblyHost {
public:
    using Entry = TBramblyPlug* (*)(TBramblyHost* host, std::int32_t tag);

    NativeHost() = default;
    ~NativeHost() override;
    NativeHost(const NativeHost&) = delete;

    // Once, one of both. Throw Failure when the file is no plug-in or refuses this host.
    void Load(const std::string& path, double rate, int blockFrames);
    void Make(Entry entry, double rate, int blockFrames);

    int Parameters() const override;
    std::string ParameterName(int index) const override;
    std::string ParameterDisplay(int index) const override;
    /// value  rounded up to the interface's 256 steps, so that positions of switches stay what they are
    void SetParameter(int index, float value) override;
    std::vector<std::uint8_t> GetState() override;
    void SetState(const std::vector<std::uint8_t>& bytes, const std::string& name) override;

    void Begin() override;
    bool PlacesEvents() const override { return false; }
    /// Notes as voices, controllers and channel pressure as parameters; there is no way for other messages. Values of
    /// 7 bits are rounded up to the interface's 256 steps: 0 and 127 are what they are by MIDI, the others up to 1/256
    /// more; numbers of banks and the pedal's up and down come through. Controllers act at once, notes with the next
    /// block, so that a controller overtakes the notes queued before it.
    void QueueMidi(int frame, std::uint8_t status, std::uint8_t data1, std::uint8_t data2) override;
    void SetTempo(double bpm) override; // told in single precision
    void SetPosition(double) override {}
    void SetPlaying(bool running) override;
    void Render(int frames) override;

    int Pairs() const override;
    std::string PairName(int pair) const override;
    const float* Output(int channel) const override;

    // What the plug-in asks for.

    std::intptr_t HostDispatch(std::int32_t tag, std::int32_t id, std::int32_t index, std::intptr_t value) override;
    void HostParameterChanged(std::int32_t tag, std::int32_t index, std::int32_t value) override;
    void HostShowHint(std::int32_t tag, const char* text) override;
    void HostVoiceFinished(std::intptr_t voiceTag, std::intptr_t reserved) override;
    std::intptr_t HostVoiceNotification(std::intptr_t voiceTag, std::int32_t id, std::intptr_t a,
                                        std::intptr_t b) override;
    float* HostGetMixBuffer(std::int32_t tag, std::int32_t target) override;
    void HostLockMix() override;
    void HostUnlockMix() override;

    TBramblyPlug* plugin = nullptr;

private:
    void Reset();
    void StartVoice(std::uint8_t key, std::uint8_t velocity);

    std::array<NativeVoice, 128> voices{}; // of each key
    void* library = nullptr;
    bool stateSet = false;
    int playSwitch = 0;                          // index of the parameter
    std::vector<std::vector<float>> interleaved; // of the main mix and each channel, as the plug-in adds to them
    std::vector<std::vector<float>> outputs;     // left and right apart
    std::size_t nextMix = 0;                     // channel that gets the next mix buffer, from 1
};

} // namespace korvane::render
