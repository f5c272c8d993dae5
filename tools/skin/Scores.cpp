// The score editor's grounds, below what it draws itself.
#include "skin/Images.h"
#include "skin/Measures.h"

namespace korvane::skin {

bool DrawScores(Picture& picture, int id)
{
    if (id != image::ScoreEdit && id != image::DrumsEditor && id != image::NoteEditorButtons) return false;
    cairo_rectangle(picture.pen, 0, 0, picture.width, picture.height);
    Fill(picture.pen, kNight);
    return true;
}

} // namespace korvane::skin
