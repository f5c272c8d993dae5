// A level meter: how many of its lights are lit, and where they stand.
#include "editor/elements/KVMeter.h"

#include <cmath>

#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kLights = 13, kLowerLights = 10;
constexpr int kDistance = 8;                       // from light to light, pixels
constexpr int kLightWidth = 14, kLightHeight = 13; // in the image; lights overlap
constexpr int kBelow = 1;                          // so far the lowest light reaches below the meter
constexpr float kRange = 80.0f;                    // dB from an empty meter to a full one

} // namespace

void KVMeter::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    const float decibels = 20.0f * std::log10(level);
    level -= level * 0.5f;
    const float fill = Clamp(1.0f - decibels / -kRange, 0.0f, 1.0f);
    const int lit = Truncate(fill * static_cast<float>(kLights));

    DrawPage(buffer, {rect.x, rect.y, rect.w, rect.h + kBelow});
    const int lowest = rect.y + rect.h + kBelow - kLightHeight;
    for (int n = 0; n < kLights; ++n) {
        const Point source{n < kLowerLights ? kLightWidth : 0, n < lit ? kLightHeight : 0};
        buffer->DrawBitmap(leds, {rect.x, lowest - n * kDistance, rect.w, kLightHeight}, source);
    }
    ShowDrawn({rect.x, rect.y + rect.h, rect.w, kBelow});
}

} // namespace korvane
