// What an effect unit asks of the effect in it.
#pragma once

#include <span>

#include "engine/fx/UnitControls.h"

namespace korvane {

/// Two sides of a channel, worked on in place.
struct StereoBlock {
    float* left;
    float* right;
    int frames; // 1..kMaxRun
};

class Effect;

/// An effect of one channel on its way through a block.
struct EffectRun {
    Effect* effect;
    UnitControls* unit;
    StereoBlock block;
};

/// One kind of processing with its state. The unit around it keeps the settings, starts and stops it, and mutes and
/// resets it when its output is no number. Audio thread; only Allocate allocates.
class Effect {
public:
    virtual ~Effect() = default;

    /// Provides the delay memory that the effect needs at a rate, empty. Called before anything else.
    /// rate  Hz, usable (Limits.h)
    virtual void Allocate(float) {}
    /// Forgets what it has heard.
    virtual void Reset() = 0;
    /// Overwrites memory that Reset leaves as it is because it is written again before it is of use.
    virtual void Wipe() {}

    /// There is something to do in the coming block. Otherwise Process is not called and the block passes.
    virtual bool Runs(const UnitControls& unit) const { return !unit.FadedOut(); }
    virtual void Process(UnitControls& unit, const StereoBlock& block) = 0;
    /// The same kind of effect of several channels, this one among them; blocks are equally long. Those whose inner
    /// loop takes channels side by side do so here.
    virtual void ProcessAll(std::span<const EffectRun> runs)
    {
        for (const EffectRun& run : runs) run.effect->Process(*run.unit, run.block);
    }
};

} // namespace korvane
