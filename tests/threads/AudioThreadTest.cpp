// The audio thread: what it never does, and who may come beside it.
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <new>
#include <random>
#include <thread>

#include "framework/ParameterTable.h"
#include "support/SynthRig.h"

namespace {

thread_local bool watched = false; // this thread must not allocate
std::atomic<int> allocations{0};

} // namespace

#ifndef __SANITIZE_ADDRESS__ // which has operators of its own
static void* Allocate(std::size_t size, std::align_val_t alignment)
{
    allocations += watched;
    const auto unit = static_cast<std::size_t>(alignment);
    if (void* memory = std::aligned_alloc(unit, (size + unit - 1) / unit * unit)) return memory;
    throw std::bad_alloc();
}
static void Free(void* memory)
{
    allocations += watched;
    std::free(memory);
}
void* operator new(std::size_t size) { return Allocate(size, std::align_val_t{alignof(std::max_align_t)}); }
void* operator new(std::size_t size, std::align_val_t alignment) { return Allocate(size, alignment); }
void operator delete(void* memory) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { Free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { Free(memory); }
#endif

namespace korvane {
namespace {

class AudioThread : public SynthTest {
protected:
    /// Every channel plays on every step through every effect, with locks.
    AudioThread()
    {
        for (auto& output : outputs) output.resize(kFrames);
        Synth().SetSampleRate(48000.0);
        Synth().SetProgram(0);
        GrooveEngine& engine = Engine();
        for (int c = 0; c < kChannels; ++c) {
            for (int k = 0; k < kEffects; ++k) engine.storedParams[c][slot::FxGlue + k] = 1.0f;
            engine.storedParams[c][slot::EqOn] = 1.0f;
            engine.storedParams[c][slot::UnisonVoices] = 0.4f;
            engine.storedParams[c][slot::NoteLength] = 0.6f;
            for (int s = 0; s < kSteps; ++s) {
                engine.score.patterns[0]->steps[c][s] = c < kSamplerChannels ? 1u << s % 16 : 0x91u << s % 12;
                engine.score.patterns[0]->locks[c][s].Set(slot::FilterCutoff, -0.01f * static_cast<float>(s % 30));
            }
            engine.RefreshChannel(c);
        }
    }

    void Block(int frames = kFrames)
    {
        float* pointers[28];
        for (std::size_t n = 0; n < outputs.size(); ++n) pointers[n] = outputs[n].data();
        Synth().ProcessBlock(nullptr, pointers, frames, true);
    }

    static constexpr int kFrames = 512;
    std::array<std::vector<float>, 28> outputs;
};

TEST_F(AudioThread, AllocatesNothing)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "nobody counts";
#endif
    Block(); // serves the requests of the start-up
    Synth().SetPlaying(true);
    watched = true;
    for (int n = 0; n < 300; ++n) {
        const auto key = static_cast<std::uint8_t>(30 + n % 60);
        Synth().QueueEvent(n % 2 ? 0x80 : 0x90, key, 100, 0, n % kFrames);
        Synth().QueueEvent(0xB0, static_cast<std::uint8_t>(n % 120), key, 0, kFrames - 1);
        Synth().SetParameter(n % param::Count, 0.5f);
        Block();
    }
    watched = false;
    EXPECT_EQ(allocations, 0);
}

// Host and editor do what they like while the audio thread plays; the thread sanitizer watches.
TEST_F(AudioThread, SharesTheEngineWithTheOthers)
{
    std::atomic<bool> done{false}, finite{true};
    std::thread audio([&] {
        for (int n = 0; !done; ++n) {
            Synth().SetTempo(60.0 + n % 200);
            if (n % 50 == 0) Synth().SetPlaying(n % 100 == 0);
            if (n % 9 == 0) Synth().SetParameter(param::Play, static_cast<float>(n % 2)); // as a MIDI link does
            Synth().QueueEvent(n % 2 ? 0x80 : 0x90, static_cast<std::uint8_t>(n % 128), 100, 0, 7);
            Block(1 + n % kFrames);
            for (const float sample : outputs[0])
                if (!std::isfinite(sample)) finite = false;
        }
    });
    std::mt19937 random(7);
    std::vector<std::uint8_t> state;
    for (int n = 0; n < 400; ++n) {
        for (int k = 0; k < 20; ++k)
            Synth().SetParameter(static_cast<int>(random() % param::Count), static_cast<float>(random() % 5) / 4.0f);
        Synth().SetPlaying(n % 3 == 0);
        for (const int transport : {param::Record, param::Play, param::Edit})
            Synth().SetParameter(transport, static_cast<float>(random() % 2));
        char text[256];
        Synth().SetProgramName(0, n % 2 ? "odd" : "a name of more than a word");
        Synth().GetProgramName(0, text);
        Synth().GetParameterDisplay(static_cast<int>(random() % param::Count), text);
        if (n % 20 == 3) {
            state.resize(static_cast<std::size_t>(Synth().GetBankChunk(nullptr)));
            Synth().GetBankChunk(state.data());
        }
        if (n % 40 == 13) Synth().SetBankChunk(state.data(), static_cast<int>(state.size()));
        if (n % 40 == 23) Synth().SetProgram(0);
        if (n % 100 == 33) Synth().SetSampleRate(44100.0 + n);
        Synth().links.Link(n % 2 == 0);
    }
    done = true;
    audio.join();
    EXPECT_TRUE(finite);
}

// Two host threads name the program and ask for its name: each sees one of the names whole.
TEST_F(AudioThread, NamesAreWhole)
{
    const std::string names[] = {std::string(200, 'a'), std::string(90, 'b')};
    std::atomic<int> torn{0};
    const auto rename = [&](const std::string& name) {
        for (int n = 0; n < 30000; ++n) {
            for (int k = 0; k < 10; ++k) Synth().SetProgramName(0, name.c_str());
            const std::string seen = Written([this](char* text) { Synth().GetProgramName(0, text); });
            torn += seen != names[0] && seen != names[1];
        }
    };
    Synth().SetProgramName(0, names[0].c_str());
    std::thread other([&] { rename(names[1]); });
    rename(names[0]);
    other.join();
    EXPECT_EQ(torn, 0);
}

} // namespace
} // namespace korvane
