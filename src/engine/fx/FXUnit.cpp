// Effect unit: life cycle, LFO, choice of the type, and the stutter.
#include "engine/fx/FXUnit.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numbers>

#include "engine/fx/reverb/fxReverb.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kShortDelaySeconds = 0.002f; // chorus and panner
constexpr float kLongDelaySeconds = 1.5f;    // echo and stutter
constexpr int kStutterHoldFrames = 202;

/// LFO value at phase p, 0..1; the sine spans -1..1.
template <int shape>
float LfoValue(double p)
{
    if constexpr (shape == 0)
        return static_cast<float>(std::sin(2.0 * std::numbers::pi * p));
    else if constexpr (shape == 1)
        return static_cast<float>(2.0 * p <= 1.0 ? 2.0 * p : 2.0 - 2.0 * p);
    else if constexpr (shape == 2)
        return static_cast<float>(p);
    else
        return p > 0.5 ? 1.0f : 0.0f;
}

template <int shape>
double FillShape(float* lfo, int frames, float amount, double phase, double increment)
{
    for (int n = 0; n < frames; ++n) {
        lfo[n] = LfoValue<shape>(phase) * amount;
        phase += increment;
        if (phase >= 1.0) phase -= std::floor(phase);
    }
    return phase;
}

/// Numbers, and small enough that the mixer's gain and sum keep them so.
bool AllSound(const float* samples, int frames)
{
    constexpr float kOverflow = 1.0e25f;
    int bad = 0;
    for (int n = 0; n < frames; ++n) bad |= !(std::fabs(samples[n]) < kOverflow);
    return bad == 0;
}

} // namespace

FXUnit::FXUnit(FxType unitType) : type(unitType), bypass(unitType == FxType::Stutter ? 1 : 0) { eqGains.fill(0.5f); }

FXUnit::~FXUnit() = default;

bool FXUnit::Usable() const { return UsableRate(static_cast<double>(sampleRate)); }

void FXUnit::AllocateBuffers()
{
    chorusDelays.reset();
    echoDelays.reset();
    for (auto& delay : panDelays) delay.reset();
    eqChanged.fill(1);
    if (!Usable()) return;
    const int shortFrames = static_cast<int>(std::lround(sampleRate * kShortDelaySeconds));
    const int longFrames = static_cast<int>(sampleRate * kLongDelaySeconds);
    switch (type) {
    case FxType::Chorus: chorusDelays = std::make_unique<TapeDelay<StereoChain>>(shortFrames); break;
    case FxType::Echo: echoDelays = std::make_unique<TapeDelay<Stereo>>(longFrames); break;
    case FxType::Panner:
        for (auto& delay : panDelays) delay = std::make_unique<MFXTapeDelay>(shortFrames);
        break;
    case FxType::Reverb: AllocateReverb(); break;
    case FxType::Stutter: loop.Allocate(longFrames); break;
    default: break;
    }
}

void FXUnit::Reset(float newRate)
{
    if (newRate != 0.0f && newRate != sampleRate) {
        sampleRate = newRate;
        AllocateBuffers();
    }
    if (chorusDelays) chorusDelays->Clear();
    if (echoDelays) echoDelays->Clear();
    for (auto& delay : panDelays)
        if (delay) delay->Clear();
    if (reverb && Usable()) reverb->Reset();
    tone = {};
    filter = {};
    held = Stereo{};
    holdCounter = 0;
    phaserStates = {};
    phaserLast = Stereo{};
    phaserDepth = -1.0f;
    pumpLevel = 0.0f;
    equaliser.Clear();
    loop.Restart();
    lfoPhase = 0.0;
    mix = 0.0f;
    holdFrames = 0;
    audible = 0;
}

void FXUnit::Process(float* left, float* right, int frames, float tempo)
{
    if (!Usable() || !(tempo >= 1.0f)) {
        audible = 0;
        return;
    }
    assert(frames <= kMaxRun);
    if (frames < 1) return;
    audible = 0;
    lfoSeconds = lfoBeats * 60.0f / tempo;
    lfoIncrement = lfoSeconds > 0.0f ? 1.0 / (static_cast<double>(sampleRate) * static_cast<double>(lfoSeconds)) : 0.0;
    const Block block{left, right, frames};
    switch (type) {
    case FxType::Distortion: Distort(block); break;
    case FxType::Decimator: Decimate(block); break;
    case FxType::Chorus: Chorus(block); break;
    case FxType::Phaser: Phase(block); break;
    case FxType::LowPass: Filter<false>(block); break;
    case FxType::HighPass: Filter<true>(block); break;
    case FxType::Echo: Echo(block); break;
    case FxType::Reverb: Reverberate(block); break;
    case FxType::Panner: Pan(block); break;
    case FxType::Pump: PumpAndEqualise(block); break;
    case FxType::Stutter: Stutter(block); break;
    }
    if ((audible || eqOn) && !(AllSound(block.left, block.frames) && AllSound(block.right, block.frames)))
        Silence(block);
    mix = Flushed(mix);
}

bool FXUnit::Off() const
{
    constexpr float kFadedOut = 0.0001f;
    return bypass && mix < kFadedOut;
}

float FXUnit::BlockLfo(int frames)
{
    float value = 0.0f;
    switch (lfoShape) {
    case 0: FillShape<0>(&value, 1, lfoAmount, lfoPhase, 0.0); break;
    case 1: FillShape<1>(&value, 1, lfoAmount, lfoPhase, 0.0); break;
    case 2: FillShape<2>(&value, 1, lfoAmount, lfoPhase, 0.0); break;
    default: FillShape<3>(&value, 1, lfoAmount, lfoPhase, 0.0); break;
    }
    lfoPhase = AdvancedPhase(frames);
    return value;
}

void FXUnit::FillLfo(float* lfo, int frames)
{
    if (lfoAmount == 0.0f) {
        std::fill_n(lfo, frames, 0.0f);
        lfoPhase = AdvancedPhase(frames);
        return;
    }
    switch (lfoShape) {
    case 0: lfoPhase = FillShape<0>(lfo, frames, lfoAmount, lfoPhase, lfoIncrement); break;
    case 1: lfoPhase = FillShape<1>(lfo, frames, lfoAmount, lfoPhase, lfoIncrement); break;
    case 2: lfoPhase = FillShape<2>(lfo, frames, lfoAmount, lfoPhase, lfoIncrement); break;
    default: lfoPhase = FillShape<3>(lfo, frames, lfoAmount, lfoPhase, lfoIncrement); break;
    }
}

double FXUnit::AdvancedPhase(int frames) const
{
    const double phase = lfoPhase + frames * lfoIncrement;
    return phase - std::floor(phase);
}

/// A bad number has reached the output: the block is muted and everything that remembers it is cleared.
void FXUnit::Silence(const Block& block)
{
    const float level = mix;
    const double phase = lfoPhase;
    Reset(0.0f);
    if (type == FxType::Stutter) loop.Wipe();
    mix = std::isfinite(level) ? level : 0.0f;
    lfoPhase = std::isfinite(phase) ? phase : 0.0;
    audible = 1;
    std::fill_n(block.left, block.frames, 0.0f);
    std::fill_n(block.right, block.frames, 0.0f);
}

void FXUnit::Stutter(const Block& block)
{
    if (Off() && holdFrames <= 0) return;
    audible = 1;
    const float target = Target();
    float level = mix;
    for (int n = 0; n < block.frames; ++n) {
        if (!bypass)
            holdFrames = kStutterHoldFrames;
        else if (holdFrames > 0)
            --holdFrames;
        const float inLeft = block.left[n];
        const float inRight = block.right[n];
        if (loop.Playing()) {
            level += (target - level) * kOnStep;
            float outLeft = 0.0f, outRight = 0.0f;
            loop.Read(outLeft, outRight);
            block.left[n] = (1.0f - level) * inLeft + level * outLeft;
            block.right[n] = (1.0f - level) * inRight + level * outRight;
        }
        loop.Record(inLeft, inRight);
        lfoPhase += lfoIncrement;
        if (lfoPhase < 1.0) continue;
        lfoPhase -= std::floor(lfoPhase);
        loop.EndSlice(reverse != 0);
    }
    mix = level;
}

} // namespace korvane
