// Texts in Roboto Condensed.
#include "skin/Print.h"

#include <cmath>
#include <numbers>

namespace korvane::skin {

namespace {

void Choose(cairo_t* pen, Type type)
{
    cairo_select_font_face(pen, type.weight == Weight::Medium ? "Roboto Condensed Medium" : "Roboto Condensed",
                           CAIRO_FONT_SLANT_NORMAL,
                           type.weight == Weight::Bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_matrix_t shape;
    cairo_matrix_init_scale(&shape, type.size * type.breadth, type.size);
    cairo_set_font_matrix(pen, &shape);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, type.fitted ? CAIRO_HINT_STYLE_SLIGHT : CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_set_font_options(pen, options);
    cairo_font_options_destroy(options);
}

/// Height of capitals as they are drawn.
double CapitalsOf(cairo_t* pen)
{
    double left, top, right, bottom;
    cairo_new_path(pen);
    cairo_move_to(pen, 0, 0);
    cairo_text_path(pen, "H");
    cairo_path_extents(pen, &left, &top, &right, &bottom);
    cairo_new_path(pen);
    return bottom - top;
}

double Advance(cairo_t* pen, char letter)
{
    const char text[] = {letter, '\0'};
    cairo_text_extents_t extents;
    cairo_text_extents(pen, text, &extents);
    return extents.x_advance;
}

double Measure(cairo_t* pen, double spacing, const char* text)
{
    double width = -spacing;
    for (const char* letter = text; *letter; ++letter) width += Advance(pen, *letter) + spacing;
    return width;
}

void Letters(cairo_t* pen, double spacing, const char* text, double x, double y)
{
    cairo_new_path(pen);
    for (const char* letter = text; *letter; ++letter) {
        const char one[] = {*letter, '\0'};
        cairo_move_to(pen, x, y);
        cairo_text_path(pen, one); // which stands between pixels; a glyph would not
        x += Advance(pen, *letter) + spacing;
    }
    cairo_fill(pen);
}

} // namespace

bool HasFace()
{
    constexpr double kWidth = 398.9, kTolerance = 2.0; // of the name, a hundred pixels high
    const Picture sheet(1, 1);
    return std::fabs(WidthOf(sheet.pen, {100, Weight::Bold}, "KORVANE") - kWidth) < kTolerance;
}

double WidthOf(cairo_t* pen, Type type, const char* text)
{
    Choose(pen, type);
    return Measure(pen, type.spacing, text);
}

void Write(cairo_t* pen, Type type, Shade shade, const char* text, double x, double y, Stand stand)
{
    const double width = WidthOf(pen, type, text);
    const double part = stand == Stand::Left ? 0.0 : stand == Stand::Middle ? 0.5 : 1.0;
    cairo_set_source_rgba(pen, shade.red, shade.green, shade.blue, shade.alpha);
    Letters(pen, type.spacing, text, x - width * part, std::round(y + CapitalsOf(pen) / 2));
}

void WriteUp(cairo_t* pen, Type type, Shade shade, const char* text, double x, double y)
{
    cairo_save(pen);
    const double width = WidthOf(pen, type, text);
    cairo_translate(pen, std::round(x + CapitalsOf(pen) / 2), y);
    cairo_rotate(pen, -std::numbers::pi / 2);
    cairo_set_source_rgba(pen, shade.red, shade.green, shade.blue, shade.alpha);
    Letters(pen, type.spacing, text, -width / 2, 0);
    cairo_restore(pen);
}

} // namespace korvane::skin
