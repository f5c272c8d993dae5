// Text from the records of the built-in faces.
#include <cstring>

#include "gui/pixels/BuiltInFonts.h"
#include "gui/pixels/CDrawBuffer.h"

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

void InkPixel(std::uint32_t& pixel, Color color, std::uint32_t a)
{
    std::uint32_t inked = pixel & 0xFF000000;
    for (int shift = 0; shift < 24; shift += 8) {
        const std::uint32_t dst = pixel >> shift & 255, src = color >> shift & 255;
        inked |= ((dst * (255 - a) >> 8) + (src * a >> 8)) << shift;
    }
    pixel = inked;
}

} // namespace

Size CDrawBuffer::DrawText(const char* text, int x, int y, int w, int h, int alignment, bool measureOnly)
{
    Size answer;
    if (!IsValid() || !text || *text == '\0') return answer;
    const std::uint8_t* face = BuiltInFont(font);
    if (!face) return answer;
    const Setting setting = kSettings[font];
    const std::size_t length = strnlen(text, kLongestText);
    answer = {face[0], TextWidth(face, text, length, setting.letterSpacing)};
    if (answer.width < 1 || measureOnly) return answer;

    const std::int64_t top = std::int64_t{y} + (std::int64_t{h} - answer.height) / 2;
    std::int64_t pen = std::int64_t{x} + setting.startOffset;
    if (alignment == align::Centre) pen = std::int64_t{x} + (std::int64_t{w} - answer.width) / 2;
    if (alignment == align::Right) pen = std::int64_t{x} + w - answer.width;
    if (pen >= clip.x + clip.w || pen + answer.width <= clip.x) return answer;
    if (top >= clip.y + clip.h || top + answer.height <= clip.y) return answer;
    for (std::size_t n = 0; n < length; ++n) {
        if (text[n] == ' ') {
            pen += kSpaceWidth;
            continue;
        }
        const Glyph glyph = GlyphOf(face, text[n]);
        if (glyph.count == 0 || glyph.count > answer.height * glyph.width) return answer;
        for (int k = 0; k < glyph.count; ++k) {
            const std::int64_t px = pen + (glyph.ink[2 * k] & 15), py = top + (glyph.ink[2 * k] >> 4);
            if (px < clip.x || py < clip.y || px >= clip.x + clip.w || py >= clip.y + clip.h) continue;
            const auto a = static_cast<std::uint32_t>(AlphaOf(textColor) * (255 - glyph.ink[2 * k + 1]) >> 8);
            InkPixel(pixels[static_cast<std::size_t>((height - 1 - py) * width + px)], textColor, a);
        }
        pen += glyph.width + setting.letterSpacing;
    }
    return answer;
}

} // namespace korvane
