// What a control changes of the buffer that it draws into, and puts back.
#pragma once

#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

/// Remembers clip, colours, line width and font of a buffer, and gives them back at its end.
class KeptDrawState {
public:
    explicit KeptDrawState(CDrawBuffer* drawn)
        : buffer(*drawn), clip(drawn->GetClipRect()), frameColor(drawn->GetFrameColor()),
          frameWidth(drawn->GetFrameWidth()), fillColor(drawn->GetFillColor()), textColor(drawn->GetTextColor()),
          font(drawn->GetFont())
    {
    }
    KeptDrawState(const KeptDrawState&) = delete;
    ~KeptDrawState()
    {
        buffer.SetClipRect(clip);
        buffer.SetFrameColor(frameColor);
        buffer.SetFrameWidth(frameWidth);
        buffer.SetFillColor(fillColor);
        buffer.SetTextColor(textColor);
        buffer.SetFont(font);
    }
    /// Narrows the clip to a box; whether anything of that is left.
    bool ClipTo(Rect box) { return buffer.ClipToClipRect(box) && buffer.SetClipRect(box); }

private:
    CDrawBuffer& buffer;
    Rect clip;
    Color frameColor;
    int frameWidth;
    Color fillColor, textColor;
    int font;
};

} // namespace korvane
