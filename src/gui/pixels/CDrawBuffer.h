// A buffer that is drawn into: rectangles, gradients, frames, lines and text.
#pragma once

#include "gui/pixels/CBitmap.h"

namespace korvane {

/// Alignment of text in its box.
namespace align {
enum : int { Left = 0, Centre = 2, Right = 3 };
}

/// What a page is composed in. Mixing is done in 8 bits with a shift by 8, so that full opacity is 255/256.
class CDrawBuffer : public CGraphicBuffer {
public:
    ~CDrawBuffer() override = default;

    // clang-format off
    virtual void SetFrameColor(Color color) { frameColor = color; }
    virtual void SetFrameWidth(int pixelCount) { frameWidth = pixelCount; }
    virtual void SetFrameParam(int value) { frameParam = value; }
    virtual Color GetFrameColor() const { return frameColor; }
    virtual int GetFrameWidth() const { return frameWidth; }
    virtual int GetFrameParam() const { return frameParam; }
    virtual void SetFont(int number) { font = number; }
    virtual void SetTextColor(Color color) { textColor = color; }
    virtual int GetFont() const { return font; }
    virtual Color GetTextColor() const { return textColor; }
    virtual void FillRect(Rect rect);                       // with fillColor
    virtual void FillGradient(Rect rect, Color topLeft, Color topRight, Color bottomRight, Color bottomLeft);
    virtual void FillRectOrGradient(Rect rect, const Color* corners); // four in the order above; null: fillColor
    virtual void DrawFrame(Rect rect);                      // inside the rectangle
    virtual void SetFillColor(Color color) { fillColor = color; }
    virtual Color GetFillColor() const { return fillColor; }
    // clang-format on

    void DrawBitmap(const CBitmap* bitmap, Rect dest, Point src);
    /// opacity  0..1
    void DrawBitmapBlended(const CBitmap* bitmap, Rect dest, Point src, float opacity);

    /// A line with soft edges, in two passes: first with `accumulate`, which gathers the coverage of all lines that
    /// belong together in the pixels' spare bytes, then without, which colours each pixel once and clears its byte.
    void DrawLine(Color color, float x0, float y0, float x1, float y1, bool accumulate);
    /// The same of frameWidth parallel lines, 0.83 pixels apart.
    void DrawThickLine(Color color, float x0, float y0, float x1, float y1, bool accumulate);

    /// Writes the text into a box, always at the middle of its height. Answers the face's line height and the text's
    /// width; (0, 0) when there is nothing to write.
    /// text         at most 1024 characters count; what is not printable ASCII is written as "?"
    /// alignment    of align::
    /// measureOnly  answers without writing
    Size DrawText(const char* text, int x, int y, int w, int h, int alignment, bool measureOnly);

    Color frameColor = 0;
    int frameWidth = 1; // pixels
    int frameParam = 0; // kept, read by nothing here
    int font = 0;       // 0 or 1
    Color textColor = 0, fillColor = 0;
};

} // namespace korvane
