// One plug-in as a VST 2.4 host drives it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "shell/vst2/AEffect.h"

namespace korvane::render {

/// Loads a plug-in, hands it events, time and transport, and renders it block by block. One thread; states, parameters,
/// the editor and the format may come from another while it renders.
class PluginHost {
public:
    /// Throws Failure when the file is no plug-in or refuses this host.
    PluginHost(const std::string& path, double rate, int blockFrames);
    ~PluginHost();
    PluginHost(const PluginHost&) = delete;

    /// A new rate and longest block. Not while it renders.
    void SetFormat(double rate, int blockFrames);
    void SetRate(double rate) { Ask(request::SetSampleRate, 0, 0, nullptr, static_cast<float>(rate)); }
    void SetProgram(int index) { Ask(request::SetProgram, 0, index); }
    /// Tells the plug-in that its blocks must wait for nothing.
    void SetRealTime(bool strict) { realTime = strict; }

    /// The index of a parameter by what the user calls it, see FindName.
    int FindParameter(const std::string& name) const;
    void SetParameter(int index, float value) { effect->setParameter(effect, index, value); }
    /// "name = value as the plug-in shows it".
    std::string ParameterText(int index) const;
    std::vector<std::uint8_t> GetState();
    /// Throws Failure when the plug-in refuses the bytes.
    void SetState(const std::vector<std::uint8_t>& bytes, const std::string& name);

    /// Pixels, height and width; zeros where the plug-in has no editor.
    std::pair<int, int> EditorSize() const;
    /// parent  the number of a window of the system's; whether the editor is open in it
    bool OpenEditor(void* parent) { return Ask(request::EditorOpen, 0, 0, parent) != 0; }
    void CloseEditor() { Ask(request::EditorClose); }

    /// To be played in the next block, in order of their frames.
    void QueueMidi(int frame, std::uint8_t status, std::uint8_t data1, std::uint8_t data2);
    void SetTempo(double bpm) { time.tempo = bpm; }
    void SetPosition(double quarterNotes) { time.ppqPosition = quarterNotes; }
    void SetPlaying(bool running);
    /// Renders into Output; frames up to blockFrames. Asks for no memory where events are as many as before.
    void Render(int frames);

    int Parameters() const { return effect->numParams; }
    int Pairs() const { return effect->numOutputs / 2; }
    std::string PairName(int pair) const;
    const float* Output(int channel) const { return outputs[static_cast<std::size_t>(channel)].data(); }

private:
    void Start(double rate, int blockFrames);
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
