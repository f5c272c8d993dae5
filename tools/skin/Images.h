// What draws each image.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

/// False when the image is none of this kind.
bool DrawKeys(Picture& picture, int id);   // keys with caps
bool DrawFlat(Picture& picture, int id);   // what lies on the lit display
bool DrawMovers(Picture& picture, int id); // knobs and handles
bool DrawLights(Picture& picture, int id); // LEDs and small switches
bool DrawScores(Picture& picture, int id); // the score editor
bool DrawAbout(Picture& picture, int id);
bool DrawPages(Picture& picture, int id);

} // namespace korvane::skin
