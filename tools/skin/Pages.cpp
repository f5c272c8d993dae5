// Pages
#include <string_view>

#include "skin/Images.h"
#include "skin/Measures.h"

namespace korvane::skin {

bool DrawPages(Picture& picture, int id)
{
    if (!SizeOf(id).alpha && std::string_view("Pages") != "Pages" && std::string_view("Pages") != "Scores") return false;
    Rounded(picture.pen, {0.5, 0.5, picture.width - 1.0, picture.height - 1.0}, 2);
    Fill(picture.pen, kTaupe);
    return true;
}

} // namespace korvane::skin
