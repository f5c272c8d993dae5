// Threads that the host's signals do not reach.
#pragma once

#include <functional>
#include <thread>

namespace korvane {

/// A thread that takes no signal: no handler of the host's runs on it, and a display server or another process that is
/// gone is an error of its call, not the end of the host (SIGPIPE). std::system_error when the system has none left.
std::thread QuietThread(const std::function<void()>& run);

} // namespace korvane
