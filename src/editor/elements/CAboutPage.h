// The page about the instrument, above everything else.
#pragma once

#include <memory>

#include "gui/controls/CControlGroup.h"

namespace korvane {

/// A press on the logo opens it, the next left press, wherever it is, closes it. While it is open the rest of the
/// editor stands still below it and hears nothing. It ends with its window, open or not.
class CAboutPage : public CControlGroup {
public:
    explicit CAboutPage(CPluginUI* owner) : CControlGroup(owner) {}

    // clang-format off
    void MouseEvent(int x, int y, int modifierBits, int type) override;
    void Tick(bool pointerMoved, int x, int y) override;
    // clang-format on

    std::unique_ptr<CDrawBuffer> snapshot; // the editor with the page over it; null while closed

private:
    void Show();
    void Hide();
};

} // namespace korvane
