// korvane-uishot: pictures of windows after a script.
#include "support/CommandTest.h"

namespace korvane {
namespace {

using Pictures = CommandTest;

TEST_F(Pictures, ShowWhatAScriptLeaves)
{
    const std::string shoot = std::string(KORVANE_TOOLS) + "/korvane-uishot demo ";
    ASSERT_EQ(Shell(shoot + "before.png").status, 0);
    const Answer answer = Shell(shoot + "after.png -e 'move 114 50; press; move 114 0; tick 3 # a knob\nshot held.png;"
                                        " release; tick; hold ctrl+alt; key space; wheel -1; drop /a; host 92 0.5'");
    EXPECT_EQ(answer.status, 0) << answer.errors;
    const std::string before = Text("before.png");
    EXPECT_EQ(before.substr(0, 4), "\x89PNG");
    for (const char* name : {"after.png", "held.png"}) EXPECT_NE(Text(name), before) << name;
    for (const char* bad : {"frobnicate", "move 3", "key nokey", "press thumb"}) {
        const Answer refused = Shell(shoot + "bad.png -e '" + bad + "'");
        EXPECT_TRUE(refused.status == 1 && refused.Complains(bad)) << refused.errors;
    }
    EXPECT_EQ(Shell(shoot).status, 2);
}

} // namespace
} // namespace korvane
