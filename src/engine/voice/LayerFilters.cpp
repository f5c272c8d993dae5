// Layer filters, four lanes at a time.
#include "engine/voice/LayerFilters.h"

#include <cstring>

namespace korvane {

namespace {

constexpr Float4 kMiddle = {-2.0f, -2.0f, 2.0f, 2.0f};
constexpr Int4 kLowCutLanes = {-1, -1, 0, 0};

Float4 Choose(Int4 mask, Float4 yes, Float4 no) { return mask ? yes : no; }

} // namespace

// The high-cut follows the low-cut; one frame apart, both fit into one vector. The first step moves only the low-cut
// lanes, the last one only the high-cut lanes.
void FilterLayer(LayerFilters& filters, float* stereo, int frames)
{
    if (frames < 1) return;
    const auto load = [](const float(&lanes)[4]) { return Load<Float4>(lanes); };
    Section<Float4> section = {load(filters.b0), load(filters.a1), load(filters.a2), kMiddle,
                               load(filters.x1), load(filters.x2), load(filters.y1), load(filters.y2)};

    const Section<Float4> before = section;
    Float4 out = section.Step(Float4{stereo[0], stereo[1], 0.0f, 0.0f});
    section.x1 = Choose(kLowCutLanes, section.x1, before.x1);
    section.x2 = Choose(kLowCutLanes, section.x2, before.x2);
    section.y1 = Choose(kLowCutLanes, section.y1, before.y1);
    section.y2 = Choose(kLowCutLanes, section.y2, before.y2);
    for (int n = 1; n < frames; ++n) {
        out = section.Step(Float4{stereo[2 * n], stereo[2 * n + 1], out[0], out[1]});
        stereo[2 * n - 2] = out[2];
        stereo[2 * n - 1] = out[3];
    }
    const Section<Float4> after = section;
    out = section.Step(Float4{0.0f, 0.0f, out[0], out[1]});
    stereo[2 * frames - 2] = out[2];
    stereo[2 * frames - 1] = out[3];
    Store(Choose(kLowCutLanes, after.x1, section.x1), filters.x1);
    Store(Choose(kLowCutLanes, after.x2, section.x2), filters.x2);
    Store(Choose(kLowCutLanes, after.y1, section.y1), filters.y1);
    Store(Choose(kLowCutLanes, after.y2, section.y2), filters.y2);
}

} // namespace korvane
