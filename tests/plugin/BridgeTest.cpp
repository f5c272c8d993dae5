// The VST 2 record of the plug-in's file: what it answers, asks for, and survives.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "shell/vst2/AudioEffectX.h"
#include "support/ContentRoot.h"

namespace korvane {
namespace {

struct Call {
    AEffect* effect;
    std::int32_t opcode, index;
    std::intptr_t value;
    float option;
};
std::vector<Call> calls;
std::int32_t hostVersion = 2400;
VstTimeInfo times[2]; // answers to the requests for tempo and for position
bool givesTime = true;

void (*whenAutomated)(AEffect*, int index) = nullptr; // what the host does with a report

std::intptr_t HostCallback(AEffect* effect, std::int32_t opcode, std::int32_t index, std::intptr_t value, void*,
                           float option)
{
    calls.push_back({effect, opcode, index, value, option});
    if (opcode == host_request::Automate && whenAutomated) whenAutomated(effect, index);
    if (opcode == host_request::Version) return hostVersion;
    if (opcode != host_request::GetTime || !givesTime) return 0;
    return reinterpret_cast<std::intptr_t>(&times[value == 1024 ? 0 : 1]);
}

using Entry = AEffect* (*)(AudioMasterCallback);

class Bridge : public testing::Test {
protected:
    Bridge()
    {
        module = dlopen(KORVANE_BUNDLE "/korvane.so", RTLD_NOW);
        EXPECT_TRUE(module) << dlerror();
        hostVersion = 2400, givesTime = true, whenAutomated = nullptr;
        times[0] = times[1] = VstTimeInfo{};
        calls.clear();
    }
    ~Bridge() override
    {
        if (effect) Ask(request::Close);
        dlclose(module);
    }
    void Open() { effect = Find("VSTPluginMain")(HostCallback); }
    Entry Find(const char* name) { return reinterpret_cast<Entry>(dlsym(module, name)); }
    std::intptr_t Ask(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0, void* pointer = nullptr,
                      float option = 0.0f)
    {
        const std::intptr_t answer = effect->dispatcher(effect, opcode, index, value, pointer, option);
        if (opcode == request::Close) effect = nullptr;
        return answer;
    }
    std::string Text(std::int32_t opcode, std::int32_t index = 0)
    {
        char text[256] = "untouched";
        Ask(opcode, index, 0, text);
        return text;
    }
    /// A replacing block into buffers that held 9.
    void Render(int frames)
    {
        float* pointers[28];
        for (std::size_t n = 0; n < outputs.size(); ++n) {
            outputs[n].assign(static_cast<std::size_t>(std::max(frames, 0)) + 1, 9.0f);
            pointers[n] = outputs[n].data();
        }
        effect->processReplacing(effect, nullptr, pointers, frames);
    }
    bool Playing() { return effect->getParameter(effect, 1) == 1.0f; }

    const ContentRoot root; // empty: nothing of this machine's settings and files
    void* module = nullptr;
    AEffect* effect = nullptr;
    std::array<std::vector<float>, 28> outputs;
};

TEST_F(Bridge, IsMadeInOrder)
{
    const unsigned before = _mm_getcsr();
    EXPECT_EQ(Find("VSTPluginMain")(nullptr), nullptr);
    hostVersion = 0;
    EXPECT_EQ(Find("VSTPluginMain")(HostCallback), nullptr);
    EXPECT_EQ(calls.size(), 1u);
    hostVersion = 2400, calls.clear();
    Open();
    ASSERT_TRUE(effect);
    EXPECT_EQ(_mm_getcsr() & 0x8000u, before & 0x8000u);
    ASSERT_EQ(calls.size(), 3u + 154u) << "version, vendor, product, and the values of the program";
    for (const auto& [n, opcode] : {std::pair{0, 1}, {1, 32}, {2, 33}}) EXPECT_EQ(calls[n].opcode, opcode);
    for (int n = 0; n < 154; ++n) {
        EXPECT_EQ(calls[3 + n].opcode, host_request::Automate);
        EXPECT_EQ(calls[3 + n].index, n);
        EXPECT_EQ(calls[3 + n].option, effect->getParameter(effect, n));
    }
    EXPECT_EQ(std::memcmp(&effect->magic, "PtsV", 4), 0);
    EXPECT_EQ(std::memcmp(&effect->uniqueId, "HSvK", 4), 0);
    EXPECT_EQ(effect->numPrograms, 1);
    EXPECT_EQ(effect->numParams, 154);
    EXPECT_EQ(effect->numInputs, 2);
    EXPECT_EQ(effect->numOutputs, 28);
    EXPECT_EQ(effect->flags & ~effect_flag::HasEditor, 0x130);
    EXPECT_EQ(effect->initialDelay, 0);
    EXPECT_EQ(effect->ioRatio, 1.0f);
    EXPECT_EQ(effect->version, 1);

    AEffect* const first = effect;
    effect = Find("main")(HostCallback);
    EXPECT_TRUE(_mm_getcsr() & 0x8000u);
    _mm_setcsr(before);
    EXPECT_EQ(Ask(request::Close), 1);
    effect = first;
}

// The reports at creation come before the host has the effect from its entry call: the record that they carry is whole,
// and a host that acts on them at once is answered.
TEST_F(Bridge, AnswersWhileItIsMade)
{
    whenAutomated = [](AEffect* made, int index) {
        const auto ask = [made](std::int32_t opcode, int n, std::intptr_t value, void* pointer) {
            return made->dispatcher(made, opcode, n, value, pointer, 0.0f);
        };
        EXPECT_EQ(made->uniqueId, FourBytes("HSvK"));
        EXPECT_EQ(made->numOutputs, 28);
        EXPECT_EQ(made->flags & effect_flag::IsSynth, effect_flag::IsSynth);
        EXPECT_TRUE(made->user == nullptr && made->reserved1 == 0 && made->reserved2 == 0) << "the host's own fields";
        EXPECT_EQ(made->getParameter(made, index), calls.back().option);
        EXPECT_EQ(ask(request::CanBeAutomated, index, 0, nullptr), 1);
        if (index != 80) return;
        char text[256] = "";
        ask(request::GetParameterDisplay, index, 0, text);
        EXPECT_STREQ(text, "0.0 dB");
        void* chunk = nullptr;
        const std::intptr_t size = ask(request::GetChunk, 0, 0, &chunk);
        EXPECT_EQ(ask(request::SetChunk, 0, size, chunk), size);
        std::vector<float> sound(64, 9.0f);
        std::array<float*, 28> pointers{};
        pointers.fill(sound.data());
        made->processReplacing(made, nullptr, pointers.data(), 64);
        EXPECT_EQ(std::count(sound.begin(), sound.end(), 0.0f), 64) << "a switch is on: silence";
    };
    Open();
    ASSERT_TRUE(effect);
    for (const Call& call : calls)
        if (call.opcode == host_request::Automate) { EXPECT_EQ(call.effect, effect); }
}

TEST_F(Bridge, AnswersItsRequests)
{
    Open();
    // clang-format off
    constexpr std::pair<int, int> kAnswers[] = {{0, 0}, {3, 0}, {11, 0}, {13, 0}, {14, 0}, {15, 0}, {35, 2}, {58, 2400}, {25, 1},
                                                {29, 1}, {51, 0}, {45, 0}, {23, 0}, {24, 0}, {34, 0}, {9, 0}, {99, 0}, {-7, 0}};
    // clang-format on
    for (const auto& [opcode, answer] : kAnswers) EXPECT_EQ(Ask(opcode), answer) << opcode;
    std::map<int, int> others; // requests that nothing acts on: 0, but where that would tell the host something untrue
    for (const int opcode : {9,  16, 17, 18, 19, 20, 21, 27, 30, 33, 36, 37, 38, 39, 40, 41, 42, 44, 46, 49, 50, 52, 53,
                             54, 55, 56, 59, 60, 61, 62, 64, 65, 66, 67, 68, 69, 70, 71, 72, 74, 75, 76, 77, 78, 79})
        others[opcode] = 0;
    others[28] = others[31] = others[32] = others[43] = others[57] = 1;
    others[63] = -1;
    others[73] = 44100;
    for (const auto& [opcode, answer] : others) EXPECT_EQ(Ask(opcode, 0, 44100), answer) << opcode;
    for (const auto& [index, answer] : {std::pair{0, 1}, {80, 1}, {153, 1}, {154, 0}, {195, 0}, {-1, 0}})
        EXPECT_EQ(Ask(request::CanBeAutomated, index), answer) << index;
    EXPECT_EQ(Text(request::EffectName), "Korvane");
    EXPECT_EQ(Text(request::VendorString), "Brassmoor");
    EXPECT_EQ(Text(request::ProductString), "Korvane 1.0.2");
    EXPECT_EQ(Text(request::GetProgramName), "<noname>");
    Ask(request::SetProgramName, 0, 0, const_cast<char*>("Night"));
    EXPECT_EQ(Text(request::ProgramNameByIndex, 0), "Night");
    EXPECT_EQ(Text(request::ProgramNameByIndex, 1), "untouched");
    EXPECT_EQ(Text(request::GetParameterName, 0), "Shuffle Amuont");
    EXPECT_EQ(Text(request::GetParameterDisplay, 80), "0.0 dB");
    EXPECT_EQ(Text(request::GetParameterLabel, 80), "");
    // clang-format off
    for (const auto& [text, answer] : {std::pair{"receiveVstEvents", 1}, {"receiveVstMidiEvent", 1}, {"receiveVstTimeInfo", 1},
                                       {"sendVstMidiEvent", -1}, {"", -1}})
        // clang-format on
        EXPECT_EQ(Ask(request::CanDo, 0, 0, const_cast<char*>(text)), answer) << text;
    const auto identity = static_cast<std::int32_t>(Ask(request::Identify));
    EXPECT_EQ(std::memcmp(&identity, "fEvN", 4), 0);
    VstPinProperties pin{};
    EXPECT_EQ(Ask(request::OutputProperties, 3, 0, &pin), 1);
    EXPECT_STREQ(pin.label, "Sampler 1");
    EXPECT_EQ(pin.flags, 3);
    for (const int index : {-1, 28}) EXPECT_EQ(Ask(request::OutputProperties, index, 0, &pin), 0);
    calls.clear();
    Ask(request::MainsChanged, 0, 1), Ask(request::MainsChanged, 0, 0);
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].opcode, host_request::WantMidi);
    EXPECT_EQ(calls[0].value, 1);
}

TEST(AudioEffectX, TakesRateAndBlockSizeInOneRequest)
{
    struct Effect : AudioEffectX {
        using AudioEffectX::AudioEffectX, AudioEffectX::blockSize, AudioEffectX::sampleRate;
        void Process(float**, float**, std::int32_t) override {}
    } effect(nullptr, 1, 154);
    EXPECT_EQ(effect.Dispatch(request::SetBlockSizeAndSampleRate, 0, 64, nullptr, 22050.0f), 1);
    EXPECT_EQ(effect.blockSize, 64);
    EXPECT_EQ(effect.sampleRate, 22050.0f);
}

TEST_F(Bridge, FollowsTheHostsTime)
{
    Open();
    calls.clear();
    Render(64);
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].value, 1024);
    EXPECT_EQ(calls[1].value, 512);
    struct Case {
        const char* what;
        int tempoFlags, positionFlags;
        bool playing;
    };
    const Case cases[] = {
        {"playing, nothing changed", 2, 0, false},
        {"changed", 3, 0, true},
        {"the second answer says nothing", 0, 3, true},
        {"stopped, nothing changed", 0, 0, true},
        {"changed", 1, 0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        times[0].flags = c.tempoFlags, times[1].flags = c.positionFlags;
        Render(64);
        EXPECT_EQ(Playing(), c.playing);
    }
    givesTime = false;
    Render(64);
    EXPECT_FALSE(Playing());
}

TEST_F(Bridge, KeepsAChunkUntilTheNext)
{
    Open();
    void* first = nullptr;
    const std::intptr_t size = Ask(request::GetChunk, 0, 0, &first);
    ASSERT_EQ(size, 144407) << "no content: the empty groove";
    const std::vector<char> bytes(static_cast<char*>(first), static_cast<char*>(first) + size);
    EXPECT_EQ(Ask(request::SetChunk, 1, size, first), size) << "from its own buffer";
    effect->setParameter(effect, 80, 0.25f);
    for (const std::intptr_t wrong : {0, 3, -1}) EXPECT_EQ(Ask(request::SetChunk, 0, wrong, first), 0);
    EXPECT_EQ(Ask(request::SetChunk, 0, std::intptr_t{1} << 40, first), 0);
    EXPECT_EQ(effect->getParameter(effect, 80), 0.25f) << "a refused chunk changes nothing";
    void* second = nullptr;
    EXPECT_EQ(Ask(request::GetChunk, 1, 0, &second), size);
    EXPECT_NE(std::memcmp(second, bytes.data(), bytes.size()), 0);
}

// Blocks of any size, pointers that are missing, numbers that are none.
TEST_F(Bridge, SurvivesItsHost)
{
    Open();
    for (const int frames : {-5, 0, 1, 127, 128, 129, 65536}) {
        Render(frames);
        for (const auto& output : outputs) {
            EXPECT_EQ(output.back(), 9.0f) << "written behind the end of " << frames;
            if (frames > 0) { EXPECT_EQ(std::count(output.begin(), output.end(), 9.0f), 1); }
        }
    }
    effect->processReplacing(effect, nullptr, nullptr, 256);
    effect->process(effect, nullptr, nullptr, 256);
    effect->processDoubleReplacing(effect, nullptr, nullptr, 256);
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    for (int opcode = 0; opcode < 80; ++opcode) {
        if (opcode == request::Close) continue;
        Ask(opcode, -1, 0, nullptr, kNan);
        Ask(opcode, INT32_MAX, -1, nullptr, -1.0f);
        Ask(opcode, INT32_MIN, INTPTR_MAX, nullptr, INFINITY);
    }
    for (const int index : {-1, 154, 196, INT32_MAX, INT32_MIN}) effect->setParameter(effect, index, kNan);
    VstEvents events{};
    for (const int count : {0, -4, 2}) {
        events.numEvents = count;
        Ask(request::ProcessEvents, 0, 0, &events);
    }
    Render(256);
    for (const auto& output : outputs)
        for (int n = 0; n < 256; ++n) ASSERT_TRUE(std::isfinite(output[static_cast<std::size_t>(n)]));
}

} // namespace
} // namespace korvane
