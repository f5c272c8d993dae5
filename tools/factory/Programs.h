// Synth and sampler programs: recipes that turn a reset channel into a sound.
#pragma once

#include <functional>
#include <vector>

#include "engine/GrooveEngine.h"

namespace korvane::factory {

/// The channel that a recipe works on. Files are named without folder and extension: what is stored resolves through
/// the instrument's search by file name, wherever the bundle lies.
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

struct ProgramRow {
    const char* folder; // category
    const char* name;   // also the file's name; no two programs share one
    std::function<void(Patch&)> make;
};

std::vector<ProgramRow> SynthPrograms();
std::vector<ProgramRow> SamplerPrograms();

/// Resets the channel and applies the program of that name; the process ends with a message when there is none.
void UseProgram(GrooveEngine& engine, int channel, const char* name);

} // namespace korvane::factory
