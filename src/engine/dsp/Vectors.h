// Vectors of samples and words, and how they get into and out of memory.
#pragma once

#include <cstdint>
#include <cstring>

#include "engine/dsp/StereoFrame.h"

namespace korvane {

typedef std::int32_t Int4 __attribute__((vector_size(16)));
typedef std::uint32_t Word4 __attribute__((vector_size(16)));

template <class S>
S Load(const float* from)
{
    S value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <class S>
void Store(const S& value, float* to)
{
    std::memcpy(to, &value, sizeof value);
}

} // namespace korvane
