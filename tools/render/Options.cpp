// The command line.
#include "render/Options.h"

#include <cmath>

#include "render/Failure.h"
#include "render/Names.h"
#include "render/ParseNumber.h"

namespace korvane::render {

namespace {

double Number(const std::string& option, const std::string& text, double low, double high)
{
    const auto value = ParseNumber(text);
    if (!value || !(*value >= low && *value <= high))
        throw Failure(option + " takes a number from " + std::to_string(static_cast<long long>(low)) + " to " +
                      std::to_string(static_cast<long long>(high)) + ", not '" + text + "'");
    return *value;
}

int Whole(const std::string& option, const std::string& text, int low, int high)
{
    const double value = Number(option, text, low, high);
    if (value != std::floor(value)) throw Failure(option + " takes a whole number, not '" + text + "'");
    return static_cast<int>(value);
}

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::pair<std::string, std::string> Parameter(const std::string& text)
{
    const std::size_t equals = text.rfind('=');
    if (equals == std::string::npos || equals == 0) throw Failure("--param takes NAME=VALUE, not '" + text + "'");
    return {Trimmed(text.substr(0, equals)), Trimmed(text.substr(equals + 1))};
}

bool Is24Bit(const std::string& text)
{
    if (text != "float" && text != "24") throw Failure("--format takes float or 24, not '" + text + "'");
    return text == "24";
}

using Text = std::string;

struct Option {
    const char* name;
    const char* value; // what stands behind it, null for nothing
    const char* help;
    void (*take)(Options& to, const Text& name, const Text& value);
};
constexpr Option kOptions[] = {
    // clang-format off
    {"--bars", "N", "bars of 4/4 that the sequencer plays, 1 to 10000 (default 8)",
     [](Options& to, const Text& name, const Text& value) { to.bars = Whole(name, value, 1, 10000); }},
    {"--tempo", "BPM", "beats per minute, 1 to 999 (default: what the groove's name ends in, else 120)",
     [](Options& to, const Text& name, const Text& value) { to.tempo = Number(name, value, 1, 999); }},
    {"--tail", "SECONDS", "time after the last bar or note, 0 to 600 (default 2)",
     [](Options& to, const Text& name, const Text& value) { to.tailSeconds = Number(name, value, 0, 600); }},
    {"--param", "NAME=VALUE", "set a parameter; several are set in their order",
     [](Options& to, const Text&, const Text& value) { to.params.push_back(Parameter(value)); }},
    {"--program", "NAME", "play a program instead of a groove: key 36 for 1 s, and 1 s of release",
     [](Options& to, const Text&, const Text& value) { to.program = value; }},
    {"--midi", "FILE", "play a MIDI file in its own tempo; with --bars the sequencer runs along",
     [](Options& to, const Text&, const Text& value) { to.midi = value; }},
    {"--stems", "FOLDER", "also write one file per channel there",
     [](Options& to, const Text&, const Text& value) { to.stems = value; }},
    {"--format", "float|24", "samples of 32-bit float or 24 bits (default float)",
     [](Options& to, const Text&, const Text& value) { to.integers = Is24Bit(value); }},
    {"--rate", "HZ", "sample rate, 8000 to 384000 (default 44100)",
     [](Options& to, const Text& name, const Text& value) { to.rate = Whole(name, value, 8000, 384000); }},
    {"--block", "FRAMES", "frames per block, 1 to 65536 (default 512)",
     [](Options& to, const Text& name, const Text& value) { to.block = Whole(name, value, 1, 65536); }},
    {"--plugin", "FILE", "the plug-in (default: korvane.so of the bundle built with this program)",
     [](Options& to, const Text&, const Text& value) { to.plugin = value; }},
    {"--native", nullptr, "play by the native interface instead of VST 2: the same sound, but see below",
     [](Options& to, const Text&, const Text&) { to.native = true; }},
    {"--list", nullptr, "print the names of grooves, programs and parts",
     [](Options& to, const Text&, const Text&) { to.list = true; }},
    {"--version", nullptr, "print the version", [](Options& to, const Text&, const Text&) { to.version = true; }},
    {"--help", nullptr, "print this (also -h)", [](Options& to, const Text&, const Text&) { to.help = true; }},
    // clang-format on
};

const Option& FindOption(const std::string& name)
{
    std::vector<std::string> names;
    for (const Option& option : kOptions) {
        if (name == option.name) return option;
        names.emplace_back(option.name);
    }
    const std::string nearest = NearestName(names, name);
    throw Failure("unknown option '" + name + "'" +
                  (nearest.empty() ? "; --help lists them" : "; did you mean '" + nearest + "'?"));
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() > end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void TakeFiles(Options& options, const std::vector<std::string>& files)
{
    if (files.empty()) throw Failure("no output file given; --help shows how");
    if (files.size() > 2) throw Failure("unexpected argument '" + files[2] + "'");
    options.output = files.back();
    if (!EndsWith(options.output, ".wav")) throw Failure("the output file must end in .wav: '" + options.output + "'");
    if (files.size() == 2) options.groove = files.front();
    if (!options.groove.empty() && !options.program.empty()) throw Failure("a groove and --program exclude each other");
    if (options.tempo && !options.midi.empty()) throw Failure("--tempo and --midi exclude each other");
    if (options.bars && options.midi.empty() && !options.program.empty())
        throw Failure("--bars and --program exclude each other");
}

} // namespace

std::string HelpText()
{
    std::string text = R"(korvane-render [OPTION]... [GROOVE] OUT.wav
Plays Korvane without a host and writes what it plays. GROOVE is a file, or a groove of the library by its name or the
beginning of it, in any case, with or without the number; without it the default groove plays.

)";
    for (const Option& option : kOptions) {
        std::string left = std::string("  ") + option.name + (option.value ? std::string(" ") + option.value : "");
        left.resize(22, ' ');
        text += left + option.help + "\n";
    }
    return text + R"(
A parameter's VALUE is a number from 0 to 1, or what the instrument shows, with its unit: "-6 dB", "0 st", 1/4, LP, on.
Most parameters act on the selected channel; one of the thirteen set on, then off selects it: "CHANNEL 3: Sampler 3=on".
The native interface has 256 steps for a value: what --param sets and a MIDI file's controllers and channel pressure
are rounded up to the next one. There is no pitch bend, key pressure or program change, and a pedal that moves at the
same instant as notes moves a frame after them.

Examples:
  korvane-render --bars 16 --stems channels "night drive" mix.wav
  korvane-render --program "Saw Bass" --param "Filter Type=HP" --param "CHN: Mix Level=-6 dB" note.wav
)";
}

Options ParseOptions(int count, char** arguments)
{
    Options options;
    std::vector<std::string> files;
    for (int n = 1; n < count; ++n) {
        const std::string word = arguments[n];
        if (word.empty()) throw Failure("an argument is empty");
        if (word[0] != '-' || word.size() == 1) {
            files.push_back(word);
            continue;
        }
        const std::size_t equals = word.find('='); // --tempo=124 or --tempo 124
        const bool joined = equals != std::string::npos;
        const Option& option = FindOption(word == "-h" ? "--help" : word.substr(0, equals));
        if (joined && !option.value) throw Failure(std::string(option.name) + " takes no value");
        if (option.value && !joined && n + 1 >= count) throw Failure("'" + word + "' lacks its value");
        const std::string value = !option.value ? "" : joined ? word.substr(equals + 1) : arguments[++n];
        if (option.value && value.empty()) throw Failure(std::string("the value of ") + option.name + " is empty");
        option.take(options, option.name, value);
    }
    if (!options.help && !options.list && !options.version) TakeFiles(options, files);
    return options;
}

} // namespace korvane::render
