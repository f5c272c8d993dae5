// Plays a plug-in at the pace of the clock, for nobody to hear.
#pragma once

#include <atomic>
#include <thread>

#include "render/PluginHost.h"

namespace korvane::window {

/// A thread that asks for block after block, each when its time has come, until the player ends.
class SilentPlayer {
public:
    /// host         outlives the player
    /// blockFrames  no more than the host was made for
    /// rate         Hz
    SilentPlayer(render::PluginHost& host, int blockFrames, double rate);
    ~SilentPlayer();
    SilentPlayer(const SilentPlayer&) = delete;

private:
    void Play(render::PluginHost& host, int blockFrames, double rate) const;

    std::atomic<bool> ending{false};
    std::thread thread;
};

} // namespace korvane::window
