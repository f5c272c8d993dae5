// A row or column of buttons that choose one value.
#pragma once

#include "gui/controls/CControlButton.h"

namespace korvane {

/// Chooses when it is pressed; in the mode ToggleOnPress when the button is let go over the tab that was pressed. Its
/// states stand below each other in the bitmap, as high as a tab: off, on; in that mode: off, held, on, on and held.
class CControlTab : public CControlButton {
public:
    using CControlButton::CControlButton;

    // clang-format off
    void OnLeftDown(int x, int y) override;
    void OnLeftUp(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    virtual void DrawTab(CDrawBuffer* buffer, int index);
    // clang-format on

    int tabCount = 0;
    int tabWidth = 0, tabHeight = 0; // pixels
    bool vertical = false;           // tabs below each other; their images stand side by side all the same
    bool normalized = false;         // the value goes from 0 to 1, else it is the index
    bool sharedImage = false;        // all tabs look like the first
    bool reversed = false;           // the value is 1 minus that
    int pressedTab = -1;

private:
    int TabAt(int x, int y);
    int SelectedTab();
    void Select(int index);
};

} // namespace korvane
