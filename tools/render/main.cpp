// korvane-render: plays the plug-in without a sound card.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>

#include "render/Failure.h"
#include "render/LevelMeter.h"
#include "render/Library.h"
#include "render/MidiFile.h"
#include "render/NativeHost.h"
#include "render/Options.h"
#include "render/ParameterText.h"
#include "render/PluginHost.h"
#include "render/ReadFile.h"
#include "render/WavOutput.h"

namespace korvane::render {

namespace {

namespace fs = std::filesystem;

constexpr long long kLongestFile = 0x7FFFFFFF; // bytes of sound that any reader of WAV files accepts
constexpr std::size_t kEventsPerBlock = 1000;  // a plug-in holds so many for sure
constexpr int kBars = 8;
constexpr double kTempo = 120.0; // beats per minute
constexpr int kProgramNote = 36; // below the pads, so the selected channel plays it
constexpr double kProgramNoteSeconds = 2.0;

volatile std::sig_atomic_t interrupted = 0;
bool progressShown = false; // and its line not ended

void Interrupt(int) { interrupted = 1; }

/// The pedal, and what lets all keys go.
bool MovesKeys(const MidiMessage& message)
{
    return (message.status & 0xF0) == 0xB0 && (message.data1 == 64 || message.data1 >= 120);
}

std::unique_ptr<Host> OpenPlugin(const Options& options)
{
    if (!options.native) return std::make_unique<PluginHost>(options.plugin, options.rate, options.block);
    auto host = std::make_unique<NativeHost>();
    host->Load(options.plugin, options.rate, options.block);
    return host;
}

/// One rendering, from the loaded plug-in to the finished files.
class Rendering {
public:
    explicit Rendering(const Options& chosen) : options(chosen), plugin(OpenPlugin(options)), host(*plugin)
    {
        if (!options.midi.empty()) midi.emplace(options.midi);
        Prepare();
        meters.resize(static_cast<std::size_t>(host.Pairs()));
        RefuseOwnInput(options.groove);
        RefuseOwnInput(options.midi);
        files.emplace_back(options.output, options.rate, options.integers);
        if (!options.stems.empty()) CreateStemsFolder();
        for (int pair = 1; pair < host.Pairs() && !options.stems.empty(); ++pair) {
            const fs::path stem = fs::path(options.stems) / (host.PairName(pair) + ".wav");
            if (fs::weakly_canonical(stem) == fs::weakly_canonical(options.output))
                throw Failure("'" + options.output + "' is a stem's name as well");
            files.emplace_back(stem.string(), options.rate, options.integers);
        }
    }

    void Run()
    {
        const auto start = std::chrono::steady_clock::now();
        host.Begin();
        if (transport) host.SetPlaying(true);
        for (long long done = 0; done < allFrames;) {
            if (transport && done == runFrames) host.SetPlaying(false);
            if (interrupted) throw Failure("interrupted");
            const long long rest = (done < runFrames ? runFrames : allFrames) - done;
            const int frames = static_cast<int>(std::min<long long>(cut > 0 ? cut : options.block, rest));
            const int rendered = RenderBlock(done, frames);
            cut = frames - rendered;
            done += rendered;
            ShowProgress(done, allFrames);
        }
        for (WavOutput& file : files) file.Finish();
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        Report(static_cast<double>(allFrames) / options.rate / spent.count());
    }

private:
    void Prepare()
    {
        transport = options.midi.empty() && options.program.empty();
        if (midi && options.bars) transport = true;
        length = midi ? midi->lengthSeconds : kProgramNoteSeconds;
        if (!options.groove.empty()) host.SetState(ReadFile(options.groove), options.groove);
        ChooseTempo();
        if (!options.program.empty()) {
            const std::string file = FindProgram(fs::path(options.plugin).parent_path().string(), options.program);
            host.SetState(StateWithProgram(host.GetState(), file), file);
        }
        for (const auto& [name, text] : options.params) {
            const int index = host.FindParameter(name);
            host.SetParameter(index, ParameterValue(index, text));
            std::printf("%s%s\n", host.ParameterText(index).c_str(), UnshownUnit(index).c_str());
        }
        runFrames = Frames(transport ? options.bars.value_or(kBars) * 4 * 60.0 / TempoAt(0.0) : length);
        allFrames = runFrames + Frames(options.tailSeconds);
        if (allFrames > kLongestFile / (2 * static_cast<long long>(sizeof(float))))
            throw Failure("that is longer than a WAV file holds");
    }

    void ChooseTempo()
    {
        const auto named = TempoInName(options.groove);
        tempo = options.tempo.value_or(named.value_or(kTempo));
        if (named && !options.tempo && !midi) std::printf("%g BPM, by the groove's name\n", tempo);
    }

    void RefuseOwnInput(const std::string& input) const
    {
        std::error_code none;
        if (fs::equivalent(input, options.output, none)) throw Failure("'" + input + "' would be overwritten");
    }

    void CreateStemsFolder() const
    {
        std::error_code none;
        if (fs::is_directory(options.stems, none) || fs::create_directory(options.stems, none)) return;
        throw Failure("cannot create the folder '" + options.stems + "'");
    }

    long long Frames(double seconds) const { return std::llround(std::min(seconds * options.rate, 1.0e15)); }
    double TempoAt(double seconds) const { return midi ? midi->TempoAt(seconds) : tempo; }

    /// Renders up to `frames` frames, fewer where more events come than a plug-in takes at once; returns how many.
    int RenderBlock(long long done, int frames)
    {
        const double seconds = static_cast<double>(done) / options.rate;
        if (cut == 0) host.SetTempo(TempoAt(seconds)); // once in a block, however it is cut
        host.SetPosition(midi ? midi->QuartersAt(seconds) : seconds * tempo / 60.0);
        if (midi)
            frames = QueueMessages(done, frames);
        else if (!options.program.empty())
            frames = QueueProgramNote(done, frames);
        host.Render(frames);
        for (int pair = 0; pair < host.Pairs(); ++pair) {
            const float* left = host.Output(2 * pair);
            const float* right = host.Output(2 * pair + 1);
            meters[static_cast<std::size_t>(pair)].Add(left, right, frames);
            if (static_cast<std::size_t>(pair) < files.size())
                files[static_cast<std::size_t>(pair)].Write(left, right, frames);
        }
        return frames;
    }

    int QueueMessages(long long done, int frames)
    {
        int last = 0;       // frame of the event queued last
        bool notes = false; // are among them
        for (std::size_t queued = 0; next < midi->messages.size(); ++next, ++queued) {
            const MidiMessage& message = midi->messages[next];
            const long long frame = std::max(Frames(message.seconds) - done, 0LL);
            if (frame >= frames) break;
            if ((queued >= kEventsPerBlock || !host.PlacesEvents()) && frame > last) return static_cast<int>(frame);
            if (notes && !host.PlacesEvents() && MovesKeys(message)) return 1; // frame later: it overtakes no note
            notes = notes || message.status < 0xA0;
            host.QueueMidi(last = static_cast<int>(frame), message.status, message.data1, message.data2);
        }
        return frames;
    }

    int QueueProgramNote(long long done, int frames)
    {
        const long long off = Frames(kProgramNoteSeconds / 2) - done;
        if (done == 0) host.QueueMidi(0, 0x90, kProgramNote, 100);
        if (off < 0 || off >= frames) return frames;
        if (off > 0 && !host.PlacesEvents()) return static_cast<int>(off);
        host.QueueMidi(static_cast<int>(off), 0x80, kProgramNote, 0);
        return frames;
    }

    static void ShowProgress(long long done, long long all)
    {
        constexpr int kWidth = 50;
        static int shown = -1;
        const int now = static_cast<int>(done * kWidth / all);
        if (!isatty(STDERR_FILENO) || now == shown) return;
        shown = now;
        progressShown = done < all;
        std::fprintf(stderr, "\r[%-*s]%s", kWidth, std::string(static_cast<std::size_t>(now), '#').c_str(),
                     done == all ? "\n" : "");
    }

    void Report(double speed) const
    {
        std::printf("%-12s %10s %10s\n", "", "peak dBFS", "RMS dBFS");
        for (int pair = 0; pair < host.Pairs(); ++pair) {
            const LevelMeter& meter = meters[static_cast<std::size_t>(pair)];
            std::printf("%-12s %10.1f %10.1f\n", host.PairName(pair).c_str(), meter.PeakDb(), meter.RmsDb());
        }
        std::printf("%.1f times faster than real time\n", speed);
    }

    Options options;
    const std::unique_ptr<Host> plugin;
    Host& host;
    std::optional<MidiFile> midi;
    std::size_t next = 0;                   // MIDI message to be played
    double tempo = kTempo;                  // beats per minute, where no MIDI file says so
    int cut = 0;                            // frames of the block that an event has cut, to come next
    bool transport = true;                  // the plug-in's own sequencer runs
    double length = 0.0;                    // seconds before the tail, without transport
    long long runFrames = 0, allFrames = 0; // before the tail, and with it
    std::vector<LevelMeter> meters;
    std::vector<WavOutput> files; // main mix, then the stems
};

int Main(int count, char** arguments)
{
    Options options = ParseOptions(count, arguments);
    if (options.help) {
        std::fputs(HelpText().c_str(), stdout);
        return 0;
    }
    if (options.version) {
        std::puts("korvane-render " KORVANE_VERSION);
        return 0;
    }
    if (options.plugin.empty()) options.plugin = DefaultPlugin();
    if (options.list) {
        PrintLibrary(fs::path(options.plugin).parent_path().string());
        return 0;
    }
    if (!options.groove.empty() && !fs::is_regular_file(options.groove))
        options.groove = FindGroove(fs::path(options.plugin).parent_path().string(), options.groove);
    Rendering(options).Run();
    return 0;
}

} // namespace

} // namespace korvane::render

int main(int count, char** arguments)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, korvane::render::Interrupt);
    try {
        return korvane::render::Main(count, arguments);
    } catch (const std::exception& reason) {
        if (korvane::render::progressShown) std::fputs("\n", stderr);
        std::fprintf(stderr, "korvane-render: %s\n", reason.what());
        return 1;
    }
}
