// Delay line that models a tape loop: what was recorded stays where it was while the tape changes its speed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// Every frame is stored with the tape position at which it was recorded; reading interpolates between the entries
/// around the present position one loop earlier. A change of speed thus bends the pitch of what is on the tape. The
/// record path has the feedback, a one-pole lowpass and a one-pole highpass. S is float, or a vector of floats for
/// several tapes that run at the same speed; every lane gives the bits of the float form. Audio thread; only the
/// constructor allocates.
template <class S>
class TapeDelay {
public:
    /// newLength  longest delay in frames; below 4 counts as 4
    explicit TapeDelay(int newLength)
        : length(std::max(newLength, 4)), speed(1.0 / length), minSpeed(1.0 / length), tapes{Tape(length), Tape(length)}
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
        Tape& tape = *readTape;
        while (tape.readIndex < tape.count && tape.At(tape.readIndex).time < position) ++tape.readIndex;
        if (tape.readIndex >= tape.count) return S{};
        const Entry& before = tape.At(tape.readIndex - 1);
        const Entry& after = tape.At(tape.readIndex);
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
        writeTape->Append(position, w);
    }

    /// Empties both tapes and the filters.
    void Clear()
    {
        for (Tape& tape : tapes) tape.Clear();
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
    static constexpr int kHistory = 3; // entries of the pass before, so that a read across the loop has neighbours
    static constexpr int kFirst = 10;  // place of entry 0; the history ends right before it
    static constexpr int kSpare = 256; // a pass at the lowest speed, its history and its closing entry fit

    struct Entry {
        double time; // tape position; below 0 in the history, 1 or above in the closing entry
        S value;
    };

    struct Tape {
        explicit Tape(int length)
            : entries(std::make_unique<Entry[]>(static_cast<std::size_t>(length) + static_cast<std::size_t>(kSpare)))
        {
        }
        Entry& At(int index) { return entries[static_cast<std::size_t>(kFirst + index)]; }
        void Append(double time, S value) { At(count++) = Entry{time, value}; }
        void Clear()
        {
            count = readIndex = 0;
            for (int n = 1; n <= kHistory; ++n) At(-n) = Entry{0.0, S{}};
        }

        std::unique_ptr<Entry[]> entries;
        int count = 0;     // entries recorded in this pass
        int readIndex = 0; // where the last search stopped
    };

    void CloseLoop(S w)
    {
        for (int n = 1; n <= kHistory; ++n) {
            const Entry& last = readTape->At(readTape->count - n);
            writeTape->At(-n) = Entry{last.time - 1.0, last.value};
        }
        writeTape->Append(position, w);
        writeTape->readIndex = 0;
        position -= 1.0;
        std::swap(writeTape, readTape);
        writeTape->count = 0;
    }

    const double minSpeed;
    double position = 0.0; // 0 up to, not including, 1
    S lowpassState{}, highpassState{};
    Tape tapes[2];
    Tape* writeTape = &tapes[0];
    Tape* readTape = &tapes[1]; // the pass before
};

using MFXTapeDelay = TapeDelay<float>;

} // namespace korvane
