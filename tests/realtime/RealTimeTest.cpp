// What the audio thread never does, whatever happens beside it: allocate, wait, enter the system.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <condition_variable>
#include <functional>
#include <random>
#include <shared_mutex>
#include <thread>

#include "realtime/Watch.h"
#include "support/Parameters.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

class RealTime : public SynthTest {
protected:
    RealTime()
    {
        host.realTime = true;
        Synth().SetSampleRate(48000.0);
        Synth().SetProgram(0);
        for (const auto& file : std::filesystem::directory_iterator(root / "Grooves"))
            grooves.push_back(ReadBytes(file.path()));
        for (auto& output : outputs) output.resize(kFrames);
    }

    /// A block and what comes before it, in which keys, controllers and the host's parameters move.
    void Block(int n, const std::function<void(int)>& also)
    {
        const Watch watch;
        if (also) also(n);
        const int key = 30 + n % 60;
        Queue(n % 2 ? 0x80 : 0x90, key, 100, n % kFrames);
        Queue(0xB0, n % 32, key, kFrames - 1); // no bank select
        Synth().SetTempo(60.0 + n % 200);
        Synth().songPosition = 0.02 * n;
        if (n % 20 == 0) Synth().SetPlaying(true); // a state that was loaded has stopped it
        float* pointers[28];
        for (std::size_t k = 0; k < outputs.size(); ++k) pointers[k] = outputs[k].data();
        Synth().ProcessBlock(nullptr, pointers, kFrames, true);
    }
    void Queue(int status, int data1, int data2 = 0, int frame = 0)
    {
        Synth().QueueEvent(static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(data1),
                           static_cast<std::uint8_t>(data2), 0, frame);
    }
    bool Restore(std::size_t groove)
    {
        const auto& bytes = grooves[groove % grooves.size()];
        return Synth().SetBankChunk(bytes.data(), static_cast<int>(std::ssize(bytes))) == std::ssize(bytes);
    }
    /// Every channel plays on every step through every effect.
    bool Overload()
    {
        for (int c = 0; c < kChannels; ++c) {
            for (int k = 0; k < kEffects; ++k) Engine().storedParams[c][slot::FxGlue + k] = 1.0f;
            Engine().storedParams[c][slot::EqOn] = 1.0f;
            for (int s = 0; s < kSteps; ++s) Engine().score.Current().steps[c][s] = 0x91u << s % 9;
            Engine().RefreshChannel(c);
        }
        return true;
    }
    bool Edit(int n)
    {
        std::mt19937 random(static_cast<unsigned>(n));
        for (int k = 0; k < 40; ++k)
            Synth().SetParameter(static_cast<int>(random() % param::Count), static_cast<float>(random() % 5) / 4.0f);
        for (const int button : {param::Copy, param::Paste, param::Clear})
            for (const float value : {1.0f, 0.0f}) Synth().SetParameter(button, value);
        Engine().score.Current().SetLock(n % kChannels, n % kSteps, n % kChannelSlots, 0.25f);
        return true;
    }

    static constexpr int kFrames = 128;
    const BundleRoot bundle;
    std::vector<std::vector<std::uint8_t>> grooves;
    std::array<std::vector<float>, 28> outputs;
};

TEST_F(RealTime, NothingIsAskedOfTheSystem)
{
    const auto sample = [this](int n) { return Path(n % 2 ? "Drum Samples/Deep Clap.wav" : "Synth Waves/Saw.wav"); };
    struct Scene {
        const char* what;
        std::function<void(int)> intake; // before each block, as if a part of it
        std::function<bool(int)> beside; // twenty times, on another thread, while blocks run
    };
    const auto wait = [](int) { return std::this_thread::sleep_for(std::chrono::milliseconds(2)), true; };
    const Scene scenes[] = {
        {"a groove plays", {}, wait},
        {"the audio thread moves parameters",
         [this](int n) {
             Synth().SetParameter(n % param::Count, 0.5f);
             Synth().MoveController(n % 128, 0.5);
         },
         wait},
        {"every effect is played", {}, [&](int n) { return Overload() && wait(n); }},
        {"program changes", // until one has been told
         [this](int n) {
             if (n % 20 < 2) Queue(n % 20 ? 0xC0 : 0xB0, n % 20 ? n % 5 : 32, n % 3);
         },
         [&](int n) {
             do wait(n);
             while (n == 19 && host.told == 0);
             return true;
         }},
        {"states are restored", {}, [this](int n) { return Restore(static_cast<std::size_t>(n)); }},
        {"samples are loaded",
         {},
         [&](int n) { return Synth().LoadSample(n % kChannels, n % kSampleSlots, sample(n).c_str()), true; }},
        {"a user edits", {}, [this](int n) { return Edit(n); }},
        {"a recording", [this](int n) { Synth().SetParameter(param::Record, n / 50 % 2 ? 0.0f : 1.0f); }, wait},
    };
    for (const Scene& scene : scenes)
        for (std::size_t groove = 0; groove < grooves.size(); ++groove) {
            SCOPED_TRACE(std::string(scene.what) + ", groove " + std::to_string(groove));
            ASSERT_TRUE(Restore(groove));
            host.told = 0;
            std::atomic<bool> done{false};
            std::thread beside([&] {
                for (int n = 0; n < 20; ++n) EXPECT_TRUE(scene.beside(n)) << n;
                done = true;
            });
            for (int n = 0; n < 100 || !done; ++n) Block(n, scene.intake);
            beside.join();
            EXPECT_EQ(Watch::Seen(), "");
        }
}

// A fault of each kind, planted where the instrument would be.
TEST_F(RealTime, IsWatched)
{
    static void* volatile memory;
    static std::mutex mutex;
    static std::shared_mutex shared;
    static std::condition_variable condition;
    static sem_t semaphore; // zeros: nobody has posted
    static std::array<char, 1000> bytes;
    constexpr std::align_val_t unit{64};
    // clang-format off
    const std::pair<const char*, std::function<void()>> faults[] = {
        {"malloc 1", [] { memory = std::malloc(9); }},
        {"realloc 1", [] { memory = std::realloc(memory, 999); }},
        {"free 1", [] { std::free(memory); }},
        {"malloc 1, free 1", [] { operator delete(operator new(9)); }},
        {"aligned_alloc 1, free 1", [] { operator delete(operator new(64, unit), unit); }},
        {"calloc 1", [] { memory = std::calloc(9, 9); }},
        {"mmap 1, munmap 1", [] { munmap(mmap(nullptr, 1, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0), 1); }},
        {"pthread_mutex_lock 1, pthread_mutex_unlock 1", [] { std::lock_guard{mutex}; }},
        {"pthread_rwlock_rdlock 1, pthread_rwlock_unlock 1", [] { std::shared_lock{shared}; }},
        {"pthread_rwlock_wrlock 1, pthread_rwlock_unlock 1", [] { std::unique_lock{shared}; }},
        {"pthread_mutex_lock 1, pthread_cond_clockwait 1, pthread_mutex_unlock 1",
         [] { std::unique_lock lock(mutex); condition.wait_for(lock, std::chrono::microseconds(1)); }},
        {"pthread_cond_signal 1", [] { condition.notify_one(); }},
        {"pthread_cond_broadcast 1", [] { condition.notify_all(); }},
        {"sem_post 1", [] { sem_post(&semaphore); }}, // once for the next
        {"sem_wait 1", [] { sem_wait(&semaphore); }},
        {"open 1, close 1", [] { close(open("/dev/zero", O_RDONLY)); }},
        {"fopen 1, malloc 1, free 1", [] { std::fopen("", "r"); }},
        {"read 1", [] { bytes[0] = static_cast<char>(read(-1, bytes.data(), 1)); }},
        {"write 1", [] { bytes[0] = static_cast<char>(write(-1, bytes.data(), 1)); }},
        {"stat 1", [] { stat("/", reinterpret_cast<struct stat*>(bytes.data())); }},
        {"fstat 1", [] { fstat(0, reinterpret_cast<struct stat*>(bytes.data())); }},
        {"nanosleep 1", [] { std::this_thread::sleep_for(std::chrono::nanoseconds(1)); }},
        {"sched_yield 1", [] { std::this_thread::yield(); }},
    };
    // clang-format on
    for (const auto& [seen, fault] : faults) {
        {
            const Watch watch;
            fault();
        }
        EXPECT_EQ(Watch::Seen(), seen);
    }
}

} // namespace
} // namespace korvane
