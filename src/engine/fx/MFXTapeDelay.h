// Delay line that models a tape loop: what was recorded stays where it was while the tape changes its speed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>

#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// Every frame is stored with the tape position at which it was recorded; reading interpolates between the entries
/// around the present position one loop earlier. A change of speed thus bends the pitch of what is on the tape. The
/// record path has the feedback, a one-pole lowpass and a one-pole highpass. What was read is recorded over: one loop,
/// whose end is the start of the next one, is all there is at any time. S is float, or a vector of floats for
/// several tapes that run at the same speed; every lane gives the bits of the float form. Audio thread; only the
/// constructor allocates.
template <class S>
class TapeDelay {
public:
    /// newLength  longest delay in frames; below 4 counts as 4
    explicit TapeDelay(int newLength)
        : length(std::max(newLength, 4)), speed(1.0 / length), minSpeed(1.0 / length), room(length + kSpare),
          tape(std::make_unique<Entry[]>(static_cast<std::size_t>(room)))
    {
    }
    virtual ~TapeDelay() = default;

    /// Records one frame and returns the delayed output for it.
    S Process(S x)
    {
        const S y = Read();
        Record(x, y);
        return y;
    }

    /// The first half of Process: what the tape gives for this frame; 0 during the first loop.
    S Read()
    {
        while (unread > 0 && At(readIndex).time < position) {
            before = At(readIndex);
            readIndex = Next(readIndex);
            --unread;
        }
        if (unread == 0) return S{};
        const Entry& after = At(readIndex);
        const double span = after.time - before.time;
        const float fraction = span > 0.0 ? static_cast<float>((position - before.time) / span) : 0.0f;
        return Flushed(before.value + (after.value - before.value) * fraction);
    }

    /// The second half: records input and feedback and moves the tape.
    /// y  what Read gave
    void Record(S x, S y)
    {
        lowpassState = Flushed(lowpassState + (inputGain * x + feedback * y - lowpassState) * lowpass);
        position += std::max(minSpeed, std::min(speed, kMaxSpeed));
        highpassState = Flushed(highpassState + (lowpassState - highpassState) * highpass);
        const S w = lowpassState - highpassState;
        if (position >= 1.0) CloseLoop(w);
        Append(w);
    }

    /// Empties the tape and the filters.
    void Clear()
    {
        writeIndex = passStart = recorded = unread = 0;
        before = closing = Entry{0.0, S{}};
        lowpassState = highpassState = S{};
        position = 0.0;
    }

    /// The speed for a delay from 2 (d = 0) to `length` frames (d = 1).
    double SpeedFor(double d) const { return 1.0 / (length * ((1.0 - 2.0 / length) * d + 2.0 / length)); }

    float inputGain = 0.0f;
    float feedback = 0.0f;
    float lowpass = 1.0f;  // coefficient; 1 leaves the record path as it is
    float highpass = 0.0f; // coefficient; 0 leaves the record path as it is
    const int length;      // frames
    double speed;          // loops per frame; kept within 1 / length and 0.2, so no delay is below 5 frames

private:
    static constexpr double kMaxSpeed = 0.2;
    static constexpr int kSpare = 16; // a loop at the lowest speed and its closing entry fit

    struct Entry {
        double time; // tape position; 1 or above in the closing entry
        S value;
    };

    Entry& At(int index) { return tape[static_cast<std::size_t>(index)]; }
    int Next(int index) const { return index + 1 < room ? index + 1 : 0; }

    void Append(S w)
    {
        At(writeIndex) = Entry{position, w};
        writeIndex = Next(writeIndex);
        ++recorded;
    }

    /// The pass that was recorded is now read; what closed the one before stands in front of it.
    void CloseLoop(S w)
    {
        const Entry last = closing;
        before = Entry{last.time - 1.0, last.value};
        closing = Entry{position, w};
        Append(w);
        position -= 1.0;
        readIndex = passStart;
        unread = recorded;
        passStart = writeIndex;
        recorded = 0;
    }

    const double minSpeed;
    double position = 0.0; // 0 up to, not including, 1
    S lowpassState{}, highpassState{};
    const int room; // entries
    const std::unique_ptr<Entry[]> tape;
    int writeIndex = 0; // the next entry
    int passStart = 0;  // the first one of this pass
    int recorded = 0;   // entries of this pass
    int readIndex = 0;  // where the last search stopped
    int unread = 0;     // entries of the pass before, from there on
    Entry before{};     // the one in front of it
    Entry closing{};    // of the pass before
};

using MFXTapeDelay = TapeDelay<float>;

} // namespace korvane
