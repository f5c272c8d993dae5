// Numbers that users write, in every locale alike.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace korvane::render {

/// A number and what stands behind it, without the spaces between. None when the text does not begin with a number.
struct Quantity {
    double number;
    std::string_view unit;
};
inline std::optional<Quantity> ParseQuantity(std::string_view text)
{
    constexpr std::string_view kAfterSign = "0123456789.";
    if (text.size() > 1 && text[0] == '+' && kAfterSign.find(text[1]) != text.npos) text.remove_prefix(1);
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return Quantity{number, text};
}

/// The number that the whole text is.
inline std::optional<double> ParseNumber(std::string_view text)
{
    const auto quantity = ParseQuantity(text);
    return quantity && quantity->unit.empty() ? std::optional(quantity->number) : std::nullopt;
}

} // namespace korvane::render
