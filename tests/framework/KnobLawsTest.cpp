// The laws of the knobs against their inverses, which the factory content is made with.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "framework/KnobLaws.h"

namespace korvane {
namespace {

// What the inverse gives is heard and shown as what was asked for, over the whole range and in whole numbers where the
// engine cuts; and the ends of the range are those of the knob.
TEST(KnobLaws, AreUndoneByTheirInverses)
{
    struct Law {
        const char* knob;
        std::function<double(float)> at;
        std::function<double(double)> inverse;
        double first, last; // in the law's unit, at 0 and 1
        int steps = 50;
    };
    using namespace law;
    // clang-format off
    const Law laws[] = {
        {"mix level", MixDb, MixKnob, -60.0, 20.0}, {"pan", PanPosition, PanKnob, -1.0, 1.0},
        {"source amount", SourceAmount, SourceAmountKnob, -1.0, 1.0},
        {"note length", NoteBeats, NoteBeatsKnob, 0.125, 32.0}, {"pitch", Semitones, SemitonesKnob, -24.0, 24.0, 48},
        {"slide time", SlideSeconds, SlideKnob, 0.0, 2.0}, {"octave", Octaves, OctavesKnob, -2.0, 2.0, 4},
        {"bend range", BendSemitones, BendKnob, 0.0, 12.0, 12},
        {"amp attack", AmpAttackSeconds, AmpAttackKnob, 0.0, 50.0},
        {"amp decay", AmpDecaySeconds, AmpDecayKnob, 0.0, 50.0},
        {"amp release", AmpReleaseSeconds, AmpReleaseKnob, 0.025, 6.865625}, {"amp level", AmpDb, AmpKnob, -25.0, 25.0},
        {"envelope attack", EnvelopeAttackSeconds, EnvelopeAttackKnob, 0.0, 300.0},
        {"envelope decay", EnvelopeDecaySeconds, EnvelopeDecayKnob, 0.0224, 70.0},
        {"depth", [](float v) { return Depth(v, false); }, DepthKnob, 0.0, 1.0},
        {"cutoff", CutoffHz, CutoffKnob, 14.04, 12288.92}, {"free LFO", LfoFreeHz, LfoFreeKnob, 25.01, 0.01},
        {"osc pitch", OscillatorSemitones, OscillatorSemitonesKnob, -36.0, 36.0, 72},
        {"osc detune", OscillatorCents, OscillatorCentsKnob, -50.0, 50.0, 100},
        {"osc mix", MixShare, MixShareKnob, 0.0, 1.0}, {"modulation", ModulationAmount, ModulationAmountKnob, 0.0, 1.0},
        {"unison voices", UnisonVoices, UnisonVoicesKnob, 1.0, 16.0, 15},
        {"unison detune", UnisonOctaves, UnisonOctavesKnob, 0.0, 0.16},
        {"layer level", LayerGain, [](double g) { return LayerDbKnob(20.0 * std::log10(g)); }, 0.0, 2.0},
        {"layer pitch", LayerSemitones, LayerSemitonesKnob, -24.0, 48.0},
        {"layer delay", LayerDelaySeconds, LayerDelayKnob, 0.0, 0.25},
        {"layer attack", LayerAttackSeconds, LayerAttackKnob, 0.0, 250.0},
        {"layer hold", LayerHoldSeconds, LayerHoldKnob, 0.0, 1.0},
        {"layer decay", LayerDecaySeconds, LayerDecayKnob, 0.0, 50.0},
        {"layer low-cut", LayerLoCutHz, LayerLoCutKnob, 16.0, 16384.0},
        {"layer high-cut", LayerHiCutHz, LayerHiCutKnob, 256.0, 20171.0},
        {"layer bandwidth", LayerQ, LayerQKnob, 0.99, 16.99}, {"FX LFO amount", FxLfoDepth, FxLfoDepthKnob, -1.0, 1.0},
        {"drive", Drive, DriveKnob, 0.0, 1024.0},
        {"crush", [](float x) { return CrushFrames(1.0f - x); }, CrushKnob, 67.0, 3.0, 64},
        {"tone", ToneHz, ToneKnob, 1024.0, 19893.4}, {"low-pass", LowPassHz, LowPassKnob, 64.0, 19893.4},
        {"high-pass", HighPassHz, HighPassKnob, 32.0, 5495.37}, {"FX resonance", FilterQ, FilterQKnob, 1.0, 3.0},
        {"chorus feedback", ChorusFeedback, ChorusFeedbackKnob, 0.0, -0.5},
        {"phaser depth", PhaserDepth, PhaserDepthKnob, 0.00001, 1.0},
        {"phaser feedback", PhaserFeedback, PhaserFeedbackKnob, 0.0, 0.82656},
        {"echo send", EchoSend, EchoSendKnob, 0.0, 1.0}, {"echo low-pass", EchoLowPass, EchoLowPassKnob, 0.0, 1.0},
        {"echo high-pass", EchoHighPass, EchoHighPassKnob, 0.0, 1.0},
        {"reverb decay", ReverbDecay, ReverbDecayKnob, 0.0, 0.75},
        {"reverb damping", ReverbDamping, ReverbDampingKnob, 0.0, 1.0},
        {"pump release", PumpSpeed, PumpSpeedKnob, 51.0, 1.0}, {"pump drop", PumpDrop, PumpDropKnob, 1.0, 0.0},
        {"equaliser", EqDb, EqKnob, -12.0, 12.0},
    };
    // clang-format on
    for (const Law& each : laws) {
        const double slack = 2e-5 * std::fabs(each.last - each.first);
        EXPECT_NEAR(each.at(0.0f), each.first, slack) << each.knob;
        EXPECT_NEAR(each.at(1.0f), each.last, slack) << each.knob;
        for (int n = 0; n <= each.steps; ++n) {
            const double unit = each.first + (each.last - each.first) * n / each.steps;
            EXPECT_NEAR(each.at(static_cast<float>(each.inverse(unit))), unit, slack) << each.knob;
        }
    }
}

TEST(KnobLaws, FindEachPosition)
{
    for (const int last : {1, 2, 3, 4, 5})
        for (int p = 0; p <= last; ++p)
            EXPECT_EQ(law::Position(static_cast<float>(law::PositionKnob(p, last)), last), p) << last;
    for (int row = 0; row < static_cast<int>(kSyncLengths.size()); ++row)
        EXPECT_EQ(&SyncLengthOf(static_cast<float>(law::SyncKnob(row))), &kSyncLengths[static_cast<std::size_t>(row)]);
}

} // namespace
} // namespace korvane
