// An instrument with a content folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "content/state/KVInstrument.h"
#include "platform/Files.h"
#include "shell/SMX_Def.h"
#include "support/ContentRoot.h"

namespace korvane {

/// What `write` leaves in the buffer that it is given.
template <class Write>
std::string Written(const Write& write)
{
    char text[1024] = "untouched";
    write(text);
    return text;
}

/// The text of a field that is read into a buffer.
template <class Field>
std::string TextOf(const Field& field)
{
    return Written([&field](auto& text) { field.Get(text); });
}

/// The largest magnitude.
inline float Peak(const std::vector<float>& sound)
{
    float peak = 0.0f;
    for (const float x : sound) peak = std::max(peak, std::fabs(x));
    return peak;
}

/// Notes that are held.
inline int Sounding(const GrooveChannel& channel)
{
    int notes = 0;
    for (const auto& voice : channel.voices) notes += voice->active && !voice->releasing;
    return notes;
}

/// Remembers what the instrument reports, on whatever thread.
struct Host : CPluginWrapper {
    void ParameterAutomated(int index, float value) override
    {
        whenTold();
        const std::lock_guard guard(lock);
        ++told;
        reports.emplace_back(index, value);
    }
    CPluginEditor* GetEditor() override { return nullptr; }
    void BeginEdit(int) override {}
    void EndEdit(int) override {}
    bool RealTime() override { return realTime; }

    Shared<bool> realTime; // offline unless set: blocks wait for what they ask the loader
    std::function<void()> whenTold = [] {};
    std::mutex lock;
    std::atomic<int> told{0};
    std::vector<std::pair<int, float>> reports;
};

class SynthTest : public testing::Test {
protected:
    SynthTest() { SMX_Def::Install(); }

    /// Made at the first call, and anew after Close.
    KVInstrument& Synth()
    {
        if (!owned) owned = std::make_unique<KVInstrument>(&host);
        return *owned;
    }
    GrooveEngine& Engine() { return *Synth().engine; }
    void Close() { owned.reset(); }
    std::string Path(const char* name) const { return EnginePath((root / name).c_str()); }
    void Send(std::uint8_t status, std::uint8_t data1, std::uint8_t data2 = 0)
    {
        Synth().QueueEvent(status, data1, data2, 0, 0);
        Render();
    }
    void Render(int frames = 64) { Synth().ProcessBlock(nullptr, nullptr, frames, true); }

    const ContentRoot content;
    const std::filesystem::path& root = content.path;
    Host host;
    std::unique_ptr<KVInstrument> owned;
};

} // namespace korvane
