// What each parameter does to the engine.
#include "engine/ParameterBindings.h"

#include <algorithm>

#include "engine/PanelButtons.h"
#include "engine/StepButtons.h"
#include "engine/Transport.h"
#include "framework/ParameterTable.h"
#include "framework/Rows.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

using Engine = GrooveEngine;

float Flag(bool on) { return on ? 1.0f : 0.0f; }

// Fields of the engine's values, by themselves or in an array.

template <auto value, auto field>
void Take(Engine& engine, int, float v)
{
    engine.*value.*field = v;
}
template <auto value, auto field>
float Give(const Engine& engine, int)
{
    return static_cast<float>(engine.*value.*field);
}
template <auto value, auto field>
void Follow(Engine& engine, int, float v)
{
    engine.*value.*field = v != 0.0f;
}
template <auto value, auto field>
float GiveFlag(const Engine& engine, int)
{
    return Flag(engine.*value.*field);
}

/// A page of the panel: the whole part of the value times its last position.
template <auto field, int kLast>
void TakePage(Engine& engine, int, float v)
{
    engine.selection.*field = static_cast<std::int8_t>(std::clamp(Truncate(v * static_cast<float>(kLast)), 0, kLast));
}
template <auto field, int kLast>
float GivePage(const Engine& engine, int)
{
    return static_cast<float>(engine.selection.*field) / static_cast<float>(kLast);
}

// Operations, with the on state, the target, or both.

template <auto operation>
void Switch(Engine& engine, int, float v)
{
    operation(engine, v != 0.0f);
}
template <auto operation>
void Button(Engine& engine, int target, float v)
{
    operation(engine, target, v != 0.0f);
}
template <auto operation>
void At(Engine& engine, int target, float)
{
    operation(engine, target);
}
template <auto press, auto release>
void PressAndRelease(Engine& engine, int target, float v)
{
    if (v != 0.0f)
        press(engine, target);
    else
        release(engine, target);
}
template <auto operation>
void Edit(Engine& engine, int, float)
{
    (engine.score.*operation)(engine.selection);
}
template <auto mode>
float Shown(const Engine& engine, int)
{
    return Flag(ShownModes(engine).*mode);
}

// Rules of their own.

void FollowPlayBar(Engine& engine, int, float v) // any write ends it
{
    engine.clock.playBar.Update([v](bool loops) { return !loops && v != 0.0f; });
}
void FollowPlayOnce(Engine& engine, int, float v) { engine.score.playOnce[engine.score.currentPattern] = v != 0.0f; }
float GivePlayOnce(const Engine& engine, int) { return Flag(engine.score.playOnce[engine.score.currentPattern]); }
void FollowEnabled(Engine& engine, int channel, float v) { engine.mixer.muted[channel] = v == 0.0f; }
float GiveEnabled(const Engine& engine, int channel) { return Flag(!engine.mixer.muted[channel]); }
void TakeExt(Engine& engine, int n, float v) { engine.SetExtControl(n, v); }
float GiveExt(const Engine& engine, int n) { return engine.ext.extControls[n].value; }
void Learn(Engine& engine, int, float) { engine.ext.extLearn.Toggle(); }
float GiveStutter(const Engine& engine, int button) { return Flag(engine.buttons.stutterButtons.Held(button)); }
void Cycle(Engine& engine, int slotBase, float) { engine.CycleSwitch(slotBase); }
void ToSlot(Engine& engine, int index, float v)
{
    engine.SetChannelParameter(kParameters[static_cast<std::size_t>(index)].slotBase, v);
}
float OfSlot(const Engine& engine, int index)
{
    return engine.GetChannelParameter(kParameters[static_cast<std::size_t>(index)].slotBase);
}

constexpr int kLastEnvelope = SlotOf(slot::EnvelopeAmount).count - 1;
constexpr int kLastLfo = SlotOf(slot::LfoAmount).count - 1;
constexpr int kLastLayer = kLayers - 1;

constexpr auto kClock = &Engine::clock;
constexpr auto kMixer = &Engine::mixer;
constexpr auto kButtons = &Engine::buttons;

constexpr ParameterBinding Nothing(int index) { return {index, 1, 0, nullptr, nullptr}; }
constexpr ParameterBinding Slots(int first, int last) { return {first, last - first + 1, first, ToSlot, OfSlot, true}; }
template <auto field, int kLast>
constexpr ParameterBinding Page(int index)
{
    return {index, 1, 0, TakePage<field, kLast>, GivePage<field, kLast>};
}

// clang-format off
constexpr ParameterBinding kBindings[] = {
//   first                             n             target                     a write                                  a read
    {param::ShuffleAmount,             1,            0,                         Take<kClock, &Clock::shuffleAmount>,     Give<kClock, &Clock::shuffleAmount>},
    {param::Play,                      1,            0,                         Switch<SetPlay>,                         Shown<&Modes::playing>},
    {param::PlayBar,                   1,            0,                         FollowPlayBar,                           GiveFlag<kClock, &Clock::playBar>},
    {param::Record,                    1,            0,                         Switch<SetRecord>,                       Shown<&Modes::recordMode>},
    {param::Back,                      1,            -1,                        At<Move>,                                nullptr},
    {param::Forward,                   1,            +1,                        At<Move>,                                nullptr},
    {param::Edit,                      1,            0,                         Switch<SetEdit>,                         Shown<&Modes::editMode>},
    {param::Clear,                     1,            0,                         Edit<&Score::Clear>,                     nullptr},
    {param::Copy,                      1,            0,                         Edit<&Score::Copy>,                      nullptr},
    {param::Paste,                     1,            0,                         Edit<&Score::Paste>,                     nullptr},
    {param::MuteSelected,              1,            0,                         Switch<SetMuteModifier>,                 nullptr},
    {param::Solo,                      1,            0,                         Follow<kMixer, &Mixer::soloSelected>,    GiveFlag<kMixer, &Mixer::soloSelected>},
    {param::Pattern1,                  kPatterns,    0,                         At<SelectPattern>,                       nullptr},
    {param::PlayOnce,                  1,            0,                         FollowPlayOnce,                          GivePlayOnce},
    {param::Channel1,                  kChannels,    0,                         PressAndRelease<ChannelPress, ChannelRelease>, nullptr},
    {param::Enable1,                   kChannels,    0,                         FollowEnabled,                           GiveEnabled},
    {param::Ext1,                      kExtControls, 0,                         TakeExt,                                 GiveExt},
    {param::ExtLearn,                  1,            0,                         Learn,                                   nullptr},
    {param::Fx1,                       kEffects,     0,                         Button<SetFxButton>,                     nullptr},
    {param::Stutter1_1,                4,            0,                         Button<SetStutterButton>,                GiveStutter},
    Nothing(67),
    {param::Stutter1_4,                1,            4,                         Button<SetStutterButton>,                GiveStutter},
    {param::FxActivate,                1,            0,                         Switch<SetFxPad>,                        nullptr},
    Slots(70, 72),
    {param::FxLfoShapeSwitch,          1,            slot::FxLfoShape,          Cycle,                                   nullptr},
    Slots(74, 74),
    {param::FxLfoSyncSwitch,           1,            slot::FxLfoSync,           Cycle,                                   nullptr},
    Slots(76, 95),
    {param::FilterTypeSwitch,          1,            slot::FilterType,          Cycle,                                   nullptr},
    Page<&Selection::envelopeNumber, kLastEnvelope>(param::EnvelopeNumber),
    {param::EnvelopeDestinationSwitch, 1,            slot::EnvelopeDestination, Cycle,                                   nullptr},
    Slots(99, 103),
    Page<&Selection::lfoNumber, kLastLfo>(param::LfoNumber),
    Slots(105, 108),
    {param::LfoSyncSwitch,             1,            slot::LfoSync,             Cycle,                                   nullptr},
    Slots(110, 110),
    {param::LfoDestinationSwitch,      1,            slot::LfoDestination,      Cycle,                                   nullptr},
    Slots(112, 112),
    {param::LfoShapeSwitch,            1,            slot::LfoShape,            Cycle,                                   nullptr},
    Slots(114, 151),
    Page<&Selection::layerNumber, kLastLayer>(param::LayerNumber),
    Nothing(param::LayerResetStart),
    Nothing(154),
    {param::Step1,                     kNotes,       0,                         PressAndRelease<StepButton, StepButtonRelease>, nullptr},
    Nothing(179),
    {param::EngineFlag,                1,            0,                         nullptr,                                 GiveFlag<kButtons, &Buttons::muteModifier>},
    Nothing(181),
    Slots(182, 195),
};
// clang-format on

static_assert(RowsFollowEachOther(kBindings, param::Count)); // each parameter has its one row

/// What a row does is what the table of names says of each of its parameters.
constexpr bool RowsFitTheTable()
{
    for (const ParameterBinding& row : kBindings)
        for (int n = 0; n < row.count; ++n) {
            const ParameterInfo& info = kParameters[static_cast<std::size_t>(row.first + n)];
            const int state = row.read.exists ? kEngineState : kFromProgram;
            if (row.ofSlots ? info.slotBase < 0 : info.slotBase != state) return false;
            if (row.write.exists == (info.kind == Kind::None)) return false;
        }
    return true;
}
static_assert(RowsFitTheTable());

constexpr auto kRowOf = RowsOf<param::Count>(kBindings);

} // namespace

const ParameterBinding& BindingOf(int index) { return kBindings[kRowOf[static_cast<std::size_t>(index)]]; }

} // namespace korvane
