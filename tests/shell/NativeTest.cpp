// The plug-in as the maker's own host gets it: how it is made, moved, named, played, mixed, saved; what it survives.
#include <dlfcn.h>

#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <thread>

#include "render/NativeHost.h"
#include "shell/CHarrowdeckWrapper.h"
#include "shell/ModuleInfo.h"
#include "support/Parameters.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

using namespace std::string_literals;
using Int = std::int32_t;
using Wide = std::intptr_t;
using Lines = std::vector<std::string>;
constexpr const char* kModule = KORVANE_BUNDLE "/korvane.so";
constexpr int kExtra = param::HostCount, kLevel = ParamOf(slot::MixLevel);

Lines told; // what engine, editor and host were asked and told, in order
template <class... Numbers>
void Say(std::string what, Numbers... numbers)
{
    ((what += ' ', what += std::to_string(numbers)), ...);
    told.push_back(what);
}
Lines Told() { return std::exchange(told, {}); }
int Thousandths(double value) { return static_cast<int>(1000.0 * value); }

// clang-format off
struct Engine final : CSynthesizer {
    using CSynthesizer::CSynthesizer;
    ~Engine() override { Say("engine ends"); }
    void NoteEvent(std::int8_t key, std::int8_t velocity) override { Say("note", key, velocity); }
    void ControllerChanged(std::int8_t n) override { Say("controller", n, Thousandths(controllers[n])); }
    void ChannelPressureChanged() override { Say("pressure", Thousandths(channelPressure)); }
    bool BankSelectReceived(int bank) override { Say("bank", bank); return true; }
    float GetParameter(int n) override { return values.at(n); }
    void SetParameter(int n, float value) override { values.at(n) = value; }
    void GetParameterName(int n, char* text) override { *std::fill_n(text, n == 153 ? 200 : 1, 'P') = '\0'; }
    void GetParameterDisplay(int n, char* text) override { std::sprintf(text, "%d", Thousandths(values.at(n))); }
    int GetExtraName(int n, char* text) override { return std::sprintf(text, "extra %d", n); }
    void GetParameterLabel(int, char* text) override { std::strcpy(text, "Hz"); }
    bool GetProgramName(int n, char* text) override { return std::sprintf(text, "Night %d", n) > 0; }
    Int GetBankChunk(void* to) override { if (to) std::memcpy(to, chunk.data(), 3); return 3; }
    Int SetBankChunk(const void* x, Int n) override { Say(chunk.assign(static_cast<const char*>(x), n)); return n; }
    void SetProgram(int n) override { Say("program", n); wrapper->ParameterAutomated(0, 0.5f); }
    void SetSampleRate(double hz) override { Say("rate", static_cast<int>(hz)); }
    void SetTempo(double bpm) override { Say("tempo", static_cast<int>(bpm)); }
    void Reset() override { Say("reset"); }
    int GetOutputTarget(int pair) override { return pair / 2; }
    int GetMidiPort() override { return port; }
    void ProcessMultiOut(float**, float** out, int frames) override // 1 into the first output, 2 into the second...
    { for (int n = 0; n < 28 * frames; ++n) if (out[n % 28]) out[n % 28][n / 28] += static_cast<float>(n % 28 + 1); }

    std::array<float, param::HostCount> values{}; // a wrong index throws
    std::string chunk = "abc";
    int port = -1;
};

struct Module final : CPluginDefinition {
    Module() { numHostParams = kExtra, numOutputPairs = 14, numPrograms = 3, SetDefinition(this); }
    ~Module() { SetDefinition(before); }
    CSynthesizer* CreateSynth(CPluginWrapper* bridge) override
    { Say("engine"); return engine = makesEngines ? new Engine(bridge) : nullptr; }
    CPluginDefinition* const before = Definition();
    Engine* engine = nullptr; // made last
    bool makesEngines = true;
};

struct Pieces final : render::NativeBytes { // a stream that gives a little at a time
    Int Read(void* buffer, Int size) override { return NativeBytes::Read(buffer, std::min(size, 999)); }
};

struct Recorder : render::NativeHost {
    Wide HostDispatch(Int tag, Int id, Int index, Wide value) override { Say("ask", tag, id, index, value); return 0; }
    void HostParameterChanged(Int tag, Int index, Int value) override { Say("changed", tag, index, value); }
    void HostShowHint(Int tag, const char* text) override { Say("hint " + std::to_string(tag) + ' ' + text); }
    void HostVoiceFinished(Wide tag, Wide reserved) override { Say("finished", tag, reserved); }
    Wide HostVoiceNotification(Wide tag, Int id, Wide a, Wide b) override { Say("voice", tag, id, a, b); return 0; }
    void HostLockMix() override { if (!mixes.empty()) Say("lock"); }
    void HostUnlockMix() override { if (!mixes.empty()) Say("unlock"); }
    float* HostGetMixBuffer(Int tag, Int target) override
    { if (!mixes.empty()) Say("mix", tag, target); return mixes.contains(target) ? mixes[target].data() : nullptr; }

    Int Set(int index, Int value) { return plugin->ProcessParameter(index, value, native_parameter::Set); }
    Int Get(int index) { return plugin->ProcessParameter(index, -77, native_parameter::Get); }
    Wide Trigger(float pitch, Wide tag, float volume = 1.0f)
    { NativeVoice voice{0.0f, volume, pitch}; return plugin->TriggerVoice(&voice, tag); }
    /// A block into a buffer that held 9, and a frame more.
    std::vector<float> Block(int frames = 1)
    {
        std::vector<float> sound(2 * static_cast<std::size_t>(std::max(frames, 0)) + 2, 9.0f);
        plugin->RenderGenerator(sound.data(), frames);
        return sound;
    }
    std::string State(bool save, const std::string& block = "")
    {
        Pieces stream;
        stream.bytes.assign(block.begin(), block.end());
        plugin->SaveRestoreState(&stream, save);
        return {stream.bytes.begin(), stream.bytes.end()};
    }
    std::map<int, std::vector<float>> mixes; // by their targets; where there are none, nothing is told of mixing
};

class Native : public testing::Test {
protected:
    Native() { told.clear(); }
    void Make() { host.plugin = bridge = new CHarrowdeckWrapper(host, 7, info.record); }

    const ContentRoot root;
    Module module;
    const ModuleInfo info{module};
    Recorder host;
    CHarrowdeckWrapper* bridge = nullptr;
};
// clang-format on

TEST_F(Native, IsMadeAndEndedInOrder)
{
    Make();
    EXPECT_EQ(Told(), (Lines{"ask 7 29 0 0", "engine", "rate 44100", "ask 7 33 0 1"}));
    for (const int rate : {48000, 96000}) bridge->Dispatch(native_dispatch::SetSampleRate, 0, rate);
    EXPECT_EQ(Told(), (Lines{"rate 48000", "program 0", "rate 96000"})) << "the first one selects, and reports nothing";
    for (const int id : {-1, 1, 2, 3, 5}) EXPECT_EQ(bridge->Dispatch(id, 0, 5) + bridge->HostEvent(id - 1, 90.0f), 0);
    std::thread([this] { EXPECT_TRUE(bridge->RealTime()); }).join();
    EXPECT_FALSE(bridge->RealTime());
    std::exchange(host.plugin, nullptr)->Destroy();
    EXPECT_EQ(Told(), (Lines{"tempo 90", "reset", "engine ends"}));
}

TEST_F(Native, MovesParametersOnItsScale)
{
    constexpr int kSet = native_parameter::Set, kGet = native_parameter::Get, kFine = kSet | native_parameter::Fine;
    Make();
    // clang-format off
    const std::tuple<int, int, int, int, int> cases[] = { // index, value, flags, answer, the engine's thousandths
        {5, 7, 0, 7, 753}, {5, 7, kGet, 192, 753}, {5, 192, kSet, 192, 750}, {153, 64, kSet, 64, 250},
        {5, 1, kSet, 1, 3}, {5, 300, kSet, 300, 1000}, {5, INT32_MAX, kSet, INT32_MAX, 1000},
        {5, INT32_MIN, kSet, INT32_MIN, 0}, {5, 65536, kFine, 256, 1000}, {5, 65535, kFine, 255, 996},
        {5, 256, kFine, 1, 3}, {5, 255, kFine, 0, 0}, {5, INT32_MAX, kFine, 8388607, 1000},
        {5, INT32_MIN, kFine, -8388608, 0}, {5, 64, kSet | kGet, 192, 750}, {-1, 77, kSet | kGet, 77, 753},
        {283, 77, kSet | kGet, 77, 753}, {INT32_MIN, 77, kSet | kGet, 77, 753}, {INT32_MAX, 77, kSet | kGet, 77, 753}};
    // clang-format on
    for (const auto& [index, value, flags, answer, after] : cases) {
        module.engine->values.fill(0.7534f);
        EXPECT_EQ(bridge->ProcessParameter(index, value, flags), answer) << index;
        EXPECT_EQ(Thousandths(module.engine->values[index == 153 ? 153 : 5]), after) << index << ' ' << value;
    }
}

// Each does all that MIDI does with it, and then tells the engine its number.
TEST_F(Native, MovesControllers)
{
    Make();
    EXPECT_EQ(host.Get(kExtra + 7), 0) << "not moved yet";
    for (const float pitch : {6000.0f, 6100.0f}) host.Trigger(pitch, 1);
    host.Block();
    // clang-format off
    const std::tuple<int, int, int, Lines> cases[] = { // number, value, what is kept
        {7,   256, 256, {"controller 7 1000"}},            {0,   -3,  0,   {"controller 0 0"}},
        {127, 400, 256, {"controller 127 1000"}},          {32,  255, 255, {"bank 126", "controller 32 996"}},
        {64,  160, 160, {"controller 64 625"}},            {64,  128, 128, {"controller 64 500"}},
        {64,  127, 127, {"note 60 0", "controller 64 496"}}, {64, 255, 255, {"controller 64 996"}},
        {123, 256, 256, {"controller 123 1000"}},          {64,  0,   0,   {"note 61 0", "controller 64 0"}},
        {128, 128, 128, {"pressure 500"}}};
    // clang-format on
    for (const auto& [number, value, kept, expected] : cases) {
        told.clear();
        host.Set(kExtra + number, value);
        EXPECT_EQ(std::pair(told, host.Get(kExtra + number)), std::pair(expected, kept)) << number;
        if (value == 160) bridge->ReleaseVoice(60), host.Block();
    }
    host.Set(kExtra + 121, 0);
    EXPECT_EQ(std::pair(told.size(), Lines{told[8], told.back()}),
              std::pair(130ul, Lines{"controller 7 1000", "controller 121 0"}));
}

TEST_F(Native, NamesWhatItHasAndTellsOfIt)
{
    Make();
    module.engine->values[5] = 0.5f;
    host.Set(kExtra + 7, 128);
    // clang-format off
    const std::tuple<int, int, std::string> cases[] = {
        {0, 0, "P"}, {0, 153, std::string(200, 'P')}, {0, 154, "MIDI CC 0"}, {0, 281, "MIDI CC 127"},
        {0, 282, "Chn. Aftertouch"}, {0, 283, "untouched"}, {0, INT32_MAX, "untouched"}, {1, 5, "500 Hz"},
        {1, 153, "0 Hz"}, {1, 154, "0"}, {1, 161, "63"}, {1, 282, "0"}, {1, 283, "untouched"},
        {2, 300, "extra 300"}, {6, 9, "Night 0"}, {3, 0, "untouched"}, {-1, 0, "untouched"}, {7, 0, "untouched"}};
    // clang-format on
    for (const auto& [section, index, expected] : cases) {
        EXPECT_EQ(Written([&, s = section, n = index](char* text) { bridge->GetName(s, n, 0, text); }), expected);
        bridge->GetName(section, index, 0, nullptr);
    }
    told.clear();
    for (const int n : {-1, 153, 154, INT32_MAX}) bridge->ParameterAutomated(n, 0.7499f);
    EXPECT_EQ(told, (Lines{"changed 7 153 191", "hint 7 " + std::string(128, 'P') + " 0 Hz"}));
}

// A key is struck, and with the block the host's voice ends; the key sounds until it is let go.
TEST_F(Native, PlaysTheHostsVoices)
{
    Make();
    // clang-format off
    const std::tuple<float, float, int, int> cases[] = { // pitch, volume, key, velocity
        {6000.0f, 1.0f, 60, 100}, {6099.9f, 0.5f, 60, 74}, {6100.0f, 2.0f, 61, 127}, {12700.0f, 0.1f, 127, 28},
        {12800.0f, 3.0f, 127, 127}, {-500.0f, 1.0f, 0, 100}, {1e38f, 1e38f, 127, 127}, {-INFINITY, INFINITY, 0, 127},
        {NAN, 1.0f, 0, 100}, {6000.0f, 0.0f, 60, 0}, {6000.0f, -1.0f, 60, 0}, {6000.0f, NAN, 60, 0}};
    // clang-format on
    for (const auto& [pitch, volume, key, velocity] : cases) {
        told.clear();
        EXPECT_EQ(host.Trigger(pitch, 5, volume), key) << pitch;
        host.Block();
        bridge->ReleaseVoice(key);
        host.Block();
        const std::string note = "note " + std::to_string(key) + ' ';
        const Lines struck{"voice 5 6 0 0", note + std::to_string(velocity), "finished 5 0", note + "0"};
        EXPECT_EQ(told, velocity ? struck : Lines({struck[0], struck[2]})) << volume;
    }
    told.clear();
    for (const auto& [pitch, tag] : {std::pair{6000.0f, 5}, {6100.0f, 6}, {6000.0f, 7}}) host.Trigger(pitch, tag);
    EXPECT_EQ(bridge->TriggerVoice(nullptr, 8), 0);
    EXPECT_EQ(told, (Lines{"voice 5 6 0 0", "voice 6 6 0 0", "finished 5 0", "voice 7 6 0 0"}));
    for (int key = 0; key < 128; ++key) EXPECT_EQ(host.Trigger(100.0f * static_cast<float>(key), key), key);
    host.Block();
    for (const Wide handle : {Wide{-1}, Wide{128}, INTPTR_MAX, Wide{60}}) bridge->KillVoice(handle);
    bridge->KillAllVoices();
    bridge->MidiIn(nullptr);
    for (const auto& [port, byte] : {std::pair{-1, std::uint8_t{255}}, {3, 2}, {3, 3}}) {
        module.engine->port = port;
        const NativeMidiMessage message{0x95, byte, 0xE4, byte};
        bridge->MidiIn(&message);
    }
    told.clear();
    host.Block();
    EXPECT_EQ(std::pair(told.size(), Lines{told[0], told[1], told[127], told.back()}),
              std::pair(129ul, Lines{"note 60 0", "note 0 0", "note 127 0", "note 3 100"}));
}

TEST_F(Native, AddsToTheHostsMix)
{
    Make();
    host.Trigger(6000, 1);
    told.clear();
    for (const int target : {0, 6}) host.mixes[target].assign(2 * 130 + 1, 100.0f);
    host.Block(130);
    Lines expected{"note 60 100", "finished 1 0", "lock"};
    for (int pair = 0; pair < 13; ++pair) expected.push_back("mix 7 " + std::to_string(pair / 2));
    expected.push_back("unlock");
    EXPECT_EQ(told, expected);
    for (int n = 0; n < 260; n += 2) // the sums of two pairs, and the last pair
        ASSERT_EQ((std::vector{host.mixes[0][n], host.mixes[0][n + 1], host.mixes[6][n], host.mixes[6][n + 1]}),
                  (std::vector{108.0f, 110.0f, 127.0f, 128.0f}));
    host.mixes.clear();
    for (const int frames : {-5, 0, 1, 65536, 65537}) {
        const auto sound = host.Block(frames);
        for (std::size_t n = 0; n < sound.size(); ++n)
            ASSERT_EQ(sound[n], n / 2 >= 65536 || n + 2 >= sound.size() ? 9.0f : n % 2 ? 11.0f : 10.0f) << frames;
    }
    bridge->RenderGenerator(nullptr, 130);
    const std::vector<float> source{10.0f, 20.0f, 30.0f, 40.0f};
    std::vector<float> sound(4);
    bridge->RenderEffect(source.data(), sound.data(), 2);
    EXPECT_EQ(sound, (std::vector{11.0f, 22.0f, 31.0f, 42.0f})) << "the engine has the source before it";
    for (const float* none : {source.data(), static_cast<const float*>(nullptr)})
        bridge->RenderEffect(none, nullptr, 2);
}

TEST_F(Native, SavesAndRestoresBlocks)
{
    Make();
    EXPECT_EQ(host.State(true), "SSDH\3\0\0\0abc\0\0\0\0"s);
    bridge->SaveRestoreState(nullptr, false);
    // clang-format off
    const std::pair<std::string, int> cases[] = { // the program it selects, -1: nothing happens
        {"SSDH\3\0\0\0xyz\2\0\0\0"s, 2}, {"SSDH\3\0\0\0xyz\3\0\0\0"s, 2}, {"SSDH\3\0\0\0xyz\0\0\0\x80"s, 0},
        {"HDSS\3\0\0\0xyz\1\0\0\0"s, -1}, {"SSDH\0\0\0\0\1\0\0\0"s, -1}, {"SSDH\3\0\0"s, -1}, {"SSD", -1}, {"", -1}};
    // clang-format on
    for (const auto& [block, program] : cases) {
        told.clear();
        host.State(false, block);
        if (program < 0) {
            EXPECT_EQ(told, Lines{}) << block;
            continue;
        }
        ASSERT_EQ(told.size(), 2u + 2u * param::HostCount)
            << "what stands is reported once, and not what is on its way";
        EXPECT_EQ(Lines(told.begin(), told.begin() + 4),
                  (Lines{"xyz", "program " + std::to_string(program), "changed 7 0 0", "hint 7 P 0 Hz"}));
    }
}

TEST_F(Native, LivesWithoutAnEngine)
{
    module.makesEngines = false;
    Make();
    for (const int n : {-1, 0, 2, 4, 6, kExtra, kExtra + 64, 282}) {
        EXPECT_EQ(bridge->Dispatch(n, 0, 5) + bridge->HostEvent(n, 90.0f) + host.Trigger(6000, n), 0);
        EXPECT_EQ(Written([&](char* text) { bridge->GetName(n, 0, host.Set(n, 5), text); }), "untouched");
    }
    bridge->KillAllVoices();
    EXPECT_EQ(host.Block(64), std::vector<float>(130, 9.0f));
    EXPECT_EQ(host.State(false, "SSDH\3\0\0\0xyz\0\0\0\0"s).size() + host.State(true).size(), 15u + 8u);
}

TEST_F(Native, LoadsAsWhatItIs)
{
    host.Load(kModule, 48000, 256);
    EXPECT_EQ(told, (Lines{"ask 1 29 0 0", "ask 1 33 0 1"})) << "it reports nothing while it is made";
    void* const library = dlopen(kModule, RTLD_NOW);
    EXPECT_FALSE(reinterpret_cast<render::NativeHost::Entry>(dlsym(library, "CreatePlugInstance"))(nullptr, 1));
    dlclose(library);
    const NativeInfo& record = *host.plugin->info;
    EXPECT_EQ((std::tuple{record.one, record.flags, record.numParams}), (std::tuple{1, 0x200011, 283}));
    EXPECT_EQ(record.longName + "Korvane"s, "Korvane"s + record.shortName);
    host.SetParameter(kLevel, 0.75f);
    EXPECT_EQ(host.Get(kLevel), 192);
    for (const int n : {-1, INT32_MIN}) EXPECT_EQ(host.ParameterName(n), "unknown");
    host.SetParameter(ParamOf(slot::NoiseMix), 1.0f); // a sound that needs no file
    host.QueueMidi(0, 0x90, 36, 100);
    host.Render(256);
    EXPECT_GT(Peak({host.Output(0), host.Output(0) + 256}), 0.001f);
}

// Of a block that is whole nothing is lost; whatever a block holds, the plug-in goes on.
TEST_F(Native, RestoresWhatItSaved)
{
    host.Load(kModule, 48000, 256);
    for (const int ext : {param::Ext1 + 3, param::Ext1 + 1}) { // two controls of one knob, which shall stand apart
        host.Set(ext, 0);
        for (const int pressed : {256, 0}) host.Set(param::ExtLearn, pressed);
        for (const int moved : {kLevel, ext}) host.Set(moved, moved == ext ? 32 : 192);
    }
    const std::string saved = host.State(true);
    told.clear();
    host.Set(kLevel, 0);
    host.State(false, saved);
    Recorder second;
    second.Load(kModule, 96000, 64);
    second.State(false, saved);
    EXPECT_TRUE(host.State(true) == saved && second.State(true) == saved);
    EXPECT_EQ(host.Get(kLevel), 32);
    const std::string level = "changed 1 " + std::to_string(kLevel) + ' ';
    const auto heard = std::find_if(told.rbegin(), told.rend(), [&](auto& line) { return line.starts_with(level); });
    EXPECT_EQ(*heard, level + "32") << "what the host hears last is so";
    EXPECT_GT(std::count(told.begin(), told.end(), "hint 1 EXT Ctrl Learn 0.0 % "), 0);
    for (const std::string& size : {"\xff\xff\xff\xff"s, "\xff\xff\xff\x7f"s, "\0\0\0\x80"s, "\1\0\0\0"s})
        host.State(false, "SSDH" + size + saved.substr(8));
    for (std::size_t length = 0; length < saved.size(); length += length < 200 ? 1 : 1009) {
        host.State(false, saved.substr(0, length));
        for (const float x : host.Block(32)) ASSERT_TRUE(std::isfinite(x)) << length;
    }
}

} // namespace
} // namespace korvane
