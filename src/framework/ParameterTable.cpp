// Every control of the instrument that a host, a MIDI link or the editor can move.
#include "framework/ParameterTable.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr std::size_t kTextBytes = 32;

struct BlockDefault {
    int first, last;
    float value;
};

// Everything that is not listed starts at 0.
constexpr BlockDefault kBlockDefaults[] = {
    {slot::MixLevel, slot::MixLevel, 0.75f},
    {slot::Panning, slot::Pitch, 0.5f},
    {slot::NoteLength, slot::NoteLength, 0.44444445f},
    {slot::AmpDecay, slot::AmpSustain, 1.0f},
    {slot::AmpRelease, slot::AmpRelease, 0.1f},
    {slot::AmpLevel, slot::AmpLevel, 0.5f},
    {slot::EnvelopeDecay, slot::EnvelopeDecay + 1, 1.0f},
    {slot::UnisonDetune, slot::UnisonDetune, 0.25f},
    {slot::Octave, slot::Octave, 0.5f},
    {slot::Osc1Pitch, slot::Osc3Detune, 0.5f},
    {slot::LayerLevel, slot::LayerAttack - 1, 0.5f}, // level, pan, pitch
    {slot::LayerDecay, slot::LayerDecay + 3, 1.0f},
    {slot::LayerHiCut, slot::LayerHiCut + 3, 1.0f},
    {slot::FxX, slot::FxLfoRate - 1, 0.5f},
    {slot::FxLfoRate, slot::FxGlue - 1, 0.5566667f},
    {slot::FxLfoAmount, slot::FxBypassStutter - 1, 0.5f},
    {slot::VelocityAmount, slot::VelocityAmount, 0.5f},
    {slot::VelocitySensitivity, slot::VelocitySensitivity, 1.0f},
    {slot::WheelAmount, slot::WheelAmount, 0.5f},
    {slot::PressureAmount, slot::PressureAmount, 0.5f},
    {slot::BendRange, slot::BendRange, 0.16666667f},
    {slot::EqGain, slot::EqGain + 4, 0.5f},
};

} // namespace

Bank BankOf(int base)
{
    if (base >= slot::EnvelopeAmount && base <= slot::EnvelopeDestination)
        return base % 2 == 0 ? Bank::Envelope : Bank::None;
    if (base >= slot::LfoRetrig && base <= slot::LfoDestination) return base % 2 == 0 ? Bank::Lfo : Bank::None;
    if (base >= slot::LayerLevel && base <= slot::LayerReverse)
        return (base - slot::LayerLevel) % 4 == 0 ? Bank::Layer : Bank::None;
    if (base >= slot::FxX && base <= slot::FxLfoAmount) return (base - slot::FxX) % 10 == 0 ? Bank::Fx : Bank::None;
    return Bank::None;
}

float ChannelBlockDefault(int index, bool isSampler)
{
    if (index == slot::FilterCutoff) return isSampler ? 0.0f : 1.0f;
    if (index == slot::FilterType) return isSampler ? 1.0f : 0.0f;
    for (const BlockDefault& range : kBlockDefaults)
        if (index >= range.first && index <= range.last) return range.value;
    return 0.0f;
}

void FormatDisplay(Display display, float v, char* buffer)
{
    const auto number = [buffer](double value, int decimals, const char* unit) {
        char digits[400]; // the longest double; not by printf, whose decimal point is the host's language's
        *std::to_chars(digits, std::end(digits) - 1, value, std::chars_format::fixed, decimals).ptr = '\0';
        std::snprintf(buffer, kTextBytes, "%.24s%s", digits, unit);
    };
    const auto whole = [buffer](int value, const char* unit = "") {
        std::snprintf(buffer, kTextBytes, "%d%s", value, unit);
    };
    switch (display) {
    case Display::Percent: number(v * 100.0f, 1, " %"); break;
    case Display::Sync: std::snprintf(buffer, kTextBytes, "%s", SyncLengthOf(v).text); break;
    case Display::MixDb: number(law::MixDb(v), 1, " dB"); break;
    case Display::Pan: number(law::PanPosition(v) * 100.0f, 1, ""); break;
    case Display::Semitones24: whole(law::Semitones(v)); break;
    case Display::Length: // an eighth shows as 0.13, where the library would round to even
        number(std::round(100.0 * static_cast<double>(law::NoteBeats(v))) / 100.0, 2, "");
        break;
    case Display::AmpDb: number(law::AmpDb(v), 1, " dB"); break;
    case Display::Voices: whole(Truncate(law::UnisonVoices(v))); break;
    case Display::Semitones36: whole(law::OscillatorSemitones(v)); break;
    case Display::Detune: whole(law::OscillatorCents(v)); break;
    case Display::Bipolar: number(law::SourceAmount(v) * 100.0f, 1, " %"); break;
    case Display::Smt: whole(law::BendSemitones(v), " smt"); break;
    case Display::GainDb: number(law::EqDb(v), 2, " dB"); break;
    }
}

} // namespace korvane
