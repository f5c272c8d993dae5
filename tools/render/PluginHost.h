// One plug-in as a VST 2.4 host drives it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "render/Host.h"
#include "shell/vst2/AEffect.h"

namespace korvane::render {

/// The format may come from another thread while it renders, too.
class PluginHost : public Host {
public:
    /// Throws Failure when the file is no plug-in or refuses this host.
    PluginHost(const std::string& path, double rate, int blockFrames);
    ~PluginHost() override;
    PluginHost(const PluginHost&) = delete;

    /// A new rate and longest block. Not while it renders.
    void SetFormat(double rate, int blockFrames);
    void SetRate(double rate) { Ask(request::SetSampleRate, 0, 0, nullptr, static_cast<float>(rate)); }
    void SetProgram(int index) { Ask(request::SetProgram, 0, index); }
    /// Tells the plug-in that its blocks must wait for nothing.
    void SetRealTime(bool strict) { realTime = strict; }

    int Parameters() const override { return effect->numParams; }
    std::string ParameterName(int index) const override { return Text(request::GetParameterName, index); }
    std::string ParameterDisplay(int index) const override { return Text(request::GetParameterDisplay, index); }
    void SetParameter(int index, float value) override { effect->setParameter(effect, index, value); }
    std::vector<std::uint8_t> GetState() override;
    void SetState(const std::vector<std::uint8_t>& bytes, const std::string& name) override;

    /// Pixels, height and width; zeros where the plug-in has no editor.
    std::pair<int, int> EditorSize() const;
    /// parent  the number of a window of the system's; whether the editor is open in it
    bool OpenEditor(void* parent) { return Ask(request::EditorOpen, 0, 0, parent) != 0; }
    void CloseEditor() { Ask(request::EditorClose); }

    void Begin() override {}
    bool PlacesEvents() const override { return true; }
    void QueueMidi(int frame, std::uint8_t status, std::uint8_t data1, std::uint8_t data2) override;
    void SetTempo(double bpm) override { time.tempo = bpm; }
    void SetPosition(double quarterNotes) override { time.ppqPosition = quarterNotes; }
    void SetPlaying(bool running) override;
    void Render(int frames) override;

    int Pairs() const override { return effect->numOutputs / 2; }
    std::string PairName(int pair) const override;
    const float* Output(int channel) const override { return outputs[static_cast<std::size_t>(channel)].data(); }

private:
    void Start(double rate, int blockFrames);
    std::string Text(std::int32_t opcode, int index) const;
    static std::intptr_t Callback(AEffect*, std::int32_t opcode, std::int32_t, std::intptr_t, void* pointer, float);
    std::intptr_t Ask(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0, void* pointer = nullptr,
                      float option = 0.0f) const
    {
        return effect->dispatcher(effect, opcode, index, value, pointer, option);
    }

    VstTimeInfo time{};
    bool realTime = false;
    void* library = nullptr;
    AEffect* effect = nullptr;
    std::vector<std::vector<float>> inputs, outputs;
    std::vector<float*> in, out; // where these begin
    std::vector<VstMidiEvent> events;
    std::vector<std::uint8_t> list; // as the plug-in gets them
};

} // namespace korvane::render
