// A box with text: a label, or what a value reads as.
#include "gui/controls/CControlTextDisplay.h"

#include <cstring>

#include "gui/controls/KeptDrawState.h"
#include "platform/Numbers.h"

namespace korvane {

void CControlTextDisplay::SetText(const char* newText)
{
    if (!newText) newText = "";
    const std::size_t length = strnlen(newText, sizeof text - 1);
    if (std::strlen(text) == length && std::memcmp(text, newText, length) == 0) return;
    std::memmove(text, newText, length);
    text[length] = 0;
    SetDirty(true);
}

void CControlTextDisplay::OnLeftDown(int, int) { NotifyChanged(clickNotifies); }

void CControlTextDisplay::Draw(CDrawBuffer* buffer)
{
    if (buffer) DrawTextBox(buffer, backgroundColor, textColor);
}

void CControlTextDisplay::DrawTextBox(CDrawBuffer* buffer, Color background, Color plainText)
{
    KeptDrawState kept(buffer);
    if (!kept.ClipTo(textRect)) return;
    buffer->SetFillColor(background);
    if (bitmap)
        DrawImage(buffer, imageOffset);
    else
        buffer->FillRect(textRect);
    WriteText(buffer, plainText);
}

void CControlTextDisplay::DrawImage(CDrawBuffer* buffer, Point source)
{
    DrawPageBehind(buffer);
    buffer->DrawBitmap(bitmap, rect, source);
}

void CControlTextDisplay::DrawPageBehind(CDrawBuffer* buffer)
{
    if (bitmap && bitmap->HasAlpha()) DrawPage(buffer, rect);
}

void CControlTextDisplay::WriteText(CDrawBuffer* buffer, Color plainText)
{
    KeptDrawState kept(buffer);
    if (!kept.ClipTo(textRect)) return;
    const Color color = hovered && hoverHighlight ? hoverTextColor : plainText;
    buffer->SetFont(font);
    const bool tooWide =
        beginsInside && buffer->DrawText(text, 0, 0, textRect.w, textRect.h, align, true).width > textRect.w;
    const int place = tooWide ? align::Left : align;
    const auto write = [&](int dx, int dy) {
        const int x = Saturate(std::int64_t{textRect.x} + dx), y = Saturate(std::int64_t{textRect.y} + dy);
        buffer->DrawText(text, x, y, textRect.w, textRect.h, place, false);
    };
    if (glow > 0.0f) {
        const float halo = static_cast<float>(AlphaOf(color)) / 255.0f * glow * 255.0f;
        buffer->SetTextColor(WithAlpha(color, Clamp(Truncate(halo), 0, 255)));
        for (const Point away : {Point{-1, 0}, Point{1, 0}, Point{0, -1}, Point{0, 1}}) write(away.x, away.y);
    }
    buffer->SetTextColor(color);
    write(0, 0);
}

} // namespace korvane
