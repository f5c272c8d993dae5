// The engine core: data, parameters, notes, life cycle.
#include "engine/GrooveEngine.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// What may render. Values far outside 0..1 come from images and hosts; powers of them must not overflow before the
/// mixer, and what they ask for is beyond every end of its range at a thousand already.
float Tame(float value)
{
    constexpr float kWildest = 1000.0f;
    return std::isfinite(value) ? Clamp(value, -kWildest, kWildest) : 0.0f;
}

constexpr int kTries = 3; // of a copy, under which another thread's write, or step, is not to be lost

bool IsChannelSlot(int index) { return index >= 0 && index < kChannelSlots; }

/// Whether a block has changed since it was read.
bool Moved(const Shared<float> (&block)[kChannelSlots], const float* seen)
{
    for (int n = 0; n < kChannelSlots; ++n)
        if (std::bit_cast<std::uint32_t>(static_cast<float>(block[n])) != std::bit_cast<std::uint32_t>(seen[n]))
            return true;
    return false;
}

} // namespace

GrooveEngine::GrooveEngine(const Shared<std::thread::id>* newOwner)
    : samplePool(std::make_unique<SamplePool>()), owner(newOwner)
{
    for (int c = 0; c < kChannels; ++c)
        channels[static_cast<std::size_t>(c)] = std::make_unique<GrooveChannel>(*samplePool, random, c);
}

GrooveEngine::~GrooveEngine() = default;

// Parameters

void GrooveEngine::SetChannelParameter(int base, float value)
{
    const int selected = selection.selectedChannel;
    const int edited = selection.editStep;
    if (edited != -1) return SetStepParameter(score.Current(), selected, selection.StepInPattern(edited), base, value);
    const int index = selection.ChannelIndexOf(base);
    for (int c = 0; c < kChannels; ++c) {
        if (!buttons.Reaches(c, selected)) continue;
        // Held effects take the value too. Where the base is no effect's first parameter, as of the equaliser, it
        // spills into the slots behind it: so the instrument always did, and grooves were made with it.
        for (int effect = 0; base >= slot::FxX && effect < kEffects; ++effect)
            if (buttons.fxOn[effect] && base + effect < kChannelSlots) storedParams[c][base + effect] = value;
        if (IsChannelSlot(index)) storedParams[c][index] = value;
        RefreshChannel(c);
    }
    ext.Written({selected, index}, value);
}

float GrooveEngine::GetChannelParameter(int base) const
{
    const int selected = selection.selectedChannel;
    const int edited = selection.editStep;
    if (edited != -1) return StepParameter(score.Current(), selected, selection.StepInPattern(edited), base);
    const int index = selection.ChannelIndexOf(base);
    return storedParams[selected][IsChannelSlot(index) ? index : 0];
}

void GrooveEngine::SetStepParameter(GroovePattern& pattern, int channel, int step, int base, float value)
{
    const int index = selection.ChannelIndexOf(base);
    if (IsChannelSlot(index)) pattern.SetLock(channel, step, index, value - storedParams[channel][index]);
    ext.Written({channel, index}, value);
}

float GrooveEngine::StepParameter(const GroovePattern& pattern, int channel, int step, int base) const
{
    int index = selection.ChannelIndexOf(base);
    if (!IsChannelSlot(index)) index = 0;
    return storedParams[channel][index] + pattern.locks[channel][step].Offset(index);
}

void GrooveEngine::HearStep(const GroovePattern& pattern, int channel, int step)
{
    if (clock.playing && &pattern == &score.Current() && score.lastStep[channel] == step) RefreshChannel(channel);
}

void GrooveEngine::CycleSwitch(int base)
{
    const int last = slot::LastPosition(base);
    int position = Truncate(std::floor(GetChannelParameter(base) * static_cast<float>(last)));
    position = position < 0 || position >= last ? 0 : position + 1;
    SetChannelParameter(base, static_cast<float>(position) / static_cast<float>(last));
}

void GrooveEngine::SetExtControl(int n, float value)
{
    ext.extIndex = n;
    ExtControl& control = ext.extControls[n];
    const float clamped = Clamp(value, 0.0f, 1.0f);
    control.value = clamped;
    const ExtBinding bound = control.binding;
    if (!bound.LeadsSomewhere()) return;
    storedParams[bound.channel][bound.param] = clamped;
    RefreshChannel(bound.channel);
}

void GrooveEngine::RefreshChannel(int channel, bool withLocks)
{
    const auto& stored = storedParams[channel];
    ParameterBlock& params = Channel(channel).sound.params;
    for (int n = 0; n < kTries; ++n) {
        params.changes.Note(false); // of two who copy at once, one sees what the other has read, or has left
        const int step = score.lastStep[channel];
        float seen[kChannelSlots], block[kChannelSlots];
        std::copy(std::begin(stored), std::end(stored), seen);
        std::copy(std::begin(seen), std::end(seen), block);
        if (withLocks && step >= 0) score.Current().locks[channel][step].ApplyTo(block);
        bool changed = false;
        for (int i = 0; i < kChannelSlots; ++i)
            changed |= params.Write(i, Tame(block[i])); // wild ones stay in `stored`
        params.changes.Note(changed);
        if (changed) changes.Add();
        if (score.lastStep[channel] == step && !Moved(stored, seen)) break;
    }
    RefreshFxActive(channel);
}

unsigned GrooveEngine::PlayedEffects(int channel) const
{
    if (!buttons.Reaches(channel, selection.selectedChannel)) return 0;
    const int padEffect = buttons.fxPad ? static_cast<int>(selection.selectedFx) : -1;
    unsigned played = 0;
    for (int effect = 0; effect < kEffects; ++effect)
        if (buttons.fxOn[effect] || effect == padEffect) played |= 1u << effect;
    return played;
}

void GrooveEngine::RefreshFxActive(int channel)
{
    GrooveChannel& target = Channel(channel);
    ChangeCount& counted = target.sound.params.changes;
    for (int n = 0; n < kTries; ++n) {
        counted.Note(false); // as in RefreshChannel
        const unsigned played = PlayedEffects(channel);
        bool changed = false;
        for (int effect = 0; effect < kEffects; ++effect) {
            const bool active = (played >> effect & 1u) != 0;
            changed |= target.fxActive[effect].Exchange(active) != active;
        }
        counted.Note(changed);
        if (changed) changes.Add();
        if (PlayedEffects(channel) == played) break;
    }
}

void GrooveEngine::RefreshFxActive()
{
    for (int c = 0; c < kChannels; ++c) RefreshFxActive(c);
}

// Notes

void GrooveEngine::NoteOn(int channel, int note, float velocity)
{
    Do({VoiceCommand::Kind::NoteOn, static_cast<std::uint8_t>(channel), static_cast<std::int16_t>(note), velocity});
}

void GrooveEngine::ReleaseNote(int channel, int note)
{
    Do({VoiceCommand::Kind::ReleaseNote, static_cast<std::uint8_t>(channel), static_cast<std::int16_t>(note), 0.0f});
}

void GrooveEngine::ReleaseLive(int channel)
{
    Do({VoiceCommand::Kind::ReleaseLive, static_cast<std::uint8_t>(channel), 0, 0.0f});
}

void GrooveEngine::ReleaseSequenced()
{
    for (auto& channel : channels) korvane::ReleaseSequenced(channel->voices);
}

void GrooveEngine::Do(const VoiceCommand& command)
{
    if (!MayTouchVoices()) {
        commands.voices.Push(command);
        return;
    }
    ServeVoices(); // what came before comes first
    Execute(command);
}

void GrooveEngine::ServeVoices()
{
    for (VoiceCommand command; commands.voices.Pop(command);) Execute(command);
}

void GrooveEngine::Execute(const VoiceCommand& command)
{
    GrooveChannel& channel = Channel(command.channel);
    switch (command.kind) {
    case VoiceCommand::Kind::NoteOn: channel.NoteOn(command.note, 0.0f, command.velocity); break;
    case VoiceCommand::Kind::ReleaseNote: korvane::ReleaseNote(channel.voices, command.note); break;
    case VoiceCommand::Kind::ReleaseLive: korvane::ReleaseLive(channel.voices); break;
    }
}

void GrooveEngine::ServeRequests()
{
    for (auto& channel : channels)
        for (int s = 0; s < kSampleSlots; ++s)
            ServeRequest(*samplePool, channel->sound.sampleSlots[static_cast<std::size_t>(s)], SlotKind(s));
}

// Life cycle

void GrooveEngine::ResetGroove()
{
    ResetPanel();
    score.Reset();
    for (int c = 0; c < kChannels; ++c) InitChannel(c);
}

void GrooveEngine::ResetPanel()
{
    for (int c = 0; c < kSamplerChannels; ++c) Channel(c).sound.isSampler = true;
    clock.Reset();
    selection.Reset();
    buttons.Reset();
    mixer.Reset();
    ext.Reset();
    score.ResetSelection();
}

void GrooveEngine::InitChannel(int channel)
{
    int n = 0;
    for (SampleSlot& sampleSlot : Channel(channel).sound.sampleSlots) sampleSlot.Ask(DefaultFile(n++));
    Channel(channel).programPath.Set("");
    InitSettings(channel);
}

void GrooveEngine::InitSettings(int channel)
{
    for (int n = 0; n < kChannelSlots; ++n)
        storedParams[channel][n] = ChannelBlockDefault(n, channel < kSamplerChannels);
    RefreshChannel(channel);
}

void GrooveEngine::ResetSelectedChannel()
{
    score.Current().ClearChannel(selection.selectedChannel);
    InitChannel(selection.selectedChannel);
}

void GrooveEngine::ResetEngine(float newRate)
{
    for (VoiceCommand dropped; commands.voices.Pop(dropped);) {} // their notes would end here
    clock.hostPosition = 0.0;
    mixer.click.Silence();
    if (newRate != 0.0f) clock.sampleRate = static_cast<double>(newRate);
    for (auto& channel : channels) channel->Reset(newRate);
    score.Restart();
    ReleaseSequenced();
}

} // namespace korvane
