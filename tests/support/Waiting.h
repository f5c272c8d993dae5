// Waiting for what another thread or process does, and counting what it leaves open.
#pragma once

#include <chrono>
#include <filesystem>
#include <thread>

namespace korvane {

/// Until the condition holds; whether it did in time.
template <class Condition>
bool Within(std::chrono::milliseconds patience, Condition condition)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

/// Descriptors of this process.
inline long OpenFiles()
{
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return std::distance(begin(files), end(files));
}

} // namespace korvane
