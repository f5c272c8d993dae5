// The groove engine as a synthesizer: host parameters and MIDI into the engine core.
#include "engine/KVSynth.h"

#include <cstdio>
#include <cstring>

#include "content/LastSampleFolder.h"
#include "engine/ParameterBindings.h"
#include "engine/RenderLoop.h"
#include "engine/StepButtons.h"
#include "engine/Transport.h"
#include "framework/KVProgram.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"
#include "shell/CPluginDefinition.h"
#include "shell/CPluginEditor.h"

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
    links.Read(folders.root);
}

KVSynth::~KVSynth() { links.Write(folders.root); }

// Blocks

void KVSynth::ProcessMultiOut(float**, float** outputs, int frames)
{
    FollowHostTime();
    RenderFrames(*engine, outputs, frames);
}

void KVSynth::ServeOrders()
{
    if (!engine->MayTouchVoices() || !OrdersWait(*engine)) return;
    FollowHostTime();
    ServeTransport(*engine);
}

void KVSynth::FollowHostTime()
{
    Clock& clock = engine->clock;
    clock.tempo = static_cast<float>(Clamp<double>(tempo, 1.0, kFastestTempo * clock.sampleRate));
    clock.hostPosition = static_cast<double>(songPosition);
}

void KVSynth::SetPlaying(bool running)
{
    const BetweenBlocks exclusive(*this);
    if (engine->MayTouchVoices()) FollowHostTime(); // a start that waits takes the time of its block
    FollowHost(*engine, running);
}

void KVSynth::Reset()
{
    ProgramSwitch exclusive(*this);
    ServeOrders(); // they came before
    engine->ResetEngine(0.0f);
    CSynthesizer::Reset();
}

void KVSynth::SetSampleRate(double newRate)
{
    if (!UsableRate(newRate)) return;
    ProgramSwitch exclusive(*this);
    ServeOrders();
    engine->ResetEngine(static_cast<float>(newRate));
    CSynthesizer::SetSampleRate(newRate);
}

// Parameters

float KVSynth::GetParameter(int index)
{
    if (index < 0 || index >= param::Count) return 0.0f;
    const ParameterBinding& row = BindingOf(index);
    if (!row.read.exists) return CSynthesizer::GetParameter(index); // what the program stores
    return row.read.function(*engine, row.target + index - row.first);
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

void KVSynth::GetLastParameterText(char* buffer)
{
    const int parameter = links.lastParameter;
    std::strcpy(buffer, "---");
    if (parameter >= 0) GetParameterName(parameter, buffer);
}

void KVSynth::ReportParameters()
{
    if (!wrapper) return;
    for (int index = 0; index < param::Count; ++index) wrapper->ParameterAutomated(index, GetParameter(index));
}

void KVSynth::RefreshEditor()
{
    if (CPluginEditor* editor = wrapper ? wrapper->GetEditor() : nullptr) editor->RefreshAll();
}

bool KVSynth::Acts(int index, float value)
{
    const bool on = value != 0.0f;
    const bool internal = index >= param::HostCount; // every write counts: nobody keeps such a button's state
    const bool changed = internal || switchStates[index].Replace(!on, on);
    switch (kParameters[static_cast<std::size_t>(index)].kind) {
    case Kind::Value:
    case Kind::Follow:
    case Kind::Select: return true;
    case Kind::Trigger: return changed && on;
    case Kind::Change:
    case Kind::Press: return changed;
    case Kind::None: break;
    }
    return false;
}

void KVSynth::ParameterChanged(int index, float value)
{
    if (index < 0 || index >= param::Count) return;
    const BetweenBlocks exclusive(*this);
    links.lastParameter = index;
    if (!keyTrigger) engine->liveVelocity = 1.0f;

    if (!Acts(index, value)) return;
    ServeOrders();
    const ParameterBinding& row = BindingOf(index);
    row.write.function(*engine, row.target + index - row.first, value);
}

// MIDI

void KVSynth::NoteEvent(std::int8_t key, std::int8_t velocity)
{
    if (key < 0) return;
    ServeOrders();
    const float value = law::Velocity(velocity);
    if (velocity > 0) {
        engine->liveVelocity = value;
        links.lastSource = source::FirstKey + key;
    }
    const int linked = links.links[source::FirstKey + key];
    const int pad = key - kFirstNote;
    if (linked >= 0) {
        SetParameter(linked, value);
    } else if (pad >= 0 && pad < kNotes) {
        keyTrigger = true; // the pad sounds at the key's velocity
        SetParameter(param::Step1 + pad, value);
        keyTrigger = false;
    } else if (velocity > 0) {
        StepButton(*engine, pad);
    } else {
        engine->ReleaseNote(engine->selection.selectedChannel, key);
    }
}

void KVSynth::PitchBendChanged()
{
    links.lastSource = source::PitchWheel;
    const float bend = static_cast<float>(pitchBend);
    engine->livePitchBend = bend;
    if (const int linked = links.links[source::PitchWheel]; linked >= 0) SetParameter(linked, bend);
}

void KVSynth::ControllerChanged(std::int8_t number)
{
    if (number < 0) return;
    links.lastSource = number;
    const float value = static_cast<float>(controllers[number]);
    if (number == controller::ModWheel) engine->liveModWheel = value;
    const int linked = links.links[number];
    if (linked < 0) return;
    if (links.ignoreValue[number]) {
        SetParameter(linked, 1.0f);
        SetParameter(linked, 0.0f);
    } else {
        SetParameter(linked, value);
    }
}

void KVSynth::ChannelPressureChanged() { engine->livePressure = static_cast<float>(channelPressure); }

} // namespace korvane
