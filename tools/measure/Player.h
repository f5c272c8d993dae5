// A thread that plays as a sound card asks for it.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "measure/Subject.h"

namespace korvane::measure {

/// Renders a block whenever it is due, from its construction until Stop. Where the system allows it, before every other
/// thread of the machine.
class Player {
public:
    /// before  what is done before each block, on its thread, and counts; its number comes with it
    explicit Player(PluginHost& played, std::function<void(int)> before);
    /// Puts the calling thread before all others; false where that is not allowed.
    static bool ComeFirst();
    ~Player() { Stop(); }
    Player(const Player&) = delete;

    /// The transport, with its next block.
    void Start() { starting = true; }
    /// The times of all its blocks.
    const Times& Stop();
    int Blocks() const { return blocks; } // so far

private:
    void Run();

    PluginHost& host;
    const std::function<void(int)> intake;
    Times times;
    std::atomic<int> blocks{0};
    std::atomic<bool> running{true}, starting{false};
    std::thread thread;
};

} // namespace korvane::measure
