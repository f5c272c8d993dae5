// The file dialogs of the editor's commands.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>

#include "content/LastSampleFolder.h"
#include "content/state/KVInstrument.h"
#include "platform/SharedText.h"

namespace korvane {

/// The channels to which a kind of files belongs.
enum class FilesOf : std::uint8_t { All, Samplers, Synths };

struct DialogFilter {
    const char* description;
    const char* extensions[3]; // without a dot; "": none
    FilesOf channels = FilesOf::All;

    bool Offered(bool sampler) const { return channels == FilesOf::All || (channels == FilesOf::Samplers) == sampler; }
};

/// Where a dialog begins, and the name that it proposes.
struct DialogStart {
    std::string folder, name;
};

/// One dialog and what is done with the file that the user chooses in it.
struct DialogRow {
    bool save;
    const char* title;
    std::span<const DialogFilter> filters;
    DialogStart (*start)(const KVInstrument& instrument);
    bool (KVInstrument::*operation)(const char* path); // null: the command's own, or of a channel
    bool (KVInstrument::*ofChannel)(int channel, const char* path) = nullptr; // that was selected when it came up
};

namespace dialog {

template <std::size_t kSize>
std::string TextIn(const SharedText<kSize>& text)
{
    char buffer[kSize];
    text.Get(buffer);
    return buffer;
}

/// Of a file, without a backslash at the end, as ContentFolders has folders.
inline std::string FolderIn(const std::string& path) { return path.substr(0, path.rfind('\\')); }

inline DialogStart Groove(const KVInstrument& from) { return {from.folders.grooves, TextIn(from.grooveName)}; }
inline DialogStart Grooves(const KVInstrument& from) { return {from.folders.grooves, ""}; }
inline DialogStart Part(const KVInstrument& from) { return {from.folders.parts, TextIn(from.grooveName)}; }
inline DialogStart Parts(const KVInstrument& from) { return {from.folders.parts, ""}; }
inline DialogStart Waves(const KVInstrument& from) { return {from.folders.synthWaves, ""}; }
inline DialogStart LastSample(const KVInstrument&) { return {TextIn(LastSampleFolder()), ""}; }

/// Where the selected program stands, else the library of the selected channel's kind.
inline DialogStart Program(const KVInstrument& from)
{
    const ProgramLibrary library = from.Library(from.engine->selection.OnSampler());
    return {library.program < 0 ? library.path : FolderIn(library.path), library.programName};
}

inline constexpr DialogFilter kGroove[] = {{"Korvane Project", {"kvprj", "", ""}}};
inline constexpr DialogFilter kPart[] = {{"Korvane Part", {"kvprt", "", ""}}};
inline constexpr DialogFilter kProgram[] = {{"Korvane Sample", {"kvsmp", "", ""}, FilesOf::Samplers},
                                            {"Korvane Synth", {"kvsynth", "", ""}, FilesOf::Synths}};
inline constexpr DialogFilter kAudio[] = {
    {"All supported", {"wav", "aif", "aiff"}}, {"Microsoft Wave", {"wav", "", ""}}, {"AIFF Wave", {"aif", "aiff", ""}}};

// clang-format off
//                                         saves  title                filters   begins at   then
inline constexpr DialogRow kSaveGroove    {true,  "Save Groove",       kGroove,  Groove,     &KVInstrument::SaveGrooveFile};
inline constexpr DialogRow kSaveAll       {true,  "Save Groove",       kGroove,  Groove,     &KVInstrument::SaveGrooveWithSamples};
inline constexpr DialogRow kLoadGroove    {false, "Load Groove",       kGroove,  Grooves,    &KVInstrument::LoadGrooveFile};
inline constexpr DialogRow kSavePart      {true,  "Save Part",         kPart,    Part,       nullptr, &KVInstrument::SavePartFile};
inline constexpr DialogRow kLoadPart      {false, "Load Part",         kPart,    Parts,      nullptr, &KVInstrument::LoadPartFile};
inline constexpr DialogRow kSaveProgram   {true,  "Save Part Program", kProgram, Program,    nullptr, &KVInstrument::SaveProgramFile};
inline constexpr DialogRow kLoadProgram   {false, "Load Part Program", kProgram, Program,    nullptr, &KVInstrument::LoadProgramFile};
inline constexpr DialogRow kLoadWaveSample{false, "Load Wave Sample",  kAudio,   LastSample, nullptr};
inline constexpr DialogRow kImportWave    {false, "Import Wave 1",     kAudio,   Waves,      nullptr};
// clang-format on

} // namespace dialog

} // namespace korvane
