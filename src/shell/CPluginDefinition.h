// What the module is and how its parts are made.
#pragma once

#include <cstdint>

#include "platform/Shared.h"

namespace korvane {

class CPluginEditor;
class CPluginWrapper;
class CSynthesizer;

namespace host {
inline constexpr std::int32_t Unknown = 0, Vst2 = 1, Native = 3;
}

/// Description and factory; one object per module, never changed after start-up but for hostKind.
class CPluginDefinition {
public:
    CPluginDefinition() = default;
    CPluginDefinition(const CPluginDefinition&) = delete;

    /// Asked once by each entry point; false means that no plug-in is made.
    virtual bool CheckHost(const char* product, const char* vendor);
    /// A new editor for the engine, or null. The caller owns it.
    virtual CPluginEditor* CreateEditor(CSynthesizer* engine);
    /// A new engine that talks back through the wrapper, or null. The caller ends it with Destroy.
    virtual CSynthesizer* CreateSynth(CPluginWrapper* wrapper);
    /// Display name of a stereo output pair; the buffer has 512 bytes or more.
    virtual void GetOutputName(int index, char* buffer);

    void* moduleHandle = nullptr;
    char pluginName[512] = "Unknown";
    char vendorName[512] = "Unknown";
    char versionText[512] = "Unknown";
    std::uint8_t isEffect = 0;
    std::uint8_t hasEditor = 1;
    Shared<std::int32_t> hostKind = host::Unknown; // of the most recent entry; entries write, engines read
    std::int32_t numPrograms = 0;
    std::int32_t numHostParams = 0;   // indices below are open to automation
    std::int32_t numStoredParams = 0; // values that a program holds
    std::int32_t numInputs = 0;
    std::int32_t numOutputPairs = 1;
    char uniqueId[4] = {}; // in memory order

protected:
    ~CPluginDefinition() = default;
};

/// The module's definition, null before there is one.
CPluginDefinition* Definition();
void SetDefinition(CPluginDefinition* definition);

} // namespace korvane
