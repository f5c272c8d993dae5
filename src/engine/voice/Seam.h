// The joint where a voice goes on with another sound.
#pragma once

#include <algorithm>

namespace korvane {

/// A sample or waveform may be replaced under a voice that sounds. The voice goes on at once with the new one; what the
/// two differ by at that frame is added, fading out, so that nothing jumps.
class Seam {
public:
    static constexpr int kFrames = 128; // of the fade, straight

    /// The source has changed since the last run; nothing to join for a voice that has not sounded yet.
    void Begin() { pending = sounded; }
    bool Fading() const { return pending || left > 0; }

    /// A run of the voice, in place.
    void Join(float* outLeft, float* outRight, int frames)
    {
        if (frames < 1) return;
        if (pending) {
            stepLeft = (lastLeft - outLeft[0]) / kFrames;
            stepRight = (lastRight - outRight[0]) / kFrames;
            left = kFrames;
            pending = false;
        }
        for (int n = 0; n < std::min(frames, left); ++n) {
            outLeft[n] += stepLeft * static_cast<float>(left - n);
            outRight[n] += stepRight * static_cast<float>(left - n);
        }
        left = std::max(0, left - frames);
        lastLeft = outLeft[frames - 1];
        lastRight = outRight[frames - 1];
        sounded = true;
    }

private:
    float lastLeft = 0.0f, lastRight = 0.0f; // of the last run
    float stepLeft = 0.0f, stepRight = 0.0f; // of the fade, per frame
    int left = 0;                            // frames of it
    bool pending = false;                    // begins with the next run
    bool sounded = false;                    // the voice has been through a run
};

} // namespace korvane
