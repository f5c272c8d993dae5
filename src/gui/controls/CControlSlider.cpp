// A handle on a track.
#include "gui/controls/CControlSlider.h"

#include <algorithm>
#include <cmath>

#include "gui/controls/KeptDrawState.h"
#include "platform/Numbers.h"

namespace korvane {

void CControlSlider::OnLeftDown(int x, int y)
{
    if (jumpToClick) {
        const Size size = handle ? handle->GetSize() : Size{};
        const auto part = [](int place, int start, int length, int taken) { // of the way that the handle can go
            return static_cast<float>(std::int64_t{place} - start) / static_cast<float>(std::int64_t{length} - taken);
        };
        const float clicked =
            horizontalTrack ? 1.0f - part(y, track.y, track.h, size.height) : part(x, track.x, track.w, size.width);
        SetValue(Clamp(clicked, 0.0f, 1.0f));
        NotifyChanged(true);
    }
    CControlKnob::OnLeftDown(x, y);
}

void CControlSlider::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    const KeptDrawState kept(buffer);
    buffer->SetFillColor(backgroundColor);
    if (bitmap)
        DrawImage(buffer, imageOffset);
    else
        buffer->FillRect(rect);
    if (handle) DrawHandle(buffer);
    DrawValuePopup(buffer);
}

void CControlSlider::DrawHandle(CDrawBuffer* buffer)
{
    const Size size = handle->GetSize();
    const auto spare = [](int length, int taken) { return static_cast<float>(std::int64_t{length} - taken); };
    const float position = ShownPosition();
    const float left =
        static_cast<float>(std::int64_t{track.x} + handleOffset.x) + spare(track.w, size.width) * position;
    const float top =
        static_cast<float>(std::int64_t{track.y} + handleOffset.y) + spare(track.h, size.height) * (1.0f - position);
    const float along = horizontalTrack ? top : left;
    const int whole = Truncate(std::floor(along));
    const auto draw = [&](int offset, float opacity) {
        const int moved = Saturate(std::int64_t{whole} + offset);
        const int across = horizontalTrack ? Saturate(track.x + (std::int64_t{track.w} - size.width) / 2)
                                           : Saturate(track.y + (std::int64_t{track.h} - size.height) / 2);
        const Rect place = horizontalTrack ? Rect{across, moved, size.width, size.height}
                                           : Rect{moved, across, size.width, size.height};
        buffer->DrawBitmapBlended(handle, place, {0, 0}, opacity);
    };
    const float beyond = along - std::floor(along);
    draw(0, crossfade ? std::min(1.0f, 2.0f * (1.0f - beyond)) : 1.0f);
    if (crossfade) draw(1, std::min(1.0f, 2.0f * beyond));
}

} // namespace korvane
