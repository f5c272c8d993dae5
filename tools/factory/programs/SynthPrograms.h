// The synth programs by category.
#pragma once

#include "factory/words/SynthSound.h"

namespace korvane::factory::synth {

std::vector<ProgramRow> BassPrograms();
std::vector<ProgramRow> LeadPrograms();
std::vector<ProgramRow> PadPrograms();
std::vector<ProgramRow> KeysPrograms();
std::vector<ProgramRow> PluckPrograms();
std::vector<ProgramRow> SequencePrograms();
std::vector<ProgramRow> FxPrograms();

} // namespace korvane::factory::synth
