// Tables whose rows stand for runs of numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvane {

/// Whether the rows, each of `count` numbers from `first` on, cover 0..total - 1 in order without a gap.
template <class Table>
constexpr bool RowsFollowEachOther(const Table& table, int total)
{
    int next = 0;
    for (const auto& row : table) {
        if (row.first != next || row.count < 1) return false;
        next += row.count;
    }
    return next == total;
}

/// The place of each number's row in such a table.
template <int kTotal, class Table>
constexpr auto RowsOf(const Table& table)
{
    std::array<std::uint8_t, kTotal> rows{};
    std::uint8_t place = 0;
    for (const auto& row : table) {
        for (int n = 0; n < row.count; ++n) rows[static_cast<std::size_t>(row.first + n)] = place;
        ++place;
    }
    return rows;
}

} // namespace korvane
