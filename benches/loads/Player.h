// The plug-in at work on a load, and what that costs.
#pragma once

#include <ctime>

#include "framework/ParameterTable.h"
#include "loads/Load.h"
#include "render/PluginHost.h"

namespace korvane::loads {

inline constexpr double kRate = 48000.0;
inline constexpr int kFrames = 128, kLongestBlock = 4096;

/// One instance with one load, at 48 kHz. Its notes and its passes begin at the same frames every time.
class Player {
public:
    Player(const std::string& plugin, const Load& toPlay, const std::vector<std::uint8_t>& state)
        : load(toPlay), host(plugin, kRate, kLongestBlock)
    {
        if (!state.empty()) host.SetState(state, load.name);
    }

    /// Plays from the top until everything sounds, the stutter too.
    void Start()
    {
        host.SetPlaying(false);
        Render(kSettling, kFrames);
        if (!load.plays) return;
        host.SetPlaying(true);
        Render(kFrames, kFrames);
        for (int c = 0; c < kChannels; ++c) // which all hear it
            if (load.HasEffects(c)) host.SetParameter(param::Channel1 + c, 1.0f);
        for (const float held : {0.0f, 1.0f})
            if (load.effects) host.SetParameter(param::Stutter1_4, held);
        Render(kSettling, kFrames);
    }

    /// Frames in blocks, the last of which may be shorter. Returns nanoseconds of this thread's processor time.
    double Render(int frames, int block)
    {
        const double begin = Now();
        for (; frames > 0; frames -= block) host.Render(std::min(frames, block));
        return Now() - begin;
    }

private:
    static constexpr int kSettling = 100 * kFrames; // two steps at 120 beats per minute

    static double Now()
    {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return 1.0e9 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec);
    }

    const Load load;
    render::PluginHost host;
};

} // namespace korvane::loads
