// The three pages: housing, grounds of what they show, legends.
#include "skin/Grounds.h"
#include "skin/Images.h"
#include "skin/Legends.h"
#include "skin/Panel.h"

namespace korvane::skin {

bool DrawPages(Picture& picture, int id)
{
    if (id != image::PageSampler && id != image::PageSynth && id != image::PageChannel) return false;
    const Page page = id == image::PageSampler ? Page::Sampler : id == image::PageSynth ? Page::Synth : Page::Channel;
    DrawPanel(picture);
    ShadeFields(picture.pen, page);
    for (const ControlRow& row : kLayout)
        for (int n = 0; n < row.count; ++n)
            if (row.page == Page::All || row.page == page) DrawGround(picture.pen, row, n);
    PrintLegends(picture.pen, page);
    return true;
}

} // namespace korvane::skin
