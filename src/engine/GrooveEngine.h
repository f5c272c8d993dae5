// The engine core: what sounds and what a groove stores.
#pragma once

#include <cstdint>
#include <memory>
#include <thread>

#include "content/SamplePool.h"
#include "engine/EngineCommands.h"
#include "engine/ExtControls.h"
#include "engine/GrooveChannel.h"
#include "engine/dsp/RandomGenerator.h"
#include "engine/mix/Mixer.h"
#include "engine/sequencer/Buttons.h"
#include "engine/sequencer/Clock.h"
#include "engine/sequencer/Recorder.h"
#include "engine/sequencer/Score.h"
#include "engine/sequencer/Selection.h"
#include "framework/Limits.h"
#include "platform/ChangeCount.h"
#include "platform/Shared.h"

namespace korvane {

/// Composed of values that each own one concern and say who writes them. Owned by KVSynth. What needs several of them
/// stands beside it: RenderLoop, SequencerTick, Transport, StepButtons, PanelButtons.
///
/// Threads: parameters and buttons may come from any; they touch shared values only. What they do to voices and
/// transport reaches the audio thread through `commands`, unless the caller has the engine to itself: inside a block,
/// or under the program-switch handshake. ResetGroove, ResetEngine and what puts a loaded state are called so only.
class GrooveEngine {
public:
    /// What the channels hear of the rest of the engine in a run.
    struct RunInputs {
        std::uint32_t changes = 0, offers = 0;
        std::uint32_t silenced = 0; // a bit for each channel
        int selected = -1;
        float tempo = 0.0f, modWheel = 0.0f, pitchBend = 0.0f, pressure = 0.0f;
        bool operator==(const RunInputs&) const = default;
    };

    /// newOwner  the thread that has the engine to itself, nobody's id while none has; null where one thread does
    ///           everything
    explicit GrooveEngine(const Shared<std::thread::id>* newOwner = nullptr);
    ~GrooveEngine();

    // Parameters. Any thread. A base is a channel parameter index before banking.

    /// Writes a channel parameter of the selected and every held channel, or, while a step is edited, its lock.
    /// value  passed on as it is, normally 0..1
    void SetChannelParameter(int base, float value);
    /// The stored value of the selected channel plus, while a step is edited, that step's lock offset.
    float GetChannelParameter(int base) const;
    /// Locks a step, so that the parameter has this value there; the stored value removes the lock. External controls
    /// that are bound to the parameter follow.
    void SetStepParameter(GroovePattern& pattern, int channel, int step, int base, float value);
    /// The stored value of the channel plus the step's lock offset; not clamped.
    float StepParameter(const GroovePattern& pattern, int channel, int step, int base) const;
    /// Where the locks of this step apply at this moment, they apply as they are now.
    void HearStep(const GroovePattern& pattern, int channel, int step);
    /// Moves a stepped parameter to its next position, from the last back to the first.
    void CycleSwitch(int base);
    /// n      0..4
    /// value  clamped to 0..1; drives the channel parameter that the control is bound to
    void SetExtControl(int n, float value);
    /// Copies the stored block of a channel, with the locks of its last step while playing, into the working block and
    /// refreshes its fxActive flags.
    void RefreshChannel(int channel) { RefreshChannel(channel, clock.playing); }
    void RefreshChannel(int channel, bool withLocks);
    /// Recomputes fxActive of all channels from held effects, the pad and the channels that hear them.
    void RefreshFxActive();

    // Notes and releases. Any thread; done at once by who has the engine to itself, else at the start of a chunk.

    void NoteOn(int channel, int note, float velocity);
    void ReleaseNote(int channel, int note);
    void ReleaseLive(int channel);
    /// Every voice that the sequencer started. Who has the engine to itself.
    void ReleaseSequenced();
    /// Does what other threads have asked for. Audio thread, at the start of a chunk.
    void ServeVoices();
    /// The caller has the engine to itself.
    bool MayTouchVoices() const { return !owner || *owner == std::this_thread::get_id(); }

    /// Has the pool find and decode what the slots ask for. The loader; with nobody else about, anybody.
    void ServeRequests();

    // Life cycle. Who has the engine to itself.

    void ResetGroove();             // the empty groove
    void ResetPanel();              // of that all but patterns and channels
    void InitChannel(int channel);  // default block, default waveforms, no samples
    void InitSettings(int channel); // of that the block
    /// What a slot of a reset channel plays; empty for the layers.
    const char* DefaultFile(int slot) const { return slot < kFirstLayerSlot ? defaultWavePath : ""; }
    void ResetSelectedChannel(); // clears its steps in the current pattern, then InitChannel
    /// Silences voices, effects, meters and the click, drops notes that wait, and restarts the random phases. The
    /// groove, its settings, modes, held buttons and transport orders that wait stay; the host's position becomes 0.
    /// newRate  Hz; 0 keeps the rate
    void ResetEngine(float newRate);

    GrooveChannel& Channel(int c) { return *channels[static_cast<std::size_t>(c)]; }
    const GrooveChannel& Channel(int c) const { return *channels[static_cast<std::size_t>(c)]; }

    std::unique_ptr<SamplePool> samplePool;
    RandomGenerator random;          // audio thread
    char defaultWavePath[1024] = ""; // written at construction

    Clock clock;
    Selection selection;
    Buttons buttons;
    Score score;
    Recorder recorder;
    Mixer mixer;
    ExtControls ext;

    // Live MIDI values; the selected channel hears them. The audio thread writes all; from any thread a parameter that
    // moves sets the velocity, and a host that has wheel and pressure as parameters sets those.
    Shared<float> liveVelocity, liveModWheel, livePitchBend, livePressure;

    Shared<float> storedParams[kChannels][kChannelSlots]; // any thread writes and reads; each value stands for itself
    Channels channels;
    ChangeCount changes; // of the channels' working blocks and fxActive flags; RefreshChannel and RefreshFxActive count
    RunInputs lastRun;   // audio thread

    EngineCommands commands;

private:
    void Do(const VoiceCommand& command);
    void Execute(const VoiceCommand& command);
    void RefreshFxActive(int channel);
    unsigned PlayedEffects(int channel) const; // a bit for each

    const Shared<std::thread::id>* const owner;
};

} // namespace korvane
