// The reverb's eighteen parameters.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvane {

namespace reverb {
enum : std::int32_t {
    Input,
    LowCut,
    HighCut,
    Predelay,
    RoomSize,
    Diffusion,
    BassMultiplier,
    Crossover,
    Decay,
    HighDamping,
    Dry,
    Er,
    Reverb,
    Width,
    MuteInput,
    MuteDry,
    MuteEr,
    MuteReverb,
    Count,
};
} // namespace reverb

enum class ReverbDisplay { Level, Integer, Tenths, Switch };

/// One parameter: a value v of 0..1 stands for the whole number floor(scale v + offset), within lowest..highest.
struct ReverbParameter {
    std::int32_t index;
    const char* name;
    float scale, offset;
    int lowest, highest;
    const char* label;
    ReverbDisplay display;
    float initial; // of the program "[1] Default Reverb"
};

// clang-format off
inline constexpr std::array<ReverbParameter, reverb::Count> kReverbParameters {{
//   index                   name              scale    offset   lowest highest label  display                 initial
    {reverb::Input,          "Input",           421.0f, -360.5f, -361,   60,    "dB",  ReverbDisplay::Level,   0.857482f},
    {reverb::LowCut,         "LowCut",         2981.0f,   19.5f,   19, 3000,    "Hz",  ReverbDisplay::Integer, 0.018786f},
    {reverb::HighCut,        "HighCut",         216.0f,    5.5f,    5,  221,    "kHz", ReverbDisplay::Tenths,  0.162037f},
    {reverb::Predelay,       "Predelay",        250.0f,    0.5f,    0,  250,    "ms",  ReverbDisplay::Integer, 0.0f},
    {reverb::RoomSize,       "RoomSize",         99.0f,    1.5f,    1,  100,    "",    ReverbDisplay::Integer, 0.494949f},
    {reverb::Diffusion,      "Diffusion",       100.0f,    0.5f,    0,  100,    "%",   ReverbDisplay::Integer, 1.0f},
    {reverb::BassMultiplier, "BassMultiplier",   28.0f,    2.5f,    2,   30,    "x",   ReverbDisplay::Tenths,  0.285714f},
    {reverb::Crossover,      "Crossover",      1975.0f,   25.5f,   25, 2000,    "Hz",  ReverbDisplay::Integer, 0.240506f},
    {reverb::Decay,          "Decay",           199.0f,    1.5f,    1,  200,    "s",   ReverbDisplay::Tenths,  0.070352f},
    {reverb::HighDamping,    "HighDamping",     216.0f,    5.5f,    5,  221,    "kHz", ReverbDisplay::Tenths,  0.162037f},
    {reverb::Dry,            "Dry",             421.0f, -360.5f, -361,   60,    "dB",  ReverbDisplay::Level,   0.857482f},
    {reverb::Er,             "ER",              421.0f, -360.5f, -361,   60,    "dB",  ReverbDisplay::Level,   0.774347f},
    {reverb::Reverb,         "Reverb",          421.0f, -360.5f, -361,   60,    "dB",  ReverbDisplay::Level,   0.572447f},
    {reverb::Width,          "Width",           200.0f,    0.5f,    0,  200,    "%",   ReverbDisplay::Integer, 0.5f},
    {reverb::MuteInput,      "MuteInput",         1.0f,    0.5f,    0,    1,    "",    ReverbDisplay::Switch,  0.0f},
    {reverb::MuteDry,        "MuteDry",           1.0f,    0.5f,    0,    1,    "",    ReverbDisplay::Switch,  0.0f},
    {reverb::MuteEr,         "MuteER",            1.0f,    0.5f,    0,    1,    "",    ReverbDisplay::Switch,  0.0f},
    {reverb::MuteReverb,     "MuteReverb",        1.0f,    0.5f,    0,    1,    "",    ReverbDisplay::Switch,  0.0f},
}};
// clang-format on

constexpr bool EveryReverbRowStandsAtItsIndex()
{
    for (std::size_t n = 0; n < kReverbParameters.size(); ++n)
        if (kReverbParameters[n].index != static_cast<std::int32_t>(n)) return false;
    return true;
}
static_assert(EveryReverbRowStandsAtItsIndex());

using ReverbSteps = std::array<int, reverb::Count>;

/// The whole number that a value stands for; values outside 0..1 and NaN give the nearest end.
int ReverbStep(std::int32_t index, float value);

/// Writes what the step means, without unit, into a buffer of 16 bytes; it has at most 5 characters.
void ReverbText(std::int32_t index, int step, char* text);

} // namespace korvane
