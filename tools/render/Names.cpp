// What a user means by a name.
#include "render/Names.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "render/Failure.h"

namespace korvane::render {

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool BeginsWith(std::string_view text, std::string_view beginning)
{
    return text.size() >= beginning.size() && SameText(text.substr(0, beginning.size()), beginning);
}

/// Letters to insert, drop, replace or swap with their neighbour until the text is the name or, anywhere, a piece of
/// it, in any case (optimal string alignment after Damerau 1964, with the free ends of Sellers 1980).
std::size_t Edits(std::string_view text, std::string_view name, bool anywhere)
{
    const std::size_t width = name.size() + 1;
    std::vector<std::size_t> before(width), above(width); // the rows of two letters ago and of the last one
    std::vector<std::size_t> row(width);
    if (!anywhere) std::iota(above.begin(), above.end(), 0u);
    const auto same = [&](std::size_t n, std::size_t k) { return Lower(text[n - 1]) == Lower(name[k - 1]); };
    for (std::size_t n = 1; n <= text.size(); ++n) {
        row[0] = n;
        for (std::size_t k = 1; k < width; ++k) {
            row[k] = std::min({above[k - 1] + (same(n, k) ? 0 : 1), above[k] + 1, row[k - 1] + 1});
            if (n > 1 && k > 1 && same(n, k - 1) && same(n - 1, k)) row[k] = std::min(row[k], before[k - 2] + 1);
        }
        std::swap(before, above);
        std::swap(above, row);
    }
    return anywhere ? *std::min_element(above.begin(), above.end()) : above.back();
}

} // namespace

std::string Quoted(const std::string& text) { return std::string("'").append(text).append("'"); }

bool SameText(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Lower(x) == Lower(y); });
}

std::string OneOf(const std::vector<std::string>& names)
{
    std::string list;
    for (std::size_t n = 0; n < names.size(); ++n)
        list += (n == 0 ? "" : n + 1 < names.size() ? ", " : " or ") + names[n];
    return list;
}

NumberedName SplitNumber(std::string_view name)
{
    const std::size_t space = name.rfind(' ');
    if (space == 0 || space == std::string_view::npos) return {name, {}};
    const std::string_view number = name.substr(space + 1);
    if (number.empty() || number.find_first_not_of("0123456789.") != std::string_view::npos) return {name, {}};
    return {name.substr(0, space), number};
}

std::string NearestName(const std::vector<std::string>& names, const std::string& wanted)
{
    std::string nearest;
    std::pair<std::size_t, std::size_t> fewest{wanted.size() / 3, ~std::size_t{0}};
    for (const std::string& name : names) {
        const std::pair edits{Edits(wanted, name, true), Edits(wanted, name, false)};
        if (edits < fewest) fewest = edits, nearest = name;
    }
    return nearest;
}

std::size_t FindName(const std::vector<std::string>& names, const std::string& wanted, const char* what,
                     const char* otherwise)
{
    const auto exact = std::find(names.begin(), names.end(), wanted);
    if (exact != names.end()) return static_cast<std::size_t>(exact - names.begin());
    bool (*const likenesses[])(std::string_view, std::string_view) = {
        SameText,
        [](std::string_view name, std::string_view text) { return SameText(SplitNumber(name).name, text); },
        BeginsWith,
    };
    for (const auto& alike : likenesses) {
        std::vector<std::string> found;
        std::size_t index = 0;
        for (std::size_t n = 0; n < names.size(); ++n)
            if (alike(names[n], wanted)) found.push_back(Quoted(names[index = n]));
        if (found.size() == 1) return index;
        if (found.size() > 1)
            throw Failure(std::string("which ") + what + " is " + Quoted(wanted) + ": " + OneOf(found) + "?");
    }
    const std::string nearest = NearestName(names, wanted);
    throw Failure(std::string("there is no ") + what + " " + Quoted(wanted) +
                  (nearest.empty() ? otherwise : "; did you mean " + Quoted(nearest) + "?"));
}

} // namespace korvane::render
