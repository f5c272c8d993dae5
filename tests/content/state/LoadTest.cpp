// Loads beside a running engine: what they wait for, what the audio hears of them, where they are reported.
#include <atomic>
#include <thread>

#include "content/state/Images.h"
#include "support/Riff.h"
#include "support/Stage.h"

namespace korvane {
namespace {

class Loads : public StageTest {
protected:
    /// Renders on a thread of its own, in real time as far as the host goes, until the end of `act`. How many of its
    /// blocks were silent.
    template <class Act>
    int SilentBlocksDuring(Act act)
    {
        std::atomic<bool> done{false}, started{false};
        int silent = 0;
        host.realTime = true;
        std::thread audio([&] {
            audioThread = std::this_thread::get_id();
            for (; !done; started = true) {
                Play(64, 64);
                silent += Peak(Left(8)) == 0.0f;
                std::this_thread::sleep_for(std::chrono::microseconds(300));
            }
        });
        while (!started) std::this_thread::yield();
        act();
        done = true;
        audio.join();
        host.realTime = false;
        return silent;
    }

    std::thread::id audioThread;
};

// The note that sounds goes on through states, parts, programs and samples; each is there when its load returns.
TEST_F(Loads, NeverSilenceABlock)
{
    GiveSine(8);
    Set(ParamOf(slot::AmpSustain), 1.0f);
    Queue(0x90, kAnyKey, 127);
    Play(256);
    ASSERT_GT(Peak(Left(8)), 0.0f);
    WriteText(root / "a.wav", riff::WavOf(std::vector<float>(100, 0.5f)));
    const std::string part = Path("a.kvprt"), program = Path("a.kvsynth"), groove = Path("a.kvprj"),
                      sample = Path("a.wav");
    for (int n = 0; n < 3; ++n) Engine().Channel(8).sound.sampleSlots[n].path.Set(sample.c_str());
    ASSERT_TRUE(Synth().SavePartFile(part.c_str()) && Synth().SaveGrooveFile(groove.c_str()));
    ASSERT_TRUE(Synth().SaveProgramFile(program.c_str()));
    const Bytes state = Saved(Engine());
    EXPECT_LE(SilentBlocksDuring([&] {
                  for (int n = 0; n < 20; ++n) {
                      EXPECT_TRUE(Synth().LoadPartFile(part.c_str()) && Synth().LoadProgramFile(program.c_str()));
                      Engine().clock.shuffleAmount = 0.75f;
                      EXPECT_EQ(Synth().SetBankChunk(state.data(), static_cast<int>(std::size(state))),
                                static_cast<int>(std::size(state)));
                      EXPECT_EQ(Engine().clock.shuffleAmount, 0.0f);
                      EXPECT_TRUE(Synth().LoadGrooveFile(groove.c_str()));
                      Synth().LoadSample(0, kFirstLayerSlot, sample.c_str());
                  }
              }),
              1); // one that was held up so long that the loader gave it up
    Play(64);
    EXPECT_EQ(TextOf(Engine().Channel(0).sound.sampleSlots[kFirstLayerSlot].name), "a");
    EXPECT_EQ(TextOf(Engine().Channel(8).sound.sampleSlots[0].name), "a");
}

// What is saved while another thread loads is one groove or the other.
TEST_F(Loads, SavesAreOfOneState)
{
    KVInstrument synth(&host); // without blocks, for which loads would wait
    Bytes states[2];
    for (unsigned n = 0; n < 2; ++n) {
        GrooveEngine source;
        FillGroove(source, n);
        states[n] = Saved(source);
    }
    std::atomic<bool> done{false};
    std::thread loading([&] {
        for (int n = 0; !done; ++n)
            synth.SetBankChunk(states[n % 2].data(), static_cast<int>(std::ssize(states[n % 2])));
    });
    Bytes saved(2 * states[0].size());
    while (synth.GetBankChunk(nullptr) != std::ssize(states[0])) std::this_thread::yield();
    int mixed = 0;
    for (int n = 0; n < 2000; ++n) { // one of some hundred meets a change
        const auto size = static_cast<std::size_t>(synth.GetBankChunk(saved.data()));
        mixed += std::none_of(std::begin(states), std::end(states), [&](const Bytes& state) {
            return size == state.size() && std::equal(state.begin(), state.end(), saved.begin());
        });
    }
    done = true;
    loading.join();
    EXPECT_EQ(mixed, 0);
}

// A start that comes while a groove loads plays it, also when a block has begun to play what was before.
TEST_F(Loads, StartsWhileAGrooveLoadsCountOnIt)
{
    const Bytes state = Saved(Engine());
    for (const bool started : {false, true}) {
        Synth().SetPlaying(false);
        Play(64);
        std::atomic<bool> done{false};
        std::thread loading([&] {
            Synth().SetBankChunk(state.data(), static_cast<int>(std::ssize(state)));
            done = true;
        });
        while (Engine().commands.sinceLoad == 0u && !done) std::this_thread::yield(); // it waits for the next block
        if (started) Synth().SetPlaying(true);
        for (int n = 0; n < 100; ++n) Play(64);
        loading.join();
        Play(64);
        EXPECT_EQ(Engine().clock.playing, started);
    }
}

// An image that ends too early leaves what came before its end; what no image has is as in an empty groove.
TEST_F(Loads, LeaveOfARefusedImageWhatItHas)
{
    GrooveEngine source;
    FillGroove(source, 3);
    const Bytes whole = Saved(source);
    for (const int length :
         {3, 60, kHeader + 200, kHeader + kFramedChannel + 4000, kPatternsAt + 2, kPatternsAt + 5000}) {
        SCOPED_TRACE(length);
        const Bytes cut(whole.begin(), whole.begin() + length);
        Close();
        Engine().mixer.soloSelected = true;
        GrooveEngine expected;
        std::snprintf(expected.defaultWavePath, sizeof expected.defaultWavePath, "%s", Engine().defaultWavePath);
        expected.ResetGroove();
        EXPECT_EQ(Synth().SetBankChunk(cut.data(), length) != 0, Load(expected, cut));
        EXPECT_TRUE(Saved(Engine()) == Saved(expected));
        EXPECT_EQ(Engine().mixer.soloSelected, length < 4);
    }
}

// In real time nobody waits: the loader reads later, into the channel that was selected then, and reports by itself.
// Elsewhere the program is there at its event, and reported before the block ends.
TEST_F(Loads, BlocksWaitForProgramsOnlyWhereTheHostLetsThem)
{
    Bytes program(kChannelChunk);
    Engine().storedParams[8][slot::FilterCutoff] = 0.25f;
    SaveChannelChunk(Engine(), program.data(), 8);
    WriteBytes(root / "Synth Programs/A/1.kvsynth", program);
    for (const bool realTime : {false, true}) {
        Close();
        host.realTime = realTime;
        host.told = 0;
        std::atomic<bool> released{!realTime}, toldHere{false};
        host.whenTold = [&, audio = std::this_thread::get_id()] {
            if (std::this_thread::get_id() == audio) toldHere = true;
            while (!released) std::this_thread::yield();
        };
        const auto cutoff = [this](int c) { return static_cast<float>(Engine().storedParams[c][slot::FilterCutoff]); };
        Engine().selection.selectedChannel = 9;
        ASSERT_NE(cutoff(9), 0.25f);
        for (const int loads : {1, 2}) { // in real time the host is still busy with the report of the first
            Queue(0xB0, controller::BankSelect, 0);
            Play(64);
            if (!realTime) { EXPECT_EQ(host.told, loads * param::Count); }
            if (!realTime) { EXPECT_EQ(cutoff(9), 0.25f); }
        }
        Engine().selection.selectedChannel = 10;
        Synth().LoadSample(0, kFirstLayerSlot, ""); // waits for no report
        released = true;
        Synth().FinishLoading();
        EXPECT_EQ(cutoff(9), 0.25f);
        EXPECT_NE(cutoff(10), 0.25f);
        EXPECT_EQ(host.told, 2 * param::Count);
        EXPECT_FALSE(toldHere);
    }
}

} // namespace
} // namespace korvane
