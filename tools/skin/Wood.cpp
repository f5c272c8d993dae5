// Walnut: fibres, rings, the roundness of its edges.
#include "skin/Wood.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace korvane::skin {

namespace {

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

} // namespace

void DrawCheeks(Picture& page)
{
    DrawCheek(page, 0, true);
    DrawCheek(page, page.width - kCheek, false);
}

} // namespace korvane::skin
