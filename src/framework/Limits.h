// The instrument's fixed sizes.
#pragma once

namespace korvane {

inline constexpr int kSamplerChannels = 8; // channels 0..7; 8..12 are the synth channels
inline constexpr int kChannels = 13;
inline constexpr int kChannelSlots = 212; // values in a channel's parameter block
inline constexpr int kPatterns = 8;
inline constexpr int kBars = 8; // of a pattern
inline constexpr int kStepsPerBeat = 4;
inline constexpr int kStepsPerBar = 16;
inline constexpr int kSteps = kBars * kStepsPerBar;
inline constexpr int kFirstNote = 48;  // bit 0 of a step word
inline constexpr int kNotes = 24;      // bits of a step word that play: notes 48..71
inline constexpr int kVoices = 6;      // of a channel
inline constexpr int kLayers = 4;      // of a sampler voice
inline constexpr int kOscillators = 3; // of a synth voice
inline constexpr int kUnison = 16;     // voices stacked in one synth voice
inline constexpr int kSampleSlots = kOscillators + kLayers;
inline constexpr int kFirstLayerSlot = kOscillators;
inline constexpr int kEffects = 10;
inline constexpr int kStutterButtons = 5;
inline constexpr int kExtControls = 5;
inline constexpr int kMaxRun = 512;                              // frames that one render run may have
inline constexpr double kLowestRate = 1.0, kHighestRate = 1.0e6; // sample rates in Hz

/// Length of a live note, whose end no step sets; it counts down like every other: 2^28 - 1 frames, 93 minutes at
/// 48 kHz, longer than a key is held.
inline constexpr int kLiveLengthFrames = (1 << 28) - 1;

/// The engine runs at this sample rate; false for NaN.
constexpr bool UsableRate(double rate) { return rate >= kLowestRate && rate <= kHighestRate; }

} // namespace korvane
