// Texts that arrive in a buffer.
#pragma once

#include <string>

namespace korvane {

/// What `write` leaves in the buffer that it is given.
template <class Write>
std::string Written(const Write& write)
{
    char text[1024] = "untouched";
    write(text);
    return text;
}

/// The text of a field that is read into a buffer.
template <class Field>
std::string TextOf(const Field& field)
{
    return Written([&field](auto& text) { field.Get(text); });
}

} // namespace korvane
