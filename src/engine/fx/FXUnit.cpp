// Effect unit: the effect of each type, its life cycle, the guard behind it.
#include "engine/fx/FXUnit.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/Chorus.h"
#include "engine/fx/Decimator.h"
#include "engine/fx/Distortion.h"
#include "engine/fx/Echo.h"
#include "engine/fx/Panner.h"
#include "engine/fx/Phaser.h"
#include "engine/fx/Pump.h"
#include "engine/fx/ResonantFilter.h"
#include "engine/fx/ReverbSend.h"
#include "engine/fx/Stutter.h"
#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

std::unique_ptr<Effect> EffectOf(FxType type)
{
    switch (type) {
    case FxType::Distortion: return std::make_unique<Distortion>();
    case FxType::Decimator: return std::make_unique<Decimator>();
    case FxType::Chorus: return std::make_unique<Chorus>();
    case FxType::Phaser: return std::make_unique<Phaser>();
    case FxType::LowPass: return std::make_unique<LowPassFilter>();
    case FxType::HighPass: return std::make_unique<HighPassFilter>();
    case FxType::Echo: return std::make_unique<Echo>();
    case FxType::Reverb: return std::make_unique<ReverbSend>();
    case FxType::Panner: return std::make_unique<Panner>();
    case FxType::Pump: return std::make_unique<Pump>();
    case FxType::Stutter: break;
    }
    return std::make_unique<Stutter>();
}

} // namespace

FXUnit::FXUnit(FxType unitType)
    : type(unitType), effect(EffectOf(type)), eqBands(type == FxType::Pump ? std::make_unique<Equaliser>() : nullptr)
{
    bypass = type == FxType::Stutter;
    eqGains.fill(0.5f);
}

FXUnit::~FXUnit() = default;

bool FXUnit::Usable() const { return UsableRate(static_cast<double>(sampleRate)); }

void FXUnit::Reset(float newRate)
{
    if (newRate != 0.0f && newRate != sampleRate) {
        if (UsableRate(static_cast<double>(newRate))) effect->Allocate(newRate);
        sampleRate = newRate;
        eqChanged.fill(1);
    }
    if (Usable()) effect->Reset();
    if (eqBands) eqBands->Clear();
    lfoPhase = 0.0;
    mix = 0.0f;
    holdFrames = 0;
    audible = 0;
}

void FXUnit::Process(float* left, float* right, int frames, float tempo)
{
    const UnitRun run{this, {left, right, frames}};
    ProcessUnits({&run, 1}, tempo);
}

void ProcessUnits(std::span<const UnitRun> runs, float tempo)
{
    std::array<const UnitRun*, kChannels> begun;
    std::array<EffectRun, kChannels> effects;
    std::size_t begunCount = 0, count = 0;
    for (const UnitRun& run : runs) {
        FXUnit& unit = *run.unit;
        assert(run.block.frames <= kMaxRun);
        if (!unit.Begin(tempo) || run.block.frames < 1) continue;
        begun[begunCount++] = &run;
        unit.audible = unit.effect->Runs(unit);
        if (unit.audible) effects[count++] = {unit.effect.get(), &unit, run.block};
    }
    if (count > 0) effects[0].effect->ProcessAll({effects.data(), count});
    std::array<EqualiserRun, kChannels> equalisers;
    count = 0;
    for (std::size_t n = 0; n < begunCount; ++n) {
        FXUnit& unit = *begun[n]->unit;
        if (!unit.Equalises()) continue;
        unit.UpdateBands();
        equalisers[count++] = {unit.eqBands.get(), begun[n]->block};
    }
    Equaliser::ProcessAll({equalisers.data(), count});
    for (std::size_t n = 0; n < begunCount; ++n) begun[n]->unit->Finish(begun[n]->block);
}

/// Whether there is anything to do with this rate and tempo.
bool FXUnit::Begin(float tempo)
{
    if (!Usable() || !(tempo >= 1.0f)) {
        audible = 0;
        return false;
    }
    if (tempo != lfoTempo || lfoBeats != lfoTimedBeats || sampleRate != lfoRate) TimeLfo(tempo);
    return true;
}

void FXUnit::TimeLfo(float tempo)
{
    lfoSeconds = lfoBeats * 60.0f / tempo;
    lfoIncrement = lfoSeconds > 0.0f ? 1.0 / (static_cast<double>(sampleRate) * static_cast<double>(lfoSeconds)) : 0.0;
    lfoTempo = tempo;
    lfoTimedBeats = lfoBeats;
    lfoRate = sampleRate;
}

void FXUnit::Finish(const StereoBlock& block)
{
    if (Equalises() && eqBands->Ringing()) audible = 1;
    if ((audible || eqOn) && !kernels.allSound(block.left, block.right, block.frames)) Silence(block);
    mix = Flushed(mix);
}

void FXUnit::UpdateBands()
{
    for (int band = 0; band < kEqBands; ++band) {
        auto& changed = eqChanged[static_cast<std::size_t>(band)];
        if (changed) eqBands->SetBand(band, eqGains[static_cast<std::size_t>(band)], sampleRate);
        changed = 0;
    }
}

/// A bad number has reached the output: the block is muted and everything that remembers it is cleared.
void FXUnit::Silence(const StereoBlock& block)
{
    const float level = mix;
    const double phase = lfoPhase;
    Reset(0.0f);
    effect->Wipe();
    mix = std::isfinite(level) ? level : 0.0f;
    lfoPhase = std::isfinite(phase) ? phase : 0.0;
    audible = 1;
    std::fill_n(block.left, block.frames, 0.0f);
    std::fill_n(block.right, block.frames, 0.0f);
}

} // namespace korvane
