// What each parameter does to the engine.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

/// A run of parameters that do the same, each to its own channel, button or slot. Which written values act is their
/// kind in the table of names.
struct ParameterBinding {
    int first, count;                                      // parameters
    int target;                                            // of the first; the others follow it
    void (*write)(GrooveEngine&, int target, float value); // any thread; null: nothing happens
    float (*read)(const GrooveEngine&, int target);        // any thread; null: the value that the program stores
};

/// The row of a parameter.
/// index  0..195
const ParameterBinding& BindingOf(int index);

} // namespace korvane
