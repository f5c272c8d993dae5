// The whole instrument: the synthesizer with its grooves, parts, programs and the host's chunks.
#pragma once

#include <cstdint>

#include "content/CFileList.h"
#include "content/CPresetList.h"
#include "content/state/ImageFile.h"
#include "engine/KVSynth.h"
#include "platform/SharedText.h"

namespace korvane {

/// What a bridge creates and drives. Loads replace whole states under the program-switch handshake.
///
/// Threads: file operations come from the editor or the host, never from the audio thread; but MIDI program changes,
/// which walk the libraries and load a program there.
class KVInstrument : public KVSynth {
public:
    /// Loads the default groove.
    explicit KVInstrument(CPluginWrapper* bridge);

    void ProgramChangeReceived(int program) override;
    bool BankSelectReceived(int bank) override;
    std::int32_t SetBankChunk(const void* data, std::int32_t size) override { return SetProgramChunk(data, size); }
    std::int32_t SetProgramChunk(const void* data, std::int32_t size) override;
    std::int32_t GetBankChunk(void* buffer) override { return GetProgramChunk(buffer); }
    std::int32_t GetProgramChunk(void* buffer) override;

    // Groove, part and program files. Paths use backslashes. False: nothing was written, or what a reader accepts of a
    // bad file stands.

    bool SaveGrooveFile(const char* path);        // takes the groove name from the path
    bool SaveGrooveWithSamples(const char* path); // and copies the used files beside it
    bool LoadGrooveFile(const char* path);
    bool SavePartFile(const char* path);
    bool LoadPartFile(const char* path);
    bool SaveProgramFile(const char* path);
    bool LoadProgramFile(const char* path);

    // The program libraries. The constructor fills them; after it the audio thread selects in them, for MIDI, and
    // whoever else does must have the engine to itself.
    CPresetList synthPrograms, samplerPrograms;
    CFileList waveforms;        // of the content folder, as found at construction
    SharedText<512> grooveName; // who loads or saves writes, every thread reads

private:
    void LoadDefaultGroove();
    CPresetList& Library(); // of the selected channel's kind

    Image sizedChunk; // state at the last request for its size; hosts ask for it and for the bytes from one thread
};

} // namespace korvane
