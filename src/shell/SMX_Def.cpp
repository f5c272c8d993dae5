// Korvane's definition.
#include "shell/SMX_Def.h"

#include <cstdio>
#include <cstring>
#include <exception>

#include "content/state/KVInstrument.h"
#include "editor/KVEditor.h"
#include "framework/ParameterTable.h"
#include "gui/window/EditorThread.h"
#include "platform/window/DesktopWindow.h"

namespace korvane {

namespace {

constexpr const char* kOutputNames[] = {"Master",    "Sampler 1", "Sampler 2", "Sampler 3", "Sampler 4",
                                        "Sampler 5", "Sampler 6", "Sampler 7", "Sampler 8", "Synth 1",
                                        "Synth 2",   "Synth 3",   "Synth 4",   "Synth 5"};
constexpr int kOutputPairs = static_cast<int>(std::size(kOutputNames));

} // namespace

SMX_Def::SMX_Def()
{
    std::strcpy(pluginName, "Korvane");
    std::strcpy(vendorName, "Brassmoor");
    std::strcpy(versionText, "1.0.2");
    numPrograms = 1;
    numHostParams = param::HostCount;
    numStoredParams = param::Count;
    numInputs = 2;
    numOutputPairs = kOutputPairs;
    std::memcpy(uniqueId, "HSvK", sizeof uniqueId);
}

CSynthesizer* SMX_Def::CreateSynth(CPluginWrapper* wrapper)
{
    try {
        return new KVInstrument(wrapper);
    } catch (const std::exception&) {
        return nullptr;
    }
}

CPluginEditor* SMX_Def::CreateEditor(CSynthesizer* engine)
{
    auto* const instrument = dynamic_cast<KVInstrument*>(engine);
    if (!instrument) return nullptr;
    try {
        return new EditorThread(std::make_unique<KVEditor>(MakeDesktopWindow(), moduleHandle, *instrument));
    } catch (const std::exception&) {
        return nullptr;
    }
}

void SMX_Def::GetOutputName(int index, char* buffer)
{
    std::strcpy(buffer, index >= 0 && index < kOutputPairs ? kOutputNames[index] : "unknown");
}

SMX_Def& SMX_Def::Install()
{
    static SMX_Def definition;
    if (!Definition()) SetDefinition(&definition);
    return definition;
}

} // namespace korvane
