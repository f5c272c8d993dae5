// Reverb parameters: values into steps, steps into texts.
#include "engine/fx/reverb/ReverbParameters.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr std::size_t kTextBytes = 16;

} // namespace

int ReverbStep(std::int32_t index, float value)
{
    const ReverbParameter& row = kReverbParameters[static_cast<std::size_t>(index)];
    return Clamp(Truncate(std::floor(row.scale * value + row.offset)), row.lowest, row.highest);
}

void ReverbText(std::int32_t index, int step, char* text)
{
    const ReverbParameter& row = kReverbParameters[static_cast<std::size_t>(index)];
    const auto tenths = [&] {
        std::snprintf(text, kTextBytes, "%s%d.%d", step < 0 ? "-" : "", std::abs(step) / 10, std::abs(step) % 10);
    };
    switch (row.display) {
    case ReverbDisplay::Level: step == row.lowest ? void(std::snprintf(text, kTextBytes, "-Inf")) : tenths(); break;
    case ReverbDisplay::Integer: std::snprintf(text, kTextBytes, "%d", step); break;
    case ReverbDisplay::Tenths: tenths(); break;
    case ReverbDisplay::Switch: std::snprintf(text, kTextBytes, "%s", step ? "On" : "Off"); break;
    }
}

} // namespace korvane
