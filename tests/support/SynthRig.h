// An instrument with a content folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engine/KVSynth.h"
#include "platform/Files.h"
#include "shell/SMX_Def.h"

namespace korvane {

/// Remembers what the instrument reports.
struct Host : CPluginWrapper {
    void ParameterAutomated(int index, float value) override
    {
        ++told;
        reports.emplace_back(index, value);
    }
    CPluginEditor* GetEditor() override { return nullptr; }
    void BeginEdit(int) override {}
    void EndEdit(int) override {}

    int told = 0;
    std::vector<std::pair<int, float>> reports;
};

inline void WriteBytes(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
}

inline std::vector<std::uint8_t> ReadBytes(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class SynthTest : public testing::Test {
protected:
    SynthTest()
    {
        std::filesystem::remove_all(root);
        const std::string setting = "rootFolder=" + root.string();
        WriteBytes(root / "Brassmoor/Korvane.conf", {setting.begin(), setting.end()});
        setenv("XDG_CONFIG_HOME", root.c_str(), 1);
        SMX_Def::Install();
    }
    ~SynthTest() override { std::filesystem::remove_all(root); }

    /// Made at the first call, and anew after Close.
    KVSynth& Synth()
    {
        if (!owned) owned = std::make_unique<KVSynth>(&host);
        return *owned;
    }
    void Close() { owned.reset(); }
    std::string Path(const char* name) const { return EnginePath((root / name).c_str()); }
    void Send(std::uint8_t status, std::uint8_t data1, std::uint8_t data2 = 0)
    {
        Synth().QueueEvent(status, data1, data2, 0, 0);
        Render();
    }
    void Render(int frames = 64) { Synth().ProcessBlock(nullptr, nullptr, frames, true); }

    const std::filesystem::path root =
        std::filesystem::path(testing::TempDir()) / ("korvane_root." + std::to_string(getpid()));
    Host host;
    std::unique_ptr<KVSynth> owned;
};

} // namespace korvane
