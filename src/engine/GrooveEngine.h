// The engine core: channels, patterns, clock and transport.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <thread>

#include "content/SamplePool.h"
#include "engine/GrooveChannel.h"
#include "engine/sequencer/GroovePattern.h"
#include "engine/sequencer/StutterButtons.h"
#include "engine/voice/RandomGenerator.h"
#include "engine/voice/VoiceCommands.h"
#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// Everything that sounds and everything a groove stores. Owned by KVSynth.
///
/// Threads: RenderFrames and what it calls belong to the audio thread. The operations of buttons and parameters may be
/// called from any thread: they touch shared values only, and notes that they start or release reach the voices
/// through `voiceCommands` unless the caller is inside a block. ResetGroove, LoadState, LoadPart, LoadChannelChunk
/// and ResetEngine replace whole states and run under the program-switch handshake.
class GrooveEngine {
public:
    /// blockThread  the thread inside a block, nobody's id between blocks; null where one thread does everything
    explicit GrooveEngine(const Shared<std::thread::id>* blockThread = nullptr);
    ~GrooveEngine();

    // Parameters. A base is a channel parameter index before banking.

    /// Adds the selected envelope, LFO, layer or effect to the bases that are banked; others come back unchanged.
    int ChannelIndexOf(int base) const;
    /// Writes a channel parameter of the selected and every held channel, or, while a step is edited, its lock.
    /// value  passed on as it is, normally 0..1
    void SetChannelParameter(int base, float value);
    /// The stored value of the selected channel plus, while a step is edited, that step's lock offset.
    float GetChannelParameter(int base) const;
    /// Moves a stepped parameter to its next position, from the last back to the first.
    void CycleSwitch(int base);
    /// n      0..4
    /// value  clamped to 0..1; drives the channel parameter that the control is bound to
    void SetExtControl(int n, float value);
    /// Copies the stored block of a channel, with the locks of its last step while playing, into the working block and
    /// refreshes its fxActive flags.
    void RefreshChannel(int channel) { RefreshChannel(channel, playing); }
    /// Recomputes a channel's fxActive flags from held effects, the pad and the chosen channels.
    void RefreshFxActive(int channel);
    void RefreshAllFxActive();

    // Life cycle.

    void ResetGroove();            // the empty groove
    void InitChannel(int channel); // default block, default waveforms, no samples
    void ResetSelectedChannel();   // clears its steps in the current pattern, then InitChannel
    /// Silences everything and restarts the random phases.
    /// newRate  Hz; 0 keeps the rate
    void ResetEngine(float newRate);

    // Rendering. Audio thread.

    /// outputs  2 × 14 pointers: main pair, then the pairs of channels 0..12; null where nobody listens
    /// frames   0..512
    void RenderFrames(float* const* outputs, int frames);
    void SequencerTick(bool late);
    double StepFrames() const { return sampleRate * 15.0 / static_cast<double>(tempo); }
    /// A recording that was started from standstill: bars are counted in and the position does not wrap.
    bool CountingIn() const { return recordMode && playing && !editMode && !recordStartedWhilePlaying; }
    bool Recording() const { return recordMode && playing && !editMode; }

    // Transport. Any thread.

    void TogglePlay();
    void ToggleRecord();

    // Live notes, and releases. Any thread; executed at once inside a block, else at the start of the next one.

    void NoteOn(int channel, int note, float velocity);
    void ReleaseNote(int channel, int note);
    void ReleaseLive(int channel);
    void ReleaseSequenced();

    // Buttons. Any thread.

    void StepButton(int k); // 0..15 steps, 16..23 bars; any other k plays note 48 + k live
    void StepButtonRelease(int k);
    void RecordPress(int k);
    void RecordRelease(int k);
    void SelectPattern(int pattern);
    void ChannelPress(int channel);
    void ChannelRelease(int channel);
    void ToggleEdit();
    void SetMuteModifier(bool held);
    void Copy();
    void Paste();
    void Clear();
    void Forward();
    void Back();
    void SetFxButton(int effect, bool held);
    void SetStutterButton(int button, bool held);
    void SetFxPad(bool held); // "FX Activate"
    void RefreshStutterCodes();

    // State images; little-endian, see the headers in content/. The save operations return the size that they
    // write, and write nothing into a null buffer. Saving: any thread. Loading: under the handshake.

    std::int32_t SaveState(std::uint8_t* buffer) const;
    bool LoadState(const std::uint8_t* data, std::int32_t length);
    std::int32_t SavePart(std::uint8_t* buffer) const;
    bool LoadPart(const std::uint8_t* data, std::int32_t length);
    std::int32_t SaveChannelChunk(std::uint8_t* buffer, int channel) const;
    bool LoadChannelChunk(const std::uint8_t* data, std::int32_t length, int channel);

    GroovePattern& Pattern() { return *patterns[static_cast<std::size_t>(static_cast<int>(currentPattern))]; }
    const GroovePattern& Pattern() const
    {
        return *patterns[static_cast<std::size_t>(static_cast<int>(currentPattern))];
    }
    GrooveChannel& Channel(int c) { return *channels[static_cast<std::size_t>(c)]; }
    const GrooveChannel& Channel(int c) const { return *channels[static_cast<std::size_t>(c)]; }
    /// Voices may be touched by whoever asks.
    bool InBlock() const { return !blockThread || *blockThread == std::this_thread::get_id(); }

    std::unique_ptr<SamplePool> samplePool;
    RandomGenerator random;
    char defaultWavePath[1024] = ""; // written before the first block

    // Clock and transport.
    Shared<double> sampleRate = 44100.0; // Hz
    Shared<float> tempo = 120.0f;        // beats per minute, > 0
    Shared<double> hostPosition;         // quarter notes
    Shared<double> samplesToNextStep;    // frames, may be fractional
    Shared<bool> lateTickPending;        // the shuffled half of the current step is still due
    Shared<std::uint8_t> stepCounter;    // sixteenths since the start, 0..127
    Shared<std::uint8_t> patternStep;    // position in the pattern, 0..127
    Shared<float> shuffleAmount;         // 0..1
    Shared<bool> playing, recordMode, editMode, playBar;
    Shared<bool> recordStartedWhilePlaying;
    Shared<std::int8_t> countIn;                          // steps left; -1 once used up
    Shared<float> clickPhase, clickLevel, clickIncrement; // metronome
    Shared<std::int32_t> frameClock;                      // frames since the last record press

    // Live MIDI values; the selected channel hears them.
    Shared<float> liveVelocity, liveModWheel, livePitchBend, livePressure;

    // Selections and buttons.
    Shared<std::int32_t> selectedChannel = kSamplerChannels; // 0..12
    Shared<std::int32_t> selectedBar;                        // 0..7
    Shared<std::int32_t> currentPattern;                     // 0..7
    Shared<std::int32_t> nextPattern;                        // to return to after a play-once pattern
    Shared<std::int32_t> patternRepeats;                     // ticks to wait before the return check
    Shared<std::int32_t> selectedFx;                         // 0..9
    Shared<std::int8_t> envelopeNumber, lfoNumber;           // 0..1
    Shared<std::int8_t> layerNumber;                         // 0..3
    Shared<bool> playOnce[kPatterns];
    Shared<bool> muted[kChannels];
    Shared<bool> soloSelected;
    Shared<bool> channelHeld[kChannels], channelMarked[kChannels];
    Shared<bool> fxOn[kEffects]; // effect button held
    Shared<bool> fxPad;          // the X/Y pad is held
    StutterButtons stutterButtons;
    Shared<std::int8_t> stutterCode[kChannels]; // 1..9, 0 off, negative: restart at the next tick
    Shared<std::int32_t> lastStep[kChannels];   // step that last played, its locks stay applied; -1 none
    Shared<bool> stepHeld[kNotes];
    Shared<bool> muteModifier, muteModifierUsed, markedSelection;
    Shared<std::int32_t> editStep = -1; // step being edited, -1 none
    Shared<std::int32_t> selectedBarMark = -1, selectedPatternMark = -1;
    Shared<std::int32_t> copiedBar = -1, copiedStep = -1;
    Shared<std::int32_t> recordStep = -1, recordBar = -1; // of the note recorded last
    Shared<std::uint32_t> playedThisStep[kChannels];      // notes already sounded live in this step
    Shared<std::int8_t> padKeys[kSamplerChannels];        // button that plays each sampler channel live

    struct ExtControl {
        Shared<float> value;             // 0..1
        Shared<std::int32_t> channel;    // 0..12
        Shared<std::int32_t> param = -1; // 0..211, -1 unbound
    };
    ExtControl extControls[kExtControls];
    Shared<std::int32_t> extIndex; // control touched last, the target of learning
    Shared<bool> extLearn;

    // Content.
    Shared<float> storedParams[kChannels][kChannelSlots];
    std::unique_ptr<GroovePattern> clipboard;
    std::array<std::unique_ptr<GroovePattern>, kPatterns> patterns;
    Channels channels;

    VoiceCommands voiceCommands;

private:
    const Shared<std::thread::id>* const blockThread;

    void RefreshChannel(int channel, bool withLocks);
    void MixChannels(float* const* outputs, int frames);
    void MixStrip(int channel, float* const* outputs, int frames);
    void AddMetronome(float* left, float* right, int frames);
    void Command(const VoiceCommand& command);
    void ExecuteVoiceCommands();
    void Execute(const VoiceCommand& command);
    void AdvancePosition();
    void PlayStep(int channel, bool late, bool recording);
    void ClearMarks();
    bool AnyMarked() const;
    void SelectBar(int bar);
    void EditSamplerStep(int k);
    void ToggleNote(int step, int k);
    void SelectChannel(int channel);
    void Move(int direction);
    bool NudgeHeldSteps(int direction);
};

} // namespace korvane
