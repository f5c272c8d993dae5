// How a window's pixels are laid out for the server.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <xcb/xcb.h>

namespace korvane {

/// A visual whose pixels are 32 bits wide with 8 bits each of red, green and blue, 0x00RRGGBB as a number.
struct XcbVisual {
    xcb_visualid_t id = XCB_NONE; // none: the server has no such visual
    std::uint8_t depth = 24;      // 32 where there is none of 24: the byte above red then is opacity
    bool swapped = false;         // the server's bytes stand the other way round than this machine's
};

inline bool IsTrueColor(const xcb_visualtype_t& visual)
{
    return visual._class == XCB_VISUAL_CLASS_TRUE_COLOR && visual.red_mask == 0xFF0000 && visual.green_mask == 0xFF00 &&
           visual.blue_mask == 0xFF;
}

inline bool Takes32Bits(const xcb_setup_t* setup, int depth)
{
    for (auto formats = xcb_setup_pixmap_formats_iterator(setup); formats.rem > 0; xcb_format_next(&formats))
        if (formats.data->depth == depth) return formats.data->bits_per_pixel == 32;
    return false;
}

/// wanted  depths that will do, the best first
inline XcbVisual FindVisual(const xcb_setup_t* setup, const xcb_screen_t* screen,
                            std::initializer_list<int> wanted = {24, 32})
{
    const std::uint16_t one = 1;
    const bool bigEndian = *reinterpret_cast<const std::uint8_t*>(&one) == 0;
    const bool swapped = (setup->image_byte_order == XCB_IMAGE_ORDER_MSB_FIRST) != bigEndian;
    for (const int depth : wanted) {
        if (!Takes32Bits(setup, depth)) continue;
        for (auto depths = xcb_screen_allowed_depths_iterator(screen); depths.rem > 0; xcb_depth_next(&depths)) {
            if (depths.data->depth != depth) continue;
            for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals))
                if (IsTrueColor(*visuals.data))
                    return {visuals.data->visual_id, static_cast<std::uint8_t>(depth), swapped};
        }
    }
    return {};
}

} // namespace korvane
