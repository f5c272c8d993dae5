// What lies on the lit display: dark on beige, and the other way round where it is chosen.
#include <string>

#include "skin/Icons.h"
#include "skin/Images.h"
#include "skin/Measures.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

constexpr Type kWord{9, Weight::Bold, 0.2};
constexpr Shade kPaper = Rgb(238, 226, 198);

constexpr double kFlattest = 9; // of what has a line around it

/// What is printed on it.
Shade DrawPatch(cairo_t* pen, Box cell, bool on)
{
    const Box box{cell.x + 0.5, cell.y + 0.5, cell.w - 1, cell.h - 1};
    Rounded(pen, box, 2.5);
    Fill(pen, on ? kInk : White(cell.h > kFlattest ? 0.25 : 0.5));
    if (cell.h <= kFlattest) return on ? kPaper : kInk;
    Rounded(pen, box, 2.5);
    Stroke(pen, on ? kInk : Fade(kInk, 0.6), 1);
    return on ? kPaper : kInk;
}

/// Cells of words beside each other; off above, on below.
struct WordStrip {
    int id, columns;
    Type type;
    const char* words[5];
};

// clang-format off
constexpr WordStrip kWords[] = {
    {image::TabModKind,       3, kWord, {"SYNC", "PHASE MOD", "AMP MOD"}}, // what oscillator 2 does to oscillator 1
    {image::TabSampleLayer,   4, kWord, {"1", "2", "3", "4"}},
    {image::TabOctaves,       5, kLegend, {"+2", "+1", "0", "-1", "-2"}},
    {image::Osc2Invert,       1, kDense, {"INV"}},
    {image::MonoVoice,        1, kWord, {"MONO"}},
    {image::ScreenSwitch,     1, kWord, {"MOD / EQ"}},
    {image::SampleLayerIcons, 5, kSmall, {"RESET", "REMOVE", "PREV", "NEXT", "LOAD"}},
};
// clang-format on

void DrawWords(Picture& picture, const WordStrip& strip)
{
    const double w = picture.width / strip.columns, h = picture.height / 2;
    for (int row = 0; row < 2; ++row)
        for (int n = 0; n < strip.columns; ++n) {
            const Box cell{n * w, row * h, w, h};
            const bool tall = h >= 18; // neighbours stand close above and below
            const Box gap = w > 26 ? Box{cell.x + 0.5, cell.y + (tall ? 1 : 0), w - 1, tall ? h - 2 : h} : cell;
            const Shade ink = DrawPatch(picture.pen, gap, row == 1);
            Write(picture.pen, strip.type, ink, strip.words[n], gap.MiddleX(), gap.MiddleY());
        }
}

/// A switch of the left 20 columns.
void DrawSwitch(Picture& picture)
{
    for (int row = 0; row < 2; ++row) {
        const Box track{2.5, row * 15 + 4.5, 15, 8};
        Rounded(picture.pen, track, 4);
        Fill(picture.pen, row ? kInk : White(0.18));
        Rounded(picture.pen, track, 4);
        Stroke(picture.pen, row ? kInk : Fade(kInk, 0.7), 1);
        Circle(picture.pen, row ? 13.5 : 6.5, track.MiddleY(), 2.6);
        Fill(picture.pen, row ? kPaper : kInk);
    }
}

/// Back and on.
void DrawArrows(Picture& picture)
{
    const double w = picture.width / 2.0, h = picture.height / 2.0;
    for (int row = 0; row < 2; ++row)
        for (int n = 0; n < 2; ++n) {
            const Box cell{n * w, row * h, w, h};
            if (row) {
                Rounded(picture.pen, cell.Inset(0.5), 2);
                Fill(picture.pen, kInk);
            }
            Arrow(picture.pen, cell.MiddleX(), cell.MiddleY(), w - 2, n ? 1 : -1, 0, row ? kPaper : kInk);
        }
}

/// How many voices: a number, and as many bars.
void DrawVoices(Picture& picture)
{
    constexpr int kMost = 16;
    const double h = picture.height / kMost;
    for (int count = 1; count <= kMost; ++count) {
        const double top = (count - 1) * h;
        Write(picture.pen, {13, Weight::Bold}, kInk, std::to_string(count).c_str(), 16, top + h / 2, Stand::Right);
        for (int n = 0; n < kMost; ++n) {
            const double tall = 4 + n;
            cairo_rectangle(picture.pen, 20 + 2 * n, top + h - 3 - tall, 1, tall);
            Fill(picture.pen, n < count ? kInk : Fade(kInk, 0.22));
        }
    }
}

/// From the middle to both sides.
void DrawWidths(Picture& picture)
{
    constexpr int kFrames = 5;
    const double h = picture.height / kFrames, middle = picture.width / 2.0;
    for (int frame = 0; frame < kFrames; ++frame) {
        const double y = frame * h + h / 2;
        Write(picture.pen, kLegend, kInk, "L", 4, y, Stand::Left);
        Write(picture.pen, kLegend, kInk, "R", picture.width - 4, y, Stand::Right);
        for (int n = -4; n <= 4; ++n) {
            const double tall = 14 - 1.5 * (n < 0 ? -n : n);
            cairo_rectangle(picture.pen, middle + 3 * n - 1, y - tall / 2, 2, tall);
            Fill(picture.pen, n >= -frame && n <= frame ? kInk : Fade(kInk, 0.2));
        }
    }
}

} // namespace

bool DrawFlat(Picture& picture, int id)
{
    for (const WordStrip& strip : kWords)
        if (strip.id == id) {
            DrawWords(picture, strip);
            return true;
        }
    switch (id) {
    case image::ButtonLcd: DrawSwitch(picture); break;
    case image::ProgramArrows:
    case image::WaveArrows: DrawArrows(picture); break;
    case image::UnisonVoices: DrawVoices(picture); break;
    case image::UnisonStereo: DrawWidths(picture); break;
    default: return false;
    }
    return true;
}

} // namespace korvane::skin
