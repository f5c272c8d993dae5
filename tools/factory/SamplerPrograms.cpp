// The sampler programs by kit.
#include "Programs.h"

namespace korvane::factory {

std::vector<ProgramRow> SamplerPrograms() { return {}; }

} // namespace korvane::factory
