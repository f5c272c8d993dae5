// The step notation of clips.
#include "factory/notation/GrooveSteps.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "factory/notation/GrooveScore.h"

namespace korvane::factory::groove {

namespace {

using Text = std::string_view;

constexpr double kAccentDb = 3.0, kGhostDb = -9.0;

[[noreturn]] void Refuse(Text text, const char* why)
{
    std::fprintf(stderr, "korvane-factory: '%.*s' %s\n", static_cast<int>(text.size()), text.data(), why);
    std::exit(1);
}

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

/// The number at text[n], which moves to its last digit.
int Number(Text text, std::size_t& n)
{
    int number = 0;
    for (; n + 1 < text.size() && IsDigit(text[n + 1]); ++n) number = number * 10 + (text[n + 1] - '0');
    return number;
}

/// The pieces between separators; none of them empty where spaces separate.
std::vector<Text> Split(Text text, char separator)
{
    std::vector<Text> pieces;
    while (true) {
        const Text piece = text.substr(0, text.find(separator));
        if (separator != ' ' || !piece.empty()) pieces.push_back(piece);
        if (piece.size() == text.size()) return pieces;
        text.remove_prefix(piece.size() + 1);
    }
}

/// Bars with the repeated ones written out.
std::vector<Text> BarTexts(Text text)
{
    std::vector<Text> bars = Split(text, '|');
    for (std::size_t b = 0; b < bars.size(); ++b) {
        if (!bars[b].starts_with('%')) continue;
        std::size_t n = 0;
        const auto back = static_cast<std::size_t>(std::max(1, Number(bars[b], n)));
        if (back > b) Refuse(text, "repeats a bar that is not there");
        bars[b] = bars[b - back];
    }
    if (bars.size() > kBars) Refuse(text, "is longer than eight bars");
    return bars;
}

Bar DrumBar(Text text)
{
    Bar bar;
    if (text.size() != kStepsPerBar) Refuse(text, "is no bar of 16 steps");
    for (int step = 0; step < kStepsPerBar; ++step) {
        const char c = text[static_cast<std::size_t>(step)];
        if (c == '.') continue;
        Hit hit{step};
        if (c == 'X')
            hit.levelDb = kAccentDb;
        else if (c == 'o')
            hit.levelDb = kGhostDb;
        else if (IsDigit(c))
            hit.semitones = c - '0';
        else if (c != 'x')
            Refuse(text, "holds a letter that is no hit");
        bar.push_back(hit);
    }
    return bar;
}

/// The key that a note letter at word[n] means, with its sharp; -1 for other characters.
int Key(Text word, std::size_t& n)
{
    constexpr Text kLetters = "c.d.ef.g.a.b";
    const char c = word[n];
    const auto at = kLetters.find(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    if (c == '.' || at == Text::npos) return -1;
    int key = static_cast<int>(at) + (c < 'a' ? 12 : 0);
    if (n + 1 < word.size() && word[n + 1] == '#') ++key, ++n;
    if (key >= kNotes) Refuse(word, "lies above the sequencer's keys");
    return key;
}

/// The keys of a word's letters, low to high; other characters stop it.
std::vector<int> Keys(Text word)
{
    std::vector<int> keys;
    for (std::size_t n = 0; n < word.size(); ++n) {
        keys.push_back(Key(word, n));
        if (keys.back() < 0) Refuse(word, "is no chord");
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

Hit NoteWord(Text word, int step, const std::vector<int>& chord)
{
    Hit hit{step};
    for (std::size_t n = 0; n < word.size(); ++n) {
        const char c = word[n];
        if (const int key = Key(word, n); key >= 0) {
            hit.notes |= 1u << key;
        } else if (c == '*') {
            for (const int each : chord) hit.notes |= 1u << each;
        } else if (IsDigit(c)) {
            const auto tone = static_cast<std::size_t>(c - '1');
            if (tone >= chord.size()) Refuse(word, "wants a note that the chord has not");
            hit.notes |= 1u << chord[tone];
        } else if (c == '/') {
            hit.length = Number(word, n);
        } else if (c == '!') {
            hit.levelDb = kAccentDb;
        } else if (c == '\'') {
            hit.levelDb = kGhostDb;
        } else if (c == '_') {
            hit.glides = true;
        } else if (c != '.') {
            Refuse(word, "is no note");
        }
    }
    return hit;
}

/// chords  the words of the bar's chords, which share it evenly
Bar NoteBar(Text text, const std::vector<Text>& chords)
{
    std::vector<std::vector<int>> chordKeys;
    for (const Text word : chords) chordKeys.push_back(Keys(word));
    if (chordKeys.empty()) chordKeys.emplace_back();
    Bar bar;
    int step = 0;
    for (const Text word : Split(text, ' ')) {
        const auto chord = static_cast<std::size_t>(step) * chordKeys.size() / kStepsPerBar;
        const Hit hit = NoteWord(word, step, chordKeys[std::min(chord, chordKeys.size() - 1)]);
        if (hit.notes) bar.push_back(hit);
        step += hit.length;
    }
    if (step != kStepsPerBar) Refuse(text, "is no bar of 16 steps");
    return bar;
}

} // namespace

std::vector<Bar> Bars(const Clip& clip)
{
    const std::vector<Text> texts = BarTexts(clip.bars), chords = BarTexts(clip.chords);
    std::vector<Bar> bars;
    for (const Text text : texts)
        bars.push_back(clip.channel < kSamplerChannels
                           ? DrumBar(text)
                           : NoteBar(text, Split(chords[bars.size() % chords.size()], ' ')));
    return bars;
}

} // namespace korvane::factory::groove
