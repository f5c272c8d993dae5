// korvane-measure: what blocks, states and instances cost on this machine, in real time.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "measure/Player.h"
#include "platform/FlushToZero.h"
#include "render/Memory.h"

namespace korvane::measure {
namespace {

namespace fs = std::filesystem;

/// Blocks, of which some may come too late.
void Row(const char* what, const Times& times)
{
    std::printf("| %s | %.0f µs | %.0f µs | %ld of %zu |\n", what, times.Median(), times.Longest(),
                times.Above(kBlockMicros), times.micros.size());
    std::fflush(stdout);
}

/// What a host waits for.
void SlowRow(const char* what, const Times& times)
{
    std::printf("| %s | %.1f ms | %.1f ms | |\n", what, times.Median() / 1000.0, times.Longest() / 1000.0);
}

void Sleep(double seconds) { std::this_thread::sleep_for(std::chrono::duration<double>(seconds)); }

/// Does it on a thread that nobody interrupts, without flush-to-zero, as threads of many hosts are.
void Alone(const std::function<void()>& act)
{
    std::thread([&act] {
        Player::ComeFirst();
        _mm_setcsr(_mm_getcsr() & ~kFlushToZeroBit);
        act();
    }).join();
}

/// The heaviest groove, in real time, while something is done beside it four times a second; whether that stops it.
void Play(
    const char* what, const Subject& subject, double seconds, const std::function<bool(PluginHost&, int)>& beside,
    const std::function<void(PluginHost&, int)>& intake = [](PluginHost&, int) {})
{
    const auto host = subject.Playing(subject.Heaviest());
    Player player(*host, [&](int block) { intake(*host, block); });
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    for (int n = 0; Clock::now() < end; ++n, Sleep(0.25))
        if (beside(*host, n)) player.Start();
    Row(what, player.Stop());
}

/// Of those blocks in which a state was taken over, and of an instance's first.
void Swaps(const Subject& subject)
{
    const auto host = subject.Playing(subject.Heaviest());
    Player player(*host, [](int) {});
    std::vector<std::pair<int, int>> spans; // of blocks, from before a load to the one after it
    for (int n = 0; n < 40; ++n) {
        Sleep(0.25);
        const int begin = player.Blocks();
        host->SetState(subject.Heaviest().bytes, "");
        spans.emplace_back(begin, player.Blocks() + 2);
        player.Start();
    }
    Sleep(0.1);
    const Times& all = player.Stop();
    Times swaps, starts;
    for (const auto& [begin, end] : spans)
        swaps.micros.push_back(*std::max_element(all.micros.begin() + begin, all.micros.begin() + end));
    Row("The longest block of each that loads a state", swaps);
    for (int n = 0; n < 40; ++n) {
        const auto opened = subject.Open();
        opened->SetState(subject.Heaviest().bytes, "");
        opened->SetPlaying(true);
        Alone([&] { starts.micros.push_back(Micros([&] { opened->Render(kFrames); })); });
    }
    Row("First block of an instance", starts);
}

void Memory(const Subject& subject)
{
    for (const double rate : {48000.0, 192000.0}) {
        constexpr int kMore = 8;
        const double before = render::ResidentMegabytes();
        std::vector<std::unique_ptr<PluginHost>> hosts;
        hosts.push_back(subject.Playing(subject.Heaviest(), rate));
        const double first = render::ResidentMegabytes();
        while (hosts.size() <= kMore) hosts.push_back(subject.Playing(subject.Heaviest(), rate));
        std::printf(
            "| Memory at %.0f kHz: this process, of it the first instance; each further one | %.1f MB, %.1f MB; "
            "%.1f MB | | |\n",
            rate / 1000.0, first, first - before, (render::ResidentMegabytes() - first) / kMore);
    }
}

void Loads(const Subject& subject)
{
    Times opens, loads, big;
    const fs::path folder = fs::temp_directory_path() / ("korvane-measure." + std::to_string(getpid()));
    const Groove bigGroove = BigGroove(subject.Heaviest(), folder);
    for (int n = 0; n < 10; ++n) {
        std::unique_ptr<PluginHost> host;
        opens.micros.push_back(Micros([&] { host = subject.Open(); }));
        const auto load = [&host](const Groove& groove) { // with all its samples
            host->SetState(groove.bytes, groove.name);
            host->Render(kFrames);
        };
        loads.micros.push_back(Micros([&] { load(subject.Heaviest()); }));
        big.micros.push_back(Micros([&] { load(bigGroove); }));
    }
    fs::remove_all(folder);
    SlowRow("Opening an instance", opens);
    SlowRow("Loading a groove, to its first block", loads);
    SlowRow("Loading 32 samples of 2 MB, likewise", big);
}

/// Blocks follow each other without a pause.
void Switches(const Subject& subject)
{
    const auto host = subject.Playing(subject.Heaviest());
    std::atomic<bool> running{true};
    std::thread audio([&] {
        while (running) host->Render(kFrames);
    });
    Times programs, rates;
    for (int n = 0; n < 100; ++n) {
        programs.micros.push_back(Micros([&] { host->SetProgram(0); }));
        rates.micros.push_back(Micros([&] { host->SetRate(n % 2 ? kRate : 44100.0); }));
        Sleep(0.005);
    }
    running = false;
    audio.join();
    SlowRow("Switching the program under back-to-back blocks", programs);
    SlowRow("Switching the rate under back-to-back blocks", rates);
}

void Silence(const Subject& subject)
{
    const auto host = subject.Playing(subject.Heaviest());
    const auto play = [&host](double seconds) {
        Times times;
        Alone([&] {
            for (int n = 0; n < static_cast<int>(seconds * kRate) / kFrames; ++n)
                times.micros.push_back(Micros([&host] { host->Render(kFrames); }));
        });
        return times;
    };
    Row("Without flush-to-zero, 10 s that sound", play(10.0));
    host->SetPlaying(false);
    Row("Without flush-to-zero, the 10 s after them", play(10.0));
}

void Measure(double seconds)
{
    const Subject subject;
    const auto loads = [&](PluginHost& host, int n) {
        host.SetState((n % 2 ? subject.Heaviest() : subject.Lightest()).bytes, "");
        return true;
    };
    const auto programs = [](PluginHost& host, int block) { // bank and program, in turn
        constexpr int kPause = 100;
        if (block % kPause != 0) return;
        const int n = block / kPause;
        if (n % 5 == 0)
            host.QueueMidi(0, 0xB0, 32, static_cast<std::uint8_t>(n % 3));
        else
            host.QueueMidi(0, 0xC0, static_cast<std::uint8_t>(n % 5), 0);
    };
    bool first = false;
    Alone([&first] { first = Player::ComeFirst(); });
    std::printf("\"%s\", blocks of %d frames at 48 kHz, which last %.0f µs; %s\n\n| What | Median | Longest | Above a "
                "block's duration |\n|---|---|---|---|\n",
                subject.Heaviest().name.c_str(), kFrames, kBlockMicros,
                first ? "the player comes before all other threads (SCHED_FIFO)" : "no SCHED_FIFO here");
    Play("A groove plays", subject, seconds, [](PluginHost&, int) { return false; });
    Play("States and programs are loaded beside it", subject, seconds, loads, programs);
    Play("Instances are opened and closed beside it", subject, seconds,
         [&](PluginHost&, int) { return !subject.Open(); });
    Swaps(subject);
    Memory(subject);
    Loads(subject);
    Switches(subject);
    Silence(subject);
}

} // namespace
} // namespace korvane::measure

int main(int count, char** arguments)
{
    try {
        korvane::measure::Measure(count > 1 ? std::atof(arguments[1]) : 60.0); // seconds of each of the first rows
    } catch (const std::exception& reason) {
        std::fprintf(stderr, "korvane-measure: %s\n", reason.what());
        return 1;
    }
}
