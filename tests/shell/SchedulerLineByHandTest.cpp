// A scheduler line worked by hand in the editor: drawn with the mouse from
// its toolbar button, its rows typed and chosen (a refused width among
// them), the design saved, opened and saved again.
#include "document/ObjectTypes.h"
#include "objects/schedulerline/ctlKOMASchedulerLine.h"
#include "shell/ByHandFixture.h"

namespace tolva::testing {
namespace {

constexpr int kSchedulerLineTool = 16;

TEST_F(ByHand, ASchedulerLineDrawnTypedSavedOpenedAndSavedAgain) {
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kSchedulerLineTool);
    Drag({30, 80}, {380, 330});
    ASSERT_EQ(Screen().Count(type::SchedulerLine), 1);
    auto* line = static_cast<ctlKOMASchedulerLine*>(Screen().ObjectAt(type::SchedulerLine, 1));
    EXPECT_EQ(line->KOMAName(), "SCHEDULERLINE_1");
    EXPECT_GT(line->KOMAWidth(), 100);

    Enter(1, "DAY");
    Enter(4, "200");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMAWidth: Invalid width value"}));
    host.ClearRecord();
    Enter(4, "150");
    ChooseRow(7, "FALSE");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    EXPECT_EQ(line->KOMAName(), "DAY");
    EXPECT_EQ(line->KOMAWidth(), 150);
    EXPECT_EQ(line->KOMAActiveWord(), "FALSE");

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* text : {"#SCHLINE\r\nNAME=DAY\r\n", "(SH)BOUNDS.WIDTH=150\r\n",
                             "(BO)SCHLINE_ATTR.ACTIVE=FALSE\r\n"})
        EXPECT_NE(saved.find(text), std::string::npos) << text;

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::SchedulerLine), 1);
    EXPECT_EQ(SaveDesignAs(dir, "second"), saved);
    EXPECT_EQ(ReadFile(dir / "second.h"), ReadFile(dir / "first.h"));
}

}  // namespace
}  // namespace tolva::testing
