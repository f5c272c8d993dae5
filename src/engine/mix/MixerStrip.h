// Level, pan and meters of one channel.
#pragma once

#include "platform/Shared.h"

namespace korvane {

/// Where a strip's sound goes; frames as its Mix is told.
struct StripOutputs {
    float *mainLeft, *mainRight;
    float *directLeft, *directRight;
    bool first; // the main pair is empty: it takes the sound instead of adding it
};

/// Of a GrooveChannel. Audio thread.
class MixerStrip {
public:
    /// Levels for the coming run.
    /// level  "CHN: Mix Level", 0..1 for -60..20 dB
    /// pan    "CHN: Panning", 0 left to 1 right, linear: the middle has half of each
    void Set(float level, float pan);
    /// Mixes a run. Gains move a hundredth of their way per frame, so that no change clicks. The direct pair is
    /// overwritten.
    void Mix(const float* left, const float* right, int frames, const StripOutputs& outputs);
    /// A run in which nothing is heard: the gains are where they go.
    void Skip();
    /// The next run begins at its gains; the meters fall.
    void Reset();

    Shared<float> peakLeft, peakRight; // audio raises them, the meter zeroes them; a lost zero shows them a run longer

private:
    float targetLeft = 0.0f, targetRight = 0.0f;
    float outGainLeft = -1.0f, outGainRight = -1.0f; // -1 before first use
};

} // namespace korvane
