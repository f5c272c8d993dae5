// What each parameter does to the engine.
#pragma once

#include <cstddef>

#include "engine/GrooveEngine.h"

namespace korvane {

/// A function or none, of which the compiler can tell.
template <class Function>
struct Rule {
    constexpr Rule(std::nullptr_t) {}
    constexpr Rule(Function* given) : function(given), exists(true) {}

    Function* function = nullptr;
    bool exists = false;
};

/// A run of parameters that do the same, each to its own channel, button or slot. Which written values act is their
/// kind in the table of names.
struct ParameterBinding {
    int first, count;                                         // parameters
    int target;                                               // of the first; the others follow it
    Rule<void(GrooveEngine&, int target, float value)> write; // any thread; none: nothing happens
    Rule<float(const GrooveEngine&, int target)> read;        // any thread; none: the value that the program stores
    bool ofSlots = false;                                     // settings of a channel
};

/// The row of a parameter.
/// index  0..195
const ParameterBinding& BindingOf(int index);

} // namespace korvane
