// The synth programs by category.
#include "Programs.h"

namespace korvane::factory {

std::vector<ProgramRow> SynthPrograms() { return {}; }

} // namespace korvane::factory
