// Waiting for another thread.
#pragma once

#include <chrono>
#include <thread>

namespace korvane {

/// Never on the audio thread.
inline void SleepMilliseconds(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

} // namespace korvane
