// The boxes that lie above the page: the value of a knob, the open list.
#include "gui/controls/RaisedBox.h"

#include "gui/controls/KeptDrawState.h"
#include "platform/Numbers.h"

namespace korvane {

void DrawSoftShadow(CDrawBuffer* buffer, Rect whole, int width, Color color, float opacity)
{
    constexpr float kDarkest = 0.6f; // where all layers lie on each other, about; by eye
    if (!buffer || width < 1) return;
    const KeptDrawState kept(buffer);
    const float alpha = static_cast<float>(AlphaOf(color)) * Clamp(opacity, 0.0f, 1.0f) * kDarkest;
    buffer->SetFillColor(WithAlpha(color, Truncate(alpha / static_cast<float>(width) + 0.5f)));
    for (int inset = 0; inset < width && 2 * inset + 1 < whole.w && 2 * inset + 1 < whole.h; ++inset)
        buffer->FillRect({whole.x + inset + 1, whole.y + inset + 1, whole.w - 2 * inset - 1, whole.h - 2 * inset - 1});
}

void DrawPanel(CDrawBuffer* buffer, Rect box, Color top, Color bottom, Color frame)
{
    if (!buffer) return;
    const KeptDrawState kept(buffer);
    buffer->FillGradient(box, top, top, bottom, bottom);
    buffer->SetFrameColor(frame);
    buffer->SetFrameWidth(1);
    buffer->DrawFrame(box);
}

} // namespace korvane
