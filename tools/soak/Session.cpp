// One life of the plug-in in a host, at random.
#include "soak/Session.h"

#include <algorithm>
#include <cmath>

#include "render/Failure.h"

namespace korvane::soak {

using render::Failure;
using render::PluginHost;

Session::Session(const std::string& file, const std::vector<State>& states, unsigned seed)
    : plugin(file), grooves(states), random(seed), host(plugin, rate, blockFrames)
{
    host.SetRealTime(Below(2) == 0);
}

void Session::Run()
{
    using Act = void (Session::*)();
    constexpr Act kActs[] = {&Session::ChangeFormat, &Session::Play, &Session::Edit, &Session::Load,
                             &Session::LoadDamaged};
    for (int n = 3 + Below(6); n > 0; --n) (this->*kActs[Below(std::size(kActs))])();
    Play();
    Reopen();
    host.SetRealTime(true);
    PlayBlocks(3); // and is closed while it loads
}

void Session::ChangeFormat()
{
    constexpr double kRates[] = {44100.0, 48000.0, 88200.0, 96000.0, 192000.0};
    rate = kRates[Below(std::size(kRates))];
    blockFrames = 1 + Below(2048);
    host.SetFormat(rate, blockFrames);
}

void Session::PlayBlocks(int blocks)
{
    host.SetTempo(40.0 + Below(260));
    host.SetPosition(Below(64));
    host.SetPlaying(Below(4) > 0);
    for (; blocks > 0; --blocks) {
        for (int n = Below(4); n > 0; --n)
            host.QueueMidi(0, static_cast<std::uint8_t>(0x80 + 16 * Below(7)), Byte(128), Byte(128));
        if (Below(10) == 0) host.QueueMidi(0, 0xB0, 32, Byte(8)); // bank select
        Block(host);
    }
}

void Session::Block(PluginHost& played)
{
    played.Render(blockFrames);
    for (int output = 0; output < 2 * played.Pairs(); ++output)
        if (!std::all_of(played.Output(output), played.Output(output) + blockFrames,
                         [](float x) { return std::isfinite(x); }))
            throw Failure("output " + std::to_string(output) + " is no number");
}

void Session::Edit()
{
    for (int n = 0; n < 100; ++n) host.SetParameter(Below(host.Parameters()), static_cast<float>(Below(9)) / 8.0f);
}

void Session::Load()
{
    host.SetState(grooves[static_cast<std::size_t>(Below(static_cast<int>(grooves.size())))], "a groove");
}

void Session::LoadDamaged()
{
    State state = host.GetState();
    for (int n = Below(20); n > 0; --n) state[random() % state.size()] = Byte();
    if (Below(2) == 0) state.resize(random() % state.size());
    try {
        host.SetState(state, "a damaged state");
    } catch (const Failure&) {
        // it may say so; what it has taken stands
    }
}

/// The state once the files that it names have been looked for.
State Session::Settled(PluginHost& played)
{
    played.SetPlaying(false);
    for (int n = 0; n < 2; ++n) Block(played);
    return played.GetState();
}

void Session::Reopen()
{
    host.SetRealTime(false);
    host.QueueMidi(0, 0xC0, 0, 0); // waits for those that came before it, too
    const State saved = Settled(host);
    PluginHost other(plugin, rate, blockFrames);
    other.SetState(saved, "its own state");
    if (other.GetState() != saved) throw Failure("a saved state came back as another");
    if (Settled(other) != saved) throw Failure("a saved state became another when it was played");
}

} // namespace korvane::soak
