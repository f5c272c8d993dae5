// Where the code of this library lies on disk.
#include "platform/ModulePath.h"

#include <cstdlib>
#include <dlfcn.h>
#include <link.h>
#include <memory>

#include "platform/Files.h"

namespace korvane {

static std::string FindModule()
{
    Dl_info info{};
    void* map = nullptr;
    if (dladdr1(reinterpret_cast<void*>(&FindModule), &info, &map, RTLD_DL_LINKMAP) == 0 || !map) return {};
    const char* loaded = static_cast<const link_map*>(map)->l_name; // empty: the running program itself
    if (!loaded || !*loaded) loaded = "/proc/self/exe";
    const std::unique_ptr<char, void (*)(void*)> resolved(realpath(loaded, nullptr), std::free);
    return EnginePath(resolved ? resolved.get() : loaded);
}

const std::string& ModulePath()
{
    static const std::string path = FindModule();
    return path;
}

std::string ModuleFolder()
{
    const std::string& path = ModulePath();
    const std::size_t end = path.rfind('\\');
    return end == std::string::npos ? std::string() : path.substr(0, end);
}

} // namespace korvane
