// The whole toolkit on a display server, in a host's window, moved by a user's hands.
#include <chrono>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "demo/DemoEditor.h"
#include "demo/DemoSkin.h"
#include "desktop/Display.h"
#include "gui/window/EditorThread.h"
#include "platform/window/DesktopWindow.h"
#include "support/Waiting.h"

namespace korvane {
namespace {

using namespace std::chrono_literals;

constexpr int kKnob = 93; // "Filter Resonance", at (114, 52) of the demo

struct DesktopTest : testing::Test {
    void SetUp() override
    {
        if (!DisplayServer::Installed()) GTEST_SKIP() << "there is no Xvfb";
        display = std::make_unique<DisplayServer>();
        host = std::make_unique<Host>();
        auto content = std::make_unique<demo::DemoEditor>(MakeDesktopWindow());
        editor = content.get();
        thread = std::make_unique<EditorThread>(std::move(content));
    }
    bool Open() { return thread->Open(host->Parent(), demo::kPageHeight, demo::kPageWidth); }
    long Windows() const { return std::ssize(host->Children(host->window)); }

    std::unique_ptr<DisplayServer> display;
    std::unique_ptr<Host> host;
    demo::DemoEditor* editor = nullptr;
    std::unique_ptr<EditorThread> thread;
};

TEST_F(DesktopTest, TwoHundredOpeningsLeaveNothing)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(Windows(), 1);
    thread->Close();
    const long files = OpenFiles();
    for (int n = 0; n < 200; ++n) {
        ASSERT_TRUE(Open()) << n;
        thread->Close();
    }
    EXPECT_EQ(std::pair(OpenFiles(), Windows()), std::pair(files, 0L));
}

TEST_F(DesktopTest, TheScreenShowsTheBackBufferAfterADragAmongTheHostsWrites)
{
    ASSERT_TRUE(Open());
    editor->synth->SetParameter(kKnob, 0.0f);
    thread->RefreshAll();
    host->Do("to 114,52 press 1");
    std::thread writer([&] {
        for (int n = 0; n <= 1000; ++n) {
            const float value = static_cast<float>(n % 100) / 100.0f;
            for (const int index : {92, 105, 77}) thread->ShowParameter(index, value);
            if (n % 100 == 0) thread->RefreshAll();
            std::this_thread::sleep_for(100us);
        }
    });
    for (int n = 1; n <= 50; ++n) host->Do("to 114," + std::to_string(52 - n)); // a quarter of the way
    writer.join();
    EXPECT_TRUE(Within(5s, [&] { return std::abs(editor->synth->GetParameter(kKnob) - 0.25f) < 1e-4f; }))
        << editor->synth->GetParameter(kKnob);
    host->Do("release 1");
    std::vector<std::uint32_t> screen, before;
    EXPECT_TRUE(Within(5s, [&] { // until nothing moves any more
        before = std::exchange(screen, host->Screen(400, 300));
        std::this_thread::sleep_for(60ms);
        return screen == before;
    }));
    thread->Close();
    ASSERT_EQ(screen.size(), 400u * 300u);
    const CDrawBuffer& buffer = editor->backBuffer;
    int different = 0;
    for (int row = 0; row < 300; ++row)
        for (int column = 0; column < 400; ++column) {
            const std::size_t place = static_cast<std::size_t>(buffer.height - 1 - row) * buffer.width + column;
            different += screen[static_cast<std::size_t>(row) * 400 + column] != (buffer.pixels[place] & 0xFFFFFF);
        }
    EXPECT_EQ(different, 0);
}

} // namespace
} // namespace korvane
