// Runs the files of folders through a target, in the order of their names.
#include <algorithm>
#include <cstdio>

#include "fuzz/Instrument.h"

int main(int count, char** folders)
{
    std::vector<std::filesystem::path> files;
    for (int n = 1; n < count; ++n)
        for (const auto& entry : std::filesystem::directory_iterator(folders[n])) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const auto& file : files) {
        std::printf("%s\n", file.c_str());
        std::fflush(stdout); // stands there when the file ends the process
        const auto bytes = korvane::ReadBytes(file);
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    korvane::fuzz::Require(!files.empty(), "no files");
}
