// About
#include <string_view>

#include "skin/Images.h"
#include "skin/Measures.h"

namespace korvane::skin {

bool DrawAbout(Picture& picture, int id)
{
    if (!SizeOf(id).alpha && std::string_view("About") != "Pages" && std::string_view("About") != "Scores") return false;
    Rounded(picture.pen, {0.5, 0.5, picture.width - 1.0, picture.height - 1.0}, 2);
    Fill(picture.pen, kTaupe);
    return true;
}

} // namespace korvane::skin
