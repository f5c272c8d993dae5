// korvane-fonts: turns the drawings of the two faces into the records of src/gui/pixels/BuiltInFonts.h.
#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::fonts {

namespace {

constexpr std::size_t kLineHeight = 11, kWidest = 16; // pixels; a record has four bits for a place
constexpr std::size_t kMostInked = 255;               // a record counts them in a byte
constexpr char kFirst = '!', kLast = '~';

/// What a character of a drawing stands for: 0 is full ink, 255 none.
struct Ink {
    char character;
    std::uint8_t transparency;
};
constexpr Ink kInks[] = {{'#', 0}, {'%', 51}, {'*', 102}, {'+', 153}, {'-', 204}, {'.', 255}};

struct Glyph {
    std::size_t line = 0; // where the drawing begins; 0 as long as there is none
    std::size_t width = 0;
    std::vector<std::string> rows;
};
using Face = std::array<Glyph, kLast - kFirst + 1>;

/// line  0 for the file as a whole
[[noreturn]] void Fail(const std::string& file, std::size_t line, const std::string& what)
{
    throw std::runtime_error(file + (line ? ":" + std::to_string(line) : "") + ": " + what);
}

const Ink* InkOf(char character)
{
    for (const Ink& ink : kInks)
        if (ink.character == character) return &ink;
    return nullptr;
}

/// The drawings of one file, line by line.
class Reader {
public:
    explicit Reader(const std::string& file) : name(file), in(file)
    {
        if (!in) Fail(name, 0, "cannot be read");
    }

    Face Read()
    {
        for (std::string text; std::getline(in, text);) {
            ++line;
            if (text.empty() || text.starts_with('#')) continue;
            text.starts_with('|') ? AddRow(text) : Begin(text);
        }
        for (std::size_t n = 0; n < face.size(); ++n) Check(static_cast<char>(kFirst + n), face[n]);
        return std::move(face);
    }

private:
    /// "glyph A 6": the character and its advance width.
    void Begin(const std::string& text)
    {
        char character = 0;
        unsigned width = 0;
        int end = 0;
        if (std::sscanf(text.c_str(), "glyph %c %2u%n", &character, &width, &end) != 2 || text.c_str()[end] != '\0')
            Fail(name, line, "a glyph begins with its character and its width");
        if (character < kFirst || character > kLast) Fail(name, line, "no character between ! and ~");
        if (width < 1 || width > kWidest) Fail(name, line, "a width is 1 to " + std::to_string(kWidest));
        current = &face[static_cast<std::size_t>(character - kFirst)];
        if (current->line) Fail(name, line, "drawn before, in line " + std::to_string(current->line));
        *current = {line, width, {}};
    }

    /// "|..##..|": as many pixels as the glyph is wide.
    void AddRow(const std::string& text)
    {
        if (!current) Fail(name, line, "a row before the first glyph");
        if (text.size() != current->width + 2 || !text.ends_with('|'))
            Fail(name, line, "a row of this glyph has " + std::to_string(current->width) + " pixels between bars");
        current->rows.push_back(text.substr(1, current->width));
        for (const char pixel : current->rows.back())
            if (!InkOf(pixel)) Fail(name, line, std::string("no ink is written as '") + pixel + "'");
    }

    void Check(char character, const Glyph& glyph) const
    {
        const auto fail = [&](const std::string& what) {
            Fail(name, glyph.line, std::string("glyph ") + character + " " + what);
        };
        if (!glyph.line) fail("is missing");
        if (glyph.rows.size() != kLineHeight)
            fail("has " + std::to_string(glyph.rows.size()) + " rows, not " + std::to_string(kLineHeight));
        std::size_t inked = 0;
        for (const std::string& row : glyph.rows)
            for (const char pixel : row) inked += pixel != '.';
        if (inked < 1 || inked > kMostInked) fail("has " + std::to_string(inked) + " inked pixels");
    }

    std::string name;
    std::ifstream in;
    std::size_t line = 0;
    Face face;
    Glyph* current = nullptr;
};

using Bytes = std::vector<std::uint8_t>;

Bytes RecordOf(const Glyph& glyph)
{
    Bytes record{static_cast<std::uint8_t>(glyph.width), 0};
    for (std::size_t y = 0; y < glyph.rows.size(); ++y) {
        for (std::size_t x = 0; x < glyph.width; ++x) {
            if (glyph.rows[y][x] == '.') continue;
            ++record[1];
            record.push_back(static_cast<std::uint8_t>(y << 4 | x));
            record.push_back(InkOf(glyph.rows[y][x])->transparency);
        }
    }
    return record;
}

Bytes BytesOf(const Face& face)
{
    Bytes head{kLineHeight}, records;
    for (const Glyph& glyph : face) {
        const std::size_t offset = 1 + 2 * face.size() + records.size();
        head.push_back(static_cast<std::uint8_t>(offset & 255));
        head.push_back(static_cast<std::uint8_t>(offset >> 8));
        const Bytes record = RecordOf(glyph);
        records.insert(records.end(), record.begin(), record.end());
    }
    head.insert(head.end(), records.begin(), records.end());
    return head;
}

std::string ArrayOf(std::string_view name, const Bytes& bytes)
{
    std::string text = "constexpr std::uint8_t " + std::string(name) + "[] = {";
    for (std::size_t n = 0; n < bytes.size(); ++n) text += (n % 24 ? " " : "\n    ") + std::to_string(bytes[n]) + ",";
    return text + "\n};\n";
}

std::string SourceOf(const Face& compact, const Face& wide)
{
    return "// The records of the two faces. Written by korvane-fonts; the drawings stand in tools/fonts.\n"
           "#include \"gui/pixels/BuiltInFonts.h\"\n\n"
           "namespace korvane {\n\nnamespace {\n\n" +
           ArrayOf("kCompact", BytesOf(compact)) + "\n" + ArrayOf("kWide", BytesOf(wide)) +
           "\n} // namespace\n\n"
           "const std::uint8_t* BuiltInFont(int number)\n{\n"
           "    return number == 0 ? kCompact : number == 1 ? kWide : nullptr;\n}\n\n"
           "} // namespace korvane\n";
}

} // namespace

} // namespace korvane::fonts

int main(int count, char** arguments)
{
    using namespace korvane::fonts;
    if (count != 4) return std::fprintf(stderr, "usage: korvane-fonts COMPACT.txt WIDE.txt SOURCE.cpp\n"), 2;
    try {
        const std::string source = SourceOf(Reader(arguments[1]).Read(), Reader(arguments[2]).Read());
        if (!(std::ofstream(arguments[3], std::ios::binary) << source << std::flush))
            Fail(arguments[3], 0, "cannot be written");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
