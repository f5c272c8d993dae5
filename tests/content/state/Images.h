// Grooves and images for the tests of this folder.
#pragma once

#include <array>
#include <cmath>
#include <cstring>
#include <random>

#include "content/state/ChannelChunk.h"
#include "content/state/PartImage.h"
#include "content/state/StateImage.h"
#include "support/SynthRig.h"

namespace korvane {

using Bytes = std::vector<std::uint8_t>;

constexpr int kHeader = 95, kChannelChunk = 4948, kShortChunk = 4436; // without the program path
constexpr int kFramedChannel = 4 + kChannelChunk, kPatternsAt = kHeader + kChannels * kFramedChannel;
constexpr int kRecord = 6, kEmptyPattern = 4 + 4 + kChannels * kSteps * kRecord;
constexpr int kEmptyGroove = kPatternsAt + kPatterns * kEmptyPattern;

inline Bytes Saved(const GrooveEngine& engine, decltype(&SaveState) save = SaveState)
{
    Bytes image(static_cast<std::size_t>(save(engine, nullptr)));
    EXPECT_EQ(save(engine, image.data()), static_cast<int>(image.size()));
    return image;
}

inline Bytes SavedPart(const GrooveEngine& engine) { return Saved(engine, SavePart); }

inline bool Load(GrooveEngine& engine, const Bytes& image)
{
    return LoadState(engine, image.data(), static_cast<std::int32_t>(image.size()));
}

template <class T>
void Put(Bytes& image, int at, T value)
{
    std::memcpy(image.data() + at, &value, sizeof value);
}

/// Something in every field, wild parameter values and lock indices included; the same for the same seed.
inline void FillGroove(GrooveEngine& engine, unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    engine.ResetGroove();
    engine.selection.selectedChannel = below(kChannels);
    engine.selection.selectedBar = below(kBars);
    engine.score.currentPattern = below(kPatterns);
    engine.selection.selectedFx = below(kEffects);
    engine.selection.envelopeNumber = engine.selection.lfoNumber = 1;
    engine.mixer.muted[below(kChannels)] = engine.score.playOnce[below(kPatterns)] = true;
    engine.clock.shuffleAmount = engine.ext.extControls[2].value = 0.25f;
    engine.ext.extControls[2].binding = ExtBinding{9, slot::FilterCutoff};
    for (int c = 0; c < kChannels; ++c) {
        for (auto& value : engine.storedParams[c]) value = static_cast<float>(below(1000)) / 999.0f;
        engine.storedParams[c][below(kChannelSlots)] = NAN;
        for (auto& slot : engine.Channel(c).sound.sampleSlots)
            if (below(2)) slot.path.Set(("D:\\sounds\\" + std::to_string(below(99)) + ".wav").c_str());
        engine.Channel(c).programPath.Set(("D:\\programs\\" + std::to_string(c)).c_str());
    }
    for (auto& pattern : engine.score.patterns)
        for (int n = 0; n < 60; ++n) {
            const int c = below(kChannels), step = below(kSteps);
            pattern->steps[c][step] = static_cast<std::uint32_t>(random());
            for (int k = below(5); k > 0; --k)
                pattern->locks[c][step].Append(below(400) - 100, 0.001f * static_cast<float>(below(1000)));
        }
}

} // namespace korvane
