// Grooves and images for the tests of this folder.
#pragma once

#include <array>
#include <cmath>
#include <cstring>
#include <random>

#include "support/SynthRig.h"

namespace korvane {

using Bytes = std::vector<std::uint8_t>;

constexpr int kHeader = 95, kChannelChunk = 4948, kShortChunk = 4436; // without the program path
constexpr int kFramedChannel = 4 + kChannelChunk, kPatternsAt = kHeader + 13 * kFramedChannel;
constexpr int kRecord = 6, kEmptyPattern = 4 + 4 + 1664 * kRecord, kEmptyGroove = kPatternsAt + 8 * kEmptyPattern;

inline Bytes Saved(const GrooveEngine& engine, decltype(&GrooveEngine::SaveState) save = &GrooveEngine::SaveState)
{
    Bytes image(static_cast<std::size_t>((engine.*save)(nullptr)));
    EXPECT_EQ((engine.*save)(image.data()), static_cast<int>(image.size()));
    return image;
}

inline Bytes SavedPart(const GrooveEngine& engine) { return Saved(engine, &GrooveEngine::SavePart); }

inline bool Load(GrooveEngine& engine, const Bytes& image)
{
    return engine.LoadState(image.data(), static_cast<std::int32_t>(image.size()));
}

template <class T>
void Put(Bytes& image, int at, T value)
{
    std::memcpy(image.data() + at, &value, sizeof value);
}

/// An engine, at first with an empty groove.
struct ImageTest : testing::Test {
    ImageTest() { engine.ResetGroove(); }
    GrooveEngine engine;
};

/// Something in every field, wild parameter values and lock indices included; the same for the same seed.
inline void FillGroove(GrooveEngine& engine, unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    engine.ResetGroove();
    engine.selectedChannel = below(13), engine.selectedBar = below(8), engine.currentPattern = below(8);
    engine.selectedFx = below(10), engine.envelopeNumber = 1, engine.lfoNumber = 1, engine.shuffleAmount = 0.25f;
    engine.muted[below(13)] = true, engine.playOnce[below(8)] = true;
    engine.extControls[2].value = 0.5f, engine.extControls[2].channel = 9, engine.extControls[2].param = 12;
    for (int c = 0; c < 13; ++c) {
        for (auto& value : engine.storedParams[c]) value = static_cast<float>(below(1000)) / 999.0f;
        engine.storedParams[c][below(212)] = NAN;
        for (auto& slot : engine.Channel(c).sampleSlots)
            if (below(2)) slot.path.Set(("D:\\sounds\\" + std::to_string(below(99)) + ".wav").c_str());
        engine.Channel(c).programPath.Set(("D:\\programs\\" + std::to_string(c)).c_str());
    }
    for (auto& pattern : engine.patterns)
        for (int n = 0; n < 60; ++n) {
            const int c = below(13), step = below(128);
            pattern->steps[c][step] = static_cast<std::uint32_t>(random());
            for (int k = below(5); k > 0; --k)
                pattern->locks[c][step].Append(below(400) - 100, 0.001f * static_cast<float>(below(1000)));
        }
}

} // namespace korvane
