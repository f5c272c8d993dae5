// The plug-in as hosts get it: its file, its record, its clock; what it answers, asks for, and survives.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

#include "content/state/StateImage.h"
#include "shell/CVstWrapper.h"
#include "shell/vst2/AEffect.h"
#include "support/Parameters.h"
#include "support/Riff.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

// clang-format off
struct Call { AEffect* effect; std::int32_t opcode, index; std::intptr_t value; float option; };
// clang-format on
std::vector<Call> calls;
struct {
    std::int32_t version = 2400;
    bool givesTime = true;
    VstTimeInfo tempo{}, position{};                                   // answers to the requests for them
    void (*whenAutomated)(AEffect*, int index) = [](AEffect*, int) {}; // what the host does with a report
} host;

std::intptr_t HostCallback(AEffect* effect, std::int32_t opcode, std::int32_t index, std::intptr_t value, void*,
                           float option)
{
    calls.push_back({effect, opcode, index, value, option});
    if (opcode == host_request::Automate) host.whenAutomated(effect, index);
    if (opcode == host_request::Version) return host.version;
    if (opcode != host_request::GetTime || !host.givesTime) return 0;
    return reinterpret_cast<std::intptr_t>(value == time_flag::TempoValid ? &host.tempo : &host.position);
}

class Bridge : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(module) << dlerror(); }
    ~Bridge() override
    {
        if (effect) Ask(request::Close);
        if (module) dlclose(module);
        host = {};
        calls.clear();
    }
    AEffect* Make(const char* entry = "VSTPluginMain", AudioMasterCallback callback = HostCallback)
    {
        return reinterpret_cast<AEffect* (*)(AudioMasterCallback)>(dlsym(module, entry))(callback);
    }
    void Open() { effect = Make(); }
    std::intptr_t Ask(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0, void* pointer = nullptr,
                      float option = 0.0f)
    {
        const std::intptr_t answer = effect->dispatcher(effect, opcode, index, value, pointer, option);
        if (opcode == request::Close) effect = nullptr;
        return answer;
    }
    /// A block into buffers that held 9.
    void Render(int frames, bool replacing = true)
    {
        float* pointers[28];
        for (std::size_t n = 0; n < outputs.size(); ++n) {
            outputs[n].assign(static_cast<std::size_t>(std::max(frames, 0)) + 1, 9.0f);
            pointers[n] = outputs[n].data();
        }
        (replacing ? effect->processReplacing : effect->process)(effect, nullptr, pointers, frames);
    }
    float Get(int index) { return effect->getParameter(effect, index); }
    /// Opens it with a groove that clicks on every fourth step.
    void OpenClock(float rate)
    {
        const auto click = root.path / "click.wav";
        WriteText(click, riff::WavOf(std::vector<float>(64, 0.5f)));
        GrooveEngine groove;
        groove.ResetGroove();
        groove.Channel(0).sound.sampleSlots[kFirstLayerSlot].path.Set(EnginePath(click.c_str()).c_str());
        for (int s = 0; s < kStepsPerBar; s += 4) groove.score.patterns[0]->steps[0][s] = 1u << s;
        std::vector<std::uint8_t> chunk(static_cast<std::size_t>(SaveState(groove, nullptr)));
        SaveState(groove, chunk.data());
        Open();
        EXPECT_EQ(Ask(request::SetBlockSizeAndSampleRate, 0, 512, nullptr, rate), 1);
        EXPECT_EQ(Ask(request::SetChunk, 0, std::ssize(chunk), chunk.data()), std::ssize(chunk));
        host.position.flags = time_flag::PpqPositionValid;
        host.tempo.flags = time_flag::TempoValid | time_flag::TransportPlaying | time_flag::TransportChanged;
    }

    const ContentRoot root; // empty: nothing of this machine's settings and files
    void* module = dlopen(KORVANE_BUNDLE "/korvane.so", RTLD_NOW);
    AEffect* effect = nullptr;
    std::array<std::vector<float>, 28> outputs;
};

TEST_F(Bridge, IsMadeInOrder)
{
    _MM_SET_FLUSH_ZERO_MODE(_MM_FLUSH_ZERO_OFF);
    host.version = 0;
    for (const auto& callback : {AudioMasterCallback{}, HostCallback}) EXPECT_FALSE(Make("VSTPluginMain", callback));
    EXPECT_EQ(calls.size(), 1u);
    host.version = 2400;
    calls.clear();
    // The reports come before the host has the effect from the entry: the record is whole, and a host may act on them.
    host.whenAutomated = [](AEffect* made, int index) {
        EXPECT_EQ(made->numOutputs, 28);
        EXPECT_EQ(made->getParameter(made, index), calls.back().option);
        // Fields of the host's own.
        EXPECT_EQ(std::tuple(made->user, made->reserved1, made->reserved2), std::tuple(nullptr, 0, 0));
        void* chunk = nullptr;
        if (index == 0) { EXPECT_GT(made->dispatcher(made, request::GetChunk, 0, 0, &chunk, 0.0f), 0); }
    };
    Open();
    ASSERT_TRUE(effect);
    std::vector<int> opcodes,
        expected = {host_request::Version, host_request::VendorString, host_request::ProductString};
    expected.resize(3 + param::HostCount, host_request::Automate);
    for (const Call& call : calls) opcodes.push_back(call.opcode);
    ASSERT_EQ(opcodes, expected);
    for (int n = 0; n < param::HostCount; ++n)
        EXPECT_EQ(std::pair(calls[3 + n].index, calls[3 + n].effect), std::pair(n, effect));
    EXPECT_EQ(_MM_GET_FLUSH_ZERO_MODE(), 0u + _MM_FLUSH_ZERO_OFF) << "the host's own";
    const std::vector<int> record = {effect->magic,     effect->uniqueId,   effect->numPrograms, effect->numParams,
                                     effect->numInputs, effect->numOutputs, effect->version,     effect->initialDelay};
    EXPECT_EQ(record, (std::vector<int>{0x56737450, 0x4B765348, 1, param::HostCount, 2, 28, 1, 0})) << "PtsV, HSvK";
    EXPECT_EQ(effect->flags, 0x131);
    EXPECT_EQ(effect->ioRatio, 1.0f);
    EXPECT_EQ(Ask(request::Close), 1);
    effect = Make("main");
    EXPECT_EQ(_MM_GET_FLUSH_ZERO_MODE(), 0u + _MM_FLUSH_ZERO_ON);
    _MM_SET_FLUSH_ZERO_MODE(_MM_FLUSH_ZERO_OFF);
}

TEST_F(Bridge, AnswersItsRequests)
{
    Open();
    // Requests that nothing acts on get 0, but where that would tell the host something untrue.
    // clang-format off
    std::map<int, std::intptr_t> answers = {
        {request::GetProgram, 1}, {request::Identify, FourBytes("fEvN")}, {request::ProcessEvents, 1},
        {request::ProgramCategories, 1}, {request::ProgramNameByIndex, 1}, {request::ConnectInput, 1},
        {request::ConnectOutput, 1}, {request::PlugCategory, 2}, {request::SetBlockSizeAndSampleRate, 1},
        {request::KeysRequired, 1}, {request::InterfaceVersion, 2400}, {request::CurrentMidiProgram, -1}};
    // clang-format on
    for (int opcode = -7; opcode < 100; ++opcode) {
        if (opcode == request::Close || opcode == request::CanBeAutomated) continue;
        EXPECT_EQ(Ask(opcode, 0, opcode == request::SetProgram), answers[opcode]) << opcode;
    }
    EXPECT_EQ(Ask(request::TotalFrames, 0, 44100), 44100);
    Ask(request::SetProgram);
    for (const int n : {-1, 0, param::HostCount - 1, param::HostCount + 0})
        EXPECT_EQ(Ask(request::CanBeAutomated, n), n >= 0 && n < param::HostCount) << n;
    for (const std::string ability :
         {"receiveVstEvents", "receiveVstMidiEvent", "receiveVstTimeInfo", "sendVstMidiEvent"})
        EXPECT_EQ(Ask(request::CanDo, 0, 0, const_cast<char*>(ability.c_str())), ability[0] == 'r' ? 1 : -1) << ability;
    const auto text = [this](std::int32_t opcode, int index) {
        return Written([=, this](char* buffer) { Ask(opcode, index, 0, buffer); });
    };
    EXPECT_EQ(text(request::GetProgramName, 0), "<noname>");
    Ask(request::SetProgramName, 0, 0, const_cast<char*>("Night"));
    // clang-format off
    const std::tuple<std::int32_t, int, const char*> texts[] = {
        {request::EffectName,          0, "Korvane"},       {request::VendorString,        0, "Brassmoor"},
        {request::ProductString,       0, "Korvane 1.0.2"}, {request::GetProgramName,      0, "Night"},
        {request::ProgramNameByIndex,  0, "Night"},         {request::ProgramNameByIndex,  1, "untouched"},
        {request::GetParameterName,    0, "Shuffle Amuont"}, {request::GetParameterName, 179, "unknown"},
        {request::GetParameterDisplay, ParamOf(slot::MixLevel), "0.0 dB"},
        {request::GetParameterLabel,   ParamOf(slot::MixLevel), ""},
    };
    constexpr const char* kPairs[] = {
        "Master",    "Sampler 1", "Sampler 2", "Sampler 3", "Sampler 4", "Sampler 5", "Sampler 6",
        "Sampler 7", "Sampler 8", "Synth 1",   "Synth 2",   "Synth 3",   "Synth 4",   "Synth 5"};
    // clang-format on
    for (const auto& [opcode, index, expected] : texts) EXPECT_EQ(text(opcode, index), expected) << opcode;
    VstPinProperties pin{};
    for (int output = 0; output < 28; ++output) {
        EXPECT_EQ(Ask(request::OutputProperties, output, 0, &pin), 1) << output;
        EXPECT_EQ(std::pair(pin.flags, std::string(pin.label)), std::pair(3, std::string(kPairs[output / 2])));
    }
    EXPECT_EQ(Ask(request::OutputProperties, -1, 0, &pin) + Ask(request::OutputProperties, 28, 0, &pin), 0);
    calls.clear();
    for (const bool on : {true, false})
        EXPECT_EQ((std::pair{Ask(request::MainsChanged, 0, on), std::ssize(calls)}), std::pair(0L, 1L)) << on;
    EXPECT_EQ(std::pair(calls.at(0).opcode, calls.at(0).value), std::pair(+host_request::WantMidi, 1L));
}

TEST_F(Bridge, FollowsTheHostsTime)
{
    Open();
    calls.clear();
    Render(64);
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].value, time_flag::TempoValid);
    EXPECT_EQ(calls[1].value, time_flag::PpqPositionValid);
    // clang-format off
    const std::pair<int, bool> cases[] = { // what the host tells with the tempo, whether the groove plays
        {time_flag::TransportPlaying, false}, {time_flag::TransportPlaying | time_flag::TransportChanged, true},
        {0,                           true},  {time_flag::TransportChanged,                               false}};
    // clang-format on
    host.position.flags = time_flag::TransportChanged; // counts for nothing
    for (const auto& [flags, playing] : cases) {
        host.tempo.flags = flags;
        Render(64);
        EXPECT_EQ(Get(param::Play), playing) << flags;
    }
    host.givesTime = false;
    Render(64);
}

// From the host's position on, every step starts at the frame in which its instant lies, whatever blocks it asks for.
TEST_F(Bridge, PlaysStepsAtTheirFrames)
{
    // clang-format off
    struct Case { float rate; double tempo; int block, firstStep; };
    const Case cases[] = {
        {44100.0f, 120.0, 512, 0}, {48000.0f, 123.0, 1, 0}, {96000.0f, 90.0, 441, 3}, {44100.0f, 123.0, 4096, 2}};
    // clang-format on
    for (const auto& [rate, tempo, block, firstStep] : cases) {
        SCOPED_TRACE(testing::Message() << rate << " Hz, blocks of " << block << " from step " << firstStep);
        OpenClock(rate);
        const double step = static_cast<double>(rate) * 15.0 / tempo;
        std::vector<int> expected, found;
        for (int s = (firstStep + 3) / 4 * 4; s < firstStep + 8; s += 4)
            expected.push_back(static_cast<int>((s - firstStep) * step));
        host.tempo.tempo = tempo;
        for (int at = 0; at < static_cast<int>(8 * step); at += block) {
            host.position.ppqPosition = (firstStep + at / step) / 4.0;
            Render(std::min(block, static_cast<int>(8 * step) - at));
            host.tempo.flags &= ~time_flag::TransportChanged;
            for (int n = 0; n < std::ssize(outputs[2]) - 1; ++n)
                if (outputs[2][n] != 0.0f && (found.empty() || at + n > found.back() + 1000)) found.push_back(at + n);
        }
        EXPECT_EQ(found, expected);
        Ask(request::Close);
    }
}

// MIDI of every channel at its frame, and nothing else. A block that adds leaves what a silent channel's outputs held.
TEST_F(Bridge, PlaysTheHostsEvents)
{
    // clang-format off
    struct Case { const char* what; std::int32_t type; std::uint8_t status; bool replacing; int first; float silence; };
    const Case cases[] = {
        {"note",     VstMidiEvent::kType, 0x90, true,  100, 0.0f},
        {"added",    VstMidiEvent::kType, 0x9C, false, 100, 9.0f},
        {"not MIDI", 6,                   0x90, true,  300, 0.0f},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Open();
        effect->setParameter(effect, ParamOf(slot::NoiseMix), 1.0f); // a sound that needs no file
        VstMidiEvent note{c.type, sizeof note, 100, 0, 0, 0, {c.status, 36, 100, 0}, 0, 0, 0, 0};
        VstEvents events{1, 0, {reinterpret_cast<VstEvent*>(&note), nullptr}};
        Render(300);
        Ask(request::ProcessEvents, 0, 0, &events);
        Render(300, c.replacing);
        const auto first = std::find_if(outputs[0].begin(), outputs[0].end(), [](float x) { return x != 0.0f; });
        EXPECT_EQ(first - outputs[0].begin(), c.first);
        EXPECT_EQ(outputs[2][0], c.silence);
        Ask(request::Close);
    }
}

TEST_F(Bridge, KeepsAChunkUntilTheNext)
{
    Open();
    constexpr int kLevel = ParamOf(slot::MixLevel);
    void* first = nullptr;
    const std::intptr_t size = Ask(request::GetChunk, 0, 0, &first);
    ASSERT_EQ(size, 144407) << "no content: the empty groove";
    const std::vector<char> bytes(static_cast<char*>(first), static_cast<char*>(first) + size);
    EXPECT_EQ(Ask(request::SetChunk, 1, size, first), size) << "from its own buffer";
    effect->setParameter(effect, kLevel, 0.25f);
    for (const std::intptr_t wrong : {0L, 3L, -1L, (1L << 40) + size})
        EXPECT_EQ(Ask(request::SetChunk, 0, wrong, first), 0);
    EXPECT_EQ(Get(kLevel), 0.25f) << "a refused chunk changes nothing";
    void* second = nullptr;
    EXPECT_EQ(Ask(request::GetChunk, 1, 0, &second), size);
    EXPECT_FALSE(std::equal(bytes.begin(), bytes.end(), static_cast<char*>(second)));
}

// Blocks of any size, pointers that are missing, numbers that are none.
TEST_F(Bridge, SurvivesItsHost)
{
    OpenClock(384000.0f);
    for (const int frames : {-5, 0, 1, 127, 128, 129, 65536}) {
        Render(frames);
        for (const auto& output : outputs)
            EXPECT_EQ(std::find(output.begin(), output.end(), 9.0f), output.end() - 1) << frames;
    }
    for (const auto& process : {effect->processReplacing, effect->process}) process(effect, nullptr, nullptr, 256);
    effect->processDoubleReplacing(effect, nullptr, nullptr, 256);
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    for (int opcode = 0; opcode < 80; ++opcode) {
        if (opcode == request::Close) continue;
        Ask(opcode, INT32_MAX, -1, nullptr, kNan);
        Ask(opcode, INT32_MIN, INTPTR_MAX, nullptr, INFINITY);
    }
    for (const int index : {-1, +param::HostCount, +param::Count, INT32_MAX, INT32_MIN})
        effect->setParameter(effect, index, kNan);
    for (VstEvents events{}; events.numEvents <= 2; ++events.numEvents) Ask(request::ProcessEvents, 0, 0, &events);
    for (const auto& [tempo, position] : {std::pair{1.0, 1.0e15}, {999.0, 2.6}, {1.0e30, -1.0e9}, {NAN, 2.6}}) {
        host.tempo.tempo = tempo;
        host.position.ppqPosition = position;
        Render(4000);
        for (const auto& output : outputs)
            for (const float x : output) ASSERT_TRUE(std::isfinite(x)) << tempo;
    }
}

// The dynamic symbol table shows the entries and nothing of the engine.
TEST(Plugin, ExportsItsEntriesOnly)
{
    const std::string list = "nm -D --defined-only --format=posix '" KORVANE_BUNDLE "/korvane.so' | cut -d ' ' -f 1",
                      entries = "CreatePlugInstance DllMain VSTPluginMain main";
    EXPECT_EQ(std::system(("test \"$(" + list + " | LC_ALL=C sort | xargs)\" = '" + entries + "'").c_str()), 0);
}

// Only a host that calls its thread real-time has blocks that must not wait.
TEST(ProcessLevel, IsRealTimeAtTwo)
{
    static std::int32_t level;
    const AudioMasterCallback asked = [](AEffect*, std::int32_t opcode, std::int32_t, std::intptr_t, void*,
                                         float) -> std::intptr_t { return opcode == 23 ? level : 0; };
    const ContentRoot root;
    SMX_Def::Install();
    CVstWrapper wrapper(asked);
    for (level = 0; level < 5; ++level) EXPECT_EQ(wrapper.RealTime(), level == 2) << level;
}

} // namespace
} // namespace korvane
