// The channel that a program is written into.
#include "factory/words/Patch.h"

#include <cmath>
#include <cstdio>

namespace korvane::factory {

void Patch::Set(int slotIndex, double value) { engine.storedParams[channel][slotIndex] = static_cast<float>(value); }

void Patch::Signed(int knob, int inverting, double amount)
{
    Set(knob, std::fabs(amount));
    Switch(inverting, amount < 0.0);
}

void Patch::Wave(int oscillator, const char* name) { File(oscillator - 1, name); }

void Patch::Sample(int layer, const char* name) { File(kFirstLayerSlot + layer - 1, name); }

void Patch::File(int sampleSlot, const char* name)
{
    char path[64]; // a file name alone: the instrument finds it in its own folders
    std::snprintf(path, sizeof path, "\\%s.wav", name);
    engine.Channel(channel).sound.sampleSlots[static_cast<std::size_t>(sampleSlot)].path.Set(path);
}

} // namespace korvane::factory
