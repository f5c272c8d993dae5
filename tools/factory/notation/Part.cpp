// From the row of a part to a groove with one channel.
#include "factory/notation/Part.h"

#include "framework/KnobLaws.h"

namespace korvane::factory {

using namespace groove;

void Write(const Part& part, GrooveEngine& engine)
{
    const Clip clip{part.track.channel, A, part.bars};
    std::vector<Glued> effects;
    for (const Effect& effect : part.effects) effects.push_back({part.track.channel, effect});
    const Knob glide{part.track.channel, slot::SlideEnable, 0.0}; // only marked notes glide
    groove::Write({.tracks = {&part.track, 1},
                   .clips = {&clip, 1},
                   .locks = part.locks,
                   .effects = effects,
                   .knobs = {&glide, 1}},
                  engine);
    // Whoever loads a part keeps the mixer's level, so the part's own belongs into the amplifier.
    auto& stored = engine.storedParams[part.track.channel];
    stored[slot::AmpLevel] = stored[slot::AmpLevel] + static_cast<float>(law::AmpOffset(part.track.levelDb));
    stored[slot::MixLevel] = static_cast<float>(law::MixKnob(0.0));
    engine.selection.selectedChannel = part.track.channel;
}

} // namespace korvane::factory
