// The about page.
#include "skin/Images.h"
#include "skin/Measures.h"

namespace korvane::skin {

bool DrawAbout(Picture& picture, int id)
{
    if (id != image::About) return false;
    cairo_rectangle(picture.pen, 0, 0, picture.width, picture.height);
    Fill(picture.pen, Black(0.6));
    return true;
}

} // namespace korvane::skin
