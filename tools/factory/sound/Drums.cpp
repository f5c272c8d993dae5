// The electronic drum models that the kits are built from.
#include "factory/sound/Drums.h"

#include <algorithm>
#include <utility>

namespace korvane::factory {

namespace {

Buffer Band(double seconds, double lowHz, double highHz, std::uint32_t seed)
{
    Buffer noise = Filtered(WhiteNoise(seconds, seed), Pass::High, lowHz);
    return Filtered(std::move(noise), Pass::Low, highHz);
}

} // namespace

Buffer Burst(double hz, double seconds, std::uint32_t seed)
{
    Buffer burst = Filtered(WhiteNoise(seconds * kTail + 0.002, seed), Pass::Band, hz, 0.8);
    Shape(burst, [seconds](double t) { return Decay(t, seconds) * Rise(t, 0.0002); });
    return burst;
}

Buffer Kick(const KickShape& shape, std::uint32_t seed)
{
    const double length = shape.hold + shape.decay * kTail;
    const auto pitch = [&shape](double t) {
        return shape.hz * Octaves(shape.sweep * std::exp(-t / shape.sweepTime) + shape.snap * std::exp(-t / 0.003));
    };
    Buffer body = Sine(length, pitch);
    if (shape.second > 0.0) {
        Buffer octave = Sine(length, [&pitch](double t) { return 2.0 * pitch(t); });
        Shape(octave, [&shape](double t) { return Decay(t, 0.5 * shape.decay); });
        Mix(body, octave, shape.second);
    }
    Shape(body, [&shape](double t) { return Decay(std::max(0.0, t - shape.hold), shape.decay) * Rise(t, 0.0006); });
    Saturate(body, shape.drive);
    Mix(body, Burst(shape.clickHz, 0.022, seed), shape.click);
    return Filtered(std::move(body), Pass::Low, shape.lowPass);
}

Buffer Snare(const SnareShape& shape, std::uint32_t seed)
{
    const double length = std::max(shape.toneDecay, shape.noiseDecay) * kTail;
    Buffer sum(FramesOf(length));
    for (const double ratio : {1.0, shape.ratio}) {
        Buffer mode = Sine(length, [&shape, ratio](double t) {
            return shape.hz * ratio * Octaves(shape.bend * std::exp(-t / 0.012));
        });
        Shape(mode, [&shape, ratio](double t) { return Decay(t, shape.toneDecay / ratio) * Rise(t, 0.0004); });
        Mix(sum, mode, shape.tone / ratio);
    }
    Buffer wires = Band(length, shape.lowHz, shape.highHz, seed);
    Shape(wires, [&shape](double t) {
        return (0.75 * Decay(t, shape.noiseDecay) + 0.25 * Decay(t, 0.4 * shape.noiseDecay)) * Rise(t, 0.0008);
    });
    Mix(sum, wires, shape.noise);
    Mix(sum, Burst(3800.0, 0.018, seed + 1), shape.crack);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Clap(const ClapShape& shape, std::uint32_t seed)
{
    const double length = shape.spacing * shape.hands + shape.decay * kTail;
    const Buffer noise = WhiteNoise(length, seed);
    Buffer sum = Filtered(noise, Pass::Band, shape.hz, shape.q);
    Mix(sum, Filtered(noise, Pass::Band, 2.3 * shape.hz, 1.5 * shape.q), 0.5); // the hollow of the hands
    Scale(sum, 2.0);
    Mix(sum, Filtered(noise, Pass::High, 4000.0), 0.5 * shape.bright);
    sum = Filtered(std::move(sum), Pass::Low, 11000.0);
    const double last = shape.spacing * (shape.hands - 1);
    Shape(sum, [&shape, last](double t) {
        if (t >= last) return 0.55 * Decay(t - last, shape.decay) + 0.45 * Decay(t - last, 0.04);
        const double since = std::fmod(t, shape.spacing);
        return 0.85 * Decay(since, 2.2 * shape.spacing) * Rise(since, 0.0003);
    });
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Cymbal(const CymbalShape& shape, std::uint32_t seed)
{
    const double length = shape.attack + shape.decay * std::max(1.0, shape.bodyTime) * kTail;
    Buffer source = MetalSquares(length, shape.hz, shape.ratios);
    Scale(source, shape.metal);
    Mix(source, WhiteNoise(length, seed), shape.noise);
    Buffer sum = Filtered(Filtered(source, Pass::High, shape.highPass, 0.9), Pass::High, shape.highPass);
    sum = Filtered(std::move(sum), Pass::Low, shape.lowPass, 0.6);
    Shape(sum, [&shape](double t) {
        return Rise(t, shape.attack) * (0.75 * Decay(t, shape.decay) + 0.25 * Decay(t, 0.3 * shape.decay));
    });
    if (shape.body > 0.0) {
        Buffer body = Filtered(std::move(source), Pass::Band, shape.bodyHz, 1.2);
        Shape(body, [&shape](double t) { return Rise(t, shape.attack) * Decay(t, shape.decay * shape.bodyTime); });
        Mix(sum, body, shape.body);
    }
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Tom(const TomShape& shape, std::uint32_t seed)
{
    const double length = shape.decay * kTail;
    Buffer sum;
    const Mode partials[] = {{1.0, 1.0, 1.0}, {1.59, shape.overtone, 0.5}, {2.14, 0.6 * shape.overtone, 0.35}};
    for (const Mode& partial : partials) {
        Buffer mode = Sine(length, [&shape, &partial](double t) {
            return shape.hz * partial.hz * Octaves(shape.bend * std::exp(-t / shape.bendTime));
        });
        Shape(mode, [&](double t) { return Decay(t, shape.decay * partial.decay) * Rise(t, 0.0008); });
        Mix(sum, mode, partial.level);
    }
    Mix(sum, Burst(shape.skinHz, 0.05, seed), shape.skin);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Struck(const StruckShape& shape, std::uint32_t seed)
{
    Buffer sum = Ring(shape.length, {shape.modes.begin(), shape.modes.end()});
    if (shape.squares > 0.0) {
        Buffer squares = MetalSquares(shape.length, shape.squaresHz, {1.0, 1.4815});
        squares = Filtered(std::move(squares), Pass::Band, shape.squaresHz * 1.9, 1.1);
        Shape(squares, [&shape](double t) {
            return 0.6 * Decay(t, shape.squaresDecay) + 0.4 * Decay(t, 0.25 * shape.squaresDecay);
        });
        Mix(sum, squares, shape.squares);
    }
    Mix(sum, Burst(shape.clickHz, shape.clickTime, seed), shape.click);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Shaker(const ShakerShape& shape, std::uint32_t seed)
{
    const double length = shape.backAt + shape.attack + shape.decay * kTail;
    Noise beads(seed);
    Buffer noise = Make(length, [&](double) {
        const double value = beads.Next();
        const double chance = 0.5 + 0.5 * beads.Next();
        return chance < shape.grain * 0.9 ? 0.0 : value; // fewer, louder beads
    });
    noise = Filtered(Filtered(std::move(noise), Pass::Band, shape.hz, shape.q), Pass::High, 0.5 * shape.hz);
    const auto stroke = [&shape](double t) {
        if (t < 0.0) return 0.0;
        return t < shape.attack ? (t / shape.attack) * (t / shape.attack) : Decay(t - shape.attack, shape.decay);
    };
    Shape(noise, [&](double t) { return stroke(t) + shape.back * stroke(t - shape.backAt); });
    return noise;
}

Buffer Clang(const ClangShape& shape, std::uint32_t seed)
{
    const double length = std::max(shape.decay, shape.noiseDecay) * kTail;
    double carrier = 0.0, modulator = 0.0;
    Buffer sum = Make(length, [&](double t) {
        const double hz = shape.hz * Octaves(shape.bend * std::exp(-t / shape.bendTime));
        const double index = shape.index * Decay(t, shape.indexDecay);
        const double value = std::sin(kTurn * carrier + index * std::sin(kTurn * modulator));
        carrier += hz / kRate;
        modulator += hz * shape.ratio / kRate;
        return value * Decay(t, shape.decay) * Rise(t, 0.0003);
    });
    Buffer noise = Filtered(WhiteNoise(length, seed), Pass::Band, shape.noiseHz, 0.8);
    Shape(noise, [&shape](double t) { return Decay(t, shape.noiseDecay); });
    Mix(sum, noise, 2.0 * shape.noise);
    Saturate(sum, shape.drive);
    return sum;
}

Buffer Sweep(const SweepShape& shape, std::uint32_t seed)
{
    const double length = shape.attack + shape.decay * kTail;
    const auto corner = [&shape](double t) {
        return shape.toHz * Octaves(std::log2(shape.fromHz / shape.toHz) * std::exp(-t / shape.time));
    };
    Buffer noise = FilteredAlong(WhiteNoise(length, seed), Pass::Band, shape.q, corner);
    Shape(noise, [&shape](double t) {
        const double beat = 0.5 - 0.5 * std::cos(kTurn * shape.flutterHz * t);
        return Rise(t, shape.attack) * Decay(std::max(0.0, t - shape.attack), shape.decay) *
               (1.0 - shape.flutter * beat);
    });
    Scale(noise, 1.5);
    Saturate(noise, shape.drive);
    return noise;
}

Buffer Stab(const StabShape& shape, std::uint32_t seed)
{
    const double length = shape.decay * kTail;
    Buffer sum = MetalSquares(length, shape.hz, shape.chord);
    Mix(sum, MetalSquares(length, shape.hz * 1.004, shape.chord), 0.8); // a little chorus
    Mix(sum, WhiteNoise(length, seed), 0.04);
    const auto corner = [&shape](double t) {
        return shape.closedHz + (shape.openHz - shape.closedHz) * std::exp(-t / shape.closeTime);
    };
    sum = FilteredAlong(std::move(sum), Pass::Low, shape.q, corner);
    sum = FilteredAlong(std::move(sum), Pass::Low, 0.7, corner);
    Shape(sum, [&shape](double t) { return Decay(t, shape.decay) * Rise(t, 0.001); });
    Saturate(sum, shape.drive);
    return sum;
}

} // namespace korvane::factory
