// Phaser: sweep, feedback, the six stages.
#include "engine/fx/Phaser.h"

#include "framework/KnobLaws.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kLowestHz = 50.0f, kHighestHz = 20000.0f; // of the sweep
constexpr float kDepthStep = 0.001f;                      // of the way to the depth's target per frame, by ear
constexpr float kLowestPart = 0.001f;                     // of the rate; at 0 a stage would ring for ever (c = 1)
constexpr float kHighestPart = 0.499f;                    // of the rate; the sweep may go beyond half of it
constexpr float kAgainstDenormals = 0.000001f;

} // namespace

void Phaser::Reset()
{
    states = {};
    last = Stereo{};
    depth = -1.0f;
}

void Phaser::Process(UnitControls& unit, const StereoBlock& block)
{
    float lfo[kMaxRun];
    unit.FillLfo(lfo, block.frames);
    const float target = unit.Target();
    const float depthTarget = law::PhaserDepth(unit.x);
    const float feedback = law::PhaserFeedback(unit.y);
    const float span = (kHighestHz - kLowestHz) / unit.sampleRate;
    const float lowest = kLowestHz / unit.sampleRate;
    float level = unit.mix;
    float s = depth < 0.0f ? depthTarget : depth;
    auto stages = states;
    Stereo fedBack = last;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * UnitControls::kOnStep;
        s += (depthTarget - s) * kDepthStep;
        const float f = Clamp((lfo[n] * s * 0.5f + s) * span + lowest, kLowestPart, kHighestPart);
        const float c = (1.0f - f) / (1.0f + f);
        const Stereo dry = LoadFrame(block.left, block.right, n);
        Stereo stage = dry + feedback * fedBack - kAgainstDenormals;
        for (Stereo& state : stages) {
            const Stereo out = state - c * stage;
            state = c * out + stage;
            stage = out;
        }
        fedBack = stage;
        StoreFrame(dry + level * stage, block.left, block.right, n);
    }
    unit.mix = level;
    depth = s;
    states = stages;
    last = fedBack;
}

} // namespace korvane
