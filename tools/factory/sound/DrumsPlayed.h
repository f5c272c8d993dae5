// Models of what a drummer plays: skins, wires, cymbals, jingles, springs. Fields stand in the order of the kits'
// columns.
#pragma once

#include <cstdint>

#include "factory/sound/Sound.h"

namespace korvane::factory {

/// A round skin over a shell: the modes of an ideal membrane, each split in two that beat, and the beater.
struct SkinShape {
    double hz;             // lowest mode
    double bend, bendTime; // octaves that a hard blow raises the pitch by, time constant in seconds
    double decay;          // seconds to -60 dB, lowest mode
    double overtones;      // level of the others...
    double tilt;           // ...falls with their ratio to this power...
    double damp;           // ...and their decay with this one
    double beater, beaterHz, beaterTime;
    double knock, knockHz; // the shell's thump
    double drive;
};
Buffer Skin(const SkinShape& shape, std::uint32_t seed);

/// A skin with snare wires below it.
struct SnareDrumShape {
    SkinShape skin;
    double skinLevel;
    double wires, wiresDecay;
    double lowHz, presenceHz, highHz; // band and emphasis of the wires
    double buzz;                      // how much the skin's swing interrupts the wires, 0..1
    double drive;
};
Buffer SnareDrum(const SnareDrumShape& shape, std::uint32_t seed);

/// A bronze or steel plate: hundreds of modes evenly spread over the band, as plate theory has them.
struct PlateShape {
    std::uint32_t metal; // the same number is the same piece of metal
    int count;
    double lowHz, highHz;
    double tilt;                // dB per octave
    double lowDecay, highDecay; // seconds to -60 dB at the band's ends
    double bloom;               // seconds that the high modes take to rise
    double wash, washHz;        // noise between the modes, above washHz
    double stick, stickHz;
    double drive; // also makes the sums and differences of a plate that bends far
};
Buffer Plate(const PlateShape& shape, std::uint32_t seed);

/// Small pieces of metal that strike each other: tambourines, chains, keys.
struct JinglesShape {
    std::uint32_t metal;
    int count; // modes
    double lowHz, highHz, ring;
    int hits;
    double spread; // seconds from the first hit to the last
    double back, backAt;
    double noise, noiseHz;
    double drive;
};
Buffer Jingles(const JinglesShape& shape, std::uint32_t seed);

/// A burst that runs along a coil, high frequencies last, and comes back (stretched all-passes: Välimäki, Parker, Abel,
/// "Parametric spring reverberation effect").
struct SpringShape {
    int stretch, sections; // frames per section; sections per way
    double coefficient;
    int echoes;
    double echoTime, loss;
    double hz, lowPass;
    double drive;
};
Buffer Spring(const SpringShape& shape, std::uint32_t seed);

} // namespace korvane::factory
