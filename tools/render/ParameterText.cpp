// Parameter values as users write them.
#include "render/ParameterText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "framework/ParameterTable.h"
#include "render/Failure.h"
#include "render/Names.h"

namespace korvane::render {

namespace {

/// A display that is a straight line: shown = value * range - offset.
struct Scale {
    Display display;
    double range, offset;
    const char* unit;
    bool whole; // shown without decimals, cut toward zero
};
constexpr Scale kScales[] = {
    // clang-format off
    {Display::Percent,     100.0,   0.0, "%",   false},
    {Display::MixDb,        80.0,  60.0, "dB",  false},
    {Display::Pan,         200.0, 100.0, "",    false},
    {Display::Semitones24,  48.0,  24.0, "",    true},
    {Display::AmpDb,        50.0,  25.0, "dB",  false},
    {Display::Voices,       15.0,  -1.0, "",    true},
    {Display::Semitones36,  72.0,  36.0, "",    true},
    {Display::Detune,      100.0,  50.0, "",    true},
    {Display::Bipolar,     200.0, 100.0, "%",   false},
    {Display::Smt,          12.0,   0.0, "smt", true},
    {Display::GainDb,       24.0,  12.0, "dB",  false},
    // clang-format on
};

/// Positions that the panel shows as pictures: position p of k + 1 is the value p / k.
struct Positions {
    int slot;             // channel parameter
    const char* names[4]; // null behind the last
};
constexpr Positions kPositions[] = {
    // clang-format off
    {slot::FilterType,          {"LP", "BP", "HP"}},
    {slot::EnvelopeDestination, {"Cutoff", "Modulation", "Pitch", "LFO"}},
    {slot::LfoDestination,      {"Cutoff", "Modulation", "Pitch", "Level"}},
    {slot::LfoShape,            {"Sine", "Triangle", "Falling", "Square"}},
    {slot::LfoSync,             {"Free", "Beats", "Bars"}},
    {slot::FxLfoShape,          {"Sine", "Triangle", "Rising", "Square"}},
    {slot::FxLfoSync,           {"Beats", "Bars"}},
    // clang-format on
};

std::string Shown(Display display, double value)
{
    char text[32];
    FormatDisplay(display, static_cast<float>(value), text);
    return text;
}

std::vector<std::string> PositionNames(const ParameterInfo& parameter)
{
    for (const Positions& positions : kPositions)
        if (positions.slot == parameter.slotBase)
            return {std::begin(positions.names),
                    std::find(std::begin(positions.names), std::end(positions.names), nullptr)};
    if (parameter.display == Display::Percent) return {"off", "on"};
    return {};
}

/// The texts of the synchronised rates, slowest last.
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

struct Quantity {
    double number;
    std::string_view unit;
};
std::optional<Quantity> ParseQuantity(std::string_view text)
{
    if (!text.empty() && text[0] == '+') text.remove_prefix(1);
    Quantity quantity{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), quantity.number);
    if (error != std::errc()) return std::nullopt;
    quantity.unit = text.substr(static_cast<std::size_t>(end - text.data()));
    quantity.unit.remove_prefix(std::min(quantity.unit.find_first_not_of(' '), quantity.unit.size()));
    return quantity;
}

/// The value nearest to the wanted one that shows just this text: float rounding may leave it a step short.
double Showing(Display display, double value, const std::string& text, float outward)
{
    auto candidate = static_cast<float>(value);
    for (int step = 0; step < 8 && Shown(display, candidate) != text; ++step)
        candidate = std::nextafter(candidate, outward);
    return candidate;
}

/// The value at which the display shows the quantity, in range or not; none when it is not shown so.
std::optional<double> FromDisplay(Display display, const Quantity& quantity)
{
    if (display == Display::Length)
        return quantity.unit.empty() ? std::optional(std::log2(quantity.number / 0.125) / 8.0) : std::nullopt;
    for (const Scale& scale : kScales) {
        if (scale.display != display) continue;
        if (!SameText(quantity.unit, scale.unit)) return std::nullopt;
        if (scale.whole && quantity.number != std::floor(quantity.number)) return std::nullopt;
        const double value = (quantity.number + scale.offset) / scale.range;
        if (!scale.whole || !(value >= 0.0 && value <= 1.0)) return value;
        const std::string text = std::to_string(static_cast<int>(quantity.number));
        return Showing(display, value, *scale.unit ? text + " " + scale.unit : text, quantity.number < 0 ? 0.0f : 1.0f);
    }
    return std::nullopt;
}

bool InRange(double value) { return value >= 0.0 && value <= 1.0; }

[[noreturn]] void Refuse(const ParameterInfo& parameter, const std::string& text)
{
    std::vector<std::string> answers{"0 to 1"};
    if (parameter.display == Display::Sync)
        for (const std::string& rate : SyncTexts()) answers.push_back(rate);
    else
        answers.push_back(Shown(parameter.display, 0.0) + " to " + Shown(parameter.display, 1.0));
    for (const std::string& name : PositionNames(parameter)) answers.push_back(name);
    throw Failure(Quoted(parameter.name) + " takes " + OneOf(answers) + ", not " + Quoted(text));
}

} // namespace

float ParameterValue(int index, const std::string& text)
{
    const ParameterInfo& parameter = kParameters.at(static_cast<std::size_t>(index));
    const std::vector<std::string> positions = PositionNames(parameter);
    if (const auto position = IndexOf(positions, text))
        return static_cast<float>(*position) / static_cast<float>(positions.size() - 1);
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
