// How the open list of a drop-down list looks.
#include <algorithm>

#include "gui/controls/CControlDropDownList.h"
#include "gui/controls/KeptDrawState.h"
#include "gui/controls/RaisedBox.h"
#include "gui/window/CPluginUI.h"
#include "platform/Numbers.h"

namespace korvane {

bool CControlDropDownList::IsCurrent(int index, const DropDownItem& shown)
{
    return shown.marked || (shown.kind == item::Choice && value == static_cast<float>(index));
}

int CControlDropDownList::FontOf(int index, const DropDownItem& shown)
{
    if (shown.kind == item::Heading) return headingFont;
    return IsCurrent(index, shown) ? selectedFont : itemFont;
}

Rect CControlDropDownList::ListWithShadow()
{
    const Rect box = layout.Box();
    const int shadow = Clamp(listShadow, 0, 64);
    return {box.x, box.y, Saturate(std::int64_t{box.w} + shadow), Saturate(std::int64_t{box.h} + shadow)};
}

/// Above the page as it was when the list opened; what is drawn there again and again is not all opaque.
void CControlDropDownList::DrawOpenList(CDrawBuffer* buffer)
{
    const Rect box = layout.Box(), whole = ListWithShadow();
    CPluginUI* const window = GetWindow();
    if (!behind || (window && window->IsDirty())) {
        behind = std::make_unique<CDrawBuffer>();
        picture = std::make_unique<CDrawBuffer>();
        if (!behind->Create(whole.h, whole.w, false) || !picture->Create(box.h, box.w, false)) return;
        buffer->Draw(behind.get(), {0, 0, whole.w, whole.h}, {whole.x, whole.y});
    }
    behind->Draw(buffer, whole, {0, 0});
    DrawListShadow(buffer);
    RenderList(picture.get());
    picture->DrawBlended(buffer, box, {0, 0}, static_cast<std::uint8_t>(Truncate(listFade * 255.0f + 0.5f)));
    ShowDrawn(whole);
}

void CControlDropDownList::DrawListShadow(CDrawBuffer* buffer)
{
    const Rect whole = ListWithShadow();
    DrawSoftShadow(buffer, whole, whole.w - layout.Box().w, listShadowColor, listFade);
}

void CControlDropDownList::RenderList(CDrawBuffer* buffer)
{
    if (!buffer) return;
    const Rect box = layout.Box(), view = layout.View();
    DrawPanel(buffer, {0, 0, box.w, box.h}, listTopColor, listBottomColor, listFrameColor);
    const KeptDrawState kept(buffer);
    if (!buffer->SetClipRect({view.x - box.x, view.y - box.y, view.w, view.h})) return;
    int index = 0;
    for (const DropDownItem* shown = items.First(); shown; shown = shown->next, ++index) {
        const Rect row = GetItemRect(index);
        const Rect place{row.x - box.x, Saturate(std::int64_t{row.y} - box.y), row.w, row.h};
        if (place.y < box.h && place.y > -place.h) RenderItem(buffer, index, *shown, place);
    }
    buffer->ResetClipRect();
    RenderScrollBar(buffer);
}

void CControlDropDownList::RenderItem(CDrawBuffer* buffer, int index, const DropDownItem& shown, Rect place)
{
    const bool pointed = index == hoverIndex;
    if (shown.kind == item::Separator) {
        buffer->SetFillColor(separatorColor);
        return buffer->FillRect({place.x + itemPadX / 2, place.y + place.h / 2, place.w - itemPadX, 1});
    }
    if (shown.kind == item::Heading) {
        buffer->SetFillColor(headingBandColor);
        buffer->FillRect(place);
    }
    if (pointed) buffer->FillGradient(place, hoverTopColor, hoverTopColor, hoverBottomColor, hoverBottomColor);
    buffer->SetFont(FontOf(index, shown));
    buffer->SetTextColor(shown.kind == item::Heading ? headingColor
                         : pointed                   ? hoverItemColor
                         : IsCurrent(index, shown)   ? selectedItemColor
                         : shown.notSelectable       ? disabledItemColor
                                                     : itemColor);
    buffer->DrawText(shown.text, place.x + itemPadX, place.y, place.w - 2 * itemPadX, place.h, align::Left, false);
}

void CControlDropDownList::RenderScrollBar(CDrawBuffer* buffer)
{
    const Rect box = layout.Box();
    Rect thumb, bar;
    GetScrollBarRects(thumb, bar);
    if (bar.h < 1) return;
    buffer->SetFillColor(barColor);
    buffer->FillRect({bar.x - box.x, bar.y - box.y, bar.w, bar.h});
    buffer->FillGradient({thumb.x - box.x + 1, thumb.y - box.y + 1, thumb.w - 2, thumb.h - 2}, thumbTopColor,
                         thumbTopColor, thumbBottomColor, thumbBottomColor);
}

} // namespace korvane
