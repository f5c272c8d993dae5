// Titles, frames, brackets, the shape of the envelope, the logo.
#include "skin/Silk.h"

#include <cmath>
#include <string>

#include "skin/Places.h"

namespace korvane::skin {

namespace {

constexpr Type kUpward{9, Weight::Bold, 0.6};

/// Over the left edge of a parameter's control, or upward beside it.
struct Title {
    const char* text;
    int id;
    double dx, dy;
    bool upward = false;
    Shade shade = kTitleInk;
};
/// What interrupts the upper line of a frame.
struct FrameTitle {
    const char* text;
    double at; // from the frame's left edge, pixels
    Shade shade;
    Type type;
};
/// Around the controls of two parameters, so far from them.
struct Frame {
    int firstId, lastId;
    double left, top, right, bottom;
    FrameTitle titles[2];
};

// clang-format off
constexpr Title kTitles[] = {
    {"SYNTHS",  param::Channel1 + kSamplerChannels, 1, -6}, {"BARS", param::Bar1, 6, -7},
    {"PATTERN", param::Pattern1, -10, 0, true},           {"RATE", 71, 33, 0, true, kCream},
};
constexpr Frame kFrames[] = {
    {71,                param::FxLfoShapeSwitch, 5.5, 1.5, 54.5, 6.5,
     {{"FX LFO", 100, kTitleInk, kUpward}, {}}},
    {param::Stutter1_1, param::Stutter1_4,       7.5, 11.5, 3.5, 1.5, {{"STUTTER", 9, kTitleInk, kUpward}, {}}},
};
// clang-format on

void PrintTitles(cairo_t* pen)
{
    for (const Title& title : kTitles) {
        const Box at = Find(title.id).Place();
        if (title.upward)
            WriteUp(pen, kUpward, title.shade, title.text, at.x + title.dx, at.MiddleY());
        else
            Write(pen, kTitle, kTitleInk, title.text, at.x + title.dx, at.y + title.dy, Stand::Left);
    }
}

void PrintFrame(cairo_t* pen, const Frame& frame)
{
    constexpr double kGap = 4;
    const Box inner = Around(Find(frame.firstId).Place(), Find(frame.lastId).Place());
    const Box box{inner.x - frame.left, inner.y - frame.top, inner.w + frame.left + frame.right,
                  inner.h + frame.top + frame.bottom};
    cairo_save(pen); // the line, but for where titles stand
    cairo_rectangle(pen, 0, 0, kEditorSize.width, kEditorSize.height);
    for (const FrameTitle& title : frame.titles)
        if (title.text) {
            const double width = WidthOf(pen, title.type, title.text);
            cairo_rectangle(pen, box.x + title.at - kGap, box.y - kGap, width + 2 * kGap, 2 * kGap);
        }
    cairo_set_fill_rule(pen, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_clip(pen);
    Rounded(pen, box, 4);
    Stroke(pen, Fade(kCream, 0.28), 1);
    cairo_restore(pen);
    for (const FrameTitle& title : frame.titles)
        if (title.text) Write(pen, title.type, title.shade, title.text, box.x + title.at, box.y, Stand::Left);
}

void CutGroove(cairo_t* pen, double x, double top, double height)
{
    cairo_rectangle(pen, x, top, 1, height);
    Fill(pen, Black(0.55));
    cairo_rectangle(pen, x + 1, top, 1, height);
    Fill(pen, White(0.1));
}

/// Between steps and bars, and between the controllers, each with its light at the left.
void CutGrooves(cairo_t* pen)
{
    constexpr double kKnobToLight = 22; // from a controller's knob to the groove before it
    const Box bar = Find(param::Bar1).Place();
    CutGroove(pen, bar.x + 1, bar.y - 11, 81);
    for (int n = 1; n < kExtControls; ++n) {
        const Box knob = Find(param::Ext1 + n).Place();
        CutGroove(pen, knob.x - kKnobToLight, knob.y - 8, 38);
    }
}

/// Through the enable lights of a run of channels.
void PrintEnableRule(cairo_t* pen, int firstId, int lastId)
{
    const Box lights = Around(Find(firstId).Place(), Find(lastId).Place());
    Line(pen, lights.x, lights.MiddleY() + 0.5, lights.x + lights.w, lights.MiddleY() + 0.5);
    Stroke(pen, Fade(kCream, 0.25), 1);
}

/// What the knobs below it shape.
void PrintEnvelope(cairo_t* pen)
{
    constexpr double kPoints[][2] = {{-7, -18}, {3, -31}, {13, -24}, {31, -24}, {42, -18}};
    const Box attack = Find(84).Place();
    for (const auto& point : kPoints) cairo_line_to(pen, attack.x + point[0], attack.y + point[1]);
    cairo_set_line_join(pen, CAIRO_LINE_JOIN_ROUND);
    Stroke(pen, Fade(kCream, 0.75), 1.3);
    for (const auto& point : kPoints) {
        Circle(pen, attack.x + point[0], attack.y + point[1], 1.5);
        Fill(pen, kCream);
    }
}

/// Below the controls of two parameters.
void PrintBracket(cairo_t* pen, int firstId, int lastId, const std::string& text)
{
    constexpr double kBelow = 13.5, kDeep = 5, kInset = 4.5, kGap = 5;
    const Box keys = Around(Find(firstId).Place(), Find(lastId).Place());
    const double left = keys.x + kInset, right = keys.x + keys.w - kInset, top = keys.y + keys.h + kBelow;
    const double half = WidthOf(pen, kLegend, text.c_str()) / 2 + kGap, middle = keys.MiddleX();
    Line(pen, left, top, left, top + kDeep);
    cairo_line_to(pen, middle - half, top + kDeep);
    Line(pen, right, top, right, top + kDeep);
    cairo_line_to(pen, middle + half, top + kDeep);
    Stroke(pen, Fade(kCream, 0.35), 1);
    Write(pen, kLegend, kDimCream, text.c_str(), middle, top + kDeep);
}

void PrintBrackets(cairo_t* pen)
{
    constexpr int kSteps = 16, kPerBeat = 4, kBars = 8;
    for (int step = 0; step < kSteps; step += kPerBeat)
        PrintBracket(pen, param::Step1 + step, param::Step1 + step + kPerBeat - 1,
                     "BEAT " + std::to_string(step / kPerBeat + 1));
    PrintBracket(pen, param::Bar1, param::Bar1 + kBars - 1, "BARS OF THE PATTERN");
}

/// Within the area where a click opens the about page.
void PrintLogo(cairo_t* pen)
{
    constexpr Type kLine{9.5, Weight::Medium, 2.9};
    constexpr Box kArea = BoxOf(kLogoArea);
    constexpr double kMiddle = kArea.x + kArea.w / 2 + 4, kTextY = kArea.y + 40;
    PrintWordmark(pen, 42, kMiddle, kTextY);
    Write(pen, kLine, kDimCream, "BRASSMOOR  GROOVEBOX", kMiddle, kTextY + 33);
}

} // namespace

void PrintWordmark(cairo_t* pen, double size, double middle, double y)
{
    const Type type{size, Weight::Bold, size * 0.29};
    const double side = size * 0.06; // that a letter leaves at its left
    const double width = WidthOf(pen, type, "KORVANE"), down = std::round(size * 0.52);
    Write(pen, type, Black(0.6), "KORVANE", middle + 1 - side * 0.15, y + 1.5);
    Write(pen, type, kCream, "KORVANE", middle - side * 0.15, y);
    cairo_rectangle(pen, std::round(middle - width / 2), std::round(y) + down, std::round(width), 2);
    Fill(pen, kAmber);
}

void PrintSilk(cairo_t* pen)
{
    PrintTitles(pen);
    for (const Frame& frame : kFrames) PrintFrame(pen, frame);
    PrintEnvelope(pen);
    CutGrooves(pen);
    PrintEnableRule(pen, param::Enable1, param::Enable1 + kSamplerChannels - 1);
    PrintEnableRule(pen, param::Enable1 + kSamplerChannels, param::Enable1 + kChannels - 1);
    PrintBrackets(pen);
    PrintLogo(pen);
}

} // namespace korvane::skin
