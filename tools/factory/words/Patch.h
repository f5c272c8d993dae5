// The channel that a program is written into.
#pragma once

#include <functional>

#include "engine/GrooveEngine.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"

namespace korvane::factory {

/// Sets parameters by slot:: index, banked slots with their bank added. Files are named without folder and extension:
/// what is stored resolves through the instrument's search by file name, wherever the bundle lies.
class Patch {
public:
    Patch(GrooveEngine& owner, int whichChannel) : engine(owner), channel(whichChannel) {}

    void Set(int slotIndex, double value); // 0..1
    void Switch(int slotIndex, bool on) { Set(slotIndex, on ? 1.0 : 0.0); }
    /// Position p of a control that its switch steps.
    void Position(int slotIndex, int p) { Set(slotIndex, law::PositionKnob(p, slot::LastPosition(slotIndex))); }
    /// A knob and the switch that gives it a minus.
    void Signed(int knob, int inverting, double amount);

    void Wave(int oscillator, const char* name); // oscillator 1..3, a single cycle of "Synth Waves"
    void Sample(int layer, const char* name);    // layer 1..4, a one-shot of "Drum Samples"

private:
    void File(int sampleSlot, const char* name);

    GrooveEngine& engine;
    int channel;
};

/// A recipe that turns a reset channel into a sound.
struct ProgramRow {
    const char* folder; // category
    const char* name;   // also the file's name; no two programs share one
    std::function<void(Patch&)> make;
};

} // namespace korvane::factory
