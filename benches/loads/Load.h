// What the instrument may have to play at once, as states for hosts.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "engine/GrooveEngine.h"

namespace korvane::loads {

using Notes = std::array<int, kChannels>; // on each channel, 0..kVoices

/// A groove of one bar whose notes last longer than the bar, or, without notes, what a new instance has.
struct Load {
    std::string name;
    Notes notes{};
    int layers = 1, unison = 1; // of each sampler voice, of each synth voice
    bool rich = false;          // every oscillator, noise, layer filter, envelope and LFO at work
    bool effects = false;       // all ten glued on every channel with notes, equaliser and stutter on
    bool plays = true;          // the transport

    int Voices() const;
    bool HasEffects(int c) const { return effects && notes[static_cast<std::size_t>(c)] > 0; }
};

/// So many voices on the first channels, as evenly as it goes.
Notes Spread(int voices, int channels = kChannels);

/// The five by which the whole is measured: "silence", "default", "typical", "dry", "heaviest".
const std::vector<Load>& WholeLoads();

/// The state image of a load, once all its voices were seen to sound in an engine. Empty for one without notes. Throws
/// std::runtime_error when they do not.
/// noise  a sample of some seconds
std::vector<std::uint8_t> StateOf(const Load& load, const std::filesystem::path& noise);

/// An engine at 48 kHz that starts to play a state, its files read. Throws as StateOf.
/// bundle  where the factory's files lie
std::unique_ptr<GrooveEngine> Playing(const std::vector<std::uint8_t>& state, const std::filesystem::path& bundle = {});

/// Writes the sample: 20 seconds, stereo.
void WriteNoise(const std::filesystem::path& file);

} // namespace korvane::loads
