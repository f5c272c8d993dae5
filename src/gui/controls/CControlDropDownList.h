// A text box that opens a list of choices and commands.
#pragma once

#include <memory>

#include "gui/controls/CControlTextDisplay.h"
#include "gui/controls/DropDownLook.h"
#include "gui/controls/OpenListLayout.h"

namespace korvane {

/// Its value is the number of the chosen item. Open, it holds the mouse; any press but on its scroll bar closes it, and
/// so does a mouse that somebody else takes.
class CControlDropDownList : public CControlTextDisplay {
public:
    using CControlTextDisplay::CControlTextDisplay;

    // clang-format off
    void CancelInteraction() override { Close(); }
    void OnLeftDown(int x, int y) override;
    void OnLeftUp(int x, int y) override;
    void OnMiddleDown(int, int) override { Close(); }
    void OnRightDown(int, int) override { Close(); }
    void OnMouseMove(int x, int y) override;
    void OnWheel(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    void OnTick() override;
    bool CoversOthers() override { return open; }
    ~CControlDropDownList() override;
    virtual void RenderList(CDrawBuffer* buffer);          // at the buffer's top-left corner
    virtual void DrawListShadow(CDrawBuffer* buffer);
    virtual Rect GetItemRect(int index);                   // in the window; empty when there is none
    virtual void GetScrollBarRects(Rect& thumb, Rect& bar); // empty when nothing scrolls
    virtual DropDownItem* ItemAt(int x, int y);            // null where nothing can be chosen
    virtual void LayoutList();
    // clang-format on

    /// kind  of item::
    DropDownItem& AddItem(const char* itemText, std::uint8_t kind = item::Choice);
    /// Also closes the list.
    void ClearItems();
    /// What the closed box reads instead of the chosen item; null: that again.
    void SetClosedText(const char* newText);
    bool IsOpen() const { return open; }
    /// As if the user had given up.
    void Close();

    DropDownItems items;
    DropDownLook look;
    bool showText = true;       // while closed
    float listFadeStep = 0.25f; // per tick
    float scroll = 0.0f;        // 0..1
    float scrollSpeed = 0.0f;   // of the scroll position, per pixel
    int hoverIndex = -1;        // of the item under the pointer
    float listFade = 0.0f;      // 0..1, opacity of the open list

private:
    void Open();
    void Choose(int index);
    bool PressScrollBar(int x, int y);
    int IndexAt(int x, int y);
    void Hover(int x, int y);
    void ScrollTo(float position);
    DropDownLook::State StateOf(int index, const DropDownItem& shown);
    void DrawOpenList(CDrawBuffer* buffer);
    Rect ListWithShadow();
    int CurrentIndex();
    const char* ClosedText();

    OpenListLayout layout;
    char closedText[sizeof text] = "";
    bool open = false, thumbHeld = false;
    int thumbStart = 0; // where it was pressed
    float scrollStart = 0.0f;
    std::unique_ptr<CDrawBuffer> picture; // of the open list
    std::unique_ptr<CDrawBuffer> behind;  // the page below it, as long as the page is not drawn anew
};

} // namespace korvane
