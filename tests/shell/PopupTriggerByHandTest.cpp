// A popup trigger worked by hand in the editor: drawn with the mouse from
// its toolbar button, its rows typed and chosen (a refused radius among
// them), its items typed in the Popup Trigger Editor opened from the "Edit
// List..." row, then saved, opened and saved again.
#include <QListWidget>

#include "document/ObjectTypes.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"

namespace tolva::testing {
namespace {

constexpr int kPopupTriggerTool = 9;

TEST_F(ByHand, APopupTriggerDrawnFilledSavedOpenedAndSavedAgain) {
    RegisterObjectDialogs();
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kPopupTriggerTool);
    Drag({60, 110}, {260, 150});
    ASSERT_EQ(Screen().Count(type::PopupTrigger), 1);
    auto* trigger = static_cast<ctlKOMAPopupTrigger*>(Screen().ObjectAt(type::PopupTrigger, 1));

    Enter(1, "FRUIT");
    ChooseRow(7, "POPUP_TRIGGER_STYLE_1");
    Enter(11, "0");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMARadius: Invalid button radius"}));
    host.ClearRecord();
    Enter(11, "4");

    AnswerWithRegisteredDialog(host);
    OnNextModal([](QWidget* dialog) {
        auto* newItem = dialog->findChild<QLineEdit*>("txtNewItem");
        for (const char* item : {"Apple", "Fig", "Pear"}) {
            newItem->setText(item);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdAdd"), Qt::LeftButton);
        }
        auto* items = dialog->findChild<QListWidget*>("lbItems");
        ASSERT_EQ(items->count(), 3);
        items->item(2)->setCheckState(Qt::Checked);
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    PressRow(12);
    EXPECT_EQ(trigger->Items(), (std::vector<std::string>{"Apple", "Fig", "Pear"}));
    EXPECT_EQ(trigger->KOMAControlText(), "Pear");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* line : {"NAME=FRUIT\r\n", "(B)CONTROL_STYLE=POPUP_TRIGGER\r\n",
                             "(B)CONTROL_SUBTYPE=POPUP_TRIGGER_STYLE_1\r\n", "(S)CONTROL_TEXT=Pear\r\n",
                             "(U)CONTROL_ADD.RADIUS=4\r\n", "(U)CONTROL_ADD.NUM_OF_OBJECTS=3\r\n",
                             "(SH)CONTROL_ADD.SELECTED_ITEM=2\r\n", "(S)CONTROL_ADD.ITEM0=Apple\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::PopupTrigger), 1);
    EXPECT_EQ(SaveDesignAs(dir, "second"), saved);
    EXPECT_EQ(ReadFile(dir / "second.h"), ReadFile(dir / "first.h"));
}

}  // namespace
}  // namespace tolva::testing
