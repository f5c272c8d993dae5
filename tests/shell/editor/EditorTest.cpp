// The editor as VST 2 hosts get it: on a display server, in windows of theirs, moved by a user's hands.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "desktop/Display.h"
#include "framework/ParameterTable.h"
#include "render/NativeHost.h"
#include "shell/vst2/AEffect.h"
#include "support/ContentRoot.h"
#include "support/Waiting.h"

namespace korvane {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr int kKnob = 47, kKnobX = 85, kKnobY = 59; // "EXT Ctrl 1"; its centre in the editor
constexpr int kNumber = 82;                         // "CHN: Pitch", a text
constexpr Rect kNumberPlace{594, 323, 30, 16};

/// One instance in a host, and what the host hears of the knob.
struct Hosted {
    explicit Hosted(void* module)
    {
        const auto entry = reinterpret_cast<AEffect* (*)(AudioMasterCallback)>(dlsym(module, "VSTPluginMain"));
        effect = entry(Heard);
        effect->user = this;
        scale = std::atoi(std::getenv("KORVANE_SCALE"));
    }
    ~Hosted() { Ask(request::Close); }

    static std::intptr_t Heard(AEffect* from, std::int32_t opcode, std::int32_t index, std::intptr_t, void*, float)
    {
        if (opcode == host_request::Version) return 2400;
        Hosted* const self = from ? static_cast<Hosted*>(from->user) : nullptr;
        if (self && index == kKnob) {
            self->begun += opcode == host_request::BeginEdit;
            self->moved += opcode == host_request::Automate;
            self->ended += opcode == host_request::EndEdit;
        }
        return 0;
    }
    std::intptr_t Ask(std::int32_t opcode, void* pointer = nullptr, std::intptr_t value = 0)
    {
        if (!effect) return -1;
        const std::intptr_t answer = effect->dispatcher(effect, opcode, 0, value, pointer, 0.0f);
        if (opcode == request::Close) effect = nullptr;
        return answer;
    }
    std::intptr_t Open() { return Ask(request::EditorOpen, host.Parent()); }
    float Get() const { return effect->getParameter(effect, kKnob); }
    void Set(int index, float value) { effect->setParameter(effect, index, value); }
    /// Drags the knob up, a quarter of its way for 50 pixels of the editor's; it stays pressed.
    template <class Act>
    void Drag(int pixels, Act atEach)
    {
        const std::string to = "to " + std::to_string(kKnobX * scale) + ",";
        host.Do(to + std::to_string(kKnobY * scale) + " press 1");
        for (int n = 1; n <= pixels; ++n) {
            host.Do(to + std::to_string((kKnobY - n) * scale));
            atEach(n);
        }
    }
    void Drag(int pixels)
    {
        Drag(pixels, [](int) {});
    }
    /// What the number shows, in a host's window that is large enough.
    std::vector<std::uint32_t> Number() const
    {
        const int w = kNumberPlace.x + kNumberPlace.w, h = kNumberPlace.y + kNumberPlace.h;
        const auto screen = host.Screen(w, h);
        std::vector<std::uint32_t> number;
        for (int y = kNumberPlace.y; y < h; ++y)
            number.insert(number.end(), screen.begin() + y * w + kNumberPlace.x, screen.begin() + (y + 1) * w);
        return number;
    }
    std::vector<Size> Windows() const
    {
        std::vector<Size> sizes;
        for (const xcb_window_t child : host.Children(host.window)) sizes.push_back(host.SizeOf(child));
        return sizes;
    }

    Host host;
    AEffect* effect = nullptr; // null when it was closed
    int scale = 1;
    std::atomic<int> begun{0}, moved{0}, ended{0};
};

using Sizes = std::vector<Size>;

struct EditorTest : testing::Test {
    void SetUp() override
    {
        if (!DisplayServer::Installed()) GTEST_SKIP() << "there is no Xvfb";
        display = std::make_unique<DisplayServer>();
        client = std::make_unique<XcbConnection>();
        setenv("KORVANE_SCALE", "1", 1);
        fs::remove(skin);
        fs::create_directory(skin);
        for (const auto& image : fs::directory_iterator(KORVANE_BUNDLE "/Graphics"))
            fs::create_symlink(image, skin / image.path().filename());
        module = dlopen(KORVANE_BUNDLE "/korvane.so", RTLD_NOW);
        ASSERT_TRUE(module) << dlerror();
    }
    ~EditorTest() override
    {
        if (module) dlclose(module);
    }
    const BundleRoot root;
    const fs::path skin = root.path / "Graphics";
    std::unique_ptr<DisplayServer> display;
    std::unique_ptr<XcbConnection> client; // a server whose last one leaves starts anew
    void* module = nullptr;
};

TEST_F(EditorTest, OpensMovesAndClosesInEveryScale)
{
    for (const int scale : {1, 2, 3}) {
        SCOPED_TRACE(scale);
        setenv("KORVANE_SCALE", std::to_string(scale).c_str(), 1);
        Hosted plugin(module);
        ASSERT_TRUE(plugin.effect->flags & effect_flag::HasEditor);
        plugin.Set(kKnob, 0.5f);
        ERect* place = nullptr;
        EXPECT_EQ(plugin.Ask(request::EditorRectangle, &place), 1);
        EXPECT_EQ(std::tuple(place->left, place->top, place->right, place->bottom),
                  std::tuple(0, 0, 1065 * scale, 630 * scale));
        for (int n = 0; n < 2; ++n) EXPECT_EQ(plugin.Open(), 1);
        EXPECT_EQ(plugin.Windows(), (Sizes{{630 * scale, 1065 * scale}}));
        plugin.Drag(50);
        plugin.host.Do("release 1");
        EXPECT_TRUE(Within(5s, [&] { return plugin.ended == 1; }));
        EXPECT_FLOAT_EQ(plugin.Get(), 0.75f);
        EXPECT_TRUE(plugin.begun == 1 && plugin.moved > 0);
        for (int n = 0; n < 2; ++n) EXPECT_EQ(plugin.Ask(request::EditorClose), 0);
        EXPECT_EQ(plugin.Windows(), Sizes());
        EXPECT_EQ(plugin.Open(), 1);
        plugin.Drag(1);
        EXPECT_TRUE(Within(5s, [&] { return plugin.begun == 2; }));
        EXPECT_EQ(plugin.Ask(request::Close), 1) << "with the window open and the mouse held";
        EXPECT_EQ(std::pair(plugin.ended == 2, plugin.Windows()), std::pair(true, Sizes()));
        plugin.host.Do("release 1");
    }
}

TEST_F(EditorTest, StaysClosedWithoutAnImageAndLeavesNothing)
{
    Hosted plugin(module);
    const fs::path last = skin / "btn track enable.tga", aside = root.path / "aside";
    fs::rename(last, aside);
    const long files = OpenFiles();
    for (int n = 0; n < 3; ++n) EXPECT_EQ(plugin.Open(), 0);
    EXPECT_EQ(std::pair(OpenFiles(), plugin.Windows()), std::pair(files, Sizes()));
    fs::rename(aside, last);
    EXPECT_EQ(plugin.Open(), 1);
}

TEST_F(EditorTest, TwoInstancesHaveTheirOwn)
{
    Hosted below(module), above(module);
    for (Hosted* plugin : {&below, &above}) {
        plugin->Set(kKnob, 0.5f);
        EXPECT_EQ(plugin->Open(), 1);
    }
    above.Drag(50);
    above.host.Do("release 1");
    EXPECT_TRUE(Within(5s, [&] { return above.ended == 1; }));
    above.host.Destroy(); // with the editor in it
    EXPECT_EQ(above.Ask(request::EditorClose), 0);
    below.Drag(20);
    below.host.Do("release 1");
    EXPECT_TRUE(Within(5s, [&] { return below.ended == 1; }));
    EXPECT_EQ(std::pair(above.Get(), below.Get()), std::pair(0.75f, 0.6f));
}

// What the user has chosen last is told to host and editor by the window's thread.
TEST_F(EditorTest, EndsOpenAfterAProgramWasChosen)
{
    Hosted plugin(module);
    const float before = plugin.effect->getParameter(plugin.effect, 92);
    EXPECT_EQ(plugin.Open(), 1);
    plugin.host.Do("to 220,248 press 1 release 1 to 220,268 press 1 release 1"); // the first of the categories
    EXPECT_TRUE(Within(5s, [&] { return plugin.effect->getParameter(plugin.effect, 92) != before; }));
    EXPECT_EQ(plugin.Ask(request::Close), 1);
}

// A host that plays, writes and loads grooves while a knob is dragged; then what it writes is seen.
TEST_F(EditorTest, APlayingHostWritesAndLoadsDuringADrag)
{
    Hosted plugin(module);
    void* state = nullptr;
    const std::intptr_t bytes = plugin.Ask(request::GetChunk, &state);
    std::vector<char> groove(static_cast<char*>(state), static_cast<char*>(state) + bytes);
    EXPECT_EQ(plugin.Open(), 1);
    std::atomic<bool> playing{true};
    std::thread audio([&] {
        std::vector<float> sound(512);
        std::vector<float*> outputs(28, sound.data());
        while (playing) plugin.effect->processReplacing(plugin.effect, nullptr, outputs.data(), 512);
    });
    plugin.Set(param::Play, 1.0f);
    plugin.Drag(50, [&](int n) {
        for (const int index : {kKnob, 92, 92 + n}) plugin.Set(index, static_cast<float>(n) / 50.0f);
        if (n % 10 == 0) { EXPECT_EQ(plugin.Ask(request::SetChunk, groove.data(), bytes), bytes); }
    });
    plugin.host.Do("release 1");
    EXPECT_TRUE(Within(5s, [&] { return plugin.begun == 1 && plugin.ended == 1 && plugin.moved > 0; }));
    const std::uint32_t size[] = {700, 400};
    plugin.host.Now(xcb_configure_window(plugin.host.server, plugin.host.window,
                                         XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size));
    for (const float value : {1.0f, 0.0f, 0.7f}) {
        const auto before = plugin.Number();
        plugin.Set(kNumber, value);
        EXPECT_TRUE(Within(5s, [&] { return plugin.Number() != before; })) << value;
    }
    playing = false;
    audio.join();
}

/// What a native host hears of the knob.
struct NativeHosted : render::NativeHost {
    void HostParameterChanged(std::int32_t, std::int32_t index, std::int32_t value) override
    {
        if (index == kKnob) last = value;
    }
    void Show(void* parent)
    {
        plugin->Dispatch(native_dispatch::ShowEditor, 0, reinterpret_cast<std::intptr_t>(parent));
    }

    std::atomic<int> last{-1};
};

// The host reads the window's number from the plug-in.
TEST_F(EditorTest, OpensInANativeHost)
{
    Host host;
    NativeHosted plugin;
    plugin.Load(KORVANE_BUNDLE "/korvane.so", 44100.0, 64);
    plugin.Show(nullptr);
    for (int n = 0; n < 2; ++n) {
        EXPECT_EQ(plugin.plugin->editorHandle, nullptr);
        plugin.SetParameter(kKnob, 0.5f);
        plugin.Show(host.Parent());
        ASSERT_EQ(host.Children(host.window).size(), 1u);
        EXPECT_EQ(plugin.plugin->editorHandle,
                  reinterpret_cast<void*>(std::uintptr_t{host.Children(host.window).at(0)}));
        host.Do("to 85,59 press 1 to 85,9 release 1");
        EXPECT_TRUE(Within(5s, [&] { return plugin.last == 192; })) << plugin.last;
        plugin.Show(nullptr);
        EXPECT_EQ(host.Children(host.window).size(), 0u);
    }
    plugin.Show(host.Parent()); // and ends so
}

} // namespace
} // namespace korvane
