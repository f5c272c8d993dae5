// Mixing of rows of pixels, in 8 bits with a shift by 8.
#pragma once

#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "gui/pixels/Color.h"

namespace korvane::mixing {

/// Each colour byte becomes (src * a + dst * (255 - a)) >> 8; the top byte of dst stays. Red and blue go together, as
/// neither sum leaves its 16 bits.
/// a  0..255
inline std::uint32_t Mix(std::uint32_t dst, std::uint32_t src, std::uint32_t a)
{
    const std::uint32_t b = 255 - a;
    const std::uint32_t redBlue = (src & 0xFF00FF) * a + (dst & 0xFF00FF) * b;
    const std::uint32_t green = (src & 0xFF00) * a + (dst & 0xFF00) * b;
    return (dst & 0xFF000000) | (redBlue >> 8 & 0xFF00FF) | (green >> 8 & 0xFF00);
}

/// The four channels of a colour in 16.16 fixed point: blue, green, red, alpha.
typedef std::int32_t Channels __attribute__((vector_size(16)));

// What a row is mixed from, and how strongly, pixel by pixel.

struct Pixels {
    const std::uint32_t* row;
    std::uint32_t At(int n) const { return row[n]; }
};

struct OneColor {
    Color color;
    std::uint32_t At(int) const { return color; }
};

struct Even {
    std::uint8_t opacity;
    std::uint32_t At(int) const { return opacity; }
};

struct Plane {
    const std::uint8_t* row;
    std::uint32_t At(int n) const { return row[n]; }
};

/// A plane that counts in part.
struct FaintPlane {
    const std::uint8_t* row;
    std::uint8_t opacity;
    std::uint32_t At(int n) const { return static_cast<std::uint32_t>(row[n] * opacity >> 8); }
};

#ifdef __SSE2__
inline __m128i LoadFour(const void* from) { return _mm_loadu_si128(static_cast<const __m128i*>(from)); }

inline __m128i LoadBytes(const std::uint8_t* from)
{
    int four;
    std::memcpy(&four, from, sizeof four);
    return _mm_cvtsi32_si128(four);
}

/// Four opacities of a byte each, so that each colour byte of four pixels has its own; 0 at the top bytes.
inline __m128i Spread(__m128i bytes)
{
    bytes = _mm_unpacklo_epi8(bytes, bytes);
    return _mm_and_si128(_mm_unpacklo_epi16(bytes, bytes), _mm_set1_epi32(0xFFFFFF));
}

// The same of pixels n to n + 3.

inline __m128i FourAt(Pixels source, int n) { return LoadFour(source.row + n); }
inline __m128i FourAt(OneColor source, int) { return _mm_set1_epi32(static_cast<int>(source.color)); }
inline __m128i FourAt(Even by, int) { return _mm_set1_epi32(by.opacity * 0x010101); }
inline __m128i FourAt(Plane by, int n) { return Spread(LoadBytes(by.row + n)); }
inline __m128i FourAt(FaintPlane by, int n)
{
    const __m128i words = _mm_unpacklo_epi8(LoadBytes(by.row + n), _mm_setzero_si128());
    const __m128i faint = _mm_srli_epi16(_mm_mullo_epi16(words, _mm_set1_epi16(by.opacity)), 8);
    return Spread(_mm_packus_epi16(faint, faint));
}

/// Two pixels of 16 bits a channel. A top byte has opacity 0 and, as its counterpart is 256 there, stays.
inline __m128i MixTwo(__m128i dst, __m128i src, __m128i a)
{
    const __m128i rest = _mm_sub_epi16(_mm_set1_epi64x(0x010000FF00FF00FF), a);
    return _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(src, a), _mm_mullo_epi16(dst, rest)), 8);
}

inline void MixFour(std::uint32_t* dst, __m128i src, __m128i a)
{
    const __m128i zero = _mm_setzero_si128(), before = LoadFour(dst);
    const __m128i low =
        MixTwo(_mm_unpacklo_epi8(before, zero), _mm_unpacklo_epi8(src, zero), _mm_unpacklo_epi8(a, zero));
    const __m128i high =
        MixTwo(_mm_unpackhi_epi8(before, zero), _mm_unpackhi_epi8(src, zero), _mm_unpackhi_epi8(a, zero));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(dst), _mm_packus_epi16(low, high));
}
#endif

/// The plain form, which the one below follows to the bit.
template <class Source, class Opacity>
void MixRowPlain(std::uint32_t* dst, int first, int end, Source source, Opacity opacity)
{
    for (int n = first; n < end; ++n) dst[n] = Mix(dst[n], source.At(n), opacity.At(n));
}

/// Mixes a row into another that it does not overlap.
template <class Source, class Opacity>
void MixRow(std::uint32_t* dst, int count, Source source, Opacity opacity)
{
    int n = 0;
#ifdef __SSE2__
    for (; n + 4 <= count; n += 4) MixFour(dst + n, FourAt(source, n), FourAt(opacity, n));
#endif
    MixRowPlain(dst, n, count, source, opacity);
}

inline void MixGradientPlain(std::uint32_t* dst, int count, Channels value, Channels step)
{
    for (int n = 0; n < count; ++n, value += step) {
        const Channels whole = value >> 16;
        const auto color = static_cast<std::uint32_t>(whole[2] << 16 | whole[1] << 8 | whole[0]);
        dst[n] = Mix(dst[n], color, static_cast<std::uint32_t>(whole[3]));
    }
}

/// Mixes a row with a colour that moves by a step per pixel.
inline void MixGradient(std::uint32_t* dst, int count, Channels value, Channels step)
{
#ifdef __SSE2__
    for (; count >= 2; count -= 2, dst += 2, value += step + step) {
        const Channels first = value >> 16, second = (value + step) >> 16;
        const __m128i src = _mm_packs_epi32(reinterpret_cast<__m128i>(first), reinterpret_cast<__m128i>(second));
        const __m128i alphas = _mm_shufflehi_epi16(_mm_shufflelo_epi16(src, 0xFF), 0xFF);
        auto* pair = reinterpret_cast<__m128i*>(dst);
        const __m128i before = _mm_unpacklo_epi8(_mm_loadl_epi64(pair), _mm_setzero_si128());
        const __m128i mixed = MixTwo(before, src, _mm_and_si128(alphas, _mm_set1_epi64x(0x0000FFFFFFFFFFFF)));
        _mm_storel_epi64(pair, _mm_packus_epi16(mixed, mixed));
    }
#endif
    MixGradientPlain(dst, count, value, step);
}

} // namespace korvane::mixing
