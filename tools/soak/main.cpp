// korvane-soak: lets the plug-in live many lives, and watches its memory.
#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include "render/Memory.h"
#include "render/ReadFile.h"
#include "soak/Session.h"

namespace korvane::soak {
namespace {

namespace fs = std::filesystem;

constexpr double kGrowth = 4.0; // megabytes after the first runs
constexpr int kFirstRuns = 100;

std::vector<State> Grooves(const fs::path& bundle)
{
    std::vector<State> grooves;
    for (const auto& file : fs::directory_iterator(bundle / "Grooves"))
        grooves.push_back(render::ReadFile(file.path()));
    return grooves;
}

int Soak(int runs, unsigned seed)
{
    const fs::path bundle = fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "Korvane";
    const std::string plugin = (bundle / "korvane.so").string();
    if (!dlopen(plugin.c_str(), RTLD_NOW)) throw render::Failure(dlerror()); // stays, as in a host
    const auto grooves = Grooves(bundle);
    double first = 0.0, last = 0.0; // resident megabytes
    for (int n = 1; n <= runs; ++n, ++seed) {
        std::printf("%u ", seed); // the last one is the one that failed, however it did
        std::fflush(stdout);
        Session(plugin, grooves, seed).Run();
        if (n == std::min(kFirstRuns, runs)) first = render::ResidentMegabytes();
    }
    last = render::ResidentMegabytes();
    std::printf("\n%d runs; %.1f MB after run %d, %.1f MB at the end\n", runs, first, std::min(kFirstRuns, runs), last);
    if (last <= first + kGrowth) return 0;
    std::fprintf(stderr, "korvane-soak: memory has grown\n");
    return 1;
}

} // namespace
} // namespace korvane::soak

int main(int count, char** arguments)
{
    if (count > 3 || (count > 1 && std::atoi(arguments[1]) < 1)) {
        std::fprintf(stderr,
                     "Usage: korvane-soak [RUNS [SEED]]   25 runs from seed 1; a run's seed is printed before it\n");
        return 2;
    }
    try {
        return korvane::soak::Soak(count > 1 ? std::atoi(arguments[1]) : 25,
                                   count > 2 ? static_cast<unsigned>(std::atoi(arguments[2])) : 1);
    } catch (const std::exception& reason) {
        std::fprintf(stderr, "\nkorvane-soak: %s; the seed is the last one printed\n", reason.what());
        return 1;
    }
}
