// What this process holds of the machine's memory.
#pragma once

#include <malloc.h>
#include <unistd.h>

#include <fstream>

namespace korvane::render {

/// Resident megabytes, after what was freed has been given back.
inline double ResidentMegabytes()
{
    malloc_trim(0);
    double all = 0.0, resident = 0.0; // pages
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1.0e6;
}

} // namespace korvane::render
