// A rotary control: how it moves and what it shows.
#include "gui/controls/CControlKnob.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "gui/controls/KeptDrawState.h"
#include "gui/controls/RaisedBox.h"
#include "gui/window/CPluginUI.h"
#include "platform/Numbers.h"

namespace korvane {

CControlKnob::CControlKnob(Rect place, int number)
    : CControlNumber(place, number), imageRect{static_cast<float>(place.x), static_cast<float>(place.y),
                                               static_cast<float>(place.w), static_cast<float>(place.h)},
      frameSize(place.h), pointerRadius(static_cast<float>(std::min(place.w, place.h)) / 2.0f)
{
    sensitivity = 0.01f;
}

bool CControlKnob::SetValue(float newValue)
{
    const bool changed = CControlNumber::SetValue(newValue);
    if (shownValue == -1.0f) shownValue = value;
    return changed;
}

void CControlKnob::OnLeftDown(int x, int y)
{
    CControlNumber::OnLeftDown(x, y);
    if (showValuePopup && IsCapturing()) OpenPopup();
}

void CControlKnob::OnLeftUp(int x, int y)
{
    if (springBack && !springing && IsCapturing()) {
        springing = true; // who hears of it may cancel what goes on, and so come back here
        SetValue(GetDefaultValue());
        NotifyChanged(true);
        springing = false;
    }
    CControlNumber::OnLeftUp(x, y);
    ClosePopup();
}

void CControlKnob::OnTick()
{
    constexpr float kNear = 0.001f;
    if (!(smoothing >= kNear) || shownValue == value) return;
    shownValue += (value - shownValue) * std::min(smoothing, 1.0f);
    if (!(std::fabs(value - shownValue) >= kNear)) shownValue = value;
    SetDirty(true);
}

// Drawing

float CControlKnob::ShownPosition()
{
    float position = value;
    if (steps > 0) {
        const float stepCount = static_cast<float>(steps);
        position = static_cast<float>(Truncate(value * stepCount)) / stepCount;
    }
    if (smoothing > 0.0f) position = shownValue;
    position = Clamp(position, 0.0f, 1.0f);
    return inverted ? 1.0f - position : position;
}

void CControlKnob::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    const KeptDrawState kept(buffer);
    const float position = ShownPosition();
    if (bitmap) {
        DrawPageBehind(buffer);
        DrawFrames(buffer, position);
    } else {
        buffer->SetFillColor(backgroundColor);
        buffer->FillRect(rect);
    }
    if (drawPointer) DrawPointerLines(buffer, position);
    if (popup) DrawValuePopup(buffer);
}

/// Above the page, if the frames let it show. The frame nearest to the position, and over it, as far as the position
/// lies beyond that one, the next.
void CControlKnob::DrawFrames(CDrawBuffer* buffer, float position)
{
    const int last = std::max(frameCount, 1) - 1;
    const float exact = static_cast<float>(last) * position;
    const int frame = Clamp(Truncate(std::floor(exact + 0.5f)), 0, last);
    const auto source = [&](int number) {
        const std::int64_t offset = std::int64_t{number} * frameSize;
        return Point{Saturate(imageOffset.x + (verticalStrip ? 0 : offset)),
                     Saturate(imageOffset.y + (verticalStrip ? offset : 0))};
    };
    const float beyond = exact - static_cast<float>(frame);
    const bool fades = crossfade && frame < last && beyond > 0.0f;
    if (!fades || !bitmap->HasAlpha()) {
        buffer->DrawBitmap(bitmap, rect, source(frame));
        if (fades) buffer->DrawBitmapBlended(bitmap, rect, source(frame + 1), beyond);
        return;
    }
    CDrawBuffer neighbour; // the next frame above the page: drawn over this one, it would show both
    const Rect whole{0, 0, rect.w, rect.h};
    if (!neighbour.Create(rect.h, rect.w, false)) return;
    buffer->Draw(&neighbour, whole, {rect.x, rect.y});
    neighbour.DrawBitmap(bitmap, whole, source(frame + 1));
    buffer->DrawBitmap(bitmap, rect, source(frame));
    neighbour.DrawBlended(buffer, rect, {0, 0}, static_cast<std::uint8_t>(Truncate(beyond * 255.0f + 0.5f)));
}

void CControlKnob::DrawPointerLines(CDrawBuffer* buffer, float position)
{
    constexpr float kPi = std::numbers::pi_v<float>;
    const float angle = 1.5f * kPi - (2.0f * kPi - sweep) / 2.0f + angleOffset - sweep * position;
    const float x = imageRect.x + imageRect.w / 2.0f, y = imageRect.y + imageRect.h / 2.0f;
    const float right = std::cos(angle), down = -std::sin(angle);
    const auto line = [&](Color color, int lineWidth, float from, float to) {
        buffer->SetFrameWidth(lineWidth);
        for (const bool accumulate : {true, false})
            buffer->DrawThickLine(color, x + right * from, y + down * from, x + right * to, y + down * to, accumulate);
    };
    if (pointerShadow)
        line(pointerShadowColor, pointerWidth, (pointerRadius - 1.0f) * pointerInner,
             (pointerRadius + 2.0f) * pointerOuter);
    line(pointerColor, pointerWidth, pointerRadius * pointerInner, pointerRadius * pointerOuter);
}

// The value above the page

/// Below the control, or above it where the editor ends. Whether it has a size.
bool CControlKnob::LayOutPopup(CDrawBuffer* page)
{
    constexpr int kGap = 4;
    const KeptDrawState kept(page);
    page->SetFont(popupFont);
    const Size widest = page->DrawText("-100.00 %", 0, 0, 200, 200, align::Centre, true);
    const std::int64_t w = std::int64_t{widest.width} + popupPadX + popupShadow;
    const std::int64_t h = std::int64_t{widest.height} + popupPadY + popupShadow;
    const std::int64_t x = rect.x + (rect.w - w + popupShadow) / 2;
    std::int64_t y = std::int64_t{rect.y} + rect.h + kGap;
    if (y + h >= GetEditorSize().height - kGap) y = rect.y - h - kGap;
    popupRect = {Saturate(x), Saturate(y), Saturate(w), Saturate(h)};
    return widest.width > 0;
}

void CControlKnob::OpenPopup()
{
    CDrawBuffer* const page = GetDrawBuffer();
    if (!page || !page->IsValid() || !LayOutPopup(page)) return;
    auto drawn = std::make_unique<CDrawBuffer>();
    if (!drawn->Create(popupRect.h, popupRect.w, false)) return;
    const Rect whole{0, 0, popupRect.w, popupRect.h};
    page->Draw(drawn.get(), whole, {popupRect.x, popupRect.y});
    DrawSoftShadow(drawn.get(), whole, popupShadow, popupShadowColor, 1.0f);
    DrawPanel(drawn.get(), {0, 0, whole.w - popupShadow, whole.h - popupShadow}, popupTopColor, popupBottomColor,
              popupFrameColor);
    popup = std::move(drawn);
    SetDirty(true);
}

void CControlKnob::DrawValuePopup(CDrawBuffer* buffer)
{
    if (!buffer || !popup) return;
    char display[1024], label[1024];
    GetParameterDisplay(display);
    GetParameterLabel(label);
    KeptDrawState kept(buffer);
    const Rect box{popupRect.x, popupRect.y, popupRect.w - popupShadow, popupRect.h - popupShadow};
    popup->Draw(buffer, popupRect, {0, 0});
    buffer->SetFont(popupFont);
    buffer->SetTextColor(popupTextColor);
    const std::string shown = std::string(display) + " " + label;
    if (kept.ClipTo(box)) buffer->DrawText(shown.c_str(), box.x, box.y, box.w, box.h, align::Centre, false);
    ShowDrawn(popupRect);
}

void CControlKnob::ClosePopup()
{
    if (!popup) return;
    popup.reset();
    InvalidateAll();
}

} // namespace korvane
