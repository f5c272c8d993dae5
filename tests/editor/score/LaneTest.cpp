// Strokes over the lane become locks.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

constexpr int kCutoff = 92; // its slot is 12

struct LaneTest : ScoreRig {
    void EditCutoff(int channel, float own)
    {
        Engine().storedParams[channel][12] = own;
        Engine().RefreshChannel(channel);
        Edit(channel, kCutoff);
    }
};

TEST_F(LaneTest, AStrokeLocksTheNoteWhoseStretchItIsOn)
{
    const struct {
        int channel;
        Point at; // pixels
        const char *before, *after;
    } rows[] = {
        {9, {37 + 5 * 8, 42}, "9.4:1 9.16:2", "9.4:1[12=0.25] 9.16:2"},
        {9, {37 + 16 * 8 - 1, 42}, "9.4:1 9.16:2", "9.4:1[12=0.25] 9.16:2"},
        {9, {37 + 16 * 8, 42}, "9.4:1 9.16:2", "9.4:1 9.16:2[12=0.25]"},
        {9, {1060, 106}, "9.4:1 9.16:2", "9.4:1 9.16:2[12=-0.25]"},
        {9, {37 + 4 * 8 - 1, 42}, "9.4:1", "9.4:1"}, // nobody's
        {9, {60, 42}, "10.0:1", "10.0:1"},
        {3, {37 + 10 * 8, 42}, "2.8:100 3.4:10", "2.8:100 3.4:10[12=0.25]"}, // its own channel's
        {9, {60, 10}, "9.0:1", "9.0:1[12=0.5]"},
        {9, {60, 137}, "9.0:1", "9.0:1[12=-0.492]"},
        {9, {60, 69}, "9.0:1[12=0.25]", "9.0:1"}, // 0.539: near its own
        {9, {60, 67}, "9.0:1", "9.0:1[12=0.0547]"},
        {9, {60, 79}, "9.0:1[12=0.25]", "9.0:1"}, // 0.461
        {9, {60, 81}, "9.0:1[5=0.125]", "9.0:1[5=0.125][12=-0.0547]"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.at.x << ' ' << row.at.y);
        Empty();
        Put(row.before);
        EditCutoff(row.channel, 0.5f);
        Tap(row.at);
        EXPECT_EQ(Text(), row.after);
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(LaneTest, AStrokeThatLeavesTheLaneGoesAlongItsEdge)
{
    Put("9.0:1 9.16:1 9.32:1");
    EditCutoff(9, 0.5f);
    Down(Lane(3, 0.75f));
    To({37 + 20 * 8, -50});
    EXPECT_EQ(Text(), "9.0:1[12=0.5] 9.16:1[12=0.5] 9.32:1"); // it leaves the first one above the lane
    To({37 + 40 * 8, 300});
    Up();
    To(Lane(20, 0.25f)); // the hand is free
    EXPECT_EQ(Text(), "9.0:1[12=0.5] 9.16:1[12=-0.5] 9.32:1[12=-0.5]");
    EXPECT_FALSE(State().selection.Exists());
}

TEST_F(LaneTest, AJumpLocksEachCrossedStretchWhereItLeavesIt)
{
    for (const bool back : {false, true}) {
        Empty();
        Put("9.0:1 9.10:1 9.20:1 9.30:1");
        EditCutoff(9, 0.25f);
        const Point left{37 + 2 * 8 + 4, 10}, right{37 + 35 * 8 + 4, 137}; // x 57 to 321
        Down(back ? right : left);
        To(back ? left : right);
        Up();
        // It crosses columns 10, 20 and 30 at x 117, 197 and 277: 60, 140 and 220 of 264 pixels on a way of 127 down.
        const float crossings[] = {1 - 60 / 266.0f, 1 - 140 / 266.0f, 1 - 220 / 266.0f};
        for (int n = 0; n < 4; ++n) {
            const float value = back ? (n == 0 ? 1.0f : crossings[n - 1]) : (n == 3 ? 1 / 128.0f : crossings[n]);
            EXPECT_NEAR(Pattern().locks[9][10 * n].Offset(12), value - 0.25f, 0.015f) << n << back;
        }
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(LaneTest, ASelectionKeepsTheStrokeToItself)
{
    Put("9.4:1 9.20:1 9.40:1");
    EditCutoff(9, 0.5f);
    Tap(Strip(1));
    Drag(Lane(0, 0.75f), Lane(60, 0.75f));
    EXPECT_EQ(Text(), "9.4:1 9.20:1[12=0.25] 9.40:1");
    EXPECT_TRUE(State().selection.Exists());
}

TEST_F(LaneTest, WhatPlaysNowIsHeardAtOnceAndNothingElseIsTouched)
{
    Put("9.0:1 9.16:1");
    EditCutoff(9, 0.5f);
    const Shared<float>& heard = Engine().Channel(9).sound.params[12];
    Engine().selection.selectedBar = 5;
    Tap(Lane(3, 0.75f));
    EXPECT_FLOAT_EQ(heard, 0.5f); // stopped
    SetPlaying(true);
    ASSERT_EQ(Engine().score.lastStep[9], 0);
    EXPECT_FLOAT_EQ(heard, 0.75f);
    Take();
    Down(Lane(3, 0.25f));
    EXPECT_FLOAT_EQ(heard, 0.25f);
    To(Lane(20, 1.0f)); // its stroke leaves the step that plays lower
    EXPECT_NEAR(heard, 0.5f + Pattern().locks[9][0].Offset(12), 1e-6f);
    EXPECT_LT(heard, 0.99f);
    To(Lane(3, 0.5f));
    EXPECT_FLOAT_EQ(heard, 0.5f);
    EXPECT_EQ(Engine().selection.editStep, -1);
    EXPECT_EQ(Engine().selection.selectedBar, 5);
    EXPECT_EQ(Engine().storedParams[9][12], 0.5f);
    EXPECT_EQ(Take(), Log{}); // a lock is no automation
}

TEST_F(LaneTest, ItsPatternAndChannelAreThoseOfTheOpening)
{
    Put("9.0:1", 0);
    Put("9.0:1 10.0:1", 2);
    Engine().storedParams[10][12] = 1.0f;
    EditCutoff(9, 0.5f);
    Engine().selection.selectedChannel = 10;
    Engine().score.currentPattern = 2;
    EXPECT_EQ(Score().lane.LaneValue(), 0.5f);
    Tap(Lane(3, 0.75f));
    EXPECT_EQ(Text(0), "9.0:1[12=0.25]");
    EXPECT_EQ(Text(2), "9.0:1 10.0:1");
}

TEST_F(LaneTest, ABankedParameterIsThatOfTheSelectedLayer)
{
    Put("3.0:1");
    Engine().selection.layerNumber = 2;
    Engine().storedParams[3][63] = 0.5f;
    Edit(3, 136); // "SAMPLER: Layer Level", slots 61 to 64
    Tap(Lane(3, 0.75f));
    EXPECT_EQ(Text(), "3.0:1[63=0.25]");
}

TEST_F(LaneTest, SteppedParametersShowTheirNearestStep)
{
    Put("9.0:1[12=0.25]");
    EditCutoff(9, 0.9f);
    EXPECT_FLOAT_EQ(Score().lane.LaneValue(), 0.9f);
    EXPECT_FLOAT_EQ(Score().lane.LaneValue(0), 1.0f); // not above it
    const struct {
        int parameter, steps;
    } rows[] = {{70, 1},  {79, 1},  {89, 1},  {91, 1},  {94, 1},  {103, 1}, {107, 1}, {108, 1}, {115, 1}, {122, 1},
                {126, 1}, {128, 1}, {129, 1}, {146, 1}, {149, 1}, {151, 1}, {76, 2},  {95, 3},  {110, 3}, {74, 4},
                {99, 4},  {112, 4}, {114, 4}, {119, 5}, {71, 9},  {72, 0},  {118, 0}, {145, 0}};
    // 0.55, rounded to that many steps; 0: as it is
    const float shown[] = {0.55f, 1.0f, 0.5f, 2 / 3.0f, 0.5f, 0.6f, 0, 0, 0, 5 / 9.0f};
    for (const auto& row : rows) {
        instrument->SetParameter(row.parameter, 0.55f);
        Score().lane.laneParameter = row.parameter;
        EXPECT_FLOAT_EQ(Score().lane.LaneValue(), shown[row.steps]) << row.parameter;
    }
}

} // namespace
} // namespace korvane
