// Stutter loop: recording, repeats and the seam between them.
#include "engine/fx/StutterLoop.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

constexpr int kSeamFrames = 192; // 4 ms at 48 kHz, by ear

/// step  of the loop: 1 forwards, -1 backwards, 0 where the memory ends
template <int step>
void FadeIn(const float* loop, float* side, int frames, const float* levels)
{
    for (int n = 0; n < frames; ++n) side[n] = (1.0f - levels[n]) * side[n] + levels[n] * loop[n * step];
}

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

bool StutterLoop::Seam() const { return loopLength > 0 && play < kSeamFrames; }

int StutterLoop::Alike(int frames) const
{
    int alike = std::min(frames, capacity - play);
    if (!Playing()) return alike;
    if (AheadOfRecording()) return 1;
    const auto until = [&](int place) {
        if (play < place) alike = std::min(alike, place - play);
    };
    if (Seam()) {
        until(kSeamFrames);
        until(capacity - loopLength);
    }
    if (reversed) until(loopLength);
    return alike;
}

/// A frame of the loop may be one that was recorded just before. The first one of a reversed loop can be one that is
/// not recorded yet: it has no weight.
void StutterLoop::Run(const StereoBlock& block, const float* levels)
{
    const bool playing = Playing(), playFirst = AheadOfRecording();
    float input[2] = {block.left[0], block.right[0]};
    if (!playFirst) Record(block);
    if (playing) {
        Play(left.get(), block.left, block.frames, levels);
        Play(right.get(), block.right, block.frames, levels);
    }
    if (playFirst) Record({&input[0], &input[1], 1});
    play += block.frames;
    if (play >= capacity) play = 0;
}

void StutterLoop::Play(const float* memory, float* side, int frames, const float* levels) const
{
    const int step = !reversed ? 1 : play < loopLength ? -1 : 0;
    const float* loop = memory + (reversed ? std::max(loopLength - play, 0) : play);
    if (!Seam()) {
        if (step == 1) return FadeIn<1>(loop, side, frames, levels);
        return step == 0 ? FadeIn<0>(loop, side, frames, levels) : FadeIn<-1>(loop, side, frames, levels);
    }
    const int behind = play - 1 + loopLength;
    const int onwardStep = behind < capacity - 1 ? 1 : 0;
    const float* const onward = memory + std::min(behind, capacity - 1);
    for (int n = 0; n < frames; ++n) {
        const float fresh = static_cast<float>(play + n) / static_cast<float>(kSeamFrames);
        const float out = fresh * loop[n * step] + (1.0f - fresh) * onward[n * onwardStep];
        side[n] = (1.0f - levels[n]) * side[n] + levels[n] * out;
    }
}

void StutterLoop::Record(const StereoBlock& block)
{
    const int frames = std::min(block.frames, capacity - recorded);
    std::copy_n(block.left, frames, left.get() + recorded);
    std::copy_n(block.right, frames, right.get() + recorded);
    recorded += frames;
}

void StutterLoop::EndSlice(bool playBackwards)
{
    loopLength = play;
    play = 0;
    reversed = playBackwards && loopLength > 0;
}

} // namespace korvane
