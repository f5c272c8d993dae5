// A standard MIDI file as a list of timed messages.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace korvane::render {

/// One channel message.
struct MidiMessage {
    double seconds;
    std::uint8_t status, data1, data2;
};

/// The tempo from a moment on.
struct TempoChange {
    double seconds, quarters, bpm;
};

/// Types 0 and 1, metrical time. Throws Failure for anything that breaks the format.
struct MidiFile {
    explicit MidiFile(const std::string& path);

    double QuartersAt(double seconds) const;
    double TempoAt(double seconds) const { return At(seconds).bpm; } // beats per minute

    std::vector<MidiMessage> messages; // in time
    std::vector<TempoChange> tempi;    // in time, the first at 0
    double lengthSeconds = 0.0;

private:
    const TempoChange& At(double seconds) const;
};

} // namespace korvane::render
