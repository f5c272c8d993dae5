// The instrument as its bridges see it: construction, parameters, rendering.
#include "engine/KVSynth.h"

#include <algorithm>
#include <cstdio>

#include "content/LastSampleFolder.h"
#include "framework/KVProgram.h"
#include "platform/Numbers.h"
#include "shell/CPluginDefinition.h"

namespace korvane {

namespace {

constexpr double kFastestTempo = 15.0; // times the sample rate: a step of one frame

} // namespace

KVSynth::KVSynth(CPluginWrapper* bridge) : CSynthesizer(bridge)
{
    auto program = std::make_unique<KVProgram>();
    program->InitDefaults();
    AddProgram(std::move(program));

    folders = ContentFolders::Find(Definition() ? static_cast<int>(Definition()->hostKind) : host::Unknown);
    LastSampleFolder().Set(folders.drumSamples);
    engine = std::make_unique<GrooveEngine>(&blockThread);
    SamplePool& pool = *engine->samplePool;
    std::snprintf(pool.sampleFolder, sizeof pool.sampleFolder, "%s", folders.drumSamples);
    std::snprintf(pool.waveFolder, sizeof pool.waveFolder, "%s", folders.synthWaves);
    std::snprintf(engine->defaultWavePath, sizeof engine->defaultWavePath, "%s", folders.defaultWave);
    engine->ResetGroove();

    synthPrograms = std::make_unique<CPresetList>(folders.synthPrograms, "kvsynth");
    samplerPrograms = std::make_unique<CPresetList>(folders.samplerPrograms, "kvsmp");
    synthPrograms->Refresh();
    samplerPrograms->Refresh();
    waveforms = std::make_unique<CFileList>();
    for (const char* extension : {"wav", "aif", "aiff"}) waveforms->AddFilter(extension, false);
    waveforms->Scan(folders.synthWaves);

    for (auto& link : links) link = std::int16_t{-1};
    ReadLinkMap();
    LoadDefaultGroove();
}

KVSynth::~KVSynth() { WriteLinkMap(); }

void KVSynth::ProcessMultiOut(float**, float** outputs, int frames)
{
    FollowHost();
    engine->RenderFrames(outputs, frames);
}

void KVSynth::FollowHost()
{
    engine->tempo = static_cast<float>(Clamp<double>(tempo, 1.0, kFastestTempo * engine->sampleRate));
    engine->hostPosition = static_cast<double>(songPosition);
}

void KVSynth::SetPlaying(bool running)
{
    const BetweenBlocks exclusive(*this);
    FollowHost();
    if (engine->playing) {
        if (engine->recordMode) engine->ToggleRecord();
        if (engine->playing) engine->TogglePlay(); // leaving a recording from standstill has stopped it already
    }
    if (running) engine->TogglePlay();
}

void KVSynth::Reset()
{
    ProgramSwitch exclusive(*this);
    engine->ResetEngine(0.0f);
    CSynthesizer::Reset();
}

void KVSynth::SetSampleRate(double newRate)
{
    if (!(newRate >= 1.0 && newRate <= 1.0e6)) return;
    ProgramSwitch exclusive(*this);
    engine->ResetEngine(static_cast<float>(newRate));
    CSynthesizer::SetSampleRate(newRate);
}

float KVSynth::GetParameterDefault(int index)
{
    return index >= 0 && index < param::Count ? kParameters[static_cast<std::size_t>(index)].defaultValue : 0.0f;
}

void KVSynth::GetParameterLabel(int, char* buffer)
{
    if (buffer) *buffer = '\0';
}

void KVSynth::GetParameterDisplay(int index, char* buffer)
{
    if (!buffer) return;
    const bool known = index >= 0 && index < param::Count;
    FormatDisplay(known ? kParameters[static_cast<std::size_t>(index)].display : Display::Percent, GetParameter(index),
                  buffer);
}

float KVSynth::GetParameter(int index)
{
    if (index < 0 || index >= param::Count) return 0.0f;
    const ParameterInfo& info = kParameters[static_cast<std::size_t>(index)];
    if (info.slotBase >= 0) return engine->GetChannelParameter(info.slotBase);
    const auto flag = [](bool on) { return on ? 1.0f : 0.0f; };
    switch (index) {
    case param::ShuffleAmount: return engine->shuffleAmount;
    case param::Play: return flag(engine->playing);
    case param::PlayBar: return flag(engine->playBar);
    case param::Record: return flag(engine->recordMode);
    case param::Edit: return flag(engine->editMode);
    case param::Solo: return flag(engine->soloSelected);
    case param::PlayOnce: return flag(engine->playOnce[engine->currentPattern]);
    case param::EnvelopeNumber: return engine->envelopeNumber;
    case param::LfoNumber: return engine->lfoNumber;
    case param::LayerNumber: return static_cast<float>(engine->layerNumber) / 3.0f;
    case param::Stutter1_4: return flag(engine->stutterButtons.Held(4));
    case param::EngineFlag: return flag(engine->muteModifier);
    default: break;
    }
    if (index >= param::Enable1 && index < param::Enable1 + kChannels)
        return flag(!engine->muted[index - param::Enable1]);
    if (index >= param::Stutter1_1 && index < param::Stutter1_1 + 4)
        return flag(engine->stutterButtons.Held(index - param::Stutter1_1));
    if (index >= param::Ext1 && index < param::Ext1 + kExtControls)
        return engine->extControls[index - param::Ext1].value;
    return CSynthesizer::GetParameter(index); // what the program stores
}

bool KVSynth::Edge(int index, bool on)
{
    if (index >= param::HostCount) return false;
    const bool changed = switchStates[index] != on;
    switchStates[index] = on;
    return changed;
}

void KVSynth::ParameterChanged(int index, float value)
{
    if (index < 0 || index >= param::Count) return;
    const BetweenBlocks exclusive(*this);
    lastParameter = index;
    if (!keyTrigger) engine->liveVelocity = 1.0f;

    const ParameterInfo& info = kParameters[static_cast<std::size_t>(index)];
    const bool on = value != 0.0f;
    const bool changed = Edge(index, on);
    switch (info.kind) {
    case Kind::Value: WriteValue(info, value); break;
    case Kind::Follow: Follow(index, on); break;
    case Kind::Trigger:
        if (on && changed) Trigger(index);
        break;
    case Kind::Change:
        if (changed) Change(index, on);
        break;
    case Kind::Press: Press(index, on, changed); break;
    case Kind::Select: Select(index, value); break;
    case Kind::None: break;
    }
}

void KVSynth::WriteValue(const ParameterInfo& info, float value)
{
    if (info.slotBase >= 0)
        engine->SetChannelParameter(info.slotBase, value);
    else if (info.index == param::ShuffleAmount)
        engine->shuffleAmount = value;
    else
        engine->SetExtControl(info.index - param::Ext1, value);
}

void KVSynth::Follow(int index, bool on)
{
    switch (index) {
    case param::Play:
        if (on != engine->playing) engine->TogglePlay();
        break;
    case param::Record:
        if (on != engine->recordMode) engine->ToggleRecord();
        break;
    case param::Edit:
        if (on != engine->editMode) engine->ToggleEdit();
        break;
    case param::PlayBar: engine->playBar = !engine->playBar && on; break; // any write ends it
    case param::Solo: engine->soloSelected = on; break;
    case param::PlayOnce: engine->playOnce[engine->currentPattern] = on; break;
    default: engine->muted[index - param::Enable1] = !on; break;
    }
}

void KVSynth::Trigger(int index)
{
    switch (index) {
    case param::Back: engine->Back(); break;
    case param::Forward: engine->Forward(); break;
    case param::Clear: engine->Clear(); break;
    case param::Copy: engine->Copy(); break;
    case param::Paste: engine->Paste(); break;
    case param::ExtLearn: engine->extLearn = !engine->extLearn; break;
    case param::FilterTypeSwitch: engine->CycleSwitch(slot::FilterType); break;
    case param::EnvelopeDestinationSwitch: engine->CycleSwitch(slot::EnvelopeDestination); break;
    case param::LfoSyncSwitch: engine->CycleSwitch(slot::LfoSync); break;
    case param::LfoDestinationSwitch: engine->CycleSwitch(slot::LfoDestination); break;
    case param::LfoShapeSwitch: engine->CycleSwitch(slot::LfoShape); break;
    case param::FxLfoShapeSwitch: engine->CycleSwitch(slot::FxLfoShape); break;
    case param::FxLfoSyncSwitch: engine->CycleSwitch(slot::FxLfoSync); break;
    default: engine->SelectPattern(index - param::Pattern1); break;
    }
}

void KVSynth::Change(int index, bool on)
{
    switch (index) {
    case param::MuteSelected: engine->SetMuteModifier(on); break;
    case param::Stutter1_4: engine->SetStutterButton(4, on); break;
    default: engine->SetStutterButton(index - param::Stutter1_1, on); break;
    }
}

void KVSynth::Press(int index, bool on, bool changed)
{
    if (index >= param::Step1) {
        if (on)
            engine->StepButton(index - param::Step1);
        else
            engine->StepButtonRelease(index - param::Step1);
    } else if (changed && index >= param::Fx1) {
        engine->SetFxButton(index - param::Fx1, on);
    } else if (changed) {
        if (on)
            engine->ChannelPress(index - param::Channel1);
        else
            engine->ChannelRelease(index - param::Channel1);
    }
}

void KVSynth::Select(int index, float value)
{
    const auto position = [value](float scale, int last) {
        return static_cast<std::int8_t>(std::clamp(Truncate(value * scale), 0, last));
    };
    switch (index) {
    case param::EnvelopeNumber: engine->envelopeNumber = position(1.0f, 1); break;
    case param::LfoNumber: engine->lfoNumber = position(1.0f, 1); break;
    case param::LayerNumber: engine->layerNumber = position(3.0f, kLayers - 1); break;
    default: engine->SetFxPad(value != 0.0f); break;
    }
}

} // namespace korvane
