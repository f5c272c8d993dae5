// The rules behind the window that need no display.
#include <climits>
#include <gtest/gtest.h>

#include "platform/window/CopyClip.h"
#include "platform/window/DisplayScale.h"
#include "platform/window/DroppedFile.h"
#include "platform/window/KeyCodes.h"
#include "platform/window/WindowEvents.h"

namespace korvane {

// clang-format off
TEST(CopyClip, StaysWithinImageAndSurface)
{
    struct Case { const char* what; Rect source; Point target; Rect part; Point place; };
    const Case cases[] = { // from an image of 100 x 50 to a surface of 80 x 60
        {"inside",        {10, 10, 5, 5},        {1, 2},    {10, 10, 5, 5},  {1, 2}},
        {"left of both",  {-3, -2, 10, 10},      {-5, 1},   {2, 0, 5, 8},    {0, 3}},
        {"right of both", {90, 40, 50, 50},      {75, 0},   {90, 40, 5, 10}, {75, 0}},
        {"negative",      {5, 5, -4, 4},         {0, 0},    {},              {}},
        {"all of it",     {0, 0, INT_MAX, INT_MAX},             {0, 0},             {0, 0, 80, 50}, {0, 0}},
        {"wild",          {INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {INT_MAX, INT_MIN}, {},             {}},
    };
    for (const Case& c : cases) {
        const CopyPart part = ClipCopy(c.source, c.target, {50, 100}, {60, 80});
        EXPECT_TRUE(part.source == c.part && part.target == c.place) << c.what;
    }
}

// What the key shows; without a Latin letter what it shows in another layout, or what an American one has in its place.
TEST(KeyCodes, FollowTheLayoutInForce)
{
    struct Case { const char* what; KeyFaces faces; int layout; bool numLock; int number, code; };
    const Case cases[] = {
        {"a letter",                    {{{'q', 'Q'}}},                 0, false, 38, 'Q'},
        {"a digit with Shift",          {{{'&', '1'}}},                 0, false, 10, '1'},
        {"a digit behind a letter",     {{{0x1B1, 0x1A1}}},             0, false, 10, '1'},
        {"a sign, where America has Q", {{{'\'', '"'}}},                0, false, 24, 0},
        {"an accent, where it has W",   {{{0xE9, 0xC9}}},               0, false, 25, 0},
        {"Cyrillic beside Latin",       {{{'z', 'Z'}, {0x6D1, 0x6F1}}}, 1, false, 29, 'Z'},
        {"Cyrillic alone",              {{{0x6C6, 0x6E6}}},             0, false, 38, 'A'},
        {"Greek, as Unicode",           {{{0x10003B1, 0x1000391}}},     0, false, 38, 'A'},
        {"Cyrillic, where it has ;",    {{{0x6D6, 0x6F6}}},             0, false, 47, 0},
        {"keypad",                      {{{0xFF9C, 0xFFB1}}},           0, false, 87, key::End},
        {"keypad's digits",             {{{0xFF9C, 0xFFB1}}},           0, true,  87, '1'},
        {"keypad's Enter",              {{{0xFF8D, 0}}},                0, true,  104, key::Enter},
        {"F12",                         {{{0xFFC9, 0}}},                0, false, 96, key::F1 + 11},
        {"nothing",                     {},                             0, false, 200, 0},
    };
    for (const Case& c : cases) EXPECT_EQ(KeyCodeOf(c.faces, c.layout, c.numLock, c.number), c.code) << c.what;
}

TEST(DroppedFile, IsTheFirstOfThisMachine)
{
    const char* const cases[][2] = {
        {"file:///a/b.wav\r\nfile:///c\r\n", "/a/b.wav"}, {"# a comment\r\n\r\nfile:///b", "/b"}, {"", ""},
        {"file://localhost/a\n", "/a"}, {"file://Studio/a\n", "/a"}, {"file://elsewhere/a\nfile:/b\n", "/b"},
        {"FILE:///%C3%A4%20%25%zz%2", "/\xC3\xA4 %%zz%2"}, {"file:///a%00b\r\n", ""}, {"file://", ""},
        {"http://a/b", ""},
    };
    for (const auto& [list, path] : cases) EXPECT_EQ(FirstFileOf(list, "studio"), path) << list;
}

TEST(DisplayScale, FollowsTheDesktopsResources)
{
    const std::pair<const char*, int> cases[] = {
        {"", 1}, {"Xft.dpi:\t143\n", 1}, {"Xft.dpi: 144", 2}, {"Xft.dpi:239.5\n", 2}, {"Xft.dpi:240\n", 3},
        {"Xft.dpi:", 1}, {"a: b\nXft.dpi: 288\nc: d\n", 3}, {"Xft.dpi: 9000\n", 4}, {"Xft.dpi: x\n", 1},
        {"*Xft.dpi: 192\n", 1},
    };
    for (const auto& [resources, scale] : cases) EXPECT_EQ(ScaleFromResources(resources), scale) << resources;
}
// clang-format on

} // namespace korvane
