// A row or column of buttons that choose one value.
#include "gui/controls/CControlTab.h"

#include <cmath>

#include "platform/Numbers.h"

namespace korvane {

/// The nearest tab of a position within the control; -1 for others.
int CControlTab::TabAt(int x, int y)
{
    const int length = vertical ? tabHeight : tabWidth;
    if (length < 1 || tabCount < 1 || !rect.Contains(x, y)) return -1;
    const std::int64_t along = vertical ? std::int64_t{y} - rect.y : std::int64_t{x} - rect.x;
    return static_cast<int>(Clamp<std::int64_t>(along / length, 0, tabCount - 1));
}

int CControlTab::SelectedTab()
{
    const float shown = reversed ? 1.0f - value : value;
    if (!normalized) return Truncate(shown);
    return Clamp(Truncate(std::floor((shown + 0.0001f) * static_cast<float>(tabCount - 1) + 0.5f)), 0, tabCount - 1);
}

void CControlTab::Select(int index)
{
    float chosen = static_cast<float>(index);
    if (normalized) chosen = Clamp(chosen / static_cast<float>(tabCount - 1), 0.0f, 1.0f);
    SetValue(reversed ? 1.0f - chosen : chosen);
    NotifyChanged(true);
}

void CControlTab::OnLeftDown(int x, int y)
{
    const int index = TabAt(x, y);
    if (disabled || index < 0) return;
    if (mode != button::ToggleOnPress) return Select(index);
    pressedTab = index;
    CaptureMouse(false);
    SetDirty(true);
}

void CControlTab::OnLeftUp(int x, int y)
{
    if (pressedTab < 0) return;
    const int index = pressedTab;
    pressedTab = -1;
    ReleaseMouse();
    SetDirty(true);
    if (TabAt(x, y) == index) Select(index);
}

void CControlTab::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    DrawPageBehind(buffer);
    for (int index = 0; index < tabCount; ++index) DrawTab(buffer, index);
}

void CControlTab::DrawTab(CDrawBuffer* buffer, int index)
{
    if (!buffer) return;
    const bool selected = index == SelectedTab(), held = index == pressedTab;
    const int state = mode != button::ToggleOnPress ? selected : held ? (selected ? 3 : 1) : (selected ? 2 : 0);
    const std::int64_t across = std::int64_t{index} * tabWidth, down = std::int64_t{index} * tabHeight;
    const Rect place{Saturate(rect.x + (vertical ? 0 : across)), Saturate(rect.y + (vertical ? down : 0)), tabWidth,
                     tabHeight};
    const int column = Saturate(imageOffset.x + (sharedImage ? 0 : across));
    buffer->DrawBitmap(bitmap, place, {column, Saturate(std::int64_t{state} * tabHeight)});
}

} // namespace korvane
