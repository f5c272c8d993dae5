// What the targets try their inputs on.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "content/ByteReader.h"
#include "content/state/KVInstrument.h"
#include "fuzz/Limits.h"
#include "support/ContentRoot.h"

/// What a target is; the answer is 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace korvane::fuzz {

using Bytes = std::vector<std::uint8_t>;

/// Mostly one that is in some range.
std::int32_t Number(ByteReader& in);
/// Up to 63.
Bytes Some(ByteReader& in);

/// A content folder with a sample, a wave and a program of each kind; the definition is installed.
struct Content : ContentRoot {
    Content();
    /// Writes an input into a file there; its path.
    std::string File(const char* name, const Bytes& bytes) const;
};

struct QuietHost : CPluginWrapper {
    void ParameterAutomated(int, float) override {}
    CPluginEditor* GetEditor() override { return nullptr; }
    void BeginEdit(int) override {}
    void EndEdit(int) override {}
    bool RealTime() override { return false; } // what MIDI loads is there when the block ends
};

/// What a host hands over for a block, not a float more.
struct Outputs {
    explicit Outputs(int frames);
    std::array<std::vector<float>, 28> sound;
    std::array<float*, 28> pointers;
};

/// Stays from input to input, since it takes a hundred times longer to make than to try.
struct Instrument {
    Instrument();
    static Instrument& Get();

    /// Back to the groove that it began with: a step wherever one may be, samples, locks; and it plays.
    void Forget();
    /// A block; each sample of it has to be a number.
    void Play(int frames);
    /// Loads a file into a channel of each kind, and plays.
    void Try(bool (KVInstrument::*load)(const char*), const Bytes& file);

    const Content content;
    QuietHost host;
    KVInstrument synth;
    Bytes state, part, program; // of that groove; the latter two of its first channel
};

/// The input itself when it begins like an image, else the changes to `image` that it stands for: each a place, a count
/// and as many bytes, a count of 0 for an end.
Bytes Altered(Bytes image, const std::uint8_t* data, std::size_t size);

} // namespace korvane::fuzz
