// The groove that a new instrument plays.
#include <cstdio>

#include "Grooves.h"
#include "framework/ParameterTable.h"

namespace korvane::factory {

namespace {

struct DrumPart {
    const char* sample;
    float level, pan, length; // parameter values
    bool shuffled;
    const char* bars[4]; // 16 steps each, x plays; null repeats the bar before
};

struct Lock {
    int channel, bar, step, param;
    float offset;
};

// clang-format off
constexpr DrumPart kDrums[kSamplerChannels] = {
    {"Volt Kick",       0.760f, 0.50f, 0.45f, false, {"x...x...x...x...", "x...x...x...x.x.", "x...x...x...x...", "x...x...x..x..x."}},
    {"Volt Snare",      0.700f, 0.48f, 0.40f, false, {"....x.......x...", nullptr,            nullptr,            "....x.......x..x"}},
    {"Volt Clap",       0.660f, 0.55f, 0.40f, false, {"............x...", "....x.......x...", "............x...", "....x....x..x..."}},
    {"Volt Hat Closed", 0.650f, 0.58f, 0.20f, true,  {"x.xxx.xxx.xxx.xx", nullptr,            nullptr,            "x.xxx.xxxxxxx.x."}},
    {"Volt Hat Open",   0.630f, 0.42f, 0.30f, false, {"..x...x...x...x.", nullptr,            nullptr,            "..x...x...x....."}},
    {"Volt Tom Low",    0.670f, 0.36f, 0.35f, true,  {"................", ".............x.x", "................", "..........x.xx.x"}},
    {"Volt Cowbell",    0.570f, 0.66f, 0.25f, true,  {"...x..x....x....", nullptr,            "...x..x....x..x.", nullptr}},
    {"Volt Shaker",     0.600f, 0.30f, 0.20f, true,  {"xxxxxxxxxxxxxxxx", nullptr,            nullptr,            nullptr}},
};
constexpr Lock kLocks[] = {
    {0, 1, 14, slot::MixLevel,      -0.08f}, {0, 3, 11, slot::MixLevel,   -0.06f}, {1, 3, 15, slot::MixLevel,   -0.10f},
    {3, 0,  3, slot::MixLevel,      -0.09f}, {3, 0, 11, slot::MixLevel,   -0.09f}, {3, 3,  9, slot::LayerPitch,  0.04f},
    {5, 1, 15, slot::Pitch,          0.10f}, {5, 3, 12, slot::Pitch,       0.06f}, {5, 3, 13, slot::Pitch,       0.10f},
    {5, 3, 15, slot::Pitch,          0.16f}, {6, 2, 14, slot::LayerPitch,  0.06f}, {6, 0,  6, slot::Panning,    -0.30f},
    {7, 0,  4, slot::MixLevel,       0.06f}, {7, 0, 12, slot::MixLevel,    0.06f}, {7, 1,  2, slot::LayerHiCut, -0.30f},
    {4, 2, 14, slot::LayerReverse,   1.00f},
};
// clang-format on

void PlaceDrum(GrooveEngine& engine, int channel, const DrumPart& drum)
{
    engine.storedParams[channel][slot::MixLevel] = drum.level;
    engine.storedParams[channel][slot::Panning] = drum.pan;
    engine.storedParams[channel][slot::NoteLength] = drum.length;
    engine.storedParams[channel][slot::ShuffleEnable] = drum.shuffled ? 1.0f : 0.0f;
    char path[64]; // a file name alone: the instrument finds it in its own folders
    std::snprintf(path, sizeof path, "\\%s.wav", drum.sample);
    engine.Channel(channel).sampleSlots[kFirstLayerSlot].path.Set(path);
    const char* bar = drum.bars[0];
    for (int b = 0; b < 4; ++b) {
        if (drum.bars[b]) bar = drum.bars[b];
        for (int s = 0; s < kStepsPerBar; ++s)
            if (bar[s] == 'x') engine.patterns[0]->steps[channel][b * kStepsPerBar + s] = 1u << s;
    }
}

} // namespace

void DefaultGroove(GrooveEngine& engine)
{
    engine.shuffleAmount = 0.35f;
    for (int c = 0; c < kSamplerChannels; ++c) PlaceDrum(engine, c, kDrums[c]);
    for (const Lock& lock : kLocks)
        engine.patterns[0]->locks[lock.channel][lock.bar * kStepsPerBar + lock.step].Set(lock.param, lock.offset);
    engine.patterns[0]->UpdateLength();
}

} // namespace korvane::factory
