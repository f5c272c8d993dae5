// What host and engine tell the editor of parameters, kept until its next tick.
#pragma once

#include <bit>
#include <cstdint>

#include "framework/ParameterTable.h"
#include "platform/Shared.h"

namespace korvane {

/// The last value of each parameter that was written since the last tick, and whether everything must be looked at
/// again. Any thread posts, the audio thread included; the window's thread takes.
class ParameterNotices {
public:
    void Post(int index, float value)
    {
        if (index >= 0 && index < param::Count) values[index] = kPosted | std::bit_cast<std::uint32_t>(value);
    }
    void PostAll() { all = true; }

    /// Calls `show` (index, value) for each that was posted.
    template <class Show>
    void Take(Show show)
    {
        for (int index = 0; index < param::Count; ++index) {
            if (values[index] == 0) continue;
            const std::uint64_t notice = values[index].Exchange(0);
            show(index, std::bit_cast<float>(static_cast<std::uint32_t>(notice)));
        }
    }
    bool TakeAll() { return all && all.Exchange(false); }

    /// Forgets them all: who is about to read every value needs none.
    void Clear()
    {
        Fill(values, std::uint64_t{0});
        all = false;
    }

private:
    static constexpr std::uint64_t kPosted = std::uint64_t{1} << 32; // beside the value's bits

    Shared<std::uint64_t> values[param::Count];
    Shared<bool> all;
};

} // namespace korvane
