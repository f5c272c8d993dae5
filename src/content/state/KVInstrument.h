// The whole instrument: the synthesizer with its grooves, parts, programs and the host's chunks.
#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>

#include "content/CFileList.h"
#include "content/CPresetList.h"
#include "content/ProgramLibrary.h"
#include "content/state/ImageFile.h"
#include "engine/KVSynth.h"
#include "platform/CommandQueue.h"
#include "platform/SharedText.h"
#include "platform/Worker.h"

namespace korvane {

struct GrooveState;

/// What a MIDI program change or bank select asks for.
struct LibraryOrder {
    bool bank;            // a category, whose first program is loaded; else a program of the category selected
    std::uint8_t number;  // 0..127
    std::uint8_t channel; // that was selected then
};

/// What a bridge creates and drives.
///
/// Everything that reads files and replaces states happens on one thread of its own, the loader, one thing after
/// another: it prepares beside the running engine what the change needs and has the change made between two blocks.
/// Who asks for it waits until it is done and every file is ready. MIDI asks on the audio thread, which hands the
/// request over and waits only where the host says that its thread may; the host is told by another thread, the teller.
///
/// Threads: operations come from the editor or the host, those for MIDI from the audio thread.
class KVInstrument : public KVSynth {
public:
    /// Loads the default groove; its files are ready then.
    explicit KVInstrument(CPluginWrapper* bridge);

    void ProgramChangeReceived(int program) override;
    bool BankSelectReceived(int bank) override;
    std::int32_t SetBankChunk(const void* data, std::int32_t size) override { return SetProgramChunk(data, size); }
    std::int32_t SetProgramChunk(const void* data, std::int32_t size) override;
    std::int32_t GetBankChunk(void* buffer) override { return GetProgramChunk(buffer); }
    std::int32_t GetProgramChunk(void* buffer) override;
    /// The last call but the destructor, and not from inside a report. Program changes that still wait are dropped.
    void EndThreads() override;

    // Groove, part and program files. Paths use backslashes. False: nothing was written, or what a reader accepts of a
    // bad file stands.

    bool SaveGrooveFile(const char* path);        // takes the groove name from the path
    bool SaveGrooveWithSamples(const char* path); // and copies the used files beside it; false also when one was not
    bool LoadGrooveFile(const char* path);
    bool SavePartFile(int channel, const char* path); // 0..12; without: of the selected channel
    bool LoadPartFile(int channel, const char* path);
    bool SaveProgramFile(int channel, const char* path);
    bool LoadProgramFile(int channel, const char* path);
    bool SavePartFile(const char* path) { return SavePartFile(SelectedChannel(), path); }
    bool LoadPartFile(const char* path) { return LoadPartFile(SelectedChannel(), path); }
    bool SaveProgramFile(const char* path) { return SaveProgramFile(SelectedChannel(), path); }
    bool LoadProgramFile(const char* path) { return LoadProgramFile(SelectedChannel(), path); }

    // Back to the beginning, with the default waveforms.

    void ResetGroove();  // the empty groove; its name stays
    void ResetPart();    // the selected channel, level and pan too, and its steps in the current pattern
    void ResetProgram(); // the selected channel; what a program that is loaded leaves alone stays

    // From the library of the selected channel's kind into that channel. True: a program was loaded. Numbers that the
    // library does not have do nothing.

    bool SelectProgramFolder(int index); // and the folder's first program
    bool SelectProgram(int index);       // of the selected folder; also the one that is selected
    /// The one before (-1) or after (1) the selected program, without wrapping; the first one when none is selected.
    bool StepProgram(int direction);
    /// What a library shows. Waits for nothing but a folder that is being read. Any thread but audio.
    ProgramLibrary Library(bool sampler) const;

    /// Loads a file into a slot of a channel; the next block plays it. One that is not found empties the slot.
    /// channel  0..12
    /// slot     0..6: three oscillators, four layers
    /// path     empty: no file
    void LoadSample(int channel, int slot, const char* path);

    /// Returns when all that has been asked for is done and, but from inside a report, told to the host.
    void FinishLoading();

    // The program libraries. The constructor fills them; after it the loader selects in them, for MIDI and for the
    // operations above, and who reads them elsewhere takes a copy, see Library.
    CPresetList synthPrograms, samplerPrograms;
    CFileList waveforms;        // of the content folder, as found at construction
    SharedText<512> grooveName; // who loads or saves writes, every thread reads

private:
    /// The image that `write` makes of one state: again, when a load has changed it meanwhile.
    template <class Write>
    Image Unchanging(Write write) const;
    Image StateImage() const;
    int SelectedChannel() const { return engine->selection.selectedChannel; }
    void Load(const Worker::Task& task); // on the loader; waits
    void Tell();                         // host and editor, of everything
    template <class Choose>
    bool Browse(Choose choose); // on the loader; waits
    template <class Act>
    void ResetChannel(Act act); // on the loader; waits

    // The loader's.
    void LookRound();
    bool Select(const LibraryOrder& order);
    template <class Choose>
    bool LoadChosen(int channel, Choose choose);
    bool Replace(const std::uint8_t* data, std::int32_t size);
    void Put(const GrooveState& state);
    bool ReplacePart(int channel, const Image& image);
    bool ReplaceChannel(const char* path, int channel);

    void Ask(bool bank, int number); // the audio thread, or who moves the bank select of a host that has it
    void TellHost();                 // the teller
    void LoadDefaultGroove();

    Image sizedChunk; // state at the last request for its size; hosts ask for it and for the bytes from one thread

    // A MIDI program change is asked for by the audio thread, done by the loader, which loads or refuses it, and where
    // it was loaded told by the teller. The counts say how far they are. One that finds no room is lost.
    CommandQueue<LibraryOrder, 1024> orders; // as many as a block can ask for
    std::atomic<std::uint32_t> ordersDone{0}, reportsDue{0}, reportsMade{0};

    mutable std::mutex browsing; // the loader selects in a library, or somebody copies one; never the audio thread

    Worker teller; // no load waits for it: a host may take its time, and load from within
    Worker loader; // last: it uses the others
};

} // namespace korvane
