// The housing.
#include "skin/Panel.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "skin/Print.h"

namespace korvane::skin {

namespace {

constexpr int kCheek = 20; // width of the wooden sides

/// A group of controls; its title stands in the upper left, or upward beside its left edge.
struct Group {
    Box box;
    const char* title;
    double titleX, titleY; // middle of its capitals; its left end, or its middle when it stands upward
    bool upward = false;
};

constexpr double kLeft = 32, kRight = 1033;
// clang-format off
constexpr Group kGroups[] = {
    {{kLeft, 12, 390, 68},               "EXT CONTROL",  42, 22},
    {{726, 12, 169, 68},                 "MIDI LINK",   734, 22},
    {{897, 12, kRight - 897, 68},        "GROOVE",      904, 22},
    {{kLeft, 83, 465, 189},              nullptr,         0,  0},
    {{kLeft, 274, 133, 172},             "FILTER",       42, 284},
    {{167, 274, 142, 172},               "ENVELOPES",   176, 284},
    {{311, 274, 186, 172},               "LFO",         320, 284},
    {{499, 83, 73, 363},                 "AMP",         508, 94},
    {{574, 83, 68, 363},                 "CHANNEL",     582, 94},
    {{644, 83, kRight - 644, 246},       "EFFECTS",     654, 91},
    {{644, 331, kRight - 644, 125},      nullptr,         0,  0},
    {{kLeft, 448, 621, 83},              "SAMPLERS",     44, 456},
    {{655, 458, 174, 73},                "PATTERN EDIT", 664, 469},
    {{831, 458, kRight - 831, 73},       "NOTE LENGTH", 840, 467},
    {{kLeft, 533, 936, 91},              "STEPS",        44, 541},
    {{970, 533, kRight - 970, 91},       "SHUFFLE",     978, 541},
};
struct Title {
    const char* text;
    double x, y;
    bool upward;
};
constexpr Title kTitles[] = {
    {"SYNTHS",    362, 456, false}, {"BARS",      653, 541, false},
    {"PATTERN",   655, 366, true},  {"TRANSPORT", 655, 418, true}, {"LFO", 870, 153, false},
};
// clang-format on
struct Frame {
    Box box;
    const char* title;
};
constexpr Frame kFrames[] = {{{776.5, 141.5, 180, 129}, nullptr}, {{967.5, 141.5, 61, 182}, "STUTTER"}};
constexpr Type kTitle{9.5, Weight::Bold, 1.0}, kUpward{8.5, Weight::Bold, 0.4}, kFrameTitle{8.5, Weight::Bold, 0.6},
    kScale{8, Weight::Bold, 0.2};

double Hash(int x, int y)
{
    std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u;
    h = (h ^ (h >> 13)) * 1274126177u;
    return static_cast<double>((h ^ (h >> 16)) & 0xffffu) / 65535.0;
}

double Noise(double x, double y)
{
    const int left = static_cast<int>(std::floor(x)), top = static_cast<int>(std::floor(y));
    const auto eased = [](double t) { return t * t * (3 - 2 * t); };
    const double u = eased(x - left), v = eased(y - top);
    const auto row = [&](int y0) { return Hash(left, y0) * (1 - u) + Hash(left + 1, y0) * u; };
    return row(top) * (1 - v) + row(top + 1) * v;
}

/// Long fibres, and rings that bend along them.
double WoodAt(double x, double y)
{
    const double bend = Noise(x * 0.06, y * 0.006) * 5 + x * 0.16;
    const double rings = 0.5 + 0.5 * std::sin(bend * 6.2);
    const double fibres = Noise(x * 1.1, y * 0.022) * 0.6 + Noise(x * 2.7, y * 0.06) * 0.4;
    return 0.62 + 0.3 * rings * fibres + 0.26 * fibres;
}

void DrawCheek(Picture& page, int left, bool outerIsLeft)
{
    unsigned char* data = cairo_image_surface_get_data(page.surface);
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(page.surface);
    cairo_surface_flush(page.surface);
    for (int y = 0; y < page.height; ++y)
        for (int x = 0; x < kCheek; ++x) {
            const double across = (outerIsLeft ? x : kCheek - 1 - x) / (kCheek - 1.0); // 0 at the outer edge
            const double round = 0.72 + 0.5 * std::sin(std::min(1.0, across * 1.15) * 2.6 + 0.3);
            const double light = WoodAt(left + x + (outerIsLeft ? 0 : 400), y) * round * 0.92;
            const double parts[] = {kWood.blue, kWood.green, kWood.red};
            unsigned char* pixel = data + y * stride + std::ptrdiff_t{4} * (left + x);
            for (int n = 0; n < 3; ++n)
                pixel[n] = static_cast<unsigned char>(std::clamp(parts[n] * light * 255.0, 0.0, 255.0));
            pixel[3] = 255;
        }
    cairo_surface_mark_dirty(page.surface);
}

void DrawChassis(Picture& page)
{
    const double left = kCheek, right = page.width - kCheek, h = page.height;
    cairo_rectangle(page.pen, 0, 0, page.width, h);
    FillDown(page.pen, {0, 0, page.width * 1.0, h}, kChassisTop, kChassisBottom);
    DrawCheek(page, 0, true);
    DrawCheek(page, page.width - kCheek, false);
    cairo_t* const pen = page.pen;
    Line(pen, left, 0.5, right, 0.5);
    Stroke(pen, White(0.18), 1);
    Line(pen, left, h - 0.5, right, h - 0.5);
    Stroke(pen, Black(0.5), 1);
    for (const double x : {left, right - 1}) { // the gap between wood and metal
        cairo_rectangle(pen, x, 0, 1, h);
        Fill(pen, Black(0.75));
    }
    cairo_rectangle(pen, left + 1, 0, 1, h);
    Fill(pen, White(0.1));
}

void DrawScrew(cairo_t* pen, double x, double y)
{
    Circle(pen, x + 0.3, y + 0.8, 4.4);
    Fill(pen, White(0.1));
    Circle(pen, x, y, 4.4);
    Fill(pen, kHole);
    Circle(pen, x, y, 3.8);
    FillLit(pen, {x - 4, y - 4, 8, 8}, Rgb(120, 114, 106), Rgb(52, 48, 44));
    for (int n = 0; n < 6; ++n) {
        const double angle = n * 1.0471975512 + 0.3;
        cairo_line_to(pen, x + 1.9 * std::cos(angle), y + 1.9 * std::sin(angle));
    }
    cairo_close_path(pen);
    Fill(pen, kHole);
}

void DrawGroups(cairo_t* pen)
{
    for (const Group& group : kGroups) {
        Plate(pen, group.box, 4, kPlateTop, kPlateBottom);
        if (group.title) Write(pen, kTitle, kAmber, group.title, group.titleX, group.titleY, Stand::Left);
    }
    for (const Title& title : kTitles)
        if (title.upward)
            WriteUp(pen, kUpward, kAmber, title.text, title.x, title.y);
        else
            Write(pen, kTitle, kAmber, title.text, title.x, title.y, Stand::Left);
}

/// Printed around what belongs together within a group; its title interrupts the upper line.
void DrawFrames(cairo_t* pen)
{
    constexpr double kTitleAt = 9;
    for (const Frame& frame : kFrames) {
        const double title = frame.box.x + kTitleAt;
        const double end = frame.title ? title + WidthOf(pen, kFrameTitle, frame.title) + 4 : 0;
        cairo_save(pen);
        cairo_rectangle(pen, 0, 0, title - 4, 630);
        cairo_rectangle(pen, end, 0, 1065, 630);
        cairo_rectangle(pen, 0, frame.box.y + 5, 1065, 630);
        cairo_clip(pen);
        Rounded(pen, frame.box, 4);
        Stroke(pen, Fade(kCream, 0.28), 1);
        cairo_restore(pen);
        if (frame.title) Write(pen, kFrameTitle, kAmber, frame.title, title, frame.box.y, Stand::Left);
    }
}

/// What the knobs below it shape.
void DrawEnvelope(cairo_t* pen)
{
    constexpr double kPoints[][2] = {{511, 210}, {521, 197}, {531, 204}, {549, 204}, {560, 210}};
    for (const auto& point : kPoints) cairo_line_to(pen, point[0], point[1]);
    cairo_set_line_join(pen, CAIRO_LINE_JOIN_ROUND);
    Stroke(pen, Fade(kCream, 0.75), 1.3);
    for (const auto& point : kPoints) {
        Circle(pen, point[0], point[1], 1.5);
        Fill(pen, kCream);
    }
}

/// Below each four steps, and below the bars.
void DrawBeats(cairo_t* pen)
{
    constexpr int kPerBeat = 4, kBeats = 4, kKey = 38, kFirst = 44;
    constexpr double kTop = 607.5;
    const auto bracket = [&](double x, double w, const char* text) {
        cairo_move_to(pen, x, kTop);
        cairo_line_to(pen, x, kTop + 5);
        cairo_line_to(pen, x + w, kTop + 5);
        cairo_line_to(pen, x + w, kTop);
        Stroke(pen, Fade(kCream, 0.35), 1);
        const double half = WidthOf(pen, kScale, text) / 2 + 5, middle = x + w / 2;
        cairo_rectangle(pen, middle - half, kTop + 2, half * 2, 7);
        Fill(pen, Mix(kPlateTop, kPlateBottom, 0.84));
        Write(pen, kScale, kDimCream, text, middle, kTop + 5);
    };
    for (int n = 0; n < kBeats; ++n)
        bracket(kFirst + kKey * kPerBeat * n + 4.5, kKey * kPerBeat - 9, ("BEAT " + std::to_string(n + 1)).c_str());
    bracket(kFirst + kKey * kPerBeat * kBeats + 4.5, kKey * 8 - 9, "BARS OF THE PATTERN");
}

void DrawGlass(cairo_t* pen)
{
    Hole(pen, kGlass.Inset(-6), 6, Rgb(26, 23, 21));
    Rounded(pen, kGlass.Inset(-1), 4);
    Fill(pen, Black(0.8));
    Rounded(pen, kGlass, 3);
    FillDown(pen, kGlass, kGlassTop, kGlassBottom);
    cairo_save(pen);
    Rounded(pen, kGlass, 3);
    cairo_clip(pen);
    Glow(pen, kGlass.MiddleX(), kGlass.MiddleY(), kGlass.w * 0.62, Rgb(255, 246, 222, 0.4));
    for (double y = kGlass.y + 1; y < kGlass.y + kGlass.h; y += 2) cairo_rectangle(pen, kGlass.x, y, kGlass.w, 1);
    Fill(pen, Black(0.022));
    for (const double width : {2.0, 5.0, 9.0}) { // the bezel's shadow
        Rounded(pen, kGlass.Inset(-1).Moved(width / 5, width / 3), 3);
        Stroke(pen, Rgb(60, 40, 16, 0.13), width);
    }
    cairo_restore(pen);
}

void DrawLogo(cairo_t* pen)
{
    constexpr double kMiddle = 574;
    constexpr Type kLogo{42, Weight::Bold, 12}, kLine{9, Weight::Medium, 3.1};
    Write(pen, kLogo, Black(0.6), "KORVANE", kMiddle + 1, 42.5);
    Write(pen, kLogo, kCream, "KORVANE", kMiddle, 41);
    const double half = WidthOf(pen, kLogo, "KORVANE") / 2;
    cairo_rectangle(pen, kMiddle - half, 62, half * 2, 2);
    Fill(pen, kAmber);
    Write(pen, kLine, kDimCream, "BRASSMOOR  GROOVEBOX", kMiddle, 73);
}

} // namespace

void DrawPanel(Picture& page)
{
    DrawChassis(page);
    for (const double x : {kCheek + 6.5, page.width - kCheek - 6.5})
        for (const double y : {7.5, page.height - 7.5}) DrawScrew(page.pen, x, y);
    DrawGroups(page.pen);
    DrawFrames(page.pen);
    DrawEnvelope(page.pen);
    DrawBeats(page.pen);
    Grain(page, kCheek, 0, page.width - 2 * kCheek, page.height, 2);
    DrawGlass(page.pen);
    DrawLogo(page.pen);
}

} // namespace korvane::skin
