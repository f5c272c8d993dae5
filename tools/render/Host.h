// A host of one plug-in, whatever interface they share.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace korvane::render {

/// Loads a plug-in, hands it events, time and transport, and renders it block by block. One thread; states, parameters
/// and the editor may come from another while it renders.
class Host {
public:
    virtual ~Host() = default;

    virtual int Parameters() const = 0;
    virtual std::string ParameterName(int index) const = 0;
    virtual std::string ParameterDisplay(int index) const = 0;
    /// value  0..1
    virtual void SetParameter(int index, float value) = 0;
    virtual std::vector<std::uint8_t> GetState() = 0;
    /// Throws Failure when the plug-in refuses the bytes, where it says so.
    virtual void SetState(const std::vector<std::uint8_t>& bytes, const std::string& name) = 0;

    /// Before the first block, when state and parameters are set.
    virtual void Begin() = 0;
    /// Whether events are played at their frames and in their order; else at the start of the next block, notes last.
    virtual bool PlacesEvents() const = 0;
    /// To be played in the next block, in order of their frames.
    virtual void QueueMidi(int frame, std::uint8_t status, std::uint8_t data1, std::uint8_t data2) = 0;
    virtual void SetTempo(double bpm) = 0;
    virtual void SetPosition(double quarterNotes) = 0;
    virtual void SetPlaying(bool running) = 0;
    /// Renders into Output; frames up to the longest block. Asks for no memory where events are as many as before.
    virtual void Render(int frames) = 0;

    virtual int Pairs() const = 0;
    virtual std::string PairName(int pair) const = 0;
    virtual const float* Output(int channel) const = 0;

    /// The index of a parameter by what the user calls it, see FindName.
    int FindParameter(const std::string& name) const;
    /// "name = value as the plug-in shows it".
    std::string ParameterText(int index) const;
};

} // namespace korvane::render
