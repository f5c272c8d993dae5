// The content beside the plug-in.
#include "render/Library.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

#include "content/state/ChannelChunk.h"
#include "content/state/ImageTags.h"
#include "content/state/StateImage.h"
#include "render/Failure.h"
#include "render/Names.h"
#include "render/ParseNumber.h"
#include "render/ReadFile.h"

namespace korvane::render {

namespace fs = std::filesystem;

namespace {

// Groove image: header, then the channel chunks and the pattern chunks, each behind its length.
constexpr std::size_t kHeaderBytes = kStateHeaderBytes, kSelectedChannel = 4, kChannelBytes = kChannelChunkBytes;
constexpr std::size_t kStepRecords = kChannels * kSteps, kEmptyRecordBytes = 6;

struct Shelf {
    const char* folder;
    const char* extension;
};
constexpr Shelf kShelves[] = {
    {"Grooves", ".kvprj"}, {"Synth Programs", ".kvsynth"}, {"Sampler Programs", ".kvsmp"}, {"Parts", ".kvprt"}};

std::vector<fs::path> Files(const std::string& bundle, const Shelf& shelf)
{
    std::vector<fs::path> files;
    std::error_code none;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(bundle) / shelf.folder, none))
        if (entry.path().extension() == shelf.extension) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string Find(const std::string& bundle, const std::string& name, const char* what,
                 std::initializer_list<Shelf> shelves)
{
    std::vector<fs::path> files;
    std::vector<std::string> names;
    for (const Shelf& shelf : shelves) {
        for (fs::path& file : Files(bundle, shelf)) {
            names.push_back(file.stem().string());
            files.push_back(std::move(file));
        }
    }
    return files[FindName(names, name, what, "; korvane-render --list shows them all")].string();
}

} // namespace

std::string DefaultPlugin()
{
    return (fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "Korvane" / "korvane.so").string();
}

void PrintLibrary(const std::string& bundle)
{
    if (!fs::is_directory(bundle)) throw Failure("there is no folder '" + bundle + "'");
    for (const Shelf& shelf : kShelves) {
        std::printf("%s\n", shelf.folder);
        std::string category;
        for (const fs::path& file : Files(bundle, shelf)) {
            const std::string folder = file.parent_path().filename().string();
            if (folder != shelf.folder && folder != category) std::printf("  %s\n", (category = folder).c_str());
            std::printf("    %s\n", file.stem().c_str());
        }
    }
}

std::string FindGroove(const std::string& bundle, const std::string& name)
{
    return Find(bundle, name, "groove", {kShelves[0]});
}

std::string FindProgram(const std::string& bundle, const std::string& name)
{
    return Find(bundle, name, "program", {kShelves[1], kShelves[2]});
}

std::optional<double> TempoInName(const std::string& groove)
{
    constexpr double kSlowest = 20.0, kFastest = 400.0; // beyond them a number is no tempo
    const fs::path path(groove);
    const std::string name = (path.extension() == kShelves[0].extension ? path.stem() : path.filename()).string();
    const auto tempo = ParseNumber(SplitNumber(name).number);
    return tempo && *tempo >= kSlowest && *tempo <= kFastest ? tempo : std::nullopt;
}

std::vector<std::uint8_t> StateWithProgram(std::vector<std::uint8_t> state, const std::string& programFile)
{
    const std::vector<std::uint8_t> program = ReadFile(programFile);
    const std::size_t channel = fs::path(programFile).extension() == ".kvsmp" ? 0 : 8;
    const std::size_t at = kHeaderBytes + channel * (4 + kChannelBytes) + 4;
    const std::size_t patterns = kHeaderBytes + kChannels * (4 + kChannelBytes);
    if (program.size() != kChannelBytes || state.size() < patterns)
        throw Failure("'" + programFile + "' is no program");
    state[kSelectedChannel] = static_cast<std::uint8_t>(channel);
    std::copy(program.begin(), program.end(), state.begin() + static_cast<std::ptrdiff_t>(at));
    state.resize(patterns);
    const std::int32_t bytes = 4 + static_cast<std::int32_t>(kStepRecords * kEmptyRecordBytes);
    for (std::size_t n = 0; n < kPatterns; ++n) {
        for (int k = 0; k < 4; ++k) state.push_back(static_cast<std::uint8_t>(bytes >> (8 * k)));
        state.insert(state.end(), tag::kPattern, tag::kPattern + 4);
        state.insert(state.end(), kStepRecords * kEmptyRecordBytes, 0);
    }
    return state;
}

} // namespace korvane::render
