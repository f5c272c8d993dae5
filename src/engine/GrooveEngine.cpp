// The engine core: data, parameters, life cycle.
#include "engine/GrooveEngine.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr std::int8_t kDefaultPadKeys[kSamplerChannels] = {12, 14, 15, 18, 20, 17, 19, 23};

/// Highest position of a stepped parameter.
int LastPosition(int base)
{
    switch (base) {
    case slot::FilterType:
    case slot::LfoSync: return 2;
    case slot::FxLfoSync: return 1;
    default: return 3;
    }
}

template <class T, std::size_t kCount, class V>
void Fill(Shared<T> (&values)[kCount], V value)
{
    for (auto& entry : values) entry = static_cast<T>(value);
}

/// What may render. Values far outside 0..1 come from images and hosts; powers of them must not overflow before the
/// mixer, and what they ask for is beyond every end of its range at a thousand already.
float Tame(float value)
{
    constexpr float kWildest = 1000.0f;
    return std::isfinite(value) ? Clamp(value, -kWildest, kWildest) : 0.0f;
}

} // namespace

GrooveEngine::GrooveEngine(const Shared<std::thread::id>* newBlockThread)
    : samplePool(std::make_unique<SamplePool>()), clipboard(std::make_unique<GroovePattern>()),
      blockThread(newBlockThread)
{
    clipboard->Clear();
    for (auto& pattern : patterns) {
        pattern = std::make_unique<GroovePattern>();
        pattern->Clear();
    }
    for (auto& channel : channels) channel = std::make_unique<GrooveChannel>(*samplePool, random);
    Fill(lastStep, -1);
}

GrooveEngine::~GrooveEngine() = default;

int GrooveEngine::ChannelIndexOf(int base) const
{
    switch (BankOf(base)) {
    case Bank::Envelope: return base + envelopeNumber;
    case Bank::Lfo: return base + lfoNumber;
    case Bank::Layer: return base + layerNumber;
    case Bank::Fx: return base + selectedFx;
    case Bank::None: break;
    }
    return base;
}

void GrooveEngine::SetChannelParameter(int base, float value)
{
    const int index = ChannelIndexOf(base);
    const bool valid = index >= 0 && index < kChannelSlots;
    const int selected = selectedChannel;
    const int edited = editStep;
    if (edited != -1) {
        const float stored = valid ? static_cast<float>(storedParams[selected][index]) : 0.0f;
        Pattern().locks[selected][selectedBar * kStepsPerBar + edited].Set(index, value - stored);
    } else {
        for (int c = 0; c < kChannels; ++c) {
            if (c != selected && !channelHeld[c]) continue;
            if (base >= slot::FxX) {
                for (int effect = 0; effect < kEffects; ++effect)
                    if (fxOn[effect] && base + effect < kChannelSlots) storedParams[c][base + effect] = value;
            }
            if (valid) storedParams[c][index] = value;
            RefreshChannel(c);
        }
    }
    if (extLearn) {
        ExtControl& control = extControls[extIndex];
        control.channel = selected;
        control.param = index;
        extLearn = false;
    }
    for (auto& control : extControls)
        if (control.channel == selected && control.param == index) control.value = value;
}

float GrooveEngine::GetChannelParameter(int base) const
{
    int index = ChannelIndexOf(base);
    if (index < 0 || index >= kChannelSlots) index = 0;
    const int selected = selectedChannel;
    const float stored = storedParams[selected][index];
    const int edited = editStep;
    if (edited == -1) return stored;
    return stored + Pattern().locks[selected][selectedBar * kStepsPerBar + edited].Offset(index);
}

void GrooveEngine::CycleSwitch(int base)
{
    const int last = LastPosition(base);
    int position = Truncate(std::floor(GetChannelParameter(base) * static_cast<float>(last)));
    position = position < 0 || position >= last ? 0 : position + 1;
    SetChannelParameter(base, static_cast<float>(position) / static_cast<float>(last));
}

void GrooveEngine::SetExtControl(int n, float value)
{
    extIndex = n;
    ExtControl& control = extControls[n];
    const float clamped = Clamp(value, 0.0f, 1.0f);
    control.value = clamped;
    const int channel = control.channel;
    const int param = control.param;
    if (param < 0 || param >= kChannelSlots || channel < 0 || channel >= kChannels) return;
    storedParams[channel][param] = clamped;
    RefreshChannel(channel);
}

void GrooveEngine::RefreshChannel(int channel, bool withLocks)
{
    const auto& stored = storedParams[channel];
    const auto moved = [&stored](const float* seen) {
        for (int n = 0; n < kChannelSlots; ++n)
            if (std::bit_cast<std::uint32_t>(static_cast<float>(stored[n])) != std::bit_cast<std::uint32_t>(seen[n]))
                return true;
        return false;
    };
    constexpr int kTries = 3; // another thread's write, or step, is not to be lost under this copy
    for (int n = 0; n < kTries; ++n) {
        const int step = lastStep[channel];
        float seen[kChannelSlots], block[kChannelSlots];
        std::copy(std::begin(stored), std::end(stored), seen);
        std::copy(std::begin(seen), std::end(seen), block);
        if (withLocks && step >= 0) Pattern().locks[channel][step].ApplyTo(block);
        for (int i = 0; i < kChannelSlots; ++i)
            Channel(channel).sound.params[i] = Tame(block[i]); // wild values stay in `stored`
        if (lastStep[channel] == step && !moved(seen)) break;
    }
    RefreshFxActive(channel);
}

void GrooveEngine::RefreshFxActive(int channel)
{
    const bool chosen = channel == selectedChannel || channelHeld[channel];
    const int padEffect = fxPad ? static_cast<int>(selectedFx) : -1;
    for (int effect = 0; effect < kEffects; ++effect)
        Channel(channel).fxActive[effect] = chosen && (fxOn[effect] || effect == padEffect);
}

void GrooveEngine::RefreshAllFxActive()
{
    for (int c = 0; c < kChannels; ++c) RefreshFxActive(c);
}

void GrooveEngine::SetFxButton(int effect, bool held)
{
    const bool anyHeld =
        std::any_of(std::begin(fxOn), std::end(fxOn), [](const Shared<bool>& on) -> bool { return on; });
    if (held && !anyHeld) selectedFx = effect;
    fxOn[effect] = held;
    RefreshAllFxActive();
}

void GrooveEngine::SetFxPad(bool held)
{
    fxPad = held;
    RefreshAllFxActive();
}

void GrooveEngine::SetStutterButton(int button, bool held)
{
    if (held)
        stutterButtons.Press(button);
    else
        stutterButtons.Release(button);
    RefreshStutterCodes();
}

void GrooveEngine::RefreshStutterCodes()
{
    const int pressed = stutterButtons.Code();
    for (int c = 0; c < kChannels; ++c) {
        const int code = c == selectedChannel || channelHeld[c] ? pressed : 0;
        if (code != std::abs(stutterCode[c])) stutterCode[c] = static_cast<std::int8_t>(-code);
    }
}

void GrooveEngine::ResetGroove()
{
    for (int c = 0; c < kSamplerChannels; ++c) Channel(c).sound.isSampler = true;
    samplesToNextStep = 0.0;
    selectedChannel = kSamplerChannels;
    stepCounter = patternStep = std::uint8_t{0};
    editMode = recordMode = playing = playBar = false;
    selectedBar = currentPattern = nextPattern = patternRepeats = 0;
    Fill(playOnce, false);
    Fill(stutterCode, 0);
    stutterButtons.Clear();
    selectedFx = 0;
    envelopeNumber = lfoNumber = layerNumber = std::int8_t{0};
    soloSelected = muteModifier = false;
    editStep = selectedBarMark = selectedPatternMark = -1;
    Fill(channelHeld, false);
    Fill(channelMarked, false);
    Fill(muted, false);
    Fill(fxOn, false);
    Fill(stepHeld, false);
    for (auto& control : extControls) control.param = -1;
    std::copy(std::begin(kDefaultPadKeys), std::end(kDefaultPadKeys), padKeys);
    extIndex = 0;
    extLearn = false;
    for (int c = 0; c < kChannels; ++c) InitChannel(c);
    for (auto& pattern : patterns) pattern->Clear();
}

void GrooveEngine::InitChannel(int channel)
{
    for (int n = 0; n < kChannelSlots; ++n)
        storedParams[channel][n] = ChannelBlockDefault(n, channel < kSamplerChannels);
    int n = 0;
    for (SampleSlot& sampleSlot : Channel(channel).sound.sampleSlots) {
        const bool oscillator = n++ < kFirstLayerSlot;
        sampleSlot.request.Post(oscillator ? defaultWavePath : "!");
        sampleSlot.path.Set(oscillator ? defaultWavePath : ""); // a state saved before the next block has it already
    }
    Channel(channel).programPath.Set("");
    RefreshChannel(channel);
}

void GrooveEngine::ResetSelectedChannel()
{
    Pattern().ClearChannel(selectedChannel);
    InitChannel(selectedChannel);
}

void GrooveEngine::ResetEngine(float newRate)
{
    for (VoiceCommand dropped; voiceCommands.Pop(dropped);) {} // their notes would end here
    hostPosition = 0.0;
    clickPhase = clickLevel = clickIncrement = 0.0f;
    if (newRate != 0.0f) sampleRate = static_cast<double>(newRate);
    for (auto& channel : channels) channel->Reset(newRate);
    nextPattern = static_cast<int>(currentPattern);
    Fill(lastStep, -1);
    for (auto& channel : channels) channel->ReleaseSequenced();
}

} // namespace korvane
