// What the module exports.
#include <dlfcn.h>

#include <exception>

#include "platform/FlushToZero.h"
#include "platform/ModulePath.h"
#include "shell/CHarrowdeckWrapper.h"
#include "shell/CVstWrapper.h"
#include "shell/ModuleInfo.h"
#include "shell/SMX_Def.h"

#define KORVANE_EXPORT extern "C" __attribute__((visibility("default")))

namespace korvane {

namespace {

AEffect* CreateVstPlugin(AudioMasterCallback host)
{
    if (!host || host(nullptr, host_request::Version, 0, 0, nullptr, 0.0f) == 0) return nullptr;
    CPluginDefinition& definition = *Definition();
    definition.hostKind = host::Vst2;
    char vendor[128] = "", product[128] = "";
    host(nullptr, host_request::VendorString, 0, 0, vendor, 0.0f);
    host(nullptr, host_request::ProductString, 0, 0, product, 0.0f);
    if (!definition.CheckHost(product, vendor)) return nullptr;
    try {
        return (new CVstWrapper(host))->Record();
    } catch (const std::exception&) {
        return nullptr;
    }
}

TBramblyPlug* CreateNativePlugin(TBramblyHost* host, std::int32_t tag)
{
    if (!host) return nullptr;
    CPluginDefinition& definition = *Definition();
    definition.hostKind = host::Native;
    static const ModuleInfo module(definition);
    if (!definition.CheckHost("Harrowdeck", "Brassmoor")) return nullptr;
    try {
        return new CHarrowdeckWrapper(*host, tag, module.record);
    } catch (const std::exception&) {
        return nullptr;
    }
}

} // namespace

} // namespace korvane

KORVANE_EXPORT int DllMain(void* moduleHandle, unsigned long, void*)
{
    if (korvane::Definition()) korvane::Definition()->moduleHandle = moduleHandle;
    return 1;
}

KORVANE_EXPORT korvane::AEffect* VSTPluginMain(korvane::AudioMasterCallback host)
{
    return korvane::CreateVstPlugin(host);
}

KORVANE_EXPORT korvane::TBramblyPlug* CreatePlugInstance(korvane::TBramblyHost* host, std::int32_t tag)
{
    return korvane::CreateNativePlugin(host, tag);
}

/// Older hosts ask for "main"; the language keeps that name for programs.
KORVANE_EXPORT korvane::AEffect* KorvaneMain(korvane::AudioMasterCallback host) asm("main");
korvane::AEffect* KorvaneMain(korvane::AudioMasterCallback host)
{
    korvane::EnableFlushToZero();
    return korvane::CreateVstPlugin(host);
}

namespace {

/// The loader calls this where other systems call DllMain by themselves.
__attribute__((constructor)) void ModuleLoaded()
{
    korvane::SMX_Def::Install();
    korvane::ModulePath();
    Dl_info info{};
    dladdr(reinterpret_cast<void*>(&ModuleLoaded), &info);
    DllMain(info.dli_fbase, 1, nullptr);
}

} // namespace
