// What each parameter does to the engine.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

/// Which written values act; "on" means not 0.
enum class Acts {
    Never,
    Always,
    OnPress, // from off to on
    OnEdge,  // from off to on and back
};

/// A run of parameters that do the same, each to its own channel, button or slot.
struct ParameterBinding {
    int first, count; // parameters
    Acts acts;
    int target;                                            // of the first; the others follow it
    void (*write)(GrooveEngine&, int target, float value); // any thread; null: nothing happens
    float (*read)(const GrooveEngine&, int target);        // any thread; null: the value that the program stores
};

/// The row of a parameter.
/// index  0..195
const ParameterBinding& BindingOf(int index);

} // namespace korvane
