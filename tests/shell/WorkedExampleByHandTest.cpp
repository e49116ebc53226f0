// The worked example drawn by hand in the editor: a form with the mouse, a
// button in it with the mouse, their values typed into the inspector, and
// the design saved with Save As: the files are the golden ones.
#include "document/ObjectTypes.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/form/ctlKOMAForm.h"
#include "shell/ByHandFixture.h"

namespace tolva::testing {
namespace {

TEST_F(ByHand, TheWorkedExampleDrawnAndTypedInTheEditorSavesAsTheGoldenFiles) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ASSERT_EQ(Screen().NumForms(), 1);
    Enter(4, "160");
    Enter(5, "160");
    ctlKOMAForm* form = Screen().FormAt(1);
    EXPECT_EQ(form->KOMAWidth(), 160);
    EXPECT_EQ(form->KOMAHeight(), 160);

    ClickTool(3);
    Drag({60, 110}, {160, 160});
    ASSERT_EQ(Screen().Count(type::Button), 1);
    auto* button = static_cast<ctlKOMAButton*>(Screen().ObjectAt(type::Button, 1));
    Enter(2, "20");
    Enter(3, "40");
    Enter(4, "40");
    Enter(5, "14");
    ChooseRow(6, "BUTTON_STYLE_0");
    Enter(7, "OK");
    Enter(12, "3");
    EXPECT_EQ(button->KOMABoundsX(), 20);
    EXPECT_EQ(button->KOMABoundsY(), 40);
    EXPECT_EQ(button->KOMAWidth(), 40);
    EXPECT_EQ(button->KOMAHeight(), 14);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    window->ShowBitmapWarning(false);
    host.fileAnswers = {(dir / "design.txt").string(), (dir / "design.h").string()};
    TriggerMenu("mnuFileSaveAs");
    EXPECT_EQ(ReadFile(dir / "design.txt"),
              ReadFile(fs::path(TOLVA_TEST_DATA_DIR) / "worked_example.txt"));
    EXPECT_EQ(ReadFile(dir / "design.h"),
              ReadFile(fs::path(TOLVA_TEST_DATA_DIR) / "worked_example.h"));
}

}  // namespace
}  // namespace tolva::testing
