// Reverb: parameters, coefficients when they change, meters, and the two processes.
#include "engine/fx/reverb/fxReverb.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>

#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

constexpr std::int32_t kClipBlocks = 6;

bool Known(std::int32_t index) { return index >= 0 && index < reverb::Count; }

void Watch(fxReverb::Meter& meter, const float* samples, int frames)
{
    std::int32_t bits = 0; // magnitudes of floats have the order of their bits
    for (int n = 0; n < frames; ++n) bits = std::max(bits, std::bit_cast<std::int32_t>(samples[n]) & 0x7fffffff);
    meter.peak = std::bit_cast<float>(bits);
    meter.clippedBlocks = !(meter.peak <= 1.0f) ? kClipBlocks : std::max(meter.clippedBlocks - 1, 0);
}

} // namespace

fxReverb::fxReverb(ReverbParts newParts) : AudioEffect(nullptr, 1, reverb::Count), parts(newParts)
{
    record.numInputs = record.numOutputs = 2;
    for (const ReverbParameter& row : kReverbParameters) SetParameter(row.index, row.initial);
    if (parts == ReverbParts::Late) {
        values[reverb::MuteEr] = 1.0f;
        steps[reverb::MuteEr] = 1;
    }
    SetSampleRate(sampleRate);
}

void fxReverb::SetParameter(std::int32_t index, float value)
{
    if (!Known(index) || Fixed(index)) return;
    values[static_cast<std::size_t>(index)] = value;
    const int step = ReverbStep(index, value);
    int& present = steps[static_cast<std::size_t>(index)];
    changed = changed || step != present;
    present = step;
}

bool fxReverb::Fixed(std::int32_t index) const
{
    return parts == ReverbParts::Late && (index == reverb::MuteEr || index == reverb::Predelay);
}

float fxReverb::GetParameter(std::int32_t index)
{
    return Known(index) ? values[static_cast<std::size_t>(index)] : 0.0f;
}

void fxReverb::GetParameterLabel(std::int32_t index, char* text)
{
    std::strcpy(text, Known(index) ? kReverbParameters[static_cast<std::size_t>(index)].label : "");
}

void fxReverb::GetParameterDisplay(std::int32_t index, char* text)
{
    *text = '\0';
    if (Known(index)) ReverbText(index, steps[static_cast<std::size_t>(index)], text);
}

void fxReverb::GetParameterName(std::int32_t index, char* text)
{
    std::strcpy(text, Known(index) ? kReverbParameters[static_cast<std::size_t>(index)].name : "");
}

void fxReverb::SetSampleRate(float newRate)
{
    if (!UsableRate(static_cast<double>(newRate))) return;
    tank.Allocate(newRate, parts == ReverbParts::All);
    sampleRate = newRate;
    coefficients = ComputeReverb(steps, sampleRate);
    tank.Fit(coefficients, false);
    lastRoomSize = steps[reverb::RoomSize];
    changed = false;
}

void fxReverb::Reset() { tank.Reset(); }

void fxReverb::Process(float** inputs, float** outputs, std::int32_t frames) { Render(inputs, outputs, frames, true); }

void fxReverb::ProcessReplacing(float** inputs, float** outputs, std::int32_t frames)
{
    Render(inputs, outputs, frames, false);
}

void fxReverb::UpdateCoefficients()
{
    if (!changed) return;
    changed = false;
    coefficients = ComputeReverb(steps, sampleRate);
    tank.Fit(coefficients, steps[reverb::RoomSize] != lastRoomSize);
    lastRoomSize = steps[reverb::RoomSize];
}

ReverbJob fxReverb::Job(float* const* inputs, float* const* outputs, bool adds)
{
    UpdateCoefficients();
    float& level = tank.state.level;
    if (level < 0.0f) level = coefficients.reverbTarget;
    return {&coefficients, &tank.state, inputs[0], inputs[1], outputs[0], outputs[1], adds};
}

void fxReverb::Render(float** inputs, float** outputs, std::int32_t frames, bool adds)
{
    ReverbJob job = Job(inputs, outputs, adds);
    for (std::size_t side = 0; side < 2; ++side) Watch(inputMeters[side], inputs[side], frames);
    kernels.runReverbs(&job, 1, frames);
    for (std::size_t side = 0; side < 2; ++side) Watch(outputMeters[side], outputs[side], frames);
}

} // namespace korvane
