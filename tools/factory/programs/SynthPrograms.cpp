// The synth programs by category.
#include "factory/programs/SynthPrograms.h"

#include <utility>

#include "factory/programs/Programs.h"

namespace korvane::factory {

std::vector<ProgramRow> SynthPrograms()
{
    std::vector<ProgramRow> all;
    for (const auto category : {synth::BassPrograms, synth::LeadPrograms, synth::PadPrograms, synth::KeysPrograms,
                                synth::PluckPrograms, synth::SequencePrograms, synth::FxPrograms})
        for (ProgramRow& row : category()) all.push_back(std::move(row));
    return all;
}

} // namespace korvane::factory
