// Stereo plate reverb with early reflections, an effect of its own with eighteen parameters.
#pragma once

#include <array>
#include <cstdint>

#include "engine/fx/reverb/ReverbCoefficients.h"
#include "engine/fx/reverb/ReverbParameters.h"
#include "engine/fx/reverb/ReverbTank.h"
#include "shell/vst2/AudioEffect.h"

namespace korvane {

/// What a reverb can give. One that is always late has no memory for the rest: MuteEr stays on and Predelay 0.
enum class ReverbParts { All, Late };

/// Two inputs, two outputs. Parameters may be set between blocks, by the thread that processes; the memory is
/// allocated by the constructor and SetSampleRate only. Texts are short: the host's buffers of 8 bytes suffice, but
/// for names up to 15.
class fxReverb final : public AudioEffect {
public:
    /// Starts at 44100 Hz with the program "[1] Default Reverb".
    explicit fxReverb(ReverbParts newParts = ReverbParts::All);

    /// Empties the delay memory; the reverb level starts at its target.
    void Reset() override;
    /// Reallocates and empties the delay memory; a rate that is not usable (Limits.h) is ignored.
    void SetSampleRate(float newRate) override;
    void ProcessReplacing(float** inputs, float** outputs, std::int32_t frames) override;
    void SetParameter(std::int32_t index, float value) override; // 0..1; an unknown or a fixed index is ignored
    float GetParameter(std::int32_t index) override;             // 0 for an unknown index
    void GetParameterLabel(std::int32_t index, char* text) override;
    void GetParameterDisplay(std::int32_t index, char* text) override;
    void GetParameterName(std::int32_t index, char* text) override;
    void Process(float** inputs, float** outputs, std::int32_t frames) override; // adds to the outputs
    /// What the kernel takes to process a block; the meters see nothing of it.
    /// inputs, outputs  left, right; may be the same
    /// adds             to the outputs
    ReverbJob Job(float* const* inputs, float* const* outputs, bool adds);

    /// Level of one input or output.
    struct Meter {
        float peak = 0.0f;              // of the last block
        std::int32_t clippedBlocks = 0; // 6 when the last block left -1..1, then one less per block
    };

    std::array<Meter, 2> inputMeters, outputMeters; // left, right
    const char* programName = "[1] Default Reverb";
    ReverbSteps steps{}; // what the parameters stand for

private:
    void Render(float** inputs, float** outputs, std::int32_t frames, bool adds);
    bool Fixed(std::int32_t index) const;
    void UpdateCoefficients();

    const ReverbParts parts;
    std::array<float, reverb::Count> values{}; // of the only program
    ReverbCoefficients coefficients{};
    bool changed = true;  // coefficients are older than the steps
    int lastRoomSize = 0; // of the coefficients; 0 before the first
    ReverbTank tank;
};

} // namespace korvane
