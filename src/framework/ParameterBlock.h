// The working values of a channel's parameters.
#pragma once

#include <bit>
#include <cstdint>

#include "framework/Limits.h"
#include "platform/ChangeCount.h"
#include "platform/Shared.h"

namespace korvane {

/// 212 values that any thread writes, each standing for itself, and a count of their changes: the audio thread works
/// out what follows from them only when `changes` has moved.
class ParameterBlock {
public:
    /// A value to be written or read.
    class Entry {
    public:
        Entry(ParameterBlock& owner, int slotIndex) : block(owner), index(slotIndex) {}
        Entry(const Entry&) = delete;
        operator float() const { return block.values[index]; }
        float operator=(float next)
        {
            block.changes.Note(block.Write(index, next));
            return next;
        }

    private:
        ParameterBlock& block;
        const int index;
    };

    // index  0..211

    const Shared<float>& operator[](int index) const { return values[index]; }
    Entry operator[](int index) { return {*this, index}; }
    /// Stores a value; whether another one stood there. The caller counts the changes that it has made.
    bool Write(int index, float next)
    {
        const float before = values[index];
        if (std::bit_cast<std::uint32_t>(before) == std::bit_cast<std::uint32_t>(next)) return false;
        values[index] = next;
        return true;
    }

    const Shared<float>* begin() const { return values; }
    const Shared<float>* end() const { return values + kChannelSlots; }

    ChangeCount changes;

private:
    Shared<float> values[kChannelSlots];
};

} // namespace korvane
