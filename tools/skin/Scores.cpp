// The score editor: what lies below its notes, and its buttons.
#include <string>

#include "skin/Caps.h"
#include "skin/Icons.h"
#include "skin/Images.h"
#include "skin/Measures.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

// Within the open editor
constexpr int kColumns = 128, kColumn = 8, kBar = 16 * kColumn;
constexpr Box kLane{37, 10, 1024, 128}, kBars{37, 138, 1024, 16};
constexpr double kGridTop = 154, kKeysWidth = 36, kButtonsY = 12; // the buttons stand that far below the grid
constexpr Shade kGrid = Rgb(30, 27, 25), kGridDark = Rgb(24, 21, 20);
constexpr Type kType{8.5, Weight::Bold, 0.3};

struct Rows {
    int count, height;
    bool drums;
};

bool IsBlackKey(int row) { return (0b010101001010 >> row % 12 & 1) != 0; } // C, C#, D ... from the lowest bit

void DrawVerticals(cairo_t* pen, Box box)
{
    for (int n = 0; n <= kColumns; ++n) {
        Line(pen, box.x + n * kColumn - 0.5, box.y, box.x + n * kColumn - 0.5, box.y + box.h);
        Stroke(pen, n % 16 == 0 ? Fade(kCream, 0.4) : n % 4 == 0 ? Fade(kCream, 0.17) : Black(0.35), 1);
    }
}

void DrawGrid(cairo_t* pen, const Rows& rows)
{
    const Box grid{kLane.x, kGridTop, kLane.w, rows.count * rows.height * 1.0};
    for (int n = 0; n < rows.count; ++n) {
        const int row = rows.count - 1 - n;
        const bool dark = rows.drums ? n % 2 == 1 : IsBlackKey(row);
        cairo_rectangle(pen, grid.x, grid.y + n * rows.height, grid.w, rows.height);
        Fill(pen, dark ? kGridDark : Lighter(kGrid, 0.05));
    }
    for (int n = 1; n < rows.count; ++n) { // an octave begins above its C
        const bool octave = !rows.drums && (rows.count - n) % 12 == 0;
        Line(pen, grid.x, grid.y + n * rows.height - 0.5, grid.x + grid.w, grid.y + n * rows.height - 0.5);
        Stroke(pen, octave ? Fade(kCream, 0.4) : Black(0.4), 1);
    }
    DrawVerticals(pen, grid);
}

void DrawPiano(cairo_t* pen, const Rows& rows)
{
    const double h = rows.height;
    cairo_rectangle(pen, 1, kGridTop, kKeysWidth - 2, rows.count * h);
    FillLit(pen, {1, kGridTop, kKeysWidth - 2, 1}, kIvory, Lighter(kIvory, 0.35));
    for (int n = 0; n < rows.count; ++n) {
        const int row = rows.count - 1 - n;
        const double y = kGridTop + n * h;
        const bool black = IsBlackKey(row), seam = row % 12 == 0 || row % 12 == 5; // white keys side by side
        const double line = black ? y + h / 2 : y + h - 0.5;
        if (black || seam) {
            Line(pen, 1, line, kKeysWidth - 1, line);
            Stroke(pen, Black(0.45), 1);
        }
        if (black) {
            Rounded(pen, {1, y + 1.5, 21, h - 3}, 1.5);
            FillDown(pen, {1, y, 21, h}, Rgb(70, 64, 58), Rgb(20, 18, 16));
        }
        if (row % 12 == 0) Write(pen, kType, kDarkInk, "C", kKeysWidth - 8, y + h / 2);
    }
}

void DrawDrumNames(cairo_t* pen, const Rows& rows)
{
    for (int n = 0; n < rows.count; ++n) {
        const Box key{1, kGridTop + n * rows.height + 1.0, kKeysWidth - 2, rows.height - 2.0};
        Rounded(pen, key, 2);
        FillDown(pen, key, Lighter(kCharcoal, 0.1), Darker(kCharcoal, 0.2));
        Write(pen, kLegend, kDimCream, "SMP", key.x + 10, key.MiddleY());
        Write(pen, {12, Weight::Bold}, kCream, std::to_string(n + 1).c_str(), key.x + 25, key.MiddleY());
    }
}

void DrawLane(cairo_t* pen)
{
    cairo_rectangle(pen, kLane.x, kLane.y, kLane.w, kLane.h);
    FillDown(pen, kLane, Rgb(25, 27, 30), Rgb(33, 35, 38));
    for (int n = 1; n < 4; ++n) {
        const double y = kLane.y + kLane.h * n / 4 - 0.5;
        Line(pen, kLane.x, y, kLane.x + kLane.w, y);
        Stroke(pen, White(n == 2 ? 0.12 : 0.06), 1);
    }
    DrawVerticals(pen, kLane);
    for (const char* text : {"1", "0"}) {
        const bool top = *text == '1';
        Write(pen, kType, kDimCream, text, kLane.x - 5, top ? kLane.y + 5 : kLane.y + kLane.h - 5, Stand::Right);
    }
    WriteUp(pen, kType, kTitleInk, "LANE", 18, kLane.MiddleY());
}

void DrawBars(cairo_t* pen)
{
    cairo_rectangle(pen, kBars.x, kBars.y, kBars.w, kBars.h);
    FillDown(pen, kBars, Rgb(74, 68, 62), Rgb(52, 48, 44));
    for (int n = 0; n < 8; ++n) {
        const double x = kBars.x + n * kBar;
        Line(pen, x - 0.5, kBars.y, x - 0.5, kBars.y + kBars.h);
        Stroke(pen, Black(0.7), 1);
        Write(pen, kType, kCream, ("BAR " + std::to_string(n + 1)).c_str(), x + 8, kBars.MiddleY(), Stand::Left);
    }
}

void DrawHints(cairo_t* pen, double y)
{
    struct Hint {
        const char* hand;
        const char* effect;
        double x;
    };
    constexpr Hint kHints[] = {{"CLICK", "sets or clears a note", 424},
                               {"DRAG", "selects, or moves what is selected", 540},
                               {"CTRL + DRAG", "selects, or copies", 710},
                               {"BAR STRIP", "selects bars", 815},
                               {"WHEEL", "note length", 902},
                               {"RIGHT CLICK", "closes", 984}};
    for (const Hint& hint : kHints) {
        Write(pen, kType, kTitleInk, hint.hand, hint.x, y - 5, Stand::Left);
        Write(pen, {9.5, Weight::Plain, 0.1}, kCream, hint.effect, hint.x, y + 8, Stand::Left);
    }
}

void DrawEditor(Picture& picture, const Rows& rows)
{
    cairo_t* const pen = picture.pen;
    const Box whole{0, 0, picture.width * 1.0, picture.height * 1.0};
    cairo_rectangle(pen, 0, 0, whole.w, whole.h);
    FillDown(pen, whole, kPlateTop, kPlateBottom);
    Line(pen, 0, 0.5, whole.w, 0.5);
    Stroke(pen, White(0.25), 1);
    Line(pen, 0, 1.5, whole.w, 1.5);
    Stroke(pen, Fade(kAmber, 0.8), 1);
    const double bottom = kGridTop + rows.count * rows.height;
    Hole(pen, {kLane.x - 1, kLane.y - 1, kLane.w + 2, bottom - kLane.y + 2}, 2, kHole);
    DrawLane(pen);
    DrawBars(pen);
    DrawGrid(pen, rows);
    if (rows.drums)
        DrawDrumNames(pen, rows);
    else
        DrawPiano(pen, rows);
    DrawHints(pen, bottom + kButtonsY + 15);
}

// Buttons

struct EditorButton {
    double x;
    const char* text;
    Icon icon;
};
constexpr EditorButton kButtons[] = {{149, "COPY", Icon::Copy}, {75, "PASTE", Icon::Paste}, {3, "CLEAR", Icon::Clear}};

void DrawEditorButtons(cairo_t* pen)
{
    constexpr double kWidth = 69, kHeight = 34;
    for (const EditorButton& button : kButtons)
        for (const bool lit : {false, true}) {
            const CapLook look{kTaupe, kAmber, lit ? 1.0 : 0.0, false};
            const Box face = DrawCap(pen, {button.x, lit ? 56.0 : 6.0, kWidth, kHeight}, look);
            Draw(pen, button.icon, face.x + 14, face.MiddleY(), 12, InkOn(look));
            Write(pen, {9.5, Weight::Bold, 0.4}, InkOn(look), button.text, face.x + 26, face.MiddleY(), Stand::Left);
        }
    for (const bool playing : {false, true}) {
        const CapLook look{kCharcoal, kGreenLight, playing ? 1.0 : 0.0, playing};
        const Box face = DrawCap(pen, {223, playing ? 49.0 : 0.0, kWidth, 45}, look);
        Draw(pen, Icon::Play, face.MiddleX(), face.MiddleY(), 15, InkOn(look));
    }
}

} // namespace

bool DrawScores(Picture& picture, int id)
{
    switch (id) {
    case image::ScoreEdit: DrawEditor(picture, {24, 14, false}); break;
    case image::DrumsEditor: DrawEditor(picture, {8, 28, true}); break;
    case image::NoteEditorButtons: DrawEditorButtons(picture.pen); break;
    default: return false;
    }
    return true;
}

} // namespace korvane::skin
