// Effect units that their LFO moves frame by frame: chorus, phaser, panner, pump.
#include <algorithm>
#include <cmath>

#include "engine/fx/FXUnit.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

void FXUnit::Chorus(const Block& block)
{
    if (Off()) return;
    audible = 1;
    float lfo[kMaxRun];
    FillLfo(lfo, block.frames);
    TapeDelay<StereoChain>& delays = *chorusDelays;
    const float target = Target();
    float level = mix;
    delays.feedback = -0.5f * y;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * kOnStep;
        const float d = Clamp((1.0f - x) - lfo[n], 0.0f, 0.99f);
        delays.speed = delays.SpeedFor(static_cast<double>(d));
        delays.inputGain = -level;
        const float left = block.left[n];
        const float right = block.right[n];
        const StereoChain out = delays.Read();
        delays.Record({Float4{left, out.left[0], out.left[1], 0.0f}, Float4{right, out.right[0], out.right[1], 0.0f}},
                      out);
        block.left[n] = left + out.left[2];
        block.right[n] = right + out.right[2];
    }
    mix = level;
}

/// Six first-order allpass stages whose notches the LFO sweeps, with feedback around them (J. O. Smith, "An allpass
/// approach to digital phasing and flanging", 1984).
void FXUnit::Phase(const Block& block)
{
    if (Off()) return;
    audible = 1;
    constexpr float kLowestHz = 50.0f, kHighestHz = 20000.0f;
    constexpr float kAgainstDenormals = 0.000001f;
    float lfo[kMaxRun];
    FillLfo(lfo, block.frames);
    const float target = Target();
    const float depth = std::max(x * x, 0.00001f);
    const float feedback = std::pow(0.6f * y, 1.0f / 3.0f) * 0.98f;
    const float span = (kHighestHz - kLowestHz) / sampleRate;
    const float lowest = kLowestHz / sampleRate;
    float level = mix;
    float s = phaserDepth < 0.0f ? depth : phaserDepth;
    auto states = phaserStates;
    Stereo last = phaserLast;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * kOnStep;
        s += (depth - s) * 0.001f;
        const float f = Clamp((lfo[n] * s * 0.5f + s) * span + lowest, 0.001f, 0.499f);
        const float c = (1.0f - f) / (1.0f + f);
        const Stereo dry = LoadFrame(block.left, block.right, n);
        Stereo stage = dry + feedback * last - kAgainstDenormals;
        for (Stereo& state : states) {
            const Stereo out = state - c * stage;
            state = c * out + stage;
            stage = out;
        }
        last = stage;
        StoreFrame(dry + level * stage, block.left, block.right, n);
    }
    mix = level;
    phaserDepth = s;
    phaserStates = states;
    phaserLast = last;
}

/// One side arrives up to 2 ms later and weaker than the other. Starts and stops without a fade.
void FXUnit::Pan(const Block& block)
{
    if (bypass) return;
    audible = 1;
    float lfo[kMaxRun];
    FillLfo(lfo, block.frames);
    MFXTapeDelay& left = *panDelays[0];
    MFXTapeDelay& right = *panDelays[1];
    left.inputGain = right.inputGain = 1.0f;
    for (int n = 0; n < block.frames; ++n) {
        const float s = 2.0f * (x + lfo[n]) - 1.0f;
        left.speed = left.SpeedFor(static_cast<double>(Clamp(s, 0.0f, 0.99f)));
        right.speed = right.SpeedFor(static_cast<double>(Clamp(-s, 0.0f, 0.99f)));
        block.left[n] = left.Process(Clamp((1.0f - s * y) * 2.0f, 0.0f, 1.0f) * block.left[n]);
        block.right[n] = right.Process(Clamp((1.0f + s * y) * 2.0f, 0.0f, 1.0f) * block.right[n]);
    }
}

void FXUnit::PumpAndEqualise(const Block& block)
{
    if (!bypass && lfoBeats > 0.0f) Pump(block);
    if (!eqOn) return;
    for (int band = 0; band < kEqBands; ++band) {
        auto& changed = eqChanged[static_cast<std::size_t>(band)];
        if (changed) equaliser.SetBand(band, eqGains[static_cast<std::size_t>(band)], sampleRate);
        changed = 0;
    }
    equaliser.Process(block.left, block.right, block.frames);
    if (equaliser.Ringing()) audible = 1;
}

/// The level drops to y² at the start of each LFO period and comes back.
void FXUnit::Pump(const Block& block)
{
    audible = 1;
    constexpr float kAttack = 0.01f; // of the period
    const float k = (1.0f - x) * (1.0f - x) * 50.0f + 1.0f;
    const float drop = 1.0f - y * y;
    float level = pumpLevel;
    double phase = lfoPhase;
    for (int n = 0; n < block.frames; ++n) {
        const float p = static_cast<float>(phase);
        const float fall = (p - kAttack) / (1.0f - kAttack);
        const float e = p < kAttack ? p / kAttack : 1.0f - std::min(fall * fall * fall * fall * k, 1.0f);
        phase += lfoIncrement;
        if (phase >= 1.0) phase -= std::floor(phase);
        level += (e - level) * 0.01f;
        const float gain = 1.0f - level * drop;
        block.left[n] *= gain;
        block.right[n] *= gain;
    }
    pumpLevel = Flushed(level);
    lfoPhase = phase;
}

} // namespace korvane
