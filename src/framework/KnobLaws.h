// What the knobs mean: the law of each one, from its value to a musician's unit, beside its inverse.
#pragma once

#include <algorithm>
#include <cmath>

#include "framework/Beats.h"
#include "platform/Numbers.h"

namespace korvane {

/// Laws take a knob's value, nominally 0..1, and give what the engine plays and the display shows; they are the
/// instrument's sound, so the order of their operations counts. The inverse of each stands below it, named ...Knob: it
/// takes the unit and gives a value of 0..1, the nearest end for what the knob does not reach. Ranges and constants
/// without another word were chosen by ear.
namespace law {

inline float Square(float x) { return x * x; }
inline float Cube(float x) { return x * x * x; }
inline float Fourth(float x) { return Square(x) * Square(x); }
inline float Fifth(float x) { return Fourth(x) * x; }
constexpr double Knob(double value) { return Clamp(value, 0.0, 1.0); }

/// A whole number is what the law's line has before the point; its knob stands half a step further from the centre.
inline double InsideStep(int number) { return number + (number > 0 ? 0.5 : number < 0 ? -0.5 : 0.0); }

// Stepped controls: position p of 0..last is held as p / last.
inline int Position(float value, int last) { return Truncate(static_cast<float>(last) * value); }
inline double PositionKnob(int position, int last) { return Knob(static_cast<double>(position) / last); }

// Knobs whose middle is nothing: -1..1. Amounts of the modulation sources, pannings.
inline float SourceAmount(float value) { return (value - 0.5f) * 2.0f; }
inline float PanPosition(float value) { return 2.0f * value - 1.0f; }
inline double SourceAmountKnob(double amount) { return Knob(0.5 + 0.5 * amount); }
inline double PanKnob(double position) { return Knob(0.5 + 0.5 * position); } // mixer and layers

/// Factor of a level in dB.
inline float DbGain(float db) { return std::pow(10.0f, db / 20.0f); }

// Mixer. Equal gains of 0.5 in the middle.
inline float MixDb(float value) { return 80.0f * value - 60.0f; }
inline double MixKnob(double db) { return Knob((db + 60.0) / 80.0); }
inline double MixOffset(double db) { return db / 80.0; } // of a step lock
inline float MixGain(float value) { return DbGain(MixDb(value)); }
inline float PanLeft(float value) { return Clamp(1.0f - value, 0.0f, 1.0f); }
inline float PanRight(float value) { return Clamp(value, 0.0f, 1.0f); }

// Note. An eighth of a beat to 32 beats; 0.25 beats is a step.
inline float NoteBeats(float value) { return 0.125f * std::pow(2.0f, 8.0f * value); }
inline double NoteBeatsKnob(double beats) { return Knob(std::log2(8.0 * beats) / 8.0); }
inline float NoteBeatsValue(float beats) { return 0.125f * std::log2(8.0f * beats); } // as recording stores it
inline double NoteBeatsOffset(double times) { return std::log2(times) / 8.0; } // of a step lock, for so many times
inline int Semitones(float value) { return Truncate(48.0f * value - 24.0f); }
inline double SemitonesKnob(int semitones) { return Knob((InsideStep(semitones) + 24.0) / 48.0); }
inline float SlideSeconds(float value) { return 2.0f * Cube(value); } // time constant
inline double SlideKnob(double seconds) { return Knob(std::cbrt(seconds / 2.0)); }

/// Semitones or octaves that a control far outside 0..1 gives at most, so that sums of notes stay numbers.
inline constexpr int kFarthestPitch = 1000000;

/// "SYNTH: Octave": -2..2.
inline int Octaves(float value) { return Clamp(Truncate(4.0f * value), -kFarthestPitch, kFarthestPitch) - 2; }
inline double OctavesKnob(int octaves) { return PositionKnob(octaves + 2, 4); }

/// Whole semitones that a full pitch bend moves.
inline int BendSemitones(float value) { return Truncate(12.0f * value); }
inline double BendKnob(int semitones) { return Knob(InsideStep(semitones) / 12.0); }

/// Part of full level with which a key was struck.
/// velocity  0..127
inline float Velocity(int velocity) { return static_cast<float>(velocity) / 127.0f; }

// Envelopes. Their times are time constants; a level moves by EnvelopeRate of the distance to its target per frame.
// An attack aims at five times full level, and amplitudes are squares of levels.
inline constexpr double kEnvelopeSpeed = 8.82;    // distances per time constant
inline constexpr double kShortestSeconds = 0.001; // on top of every time constant

/// Fraction of the distance that a level moves per frame for a time constant.
/// seconds  time constant, >= 0
/// rate     sample rate in Hz
inline float EnvelopeRate(float seconds, float rate)
{
    return static_cast<float>(kEnvelopeSpeed) / ((seconds + static_cast<float>(kShortestSeconds)) * rate);
}

// What a time constant of one second takes, in seconds.
inline constexpr double kRise = 0.223144 / kEnvelopeSpeed;       // from nothing to full level, ln (5 / 4) distances
inline constexpr double kFall = 0.5 * 6.907755 / kEnvelopeSpeed; // until the amplitude is 60 dB lower, ln (1000) / 2

inline double TimeConstant(double seconds, double each) { return std::max(0.0, seconds / each - kShortestSeconds); }
inline double RiseConstant(double seconds) { return TimeConstant(seconds, kRise); }
inline double FallConstant(double seconds) { return TimeConstant(seconds, kFall); }
inline double LevelFallConstant(double seconds) { return TimeConstant(seconds, 2.0 * kFall); } // level to a thousandth

inline float AmpAttackSeconds(float value) { return Cube(value) * 50.0f; }
inline double AmpAttackKnob(double seconds) { return Knob(std::cbrt(seconds / 50.0)); }
inline float AmpDecaySeconds(float value) { return Fourth(value) * 50.0f; }
inline double AmpDecayKnob(double seconds) { return Knob(std::pow(seconds / 50.0, 0.25)); }
inline float AmpReleaseSeconds(float value) { return Cube(0.55f * value + 0.1f) * 25.0f; }
inline double AmpReleaseKnob(double seconds) { return Knob((std::cbrt(seconds / 25.0) - 0.1) / 0.55); }
inline float EnvelopeAttackSeconds(float value) { return Fifth(value) * 300.0f; }
inline double EnvelopeAttackKnob(double seconds) { return Knob(std::pow(seconds / 300.0, 0.2)); }
inline float EnvelopeDecaySeconds(float value) { return Fifth(0.8f * value + 0.2f) * 70.0f; }
inline double EnvelopeDecayKnob(double seconds) { return Knob((std::pow(seconds / 70.0, 0.2) - 0.2) / 0.8); }

// Level of the amplitude.
inline float AmpDb(float value) { return 50.0f * value - 25.0f; }
inline double AmpKnob(double db) { return Knob((db + 25.0) / 50.0); }
inline double AmpOffset(double db) { return db / 50.0; } // of a step lock
inline float AmpGain(float value) { return DbGain(AmpDb(value)); }

// Depth of envelopes and LFOs, by a knob and the switch that gives it a minus.
inline float Depth(float value, bool inverted) { return inverted ? -Square(value) : Square(value); }
inline double DepthKnob(double depth) { return Knob(std::sqrt(std::fabs(depth))); }

/// Semitones in octaves, as a factor of frequency.
inline float PitchRatio(float semitones) { return std::pow(2.0f, semitones / 12.0f); }

inline constexpr float kReferenceNote = 57.0f; // sounds at 220 Hz, and the channel filter's tracking turns about it
inline float NoteHz(float note) { return 220.0f * PitchRatio(note - kReferenceNote); }

/// What "Filter KBD Tracking" adds to the cutoff knob: 1 / 128 per semitone, a little less than the note moves.
inline float CutoffTracking(float note, float tracking) { return (note - kReferenceNote) * 0.0078125f * tracking; }

// Channel filter. The engine reads coefficients from CutoffTable; these are the corners of one stage at 44.1 kHz that
// come of it, rounded.
inline float CutoffHz(float value) { return 14.04f * std::pow(2.0f, 9.7736f * value); }
inline double CutoffKnob(double hz) { return Knob(std::log2(hz / 14.04) / 9.7736); }

/// "LFO Rate" when free: about 25 Hz down to 0.01 Hz.
inline float LfoFreeHz(float value)
{
    const float slow = 1.0f - Clamp(value, 0.0f, 1.0f);
    return slow * slow * 25.0f + 0.01f;
}
inline double LfoFreeKnob(double hz) { return Knob(1.0 - std::sqrt((hz - 0.01) / 25.0)); }

/// Knob of a row of kSyncLengths, the inverse of SyncLengthOf: the middle of the row's share.
inline double SyncKnob(int row) { return Knob((row + 0.5) / static_cast<double>(kSyncLengths.size())); }

// Oscillators.
inline int OscillatorSemitones(float value) { return Truncate(72.0f * value - 36.0f); }
inline double OscillatorSemitonesKnob(int semitones) { return Knob((InsideStep(semitones) + 36.0) / 72.0); }
inline int OscillatorCents(float value) { return Truncate(100.0f * value - 50.0f); }
inline double OscillatorCentsKnob(int cents) { return Knob((InsideStep(cents) + 50.0) / 100.0); }

/// How far the mix has faded from the sources so far to the next one, 0..1.
inline float MixShare(float value) { return Square(value); }
inline double MixShareKnob(double share) { return Knob(std::sqrt(share)); }

/// "SYNTH: Modulation": how far oscillator 2 moves oscillator 1, 0..1.
inline float ModulationAmount(float value) { return Square(value); }
inline double ModulationAmountKnob(double amount) { return Knob(std::sqrt(amount)); }

/// 1..16, a whole number; beyond 0..1 beyond them.
inline float UnisonVoices(float value) { return std::trunc(15.0f * value) + 1.0f; }
inline double UnisonVoicesKnob(int voices) { return Knob(InsideStep(voices - 1) / 15.0); }

/// Octaves from the lowest of the stacked voices to the highest.
inline float UnisonOctaves(float value) { return Square(0.4f * value); }
inline double UnisonOctavesKnob(double octaves) { return Knob(std::sqrt(octaves) / 0.4); }

/// Gain of a stacked voice that stands `stereo` to the right, -1..1.
inline float StereoLeft(float stereo) { return Clamp(1.0f - stereo, 0.0f, 1.0f); }
inline float StereoRight(float stereo) { return Clamp(1.0f + stereo, 0.0f, 1.0f); }

// Sampler layers.
inline float LayerGain(float value) { return 2.0f * Square(value); }
inline double LayerDbKnob(double db) { return Knob(std::sqrt(0.5 * std::pow(10.0, db / 20.0))); }
inline float LayerPanLeft(float value) { return 2.0f * (1.0f - value); } // 1 in the middle
inline float LayerPanRight(float value) { return 2.0f * value; }

/// -24 semitones by a square below the middle, 48 evenly above.
inline float LayerSemitones(float value)
{
    float pitch = Clamp(value, 0.0f, 1.0f) - 0.5f;
    if (pitch < 0.0f) pitch = -(pitch * pitch);
    return 96.0f * pitch;
}
inline double LayerSemitonesKnob(double semitones)
{
    return Knob(semitones >= 0.0 ? 0.5 + semitones / 96.0 : 0.5 - std::sqrt(-semitones / 96.0));
}
inline float LayerDelaySeconds(float value) { return Fourth(value) * 0.25f; }
inline double LayerDelayKnob(double seconds) { return Knob(std::pow(4.0 * seconds, 0.25)); }
inline float LayerAttackSeconds(float value) { return Cube(value) * 250.0f; } // time constant
inline double LayerAttackKnob(double seconds) { return Knob(std::cbrt(seconds / 250.0)); }
inline float LayerHoldSeconds(float value) { return Square(value); }
inline double LayerHoldKnob(double seconds) { return Knob(std::sqrt(seconds)); }
inline float LayerDecaySeconds(float value) { return Fourth(value) * 50.0f; } // time constant
inline double LayerDecayKnob(double seconds) { return Knob(std::pow(seconds / 50.0, 0.25)); }
inline constexpr float kNoLayerDecay = 0.999f; // from here on a layer stays at full level
inline float LayerLoCutHz(float value) { return std::pow(2.0f, 10.0f * Clamp(value, 0.0f, 1.0f) + 4.0f); }
inline double LayerLoCutKnob(double hz) { return Knob((std::log2(hz) - 4.0) / 10.0); }
inline float LayerHiCutHz(float value) { return std::pow(2.0f, 6.3f * Clamp(value, 0.0f, 1.0f) + 8.0f); }
inline double LayerHiCutKnob(double hz) { return Knob((std::log2(hz) - 8.0) / 6.3); }
inline float LayerQ(float value) { return Cube(value) * 16.0f + 0.99f; }
inline double LayerQKnob(double q) { return Knob(std::cbrt((q - 0.99) / 16.0)); }

// Effects. x and y are those of the pad, within 0..1; an LFO may have moved them.

/// Depth of an effect's LFO, -1..1.
inline float FxLfoDepth(float value)
{
    const float amount = Clamp(2.0f * value - 1.0f, -1.0f, 1.0f);
    return std::copysign(amount * amount, amount);
}
inline double FxLfoDepthKnob(double depth)
{
    return Knob(0.5 + 0.5 * std::copysign(std::sqrt(std::fabs(depth)), depth));
}

/// Steepness of the clipper: 0 leaves the signal as it is but for its level, 1024 makes a square of it.
inline float Drive(float x) { return x * x * x * x * 1024.0f; }
inline double DriveKnob(double drive) { return Knob(std::pow(drive / 1024.0, 0.25)); }
/// Full scale keeps about half its level at every drive.
inline float DriveMakeUp(float drive) { return drive * 0.5f + 0.5f; }

/// Frames that the decimator holds one, 3 to 67.
/// clean  1 - x, after an LFO has moved it; the knob that CrushKnob gives is x
inline int CrushFrames(float clean) { return Truncate(clean * clean * 64.0f + 3.0f); }
inline double CrushKnob(int frames) { return Knob(1.0 - std::sqrt(InsideStep(frames - 3) / 64.0)); }

/// Lowpass behind clipper and decimator, 1024 Hz to 19.9 kHz.
inline float ToneHz(float y) { return std::pow(2.0f, y * 4.28f + 10.0f); }
inline double ToneKnob(double hz) { return Knob((std::log2(hz) - 10.0) / 4.28); }
/// 64 Hz to 19.9 kHz.
inline float LowPassHz(float x) { return std::pow(2.0f, x * 8.28f + 6.0f); }
inline double LowPassKnob(double hz) { return Knob((std::log2(hz) - 6.0) / 8.28); }
/// 32 Hz to 5.5 kHz: four fifths of the octaves up to where the lowpass ends, above which too little is left.
inline float HighPassHz(float x) { return std::pow(2.0f, x * 9.28f * 0.8f + 5.0f); }
inline double HighPassKnob(double hz) { return Knob((std::log2(hz) - 5.0) / (9.28 * 0.8)); }
/// Of each section, 1..3.
inline float FilterQ(float y) { return 2.0f * (y * y) + 1.0f; }
inline double FilterQKnob(double q) { return Knob(std::sqrt((q - 1.0) / 2.0)); }

/// Up to half, inverted.
inline float ChorusFeedback(float y) { return -0.5f * y; }
inline double ChorusFeedbackKnob(double feedback) { return Knob(feedback / -0.5); }
/// Share of the sweep; never 0, where the LFO would have nothing to move.
inline float PhaserDepth(float x) { return std::max(x * x, 0.00001f); }
inline double PhaserDepthKnob(double depth) { return Knob(std::sqrt(depth)); }
/// Rises steeply at first and stays stable at y = 1.
inline float PhaserFeedback(float y) { return std::pow(0.6f * y, 1.0f / 3.0f) * 0.98f; }
inline double PhaserFeedbackKnob(double feedback) { return Knob(std::pow(feedback / 0.98, 3.0) / 0.6); }

inline float EchoSend(float x) { return x * x; } // and feedback
inline double EchoSendKnob(double send) { return Knob(std::sqrt(send)); }
/// Coefficients of the tape's filters: the lower half of y opens the lowpass, the upper half raises the highpass.
inline float EchoLowPass(float y) { return Square(std::min(2.0f * y, 1.0f)); }
inline double EchoLowPassKnob(double coefficient) { return Knob(0.5 * std::sqrt(coefficient)); }
inline float EchoHighPass(float y) { return Square(std::max(2.0f * y - 1.0f, 0.0f)); }
inline double EchoHighPassKnob(double coefficient) { return Knob(0.5 + 0.5 * std::sqrt(coefficient)); }

// Parameters of the reverb, 0..1 each.
inline float ReverbDecay(float x) { return 0.75f * (x * x * x); }
inline double ReverbDecayKnob(double decay) { return Knob(std::cbrt(decay / 0.75)); }
inline float ReverbLevel(float decay) { return 0.3f * decay + 0.5f; }
inline float ReverbDamping(float y) { return y * y; }
inline double ReverbDampingKnob(double damping) { return Knob(std::sqrt(damping)); }

/// Steepness of the level's return: 1 takes the whole period, 51 three eighths of it.
inline float PumpSpeed(float x) { return (1.0f - x) * (1.0f - x) * 50.0f + 1.0f; }
inline double PumpSpeedKnob(double speed) { return Knob(1.0 - std::sqrt((speed - 1.0) / 50.0)); }
inline float PumpDrop(float y) { return 1.0f - y * y; } // share of the level that goes at the beat
inline double PumpDropKnob(double drop) { return Knob(std::sqrt(1.0 - drop)); }

inline float EqDb(float value) { return (value - 0.5f) * 24.0f; }
constexpr double EqKnob(double db) { return Knob(0.5 + db / 24.0); }

} // namespace law
} // namespace korvane
