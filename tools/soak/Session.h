// One life of the plug-in in a host, at random.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "render/PluginHost.h"

namespace korvane::soak {

using State = std::vector<std::uint8_t>;

/// Opens the plug-in, does with it what hosts and users do in any order, saves it, and opens what was saved again.
class Session {
public:
    /// plugin   its file
    /// grooves  states that it takes
    /// seed     decides everything
    Session(const std::string& plugin, const std::vector<State>& grooves, unsigned seed);

    /// Throws render::Failure when the sound is no number, or a saved state does not come back as it was.
    void Run();

private:
    void ChangeFormat();
    void Play() { PlayBlocks(20); }
    void PlayBlocks(int blocks);
    void Edit();
    void Load();
    void LoadDamaged();
    void Reopen();
    void Block(render::PluginHost& played);
    State Settled(render::PluginHost& played);

    int Below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    std::uint8_t Byte(int n = 256) { return static_cast<std::uint8_t>(Below(n)); }

    const std::string plugin;
    const std::vector<State>& grooves;
    std::mt19937 random;
    double rate = 48000.0; // Hz
    int blockFrames = 512;
    render::PluginHost host;
};

} // namespace korvane::soak
