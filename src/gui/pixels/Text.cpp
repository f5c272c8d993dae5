// Text from the records of the built-in faces.
#include <cstring>

#include "gui/pixels/BuiltInFonts.h"
#include "gui/pixels/CDrawBuffer.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kLongestText = 1024; // characters
constexpr int kSpaceWidth = 4;     // pixels

/// How a face is set; in pixels.
struct Setting {
    int letterSpacing, startOffset;
};
constexpr Setting kSettings[] = {{1, 0}, {0, -1}};

/// A glyph's record.
struct Glyph {
    int width, count;
    const std::uint8_t* ink; // place and transparency, `count` times
};

Glyph GlyphOf(const std::uint8_t* face, char character)
{
    const int code = character >= '!' && character <= '~' ? character : '?';
    const std::uint8_t* offset = face + 1 + 2 * (code - '!');
    const std::uint8_t* record = face + (offset[0] | offset[1] << 8);
    return {record[0], record[1], record + 2};
}

/// At most kLongestText characters count.
int TextWidth(const std::uint8_t* face, const char* text, std::size_t length, int letterSpacing)
{
    int sum = -1;
    for (std::size_t n = 0; n < length; ++n)
        sum += text[n] == ' ' ? kSpaceWidth : GlyphOf(face, text[n]).width + letterSpacing;
    return sum;
}

/// Unlike elsewhere each of the two products is shifted by itself.
std::uint32_t Inked(std::uint32_t dst, Color color, std::uint32_t a)
{
    const auto part = [](std::uint32_t pixel, std::uint32_t share) {
        return ((pixel & 0xFF00FF) * share >> 8 & 0xFF00FF) | ((pixel & 0xFF00) * share >> 8 & 0xFF00);
    };
    return (dst & 0xFF000000) | (part(dst, 255 - a) + part(color, a)); // together at most 254
}

void DrawGlyph(CDrawBuffer& buffer, const Glyph& glyph, int x, int y)
{
    for (int k = 0; k < glyph.count; ++k) {
        const int place = glyph.ink[2 * k], transparency = glyph.ink[2 * k + 1];
        const int px = x + (place & 15), py = y + (place >> 4);
        if (!buffer.clip.Contains(px, py)) continue;
        std::uint32_t& pixel = buffer.pixels[static_cast<std::size_t>(buffer.height - 1 - py) * buffer.width + px];
        const int a = AlphaOf(buffer.textColor) * (255 - transparency) >> 8;
        pixel = Inked(pixel, buffer.textColor, static_cast<std::uint32_t>(a));
    }
}

} // namespace

Size CDrawBuffer::DrawText(const char* text, int x, int y, int w, int h, int alignment, bool measureOnly)
{
    if (!IsValid() || !text || *text == '\0') return {};
    const std::uint8_t* face = BuiltInFont(font);
    if (!face) return {};
    const auto [letterSpacing, startOffset] = kSettings[font];
    const std::size_t length = strnlen(text, kLongestText);
    const Size size{face[0], TextWidth(face, text, length, letterSpacing)};
    if (size.width < 1 || measureOnly) return size;

    const std::int64_t top = y + (std::int64_t{h} - size.height) / 2;
    std::int64_t left = std::int64_t{x} + startOffset;
    if (alignment == align::Centre) left = x + (std::int64_t{w} - size.width) / 2;
    if (alignment == align::Right) left = std::int64_t{x} + w - size.width;
    Rect box{Saturate(left), Saturate(top), size.width, size.height};
    if (!ClipToClipRect(box)) return size;
    int pen = static_cast<int>(left); // near the clip
    for (std::size_t n = 0; n < length; ++n) {
        if (text[n] == ' ') {
            pen += kSpaceWidth;
            continue;
        }
        const Glyph glyph = GlyphOf(face, text[n]);
        if (glyph.count == 0 || glyph.count > size.height * glyph.width) break;
        DrawGlyph(*this, glyph, pen, static_cast<int>(top));
        pen += glyph.width + letterSpacing;
    }
    return size;
}

} // namespace korvane
