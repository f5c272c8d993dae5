// What moves within a run: LFOs, smoothed knobs, envelopes, gain, glide.
#pragma once

#include <cstdint>
#include <numbers>
#include <type_traits>

#include "engine/dsp/Envelope.h"
#include "engine/dsp/LfoShape.h"
#include "framework/Limits.h"

namespace korvane {

inline constexpr float kSmoothing = 0.01f; // of cutoff, modulation amount and gain, fraction per frame; by ear
inline constexpr int kLfos = 2;

// S is float or a vector of floats. The vector forms have a voice in each lane, and its channel with it. The structs
// hold nothing but floats, a multiple of the widest vector, so that rows of them turn into lanes as a whole.

/// How much of each modulator reaches one destination; an unrouted one has factor 0.
template <class S>
struct MixOf {
    S env1, env2, lfo1, lfo2;

    [[gnu::always_inline]] S AddTo(S base, S env1Level, S env2Level) const
    {
        return base + env1 * env1Level + env2 * env2Level;
    }
    [[gnu::always_inline]] S AddTo(S base, S env1Level, S env2Level, S lfo1Out, S lfo2Out) const
    {
        return AddTo(base, env1Level, env2Level) + lfo1 * lfo1Out + lfo2 * lfo2Out;
    }
};

/// What the voices of a channel share.
template <class S>
struct alignas(64) ChannelMotion {
    // Moves.
    S phase[kLfos]{}; // 0..1
    S cutoff{};
    S modAmount{}; // of the synth's oscillator modulation

    // Of the run.
    S increment[kLfos]{}; // cycles per frame, 0..2^24
    S amount[kLfos]{};    // signed depth
    S shape[kLfos]{};     // number of an LfoShape; another one stays at 0
    S scaled[kLfos]{};    // 1: the depth follows the envelope with the same number; else 0
    S cutoffBase{}, modTarget{};
    S glideRate{}; // fraction of the distance per frame
    MixOf<S> toCutoff{}, toModAmount{};
    S toAmp[kLfos]{}; // factors of the LFOs
    S unused[7]{};
};

/// What each voice has for itself.
template <class S>
struct alignas(64) VoiceMotion {
    Envelope<S> amp; // keeps its level when a note takes the voice over
    Envelope<S> env1, env2;
    S gain = S{} - 1.0f;       // -1: takes the target at first use
    S lfo1Out{}, lfo2Out{};    // of the last frame
    S glidePitch{};            // sounding pitch in semitones, on its way to glideTarget
    S gainTarget = S{} + 1.0f; // from here on fixed within a run
    S glideTarget{};           // pitchNote of the run
    S cutoffOffset{};          // added to the channel's cutoff
    S ampReleaseRate{};
    S unused[9]{};
};

/// The values of one frame.
template <class S>
struct MotionFrame {
    S cutoff, gain, amp, modAmount;
};

/// p minus its floor, for p of 0 up to 2^31.
template <class S>
[[gnu::always_inline]] inline S Fraction(S p)
{
    if constexpr (std::is_same_v<S, float>)
        return p - static_cast<float>(static_cast<std::int32_t>(p));
    else
        return p - __builtin_convertvector(__builtin_convertvector(p, decltype(p < p)), S);
}

[[gnu::always_inline]] inline float LfoSine(float phase)
{
    return __builtin_sinf(2.0f * std::numbers::pi_v<float> * phase);
}

/// Value at full depth.
/// sine  LfoSine(phase), read where the shape is the sine
template <class S>
[[gnu::always_inline]] inline S LfoValue(S shape, S phase, S sine)
{
    const auto is = [shape](LfoShape which) { return shape == static_cast<float>(which); };
    const S twice = 2.0f * phase, one = S{} + 1.0f;
    const S triangle = twice <= 1.0f ? twice : 2.0f - twice;
    const S square = phase < 0.5f ? one : S{};
    const S last = is(LfoShape::Square) ? square : S{};
    const S ramp = is(LfoShape::Ramp) ? 1.0f - phase : last;
    const S others = is(LfoShape::Triangle) ? triangle : ramp;
    return is(LfoShape::Sine) ? sine : others;
}

/// Moves voice and channel on by a frame.
/// kArrives    see Envelope
/// kLfosAct    false where no LFO acts on anything here: lfo1Out and lfo2Out stay. A zero may get another sign then;
///             neither filter nor oscillators nor amplitude can tell
/// kModAmount  whether that of the frame is needed
template <bool kArrives, bool kLfosAct, bool kModAmount, class S>
[[gnu::always_inline]] inline MotionFrame<S> StepMotion(VoiceMotion<S>& voice, ChannelMotion<S>& channel,
                                                        const S (&sines)[kLfos])
{
    channel.cutoff += (channel.cutoffBase - channel.cutoff) * kSmoothing;
    channel.modAmount += (channel.modTarget - channel.modAmount) * kSmoothing;
    voice.glidePitch += (voice.glideTarget - voice.glidePitch) * channel.glideRate;
    voice.env1.template Step<kArrives>();
    voice.env2.template Step<kArrives>();
    voice.amp.template Step<kArrives>();
    voice.gain += (voice.gainTarget - voice.gain) * kSmoothing;

    const S env1 = voice.env1.level, env2 = voice.env2.level, amp = voice.amp.level * voice.amp.level;
    const S cutoff = channel.cutoff + voice.cutoffOffset;
    MotionFrame<S> frame{};
    frame.gain = voice.gain;
    if constexpr (kLfosAct) {
        const auto out = [&](int l, S envelope) {
            const S value = LfoValue(channel.shape[l], channel.phase[l], sines[l]) * channel.amount[l];
            return value * (channel.scaled[l] != 0.0f ? envelope : S{} + 1.0f);
        };
        const S lfo1 = out(0, env1), lfo2 = out(1, env2);
        voice.lfo1Out = lfo1;
        voice.lfo2Out = lfo2;
        frame.cutoff = channel.toCutoff.AddTo(cutoff, env1, env2, lfo1, lfo2);
        if constexpr (kModAmount)
            frame.modAmount = channel.toModAmount.AddTo(channel.modAmount, env1, env2, lfo1, lfo2);
        frame.amp = amp + channel.toAmp[0] * lfo1 + channel.toAmp[1] * lfo2;
    } else {
        frame.cutoff = channel.toCutoff.AddTo(cutoff, env1, env2);
        if constexpr (kModAmount) frame.modAmount = channel.toModAmount.AddTo(channel.modAmount, env1, env2);
        frame.amp = amp;
    }
    frame.amp = frame.amp > 0.0f ? frame.amp : S{};
    for (int l = 0; l < kLfos; ++l) channel.phase[l] = Fraction(channel.phase[l] + channel.increment[l]);
    return frame;
}

inline constexpr std::int32_t kNeverReleased = 2 * kMaxRun;

/// A voice of a run. Rows hold kMaxRun floats.
struct MotionJob {
    VoiceMotion<float>* voice;           // moved on
    const ChannelMotion<float>* channel; // as the run begins
    ChannelMotion<float>* moved;         // gets what moves, as the run ends; the channel's voices all write the same
    const float* sines[kLfos];           // LfoSine of each frame; null unless a sine acts, see `lfosAct`
    bool lfosAct;                        // false: no LFO acts on anything within the run
    std::int32_t release;       // frame that the note is released before; up to the run's length, or kNeverReleased
    float *cutoff, *gain, *amp; // of each frame, filled
    float* modAmount;           // the same; null where nobody needs it
};

/// Moves voices through a run. Rows are overwritten up to the next multiple of 16 frames. Audio thread.
/// count   0..kChannels * kVoices
/// frames  1..kMaxRun
using ModulateVoicesKernel = void(const MotionJob* jobs, int count, int frames);

/// The plain form.
ModulateVoicesKernel ModulateVoicesPlainly;

} // namespace korvane
