// Plays a plug-in at the pace of the clock, for nobody to hear.
#include "window/SilentPlayer.h"

#include <algorithm>
#include <chrono>

namespace korvane::window {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kLongestLag = 200ms; // what was missed before that is left out, as by a sound card

SilentPlayer::SilentPlayer(render::PluginHost& host, int blockFrames, double rate)
    : thread([this, &host, blockFrames, rate] { Play(host, blockFrames, rate); })
{
}

SilentPlayer::~SilentPlayer()
{
    ending = true;
    thread.join();
}

void SilentPlayer::Play(render::PluginHost& host, int blockFrames, double rate) const
{
    const auto block = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(blockFrames / rate));
    for (auto due = Clock::now(); !ending; due = std::max(due + block, Clock::now() - kLongestLag)) {
        std::this_thread::sleep_until(due);
        host.Render(blockFrames);
    }
}

} // namespace korvane::window
