// A groove that crosses many corners of the instrument, and how it is played.
#include "golden/Corners.h"
#include "content/state/StateImage.h"

#include <random>

#include "engine/GrooveEngine.h"
#include "support/Parameters.h"

namespace korvane {
namespace {

/// Where the values of a channel parameter lie; with positions, on one of so many even ones.
struct Range {
    int slotIndex, count;
    float from, to;
    int positions = 0;
};

// clang-format off
// Several from one slot on: of all pages, layers or effects, of the oscillators that follow.
constexpr Range kRanges[] = {
    {slot::MixLevel, 1, 0.62f, 0.72f}, {slot::Panning, 1, 0.25f, 0.75f}, {slot::Pitch, 1, 0.25f, 0.75f},
    {slot::NoteLength, 1, 0.2f, 0.6f}, {slot::AmpAttack, 1, 0.0f, 0.15f}, {slot::AmpDecay, 1, 0.3f, 0.8f},
    {slot::AmpSustain, 1, 0.3f, 1.0f}, {slot::AmpRelease, 1, 0.0f, 0.3f}, {slot::AmpLevel, 1, 0.35f, 0.45f},
    {slot::ShuffleEnable, 1, 0.0f, 1.0f, 2}, {slot::SlideTime, 1, 0.0f, 0.5f}, {slot::SlideEnable, 1, 0.0f, 1.0f, 2},
    {slot::FilterResonance, 1, 0.0f, 0.8f}, {slot::FilterTracking, 1, 0.0f, 1.0f}, {slot::FilterType, 1, 0.0f, 1.0f, 3},
    {slot::EnvelopeAmount, 2, 0.1f, 0.5f}, {slot::EnvelopeInvert, 2, 0.0f, 1.0f, 2},
    {slot::EnvelopeAttack, 2, 0.0f, 0.4f}, {slot::EnvelopeDecay, 2, 0.2f, 0.6f},
    {slot::EnvelopeDestination, 2, 0.0f, 1.0f, 4}, {slot::LfoRetrig, 2, 0.0f, 1.0f, 2},
    {slot::LfoAmount, 2, 0.1f, 0.6f}, {slot::LfoInvert, 2, 0.0f, 1.0f, 2}, {slot::LfoShape, 2, 0.0f, 1.0f, 4},
    {slot::LfoRate, 2, 0.0f, 1.0f}, {slot::LfoSync, 2, 0.0f, 1.0f, 3}, {slot::LfoDestination, 2, 0.0f, 1.0f, 4},
    {slot::MonoVoice, 1, 0.0f, 1.0f, 2}, {slot::UnisonVoices, 1, 0.0f, 1.0f, 16}, {slot::UnisonDetune, 1, 0.0f, 1.0f},
    {slot::UnisonStereo, 1, 0.0f, 1.0f}, {slot::Octave, 1, 0.25f, 0.75f, 3}, {slot::NoiseMix, 1, 0.0f, 0.5f},
    {slot::UnisonPhase, 1, 0.0f, 1.0f}, {slot::UnisonRetrig, 1, 0.0f, 1.0f, 2}, {slot::MixOsc2, 2, 0.0f, 1.0f},
    {slot::Modulation, 1, 0.1f, 0.8f}, {slot::ModKind, 1, 0.0f, 2.0f, 3}, {slot::PhaseOffsetOsc2, 1, 0.0f, 1.0f},
    {slot::PhaseRetrigOsc2, 1, 0.0f, 1.0f, 2}, {slot::Osc2Invert, 1, 0.0f, 1.0f, 2}, {slot::Osc1Pitch, 6, 0.3f, 0.7f},
    {slot::LayerLevel, 4, 0.3f, 0.8f}, {slot::LayerPan, 4, 0.0f, 1.0f}, {slot::LayerPitch, 4, 0.3f, 0.7f},
    {slot::LayerAttack, 4, 0.0f, 0.3f}, {slot::LayerHold, 4, 0.0f, 0.5f}, {slot::LayerDecay, 4, 0.4f, 1.0f},
    {slot::LayerLoCut, 4, 0.0f, 0.3f}, {slot::LayerHiCut, 4, 0.6f, 1.0f}, {slot::LayerBandwidth, 4, 0.0f, 1.0f},
    {slot::LayerDelay, 4, 0.0f, 0.3f}, {slot::LayerStart, 4, 0.0f, 0.2f}, {slot::LayerInvert, 4, 0.0f, 1.0f, 2},
    {slot::LayerReverse, 4, 0.0f, 1.0f, 2}, {slot::FxX, 10, 0.2f, 0.8f}, {slot::FxY, 10, 0.2f, 0.8f},
    {slot::FxLfoRate, 10, 0.0f, 0.8f}, {slot::FxLfoShape, 10, 0.0f, 1.0f, 4}, {slot::FxLfoSync, 10, 0.0f, 1.0f, 2},
    {slot::FxLfoAmount, 10, 0.2f, 0.8f}, {slot::VelocityAmount, 1, 0.0f, 1.0f},
    {slot::VelocityDestination, 1, 0.0f, 21.0f, 22}, {slot::VelocitySensitivity, 1, 0.0f, 1.0f, 2},
    {slot::WheelAmount, 1, 0.0f, 1.0f}, {slot::WheelDestination, 1, 0.0f, 21.0f, 22},
    {slot::PressureAmount, 1, 0.0f, 1.0f}, {slot::PressureDestination, 1, 0.0f, 21.0f, 22},
    {slot::BendRange, 1, 0.1f, 1.0f}, {slot::EqOn, 1, 0.0f, 1.0f, 2}, {slot::EqGain, 5, 0.2f, 0.8f},
};
constexpr const char* kDrums[kSamplerChannels] = {"Volt Kick", "Volt Snare", "Oak Ride", "Volt Hat Open",
                                                  "Volt Tom Low", "Forge Spring", "Deep Conga Low", "Oak Tambourine"};
constexpr const char* kWaves[] = {"Saw", "Square", "Bell Glass", "Organ Jazz", "FM Growl", "Pulse 25", "Vowel A"};
// clang-format on

struct Dice {
    std::mt19937 random{2026};
    int Below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    float Between(float from, float to) { return from + (to - from) * static_cast<float>(Below(4097)) / 4096.0f; }
    float Of(const Range& range)
    {
        if (range.positions == 0) return Between(range.from, range.to);
        return range.from + (range.to - range.from) * static_cast<float>(Below(range.positions)) /
                                static_cast<float>(range.positions - 1);
    }
};

void FillChannel(GrooveEngine& engine, int c, Dice& dice)
{
    auto& params = engine.storedParams[c];
    for (const Range& range : kRanges)
        for (int n = 0; n < range.count; ++n) params[range.slotIndex + n] = dice.Of(range);
    const bool sampler = c < kSamplerChannels;
    const bool highPass = params[slot::FilterType] == 1.0f;
    params[slot::FilterCutoff] = highPass ? dice.Between(0.0f, 0.3f) : dice.Between(0.4f, 1.0f);
    for (const int k : {c % kEffects, (3 * c + 1) % kEffects}) params[slot::FxGlue + k] = 1.0f;
    for (int n = sampler ? kOscillators : 0; n < (sampler ? kSampleSlots : kOscillators); ++n) {
        const std::string name = sampler ? std::string("Drum Samples\\") + kDrums[(c + n) % kSamplerChannels]
                                         : std::string("Synth Waves\\") + kWaves[(c + n) % std::ssize(kWaves)];
        engine.Channel(c).sound.sampleSlots[n].path.Set((name + ".wav").c_str());
    }
}

void FillPattern(GrooveEngine& engine, std::size_t pattern, int steps, Dice& dice)
{
    for (int c = 0; c < kChannels; ++c)
        for (int step = 0; step < steps; ++step) {
            if (dice.Below(4) > 0) continue;
            const int low = dice.Below(12), high = dice.Below(kNotes);
            engine.score.patterns[pattern]->steps[c][step] =
                c < kSamplerChannels ? 1u << step % kStepsPerBar : 1u << low | 1u << high;
            for (int locks = dice.Below(4); locks > 0; --locks) {
                const int slotIndex = dice.Below(kChannelSlots);
                engine.score.patterns[pattern]->locks[c][step].Set(slotIndex, dice.Between(-0.3f, 0.3f));
            }
        }
    engine.score.patterns[pattern]->UpdateLength();
}

} // namespace

std::vector<std::uint8_t> CornersGroove()
{
    GrooveEngine engine;
    engine.ResetGroove();
    Dice dice;
    for (int c = 0; c < kChannels; ++c) FillChannel(engine, c, dice);
    for (const auto& [pattern, steps] : {std::pair{0, 32}, {1, 16}, {2, 64}})
        FillPattern(engine, static_cast<std::size_t>(pattern), steps, dice);
    engine.score.playOnce[1] = true;
    engine.clock.shuffleAmount = 0.7f;
    std::vector<std::uint8_t> state(static_cast<std::size_t>(SaveState(engine, nullptr)));
    SaveState(engine, state.data());
    return state;
}

void PlayCorners(render::PluginHost& host, int tenth)
{
    // clang-format off
    enum What { Set, Midi, Tempo, Play };
    struct Act { int tenth; What what; int a, b = 0, c = 0; }; // Set, Tempo: b in hundredths
    static constexpr Act kActs[] = {
        {0, Play, 1}, {4, Midi, 0x90, 40, 100}, {6, Midi, 0xE0, 0, 110}, {7, Midi, 0xB0, 1, 100}, {8, Midi, 0xD0, 90},
        {9, Midi, 0xE0, 0, 20}, {10, Midi, 0x80, 40}, {11, Set, param::Channel1 + 2, 100},
        {12, Set, param::Channel1 + 2}, {12, Midi, 0xB0, 64, 127}, {13, Midi, 0x90, 45, 80}, {14, Midi, 0x80, 45},
        {17, Midi, 0xB0, 64}, {18, Set, param::Fx1 + 2, 100}, {18, Set, param::Fx1 + 6, 100},
        {18, Set, param::FxActivate, 100}, {20, Set, ParamOf(slot::FxX), 85}, {21, Set, ParamOf(slot::FxY), 30},
        {24, Set, param::FxActivate}, {24, Set, param::Fx1 + 2}, {25, Set, param::Fx1 + 6},
        {26, Set, param::Pattern1 + 1, 100}, {30, Set, param::Stutter1_4, 100}, {33, Set, param::Stutter1_2, 100},
        {36, Set, param::Stutter1_4}, {38, Set, param::Stutter1_2}, {40, Tempo, 0, 9750}, {44, Set, param::Solo, 100},
        {47, Set, param::Solo}, {48, Set, param::Enable1 + 9}, {52, Set, param::Pattern1 + 2, 100},
        {54, Set, param::Enable1 + 9, 100}, {56, Set, param::Ext1, 20}, {56, Set, param::ExtLearn, 100},
        {57, Set, ParamOf(slot::FilterCutoff), 90}, {58, Set, param::Ext1, 40}, {60, Tempo, 0, 14100},
        {62, Set, param::LfoShapeSwitch, 100}, {63, Set, param::FxLfoSyncSwitch, 100}, {64, Set, param::PlayBar, 100},
        {68, Set, param::PlayBar}, {70, Set, param::Channel1 + 10, 100}, {71, Set, param::Channel1 + 10},
        {72, Set, param::Record, 100}, {73, Midi, 0x90, 52, 90}, {76, Midi, 0x80, 52}, {78, Midi, 0x90, 59, 120},
        {82, Midi, 0x80, 59}, {84, Set, param::Record}, {90, Play, 0}, {94, Set, param::Record, 100}, {95, Play, 1},
        {116, Play, 0},
    };
    // clang-format on
    for (const Act& act : kActs) {
        if (act.tenth != tenth) continue;
        switch (act.what) {
        case Set: host.SetParameter(act.a, static_cast<float>(act.b) / 100.0f); break;
        case Midi:
            host.QueueMidi(100, static_cast<std::uint8_t>(act.a), static_cast<std::uint8_t>(act.b),
                           static_cast<std::uint8_t>(act.c));
            break;
        case Tempo: host.SetTempo(act.b / 100.0); break;
        case Play: host.SetPlaying(act.a == 1); break;
        }
    }
}

} // namespace korvane
