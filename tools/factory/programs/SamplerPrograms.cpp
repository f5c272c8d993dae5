// The sampler programs by kit.
#include "factory/programs/SamplerPrograms.h"

#include "factory/programs/Programs.h"

namespace korvane::factory {

std::vector<ProgramRow> SamplerPrograms()
{
    struct Shelf {
        const char* kit;
        std::vector<SamplerProgram> (*programs)();
    };
    constexpr Shelf kShelves[] = {
        {"Volt", VoltPrograms}, {"Deep", DeepPrograms}, {"Oak", OakPrograms}, {"Forge", ForgePrograms}};
    std::vector<ProgramRow> rows;
    for (const Shelf& shelf : kShelves)
        for (SamplerProgram& program : shelf.programs())
            rows.push_back({shelf.kit, program.name, [program](Patch& patch) { Apply(program, patch); }});
    return rows;
}

} // namespace korvane::factory
