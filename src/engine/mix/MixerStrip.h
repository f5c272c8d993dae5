// Level, pan and meters of one channel.
#pragma once

#include <limits>

#include "engine/kernels/StripMix.h"
#include "platform/Shared.h"

namespace korvane {

/// Of a GrooveChannel. Audio thread.
class MixerStrip {
public:
    /// Levels for the coming run.
    /// level  "CHN: Mix Level", 0..1 for -60..20 dB
    /// pan    "CHN: Panning", 0 left to 1 right, linear: the middle has half of each
    void Set(float level, float pan);
    /// What the coming run takes to be mixed; Mixed takes the state back. Gains move a hundredth of their way per
    /// frame, so that no change clicks.
    /// left, right              the channel's sound
    /// directLeft, directRight  are overwritten; null where nobody listens
    /// first                    the main pair is empty
    StripJob Job(const float* left, const float* right, float* directLeft, float* directRight, bool first) const;
    void Mixed(const StripJob& job);
    /// A run in which nothing is heard: the gains are where they go.
    void Skip();
    /// The next run begins at its gains; the meters fall.
    void Reset();

    Shared<float> peakLeft, peakRight; // audio raises them, the meter zeroes them; a lost zero shows them a run longer

private:
    static constexpr float kUnset = std::numeric_limits<float>::quiet_NaN(); // unlike every number

    float setLevel = kUnset, setPan = kUnset; // what the targets were computed of
    float targetLeft = 0.0f, targetRight = 0.0f;
    float outGainLeft = -1.0f, outGainRight = -1.0f; // -1 before first use
};

} // namespace korvane
