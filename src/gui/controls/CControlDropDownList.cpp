// A text box that opens a list of choices and commands.
#include "gui/controls/CControlDropDownList.h"

#include <algorithm>
#include <cstring>

#include "gui/controls/RaisedBox.h"
#include "gui/window/CPluginUI.h"
#include "platform/Numbers.h"

namespace korvane {

CControlDropDownList::~CControlDropDownList() = default;

DropDownItem& CControlDropDownList::AddItem(const char* itemText, std::uint8_t kind)
{
    SetDirty(true);
    return items.Add(itemText, kind);
}

void CControlDropDownList::ClearItems()
{
    Close();
    items.Clear();
    SetDirty(true);
}

void CControlDropDownList::SetClosedText(const char* newText)
{
    if (!newText) newText = "";
    if (std::strncmp(closedText, newText, sizeof closedText - 1) == 0) return;
    const std::size_t length = strnlen(newText, sizeof closedText - 1);
    std::memmove(closedText, newText, length);
    closedText[length] = 0;
    SetDirty(true);
}

/// -1: none.
int CControlDropDownList::CurrentIndex() { return value < 0.0f ? -1 : Truncate(value); }

const char* CControlDropDownList::ClosedText()
{
    if (!showText) return "";
    if (*closedText) return closedText;
    const DropDownItem* const chosen = items.At(CurrentIndex());
    return chosen ? chosen->text : "<none>";
}

// Opening and choosing

void CControlDropDownList::Open()
{
    CDrawBuffer* const page = GetDrawBuffer();
    if (!page || !page->IsValid() || items.Count() == 0) return;
    CaptureMouse(false);
    LayoutList();
    open = true;
    thumbHeld = false;
    hoverIndex = -1;
    listFade = 0.0f;
    SetDirty(true);
}

void CControlDropDownList::LayoutList()
{
    CDrawBuffer* const page = GetDrawBuffer();
    if (!page) return;
    OpenListLayout::Rows rows{items.Count(), 0, look.RowHeight(page)};
    int index = 0;
    for (const DropDownItem* shown = items.First(); shown; shown = shown->next, ++index)
        rows.width = std::max(rows.width, look.RowWidth(page, *shown, StateOf(index, *shown)));
    layout.Place(rect, GetEditorSize(), rows);
    scrollSpeed = layout.ScrollPerPixel();
    scroll = layout.ScrollThatCentres(CurrentIndex());
}

void CControlDropDownList::Close()
{
    if (!open) return;
    open = thumbHeld = false;
    picture.reset();
    behind.reset();
    ReleaseMouse();
    SetDirty(true);
    InvalidateAll();
}

void CControlDropDownList::OnLeftDown(int x, int y)
{
    if (!open) return Open();
    if (PressScrollBar(x, y)) return;
    const int index = IndexAt(x, y);
    Close();
    if (index >= 0) Choose(index);
}

/// Whoever hears of a choice may fill the list anew. A command leaves the value as it was.
void CControlDropDownList::Choose(int index)
{
    const float chosen = static_cast<float>(index), before = value;
    if (items.At(index)->kind != item::Command) {
        SetValue(chosen);
        NotifyChanged(true);
        return;
    }
    value = chosen;
    NotifyChanged(true);
    value = before;
}

int CControlDropDownList::IndexAt(int x, int y)
{
    const int index = open ? layout.RowAt(x, y, scroll) : -1;
    const DropDownItem* const found = items.At(index);
    return found && !found->notSelectable ? index : -1;
}

DropDownItem* CControlDropDownList::ItemAt(int x, int y) { return items.At(IndexAt(x, y)); }

// Scrolling

Rect CControlDropDownList::GetItemRect(int index) { return layout.Row(index, scroll); }

void CControlDropDownList::GetScrollBarRects(Rect& thumb, Rect& bar)
{
    thumb = layout.Thumb(scroll);
    bar = layout.Bar();
}

/// Takes the thumb, or scrolls by a page towards the pointer. Whether the pointer is on the bar.
bool CControlDropDownList::PressScrollBar(int x, int y)
{
    Rect thumb, bar;
    GetScrollBarRects(thumb, bar);
    if (!bar.Contains(x, y)) return false;
    thumbHeld = thumb.Contains(x, y);
    thumbStart = y;
    scrollStart = scroll;
    if (!thumbHeld) ScrollTo(scroll + (y < thumb.y ? -1.0f : 1.0f) * layout.ScrollPerPage());
    return true;
}

void CControlDropDownList::OnLeftUp(int, int) { thumbHeld = false; }

void CControlDropDownList::OnMouseMove(int x, int y)
{
    if (!open) return;
    if (thumbHeld)
        ScrollTo(scrollStart + static_cast<float>(std::int64_t{y} - thumbStart) * scrollSpeed);
    else
        Hover(x, y);
}

void CControlDropDownList::OnWheel(int, int notches)
{
    constexpr float kPixelsPerNotch = 15.0f;
    if (!open || thumbHeld) return;
    ScrollTo(scroll - static_cast<float>(notches) * kPixelsPerNotch * scrollSpeed);
    const Point pointer = GetMousePosition();
    Hover(pointer.x, pointer.y);
}

void CControlDropDownList::ScrollTo(float position)
{
    position = Clamp(position, 0.0f, 1.0f);
    if (position == scroll) return;
    scroll = position;
    Redraw();
}

void CControlDropDownList::Hover(int x, int y)
{
    const int index = IndexAt(x, y);
    if (index == hoverIndex) return;
    hoverIndex = index;
    Redraw();
}

void CControlDropDownList::OnTick()
{
    if (!open || listFade == 1.0f) return;
    listFade = Clamp(listFade + listFadeStep, 0.0f, 1.0f);
    SetDirty(true);
}

// Drawing

void CControlDropDownList::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    SetText(ClosedText());
    CControlTextDisplay::Draw(buffer);
    if (open) DrawOpenList(buffer);
}

Rect CControlDropDownList::ListWithShadow()
{
    const Rect box = layout.Box();
    const int shadow = Clamp(look.shadow, 0, 64);
    return {box.x, box.y, Saturate(std::int64_t{box.w} + shadow), Saturate(std::int64_t{box.h} + shadow)};
}

/// Above the page as it was when the list opened: what is drawn there again and again is not all opaque.
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
    DrawSoftShadow(buffer, whole, whole.w - layout.Box().w, look.shadowColor, listFade);
}

DropDownLook::State CControlDropDownList::StateOf(int index, const DropDownItem& shown)
{
    const bool current = shown.kind == item::Choice && index == CurrentIndex();
    return {current || shown.marked, index == hoverIndex};
}

void CControlDropDownList::RenderList(CDrawBuffer* buffer)
{
    if (!buffer) return;
    const Rect box = layout.Box();
    const auto local = [&box](Rect r) {
        return Rect{Saturate(std::int64_t{r.x} - box.x), Saturate(std::int64_t{r.y} - box.y), r.w, r.h};
    };
    DrawPanel(buffer, local(box), look.topColor, look.bottomColor, look.frameColor);
    if (!buffer->SetClipRect(local(layout.View()))) return;
    int index = 0;
    for (const DropDownItem* shown = items.First(); shown; shown = shown->next, ++index) {
        const Rect row = local(GetItemRect(index));
        if (row.y < box.h && row.y > -row.h) look.DrawRow(buffer, row, *shown, StateOf(index, *shown));
    }
    buffer->ResetClipRect();
    Rect thumb, bar;
    GetScrollBarRects(thumb, bar);
    if (bar.h > 0) look.DrawScrollBar(buffer, local(thumb), local(bar));
}

} // namespace korvane
