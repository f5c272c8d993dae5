// The command line.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace korvane::render {

struct Options {
    std::string plugin;    // path of the plug-in; empty: the bundle beside this program
    double rate = 44100.0; // Hz
    int block = 512;       // frames
    double tempo = 120.0;  // beats per minute
    int bars = 8;          // that the transport runs
    bool barsGiven = false;
    double tailSeconds = 2.0; // after the transport has stopped
    std::vector<std::pair<std::string, float>> params;
    std::string midi;      // file that plays the plug-in
    std::string stems;     // folder for one file per channel
    std::string program;   // library program to play a note with
    bool integers = false; // 24-bit files instead of floats
    bool list = false;     // print the library
    bool help = false;
    std::string groove; // state to load; empty: what the plug-in starts with
    std::string output;
};

inline constexpr const char* kUsage =
    "korvane-render [--plugin FILE] [--rate HZ] [--block FRAMES] [--tempo BPM] [--bars N] [--tail SECONDS]\n"
    "               [--param NAME=VALUE]... [--midi FILE.mid] [--stems FOLDER] [--format float|24]\n"
    "               [--program NAME] [GROOVE.kvprj] OUT.wav\n"
    "korvane-render --list\n";

/// Throws Failure at the first thing that is wrong.
Options ParseOptions(int count, char** arguments);

} // namespace korvane::render
