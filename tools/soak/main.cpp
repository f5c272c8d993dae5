// korvane-soak: lets the plug-in live many lives, and watches its memory.
#include <dlfcn.h>

#include <algorithm>
#include <cmath>
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

constexpr int kCompared =
    100; // runs, the first and the last: what one leaves varies by megabytes, the least of many hardly
constexpr double kGrowth = 8.0; // megabytes between the two; the sanitizers keep something of every thread that ended

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
    double first = HUGE_VAL, last = HUGE_VAL; // resident megabytes
    for (int n = 1; n <= runs; ++n, ++seed) {
        std::printf("%u ", seed); // the last one is the one that failed, however it did
        std::fflush(stdout);
        Session(plugin, grooves, seed).Run();
        const double resident = render::ResidentMegabytes();
        if (n <= kCompared) first = std::min(first, resident);
        if (n > runs - kCompared) last = std::min(last, resident);
    }
    std::printf("\n%d runs; at least %.1f MB after the first %d, %.1f MB after the last\n", runs, first, kCompared,
                last);
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
