// What the module is and how its parts are made.
#include "shell/CPluginDefinition.h"

#include <cstdio>

namespace korvane {

namespace {
CPluginDefinition* theDefinition = nullptr;
}

CPluginDefinition* Definition() { return theDefinition; }
void SetDefinition(CPluginDefinition* definition) { theDefinition = definition; }

bool CPluginDefinition::CheckHost(const char*, const char*) { return true; }
CPluginEditor* CPluginDefinition::CreateEditor(CSynthesizer*) { return nullptr; }
CSynthesizer* CPluginDefinition::CreateSynth(CPluginWrapper*) { return nullptr; }
void CPluginDefinition::GetOutputName(int index, char* buffer)
{
    std::snprintf(buffer, 512, "%.480s %d", pluginName, index);
}

} // namespace korvane
