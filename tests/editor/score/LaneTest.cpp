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
           // A jump counts where it leaves a stretch, here at 0.5.
           {"9.0:1 9.16:1 open 9 drag P64,42 P364,138", "9.0:1 9.16:1[12=-0.5]"},
           {"9.0:1 9.16:1 open 9 drag P364,106 P64,58", "9.0:1[12=0.125] 9.16:1"},
           // Pattern, channel and its own value are those of the opening.
           {"9.0:1[12=0.25] 2/9.0:1 2/10.0:1 open 9 channel 10 pattern 2 tap P60,69", "9.0:1 2/9.0:1 2/10.0:1"},
           {"3.0:1 on 136 open 3 tap L3,0.75", "3.0:1[63=0.25]"}}); // the level of the selected layer
}

TEST_F(LaneTest, WhatPlaysNowIsHeardAtOnceAndNothingElseIsTouched)
{
    const ParameterBlock::Entry heard = Engine().Channel(9).sound.params[12];
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
    Do("close on 95 open 9");
    instrument->SetParameter(95, 0.55f);
    EXPECT_FLOAT_EQ(Score().lane.LaneValue(), 2 / 3.0f);
}
// clang-format on

} // namespace
} // namespace korvane
