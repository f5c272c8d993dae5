// The engine's interface to its bridges: events, blocks, parameters, programs.
#include "framework/CSynthesizer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>

#include "framework/ParameterTable.h"
#include "platform/Numbers.h"
#include "shell/CPluginDefinition.h"
#include "shell/CPluginEditor.h"

namespace korvane {

namespace {

constexpr auto kPoll = std::chrono::milliseconds(1);
constexpr auto kChangePoll = std::chrono::microseconds(100);

void Silence(float* samples, int frames)
{
    if (frames == 1)
        *samples = 0.0f; // the shortest blocks spend most of their time with what surrounds them
    else
        std::fill_n(samples, frames, 0.0f);
}

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

void CSynthesizer::MakeChange(const std::function<void()>& made)
{
    change.store(&made, std::memory_order_release);
    auto patient = std::chrono::steady_clock::now() + Patience();
    for (HelpWithChange(); change.load(std::memory_order_acquire); std::this_thread::sleep_for(kChangePoll)) {
        const auto now = std::chrono::steady_clock::now();
        if (processing) patient = now + Patience(); // there are blocks, and the next one makes the change
        if (now < patient || !EnterBlock()) continue;
        ServeChange();
        LeaveBlock();
    }
}

/// How long the next block may be in coming. A change that is made here instead can meet a block, which would then be
/// silent.
std::chrono::nanoseconds CSynthesizer::Patience() const
{
    if (audioThread == std::thread::id{}) return {};
    constexpr double kLate = 0.02, kLongest = 1.0; // seconds
    const double block = blockFrames / sampleRate;
    return std::chrono::nanoseconds(static_cast<std::int64_t>(1e9 * Clamp(2.0 * block + kLate, 0.0, kLongest)));
}

void CSynthesizer::HelpWithChange()
{
    if (!change.load(std::memory_order_relaxed)) return;
    if (blockThread == std::this_thread::get_id()) {
        ServeChange();
    } else if (audioThread == std::this_thread::get_id() && EnterBlock()) {
        ServeChange();
        LeaveBlock();
    }
}

void CSynthesizer::ServeChange()
{
    const std::function<void()>* const waiting = change.load(std::memory_order_acquire);
    if (!waiting) return;
    changeCount.fetch_add(1);
    (*waiting)();
    changeCount.fetch_add(1);
    change.store(nullptr, std::memory_order_release);
}

// Blocks

CSynthesizer::Pointers::Pointers(float** given, int wanted) : count(given ? std::clamp(wanted, 0, kMost) : 0)
{
    const auto rest = std::copy_n(given, count, all.begin());
    std::fill(rest, all.end(), nullptr);
}

void CSynthesizer::Pointers::Advance(int frames)
{
    for (int n = 0; n < count; ++n)
        if (all[static_cast<std::size_t>(n)]) all[static_cast<std::size_t>(n)] += frames;
}

void CSynthesizer::ProcessBlock(float** inputs, float** outputs, int frames, bool replacing)
{
    const CPluginDefinition* const definition = Definition();
    Pointers in(inputs, definition ? definition->numInputs : 0);
    Pointers out(outputs, definition ? 2 * definition->numOutputPairs : 0);
    const std::thread::id thisThread = std::this_thread::get_id();
    if (blockThread == thisThread && programChanges == 0) return; // entered again
    if (replacing && frames > 0)
        for (int n = 0; n < out.count; ++n)
            if (float* const output = out.all[static_cast<std::size_t>(n)]) Silence(output, frames);
    if (!EnterBlock()) return;
    audioThread = thisThread;
    blockFrames = std::max(frames, blockFrames / 2); // of some hosts, only the first of a few is long
    ServeChange();
    ServeKeyOrders();
    RenderChunks(in, out, frames);
    ClearEvents();
    LeaveBlock();
}

void CSynthesizer::RenderChunks(Pointers& inputs, Pointers& outputs, int frames)
{
    while (frames > 0) {
        DispatchPending();
        for (std::int64_t gap = NextGap(frames); gap > 0;) {
            const int chunk = static_cast<int>(std::min<std::int64_t>({kMaxChunk, frames, gap}));
            if (chunk < 1) return;
            ProcessMultiOut(inputs.all.data(), outputs.all.data(), chunk);
            frames -= chunk;
            if (frames < 1) return;
            inputs.Advance(chunk);
            outputs.Advance(chunk);
            gap -= chunk;
        }
    }
}

// Controllers

void CSynthesizer::MoveController(int number, double value)
{
    controllers[number] = value;
    switch (number) {
    case controller::BankSelect: BankSelectReceived(Truncate(value * 127.0)); break;
    case controller::Sustain:
        if (value < 0.5) OrderKeys(ReleaseUnheldKeys);
        break;
    case controller::ResetAll: ResetControllers(); break;
    case controller::AllNotesOff: OrderKeys(ReleaseAllKeys); break;
    default: break;
    }
    ControllerChanged(static_cast<std::int8_t>(number));
}

void CSynthesizer::OrderKeys(KeyOrder order)
{
    keyOrders.fetch_or(order, std::memory_order_release);
    const BetweenBlocks exclusive(*this);
    if (blockThread == std::this_thread::get_id()) ServeKeyOrders();
}

void CSynthesizer::ServeKeyOrders()
{
    if (keyOrders.load(std::memory_order_relaxed) == 0) return;
    const std::uint8_t orders = keyOrders.exchange(0, std::memory_order_acquire);
    if (orders & ReleaseUnheldKeys) ReleaseUnheld();
    if (orders & ReleaseAllKeys) ReleaseAll();
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
    program->name.Set(text);
    return true;
}

bool CSynthesizer::GetProgramName(int index, char* buffer)
{
    const CProgram* program = ProgramAt(index);
    if (!buffer || !program) return false;
    char name[CProgram::kNameBytes]; // the caller's may be as short as what the name needs
    program->name.Get(name);
    std::strcpy(buffer, name);
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
