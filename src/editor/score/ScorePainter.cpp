// Draws the open score editor: what lies around its grid.
#include "editor/score/ScorePainter.h"

#include <iterator>

#include "editor/score/Fill.h"
#include "editor/score/ScoreClipboard.h"
#include "gui/controls/KeptDrawState.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr Color kLine = Rgb(177, 180, 224), kName = Rgb(177, 180, 124);
constexpr Color kNameGround = Rgb(22, 24, 27, 190); // lets it be read on bars
constexpr Color kOwnChannel = Rgb(224, 103, 4, 50), kAuditioned = Rgb(224, 123, 24, 170);

struct BarLook {
    Color fill, side, top;
};
constexpr BarLook kBar{Rgb(224, 103, 4, 84), Rgb(224, 103, 4, 150), Rgb(250, 140, 50, 230)};
constexpr BarLook kSelectedBar{Rgb(223, 186, 4, 84), Rgb(223, 186, 4, 150), Rgb(250, 222, 70, 230)};

constexpr float kResting = 105.0f / 255.0f; // opacity of a button that would do nothing

constexpr int kNameHeight = 20, kNameMargin = 20, kNameAir = 5, kTopEdge = 2, kHoverFrame = 2;

int HeightOf(float value) { return Truncate(static_cast<float>(ScoreGrid::laneRect.h) * value); }

Rect KeyRect(const ScoreGrid& grid, int row)
{
    const Rect keys = grid.KeyStripRect();
    return {keys.x, grid.CellRect(0, row).y, keys.w, grid.cellHeight};
}

} // namespace

void ScorePainter::Draw(CDrawBuffer& page, const ScoreSkin& skin, const char* parameterName, bool playing,
                        bool copying) const
{
    KeptDrawState kept(&page);
    page.DrawBitmap(skin.pages[notes.grid->drumMode], {0, 0, page.width, page.height}, {});
    gridPainter.Draw(page, copying);
    DrawLane(page, parameterName);
    if (state.hoverBar >= 0) DrawHoveredBar(page);
    DrawKeyMarks(page);
    DrawButtons(page, skin.buttons, playing);
}

// Lane

void ScorePainter::DrawLane(CDrawBuffer& page, const char* parameterName) const
{
    constexpr Rect place = ScoreGrid::laneRect;
    const Rect name{place.x, place.y, place.w - kNameMargin, kNameHeight};
    page.SetFont(0);
    if (lane.HasLocks()) {
        DrawBars(page);
        const Size text = page.DrawText(parameterName, 0, 0, 0, 0, align::Left, true);
        Fill(page, {name.x + name.w - text.width - kNameAir, name.y, text.width + 2 * kNameAir, name.h}, kNameGround);
        const int bottom = place.y + place.h, y = bottom - HeightOf(lane.LaneValue());
        Fill(page, {place.x, y < bottom ? y : bottom - 1, place.w, 1}, kLine);
    }
    page.SetTextColor(kName);
    page.DrawText(parameterName, name.x, name.y, name.w, name.h, align::Right, false);
}

/// A side of its own tells a bar from an equal one before it.
void ScorePainter::DrawBars(CDrawBuffer& page) const
{
    const ScoreSpan selected = state.selection.Columns(*notes.grid);
    for (int column = notes.NextNote(-1), next; column < kSteps; column = next) {
        next = notes.NextNote(column);
        const BarLook& look = selected.Holds(column) ? kSelectedBar : kBar;
        const int height = HeightOf(lane.LaneValue(column));
        const Rect bar{ScoreGrid::laneRect.x + column * ScoreGrid::cellWidth,
                       ScoreGrid::laneRect.y + ScoreGrid::laneRect.h - height, (next - column) * ScoreGrid::cellWidth,
                       height};
        const int edge = height < kTopEdge ? height : kTopEdge;
        Fill(page, {bar.x, bar.y, bar.w, edge}, look.top);
        Fill(page, {bar.x, bar.y + edge, 1, bar.h - edge}, look.side);
        Fill(page, {bar.x + 1, bar.y + edge, bar.w - 1, bar.h - edge}, look.fill);
    }
}

// Strips

void ScorePainter::DrawHoveredBar(CDrawBuffer& page) const
{
    constexpr Rect strip = ScoreGrid::barStripRect;
    constexpr int width = kStepsPerBar * ScoreGrid::cellWidth;
    page.SetFrameColor(kLine);
    page.SetFrameWidth(kHoverFrame);
    page.DrawFrame({strip.x + state.hoverBar * width, strip.y, width, strip.h});
}

void ScorePainter::DrawKeyMarks(CDrawBuffer& page) const
{
    if (notes.grid->drumMode) Fill(page, KeyRect(*notes.grid, notes.grid->TopRow() - notes.channel), kOwnChannel);
    if (state.auditionRow >= 0) Fill(page, KeyRect(*notes.grid, state.auditionRow), kAuditioned);
}

// Buttons

/// Whether it would do anything now.
bool ScorePainter::Acts(ScoreCommand command) const
{
    if (command == ScoreCommand::Play) return true;
    return state.selection.Exists() && (command != ScoreCommand::Paste || CopiedScore().Fits(*notes.grid));
}

void ScorePainter::DrawButtons(CDrawBuffer& page, const CBitmap* image, bool playing) const
{
    for (int n = 0; n < static_cast<int>(std::size(kScoreButtons)); ++n) {
        const ScoreButton& button = kScoreButtons[n];
        const Rect place = button.PlaceOn(*notes.grid);
        const bool play = button.command == ScoreCommand::Play;
        page.DrawBitmapBlended(image, place, {button.imageColumn, play && playing ? button.onRow : button.imageRow},
                               Acts(button.command) ? 1.0f : kResting);
        if (!play)
            page.DrawBitmapBlended(image, place, {button.imageColumn, button.onRow},
                                   static_cast<float>(state.flash[n]) / 255.0f);
    }
}

} // namespace korvane
