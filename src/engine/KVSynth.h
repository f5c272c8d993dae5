// The instrument as its bridges see it.
#pragma once

#include <cstdint>
#include <memory>

#include "content/CFileList.h"
#include "content/CPresetList.h"
#include "content/ContentFolders.h"
#include "content/state/ImageFile.h"
#include "engine/GrooveEngine.h"
#include "framework/CSynthesizer.h"
#include "framework/ParameterTable.h"
#include "platform/Shared.h"
#include "platform/SharedText.h"

namespace korvane {

/// The groove engine behind the synthesizer interface: routes host parameters and MIDI into the engine core, keeps the
/// MIDI links, the content folders and the program libraries. Owned by its bridge.
class KVSynth : public CSynthesizer {
public:
    static constexpr int kSources = 257; // MIDI sources: 0..127 controllers, 128 wheel, 129..256 keys

    explicit KVSynth(CPluginWrapper* bridge);
    ~KVSynth() override;

    void NoteEvent(std::int8_t key, std::int8_t velocity) override;
    void PitchBendChanged() override;
    void ControllerChanged(std::int8_t number) override;
    void ChannelPressureChanged() override;
    void ProgramChangeReceived(int program) override;
    bool BankSelectReceived(int bank) override;
    std::int32_t SetBankChunk(const void* data, std::int32_t size) override;
    std::int32_t SetProgramChunk(const void* data, std::int32_t size) override;
    std::int32_t GetBankChunk(void* buffer) override;
    std::int32_t GetProgramChunk(void* buffer) override;
    float GetParameter(int index) override;
    float GetParameterDefault(int index) override;
    void GetParameterDisplay(int index, char* buffer) override;
    void GetParameterLabel(int index, char* buffer) override;
    void ProcessMultiOut(float** inputs, float** outputs, int frames) override;
    void ParameterChanged(int index, float value) override;
    void Reset() override;
    void SetSampleRate(double newRate) override;
    void SetPlaying(bool running) override;

    // MIDI links, for the editor. Any thread.

    /// Links the last MIDI source to the last parameter, or removes the link and its flag. Nothing happens before a
    /// source and a parameter have been touched.
    void Link(bool link);
    /// Marks the last source, a controller linked to the last parameter, as one whose value is ignored.
    void SetIgnoreValue(bool on);
    /// What was touched last, as the editor shows it; "---" when nothing was. The buffer has 256 bytes.
    void GetLastSourceText(char* buffer) const;
    void GetLastParameterText(char* buffer);

    // Groove, part and program files. Paths use backslashes. Not from the audio thread, except LoadProgramFile.

    bool SaveGrooveFile(const char* path);        // takes the groove name from the path
    bool SaveGrooveWithSamples(const char* path); // and copies the used files beside it
    bool LoadGrooveFile(const char* path);
    bool SavePartFile(const char* path);
    bool LoadPartFile(const char* path);
    bool SaveProgramFile(const char* path);
    bool LoadProgramFile(const char* path);
    /// Reports every host parameter's value as automation.
    void ReportParameters();

    std::unique_ptr<GrooveEngine> engine;
    ContentFolders folders;
    std::unique_ptr<CPresetList> synthPrograms, samplerPrograms;
    std::unique_ptr<CFileList> waveforms;
    SharedText<512> grooveName;

    Shared<std::int16_t> links[kSources];       // parameter 0..195, -1 none
    Shared<std::uint8_t> ignoreValue[kSources]; // 1: the link sends 1.0 and then 0.0 instead of the value
    Shared<std::int32_t> lastSource = -1, lastParameter = -1;

private:
    void FollowHost(); // tempo and position into the engine core
    void WriteValue(const ParameterInfo& info, float value);
    void Follow(int index, bool on);
    void Trigger(int index);
    void Change(int index, bool on);
    void Press(int index, bool on, bool changed);
    void Select(int index, float value);
    void LoadDefaultGroove();
    void ReadLinkMap();
    void WriteLinkMap();
    bool Edge(int index, bool on); // whether the on/off state changed; always false for internal parameters
    void RefreshEditor();

    Shared<bool> switchStates[param::HostCount]; // on/off of the last value written, per host parameter
    Image sizedChunk;                            // state at the last request for its size
    Shared<bool> keyTrigger;                     // a MIDI key drives a pad parameter
};

} // namespace korvane
