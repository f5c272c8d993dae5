// The engine's interface to its bridges: events, blocks, parameters, programs.
#include "framework/CSynthesizer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "framework/ParameterTable.h"
#include "shell/CPluginDefinition.h"
#include "shell/CPluginEditor.h"

namespace korvane {

namespace {

constexpr std::size_t kMaxPointers = 64; // of either direction
constexpr auto kPoll = std::chrono::milliseconds(10);

int Pointers(std::int32_t count) { return std::clamp(count, 0, static_cast<int>(kMaxPointers)); }

} // namespace

CSynthesizer::~CSynthesizer() = default;

// Handshake

CSynthesizer::ProgramSwitch::ProgramSwitch(CSynthesizer& owner)
    : synth(owner), nested(owner.blockThread == std::this_thread::get_id())
{
    ++synth.programChanges;
    if (nested) return;
    while (synth.processing.exchange(true)) std::this_thread::sleep_for(kPoll);
    synth.blockThread = std::this_thread::get_id();
}

CSynthesizer::ProgramSwitch::~ProgramSwitch()
{
    if (!nested) synth.LeaveBlock();
    --synth.programChanges;
}

CSynthesizer::BetweenBlocks::BetweenBlocks(CSynthesizer& owner)
    : synth(owner),
      entered((owner.audioThread == std::thread::id{} || owner.audioThread == std::this_thread::get_id()) &&
              owner.EnterBlock())
{
}

CSynthesizer::BetweenBlocks::~BetweenBlocks()
{
    if (entered) synth.LeaveBlock();
}

bool CSynthesizer::EnterBlock()
{
    if (programChanges > 0 || processing.exchange(true)) return false;
    if (programChanges > 0) { // a switch has begun between the first look and the set
        processing = false;
        return false;
    }
    blockThread = std::this_thread::get_id();
    return true;
}

void CSynthesizer::LeaveBlock()
{
    blockThread = std::thread::id{};
    processing = false;
}

// Blocks

void CSynthesizer::ProcessBlock(float** inputs, float** outputs, int frames, bool replacing)
{
    const int numOutputs = Pointers(Definition() ? 2 * Definition()->numOutputPairs : 0);
    const int numInputs = Pointers(Definition() ? Definition()->numInputs : 0);
    std::array<float*, kMaxPointers> in{}, out{};
    if (inputs) std::copy_n(inputs, numInputs, in.begin());
    if (outputs) std::copy_n(outputs, numOutputs, out.begin());
    if (blockThread == std::this_thread::get_id() && programChanges == 0) return; // entered again
    if (replacing && frames > 0)
        for (float* output : out)
            if (output) std::fill_n(output, frames, 0.0f);
    if (!EnterBlock()) return;
    audioThread = std::this_thread::get_id();
    RenderChunks(in.data(), out.data(), frames);
    pendingEvent = -1;
    eventCount = nextEvent = lastDelta = 0;
    LeaveBlock();
}

void CSynthesizer::RenderChunks(float** inputs, float** outputs, int frames)
{
    while (frames > 0) {
        if (pendingEvent >= 0) Dispatch(events[static_cast<std::size_t>(pendingEvent)]);
        pendingEvent = -1;
        for (std::int64_t gap = NextGap(frames); gap > 0;) {
            const int chunk = static_cast<int>(std::min<std::int64_t>({kMaxChunk, frames, gap}));
            if (chunk < 1) return;
            ProcessMultiOut(inputs, outputs, chunk);
            for (std::size_t n = 0; n < kMaxPointers; ++n) {
                if (inputs[n]) inputs[n] += chunk;
                if (outputs[n]) outputs[n] += chunk;
            }
            frames -= chunk;
            gap -= chunk;
        }
    }
}

/// Takes the next event; frames until it, or the rest of the block when there is none or it lies in the past.
std::int64_t CSynthesizer::NextGap(std::int64_t rest)
{
    if (nextEvent >= eventCount) return rest;
    const std::int64_t gap =
        static_cast<std::int64_t>(events[static_cast<std::size_t>(nextEvent)].deltaFrames) - lastDelta;
    if (gap < 0) {
        nextEvent = eventCount; // unsorted: it and all after it are lost
        return rest;
    }
    lastDelta = events[static_cast<std::size_t>(nextEvent)].deltaFrames;
    pendingEvent = nextEvent++;
    return gap;
}

// Events

void CSynthesizer::Dispatch(const MidiEvent& event)
{
    Key& key = keys[event.data1];
    switch (event.status) {
    case 0x80: NoteOff(event.data1); break;
    case 0x90:
        if (event.data2 == 0) {
            NoteOff(event.data1);
        } else if (key.velocity == 0) {
            key.velocity = key.held = event.data2;
            NotifyKey(event.data1, event.data2);
        }
        break;
    case 0xA0: key.pressure = event.data2 / 127.0; break;
    case 0xB0: Controller(event.data1, event.data2); break;
    case 0xC0: ProgramChangeReceived(event.data1); break;
    case 0xD0:
        channelPressure = event.data1 / 127.0;
        ChannelPressureChanged();
        break;
    case 0xE0:
        pitchBend = 2.0 * (event.data1 + 128 * event.data2) / 16383.0 - 1.0;
        PitchBendChanged();
        break;
    default: break;
    }
}

void CSynthesizer::NotifyKey(int key, std::uint8_t velocity)
{
    if (voiceHook) VoiceNoteOn(static_cast<std::int8_t>(key), static_cast<std::int8_t>(velocity));
    NoteEvent(static_cast<std::int8_t>(key), static_cast<std::int8_t>(velocity));
}

void CSynthesizer::ReleaseKey(int key)
{
    if (keys[static_cast<std::size_t>(key)].velocity == 0) return;
    keys[static_cast<std::size_t>(key)].velocity = 0;
    NotifyKey(key, 0);
}

void CSynthesizer::NoteOff(int key)
{
    keys[static_cast<std::size_t>(key)].held = 0;
    if (!Sustained()) ReleaseKey(key);
}

void CSynthesizer::ReleaseAll()
{
    for (int key = 0; key < kKeys; ++key) NoteOff(key);
}

void CSynthesizer::Controller(std::uint8_t number, std::uint8_t value)
{
    controllers[number] = value / 127.0;
    switch (number) {
    case 32:
        if (!BankSelectReceived(value)) ControllerChanged(32);
        break;
    case 64:
        controllers[64] = value < 65 ? 0.0 : 1.0;
        if (value >= 65) break;
        for (int key = 0; key < kKeys; ++key)
            if (keys[static_cast<std::size_t>(key)].held == 0) ReleaseKey(key);
        break;
    case 121: ResetControllers(); break;
    case 123: ReleaseAll(); break;
    default: ControllerChanged(static_cast<std::int8_t>(number)); break;
    }
}

void CSynthesizer::ResetControllers()
{
    for (int n = 0; n < kKeys; ++n) {
        controllers[n] = n == 7 ? 1.0 : n == 10 ? 0.5 : 0.0;
        ControllerChanged(static_cast<std::int8_t>(n));
    }
}

void CSynthesizer::Reset() { ReleaseAll(); }

void CSynthesizer::SetSampleRate(double newRate)
{
    if (newRate == sampleRate) return;
    Reset();
    sampleRate = newRate;
}

void CSynthesizer::SetTempo(double bpm)
{
    if (bpm != tempo) tempo = bpm > 1.0 ? bpm : 1.0;
}

// Programs and parameters

void CSynthesizer::AddProgram(std::unique_ptr<CProgram> program)
{
    std::unique_ptr<CProgram>* end = &programs;
    while (*end) end = &(*end)->next;
    *end = std::move(program);
    if (programCount++ == 0) currentProgram = programs.get();
}

CProgram* CSynthesizer::ProgramAt(int index) const
{
    CProgram* program = programs.get();
    for (; program && index > 0; --index) program = program->next.get();
    return program;
}

bool CSynthesizer::SetProgramName(int index, const char* text)
{
    CProgram* program = ProgramAt(index);
    if (!text || !program) return false;
    std::snprintf(program->name, sizeof program->name, "%s", text);
    return true;
}

bool CSynthesizer::GetProgramName(int index, char* buffer)
{
    const CProgram* program = ProgramAt(index);
    if (!buffer || !program) return false;
    std::strcpy(buffer, program->name);
    return true;
}

void CSynthesizer::SetProgram(int index)
{
    if (!programs) return;
    {
        ProgramSwitch exclusive(*this);
        const int number = std::clamp(index, 0, programCount - 1);
        currentProgram = ProgramAt(number);
        programIndex = number;
        Reset();
        // The host hears each value inside the switch, at creation even inside its call of the entry point. It may ask
        // and write from within; another of its threads gets parameters and skipped blocks, but waits to switch.
        for (int n = 0; n < param::Count; ++n) {
            const float value = GetParameter(n);
            if (wrapper) wrapper->ParameterAutomated(n, value);
            ParameterChanged(n, value);
        }
    }
    if (CPluginEditor* editor = wrapper ? wrapper->GetEditor() : nullptr) editor->RefreshAll();
}

float CSynthesizer::GetParameter(int index)
{
    CProgram* program = currentProgram;
    return program ? program->GetParameter(index) : 0.0f;
}

float CSynthesizer::GetParameterDefault(int index)
{
    CProgram* program = currentProgram;
    return program ? program->GetParameterDefault(index) : 0.0f;
}

void CSynthesizer::SetParameter(int index, float value)
{
    CProgram* program = currentProgram;
    if (!program) return;
    program->SetParameter(index, value);
    ParameterChanged(index, value);
}

void CSynthesizer::GetParameterName(int index, char* buffer)
{
    CProgram* program = currentProgram;
    if (program && buffer) program->GetParameterName(index, buffer);
}

void CSynthesizer::GetParameterDisplay(int index, char* buffer)
{
    CProgram* program = currentProgram;
    if (program && buffer) program->GetParameterDisplay(index, buffer);
}

void CSynthesizer::GetParameterLabel(int index, char* buffer)
{
    CProgram* program = currentProgram;
    if (program && buffer) program->GetParameterLabel(index, buffer);
}

} // namespace korvane
