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

} // namespace

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
