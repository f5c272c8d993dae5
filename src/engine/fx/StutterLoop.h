// What the stutter plays: a recording that loops over the slice before.
#pragma once

#include <cstddef>
#include <memory>

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
    /// The frame at the present position. The first frames of a repeat are faded in over what followed the slice.
    void Read(float& outLeft, float& outRight) const;
    /// Appends the input while there is room and moves on.
    void Record(float inLeft, float inRight);
    /// The slice ends here: what was played since its start is the loop from now on.
    void EndSlice(bool playBackwards);

private:
    int Inside(int index) const;

    std::unique_ptr<float[]> left, right;
    int capacity = 0;   // frames
    int recorded = 0;   // frames
    int play = 0;       // frames since the slice started
    int loopLength = 0; // frames; 0 during the first slice
    bool reversed = false;
};

} // namespace korvane
