// One plug-in as a VST 2.4 host drives it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "shell/vst2/AEffect.h"

namespace korvane::render {

/// Loads a plug-in, hands it events, time and transport, and renders it block by block. One thread.
class PluginHost {
public:
    /// Throws Failure when the file is no plug-in or refuses this host.
    PluginHost(const std::string& path, double rate, int blockFrames);
    ~PluginHost();
    PluginHost(const PluginHost&) = delete;

    /// The index of a parameter by what the user calls it, see FindName.
    int FindParameter(const std::string& name) const;
    void SetParameter(int index, float value) { effect->setParameter(effect, index, value); }
    /// "name = value as the plug-in shows it".
    std::string ParameterText(int index) const;
    std::vector<std::uint8_t> GetState();
    /// Throws Failure when the plug-in refuses the bytes.
    void SetState(const std::vector<std::uint8_t>& bytes, const std::string& name);

    /// To be played in the next block, in order of their frames.
    void QueueMidi(int frame, std::uint8_t status, std::uint8_t data1, std::uint8_t data2);
    void SetTempo(double bpm) { time.tempo = bpm; }
    void SetPosition(double quarterNotes) { time.ppqPosition = quarterNotes; }
    void SetPlaying(bool running);
    /// Renders into Output; frames up to blockFrames.
    void Render(int frames);

    int Pairs() const { return effect->numOutputs / 2; }
    std::string PairName(int pair) const;
    const float* Output(int channel) const { return outputs[static_cast<std::size_t>(channel)].data(); }

private:
    static std::intptr_t Callback(AEffect*, std::int32_t opcode, std::int32_t, std::intptr_t, void* pointer, float);
    std::intptr_t Ask(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0, void* pointer = nullptr,
                      float option = 0.0f) const
    {
        return effect->dispatcher(effect, opcode, index, value, pointer, option);
    }

    static VstTimeInfo time; // the callback before creation has no plug-in to ask for
    void* library = nullptr;
    AEffect* effect = nullptr;
    std::vector<std::vector<float>> inputs, outputs;
    std::vector<VstMidiEvent> events;
};

} // namespace korvane::render
