// Where the instrument's content lies.
#include "content/ContentFolders.h"

#include <cstdio>
#include <string>

#include "content/PathText.h"
#include "platform/Files.h"
#include "platform/ModulePath.h"
#include "platform/Registry.h"
#include "shell/CPluginDefinition.h"

namespace korvane {

ContentFolders::ContentFolders(const char* contentRoot)
{
    SetText(root, contentRoot);
    const std::string base(root);
    const auto set = [&base](char(&target)[1024], const char* suffix) { SetText(target, base + suffix); };
    set(graphics, "\\Graphics");
    set(synthWaves, "\\Synth Waves");
    set(drumSamples, "\\Drum Samples");
    set(grooves, "\\Grooves");
    set(synthPrograms, "\\Synth Programs");
    set(samplerPrograms, "\\Sampler Programs");
    set(parts, "\\Parts");
    set(defaultWave, "\\Synth Waves\\Saw.wav");
    set(defaultGroove, "\\default.kvprj");
}

ContentFolders ContentFolders::Find(int hostKind)
{
    char setting[1024] = "";
    if (hostKind != host::Native &&
        ReadRegistryText("SOFTWARE\\Brassmoor\\Korvane", "rootFolder", setting, sizeof setting))
        return ContentFolders(EnginePath(setting).c_str());
    return ContentFolders(ModuleFolder().c_str());
}

} // namespace korvane
