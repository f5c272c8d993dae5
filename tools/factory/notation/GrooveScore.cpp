// From the tables of a groove to the engine's parameters, steps and locks.
#include "factory/notation/GrooveScore.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "factory/notation/GrooveSteps.h"
#include "factory/programs/Programs.h"

namespace korvane::factory::groove {

namespace {

constexpr double kMixRangeDb = 80.0, kMixLowestDb = -60.0, kAmpRangeDb = 50.0;

/// "CHN: Pitch", which the engine truncates to semitones; half a step further from the centre.
double PitchValue(int semitones)
{
    const double half = semitones > 0 ? 0.5 : semitones < 0 ? -0.5 : 0.0;
    return std::fmin(1.0, std::fmax(0.0, (24.0 + semitones + half) / 48.0));
}

class Writer {
public:
    explicit Writer(GrooveEngine& owner) : engine(owner) {}

    void Place(const Track& track)
    {
        const int c = track.channel;
        UseProgram(engine, c, track.program);
        transposed[c] = track.semitones;
        used[c] = true;
        Store(c, slot::MixLevel, (track.levelDb - kMixLowestDb) / kMixRangeDb);
        Store(c, slot::Panning, 0.5 + 0.5 * track.pan);
        Store(c, slot::Pitch, PitchValue(track.semitones));
        Store(c, slot::ShuffleEnable, track.shuffled ? 1.0 : 0.0);
        if (track.gate > 0.0) Store(c, slot::NoteLength, (std::log2(track.gate) + 1.0) / 8.0); // half a step at 0
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
        control.channel = handle.channel;
        control.param = handle.slotIndex;
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
        if (hit.length > 1) SetLock(pattern, channel, step, slot::NoteLength, std::log2(hit.length) / 8.0);
        if (hit.glides) SetLock(pattern, channel, step, slot::SlideEnable, 1.0);
    }

    void SetLock(GroovePattern& pattern, int channel, int step, int slotIndex, double offset) const
    {
        const int base = transposed[channel];
        if (slotIndex == slot::Pitch)
            offset = PitchValue(base + static_cast<int>(std::lround(offset))) - PitchValue(base);
        else if (slotIndex == slot::MixLevel)
            offset /= kMixRangeDb;
        else if (slotIndex == slot::AmpLevel)
            offset /= kAmpRangeDb;
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
