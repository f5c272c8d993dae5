// What the native interface tells of the module.
#include "shell/ModuleInfo.h"

#include <cstring>

#include "shell/CPluginDefinition.h"

namespace korvane {

ModuleInfo::ModuleInfo(const CPluginDefinition& definition)
{
    std::memcpy(longName, definition.pluginName, sizeof longName);
    std::memcpy(shortName, definition.pluginName, sizeof shortName);
    record.longName = longName;
    record.shortName = shortName;
    record.flags = definition.isEffect == 0 ? native_flag::Instrument : native_flag::Effect;
    record.numParams = definition.numHostParams + kNativeControllers;
}

} // namespace korvane
