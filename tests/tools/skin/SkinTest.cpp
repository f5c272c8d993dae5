// The drawn skin against what the layout's controls read of it.
#include <algorithm>
#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "editor/layout/Layout.h"
#include "gui/pixels/CBitmap.h"

namespace korvane {
namespace {

std::unique_ptr<CBitmap> Load(int id)
{
    const auto* row = std::find_if(kSkinImages.begin(), kSkinImages.end(), [&](const auto& r) { return r.id == id; });
    auto image = std::make_unique<CBitmap>(id);
    if (row == kSkinImages.end() || !image->Load((std::string(KORVANE_BUNDLE "/Graphics/") + row->file).c_str()))
        ADD_FAILURE() << "image " << id << " is not there";
    return image;
}

struct Pixel {
    int red, green, blue, alpha;
};

Pixel At(const CBitmap& image, int x, int y)
{
    const std::size_t at = static_cast<std::size_t>(image.height - 1 - y) * static_cast<std::size_t>(image.width) +
                           static_cast<std::size_t>(x);
    const int pixel = static_cast<int>(image.pixels[at]);
    return {pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255, image.alpha ? image.alpha[at] : 255};
}

Rect PlaceIn(const ControlRow& row, int n, const CBitmap& image) { return PlaceOf(row, n, image.GetSize()); }

/// Frames below each other that a row's controls can show.
int FramesOf(const ControlRow& row)
{
    switch (row.widget) {
    case Widget::Knob: return kKnobFrames;
    case Widget::SmallKnob: return kSmallKnobFrames;
    case Widget::Steps: return row.parts;
    case Widget::Latch: return 4;
    case Widget::Fader:
    case Widget::LevelFader:
    case Widget::LengthFader:
    case Widget::ModulationFader: return 1;
    default: break;
    }
    if (row.role == Role::Channel || row.role == Role::Step) return 6;
    return row.role == Role::Pattern || row.role == Role::ExtLearn ? 4 : 2;
}

/// Of a cell of the row's image.
Size CellOf(const ControlRow& row, const CBitmap& image)
{
    const Rect place = PlaceIn(row, 0, image);
    switch (row.widget) {
    case Widget::LedTab: return {13, 14};
    case Widget::Tab: return {place.h, place.w / row.parts};
    case Widget::TabColumn: return {place.h / row.parts, place.w};
    case Widget::Meter: return {13, 11};
    case Widget::Fader:
    case Widget::LevelFader:
    case Widget::LengthFader:
    case Widget::ModulationFader: return image.GetSize();
    default: return {place.h, place.w};
    }
}

TEST(Skin, HasEveryImageInTheSizeAndKindThatIsReadOfIt)
{
    struct {
        int id, width, height;
        bool alpha;
    } constexpr kExact[] = {
        {image::PageSampler, 1065, 630, false},
        {image::PageSynth, 1065, 630, false},
        {image::PageChannel, 1065, 630, false},
        {image::ScoreEdit, 1065, 549, false},
        {image::DrumsEditor, 1065, 436, false},
        {image::About, 1065, 630, true},
        {image::Led, 28, 26, true},
        {image::NoteEditorButtons, 296, 94, true},
    };
    for (const SkinImage& row : kSkinImages) EXPECT_GT(Load(row.id)->width, 0) << row.file;
    for (const auto& row : kExact) {
        const auto image = Load(row.id);
        EXPECT_EQ(image->GetSize(), (Size{row.height, row.width})) << row.id;
        EXPECT_EQ(image->HasAlpha(), row.alpha) << row.id;
    }
}

/// The visible pixels of a part of an image; empty when there are none.
std::string Seen(const CBitmap& image, Rect part)
{
    std::string seen;
    bool any = false;
    for (int y = part.y; y < part.y + part.h; ++y)
        for (int x = part.x; x < part.x + part.w; ++x) {
            const Pixel p = At(image, x, y);
            any |= p.alpha > 128;
            for (const int value : {p.red, p.green, p.blue, p.alpha}) seen += static_cast<char>(p.alpha ? value : 0);
        }
    return any ? seen : "";
}

TEST(Skin, HasAFrameOfItsOwnForEveryStateOfEveryControl)
{
    for (const ControlRow& row : kLayout) {
        if (row.image == kNoImage || row.image == image::Led) continue;
        const auto image = Load(row.image);
        const Size cell = CellOf(row, *image);
        ASSERT_LE(row.column + (row.count - 1) * row.columnStep + cell.width, image->width);
        ASSERT_LE(FramesOf(row) * cell.height, image->height) << row.image;
        for (int n = 0; n < row.count; ++n) {
            std::set<std::string> frames{""};
            for (int frame = 0; frame < FramesOf(row); ++frame)
                EXPECT_TRUE(frames
                                .insert(Seen(*image, {row.column + n * row.columnStep, frame * cell.height, cell.width,
                                                      cell.height}))
                                .second)
                    << "image " << row.image << " frame " << frame << " of " << n;
        }
    }
}

TEST(Skin, KeysTellSoundingFromSelectedAndBarsFromSteps)
{
    const auto isWarm = [](Pixel p) { return p.red > p.blue + 40; };
    for (const ControlRow& row : kLayout) {
        if (row.role != Role::Channel && row.role != Role::Step) continue;
        const auto image = Load(row.image);
        const Rect place = PlaceIn(row, 0, *image);
        for (int n = 0; n < row.count; ++n) { // at a key's lower left, beside its number: dark, half, full
            const auto face = [&](int frame) {
                return At(*image, row.column + n * row.columnStep + 9, frame * place.h + place.h - 12);
            };
            const bool step = row.role == Role::Step && n < 16, bar = row.role == Role::Step && !step;
            EXPECT_FALSE(isWarm(face(0)));
            EXPECT_EQ(isWarm(face(2)), step) << row.image << " " << n;
            EXPECT_EQ(isWarm(face(4)), !bar) << row.image << " " << n;
        }
    }
}

TEST(Skin, KnobsTurnFromSevenToFiveOClock)
{
    for (const int id : {image::Knob, image::KnobLcd}) {
        const auto image = Load(id);
        const int side = image->width, frames = image->height / side;
        ASSERT_EQ(image->height, side * (id == image::Knob ? kKnobFrames : kSmallKnobFrames));
        const auto brightest = [&](int frame) {
            Point found{-1, -1};
            int most = -1;
            for (int y = 3; y < side - 3; ++y)
                for (int x = 3; x < side - 3; ++x) {
                    const Pixel p = At(*image, x, frame * side + y);
                    if (const int light = (p.red + p.green + p.blue) * p.alpha; light > most) {
                        most = light;
                        found = {x - side / 2, y - side / 2};
                    }
                }
            return found;
        };
        EXPECT_TRUE(brightest(0).x < 0 && brightest(0).y > 0) << id;
        EXPECT_TRUE(std::abs(brightest(frames / 2).x) <= 1 && brightest(frames / 2).y < -1) << id;
        EXPECT_TRUE(brightest(frames - 1).x > 0 && brightest(frames - 1).y > 0) << id;
    }
}

/// Where the light of a row's control burns: the lit cell's middle, from the frame that its control reads.
Point LightOf(const ControlRow& row, int n, int part)
{
    constexpr int kLitMiddle = 13 + 6, kMiddle = 5;
    const auto image = Load(image::Led);
    const Rect place = PlaceIn(row, n, *image);
    switch (row.widget) {
    case Widget::LedTab: return {place.x + kMiddle, place.y + 13 * part + 6};
    case Widget::Meter: return {place.x + kMiddle, place.y + place.h - 8 * (part + 1) - 4 + 6};
    default: return {place.x + kMiddle, place.y + kLitMiddle - place.h};
    }
}

TEST(Skin, LightsBurnOnTheirLenses)
{
    const auto led = Load(image::Led);
    for (int y = 0; y < 13; ++y)
        for (int x = 0; x < 28; ++x) EXPECT_EQ(At(*led, x, y).alpha, 0) << "dark, " << x << " " << y;
    for (const int column : {0, 14}) EXPECT_GT(At(*led, column + 5, 19).alpha * At(*led, column + 5, 19).red, 60000);
    for (const int id : {image::PageSampler, image::PageSynth, image::PageChannel}) {
        const auto page = Load(id);
        for (const ControlRow& row : kLayout)
            for (int n = 0; row.image == image::Led && n < row.count; ++n)
                for (int part = 0; part < (row.widget == Widget::Meter ? 13 : std::max(1, row.parts)); ++part) {
                    const Point at = LightOf(row, n, part);
                    const Pixel lens = At(*page, at.x, at.y), rim = At(*page, at.x + 4, at.y);
                    EXPECT_GT(lens.red * 10, lens.blue * 17) << "a dark coloured lens at " << at.x << " " << at.y;
                    EXPECT_LT(rim.red, lens.red) << at.x << " " << at.y;
                    for (const int away : {-4, 4}) // nor is it above or below
                        EXPECT_LT(At(*page, at.x, at.y + away).red, lens.red) << at.x << " " << at.y;
                }
    }
}

TEST(Skin, HandlesStayBetweenWhatStandsBesideThem)
{
    for (const ControlRow& row : kLayout)
        if (row.widget == Widget::LevelFader)
            for (const ControlRow& meter : kLayout)
                if (meter.widget == Widget::Meter) {
                    const auto handle = Load(row.image);
                    const Rect place = PlaceIn(row, 0, *handle);
                    EXPECT_LE(place.x + place.w, meter.x + meter.dx) << "the right meter";
                    for (int y = 0; y < handle->height; ++y) EXPECT_EQ(At(*handle, 0, y).alpha, 0) << "the left one";
                }
}

} // namespace
} // namespace korvane
