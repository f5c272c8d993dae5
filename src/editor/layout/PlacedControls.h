// The editor's controls, found by their rows.
#pragma once

#include <array>
#include <vector>

#include "editor/layout/Layout.h"
#include "gui/controls/CControlTextDisplay.h"

namespace korvane {

/// A control and where it came from. The window's main group owns it.
struct PlacedControl {
    const ControlRow* row = nullptr;
    int n = 0; // of its row
    CControl* control = nullptr;

    int NumberInRole() const { return row->first + n; }
};

/// All controls of the layout while the window is open; the window's thread.
class PlacedControls {
public:
    void Clear();
    void Add(PlacedControl placed);

    /// The row of a control; null for one that is none of the layout's.
    const PlacedControl* Find(const CControl* control) const;
    /// The control of a parameter; null where it has none.
    CControl* Bound(int parameter) const
    {
        return parameter >= 0 && parameter < param::Count ? bound[static_cast<std::size_t>(parameter)] : nullptr;
    }
    /// A control by its role and its number there; null when there is none.
    template <class Control = CControl>
    Control* Of(Role role, int number = 0) const
    {
        return static_cast<Control*>(OfRole(role, number));
    }

    /// Shows the controls of a page and those of all pages, hides the others, and has what lets the page show take it
    /// from its image.
    void ShowPage(Page page, CBitmap* picture);

    auto begin() const { return all.begin(); }
    auto end() const { return all.end(); }

private:
    CControl* OfRole(Role role, int number) const;

    std::vector<PlacedControl> all; // in the order of the layout
    std::array<CControl*, param::Count> bound{};
};

} // namespace korvane
