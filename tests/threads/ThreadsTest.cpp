// Whoever comes beside the audio thread: hosts, editors, other instances.
#include <gtest/gtest.h>
#include <sched.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <random>
#include <thread>

#include "framework/ParameterTable.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

class Threads : public SynthTest {
protected:
    /// One of the threads; it does something else each time.
    struct Worker {
        const char* name;
        std::function<void(Worker&)> act;
        int acts = 0;
        std::mt19937 random{static_cast<unsigned>(*name)};

        int Below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
        bool Often(int times) { return Below(times) == 0; } // one time of so many
        float Value() { return static_cast<float>(Below(5)) / 4.0f; }
    };

    std::vector<std::uint8_t> State()
    {
        std::vector<std::uint8_t> state(static_cast<std::size_t>(Synth().GetBankChunk(nullptr)));
        state.resize(static_cast<std::size_t>(Synth().GetBankChunk(state.data()))); // locks may have gone meanwhile
        return state;
    }
    bool Restore(const std::vector<std::uint8_t>& state)
    {
        return Synth().SetBankChunk(state.data(), static_cast<int>(std::ssize(state))) == std::ssize(state);
    }

    /// Whatever a host sends with a block. Every sample of it is a number.
    void Audio(Worker& worker)
    {
        host.realTime = worker.Often(2);
        Synth().SetTempo(60.0 + worker.Below(200));
        Synth().songPosition = worker.Below(64);
        if (worker.Often(50)) Synth().SetPlaying(worker.Often(2));
        if (worker.Often(9)) Synth().SetParameter(param::Play, worker.Value()); // as a MIDI link does
        for (const int status : {0x80, 0x90, 0xB0, 0xC0, 0xD0, 0xE0}) {
            const int data = status < 0xB0 || worker.Often(20) ? worker.Below(128) : 1;
            Synth().QueueEvent(static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(data),
                               static_cast<std::uint8_t>(worker.Below(128)), 0, 0);
        }
        std::array<float*, 28> pointers;
        for (std::size_t n = 0; n < outputs.size(); ++n) pointers[n] = outputs[n].data();
        const int frames = 1 + worker.Below(kFrames);
        Synth().ProcessBlock(nullptr, pointers.data(), frames, true);
        for (const auto& output : outputs)
            for (int n = 0; n < frames; ++n) finite = finite && std::isfinite(output[static_cast<std::size_t>(n)]);
    }
    /// Automation, states, programs, sample rates.
    void Automate(Worker& worker)
    {
        for (int n = 0; n < 20; ++n) {
            Synth().SetParameter(worker.Below(param::Count), worker.Value());
            Synth().SetProgramName(0, names[n % 2].c_str());
            Synth().MoveController(worker.Below(128), worker.Value());
        }
        Synth().SetPlaying(worker.Often(3));
        if (worker.Often(20)) saved = State();
        if (worker.Often(40) && !saved.empty()) restored = restored && Restore(saved);
        if (worker.Often(40)) Synth().SetProgram(worker.Below(3));
        if (worker.Often(100)) Synth().SetSampleRate(worker.Often(2) ? 44100.0 : 96000.0 + worker.Below(9));
    }
    /// Grooves, parts and programs to files and back.
    void File(Worker& worker)
    {
        const std::string kinds[] = {"groove", "part", "program"};
        const auto path = [&] { return Path(("stress." + kinds[worker.Below(3)]).c_str()); };
        switch (worker.Below(9)) {
        case 0: Synth().SaveGrooveFile(Path("stress.groove").c_str()); break;
        case 1: Synth().SavePartFile(Path("stress.part").c_str()); break;
        case 2: Synth().SaveProgramFile(Path("stress.program").c_str()); break;
        case 3: Synth().LoadGrooveFile(path().c_str()); break;
        case 4: Synth().LoadPartFile(path().c_str()); break;
        case 5: Synth().LoadProgramFile(path().c_str()); break;
        case 6: Synth().SaveGrooveWithSamples(Path("with samples.groove").c_str()); break;
        default: std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    /// What a user sees and does.
    void Edit(Worker& worker)
    {
        const int c = worker.Below(kChannels), step = worker.Below(kSteps);
        for (const int press : {+param::Copy, +param::Paste, +param::Clear, +param::Record, param::Step1 + step % 24})
            Synth().SetParameter(press, worker.Value());
        Engine().score.Current().SetLock(c, step, worker.Below(kChannelSlots), worker.Value() - 0.5f);
        MixerStrip& strip = Engine().Channel(c).strip;
        for (Shared<float>* meter : {&strip.peakLeft, &strip.peakRight}) {
            finite = finite && std::isfinite(static_cast<float>(*meter));
            *meter = 0.0f;
        }
        char text[512];
        for (const SampleSlot& shown : Engine().Channel(c).sound.sampleSlots) {
            shown.name.Get(text);
            if (const auto sample = Engine().samplePool->SoundOf(shown)) whole = whole && sample->numFrames >= 0;
        }
        for (int n = 0; n < 10; ++n) {
            Synth().GetProgramName(0, text);
            whole = whole && std::count(std::begin(names), std::end(names), text) > 0;
        }
        Synth().GetParameterDisplay(Engine().clock.patternStep, text);
        Synth().GetLastParameterText(text);
        Synth().links.Link(worker.Often(2));
        const char* const files[] = {"Drum Samples/Deep Clap.wav", "Synth Waves/Saw.wav", "no file"};
        if (worker.Often(30)) Synth().LoadSample(c, worker.Below(kSampleSlots), Path(files[worker.Below(3)]).c_str());
    }
    /// Another instance, closed while it loads a program.
    static void Open(Worker& worker)
    {
        Host its;
        KVInstrument other(&its);
        other.SetSampleRate(44100.0);
        other.SetProgram(0);
        other.SetPlaying(true);
        its.realTime = true;
        for (int n = worker.Below(20); n > 0; --n) {
            other.QueueEvent(0xB0, 32, 0, 0, 0);
            other.ProcessBlock(nullptr, nullptr, kFrames, true);
        }
    }

    static constexpr int kFrames = 512;
    const BundleRoot bundle;
    std::array<std::vector<float>, 28> outputs;
    std::vector<std::uint8_t> saved; // host
    const std::string names[2] = {std::string(200, 'a'), std::string(90, 'b')};
    std::atomic<bool> finite{true}, restored{true}, whole{true};
};

// All at once for a while, in any order; the sanitizers watch. What then stands is kept by a save and a load.
TEST_F(Threads, DoAsTheyLike)
{
    for (auto& output : outputs) output.resize(kFrames);
    Synth().SetSampleRate(48000.0);
    Synth().SetProgram(0);
    Synth().SetProgramName(0, names[0].c_str());
    Worker workers[] = {
        {"audio", [this](Worker& worker) { Audio(worker); }},
        {"host", [this](Worker& worker) { Automate(worker); }},
        {"files", [this](Worker& worker) { File(worker); }},
        {"editor", [this](Worker& worker) { Edit(worker); }},
        {"other instances", [](Worker& worker) { Open(worker); }},
    };
    const char* seconds = std::getenv("KORVANE_STRESS_SECONDS");
    const auto end =
        std::chrono::steady_clock::now() + std::chrono::duration<double>(std::atof(seconds ? seconds : "3"));
    std::vector<std::thread> threads;
    for (Worker& worker : workers)
        threads.emplace_back([&worker, end] {
            for (; std::chrono::steady_clock::now() < end; ++worker.acts) worker.act(worker);
        });
    for (std::thread& thread : threads) thread.join();
    for (const Worker& worker : workers) EXPECT_GT(worker.acts, 0) << worker.name;
    EXPECT_TRUE(finite) << "sound and meters";
    EXPECT_TRUE(restored) << "states";
    EXPECT_TRUE(whole) << "names";
    const auto kept = State();
    EXPECT_TRUE(Restore(kept));
    EXPECT_EQ(State(), kept);
}

// Threads change the same few steps at the same instant. Each has a parameter of its own, whose locks are then the last
// that it set, beside those of the others; and a note of its own. What they change between two meetings fits into the
// queue, whoever is interrupted.
TEST(StepLocks, ChangedByManyLoseNothing)
{
    constexpr int kThreads = 4, kShared = 3, kRounds = 8000, kOthers = 8;
    GroovePattern pattern, clipboard;
    for (int n = 0; n < kOthers; ++n) clipboard.SetLock(0, 0, kThreads + n, 0.5f);
    for (int step = 0; step < kShared; ++step) pattern.CopySteps(0, step, clipboard, 0, 1);
    float last[kThreads][kShared]{};
    bool noted[kThreads][kShared]{};
    std::atomic<int> arrived{0}, lost{0}, doubled{0};
    const auto meet = [&arrived] {
        const int all = (arrived++ / kThreads + 1) * kThreads;
        for (int looks = 0; arrived < all; ++looks)
            if (looks > 1000) std::this_thread::yield(); // not before: two go on as one
    };
    const auto play = [&](int own) {
        cpu_set_t core; // side by side, where there are two cores
        CPU_ZERO(&core);
        CPU_SET(own % 2, &core);
        sched_setaffinity(0, sizeof core, &core);
        std::mt19937 random(static_cast<unsigned>(own));
        const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
        for (int round = 0; round < kRounds; ++round) {
            const int changes = kShared * (1 + round % 5);
            for (int n = 0; n < changes; ++n) {
                const int step = below(kShared), what = below(8);
                if (what == 0) pattern.CopySteps(0, step, clipboard, 0, 1);
                if (what == 1) pattern.SwapSteps(0, step, below(kShared));
                if (what > 1) pattern.SetLock(0, step, own, 0.25f * static_cast<float>(below(3)));
            }
            meet();
            for (int n = 0; n < changes; ++n) {
                last[own][n % kShared] = 0.25f * static_cast<float>(below(3)); // 0 removes
                pattern.SetLock(0, n % kShared, own, last[own][n % kShared]);
                noted[own][n % kShared] = below(2) == 0;
                if (noted[own][n % kShared])
                    pattern.SetNotes(0, n % kShared, 1u << own);
                else
                    pattern.ClearNotes(0, n % kShared, 1u << own);
            }
            meet();
            for (int step = 0; step < kShared; ++step) {
                const StepLockList& locks = pattern.locks[0][step];
                lost += locks.Offset(own) != last[own][step];
                lost += (pattern.steps[0][step] >> own & 1u) != noted[own][step];
                int count = kOthers;
                for (const auto& offsets : last) count += offsets[step] != 0.0f;
                doubled += locks.Count() != count;
            }
            meet();
        }
    };
    std::vector<std::thread> threads;
    for (int own = 0; own < kThreads; ++own) threads.emplace_back(play, own);
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(std::pair(+lost, +doubled), std::pair(0, 0));
}

} // namespace
} // namespace korvane
