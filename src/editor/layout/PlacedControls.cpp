// The editor's controls, found by their rows.
#include "editor/layout/PlacedControls.h"

#include <algorithm>

namespace korvane {

void PlacedControls::Clear()
{
    all.clear();
    bound.fill(nullptr);
}

void PlacedControls::Add(PlacedControl placed)
{
    const int id = placed.control->GetId();
    if (id >= 0 && id < param::Count) bound[static_cast<std::size_t>(id)] = placed.control;
    all.push_back(placed);
}

const PlacedControl* PlacedControls::Find(const CControl* control) const
{
    const auto found = std::ranges::find(all, control, &PlacedControl::control);
    return found != all.end() ? &*found : nullptr;
}

CControl* PlacedControls::OfRole(Role role, int number) const
{
    for (const PlacedControl& placed : all)
        if (placed.row->role == role && placed.NumberInRole() == number) return placed.control;
    return nullptr;
}

void PlacedControls::ShowPage(Page page, CBitmap* picture)
{
    for (const PlacedControl& placed : all) {
        placed.control->hidden = placed.row->page != Page::All && placed.row->page != page;
        if (ShowsPage(placed.row->widget)) static_cast<CControlTextDisplay*>(placed.control)->bitmap = picture;
    }
}

} // namespace korvane
