// The engine's interface to its bridges: events, blocks, parameters, programs.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

#include "framework/CMidiController.h"
#include "framework/CProgram.h"
#include "shell/CPluginWrapper.h"

namespace korvane {

/// Host-independent engine base. A bridge constructs it through the definition, calls SetSampleRate and SetProgram (0),
/// then per block: SetTempo, songPosition, SetPlaying when the host says so, and ProcessBlock. Events are queued before
/// their block.
///
/// Threads: ProcessBlock and what goes with it belong to the audio thread. Program and state calls come from the
/// others, parameter calls from any, the audio thread included: MIDI links make them there. Text buffers have 256
/// bytes.
class CSynthesizer : public CMidiController {
public:
    static constexpr int kMaxChunk = 128; // frames

    explicit CSynthesizer(CPluginWrapper* bridge) : wrapper(bridge) {}

    // clang-format off
    // Slots 1 to 7 are the notifications of CMidiController.
    virtual ~CSynthesizer();
    virtual void Destroy() { delete this; }
    virtual bool SetProgramName(int index, const char* text);
    virtual bool GetProgramName(int index, char* buffer);
    virtual std::int32_t SetBankChunk(const void*, std::int32_t) { return 0; }    // size accepted, 0 refused
    virtual std::int32_t SetProgramChunk(const void*, std::int32_t) { return 0; }
    virtual std::int32_t GetBankChunk(void*) { return 0; }       // null: the size needed
    virtual std::int32_t GetProgramChunk(void*) { return 0; }
    virtual float GetParameter(int index);
    virtual float GetParameterDefault(int index);
    virtual void SetParameter(int index, float value);
    virtual void GetParameterName(int index, char* buffer);
    virtual void GetParameterDisplay(int index, char* buffer);
    virtual void GetParameterLabel(int index, char* buffer);
    virtual void SetProgram(int index);
    virtual void Reserved23() {}
    virtual void Reserved24(float*, float*, float*, float*, int) {}
    virtual void Reserved25(float*, float*, float*, float*, int) {}
    virtual void Reserved26(float*, float*, float*, float*, int) {}
    virtual void ProcessMultiOut(float**, float**, int) {}       // renders at most kMaxChunk frames into the outputs
    virtual void ParameterChanged(int, float) {}
    virtual void Reset();
    virtual void SetSampleRate(double newRate);
    virtual void SetTempo(double bpm);
    virtual int GetOutputTarget(int) { return 0; }
    virtual int GetExtraName(int, char*) { return 0; }
    virtual int GetMidiPort() { return -1; }
    virtual void SetPlaying(bool) {}
    virtual void ProcessBlock(float** inputs, float** outputs, int frames, bool replacing);
    virtual void Reserved37(std::int8_t, std::int8_t) {}
    virtual float Reserved38(bool) { return 0.0f; }
    virtual void EndThreads() {}                                 // none of its own calls the bridge any more
    // clang-format on

    /// A controller of a host that has it as a parameter: what MIDI does with it, and then its notification, which MIDI
    /// spares some of them. Any thread; keys that it lets go end at once for who has the engine to itself or may have
    /// it now, else with the next block.
    ///
    /// number  0..127
    /// value   0..1; the pedal keeps it as it is
    void MoveController(int number, double value);

    /// A whole-state operation in progress: from construction to destruction blocks are skipped, none is running, and
    /// no other switch either. Waits for them, looking every millisecond, unless this thread is inside a block or
    /// switch itself.
    class ProgramSwitch {
    public:
        explicit ProgramSwitch(CSynthesizer& owner);
        ~ProgramSwitch();
        ProgramSwitch(const ProgramSwitch&) = delete;

    private:
        CSynthesizer& synth;
        const bool nested;
    };

    /// What the audio thread is asked for between two blocks has the engine to itself, as inside a block; before the
    /// first block, whoever is asked. Other threads, and everybody during a switch, are left outside; nobody waits.
    class BetweenBlocks {
    public:
        explicit BetweenBlocks(CSynthesizer& owner);
        ~BetweenBlocks();
        BetweenBlocks(const BetweenBlocks&) = delete;

    private:
        CSynthesizer& synth;
        const bool entered;
    };

    /// A change that was prepared beside the running engine and is short. It is made between two blocks, none of which
    /// is skipped: by the audio thread at the start of its next block, or here when that does not come. Returns when
    /// it is made. One thread at a time.
    void MakeChange(const std::function<void()>& change);

    /// Changes begun and changes made, counted together: odd while one is being made. What was read of the engine
    /// between two equal, even answers is all from before a change, or all from after it.
    std::uint32_t ChangeCount() const // changes nothing, but keeps its place among the reads around it
    {
        return changeCount.fetch_add(0, std::memory_order_acq_rel);
    }

    /// Makes the change that waits, if there is one and this thread has the engine to itself or may have it now. For
    /// who waits for the thread that is in MakeChange.
    void HelpWithChange();

    int CurrentProgram() const { return programIndex; }

    // The audio thread writes position and tempo before each block, a switch the rate; every thread reads.
    Shared<double> songPosition;        // quarter notes
    Shared<double> sampleRate = 1000.0; // Hz, until a bridge sets it
    Shared<double> tempo = 120.0;       // beats per minute, at least 1

    CPluginWrapper* const wrapper; // the bridge; null without a host

protected:
    /// Appends to the list; the first one becomes current. Construction only.
    void AddProgram(std::unique_ptr<CProgram> program);
    CProgram* ProgramAt(int index) const;

    Shared<std::thread::id> blockThread; // who has the engine to itself, in a block or switch; nobody in between

private:
    enum KeyOrder : std::uint8_t { ReleaseUnheldKeys = 1, ReleaseAllKeys = 2 };

    void OrderKeys(KeyOrder order);
    void ServeKeyOrders(); // who has the engine to itself
    bool EnterBlock();
    void LeaveBlock();
    void ServeChange(); // who has the engine to itself
    std::chrono::nanoseconds Patience() const;
    /// The pointers of a block; those that the definition does not count are null.
    struct Pointers {
        static constexpr int kMost = 64;
        std::array<float*, kMost> all;
        int count;

        Pointers(float** given, int wanted);
        void Advance(int frames);
    };
    void RenderChunks(Pointers& inputs, Pointers& outputs, int frames);

    std::unique_ptr<CProgram> programs;
    int programCount = 0;
    Shared<CProgram*> currentProgram = nullptr; // a switch writes, every thread reads; programs live as long as this
    Shared<int> programIndex = 0;               // likewise
    Shared<std::thread::id> audioThread;        // rendered the last block; nobody before the first
    Shared<std::int32_t> blockFrames;           // of the last blocks
    std::atomic<const std::function<void()>*> change{nullptr}; // that waits, null when none does
    mutable std::atomic<std::uint32_t> changeCount{0};
    std::atomic<std::uint8_t> keyOrders{0}; // bits of KeyOrder; who serves them sees the controllers moved before
    std::atomic<bool> processing{false};    // somebody has the engine to itself
    std::atomic<int> programChanges{0};
};

} // namespace korvane
