// A push button worked by hand in the editor: drawn with the mouse from its
// toolbar button, its rows typed and chosen (a refused radius among them),
// the design saved, opened and saved again.
#include "document/ObjectTypes.h"
#include "objects/pushbutton/ctlKOMAPushButton.h"
#include "shell/ByHandFixture.h"

namespace tolva::testing {
namespace {

constexpr int kPushButtonTool = 5;

TEST_F(ByHand, APushButtonDrawnTypedSavedOpenedAndSavedAgain) {
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kPushButtonTool);
    Drag({60, 110}, {200, 180});
    ASSERT_EQ(Screen().Count(type::PushButton), 1);
    auto* button = static_cast<ctlKOMAPushButton*>(Screen().ObjectAt(type::PushButton, 1));
    Enter(1, "FASTER");
    ChooseRow(6, "PUSHBUTTON_STYLE_1");
    Enter(7, "Faster");
    ChooseRow(12, "COLOR_GREY2");
    ChooseRow(14, "TRUE");
    Enter(15, "0");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMARadius: Invalid button radius"}));
    host.ClearRecord();
    Enter(15, "4");
    Enter(16, "2");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    EXPECT_EQ(button->KOMAName(), "FASTER");
    EXPECT_EQ(button->KOMAControlSubTypeWord(), "PUSHBUTTON_STYLE_1");
    EXPECT_EQ(button->KOMAControlValueWord(), "TRUE");
    EXPECT_EQ(button->KOMARadius(), 4);
    EXPECT_EQ(button->KOMAGroupID(), 2);

    const fs::path first = dir / "first.txt";
    host.fileAnswers = {first.string(), (dir / "first.h").string()};
    TriggerMenu("mnuFileSaveAs");
    const std::string saved = ReadFile(first);
    for (const char* line : {"(B)CONTROL_SUBTYPE=PUSHBUTTON_STYLE_1\r\n", "(S)CONTROL_TEXT=Faster\r\n",
                             "(B)CONTROL_ADD.COLOR_ON=COLOR_GREY2\r\n",
                             "(U)CONTROL_ADD.GROUP_ID=2\r\n",
                             "(BO)CONTROL_ADD.CONTROL_VALUE=TRUE\r\n",
                             "(SH)CONTROL_ADD.RADIUS=4\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    TriggerMenu("mnuFileNew");
    host.ClearRecord();
    host.fileAnswers = {first.string()};
    TriggerMenu("mnuFileOpen");
    ASSERT_EQ(Screen().Count(type::PushButton), 1);
    const fs::path second = dir / "second.txt";
    host.fileAnswers = {second.string(), (dir / "second.h").string()};
    TriggerMenu("mnuFileSaveAs");
    // The group does not come back from the file: it is saved as 0.
    std::string expected = saved;
    const std::string group = "(U)CONTROL_ADD.GROUP_ID=2";
    expected.replace(expected.find(group), group.size(), "(U)CONTROL_ADD.GROUP_ID=0");
    EXPECT_EQ(ReadFile(second), expected);
}

}  // namespace
}  // namespace tolva::testing
