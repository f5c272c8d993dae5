// A rectangle of one colour.
#pragma once

#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

inline void Fill(CDrawBuffer& page, Rect rect, Color color)
{
    page.SetFillColor(color);
    page.FillRect(rect);
}

} // namespace korvane
