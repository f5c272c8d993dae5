// A box with text: a label, or what a value reads as.
#pragma once

#include "gui/controls/CControl.h"

namespace korvane {

/// Text over a colour or an image. `textRect` does not follow SetRect.
class CControlTextDisplay : public CControl {
public:
    CControlTextDisplay(Rect place, int number) : CControl(place, number), textRect(place) {}

    // clang-format off
    void OnLeftDown(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    // clang-format on

    /// Copies at most 1023 bytes; null: no text.
    void SetText(const char* newText);

    Rect textRect;     // the text's box, in the window
    Point imageOffset; // the control's corner in the bitmap
    CBitmap* bitmap = nullptr;
    Color backgroundColor = kBlack; // without a bitmap
    Color textColor = kWhite;
    Color hoverTextColor = kWhite; // with hoverHighlight, under the pointer
    int font = 0;
    int align = align::Centre;
    bool beginsInside = false; // a text that is wider than its box stands at the left
    float glow = 0.0f;         // 0..1, opacity of a halo
    bool hoverHighlight = false;
    bool clickNotifies = false; // a click is told to window and engine
    char text[1024] = "<no info>";

protected:
    void DrawTextBox(CDrawBuffer* buffer, Color background, Color plainText);
    /// Draws the part of the bitmap at `source` over the control; with alpha, above the page. Nothing without a bitmap.
    void DrawImage(CDrawBuffer* buffer, Point source);
    void DrawPageBehind(CDrawBuffer* buffer); // if the bitmap lets it show
    void WriteText(CDrawBuffer* buffer, Color plainText);
};

} // namespace korvane
