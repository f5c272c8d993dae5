// The command line.
#include "render/Options.h"

#include <cmath>
#include <cstdlib>

#include "render/Failure.h"

namespace korvane::render {

namespace {

double Number(const std::string& option, const std::string& text, double low, double high)
{
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !(value >= low && value <= high))
        throw Failure(option + " takes a number from " + std::to_string(static_cast<long long>(low)) + " to " +
                      std::to_string(static_cast<long long>(high)) + ", not '" + text + "'");
    return value;
}

int Whole(const std::string& option, const std::string& text, int low, int high)
{
    const double value = Number(option, text, low, high);
    if (value != std::floor(value)) throw Failure(option + " takes a whole number, not '" + text + "'");
    return static_cast<int>(value);
}

std::pair<std::string, float> Parameter(const std::string& text)
{
    const std::size_t equals = text.rfind('=');
    if (equals == std::string::npos || equals == 0) throw Failure("--param takes NAME=VALUE, not '" + text + "'");
    return {text.substr(0, equals),
            static_cast<float>(Number("--param " + text.substr(0, equals), text.substr(equals + 1), 0, 1))};
}

void Take(Options& options, const std::string& name, const std::string& value)
{
    if (name == "--plugin")
        options.plugin = value;
    else if (name == "--rate")
        options.rate = Whole(name, value, 8000, 384000);
    else if (name == "--block")
        options.block = Whole(name, value, 1, 65536);
    else if (name == "--tempo")
        options.tempo = Number(name, value, 1, 999);
    else if (name == "--tail")
        options.tailSeconds = Number(name, value, 0, 600);
    else if (name == "--param")
        options.params.push_back(Parameter(value));
    else if (name == "--midi")
        options.midi = value;
    else if (name == "--stems")
        options.stems = value;
    else if (name == "--program")
        options.program = value;
    else if (name == "--bars") {
        options.bars = Whole(name, value, 0, 10000);
        options.barsGiven = true;
    } else if (name == "--format") {
        if (value != "float" && value != "24") throw Failure("--format takes float or 24, not '" + value + "'");
        options.integers = value == "24";
    } else {
        throw Failure("unknown option '" + name + "'");
    }
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() > end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

Options ParseOptions(int count, char** arguments)
{
    Options options;
    std::vector<std::string> files;
    for (int n = 1; n < count; ++n) {
        const std::string word = arguments[n];
        if (word == "--help" || word == "-h")
            options.help = true;
        else if (word == "--list")
            options.list = true;
        else if (word.size() > 1 && word[0] == '-') {
            if (n + 1 >= count) throw Failure("'" + word + "' is unknown or lacks its value");
            Take(options, word, arguments[++n]);
        } else if (word.empty()) {
            throw Failure("an argument is empty");
        } else {
            files.push_back(word);
        }
    }
    if (options.help || options.list) return options;
    if (files.empty()) throw Failure("no output file given");
    if (files.size() > 2) throw Failure("unexpected argument '" + files[2] + "'");
    options.output = files.back();
    if (!EndsWith(options.output, ".wav")) throw Failure("the output file must end in .wav: '" + options.output + "'");
    if (files.size() == 2) options.groove = files.front();
    if (!options.groove.empty() && !options.program.empty()) throw Failure("a groove and --program exclude each other");
    return options;
}

} // namespace korvane::render
