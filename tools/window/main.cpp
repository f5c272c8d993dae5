// korvane-window: loads the plug-in as a host does and shows its editor in a window of its own.
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>

#include <sys/eventfd.h>
#include <unistd.h>

#include "render/Failure.h"
#include "render/Library.h"
#include "render/PluginHost.h"
#include "render/ReadFile.h"
#include "window/HostWindow.h"
#include "window/SilentPlayer.h"

namespace korvane::window {

namespace {

namespace fs = std::filesystem;

constexpr double kRate = 44100.0;
constexpr int kBlockFrames = 512;
constexpr int kNoDisplay = 3; // what the program ends with

const int endOrder = eventfd(0, EFD_CLOEXEC); // readable when a signal wants the program to end

void End(int) { eventfd_write(endOrder, 1); }

void Usage(std::FILE* out)
{
    std::fputs("Usage: korvane-window [GROOVE]\n"
               "  GROOVE   of the library by its name, or a groove file; without it the default groove\n"
               "Shows the plug-in's editor until its window is closed. It plays in real time, but nobody hears it.\n"
               "Exit: 0 it was closed, 1 something is wrong, 2 the arguments are, 3 there is no display\n",
               out);
}

void LoadGroove(render::PluginHost& host, const std::string& plugin, std::string groove)
{
    if (!fs::is_regular_file(groove)) groove = render::FindGroove(fs::path(plugin).parent_path().string(), groove);
    host.SetState(render::ReadFile(groove), groove);
    if (const auto tempo = render::TempoInName(groove)) host.SetTempo(*tempo);
}

int Show(const std::string& groove)
{
    HostWindow window;
    if (!window.HasDisplay()) {
        std::fputs("korvane-window: there is no display\n", stderr);
        return kNoDisplay;
    }
    const std::string plugin = render::DefaultPlugin();
    render::PluginHost host(plugin, kRate, kBlockFrames);
    if (!groove.empty()) LoadGroove(host, plugin, groove);
    host.SetRealTime(true);
    const SilentPlayer player(host, kBlockFrames, kRate);
    const auto [height, width] = host.EditorSize();
    window.Open(height, width, "Korvane");
    if (!host.OpenEditor(window.Handle()))
        throw render::Failure("the editor does not open; are all of its images there?");
    window.Wait(endOrder);
    host.CloseEditor();
    return 0;
}

int Main(int count, char** words)
{
    const char* const word = count == 2 ? words[1] : "";
    if (std::strcmp(word, "-h") == 0 || std::strcmp(word, "--help") == 0) {
        Usage(stdout);
        return 0;
    }
    if (count > 2 || word[0] == '-') {
        Usage(stderr);
        return 2;
    }
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, End);
    return Show(word);
}

} // namespace

} // namespace korvane::window

int main(int count, char** words)
{
    try {
        return korvane::window::Main(count, words);
    } catch (const std::exception& reason) {
        std::fprintf(stderr, "korvane-window: %s\n", reason.what());
        return 1;
    }
}
