// The joint where a voice goes on with another sound.
#pragma once

#include <algorithm>

namespace korvane {

/// A sample or waveform may be replaced under a voice that sounds. The voice goes on at once with the new one; what the
/// two differ by at that frame is added, fading out, so that nothing jumps. Lies where the source is read, before all
/// filters.
class Seam {
public:
    /// The source has changed since the last run; nothing to join for one that begins only now.
    /// begun  it goes on from somewhere in its middle, though nothing of it has sounded yet
    void Begin(bool begun = false) { pending = sounded || begun; }
    /// The joint is still heard, in the filters behind it at least.
    bool Heard() const { return pending || left > 0; }

    /// A run of the source, in place.
    void Join(float* outLeft, float* outRight, int frames)
    {
        if (frames < 1) return;
        if (pending) {
            stepLeft = (lastLeft - outLeft[0]) / kFade;
            stepRight = (lastRight - outRight[0]) / kFade;
            left = kFade + kSettle;
            pending = false;
        }
        const int fading = left - kSettle;
        for (int n = 0; n < std::min(frames, fading); ++n) {
            outLeft[n] += stepLeft * static_cast<float>(fading - n);
            outRight[n] += stepRight * static_cast<float>(fading - n);
        }
        left = std::max(0, left - frames);
        Pass(outLeft[frames - 1], outRight[frames - 1]);
    }
    /// A run of the source with no joint to hear.
    /// endLeft, endRight  its last frame
    void Pass(float endLeft, float endRight)
    {
        lastLeft = endLeft;
        lastRight = endRight;
        sounded = true;
    }
    /// The source has come to its end: from here on it is silent.
    void End() { lastLeft = lastRight = 0.0f; }

private:
    static constexpr int kFade = 128;    // frames, straight
    static constexpr int kSettle = 1536; // frames that a low cut takes to come to rest

    float lastLeft = 0.0f, lastRight = 0.0f; // of the last run
    float stepLeft = 0.0f, stepRight = 0.0f; // of the fade, per frame
    int left = 0;                            // frames of fade and rest
    bool pending = false;                    // begins with the next run
    bool sounded = false;                    // there has been a run
};

} // namespace korvane
