// The time of a tape loop: where it stands and when its entries were recorded.
#pragma once

#include <cstddef>
#include <memory>

#include "engine/kernels/Tape.h"

namespace korvane {

/// Every entry of a tape has the position at which it was recorded; it is read where the tape stands there again, one
/// loop later. None of this depends on what is recorded. What was read is recorded over: one loop, whose end is the
/// start of the next one, is all there is at any time. Audio thread; only the constructor allocates.
class TapeClock {
public:
    /// newLength  longest delay in frames; below 4 counts as 4
    explicit TapeClock(int newLength);

    /// Back to the start. There is nothing to read during the first loop: it reads the first kFirstLoop entries, which
    /// have to be silence.
    void Clear();
    static constexpr int kFirstLoop = 3;

    /// speeds  loops per frame; kept within 1 / length and 0.2, so no delay is below 5 frames
    /// places  of each frame
    void Run(const double* speeds, int frames, TapePlace* places);

    /// Entries that can still be read.
    int Entries() const { return write - read + 1 + (write < read ? room : 0); }

    /// Of a tape that holds nothing but silence: moves it on and forgets its entries. As Run at one speed, then Clear,
    /// but for the position.
    void RunSilent(double speed, int frames);

    const int length; // frames
    const int room;   // entries

private:
    double Kept(double speed) const;
    int Next(int index) const { return index + 1 < room ? index + 1 : 0; }
    void StartBehind(double time);

    const double minSpeed;
    const std::unique_ptr<double[]> times;
    double position = 0.0; // 0 up to, not including, 1
    int write = 0;         // the next entry
    int passStart = 0;     // the first one of this loop
    int read = 0;          // the first one of the loop before that lies at or behind the position
};

} // namespace korvane
