// The metronome of a recording.
#pragma once

namespace korvane {

/// A square wave between 0 and its falling level. Armed at ticks, heard in the main mix. Audio thread, or whoever has
/// the engine to itself.
struct Click {
    /// A click at a step, if it is on a beat; a higher one at a bar.
    /// step  of the pattern, or of the count-in
    /// rate  Hz
    void Arm(int step, double rate);
    /// Adds what is heard of it.
    void Add(float* left, float* right, int frames);
    void Silence() { clickPhase = clickLevel = clickIncrement = 0.0f; }

    float clickPhase = 0.0f;     // 0..1
    float clickLevel = 0.0f;     // falls by a hundredth per frame
    float clickIncrement = 0.0f; // of the phase per frame
};

} // namespace korvane
