// Korvane's definition.
#pragma once

#include "shell/CPluginDefinition.h"

namespace korvane {

class SMX_Def final : public CPluginDefinition {
public:
    SMX_Def();
    CSynthesizer* CreateSynth(CPluginWrapper* wrapper) override;
    /// Of engines that CreateSynth has made.
    CPluginEditor* CreateEditor(CSynthesizer* engine) override;
    /// "Master", then one name per channel; "unknown" beyond them.
    void GetOutputName(int index, char* buffer) override;

    /// The one instance; the first call makes it the module's definition.
    static SMX_Def& Install();
};

} // namespace korvane
