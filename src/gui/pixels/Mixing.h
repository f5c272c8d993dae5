// Mixing of pixels, in 8 bits with a shift by 8.
#pragma once

#include <cstdint>
#include <cstring>

#include "gui/pixels/Color.h"

namespace korvane::mixing {

/// The plain form: each colour byte becomes (src * a + dst * (255 - a)) >> 8; the top byte of dst stays. Red and blue
/// go together, as neither product leaves its 16 bits.
/// a  0..255
inline std::uint32_t Mix(std::uint32_t dst, std::uint32_t src, std::uint32_t a)
{
    const std::uint32_t b = 255 - a;
    const std::uint32_t redBlue = (src & 0xFF00FF) * a + (dst & 0xFF00FF) * b;
    const std::uint32_t green = (src & 0xFF00) * a + (dst & 0xFF00) * b;
    return (dst & 0xFF000000) | (redBlue >> 8 & 0xFF00FF) | (green >> 8 & 0xFF00);
}

typedef std::uint8_t Bytes8 __attribute__((vector_size(8)));
typedef std::uint16_t Words8 __attribute__((vector_size(16)));

/// Two pixels at once, with two opacities.
inline void MixTwo(std::uint32_t* dst, const std::uint32_t* src, std::uint32_t a0, std::uint32_t a1)
{
    Bytes8 from, to;
    std::memcpy(&from, src, sizeof from);
    std::memcpy(&to, dst, sizeof to);
    const auto x = static_cast<std::uint16_t>(a0), y = static_cast<std::uint16_t>(a1);
    const Words8 a{x, x, x, 0, y, y, y, 0},
        b{static_cast<std::uint16_t>(255 - x), static_cast<std::uint16_t>(255 - x),
          static_cast<std::uint16_t>(255 - x), 256,
          static_cast<std::uint16_t>(255 - y), static_cast<std::uint16_t>(255 - y),
          static_cast<std::uint16_t>(255 - y), 256}; // the top byte comes out as it was
    const Words8 mixed = __builtin_convertvector(from, Words8) * a + __builtin_convertvector(to, Words8) * b;
    const Bytes8 result = __builtin_convertvector(mixed >> 8, Bytes8);
    std::memcpy(dst, &result, sizeof result);
}

/// Mixes a row into another, pixel n with opacity alphaOf (n).
template <class AlphaOf>
void MixRow(std::uint32_t* dst, const std::uint32_t* src, int count, AlphaOf alphaOf)
{
    int n = 0;
    for (; n + 2 <= count; n += 2) MixTwo(dst + n, src + n, alphaOf(n), alphaOf(n + 1));
    for (; n < count; ++n) dst[n] = Mix(dst[n], src[n], alphaOf(n));
}

} // namespace korvane::mixing
