// Effects whose kernel takes the sides of several channels side by side.
#pragma once

#include <array>

#include "engine/fx/Effect.h"
#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"

namespace korvane {

/// Keeps the sides of its channel and hands them to the kernel; the kind of effect prepares their settings.
template <template <class> class Side, SidesKernel<Side>* Kernels::*kernel>
class SidesEffect : public Effect {
public:
    void Process(UnitControls& unit, const StereoBlock& block) final
    {
        const EffectRun run{this, &unit, block};
        ProcessAll({&run, 1});
    }

    void ProcessAll(std::span<const EffectRun> runs) final
    {
        std::array<SidesJob<Side>, kChannels> jobs;
        std::size_t count = 0;
        do { // there is at least one
            const auto& [effect, unit, block] = runs[count];
            jobs[count] = static_cast<SidesEffect*>(effect)->Begun(*unit, block);
        } while (++count < runs.size());
        (kernels.*kernel)(jobs.data(), static_cast<int>(count), runs.front().block.frames);
        for (const EffectRun& run : runs) run.unit->mix = static_cast<SidesEffect*>(run.effect)->sides.on.level[0];
    }

protected:
    /// Settings of the sides for the coming block; moves the LFO on. The on-level is set already.
    /// Returns the LFO of each frame where the kernel asks for it.
    virtual const float* Prepare(UnitControls& unit, int frames) = 0;

    static Stereo Both(float value) { return Stereo{value, value}; }

    alignas(64) Side<Stereo> sides{};

private:
    SidesJob<Side> Begun(UnitControls& unit, const StereoBlock& block)
    {
        sides.on = {Both(unit.mix), Both(unit.Target())};
        return {block.left, block.right, &sides, Prepare(unit, block.frames)};
    }
};

/// The numbers that settings were computed from, so that they are computed only when one of them has moved.
template <std::size_t count>
class LastInputs {
public:
    /// Takes the inputs. The first time, and while one of them is NaN, they have moved.
    bool Moved(const std::array<float, count>& now)
    {
        if (known && now == inputs) return false;
        inputs = now;
        return known = true;
    }

private:
    std::array<float, count> inputs{};
    bool known = false;
};

} // namespace korvane
