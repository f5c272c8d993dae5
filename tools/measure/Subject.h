// The plug-in that is measured, and states for it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "measure/Times.h"
#include "render/PluginHost.h"

namespace korvane::measure {

using render::PluginHost;

inline constexpr int kFrames = 64;       // of every block
inline constexpr double kRate = 48000.0; // Hz, where nothing else is said
inline constexpr double kBlockMicros = 1.0e6 * kFrames / kRate;

struct Groove {
    std::string name;
    std::vector<std::uint8_t> bytes;
};

/// The bundle beside this program.
struct Subject {
    Subject();

    std::unique_ptr<PluginHost> Open(double rate = kRate) const;
    /// Opens an instance that plays.
    std::unique_ptr<PluginHost> Playing(const Groove& groove, double rate = kRate) const;
    const Groove& Heaviest() const { return grooves.front(); }
    const Groove& Lightest() const { return grooves.back(); }

    std::filesystem::path bundle;
    std::vector<Groove> grooves; // the heaviest first, by the median of its blocks
};

/// A groove whose 32 sampler layers each play a file of two megabytes, written to a folder.
Groove BigGroove(const Groove& like, const std::filesystem::path& folder);

} // namespace korvane::measure
