// What an input may cost.
#pragma once

#include <cstddef>
#include <ctime>

namespace korvane::fuzz {

/// Ends the process with a word when that does not hold.
void Require(bool holds, const char* what);

/// While it lives: 16 bytes of memory for each of the input's and 64 MiB at a time, by operator new; 2 seconds of
/// processor time for each MiB of the input, at least 2.
class Limits {
public:
    explicit Limits(std::size_t inputBytes);
    ~Limits();
    Limits(const Limits&) = delete;

private:
    const std::clock_t end;
};

} // namespace korvane::fuzz
