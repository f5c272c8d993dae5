// Pictures and their files.
#include "demo/Picture.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace korvane::demo {

Picture::Picture(int pixelsAcross, int pixelsDown)
    : width(pixelsAcross), height(pixelsDown),
      surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixelsAcross, pixelsDown)), pen(cairo_create(surface))
{
}

Picture::~Picture()
{
    cairo_destroy(pen);
    cairo_surface_destroy(surface);
}

void Picture::SaveTga(const std::string& path, bool withAlpha)
{
    cairo_surface_flush(surface);
    const unsigned char* data = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    std::vector<std::uint8_t> file{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    for (const int value : {width & 255, width >> 8, height & 255, height >> 8, withAlpha ? 32 : 24, withAlpha ? 8 : 0})
        file.push_back(static_cast<std::uint8_t>(value));
    for (int y = height - 1; y >= 0; --y) {
        const unsigned char* pixel = data + static_cast<std::ptrdiff_t>(y) * stride;
        for (int x = 0; x < width; ++x, pixel += 4) {
            const int alpha = pixel[3];
            for (int n = 0; n < 3; ++n) // Cairo's colours are multiplied by their alpha, the skin's are not
                file.push_back(static_cast<std::uint8_t>(alpha == 0 ? 0 : std::min(255, pixel[n] * 255 / alpha)));
            if (withAlpha) file.push_back(static_cast<std::uint8_t>(alpha));
        }
    }
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    if (!out.flush()) throw std::runtime_error("cannot write " + path);
}

void Picture::SavePng(const std::string& path)
{
    if (cairo_surface_write_to_png(surface, path.c_str()) != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error("cannot write " + path);
}

} // namespace korvane::demo
