// How the open list of a drop-down list looks.
#pragma once

#include "gui/controls/DropDownItems.h"
#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

/// Faces, colours and lengths in pixels, and what is drawn with them.
class DropDownLook {
public:
    struct State {
        bool chosen = false;  // the current choice, or marked like it
        bool pointed = false; // by the mouse
    };

    /// Pixels, with what stands around the text.
    int RowHeight(CDrawBuffer* buffer) const;
    int RowWidth(CDrawBuffer* buffer, const DropDownItem& shown, State state) const;
    void DrawRow(CDrawBuffer* buffer, Rect row, const DropDownItem& shown, State state) const;
    void DrawScrollBar(CDrawBuffer* buffer, Rect thumb, Rect bar) const;

    int itemFont = 0, selectedFont = 1, headingFont = 0;
    Color topColor = Rgb(253, 252, 245), bottomColor = Rgb(238, 235, 219); // of the box
    Color frameColor = Rgb(52, 44, 34);
    Color itemColor = Rgb(44, 38, 30), selectedItemColor = Rgb(186, 84, 18), disabledItemColor = Rgb(160, 154, 138);
    Color selectedBandColor = Rgb(0, 0, 0, 0); // behind it
    Color headingColor = Rgb(126, 104, 72), headingBandColor = Rgb(120, 96, 56, 30);
    Color separatorColor = Rgb(120, 96, 56, 90);
    Color hoverItemColor = kWhite, hoverTopColor = Rgb(244, 150, 78), hoverBottomColor = Rgb(228, 118, 42);
    Color barColor = Rgb(120, 96, 56, 36);
    Color thumbTopColor = Rgb(174, 162, 134), thumbBottomColor = Rgb(142, 130, 104);
    Color shadowColor = kBlack;
    int shadow = 6;      // at the right and at the bottom
    int padX = 8;        // on each side of a text
    int itemPadding = 5; // above and below it, together

private:
    int FontOf(const DropDownItem& shown, State state) const;
    Color TextColorOf(const DropDownItem& shown, State state) const;
};

} // namespace korvane
