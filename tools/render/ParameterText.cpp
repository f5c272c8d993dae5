// Parameter values as users write them.
#include "render/ParameterText.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "framework/ParameterTable.h"
#include "render/Failure.h"
#include "render/Names.h"
#include "render/ParseNumber.h"

namespace korvane::render {

namespace {

enum class Unit { Shown, Unshown };

/// A display that is a straight line: shown = value * range - offset.
struct Scale {
    Display display;
    double range, offset;
    const char* unit;
    Unit shown;
    bool whole; // shown without decimals, cut toward zero
};
constexpr Scale kScales[] = {
    // clang-format off
    {Display::Percent,     100.0,   0.0, "%",      Unit::Shown,   false},
    {Display::MixDb,        80.0,  60.0, "dB",     Unit::Shown,   false},
    {Display::Pan,         200.0, 100.0, "%",      Unit::Unshown, false},
    {Display::Semitones24,  48.0,  24.0, "st",     Unit::Unshown, true},
    {Display::AmpDb,        50.0,  25.0, "dB",     Unit::Shown,   false},
    {Display::Voices,       15.0,  -1.0, "voices", Unit::Unshown, true},
    {Display::Semitones36,  72.0,  36.0, "st",     Unit::Unshown, true},
    {Display::Detune,      100.0,  50.0, "cents",  Unit::Unshown, true},
    {Display::Bipolar,     200.0, 100.0, "%",      Unit::Shown,   false},
    {Display::Smt,          12.0,   0.0, "smt",    Unit::Shown,   true},
    {Display::GainDb,       24.0,  12.0, "dB",     Unit::Shown,   false},
    // clang-format on
};
constexpr const char* kLengthUnit = "beats"; // an eighth to 32, by powers of two

/// Positions that the panel shows as pictures, from 0 to the last one's value.
struct Positions {
    const char* parameter;
    float last;
    const char* names[5]; // null behind the last
};
constexpr Positions kPositions[] = {
    // clang-format off
    {"Filter Type",           1.0f, {"LP", "BP", "HP"}},
    {"Envelope Number",       1.0f, {"Envelope 1", "Envelope 2"}},
    {"Envelope Destination",  1.0f, {"Cutoff", "Modulation", "Pitch", "LFO"}},
    {"LFO Number",            1.0f, {"LFO 1", "LFO 2"}},
    {"LFO Destination",       1.0f, {"Cutoff", "Modulation", "Pitch", "Level"}},
    {"LFO Shape",             1.0f, {"Sine", "Triangle", "Falling", "Square"}},
    {"LFO Sync",              1.0f, {"Free", "Beats", "Bars"}},
    {"FX LFO Shape",          1.0f, {"Sine", "Triangle", "Rising", "Square"}},
    {"FX LFO Sync",           1.0f, {"Beats", "Bars"}},
    {"SYNTH: Octave",         1.0f, {"-2 oct", "-1 oct", "0 oct", "1 oct", "2 oct"}},
    {"SYNTH: Mod Kind",       2.0f, {"Sync", "Phase", "Amplitude"}}, // the kind itself
    {"SAMPLER: Layer Number", 1.0f, {"Layer 1", "Layer 2", "Layer 3", "Layer 4"}},
    // clang-format on
};
constexpr Positions kSwitch = {"", 1.0f, {"off", "on"}};
constexpr int kSwitchSlots[] = {
    slot::ShuffleEnable,   slot::SlideEnable,  slot::FilterTracking,  slot::EnvelopeInvert,  slot::LfoRetrig,
    slot::LfoInvert,       slot::MonoVoice,    slot::UnisonRetrig,    slot::PhaseRetrigOsc2, slot::Osc2Invert,
    slot::LayerInvert,     slot::LayerReverse, slot::LayerBypass,     slot::LayerBypass + 1, slot::LayerBypass + 2,
    slot::LayerBypass + 3, slot::FxGlue,       slot::FxBypassStutter,
};

std::string Shown(Display display, double value)
{
    char text[32];
    FormatDisplay(display, static_cast<float>(value), text);
    return text;
}

/// Null where a parameter has no named positions.
const Positions* PositionsOf(const ParameterInfo& parameter)
{
    const auto named = std::find_if(std::begin(kPositions), std::end(kPositions), [&](const Positions& row) {
        return std::string_view(row.parameter) == parameter.name;
    });
    if (named != std::end(kPositions)) return &*named;
    const bool continuous = parameter.kind == Kind::Value || parameter.kind == Kind::None;
    const auto* slot = std::find(std::begin(kSwitchSlots), std::end(kSwitchSlots), parameter.slotBase);
    return continuous && slot == std::end(kSwitchSlots) ? nullptr : &kSwitch;
}

std::vector<std::string> NamesOf(const Positions* positions)
{
    if (!positions) return {};
    return {std::begin(positions->names), std::find(std::begin(positions->names), std::end(positions->names), nullptr)};
}

std::vector<std::string> SyncTexts()
{
    std::vector<std::string> texts;
    for (int n = 0; n < 9; ++n) texts.push_back(Shown(Display::Sync, (n + 0.5) / 9.0));
    return texts;
}

std::optional<std::size_t> IndexOf(const std::vector<std::string>& texts, const std::string& text)
{
    for (std::size_t n = 0; n < texts.size(); ++n)
        if (SameText(texts[n], text)) return n;
    return std::nullopt;
}

/// The value nearest to the wanted one that shows just this text: float rounding may leave it a step short.
double Showing(Display display, double value, const std::string& text, float outward)
{
    auto candidate = static_cast<float>(value);
    for (int step = 0; step < 8 && Shown(display, candidate) != text; ++step)
        candidate = std::nextafter(candidate, outward);
    return candidate;
}

/// The value at which a straight display shows the quantity, in range or not; none when it is never shown.
std::optional<double> FromScale(const Scale& scale, const Quantity& quantity)
{
    const bool bare = quantity.unit.empty() && scale.shown == Unit::Unshown;
    if (!bare && !SameText(quantity.unit, scale.unit)) return std::nullopt;
    const double value = (quantity.number + scale.offset) / scale.range;
    if (!scale.whole || !(value >= 0.0 && value <= 1.0)) return value;
    if (quantity.number != std::floor(quantity.number)) return std::nullopt;
    const std::string unit = scale.shown == Unit::Shown ? std::string(" ") + scale.unit : "";
    return Showing(scale.display, value, std::to_string(static_cast<int>(quantity.number)) + unit,
                   quantity.number < 0.0 ? 0.0f : 1.0f);
}

std::optional<double> FromDisplay(Display display, const Quantity& quantity)
{
    if (display == Display::Length && (quantity.unit.empty() || SameText(quantity.unit, kLengthUnit)))
        return std::log2(quantity.number / 0.125) / 8.0;
    for (const Scale& scale : kScales)
        if (scale.display == display) return FromScale(scale, quantity);
    return std::nullopt;
}

bool InRange(double value) { return value >= 0.0 && value <= 1.0; }

[[noreturn]] void Refuse(const ParameterInfo& parameter, const std::string& text)
{
    std::vector<std::string> answers{"0 to 1"};
    const std::string unit = UnshownUnit(parameter.index);
    if (parameter.display == Display::Sync)
        for (const std::string& rate : SyncTexts()) answers.push_back(rate);
    else
        answers.push_back(Shown(parameter.display, 0.0) + unit + " to " + Shown(parameter.display, 1.0) + unit);
    for (const std::string& name : NamesOf(PositionsOf(parameter))) answers.push_back(name);
    throw Failure(Quoted(parameter.name) + " takes " + OneOf(answers) + ", not " + Quoted(text));
}

} // namespace

std::string UnshownUnit(int index)
{
    const Display display = kParameters.at(static_cast<std::size_t>(index)).display;
    if (display == Display::Length) return std::string(" ") + kLengthUnit;
    for (const Scale& scale : kScales)
        if (scale.display == display && scale.shown == Unit::Unshown) return std::string(" ") + scale.unit;
    return "";
}

float ParameterValue(int index, const std::string& text)
{
    const ParameterInfo& parameter = kParameters.at(static_cast<std::size_t>(index));
    const Positions* positions = PositionsOf(parameter);
    const std::vector<std::string> names = NamesOf(positions);
    if (const auto position = IndexOf(names, text))
        return static_cast<float>(*position) * positions->last / static_cast<float>(names.size() - 1);
    if (parameter.display == Display::Sync) {
        const std::vector<std::string> rates = SyncTexts();
        if (const auto rate = IndexOf(rates, text))
            return static_cast<float>(Showing(Display::Sync, static_cast<double>(*rate) / 9.0, rates[*rate], 1.0f));
    }
    if (const auto quantity = ParseQuantity(text)) {
        if (quantity->unit.empty() && InRange(quantity->number)) return static_cast<float>(quantity->number);
        const auto value = FromDisplay(parameter.display, *quantity);
        if (value && InRange(*value)) return static_cast<float>(*value);
    }
    Refuse(parameter, text);
}

} // namespace korvane::render
