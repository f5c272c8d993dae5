// Pictures drawn with Cairo and kept as files.
#pragma once

#include <string>

#include <cairo.h>

namespace korvane::demo {

/// A picture of that many pixels, transparent at first. std::runtime_error when it cannot be kept.
class Picture {
public:
    Picture(int pixelsAcross, int pixelsDown);
    ~Picture();
    Picture(const Picture&) = delete;

    void SaveTga(const std::string& path, bool withAlpha); // 32 or 24 bits, rows bottom-up
    void SavePng(const std::string& path);

    const int width, height;
    cairo_surface_t* const surface;
    cairo_t* const pen;
};

} // namespace korvane::demo
