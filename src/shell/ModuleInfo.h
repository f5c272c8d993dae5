// What the native interface tells of the module.
#pragma once

#include "shell/native/TBramblyPlug.h"

namespace korvane {

class CPluginDefinition;

/// The record and the names that it leads to. Made once, for all instances.
class ModuleInfo {
public:
    explicit ModuleInfo(const CPluginDefinition& definition);
    ModuleInfo(const ModuleInfo&) = delete;

    NativeInfo record;

private:
    char longName[512], shortName[512];
};

} // namespace korvane
