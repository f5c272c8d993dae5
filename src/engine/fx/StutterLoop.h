// What the stutter plays: a recording that loops over the slice before.
#pragma once

#include <cstddef>
#include <memory>

#include "engine/fx/Effect.h"

namespace korvane {

/// The stereo input since the last restart, as much as there is room for, and the place where the loop plays it. Audio
/// thread; only Allocate allocates.
class StutterLoop {
public:
    void Allocate(int newCapacity); // frames
    /// Forgets the recording; the next slice is recorded from here.
    void Restart();
    /// Also wipes the memory, after a recording that held bad numbers.
    void Wipe();

    /// There is something to play at the present position.
    bool Playing() const { return play < recorded; }
    /// As many of the coming frames as are played and recorded alike; at least one.
    /// frames  1 or more
    int Alike(int frames) const;
    /// Appends the input while there is room and moves on. Where it plays, the loop is faded in; the first frames of a
    /// repeat come out of what followed the slice.
    /// block   frames that are alike, in place
    /// levels  of each frame, while it plays
    void Run(const StereoBlock& block, const float* levels);
    /// The slice ends here: what was played since its start is the loop from now on.
    void EndSlice(bool playBackwards);

private:
    bool AheadOfRecording() const { return reversed && play == 0; }
    bool Seam() const;
    void Play(const float* memory, float* side, int frames, const float* levels) const;
    void Record(const StereoBlock& block);

    std::unique_ptr<float[]> left, right;
    int capacity = 0;   // frames
    int recorded = 0;   // frames
    int play = 0;       // frames since the slice started
    int loopLength = 0; // frames; 0 during the first slice
    bool reversed = false;
};

} // namespace korvane
