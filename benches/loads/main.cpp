// korvane-loads: what loads cost in the plug-in as a host has it.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <functional>
#include <map>
#include <memory>

#include "loads/Player.h"
#include "loads/Stages.h"
#include "render/Failure.h"
#include "render/Memory.h"
#include "render/ReadFile.h"

namespace korvane::loads {
namespace {

namespace fs = std::filesystem;

constexpr int kWindow = 3 * kLongestBlock; // a quarter second
constexpr const char* kUsage = R"(Usage: korvane-loads SECTION [PLUG-IN]...
  whole       the five loads, "silence", "default", "typical", "voices", "heaviest": 
              mean and dearest quarter second
  blocks      three of them in blocks of 1 to 4096 frames
  scaling     cost against voices, channels and unison voices
  stages      ns of the stages of a block of the default groove and of the heaviest load, in an engine of its own
  memory      of one and of twenty instances, and how long further ones take to open
  count LOAD  half a second of one of the five in blocks of 128, for a tool that counts instructions
Every row: what, the value it is taken at, the plug-in's number, ns of processor time per frame; of memory, megabytes
and milliseconds. Plug-ins take turns.
)";

struct Work {
    std::vector<std::string> plugins;
    fs::path folder = fs::temp_directory_path() / ("korvane-loads." + std::to_string(getpid()));
    fs::path noise = folder / "noise.wav";

    Work()
    {
        fs::create_directories(folder);
        WriteNoise(noise);
    }
    ~Work() { fs::remove_all(folder); }
    Work(const Work&) = delete;
};

/// Of each window of a load the least of several passes, per frame and plug-in; the plug-ins take turns.
/// frames  of a window
std::vector<std::vector<double>> Windows(const Work& work, const Load& load, int count, int frames, int block)
{
    constexpr int kFewest = 5, kMost = 50;
    constexpr double kEnough = 0.1e9; // ns of each plug-in, that what takes little is not taken by chance
    const auto state = StateOf(load, work.noise);
    std::vector<std::unique_ptr<Player>> players;
    for (const auto& plugin : work.plugins) players.push_back(std::make_unique<Player>(plugin, load, state));
    std::vector best(players.size(), std::vector<double>(static_cast<std::size_t>(count), 1.0e99));
    double spent = 0.0;
    for (int pass = 0; pass < kFewest || (pass < kMost && spent < kEnough); ++pass)
        for (std::size_t p = 0; p < players.size(); ++p) {
            players[p]->Start();
            for (double& least : best[p]) {
                const double taken = players[p]->Render(frames, block);
                least = std::min(least, taken / frames);
                if (p == 0) spent += taken;
            }
        }
    return best;
}

void Row(const char* what, int at, std::size_t plugin, double value)
{
    std::printf("%s\t%d\t%zu\t%.3f\n", what, at, plugin, value);
    std::fflush(stdout);
}

double Mean(const std::vector<double>& values)
{
    double sum = 0.0;
    for (const double value : values) sum += value;
    return sum / static_cast<double>(values.size());
}

void Whole(const Work& work)
{
    for (const Load& load : WholeLoads()) {
        const auto windows = Windows(work, load, load.name == "default" ? 32 : 8, kWindow, kFrames);
        for (std::size_t p = 0; p < windows.size(); ++p) {
            Row(load.name.c_str(), 0, p, Mean(windows[p]));
            Row((load.name + " dearest").c_str(), 0, p, *std::max_element(windows[p].begin(), windows[p].end()));
        }
    }
}

/// One row for each plug-in.
void Point(const Work& work, const char* what, int at, const Load& load, int block = kFrames)
{
    const auto windows = Windows(work, load, kWindow / kLongestBlock, kLongestBlock, block);
    for (std::size_t p = 0; p < windows.size(); ++p) Row(what, at, p, Mean(windows[p]));
}

void Blocks(const Work& work)
{
    for (const Load& load : WholeLoads())
        for (int block = 1; block <= kLongestBlock; block *= 2)
            if (load.name != "typical" && load.name != "dry")
                Point(work, ("blocks of " + load.name).c_str(), block, load, block);
}

void Scaling(const Work& work)
{
    for (const int v : {1, 2, 4, 8, 13, 20, 26, 32, 39, 45, 52, 58, 65, 72, 78})
        Point(work, "voices", v, {.name = "scaling", .notes = Spread(v), .unison = 4});
    for (int c = 1; c <= kChannels; ++c)
        Point(
            work, "channels", c,
            {.name = "scaling", .notes = Spread(c, c), .layers = kLayers, .unison = 4, .rich = true, .effects = true});
    for (int u = 1; u <= kUnison; ++u)
        Point(work, "unison", u,
              {.name = "scaling", .notes = {0, 0, 0, 0, 0, 0, 0, 0, 6, 6, 6, 6, 6}, .unison = u, .rich = true});
}

void Memory(const Work& work)
{
    constexpr int kInstances = 20;
    const std::string& plugin = work.plugins.front();
    const double before = render::ResidentMegabytes();
    std::vector<std::unique_ptr<Player>> players;
    double first = 0.0, fastest = 1.0e99;
    for (int n = 0; n < kInstances; ++n) {
        const auto begin = std::chrono::steady_clock::now();
        players.push_back(std::make_unique<Player>(plugin, WholeLoads()[1], std::vector<std::uint8_t>()));
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
        if (n > 0) fastest = std::min(fastest, took.count());
        players.back()->Start();
        if (n == 0) first = render::ResidentMegabytes() - before;
    }
    Row("megabytes of instances", 1, 0, first);
    Row("megabytes of instances", kInstances, 0, render::ResidentMegabytes() - before);
    Row("milliseconds to open", 2, 0, fastest);
}

void Stages(const Work& work)
{
    const fs::path bundle = fs::path(work.plugins.front()).parent_path();
    for (const Load& load : {WholeLoads()[1], WholeLoads()[4]}) {
        const auto made = StateOf(load, work.noise);
        const auto times =
            TimesOfStages(made.empty() ? render::ReadFile(bundle / "default.kvprj") : made, bundle, load.effects);
        for (std::size_t s = 0; s < times.size(); ++s)
            Row((load.name + "/" + kStages[s]).c_str(), kFrames, 0, times[s]);
    }
}

/// The tool counts while this runs.
[[gnu::noinline]] void CountedBlocks(Player& player) { player.Render(2 * kWindow, kFrames); }

void Count(const Work& work, const std::string& name)
{
    const auto& loads = WholeLoads();
    const auto found =
        std::find_if(loads.begin(), loads.end(), [&name](const Load& load) { return load.name == name; });
    if (found == loads.end()) throw render::Failure("there is no load '" + name + "'");
    const Load& load = *found;
    Player player(work.plugins.front(), load, StateOf(load, work.noise));
    player.Start();
    CountedBlocks(player);
}

bool Run(Work& work, int count, char** arguments)
{
    const std::map<std::string, std::function<void(const Work&)>> sections{
        {"whole", Whole}, {"blocks", Blocks}, {"scaling", Scaling}, {"stages", Stages}, {"memory", Memory}};
    const std::string section = count > 1 ? arguments[1] : "";
    const bool counts = section == "count" && count > 2;
    const auto found = sections.find(section);
    if (!counts && found == sections.end()) return false;
    work.plugins.assign(arguments + (counts ? 3 : 2), arguments + count);
    if (work.plugins.empty())
        work.plugins = {fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "Korvane/korvane.so"};
    if (counts)
        Count(work, arguments[2]);
    else
        found->second(work);
    return true;
}

} // namespace
} // namespace korvane::loads

int main(int count, char** arguments)
{
    try {
        korvane::loads::Work work;
        if (korvane::loads::Run(work, count, arguments)) return 0;
        std::fputs(korvane::loads::kUsage, stderr);
        return 2;
    } catch (const std::exception& reason) {
        std::fprintf(stderr, "korvane-loads: %s\n", reason.what());
        return 1;
    }
}
