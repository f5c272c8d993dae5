// The colours of the instrument.
#pragma once

namespace korvane::skin {

/// Parts of 1, not multiplied by the alpha.
struct Shade {
    double red, green, blue, alpha = 1.0;
};

constexpr Shade Rgb(int red, int green, int blue, double alpha = 1.0)
{
    return {red / 255.0, green / 255.0, blue / 255.0, alpha};
}

/// From one to the other as `part` goes from 0 to 1.
constexpr Shade Mix(Shade from, Shade to, double part)
{
    const auto mixed = [part](double a, double b) { return a + (b - a) * part; };
    return {mixed(from.red, to.red), mixed(from.green, to.green), mixed(from.blue, to.blue),
            mixed(from.alpha, to.alpha)};
}

constexpr Shade Black(double alpha) { return {0.0, 0.0, 0.0, alpha}; }
constexpr Shade White(double alpha) { return {1.0, 1.0, 1.0, alpha}; }
constexpr Shade Fade(Shade shade, double alpha) { return {shade.red, shade.green, shade.blue, shade.alpha * alpha}; }
constexpr Shade Lighter(Shade shade, double part) { return Mix(shade, {1.0, 1.0, 1.0, shade.alpha}, part); }
constexpr Shade Darker(Shade shade, double part) { return Mix(shade, {0.0, 0.0, 0.0, shade.alpha}, part); }

// The housing
inline constexpr Shade kChassisTop = Rgb(47, 44, 41), kChassisBottom = Rgb(36, 33, 31);
inline constexpr Shade kPlateTop = Rgb(63, 59, 55), kPlateBottom = Rgb(51, 47, 44);
inline constexpr Shade kHole = Rgb(17, 15, 14);
inline constexpr Shade kWood = Rgb(92, 57, 35);

// Print
inline constexpr Shade kCream = Rgb(228, 214, 190), kDimCream = Rgb(184, 171, 150), kAmber = Rgb(240, 136, 63);
inline constexpr Shade kTitleInk = Rgb(246, 152, 84);

// Caps of keys
inline constexpr Shade kCharcoal = Rgb(74, 69, 64), kTaupe = Rgb(104, 95, 84), kSlate = Rgb(70, 78, 86);
inline constexpr Shade kIvory = Rgb(206, 195, 174);
inline constexpr Shade kDarkInk = Rgb(46, 27, 14);

// Light
inline constexpr Shade kRedLight = Rgb(255, 84, 38), kAmberLight = Rgb(255, 168, 62), kGreenLight = Rgb(186, 214, 92);
inline constexpr Shade kBlueLight = Rgb(126, 190, 222), kDullRed = Rgb(146, 62, 44);

// The lit display and the dark ones
inline constexpr Shade kGlassTop = Rgb(226, 210, 178), kGlassBottom = Rgb(211, 193, 158);
inline constexpr Shade kInk = Rgb(87, 70, 46), kSlateInk = Rgb(46, 70, 87);
inline constexpr Shade kNight = Rgb(22, 18, 16);

} // namespace korvane::skin
