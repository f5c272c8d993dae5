// The tables of symbols and the places of an American keyboard.
#include "platform/window/KeyCodes.h"

#include <string_view>

#include "platform/window/WindowEvents.h"

namespace korvane {

struct SymbolCode {
    std::uint32_t symbol;
    int code;
};

// clang-format off
static constexpr SymbolCode kSymbols[] = {
    {0xFF08, key::Backspace}, {0xFF09, key::Tab},      {0xFE20, key::Tab},    {0xFF0D, key::Enter},  {0xFF1B, key::Escape},
    {0xFF50, key::Home},      {0xFF51, key::Left},     {0xFF52, key::Up},     {0xFF53, key::Right},  {0xFF54, key::Down},
    {0xFF55, key::PageUp},    {0xFF56, key::PageDown}, {0xFF57, key::End},    {0xFF63, key::Insert}, {0xFFFF, key::Delete},
    {0xFFE1, key::Shift},     {0xFFE2, key::Shift},    {0xFFE3, key::Ctrl},   {0xFFE4, key::Ctrl},
    {0xFFE7, key::Alt},       {0xFFE8, key::Alt},      {0xFFE9, key::Alt},    {0xFFEA, key::Alt},
    // the keypad
    {0xFF80, key::Space},     {0xFF89, key::Tab},      {0xFF8D, key::Enter},  {0xFF95, key::Home},   {0xFF96, key::Left},
    {0xFF97, key::Up},        {0xFF98, key::Right},    {0xFF99, key::Down},   {0xFF9A, key::PageUp}, {0xFF9B, key::PageDown},
    {0xFF9C, key::End},       {0xFF9E, key::Insert},   {0xFF9F, key::Delete},
};

struct KeyRow {
    int first;              // number of its leftmost key
    std::string_view codes;
};

static constexpr KeyRow kAmericanRows[] = {
    {10, "1234567890"}, {24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}, {65, " "},
};
// clang-format on

static bool IsDigit(int code) { return code >= '0' && code <= '9'; }

static int CodeOfSymbol(std::uint32_t symbol)
{
    constexpr std::uint32_t kF1 = 0xFFBE, kF12 = 0xFFC9, kKeypad0 = 0xFFB0, kKeypad9 = 0xFFB9;
    if (symbol >= 'a' && symbol <= 'z') return static_cast<int>(symbol) - 'a' + 'A';
    if ((symbol >= 'A' && symbol <= 'Z') || (symbol >= '0' && symbol <= '9') || symbol == ' ')
        return static_cast<int>(symbol);
    if (symbol >= kF1 && symbol <= kF12) return key::F1 + static_cast<int>(symbol - kF1);
    if (symbol >= kKeypad0 && symbol <= kKeypad9) return '0' + static_cast<int>(symbol - kKeypad0);
    for (const SymbolCode& row : kSymbols)
        if (row.symbol == symbol) return row.code;
    return 0;
}

/// Letters of other scripts. What is left has a meaning of its own: Latin letters with accents, signs, dead keys.
static bool IsOtherScript(std::uint32_t symbol)
{
    constexpr std::uint32_t kUnicode = 0x1000000;
    if (symbol >= kUnicode) {
        const std::uint32_t character = symbol - kUnicode;
        return character >= 0x370 && (character < 0x1E00 || character > 0x20FF);
    }
    return (symbol >= 0x400 && symbol < 0x800) || (symbol >= 0xC00 && symbol < 0xF00);
}

static int CodeOfPlace(int number)
{
    for (const KeyRow& row : kAmericanRows)
        if (number >= row.first && number < row.first + static_cast<int>(row.codes.size()))
            return row.codes[number - row.first];
    return 0;
}

static int CodeOfFace(const KeyFace& face, bool numLock)
{
    const bool isKeypad = face.plain >= 0xFF80 && face.plain <= 0xFFBD;
    if (isKeypad && numLock && face.shifted) return CodeOfSymbol(face.shifted);
    const int code = CodeOfSymbol(face.plain), shifted = CodeOfSymbol(face.shifted);
    return code == 0 && IsDigit(shifted) && !isKeypad ? shifted : code;
}

int KeyCodeOf(const KeyFaces& faces, int layout, bool numLock, int number)
{
    const KeyFace& face = faces[layout & 3];
    if (const int code = CodeOfFace(face, numLock)) return code;
    const int place = CodeOfPlace(number);
    if (IsDigit(place) && face.plain) return place; // whatever accented letter stands there
    if (face.plain && !IsOtherScript(face.plain)) return 0;
    for (const KeyFace& other : faces)
        if (const int code = CodeOfFace(other, numLock)) return code;
    return place;
}

} // namespace korvane
