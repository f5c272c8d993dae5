// Delay line that models a tape loop: what was recorded stays where it was while the tape changes its speed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/TapeClock.h"

namespace korvane {

/// Reading interpolates between the entries around the present position one loop earlier, so a change of speed bends
/// the pitch of what is on the tape. Process is the definition; an effect runs the clock for a block and does the rest
/// in its own loop. S is float, or a vector of floats for several tapes that run at the same speed; every lane gives
/// the bits of the float form. Audio thread; only the constructor allocates.
template <class S>
class TapeDelay {
public:
    /// newLength  longest delay in frames; below 4 counts as 4
    explicit TapeDelay(int newLength)
        : clock(newLength), speed(1.0 / clock.length),
          entries(std::make_unique<S[]>(static_cast<std::size_t>(clock.room)))
    {
    }
    virtual ~TapeDelay() = default;

    /// Records one frame and returns the delayed output for it.
    S Process(S x)
    {
        TapePlace place;
        clock.Run(&speed, 1, &place);
        const S y = Read(place);
        Write(path.Step(inputGain * x + feedback * y, lowpass, highpass), place);
        return y;
    }

    /// What the tape gives for a frame; 0 during the first loop.
    S Read(const TapePlace& place) const
    {
        const S before = At(place.before);
        return Flushed(before + (At(place.after) - before) * place.fraction);
    }

    /// Records what the record path gives for the frame.
    void Write(S value, const TapePlace& place)
    {
        At(place.write) = value;
        At(place.writeAgain) = value;
    }

    /// Empties the tape and the filters.
    void Clear()
    {
        clock.Clear();
        Silence();
        path = {};
    }

    /// As Process of silent frames, while there is nothing but silence on the tape and in the filters.
    void RunSilent(int frames)
    {
        clock.RunSilent(speed, frames);
        Silence();
    }

    /// The speed for a delay from 2 (delay = 0) to `length` frames (delay = 1).
    double SpeedFor(float delay) const
    {
        double speedOfOne;
        TapeSpeeds(&delay, clock.length, &speedOfOne, 1);
        return speedOfOne;
    }

    S* Entries() { return entries.get(); }

    TapeClock clock;
    RecordPath<S> path;
    float inputGain = 0.0f;
    float feedback = 0.0f;
    float lowpass = 1.0f;  // coefficient; 1 leaves the record path as it is
    float highpass = 0.0f; // coefficient; 0 leaves the record path as it is
    double speed;          // loops per frame; the clock limits it

private:
    S& At(int index) const { return entries[static_cast<std::size_t>(index)]; }
    void Silence() { std::fill_n(entries.get(), TapeClock::kFirstLoop, S{}); }

    const std::unique_ptr<S[]> entries;
};

using MFXTapeDelay = TapeDelay<float>;

} // namespace korvane
