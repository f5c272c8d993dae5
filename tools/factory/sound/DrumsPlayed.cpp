// Models of what a drummer plays: skins, wires, cymbals, jingles, springs.
#include "factory/sound/DrumsPlayed.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "factory/sound/Drums.h"
#include "factory/sound/Synthesis.h"

namespace korvane::factory {

namespace {

// Zeros of the Bessel functions against the lowest: modes of an ideal membrane.
constexpr double kMembrane[] = {1.0, 1.593, 2.136, 2.296, 2.653, 2.918, 3.156, 3.501, 3.600, 4.060, 4.610};
constexpr double kSplit = 0.006; // tuning lugs never agree

double Between(Noise& noise, double low, double high) { return low + (high - low) * (0.5 + 0.5 * noise.Next()); }

Buffer SkinModes(const SkinShape& shape, std::uint32_t seed)
{
    Noise strike(seed + 5);
    Buffer sum;
    for (const double ratio : kMembrane) {
        const double level = ratio == 1.0 ? 1.0 : shape.overtones * std::pow(ratio, -shape.tilt);
        const double decay = shape.decay * std::pow(ratio, -shape.damp);
        for (const double side : {-0.5, 0.5}) {
            const double hz = shape.hz * ratio * (ratio == 1.0 ? 1.0 : 1.0 + kSplit * side);
            const double share = level * Between(strike, 0.35, 0.65);
            Buffer mode =
                Sine(decay * kTail, [&](double t) { return hz * Octaves(shape.bend * std::exp(-t / shape.bendTime)); });
            Shape(mode, [decay](double t) { return Decay(t, decay) * Rise(t, 0.001); });
            Mix(sum, mode, share);
        }
    }
    return sum;
}

/// Modes of one band of the plate, each at its frequency whatever the seed.
std::vector<Mode> PlateModes(const PlateShape& shape, Noise& levels)
{
    Noise places(shape.metal);
    std::vector<Mode> modes;
    const double step = (shape.highHz - shape.lowHz) / static_cast<double>(shape.count);
    for (int n = 0; n < shape.count; ++n) {
        const double hz = shape.lowHz + step * (static_cast<double>(n) + Between(places, 0.0, 1.0));
        const double octave = std::log2(hz / shape.lowHz), octaves = std::log2(shape.highHz / shape.lowHz);
        const double level = std::exp2(shape.tilt * octave / 6.0206) * Between(levels, 0.2, 1.0);
        const double decay = shape.lowDecay * std::pow(shape.highDecay / shape.lowDecay, octave / octaves);
        modes.push_back({hz, level, decay * Between(places, 0.7, 1.2), Between(levels, 0.0, 1.0)});
    }
    return modes;
}

/// Sparse blows that follow a stroke: the first one hard, then at random.
Buffer Blows(double seconds, const JinglesShape& shape, Noise& noise)
{
    Buffer blows(FramesOf(seconds));
    const auto stroke = [&](double at, double level) {
        for (int n = 0; n < shape.hits; ++n) {
            const double place = n == 0 ? 0.0 : Between(noise, 0.0, 1.0);
            const double force = level * (n == 0 ? 1.0 : Between(noise, 0.15, 0.8) * (1.0 - 0.7 * place));
            const std::size_t frame = FramesOf(at + place * shape.spread);
            if (frame < blows.size()) blows[frame] += force;
        }
    };
    stroke(0.001, 1.0);
    if (shape.back > 0.0) stroke(shape.backAt, shape.back);
    return blows;
}

/// One way along the coil.
Buffer AlongCoil(Buffer sound, const SpringShape& shape)
{
    std::vector<double> past(static_cast<std::size_t>(shape.stretch));
    for (int section = 0; section < shape.sections; ++section) {
        std::fill(past.begin(), past.end(), 0.0);
        std::size_t at = 0;
        for (double& value : sound) {
            const double old = past[at], now = value - shape.coefficient * old;
            value = shape.coefficient * now + old;
            past[at] = std::abs(now) < 1e-15 ? 0.0 : now;
            at = at + 1 < past.size() ? at + 1 : 0;
        }
    }
    return sound;
}

} // namespace

Buffer Skin(const SkinShape& shape, std::uint32_t seed)
{
    Buffer sum = SkinModes(shape, seed);
    Mix(sum, Burst(shape.beaterHz, shape.beaterTime, seed), shape.beater);
    Mix(sum, Filtered(Burst(shape.knockHz, 0.07, seed + 1), Pass::Band, shape.knockHz, 1.5), shape.knock);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer SnareDrum(const SnareDrumShape& shape, std::uint32_t seed)
{
    Buffer sum = Skin(shape.skin, seed);
    Scale(sum, shape.skinLevel);
    const Buffer noise = WhiteNoise(shape.wiresDecay * kTail, seed + 2);
    Buffer wires = Filtered(Filtered(noise, Pass::High, shape.lowHz), Pass::Low, shape.highHz);
    Mix(wires, Filtered(noise, Pass::Band, shape.presenceHz, 1.2), 0.8);
    Shape(wires, [&shape](double t) {
        const double swing = std::abs(std::sin(std::numbers::pi * shape.skin.hz * t));
        const double open = 1.0 - shape.buzz * Decay(t, shape.skin.decay) * (1.0 - swing);
        return open * Rise(t, 0.0015) * (0.6 * Decay(t, shape.wiresDecay) + 0.4 * Decay(t, 0.3 * shape.wiresDecay));
    });
    Mix(sum, wires, shape.wires);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Plate(const PlateShape& shape, std::uint32_t seed)
{
    const double length = std::max(shape.lowDecay, shape.highDecay) * kTail;
    Noise levels(seed);
    std::vector<Mode> low, high;
    const double middle = std::sqrt(shape.lowHz * shape.highHz);
    for (const Mode& mode : PlateModes(shape, levels)) (mode.hz < middle ? low : high).push_back(mode);
    Buffer sum = Ring(length, low), sizzle = Ring(length, high);
    Scale(sizzle, 1.0 / std::sqrt(static_cast<double>(shape.count)));
    Scale(sum, 1.0 / std::sqrt(static_cast<double>(shape.count)));
    Buffer wash = Filtered(WhiteNoise(length, seed + 1), Pass::High, shape.washHz);
    Shape(wash, [&shape](double t) { return Decay(t, std::sqrt(shape.lowDecay * shape.highDecay)); });
    Mix(sizzle, Filtered(std::move(wash), Pass::Low, 12000.0), shape.wash);
    Shape(sizzle, [&shape](double t) { return 1.0 - 0.8 * std::exp(-t / shape.bloom); });
    Mix(sum, sizzle);
    Mix(sum, Burst(shape.stickHz, 0.02, seed + 2), shape.stick);
    Saturate(sum, shape.drive);
    sum = Filtered(std::move(sum), Pass::Low, 0.75 * shape.highHz, 0.6); // air and bronze take the rest
    return Filtered(std::move(sum), Pass::High, 0.7 * shape.lowHz);
}

Buffer Jingles(const JinglesShape& shape, std::uint32_t seed)
{
    const double length = shape.backAt + shape.spread + shape.ring * kTail;
    Noise chance(seed), places(shape.metal);
    const Buffer blows = Blows(length, shape, chance);
    Buffer sum(blows.size());
    for (int n = 0; n < shape.count; ++n) {
        const double hz = shape.lowHz * std::pow(shape.highHz / shape.lowHz, Between(places, 0.0, 1.0));
        const double q = std::numbers::pi * hz * shape.ring * Between(places, 0.5, 1.0) / 6.907755;
        Mix(sum, Filtered(blows, Pass::Band, hz, q), q * 1000.0 / hz * Between(places, 0.4, 1.0));
    }
    Buffer beads = Filtered(WhiteNoise(length, seed + 1), Pass::Band, shape.noiseHz, 0.7);
    Buffer along = Filtered(blows, Pass::Low, 12.0, 0.5); // the strokes, slowed to an envelope
    const double loudest = std::max(Peak(along), 1e-9);
    for (std::size_t n = 0; n < beads.size(); ++n) beads[n] *= std::max(0.0, along[n]) / loudest;
    const double most = std::max(Peak(sum), 1e-9);
    Scale(sum, 1.0 / most);
    Mix(sum, beads, shape.noise);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Spring(const SpringShape& shape, std::uint32_t seed)
{
    Buffer way = Burst(shape.hz, 0.012, seed);
    way.resize(FramesOf(shape.echoTime * shape.echoes + 0.9));
    Buffer sum;
    double level = 1.0;
    for (int n = 0; n < shape.echoes; ++n) {
        way = Filtered(AlongCoil(std::move(way), shape), Pass::Low, shape.lowPass);
        Mix(sum, way, level, shape.echoTime * n);
        level *= -shape.loss;
    }
    Saturate(sum, shape.drive / std::max(Peak(sum), 1e-9));
    return sum;
}

} // namespace korvane::factory
