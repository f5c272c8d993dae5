// The about page: who made it, and the computer keyboard.
#include <algorithm>

#include "editor/KeyTable.h"
#include "skin/Caps.h"
#include "skin/Images.h"
#include "skin/Measures.h"
#include "skin/Print.h"
#include "skin/Silk.h"

namespace korvane::skin {

namespace {

constexpr Box kSheet{252, 96, 560, 438};
constexpr Type kPlain{11, Weight::Plain, 0.1}, kHead{10, Weight::Bold, 1.2};

/// What the keys of some parameters do.
struct KeyRow {
    int first, count; // of param::
    bool toggles;     // those that turn over; else those that act while they are down
    const char* text;
};

// clang-format off
constexpr KeyRow kLeftRows[] = {
    {param::Play,         1, true,  "Play, stop"},
    {param::Edit,         1, true,  "Edit mode on, off"},
    {param::Edit,         1, false, "Edit mode while held"},
    {param::Back,         2, false, "Back, forward"},
    {param::Clear,        3, false, "Copy, paste, clear"},
    {param::MuteSelected, 1, false, "Mute"},
};
constexpr KeyRow kRightRows[] = {
    {param::Channel1,                    kSamplerChannels,             false, "Sampler channels 1 to 8"},
    {param::Channel1 + kSamplerChannels, kChannels - kSamplerChannels, false, "Synth channels 1 to 5"},
    {param::Pattern1,                    8,                            false, "Patterns 1 to 8"},
};
// clang-format on

/// x  where the key begins. Where the next one may.
double DrawKeyOf(cairo_t* pen, const char* name, double x, double y)
{
    constexpr Type kName{9.5, Weight::Bold, 0.2};
    constexpr double kSide = 21;
    const CapLook look{kTaupe, kAmber, 0, false};
    const double width = std::max(kSide, WidthOf(pen, kName, name) + 14);
    const Box face = DrawCap(pen, {x, y - kSide / 2, width, kSide}, look);
    Write(pen, kName, kCream, name, face.MiddleX(), face.MiddleY());
    return x + width + 1;
}

void DrawKeyRow(cairo_t* pen, const KeyRow& row, double x, double y)
{
    for (const PanelKey& key : kPanelKeys)
        if (key.parameter >= row.first && key.parameter < row.first + row.count && key.toggles == row.toggles)
            x = DrawKeyOf(pen, key.name, x, y);
}

void DrawKeyboard(cairo_t* pen)
{
    constexpr double kRow = 27, kToKeys = 6; // so that a heading stands by its keys
    const double left = kSheet.x + 36, right = kSheet.x + 290, top = kSheet.y + 172;
    Write(pen, kHead, kTitleInk, "KEYBOARD", left, top, Stand::Left);
    double y = top + 26;
    for (const KeyRow& row : kLeftRows) {
        DrawKeyRow(pen, row, left, y);
        Write(pen, kPlain, kCream, row.text, left + 76, y, Stand::Left);
        y += kRow;
    }
    y = top + 26;
    for (const KeyRow& row : kRightRows) {
        Write(pen, kPlain, kCream, row.text, right, y + kToKeys, Stand::Left);
        DrawKeyRow(pen, row, right - 1, y + kRow);
        y += 2 * kRow;
    }
}

/// What the mouse does beyond the obvious.
void DrawMouse(cairo_t* pen)
{
    struct Hint {
        const char* hand;
        const char* effect;
    };
    constexpr Hint kHints[] = {{"Drop", "a sound, program or groove"},
                               {"Alt click", "a control: its default"},
                               {"Right click", "a control: its notes and locks"},
                               {"Click", "closes this page"}};
    const double top = kSheet.y + 375;
    Write(pen, kHead, kTitleInk, "MOUSE", kSheet.x + 36, top, Stand::Left);
    for (int n = 0; n < 4; ++n) {
        const double x = kSheet.x + (n % 2 == 1 ? 290 : 36), y = top + 22 + n / 2 * 19;
        Write(pen, {11, Weight::Bold, 0.1}, kCream, kHints[n].hand, x, y, Stand::Left);
        Write(pen, kPlain, kCream, kHints[n].effect, x + 76, y, Stand::Left);
    }
}

void DrawMaker(cairo_t* pen)
{
    const double middle = kSheet.MiddleX();
    PrintWordmark(pen, 46, middle, kSheet.y + 54);
    Write(pen, {12, Weight::Bold, 0.4}, kCream, "Version " KORVANE_VERSION, middle, kSheet.y + 100);
    Write(pen, kPlain, kCream, "A groovebox of eight samplers and five synthesizers, made by Brassmoor", middle,
          kSheet.y + 118);
    Write(pen, kPlain, kDimCream, "Home: the Korvane repository of Brassmoor. Licence: as stated there.", middle,
          kSheet.y + 135);
}

} // namespace

bool DrawAbout(Picture& picture, int id)
{
    if (id != image::About) return false;
    cairo_t* const pen = picture.pen;
    cairo_rectangle(pen, 0, 0, picture.width, picture.height);
    Fill(pen, Black(0.62));
    Shadow(pen, kSheet.Moved(0, 5), 8, 18, 0.55);
    Plate(pen, kSheet, 8, Lighter(kPlateTop, 0.03), kPlateBottom);
    DrawMaker(pen);
    for (const double y : {152.5, 356.5})
        Line(pen, kSheet.x + 36, kSheet.y + y, kSheet.x + kSheet.w - 36, kSheet.y + y);
    Stroke(pen, Fade(kCream, 0.25), 1);
    DrawKeyboard(pen);
    DrawMouse(pen);
    return true;
}

} // namespace korvane::skin
