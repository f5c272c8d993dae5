// Stutter loop: recording, repeats and the seam between them.
#include "engine/fx/StutterLoop.h"

#include <algorithm>
#include <utility>

#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kSeamFrames = 192; // 4 ms at 48 kHz, by ear

} // namespace

void StutterLoop::Allocate(int newCapacity)
{
    const int frames = std::max(newCapacity, 1);
    auto newLeft = std::make_unique<float[]>(static_cast<std::size_t>(frames));
    right = std::make_unique<float[]>(static_cast<std::size_t>(frames));
    left = std::move(newLeft);
    capacity = frames;
    Restart();
}

void StutterLoop::Restart()
{
    recorded = play = loopLength = 0;
    reversed = false;
}

void StutterLoop::Wipe()
{
    std::fill_n(left.get(), capacity, 0.0f);
    std::fill_n(right.get(), capacity, 0.0f);
    Restart();
}

void StutterLoop::Read(float& outLeft, float& outRight) const
{
    const int index = Inside(reversed ? loopLength - play : play);
    outLeft = left[static_cast<std::size_t>(index)];
    outRight = right[static_cast<std::size_t>(index)];
    if (loopLength == 0 || play >= kSeamFrames) return;
    const float fresh = static_cast<float>(play) / static_cast<float>(kSeamFrames);
    const std::size_t onward = static_cast<std::size_t>(Inside(play - 1 + loopLength));
    outLeft = fresh * outLeft + (1.0f - fresh) * left[onward];
    outRight = fresh * outRight + (1.0f - fresh) * right[onward];
}

void StutterLoop::Record(float inLeft, float inRight)
{
    if (++play >= capacity) play = 0;
    if (recorded >= capacity) return;
    left[static_cast<std::size_t>(recorded)] = inLeft;
    right[static_cast<std::size_t>(recorded)] = inRight;
    ++recorded;
}

void StutterLoop::EndSlice(bool playBackwards)
{
    loopLength = play;
    play = 0;
    reversed = playBackwards && loopLength > 0;
}

int StutterLoop::Inside(int index) const { return Clamp(index, 0, capacity - 1); }

} // namespace korvane
