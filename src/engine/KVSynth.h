// The groove engine as a synthesizer: host parameters and MIDI into the engine core.
#pragma once

#include <cstdint>
#include <memory>

#include "content/ContentFolders.h"
#include "engine/GrooveEngine.h"
#include "engine/MidiLinks.h"
#include "framework/CSynthesizer.h"
#include "framework/ParameterTable.h"
#include "platform/Shared.h"

namespace korvane {

/// Routes what hosts, editor and MIDI send to where its row in ParameterBindings says. What reads and writes files
/// comes on top of it, in KVInstrument.
class KVSynth : public CSynthesizer {
public:
    explicit KVSynth(CPluginWrapper* bridge);
    ~KVSynth() override;

    void NoteEvent(std::int8_t key, std::int8_t velocity) override;
    void PitchBendChanged() override;
    void ControllerChanged(std::int8_t number) override;
    void ChannelPressureChanged() override;
    float GetParameter(int index) override;
    float GetParameterDefault(int index) override;
    void GetParameterDisplay(int index, char* buffer) override;
    void GetParameterLabel(int index, char* buffer) override;
    void ProcessMultiOut(float** inputs, float** outputs, int frames) override;
    void ParameterChanged(int index, float value) override;
    void Reset() override;
    void SetSampleRate(double newRate) override;
    void SetPlaying(bool running) override;

    /// The name of the parameter that moved last, "---" before any has.
    /// buffer  256 bytes
    void GetLastParameterText(char* buffer);
    /// Reports every parameter's value as automation. Any thread.
    void ReportParameters();

    std::unique_ptr<GrooveEngine> engine;
    ContentFolders folders; // as they are at construction
    MidiLinks links;

protected:
    void RefreshEditor();
    /// Does what other threads have asked the transport for, before what comes next; nothing for who has not the engine
    /// to itself.
    void ServeOrders();
    void FollowHostTime(); // tempo and position into the engine core; who has the engine to itself

private:
    bool Acts(int index, float value); // by the parameter's kind and what was written before

    // On/off of the last value written, per host parameter. Whoever moves the parameter turns it over; of two that do
    // in the same instant one sees the edge.
    Shared<bool> switchStates[param::HostCount];
    Shared<bool> keyTrigger; // a MIDI key drives a pad parameter; who plays keys writes, every thread reads
};

} // namespace korvane
