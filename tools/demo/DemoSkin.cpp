// The demo's images: a row each, drawn when the demo starts.
#include "demo/DemoSkin.h"

#include <cmath>
#include <filesystem>
#include <numbers>
#include <string>

#include <unistd.h>

#include "demo/Picture.h"

namespace korvane::demo {

namespace {

constexpr double kPi = std::numbers::pi;

struct Shade {
    double red, green, blue;
};
constexpr Shade kRaised{0.24, 0.25, 0.28}, kEdge{0.05, 0.05, 0.06}, kLit{0.94, 0.53, 0.25}, kDim{0.36, 0.24, 0.16},
    kBright{0.86, 0.84, 0.8}, kDisplay{0.82, 0.75, 0.64};

void Use(cairo_t* pen, Shade shade) { cairo_set_source_rgb(pen, shade.red, shade.green, shade.blue); }

void Box(cairo_t* pen, double x, double y, double w, double h, double radius, Shade fill)
{
    cairo_new_path(pen);
    cairo_arc(pen, x + w - radius, y + radius, radius, -kPi / 2, 0);
    cairo_arc(pen, x + w - radius, y + h - radius, radius, 0, kPi / 2);
    cairo_arc(pen, x + radius, y + h - radius, radius, kPi / 2, kPi);
    cairo_arc(pen, x + radius, y + radius, radius, kPi, kPi * 1.5);
    cairo_close_path(pen);
    Use(pen, fill);
    cairo_fill_preserve(pen);
    Use(pen, kEdge);
    cairo_set_line_width(pen, 1);
    cairo_stroke(pen);
}

void DrawPage(Picture& page)
{
    cairo_pattern_t* light = cairo_pattern_create_linear(0, 0, 0, page.height);
    cairo_pattern_add_color_stop_rgb(light, 0, 0.22, 0.23, 0.25);
    cairo_pattern_add_color_stop_rgb(light, 1, 0.12, 0.12, 0.14);
    cairo_set_source(page.pen, light);
    cairo_paint(page.pen);
    cairo_pattern_destroy(light);
}

void DrawKnob(Picture& strip)
{
    for (int frame = 0; frame < kKnobFrames; ++frame) {
        const double x = kKnobSize / 2.0, y = frame * kKnobSize + kKnobSize / 2.0, radius = kKnobSize / 2.0 - 4;
        const double begin = 0.75 * kPi, angle = begin + 1.5 * kPi * frame / (kKnobFrames - 1);
        cairo_set_line_width(strip.pen, 3);
        Use(strip.pen, kDim);
        cairo_arc(strip.pen, x, y, radius + 2, begin, begin + 1.5 * kPi);
        cairo_stroke(strip.pen);
        Use(strip.pen, kLit);
        cairo_arc(strip.pen, x, y, radius + 2, begin, angle);
        cairo_stroke(strip.pen);
        Use(strip.pen, kRaised);
        cairo_arc(strip.pen, x, y, radius - 2, 0, 2 * kPi);
        cairo_fill(strip.pen);
        Use(strip.pen, kBright);
        cairo_set_line_width(strip.pen, 2);
        cairo_move_to(strip.pen, x + std::cos(angle) * radius * 0.4, y + std::sin(angle) * radius * 0.4);
        cairo_line_to(strip.pen, x + std::cos(angle) * radius * 0.85, y + std::sin(angle) * radius * 0.85);
        cairo_stroke(strip.pen);
    }
}

void DrawLed(Picture& strip) // off, on
{
    for (int frame = 0; frame < 2; ++frame) {
        Use(strip.pen, frame ? kLit : kDim);
        cairo_arc(strip.pen, 7, 7 + 14 * frame, 5, 0, 2 * kPi);
        cairo_fill(strip.pen);
    }
}

/// Boxes one below the other, `rows`, in as many columns as fit; a lit bar in those whose row is in `lit` (bits),
/// pressed ones in `pressed`.
void DrawBoxes(Picture& strip, int w, int h, int lit, int pressed)
{
    for (int row = 0; row * h < strip.height; ++row)
        for (int x = 0; x < strip.width; x += w) {
            const double inset = (pressed >> row & 1) ? 2 : 1;
            Box(strip.pen, x + inset, row * h + inset, w - 2 * inset, h - 2 * inset, 3, kRaised);
            Use(strip.pen, (lit >> row & 1) ? kLit : kDim);
            cairo_rectangle(strip.pen, x + 5, row * h + 4, w - 10, 2);
            cairo_fill(strip.pen);
        }
}

void DrawButton(Picture& strip) { DrawBoxes(strip, 72, 24, 0b0110, 0b1010); } // off, pressed on, on, pressed off
void DrawToggle(Picture& strip) { DrawBoxes(strip, 72, 24, 0b10, 0); }        // off, on
void DrawTabRow(Picture& strip) { DrawBoxes(strip, 40, 22, 0b1110, 0b1010); }
void DrawTabColumn(Picture& strip) { DrawBoxes(strip, 40, 18, 0b10, 0); }
void DrawHandle(Picture& handle) { Box(handle.pen, 1, 1, handle.width - 2, handle.height - 2, 3, kBright); }
void DrawPanel(Picture& panel) { Box(panel.pen, 0.5, 0.5, panel.width - 1, panel.height - 1, 2, kDisplay); }

struct ImageRow {
    int id, width, height;
    bool alpha;
    void (*draw)(Picture&);
};

// clang-format off
constexpr ImageRow kImages[] = {
    {image::Page,       kPageWidth, kPageHeight,             false, DrawPage},
    {image::Knob,       kKnobSize,  kKnobSize * kKnobFrames, true,  DrawKnob},
    {image::Led,        14,         28,                      true,  DrawLed},
    {image::Button,     72,         96,                      true,  DrawButton},
    {image::Toggle,     72,         48,                      true,  DrawToggle},
    {image::TabRow,     160,        88,                      true,  DrawTabRow},
    {image::TabColumn,  40,         36,                      true,  DrawTabColumn},
    {image::Handle,     24,         12,                      true,  DrawHandle},
    {image::WideHandle, 12,         24,                      true,  DrawHandle},
    {image::Panel,      160,        18,                      true,  DrawPanel},
};
// clang-format on

void MakeSkin(const std::string& folder)
{
    for (const ImageRow& row : kImages) {
        Picture picture(row.width, row.height);
        row.draw(picture);
        picture.SaveTga(folder + "/" + std::to_string(row.id) + ".tga", row.alpha);
    }
}

} // namespace

/// Drawn once per process, as the storage keeps what it has read. False when there is no room for the files.
bool LoadSkin(CPluginUI& window)
{
    if (window.FindBitmap(image::Panel)) return true;
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("korvane-demo-" + std::to_string(getpid()));
    bool loaded = true;
    try {
        std::filesystem::create_directories(folder);
        MakeSkin(folder.string());
        for (int id = image::Page; id <= image::Panel; ++id)
            loaded &= window.LoadBitmapFromFolder(folder.c_str(), (std::to_string(id) + ".tga").c_str(), id);
    } catch (const std::exception&) {
        loaded = false;
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return loaded;
}

} // namespace korvane::demo
