// Where the open list of a control and its parts lie.
#include "gui/controls/OpenListLayout.h"

#include <algorithm>

#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kMargin = 4; // to the editor's edges
constexpr int kBorder = 3; // of the box, around the rows
constexpr int kBarWidth = 9;
constexpr int kShortestThumb = 16;

} // namespace

void OpenListLayout::Place(Rect control, Size editor, Rows newRows)
{
    rows = {std::max(newRows.count, 0), std::max(newRows.width, 1), std::max(newRows.height, 1)};
    const std::int64_t wanted = std::int64_t{rows.count} * rows.height + 2 * kBorder;
    const int room = std::max(editor.height - 2 * kMargin, rows.height + 2 * kBorder);
    box.h = Saturate(std::min<std::int64_t>(wanted, room));
    const int frame = 2 * kBorder + (wanted > room ? kBarWidth : 0);
    const int widest = std::max(editor.width - 2 * kMargin, frame + 1);
    box.w = Saturate(std::min<std::int64_t>(std::int64_t{rows.width} + frame, widest));

    const std::int64_t bottom = std::int64_t{editor.height} - kMargin - box.h;
    const std::int64_t below = std::int64_t{control.y} + control.h, above = std::int64_t{control.y} - box.h;
    const std::int64_t y = below > bottom && above >= kMargin ? above : below;
    box.y = Saturate(std::max<std::int64_t>(std::min(y, bottom), kMargin));
    const std::int64_t right = std::int64_t{editor.width} - kMargin - box.w;
    box.x = Saturate(std::max<std::int64_t>(std::min<std::int64_t>(control.x, right), 0));
}

Rect OpenListLayout::View() const
{
    const int bar = HiddenHeight() > 0 ? kBarWidth : 0;
    return {box.x + kBorder, box.y + kBorder, box.w - 2 * kBorder - bar, box.h - 2 * kBorder};
}

int OpenListLayout::HiddenHeight() const
{
    return Saturate(std::int64_t{rows.count} * rows.height - (box.h - 2 * kBorder));
}

Rect OpenListLayout::Row(int index, float scroll) const
{
    if (index < 0 || index >= rows.count) return {};
    const Rect view = View();
    const int scrolled = Truncate(static_cast<double>(Clamp(scroll, 0.0f, 1.0f)) * std::max(HiddenHeight(), 0) + 0.5);
    return {view.x, Saturate(view.y + std::int64_t{index} * rows.height - scrolled), view.w, rows.height};
}

int OpenListLayout::RowAt(int x, int y, float scroll) const
{
    if (!View().Contains(x, y)) return -1;
    const std::int64_t row = (std::int64_t{y} - Row(0, scroll).y) / rows.height;
    return row < rows.count ? static_cast<int>(row) : -1;
}

Rect OpenListLayout::Bar() const
{
    if (HiddenHeight() <= 0) return {};
    const Rect view = View();
    return {view.x + view.w + 1, view.y, kBarWidth - 1, view.h};
}

Rect OpenListLayout::Thumb(float scroll) const
{
    const Rect bar = Bar();
    if (bar.h < 1) return {};
    const std::int64_t whole = std::int64_t{bar.h} + HiddenHeight();
    const int length = std::min(std::max(static_cast<int>(std::int64_t{bar.h} * bar.h / whole), kShortestThumb), bar.h);
    const int moved = Truncate(Clamp(scroll, 0.0f, 1.0f) * static_cast<float>(bar.h - length) + 0.5f);
    return {bar.x, bar.y + moved, bar.w, length};
}

float OpenListLayout::ScrollPerPixel() const
{
    const int way = Bar().h - Thumb(0.0f).h;
    return way > 0 ? 1.0f / static_cast<float>(way) : 0.0f;
}

float OpenListLayout::ScrollPerPage() const
{
    const int hidden = HiddenHeight();
    return hidden > 0 ? static_cast<float>(View().h) / static_cast<float>(hidden) : 0.0f;
}

float OpenListLayout::ScrollThatCentres(int index) const
{
    const int hidden = HiddenHeight();
    if (hidden <= 0 || index < 0) return 0.0f;
    const double top = static_cast<double>(index) * rows.height - (View().h - rows.height) / 2;
    return static_cast<float>(Clamp(top / hidden, 0.0, 1.0));
}

} // namespace korvane
