// How the open list of a drop-down list looks.
#include "gui/controls/DropDownLook.h"

#include "gui/controls/KeptDrawState.h"

namespace korvane {

int DropDownLook::FontOf(const DropDownItem& shown, State state) const
{
    if (shown.kind == item::Heading) return headingFont;
    return state.chosen ? selectedFont : itemFont;
}

Color DropDownLook::TextColorOf(const DropDownItem& shown, State state) const
{
    if (shown.kind == item::Heading) return headingColor;
    if (state.pointed) return hoverItemColor;
    if (state.chosen) return selectedItemColor;
    return shown.notSelectable ? disabledItemColor : itemColor;
}

int DropDownLook::RowHeight(CDrawBuffer* buffer) const
{
    const KeptDrawState kept(buffer);
    buffer->SetFont(itemFont);
    return buffer->DrawText("QWERTY", 0, 0, 0, 0, align::Left, true).height + itemPadding;
}

int DropDownLook::RowWidth(CDrawBuffer* buffer, const DropDownItem& shown, State state) const
{
    const KeptDrawState kept(buffer);
    buffer->SetFont(FontOf(shown, state));
    return buffer->DrawText(shown.text, 0, 0, 0, 0, align::Left, true).width + 2 * padX;
}

void DropDownLook::DrawRow(CDrawBuffer* buffer, Rect row, const DropDownItem& shown, State state) const
{
    const KeptDrawState kept(buffer);
    if (shown.kind == item::Separator) {
        buffer->SetFillColor(separatorColor);
        return buffer->FillRect({row.x + padX / 2, row.y + row.h / 2, row.w - padX, 1});
    }
    if (shown.kind == item::Heading) {
        buffer->SetFillColor(headingBandColor);
        buffer->FillRect(row);
    }
    if (state.chosen && AlphaOf(selectedBandColor)) {
        buffer->SetFillColor(selectedBandColor);
        buffer->FillRect(row);
    }
    if (state.pointed) buffer->FillGradient(row, hoverTopColor, hoverTopColor, hoverBottomColor, hoverBottomColor);
    buffer->SetFont(FontOf(shown, state));
    buffer->SetTextColor(TextColorOf(shown, state));
    buffer->DrawText(shown.text, row.x + padX, row.y, row.w - 2 * padX, row.h, align::Left, false);
}

void DropDownLook::DrawScrollBar(CDrawBuffer* buffer, Rect thumb, Rect bar) const
{
    const KeptDrawState kept(buffer);
    buffer->SetFillColor(barColor);
    buffer->FillRect(bar);
    buffer->FillGradient({thumb.x + 1, thumb.y + 1, thumb.w - 2, thumb.h - 2}, thumbTopColor, thumbTopColor,
                         thumbBottomColor, thumbBottomColor);
}

} // namespace korvane
