// MIDI events, chunks and the program-switch handshake of the framework.
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <functional>
#include <sstream>
#include <thread>
#include <tuple>

#include "framework/CSynthesizer.h"
#include "framework/KVProgram.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

/// Writes down what it is told, each thing in brackets.
struct Listener : CSynthesizer {
    explicit Listener(CPluginWrapper* bridge = nullptr) : CSynthesizer(bridge)
    {
        SMX_Def::Install();
        AddProgram(std::make_unique<KVProgram>());
    }
    void NoteEvent(std::int8_t key, std::int8_t velocity) override { Say("note", key, velocity); }
    void ControllerChanged(std::int8_t number) override { Say("cc", number, controllers[number] * 127.0 + 0.5); }
    void PitchBendChanged() override { Say("bend", pitchBend * 8191.5); }
    void ChannelPressureChanged() override { Say("pressure", channelPressure * 127.0 + 0.5); }
    void ProgramChangeReceived(int program) override { Say("program", program); }
    bool BankSelectReceived(int bank) override
    {
        Say("bank", bank);
        return bank != 5;
    }
    void ProcessMultiOut(float**, float**, int frames) override
    {
        Say("render", frames);
        if (duringBlock) duringBlock();
    }
    void Say(const char* what, double a, double b = 0.0)
    {
        log << '[' << what << ' ' << static_cast<int>(a);
        if (b >= 1.0) log << ' ' << static_cast<int>(b);
        log << ']';
    }
    void Send(int status, int data1, int data2 = 0, int frame = 0)
    {
        QueueEvent(static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(data1),
                   static_cast<std::uint8_t>(data2), 0, frame);
    }
    std::string Play(int frames)
    {
        log.str("");
        ProcessBlock(nullptr, nullptr, frames, true);
        return log.str();
    }

    std::ostringstream log;
    std::function<void()> duringBlock;
};

// A block is cut at every event and at 128 frames; what cannot be placed is lost, none waits for the next block.
TEST(BlockSplitter, CutsTheBlockAtItsEvents)
{
    // clang-format off
    struct Case { const char* what; int frames; std::vector<int> events; const char* log; };
    const Case cases[] = {
        {"no event",              300, {},           "[render 128][render 128][render 44]"},
        {"nothing to render",       0, {0},          ""},
        {"at the start",            2, {0},          "[note 0 1][render 2]"},
        {"two on one frame",      100, {40, 40},     "[render 40][note 0 1][note 1 1][render 60]"},
        {"on a chunk's edge",     130, {128},        "[render 128][note 0 1][render 2]"},
        {"on the last frame",      64, {63},         "[render 63][note 0 1][render 1]"},
        {"at the end",             64, {64},         "[render 64]"},
        {"far beyond",             64, {2000000000, 2000000000}, "[render 64]"},
        {"out of order ends all", 100, {50, 20, 70}, "[render 50][note 0 1][render 50]"},
        {"before the block",       10, {-3, 5},      "[render 10]"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Listener synth;
        for (int n = 0; n < std::ssize(c.events); ++n) synth.Send(0x90, n, 1, c.events[static_cast<std::size_t>(n)]);
        EXPECT_EQ(synth.Play(c.frames), c.log) << c.what;
        EXPECT_EQ(synth.Play(1), "[render 1]") << c.what;
    }
    Listener synth;
    for (int n = 0; n < 1100; ++n) synth.Send(0xA0, 1, 2);
    synth.Send(0x90, 1, 1);
    EXPECT_EQ(synth.Play(1), "[render 1]") << "the note came too late for the queue";
}

TEST(Events, ReachTheirNotification)
{
    // clang-format off
    struct Case { const char* what; int status, data1, data2; const char* log; };
    const Case cases[] = {
        {"key",             0x90, 60,  100, "[note 60 100]"}, {"while it sounds", 0x90, 60,   50,   ""},
        {"off: velocity 0", 0x90, 60,  0,   "[note 60]"},     {"off when silent", 0x80, 60,   9,    ""},
        {"low key",         0x90, 40,  10,  "[note 40 10]"},  {"masked",          0x95, 0xDA, 0x94, "[note 90 20]"},
        {"middle key",      0x90, 70,  30,  "[note 70 30]"},  {"pedal",           0xB0, 64,   65,   ""},
        {"sustained",       0x80, 90,  0,   ""},              {"sustained too",   0x80, 40,   0,    ""},
        {"pedal up",        0xB0, 64,  64,  "[note 40][note 90]"}, {"pedal again", 0xB0, 64, 127, ""},
        {"none ends yet",   0xB0, 123, 0,   ""},              {"pedal up again",  0xB0, 64,   0,    "[note 70]"},
        {"key again",       0x90, 5,   1,   "[note 5 1]"},    {"all notes off",   0xB0, 123,  0,    "[note 5]"},
        {"volume",          0xB0, 7,   127, "[cc 7 127]"},    {"program",         0xC0, 9,    0,    "[program 9]"},
        {"bank",            0xB0, 32,  4,   "[bank 4]"},      {"nobody's bank", 0xB0, 32,   5,    "[bank 5][cc 32 5]"},
        {"lowest bend",     0xE0, 0,   0,   "[bend -8191]"},  {"highest bend",    0xE0, 127,  127,  "[bend 8191]"},
        {"pressure",        0xD0, 64,  0,   "[pressure 64]"}, {"of a key",        0xA0, 9,    9,    ""},
        {"of the system",   0xF0, 1,   1,   ""},
    };
    // clang-format on
    Listener synth;
    for (const Case& c : cases) {
        synth.Send(c.status, c.data1, c.data2);
        EXPECT_EQ(synth.Play(1), c.log + std::string("[render 1]")) << c.what;
    }
    synth.controllers[9] = 0.5;
    synth.Send(0xB0, 121, 0);
    const std::string reset = synth.Play(1);
    EXPECT_EQ(std::count(reset.begin(), reset.end(), '['), 128 + 1);
    EXPECT_NE(reset.find("[cc 6][cc 7 127][cc 8][cc 9][cc 10 64][cc 11]"), std::string::npos) << reset;
}

// Keys belong to blocks: what another thread lets go ends with the next one, what their own thread does at once.
TEST(Events, OfAnotherThreadMoveKeysWithTheNextBlock)
{
    Listener synth;
    for (const int key : {50, 60}) synth.Send(0x90, key, 9);
    for (const int number : {64, 0}) synth.Send(0xB0, number, 127);
    synth.Send(0x80, 60, 0);
    synth.Play(1);
    const auto move = [&](int number) {
        synth.log.str("");
        synth.MoveController(number, 0.0);
        return synth.log.str();
    };
    for (const auto& [number, at, released] :
         {std::tuple{64, "[cc 64]", "[note 60]"}, {123, "[cc 123]", "[note 50]"}}) {
        std::thread([&, n = number, told = at] { EXPECT_EQ(move(n), told); }).join();
        EXPECT_EQ(synth.Play(1), std::string(released) + "[render 1]");
    }
    synth.Send(0x90, 70, 9);
    synth.Play(1);
    EXPECT_EQ(move(123), "[note 70][cc 123]");
}

TEST(Tempo, IsAtLeastOne)
{
    Listener synth;
    synth.SetTempo(0.5);
    EXPECT_EQ(synth.tempo, 1.0);
}

// While a switch waits, blocks are skipped: silent in replacing mode, untouched else, and their events wait.
TEST(Handshake, SkipsBlocksAndWaitsForTheRunningOne)
{
    Listener synth;
    std::array<float, 64> buffer;
    std::array<float*, 28> outputs{buffer.data()};
    {
        const CSynthesizer::ProgramSwitch exclusive(synth);
        synth.Send(0x90, 60, 1);
        for (bool replacing : {false, true}) {
            buffer.fill(0.5f);
            synth.ProcessBlock(nullptr, outputs.data(), 64, replacing);
            EXPECT_EQ(buffer[63], replacing ? 0.0f : 0.5f);
        }
        EXPECT_EQ(synth.log.str(), "");
    }
    EXPECT_EQ(synth.Play(2), "[note 60 1][render 2]");

    // A block within a block does nothing, except that it silences its outputs once a switch is waiting.
    std::atomic<bool> rendering{false}, switched{false};
    bool switchedTooEarly = false;
    synth.duringBlock = [&] {
        rendering = true;
        for (buffer[0] = 1.0f; buffer[0] != 0.0f; std::this_thread::yield())
            synth.ProcessBlock(nullptr, outputs.data(), 1, true);
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // for one that does not wait
        switchedTooEarly = switched;
    };
    std::thread host([&] {
        while (!rendering) std::this_thread::yield();
        synth.SetProgram(3);
        switched = true;
    });
    synth.ProcessBlock(nullptr, nullptr, 64, true);
    host.join();
    EXPECT_FALSE(switchedTooEarly);
    EXPECT_TRUE(switched);
    EXPECT_EQ(synth.CurrentProgram(), 0);
}

/// Does something with a report, but not with those that come of it.
struct BusyHost : Host {
    void ParameterAutomated(int, float) override
    {
        if (!whenTold || busy) return;
        busy = true;
        whenTold();
        busy = false;
    }

    std::function<void()> whenTold;
    bool busy = false;
};

// Two threads switch while a third renders without a pause, and each of them does so again from within.
TEST(Handshake, LetsEverybodyThrough)
{
    BusyHost host;
    Listener synth(&host);
    const auto switches = [&] { synth.SetProgram(0); };
    const auto renders = [&] { synth.ProcessBlock(nullptr, nullptr, 9, true); };
    const std::tuple<const char*, std::function<void()>, std::function<void()>> cases[] = {
        {"at once", {}, {}},
        {"a switch in a report", switches, {}},
        {"a switch in a block", {}, switches},
        {"a block in a report", renders, {}},
        {"a block in a block", {}, renders},
        {"switches in both", switches, switches},
    };
    for (const auto& [what, inReport, inBlock] : cases) {
        SCOPED_TRACE(what);
        std::tie(host.whenTold, synth.duringBlock) = std::tie(inReport, inBlock);
        std::atomic<int> left{2};
        const auto run = [&] {
            for (int n = 0; n < 5; ++n) switches();
            --left;
        };
        std::thread one(run), other(run);
        while (left > 0) renders();
        one.join();
        other.join();
        EXPECT_EQ(synth.Play(9), "[render 9]");
    }
}

} // namespace
} // namespace korvane
