// The two built-in faces: their widths, and records that the text can trust.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "gui/pixels/BuiltInFonts.h"

namespace korvane {
namespace {

const std::uint8_t* RecordOf(int number, char character)
{
    const std::uint8_t* face = BuiltInFont(number);
    const std::uint8_t* offset = face + 1 + 2 * (character - '!');
    return face + (offset[0] | offset[1] << 8);
}

// clang-format off
const std::vector<int> kWidths[] = { // of "!" to "~"
    {3, 2, 8, 6, 9, 8, 2, 4, 4, 6, 7, 3, 4, 3, 4, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 3, 3, 6, 8, 6, 4, 10,
     6, 5, 6, 6, 5, 5, 6, 6, 3, 4, 5, 4, 7, 6, 7, 5, 7, 6, 5, 5, 6, 5, 9, 5, 5, 5, 3, 4, 3, 7, 6, 3,
     5, 5, 4, 5, 5, 4, 5, 5, 1, 3, 4, 1, 7, 5, 5, 5, 5, 3, 4, 4, 5, 5, 7, 5, 5, 4, 5, 1, 5, 7},
    {3, 3, 9, 7, 13, 9, 3, 5, 5, 7, 9, 3, 5, 3, 6, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 3, 3, 9, 9, 9, 6, 10,
     8, 7, 7, 8, 6, 6, 8, 8, 5, 6, 7, 7, 9, 7, 8, 7, 8, 8, 7, 7, 8, 7, 11, 7, 7, 7, 5, 6, 5, 9, 8, 5,
     7, 7, 6, 7, 7, 5, 7, 7, 3, 5, 7, 3, 11, 7, 7, 7, 7, 5, 6, 5, 7, 7, 9, 7, 7, 6, 8, 5, 8, 9},
};
// clang-format on

TEST(Fonts, HaveTheirLineHeightAndWidths)
{
    for (int number = 0; number < 2; ++number) {
        EXPECT_EQ(BuiltInFont(number)[0], 11);
        std::vector<int> widths;
        for (char c = '!'; c <= '~'; ++c) widths.push_back(RecordOf(number, c)[0]);
        EXPECT_EQ(widths, kWidths[number]) << number;
    }
    EXPECT_FALSE(BuiltInFont(-1) || BuiltInFont(2));
}

// Text stops at a glyph without ink, and draws whatever place a record names.
TEST(Fonts, DrawEachGlyphWithinItsWidthAndUnlikeAllOthers)
{
    for (int number = 0; number < 2; ++number) {
        std::set<std::string> drawings;
        for (char c = '!'; c <= '~'; ++c) {
            SCOPED_TRACE(std::to_string(number) + " " + c);
            const std::uint8_t* record = RecordOf(number, c);
            EXPECT_GT(record[1], 0);
            std::set<int> places;
            for (int k = 0; k < record[1]; ++k) {
                const int place = record[2 + 2 * k];
                EXPECT_TRUE((place & 15) < record[0] && place >> 4 < 11 && places.insert(place).second) << place;
            }
            EXPECT_TRUE(drawings.emplace(record + 2, record + 2 + 2 * record[1]).second);
        }
    }
}

} // namespace
} // namespace korvane
