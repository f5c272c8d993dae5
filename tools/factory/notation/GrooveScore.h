// How grooves are written down: tracks, clips in a step notation, locks, effects, controls.
#pragma once

#include <span>

#include "engine/GrooveEngine.h"
#include "factory/words/ChannelWords.h"
#include "framework/ParameterTable.h"

namespace korvane::factory::groove {

using enum LfoShape;

// The patterns of a groove, added up where a row stands in several.
inline constexpr unsigned A = 1, B = 2, C = 4, D = 8, E = 16, F = 32;

// Parameters of an effect, for locks and knobs.
constexpr int X(Fx unit) { return slot::FxX + static_cast<int>(unit); }
constexpr int Y(Fx unit) { return slot::FxY + static_cast<int>(unit); }
constexpr int GlueOf(Fx unit) { return slot::FxGlue + static_cast<int>(unit); }

/// One channel of the groove. A channel that no track names stays as a new one.
struct Track {
    int channel;         // 0..7 samplers, 8..12 synths
    const char* program; // of the library
    double levelDb;      // mixer, -60..20
    double pan;          // -1 left, 1 right
    int semitones;       // -24..24
    double gate;         // how much of its steps a note sounds; 0: the program's length, for samplers
    bool shuffled;
};

/// What a channel plays in some patterns: up to eight bars of sixteen steps, '|' between them. '%' repeats the bar
/// before, '%4' the fourth before.
///
/// Samplers, a letter a step:  x hit, X accent, o ghost, 0..9 hit so many semitones up, . nothing.
/// Synths, words:              letters are notes, c..b from 130 Hz, C..B the octave above, # after a letter raises it;
///                             several are a chord; 1..6 is a note of the bar's chord, * all of it; . is a rest.
///                             What follows, in any order: /n lasts n steps, ! accent, ' ghost, _ glides there.
struct Clip {
    int channel;
    unsigned patterns;
    const char* bars;
    const char* chords = ""; // bar by bar, over and over; several words share the bar evenly
};

/// A parameter moved in the steps first..last that play, evenly from one offset to the other. Offsets are those of the
/// knob, except semitones for slot::Pitch and dB for slot::MixLevel and slot::AmpLevel.
struct Lock {
    int channel;
    unsigned patterns;
    int first, last; // from 0 at the pattern's start
    int slotIndex;
    double from, to;
};

/// A parameter that is not as the program has it.
struct Knob {
    int channel;
    int slotIndex;
    double value; // 0..1
};

/// An effect that the program does not have, or not so.
struct Glued {
    int channel;
    Effect effect;
};

/// What one of "EXT Ctrl 1" to "EXT Ctrl 5" turns.
struct Handle {
    int channel;
    int slotIndex;
};

struct Score {
    double shuffle = 0.0;  // 0..1, of the shuffled tracks
    unsigned playOnce = 0; // patterns that return to the one before
    std::span<const Track> tracks;
    std::span<const Clip> clips;
    std::span<const Lock> locks = {};
    std::span<const Glued> effects = {};
    std::span<const Knob> knobs = {};
    std::span<const Handle> handles = {};
};

/// Fills an empty groove. A slip of the pen ends the process with a message.
void Write(const Score& score, GrooveEngine& engine);

} // namespace korvane::factory::groove
