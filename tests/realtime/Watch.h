// What the audio thread asks of the system: calls that are counted where none may be made.
#pragma once

#include <string>

namespace korvane {

/// While one lives, this thread's calls of the C library that may wait or enter the system are counted, by name. One
/// thread at a time. A debugger that stops in Note shows who calls.
struct Watch {
    Watch() { here = true; }
    ~Watch() { here = false; }
    Watch(const Watch&) = delete;

    /// "malloc 2, free 1": what was counted since the last call, in order of its first time.
    static std::string Seen();

    static inline thread_local bool here = false;
};

} // namespace korvane
