// An image of the skin, drawn in every way.
#include "fuzz/Instrument.h"
#include "gui/pixels/CDrawBuffer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace korvane;
    static const fuzz::Content content;
    const fuzz::Limits limits(size);
    CBitmap bitmap(0);
    if (!bitmap.Load(content.File("input", {data, data + size}).c_str())) return 0;
    const Size image = bitmap.GetSize();
    fuzz::Require(image.height > 0 && image.width > 0 && bitmap.clip == Rect{0, 0, image.width, image.height},
                  "an image without size");

    CDrawBuffer page;
    page.Create(40, 30, false);
    for (const Point corner : {Point{0, 0}, {-5, 7}, {image.width - 9, image.height - 9}})
        for (const auto opacity : {std::uint8_t{100}, std::uint8_t{255}})
            bitmap.DrawBlended(&page, {corner.y, corner.x, image.width, image.height}, corner, opacity);
    bitmap.DrawBlended(&bitmap, {1, 1, 64, 64}, {0, 0}, 100);
    for (int n = 0; n < 40 * 30; ++n) fuzz::Require(page.pixels[n] >> 24 == 0, "colour in the spare byte");
    return 0;
}
