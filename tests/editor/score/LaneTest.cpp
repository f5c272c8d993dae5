// Strokes over the lane become locks.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

/// The lane shows "Filter Cutoff", slot 12, of which channels have 0.5.
struct LaneTest : ScoreRig {
    LaneTest()
    {
        lane = 92;
        for (const int c : {3, 9}) Engine().storedParams[c][12] = 0.5f, Engine().RefreshChannel(c);
        Engine().storedParams[10][12] = 1.0f;
    }
};

// clang-format off
TEST_F(LaneTest, AStrokeLocksTheNotesWhoseStretchesItCrosses)
{
    Engine().selection.layerNumber = 2;
    Check({{"9.4:1 9.16:2 open 9 tap L5,0.75", "9.4:1[12=0.25] 9.16:2"},
           {"9.4:1 9.16:2 open 9 tap P164,42", "9.4:1[12=0.25] 9.16:2"}, // the last pixel
           {"9.4:1 9.16:2 open 9 tap P165,42", "9.4:1 9.16:2[12=0.25]"},
           {"9.4:1 9.16:2 open 9 tap P1060,106", "9.4:1 9.16:2[12=-0.25]"},
           {"9.4:1 open 9 tap P68,42", "9.4:1"}, {"10.0:1 open 9 tap L5,0.75", "10.0:1"},
           {"2.8:100 3.4:10 open 3 tap L10,0.75", "2.8:100 3.4:10[12=0.25]"},
           {"9.0:1 open 9 tap P60,10", "9.0:1[12=0.5]"}, {"9.0:1 open 9 tap P60,137", "9.0:1[12=-0.492]"},
           // 0.539 and 0.461 are near the channel's own.
           {"9.0:1[12=0.25] open 9 tap P60,69", "9.0:1"}, {"9.0:1 open 9 tap P60,67", "9.0:1[12=0.0547]"},
           {"9.0:1[12=0.25] open 9 tap P60,79", "9.0:1"}, {"9.0:1 open 9 tap P60,81", "9.0:1[12=-0.0547]"},
           // Above and below the lane it goes along the edge.
           {"9.0:1 9.16:1 9.32:1 open 9 down L3,0.75 to P197,-50", "9.0:1[12=0.5] 9.16:1[12=0.5] 9.32:1"},
           {"9.0:1 9.16:1 9.32:1 open 9 drag L20,0.75 P357,400 to L3,0.1", "9.0:1 9.16:1[12=-0.5] 9.32:1[12=-0.5]"},
           {"9.4:1 9.20:1 9.40:1 open 9 tap B1 drag L0,0.75 L60,0.75", "9.4:1 9.20:1[12=0.25] 9.40:1|16-31,0-23|"},
           // Pattern, channel and its own value are those of the opening.
           {"9.0:1 2/9.0:1 2/10.0:1 open 9 channel 10 pattern 2 tap L3,0.75", "9.0:1[12=0.25] 2/9.0:1 2/10.0:1"},
           {"3.0:1 on 136 open 3 tap L3,0.75", "3.0:1[63=0.25]"}}); // the level of the selected layer
}

TEST_F(LaneTest, AJumpLocksEachCrossedStretchWhereItLeavesIt)
{
    // It crosses columns 10, 20 and 30 at x 117, 197 and 277: 60, 140 and 220 of 264 pixels on a way of 127 down.
    const float down[] = {1 - 60 / 266.0f, 1 - 140 / 266.0f, 1 - 220 / 266.0f, 1 / 128.0f},
                up[] = {1.0f, down[0], down[1], down[2]};
    for (const auto& [hands, values] : {std::pair{"drag P57,10 P321,137", down}, {"drag P321,137 P57,10", up}}) {
        Do("9.0:1 9.10:1 9.20:1 9.30:1 open 9");
        Engine().storedParams[9][12] = 0.25f;
        Do(hands);
        for (int n = 0; n < 4; ++n) EXPECT_NEAR(Pattern().locks[9][10 * n].Offset(12), values[n] - 0.25f, 0.015f) << n;
        Do("close");
    }
}

TEST_F(LaneTest, WhatPlaysNowIsHeardAtOnceAndNothingElseIsTouched)
{
    const Shared<float>& heard = Engine().Channel(9).sound.params[12];
    Engine().selection.selectedBar = 5;
    Do("9.0:1 9.16:1 open 9 tap L3,0.75");
    EXPECT_FLOAT_EQ(heard, 0.5f); // stopped
    Do("playing 1");
    Engine().score.lastStep[9] = 0;
    Take();
    for (const auto& [hands, value] : {std::pair{"down L3,0.25", 0.25f}, {"to L10,1", 1.0f}, {"up tap L20,0.25", 1.0f},
                                       {"tap L3,0.5", 0.5f}}) {
        Do(hands);
        EXPECT_FLOAT_EQ(heard, value) << hands;
        EXPECT_TRUE(Engine().selection.editStep == -1 && Engine().selection.selectedBar == 5) << hands;
    }
    EXPECT_EQ(Engine().storedParams[9][12], 0.5f);
    EXPECT_EQ(Take(), Log{}); // a lock is no automation
}

TEST_F(LaneTest, SteppedParametersShowTheirNearestStep)
{
    Do("9.0:1[12=0.75] open 9");
    EXPECT_FLOAT_EQ(Score().lane.LaneValue(0), 1.0f); // not above it
    const std::pair<std::vector<int>, float> rows[] = {
        {{72, 88, 118, 145}, 0.55f}, // as they are; others in that many steps
        {{70, 79, 89, 91, 94, 103, 107, 108, 115, 122, 126, 128, 129, 146, 147, 148, 149, 150, 151}, 1.0f},
        {{76}, 0.5f}, {{95, 110}, 2 / 3.0f}, {{74, 99, 112, 114}, 0.5f}, {{119}, 0.6f}, {{71}, 5 / 9.0f}};
    for (const auto& [parameters, shown] : rows)
        for (const int parameter : parameters) {
            instrument->SetParameter(parameter, 0.55f);
            Score().lane.laneParameter = parameter;
            EXPECT_FLOAT_EQ(Score().lane.LaneValue(), shown) << parameter;
        }
}
// clang-format on

} // namespace
} // namespace korvane
