// Images from files and the list that keeps them.
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "gui/pixels/CBitmapStorage.h"
#include "support/ContentRoot.h"
#include "support/Riff.h"

namespace korvane {
namespace {

using riff::Little;

const std::string kBytes = "\1\2\3\4\5\6\7\x8\x9\xA\xB\xC\xD\xE\xF\x10\x11";
std::string Counted(int count) { return kBytes.substr(0, count); }

struct Bmp {
    std::size_t width = 2, height = 2, bits = 24, compression = 0, planes = 1, offset = 56, size = 72;
    std::string operator+(const std::string& rows) const
    {
        return "BM" + Little(size, 8) + Little(offset, 4) + Little(40, 4) + Little(width, 4) + Little(height, 4) +
               Little(planes, 2) + Little(bits, 2) + Little(compression, 4) + std::string(22, '\x77') + rows;
    }
};

struct Tga {
    std::size_t bits = 24, width = 2, height = 2, type = 2, colorMap = 0, identifier = 0, descriptor = 0;
    std::string operator+(const std::string& rest) const
    {
        return Little(identifier | colorMap << 8 | type << 16, 3) + std::string(9, '\x77') + Little(width, 2) +
               Little(height, 2) + Little(bits, 1) + Little(descriptor, 1) + rest;
    }
};

TEST(Image, ReadsBmpAndTga)
{
    const std::string rows24 = Counted(12), rows32 = Counted(16);
    using Words = std::vector<std::uint32_t>; // the bottom row first, as the files have it
    const Words bmp = {0x030201, 0x060504, 0x0B0A09, 0x0E0D0C}, tga24 = {0x030201, 0x060504, 0x090807, 0x0C0B0A},
                tga32 = {0x030201, 0x070605, 0x0B0A09, 0x0F0E0D}, black(4), none;
    // clang-format off
    struct Case { const char* what; std::string file; Words shown; bool alpha = false; };
    const Case cases[] = {
        {"BMP", Bmp{} + rows32, bmp},                          {"shorter", Bmp{.size = 1} + Counted(17), bmp},
        {"a byte lacks", Bmp{.size = 71} + Counted(15), none}, {"longer", Bmp{.size = 73} + rows32, none},
        {"32 bits", Bmp{.bits = 32} + rows32, none},           {"compressed", Bmp{.compression = 1} + rows32, none},
        {"planes", Bmp{.planes = 2} + rows32, none},           {"no width", Bmp{.width = 0} + rows32, none},
        {"no height", Bmp{.height = 0} + rows32, none},        {"ends early", "BM\x10", none},
        {"wild", Bmp{.width = 0xFFFFFFFF, .height = 0xFFFFFFFF, .offset = 0xFFFFFFFF} + rows32, none},
        {"TGA", Tga{} + rows24, tga24},                        {"top-down", Tga{.descriptor = 0x20} + rows24, tga24},
        {"with alpha", Tga{32} + rows32, tga32, true},         {"without again", Tga{} + rows24, tga24},
        {"with identifier", Tga{.identifier = 255} + std::string(255, 'i') + rows24, tga24},
        {"part of one", Tga{.identifier = 255} + "i", black},  {"only one", Tga{.identifier = 12} + rows24, black},
        {"no second row", Tga{} + Counted(6), {0x030201, 0x060504, 0x030201, 0x060504}},
        {"part of it", Tga{} + Counted(10), {0x030201, 0x060504, 0x090807, 0x06050A}},
        {"run lengths", Tga{.type = 10} + rows24, none},       {"colour map", Tga{.colorMap = 1} + rows24, none},
        {"16 bits", Tga{16} + rows24, none},                   {"no width", Tga{24, 0} + rows24, none},
        {"wild", Tga{32, 65535, 65535} + rows32, none},        {"empty", "", none},
    };
    // clang-format on
    const ContentRoot root;
    const std::string path = root.path / "image";
    CBitmap bitmap(3); // each leaves nothing to the next
    EXPECT_FALSE(bitmap.Load(nullptr) || bitmap.Load((path + "no").c_str()));
    for (const Case& c : cases) {
        WriteText(path, c.file);
        ASSERT_EQ(bitmap.Load(path.c_str()), !c.shown.empty()) << c.what;
        if (c.shown.empty()) continue;
        EXPECT_EQ(Words(&bitmap.pixels[0], &bitmap.pixels[4]), c.shown) << c.what;
        EXPECT_TRUE(bitmap.HasAlpha() == c.alpha && (!c.alpha || bitmap.alpha[3] == 16)) << c.what;
    }
}

TEST(Image, IsReadOnceAndSharedByItsNumber)
{
    const ContentRoot root;
    const std::string path = root.path / "image";
    WriteText(path, Tga{} + Counted(12));
    CBitmapStorage storage;
    EXPECT_FALSE(storage.LoadBitmap(nullptr, 7) || storage.LoadBitmap((path + "no").c_str(), 7) ||
                 storage.FindBitmap(7));
    CBitmap* found[2][200];
    const auto open = [&](CBitmap** mine) { // as each of two editors does
        for (int id = 0; id < 200; ++id)
            mine[id] = storage.LoadBitmap(path.c_str(), id) ? storage.FindBitmap(id) : nullptr;
    };
    std::thread other(open, found[1]);
    open(found[0]);
    other.join();
    EXPECT_TRUE(std::ranges::equal(found[0], found[1]));
    std::filesystem::remove(path);
    EXPECT_TRUE(storage.LoadBitmap(path.c_str(), 5) && !storage.LoadBitmap(path.c_str(), 500));
    EXPECT_TRUE(found[0][5] && found[0][5]->GetId() == 5 && found[0][0]->next == found[0][1]);
}

} // namespace
} // namespace korvane
