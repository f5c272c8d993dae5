// What ends a rendering: one line for the user.
#pragma once

#include <stdexcept>
#include <string>

namespace korvane::render {

struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace korvane::render
