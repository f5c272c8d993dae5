// The channel that a program is written into.
#pragma once

#include <functional>

#include "engine/GrooveEngine.h"

namespace korvane::factory {

/// Files are named without folder and extension: what is stored resolves through the instrument's search by file name,
/// wherever the bundle lies.
class Patch {
public:
    Patch(GrooveEngine& owner, int whichChannel) : engine(owner), channel(whichChannel) {}

    /// slotIndex  from slot::, banked slots with their bank added
    /// value      0..1
    Patch& Set(int slotIndex, float value);
    Patch& Wave(int oscillator, const char* name); // oscillator 1..3, a single cycle of "Synth Waves"
    Patch& Sample(int layer, const char* name);    // layer 1..4, a one-shot of "Drum Samples"

private:
    Patch& File(int sampleSlot, const char* name);

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
