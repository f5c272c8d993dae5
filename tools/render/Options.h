// The command line.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace korvane::render {

struct Options {
    std::string plugin;          // path of the plug-in; empty: the bundle beside this program
    double rate = 44100.0;       // Hz
    int block = 512;             // frames
    std::optional<double> tempo; // beats per minute; none: by the groove's name
    std::optional<int> bars;     // that the transport runs; none: the MIDI file alone plays, or 8
    double tailSeconds = 2.0;    // after the transport has stopped
    std::vector<std::pair<std::string, std::string>> params; // names and values as written
    std::string midi;                                        // file that plays the plug-in
    std::string stems;                                       // folder for one file per channel
    std::string program;                                     // library program to play a note with
    bool native = false;                                     // by the native interface
    bool integers = false;                                   // 24-bit files instead of floats
    bool list = false, help = false, version = false;        // print that and nothing else
    std::string groove; // state to load: a file or a name; empty: what the plug-in starts with
    std::string output;
};

/// What --help prints.
std::string HelpText();

/// Throws Failure at the first thing that is wrong.
Options ParseOptions(int count, char** arguments);

} // namespace korvane::render
