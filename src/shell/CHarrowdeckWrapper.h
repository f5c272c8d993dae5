// The engine as a plug-in of the maker's own host.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "platform/Shared.h"
#include "shell/CPluginWrapper.h"
#include "shell/PluginInstance.h"
#include "shell/native/TCPPBramblyPlug.h"

namespace korvane {

/// Translates each host call into one call of the engine. To the engine's own parameters it adds the MIDI controllers
/// and the channel pressure, which this host has no other way to send.
class CHarrowdeckWrapper final : public TCPPBramblyPlug, public CPluginWrapper {
public:
    static constexpr int kMixFrames = 65536; // longest block

    CHarrowdeckWrapper(TBramblyHost& owner, std::int32_t tag, const NativeInfo& module);

    /// Answers 0, whatever comes of it.
    std::int32_t Dispatch(std::int32_t id, std::int32_t index, std::intptr_t value) override;
    /// The state's bytes between a tag and the number of the program. What does not begin so changes nothing; of a
    /// block that ends early the engine gets what there is, and the program is the first.
    void SaveRestoreState(NativeStream* stream, std::int32_t save) override;
    void GetName(std::int32_t section, std::int32_t index, std::int32_t value, char* buffer) override;
    std::int32_t HostEvent(std::int32_t kind, float value) override;
    /// Get, then set; the value that it got, else the one that was given. Any thread.
    std::int32_t ProcessParameter(std::int32_t index, std::int32_t value, std::int32_t flags) override;
    /// Hands the engine the source in its own main mix. This engine takes no sound and plays into silence.
    void RenderEffect(const float* source, float* destination, std::int32_t frames) override;
    /// frames  0..kMixFrames
    void RenderGenerator(float* destination, std::int32_t frames) override;
    /// The handle is the key; without an engine or a voice 0.
    std::intptr_t TriggerVoice(NativeVoice* voice, std::intptr_t voiceTag) override;
    void ReleaseVoice(std::intptr_t handle) override;
    void MidiIn(const NativeMidiMessage* message) override;
    void KillAllVoices() override;

    void ParameterAutomated(int index, float value) override;
    CPluginEditor* GetEditor() override { return instance.editor.get(); }
    void BeginEdit(int) override {}
    void EndEdit(int) override {}
    /// This host does not say; but whoever plays beside the thread that made the plug-in plays in real time.
    bool RealTime() override { return std::this_thread::get_id() != maker; }

private:
    struct Voice {
        NativeVoice* record = nullptr; // null: free
        std::intptr_t tag = 0;
    };

    void ShowEditor(std::intptr_t parent);
    void SetSampleRate(std::int32_t rate);
    void SetProgram(std::int32_t program);
    void SaveState(NativeStream& stream);
    void RestoreState(NativeStream& stream);
    void SetExtraParameter(int number, float value);
    void ParameterName(int index, char* buffer);
    void ParameterValue(int index, char* buffer);
    void QueueNote(int key, int velocity); // 0: release
    void Finish(const Voice& voice);
    void Mix(float* destination, int pair, std::int32_t frames) const;

    // The host's other threads. Rate and menu are kept for hosts; nothing here reads them.
    const std::thread::id maker = std::this_thread::get_id();
    std::int32_t sampleRate = 44100;        // Hz
    bool firstStart = true;                 // until the first sample rate
    std::vector<std::string> parameterMenu; // what a host may show for a parameter

    // Any thread.
    Shared<bool> programSetting;                        // the host hears nothing of what that moves
    Shared<float> controllerValues[kNativeControllers]; // 0..1, as the host set them

    // The audio thread.
    const int numPairs;                            // the main mix and the channels
    std::vector<float> mix;                        // of each pair left and right, kMixFrames each
    std::vector<float*> outputs;                   // where these begin
    std::vector<float*> mainOutputs;               // of these the main mix, null for the others
    std::vector<std::uint8_t> outputEnabled;       // of each pair; all of them
    std::array<Voice, CSynthesizer::kKeys> voices; // by their keys

    PluginInstance instance;
};

} // namespace korvane
