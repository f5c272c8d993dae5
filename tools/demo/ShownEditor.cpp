// The instrument's editor over an engine that plays while it is looked at.
#include "demo/ShownEditor.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>

#include <unistd.h>

namespace korvane::demo {

namespace {

namespace fs = std::filesystem;

constexpr double kRate = 44100.0;
constexpr int kBlock = 128, kOutputs = 2 * (1 + kChannels);

/// A content root whose folders are those of the build; instruments made from now on take it.
fs::path MakeRoot()
{
    fs::path root = fs::temp_directory_path() / ("korvane-shown-" + std::to_string(getpid()));
    fs::remove_all(root);
    fs::create_directories(root / "Brassmoor");
    std::ofstream(root / "Brassmoor/Korvane.conf") << "rootFolder=" << root.string() << "\n";
    for (const auto& entry : fs::directory_iterator(KORVANE_BUNDLE))
        if (entry.is_directory() || entry.path().extension() == ".kvprj")
            fs::create_symlink(entry, root / entry.path().filename());
    setenv("XDG_CONFIG_HOME", root.c_str(), 1);
    return root;
}

} // namespace

ShownEngine::ShownEngine() : root(MakeRoot()), instrument(std::make_unique<KVInstrument>(&host))
{
    instrument->SetSampleRate(kRate);
    instrument->SetProgram(0);
    instrument->SetTempo(120.0);
}

ShownEngine::~ShownEngine()
{
    instrument.reset();
    std::error_code ignored;
    fs::remove_all(root, ignored);
}

void ShownEngine::Play(int milliseconds)
{
    static float memory[kOutputs][kBlock];
    float* outputs[kOutputs];
    for (int n = 0; n < kOutputs; ++n) outputs[n] = memory[n];
    for (int left = static_cast<int>(kRate) * milliseconds / 1000; left > 0; left -= kBlock)
        instrument->ProcessBlock(nullptr, outputs, std::min(left, kBlock), true);
}

void ShownEditor::Idle()
{
    Play(timerPeriod);
    KVEditor::Idle();
}

} // namespace korvane::demo
