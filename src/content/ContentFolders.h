// Where the instrument's content lies.
#pragma once

namespace korvane {

/// The content root and what is found by a fixed name below it. Paths use backslashes and end without one; one that
/// would not fit is cut. Nothing says that any of them exists.
struct ContentFolders {
    ContentFolders() = default;
    explicit ContentFolders(const char* contentRoot);

    /// Under the native host the content lies beside the plug-in. Elsewhere the setting "rootFolder" names its root;
    /// the plug-in's own folder stands in for a missing one.
    ///
    /// hostKind  as the plug-in definition has it: 3 is the native host
    static ContentFolders Find(int hostKind);

    char root[1024] = "";
    char graphics[1024] = "";
    char synthWaves[1024] = "";
    char drumSamples[1024] = "";
    char grooves[1024] = "";
    char synthPrograms[1024] = "";
    char samplerPrograms[1024] = "";
    char parts[1024] = "";
    char defaultWave[1024] = "";   // file: the waveform of a new oscillator
    char defaultGroove[1024] = ""; // file: loaded at start-up
};

} // namespace korvane
