// One effect of a channel's rack, or its stutter.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "engine/fx/Effect.h"
#include "engine/fx/Equaliser.h"
#include "engine/fx/UnitControls.h"

namespace korvane {

/// What a unit does; "FX 1" to "FX 10" are the types 0 to 9.
enum class FxType : std::int32_t {
    Distortion = 0, // x drive, y lowpass
    Decimator = 1,  // x crush, y lowpass
    Chorus = 2,     // x depth, y feedback
    Phaser = 3,     // x depth, y feedback
    LowPass = 4,    // x frequency, y resonance
    HighPass = 5,   // x frequency, y resonance
    Echo = 6,       // x send and feedback, y filter; one LFO period long
    Reverb = 7,     // x decay and level, y damping
    Panner = 8,     // x position, y level difference
    Pump = 9,       // x release, y drop level; carries the channel's equaliser
    Stutter = 11,
};

class FXUnit;

/// A unit and its channel's block.
struct UnitRun {
    FXUnit* unit;
    StereoBlock block;
};

/// As Process of each unit: units of the same type, of several channels, blocks of the same length.
void ProcessUnits(std::span<const UnitRun> runs, float tempo);

/// Runs the effect of its type in place on the channel's stereo block: starts and stops it, keeps what all types share
/// and mutes what is no number. Settings are written before each block by UpdateFxSettings (the stutter's by
/// SetStutter at each step); everything belongs to the audio thread.
class FXUnit : public UnitControls {
public:
    explicit FXUnit(FxType unitType);
    ~FXUnit();
    FXUnit(const FXUnit&) = delete;
    FXUnit& operator=(const FXUnit&) = delete;

    /// Silences the unit: delay memory, filters, recording, LFO phase, on-level and tail. Throws std::bad_alloc and
    /// stays at its rate when there is no memory for another one.
    ///
    /// newRate  Hz; 0 keeps the rate. Only another one allocates; where it is not usable (Limits.h), the memory of the
    ///          rate before stays
    void Reset(float newRate);

    /// Does nothing when the rate is not usable or the tempo below 1. Allocates nothing. An input that is not finite,
    /// or overflows, gives one silent block and a reset.
    /// frames  0..kMaxRun; 0 changes nothing, `audible` included
    /// tempo   beats per minute
    void Process(float* left, float* right, int frames, float tempo);
    friend void ProcessUnits(std::span<const UnitRun> runs, float tempo);
    /// After a run: while it stays bypassed and hears nothing, a further one would change nothing and `audible` is 0.
    bool AtRest() const { return audible == 0 && (eqOn == 0 || eqBands->Silent()); }

    const FxType type;

    /// 1 when the effect ran in the last block, be it that it is on, fading out or ringing: what follows it in the rack
    /// has to run and the channel is mixed, whether or not something can be heard. The equaliser alone counts only
    /// while it rings above −80 dB.
    std::uint8_t audible = 0;

    // Pump only: the channel's equaliser.
    std::array<float, kEqBands> eqGains;            // 0..1, 0.5 is 0 dB
    std::array<std::uint8_t, kEqBands> eqChanged{}; // the band has to be computed before it is used
    std::uint8_t eqOn = 0;

private:
    bool Usable() const;
    bool Begin(float tempo);
    void TimeLfo(float tempo);
    void Finish(const StereoBlock& block);
    bool Equalises() const { return eqBands && eqOn; }
    void UpdateBands();
    void Silence(const StereoBlock& block);

    const std::unique_ptr<Effect> effect;
    const std::unique_ptr<Equaliser> eqBands; // pump only

    float lfoTempo = 0.0f, lfoTimedBeats = 0.0f, lfoRate = 0.0f; // what the LFO's period and increment are of
};

} // namespace korvane
