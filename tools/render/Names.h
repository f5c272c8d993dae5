// What a user means by a name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::render {

/// Letters a to z alike in both cases.
bool SameText(std::string_view a, std::string_view b);
/// 'text'
std::string Quoted(const std::string& text);
/// A, B or C
std::string OneOf(const std::vector<std::string>& names);

/// The index of the name that is meant: as it stands, else in any case, else without the number at its end, else by its
/// beginning. Throws Failure when nothing fits, with the nearest name where one is near, or when several fit.
/// what       the kind of thing, for the message: "groove"
/// otherwise  ends the message when no name is near
std::size_t FindName(const std::vector<std::string>& names, const std::string& wanted, const char* what,
                     const char* otherwise = "");

/// The nearest name, empty when none is near: one that holds something like the wanted text, with at most a third of
/// its letters wrong.
std::string NearestName(const std::vector<std::string>& names, const std::string& wanted);

/// A name and the number behind its last space; without one the whole name and an empty number.
struct NumberedName {
    std::string_view name, number;
};
NumberedName SplitNumber(std::string_view name);

} // namespace korvane::render
