// The window's thread between hosts that open, close, write and wait as they like.
#include <chrono>
#include <csignal>
#include <future>

#include <gtest/gtest.h>

#include "gui/controls/CControlNumber.h"
#include "gui/window/EditorThread.h"
#include "support/EditorRig.h"

namespace korvane {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct EditorThreadTest : testing::Test {
    EditorThreadTest() : host(log), engine(&host) { Make(1); }

    void Make(int scale)
    {
        auto made = std::make_unique<MemoryWindow>(scale);
        window = made.get();
        auto content = std::make_unique<TestEditor>(std::move(made), &engine, log);
        content->fill = [this, editor = content.get()] {
            openings.push_back(editor->parentWindow);
            sigset_t blocked;
            pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
            quiet = sigismember(&blocked, SIGPIPE) == 1;
            editor->AddControl(new CControlNumber({0, 0, 300, 200}, 92));
            return true;
        };
        ui = content.get();
        thread = std::make_unique<EditorThread>(std::move(content));
    }

    /// Waits until the host hears of the gesture, and does that in its first call.
    void PressKnob(std::function<void()> inside = [] {})
    {
        auto begun = std::make_shared<std::promise<void>>();
        host.during = [=, told = false]() mutable {
            if (std::exchange(told, true)) return;
            begun->set_value();
            inside();
        };
        window->MoveTo(10, 10);
        window->Press(mouse::LeftDown);
        ASSERT_EQ(begun->get_future().wait_for(5s), std::future_status::ready);
    }

    Log log;
    LoggingHost host;
    NumberEngine engine;
    MemoryWindow* window = nullptr;
    TestEditor* ui = nullptr;
    std::vector<void*> openings; // the parents
    bool quiet = false;          // a server that is gone does not end the host
    std::unique_ptr<EditorThread> thread;
};

TEST_F(EditorThreadTest, OpensAndClosesAgainAndAgain)
{
    for (int n = 0; n < 20; ++n) {
        ASSERT_TRUE(thread->Open(nullptr, 200, 300));
        ASSERT_TRUE(quiet);
        EXPECT_TRUE(thread->Open(nullptr, 200, 300));
        EXPECT_NE(thread->Handle(), nullptr);
        thread->ShowParameter(92, 0.5f);
        thread->RefreshAll();
        thread->Close();
        EXPECT_FALSE(thread->Handle() || ui->windowHandle);
        thread->Close();
    }
    ui->fill = [] { return false; };
    for (int n = 0; n < 2; ++n) EXPECT_FALSE(thread->Open(nullptr, 200, 300)) << "nothing to show";
}

TEST_F(EditorThreadTest, TellsTheScaledSizeAndOpensThePlainOne)
{
    Make(2);
    int height = 0, width = 0;
    thread->GetEditorSize(height, width);
    EXPECT_EQ((Size{height, width}), (Size{400, 600}));
    ASSERT_TRUE(thread->Open(nullptr, height, width));
    thread->Close();
    EXPECT_EQ(window->size, (Size{200, 300}));
}

TEST_F(EditorThreadTest, NoticesArriveFromAnyThreadDuringADrag)
{
    ASSERT_TRUE(thread->Open(nullptr, 200, 300));
    PressKnob();
    std::thread writer([&] {
        for (int n = 0; n < 2000; ++n) {
            engine.SetParameter(92, static_cast<float>(n) / 2000.0f);
            thread->ShowParameter(92, static_cast<float>(n) / 2000.0f);
            if (n % 100 == 0) thread->RefreshAll();
        }
    });
    for (int n = 0; n < 200; ++n) {
        window->MoveTo(10, n);
        window->Advance(40);
        std::this_thread::sleep_for(100us);
    }
    writer.join();
    window->Press(mouse::LeftUp);
    thread->Close();
    EXPECT_EQ(std::count(log.begin(), log.end(), "begin 92 0"), 1);
    EXPECT_EQ(std::count(log.begin(), log.end(), "end 92 0"), 1);
}

TEST_F(EditorThreadTest, CloseEndsAGesture)
{
    ASSERT_TRUE(thread->Open(nullptr, 200, 300));
    PressKnob();
    thread->Close();
    EXPECT_EQ(log.back(), "end 92 0");
    EXPECT_FALSE(window->grabbed);
}

TEST_F(EditorThreadTest, CloseComesBackWhileTheHostKeepsTheThread)
{
    ASSERT_TRUE(thread->Open(nullptr, 200, 300));
    std::promise<void> release;
    PressKnob([released = release.get_future().share()] { released.wait(); });
    const auto begin = Clock::now();
    thread->Close();
    EXPECT_LT(Clock::now() - begin, 500ms);
    EXPECT_TRUE(window->withdrawn) << "it is gone from the screen";
    EXPECT_EQ(thread->Handle(), nullptr);
    EXPECT_FALSE(thread->Open(nullptr, 200, 300)) << "its thread is still with the host";
    release.set_value();
    EXPECT_TRUE(thread->Open(nullptr, 200, 300));
    EXPECT_FALSE(window->withdrawn);
}

TEST_F(EditorThreadTest, TheHostMayCloseFromInsideACall)
{
    ASSERT_TRUE(thread->Open(nullptr, 200, 300));
    std::promise<bool> answer;
    PressKnob([&] {
        thread->Close();
        answer.set_value(thread->Open(nullptr, 200, 300));
    });
    EXPECT_FALSE(answer.get_future().get()) << "not before the call has come back";
    EXPECT_TRUE(thread->Open(nullptr, 200, 300));
}

TEST_F(EditorThreadTest, ALostParentCountsAsClosed)
{
    ASSERT_TRUE(thread->Open(nullptr, 200, 300));
    window->LoseParent();
    const auto begin = Clock::now();
    while (thread->Handle() && Clock::now() - begin < 5s) std::this_thread::sleep_for(1ms);
    EXPECT_EQ(thread->Handle(), nullptr);
    EXPECT_TRUE(thread->Open(nullptr, 200, 300));
    EXPECT_NE(thread->Handle(), nullptr);
    window->LoseParent();
    thread->Close();
    EXPECT_EQ(ui->windowHandle, nullptr);
}

TEST_F(EditorThreadTest, AnotherParentGetsAWindowOfItsOwn)
{
    int first = 0, second = 0;
    ASSERT_TRUE(thread->Open(&first, 200, 300));
    window->Key('A', true);
    ASSERT_TRUE(thread->Open(&second, 200, 300));
    thread->Close();
    EXPECT_EQ(openings, (std::vector<void*>{&first, &second}));
    EXPECT_TRUE(window->heldKeys.empty());
}

} // namespace
} // namespace korvane
