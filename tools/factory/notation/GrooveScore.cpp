// From the tables of a groove to the engine's parameters, steps and locks.
#include "factory/notation/GrooveScore.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "factory/notation/GrooveSteps.h"
#include "factory/programs/Programs.h"
#include "framework/KnobLaws.h"

namespace korvane::factory::groove {

namespace {

class Writer {
public:
    explicit Writer(GrooveEngine& owner) : engine(owner) {}

    void Place(const Track& track)
    {
        const int c = track.channel;
        UseProgram(engine, c, track.program);
        transposed[c] = track.semitones;
        used[c] = true;
        Store(c, slot::MixLevel, law::MixKnob(track.levelDb));
        Store(c, slot::Panning, law::PanKnob(track.pan));
        Store(c, slot::Pitch, law::SemitonesKnob(track.semitones));
        Store(c, slot::ShuffleEnable, track.shuffled ? 1.0 : 0.0);
        if (track.gate > 0.0) Store(c, slot::NoteLength, law::NoteBeatsKnob(track.gate * beats::Quarter));
    }

    void Place(const Clip& clip)
    {
        if (!used[clip.channel]) {
            std::fprintf(stderr, "korvane-factory: no track plays '%s'\n", clip.bars);
            std::exit(1);
        }
        const std::vector<Bar> bars = Bars(clip);
        for (int p = 0; p < kPatterns; ++p)
            for (std::size_t b = 0; (clip.patterns >> p & 1u) && b < bars.size(); ++b)
                for (const Hit& hit : bars[b]) Place(hit, clip.channel, *engine.score.patterns[p], static_cast<int>(b));
    }

    void Place(const Lock& lock)
    {
        for (int p = 0; p < kPatterns; ++p) {
            if (!(lock.patterns >> p & 1u)) continue;
            GroovePattern& pattern = *engine.score.patterns[p];
            for (int step = lock.first; step <= lock.last; ++step) {
                if (pattern.steps[lock.channel][step] == 0) continue;
                const double way =
                    lock.last > lock.first ? static_cast<double>(step - lock.first) / (lock.last - lock.first) : 0.0;
                SetLock(pattern, lock.channel, step, lock.slotIndex, lock.from + way * (lock.to - lock.from));
            }
        }
    }

    void Place(const Glued& glued)
    {
        Patch patch(engine, glued.channel);
        Glue(patch, glued.effect);
    }

    void Place(const Handle& handle, int n)
    {
        auto& control = engine.ext.extControls[n];
        control.binding = {handle.channel, handle.slotIndex};
        control.value = static_cast<float>(engine.storedParams[handle.channel][handle.slotIndex]);
    }

    void Store(int channel, int slotIndex, double value) { Patch(engine, channel).Set(slotIndex, value); }

private:
    void Place(const Hit& hit, int channel, GroovePattern& pattern, int bar)
    {
        const int step = bar * kStepsPerBar + hit.step;
        pattern.steps[channel][step] = channel < kSamplerChannels ? 1u << hit.step : hit.notes;
        if (hit.levelDb != 0.0) SetLock(pattern, channel, step, slot::AmpLevel, hit.levelDb);
        if (hit.semitones != 0) SetLock(pattern, channel, step, slot::Pitch, hit.semitones);
        if (hit.length > 1) SetLock(pattern, channel, step, slot::NoteLength, law::NoteBeatsOffset(hit.length));
        if (hit.glides) SetLock(pattern, channel, step, slot::SlideEnable, 1.0);
    }

    void SetLock(GroovePattern& pattern, int channel, int step, int slotIndex, double offset) const
    {
        const int base = transposed[channel];
        if (slotIndex == slot::Pitch)
            offset = law::SemitonesKnob(base + static_cast<int>(std::lround(offset))) - law::SemitonesKnob(base);
        else if (slotIndex == slot::MixLevel)
            offset = law::MixOffset(offset);
        else if (slotIndex == slot::AmpLevel)
            offset = law::AmpOffset(offset);
        pattern.locks[channel][step].Set(slotIndex, static_cast<float>(offset));
    }

    GrooveEngine& engine;
    int transposed[kChannels] = {}; // semitones
    bool used[kChannels] = {};
};

} // namespace

void Write(const Score& score, GrooveEngine& engine)
{
    Writer writer(engine);
    engine.clock.shuffleAmount = static_cast<float>(score.shuffle);
    for (const Track& track : score.tracks) writer.Place(track);
    for (const Glued& glued : score.effects) writer.Place(glued);
    for (const Knob& knob : score.knobs) writer.Store(knob.channel, knob.slotIndex, knob.value);
    for (const Clip& clip : score.clips) writer.Place(clip);
    for (const Lock& lock : score.locks) writer.Place(lock);
    int n = 0;
    for (const Handle& handle : score.handles) writer.Place(handle, n++);
    for (int p = 0; p < kPatterns; ++p) {
        engine.score.playOnce[p] = (score.playOnce >> p & 1u) != 0;
        engine.score.patterns[p]->UpdateLength();
    }
}

} // namespace korvane::factory::groove
