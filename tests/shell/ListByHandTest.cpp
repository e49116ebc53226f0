// Two linked lists and a popup trigger worked by hand in the editor: drawn
// with the mouse from the toolbar, rows typed and chosen (a refused height
// among them), the list's items typed in the List Editor opened from its
// "Edit List..." row with the other list ticked, the popup trigger's items in
// its editor opened from its popup menu, then saved, opened and saved
// again.
#include <QListWidget>
#include <functional>

#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/list/ListEditing.h"
#include "objects/list/ctlKOMAList.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"

namespace tolva::testing {
namespace {

constexpr int kListTool = 11;
constexpr int kPopupTriggerTool = 9;

// The next dialog is the registered one, driven by `drive` once it is up.
void NextDialogDrivenBy(ScriptedHost& host, std::function<void(QWidget*)> drive) {
    AnswerWithRegisteredDialog(host);
    OnNextModal(std::move(drive));
}

TEST_F(ByHand, TwoLinkedListsAndAPopupTriggerDrawnFilledSavedOpenedAndSavedAgain) {
    RegisterObjectDialogs();
    ListEditing::EditorItemLimit() = ListEditing::kFirstItemLimit;
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kListTool);
    Drag({200, 60}, {380, 200});
    ClickTool(kListTool);
    Drag({40, 60}, {180, 200});
    ASSERT_EQ(Screen().Count(type::List), 2);
    auto* fruit = static_cast<ctlKOMAList*>(Screen().ObjectAt(type::List, 2));

    Enter(1, "FRUIT");
    Enter(5, "170");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMAHeight: Invalid height value"}));
    host.ClearRecord();
    ChooseRow(6, "CENTRE");
    ChooseRow(7, "LIST_STYLE_2");
    ChooseRow(13, "TRUE");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    NextDialogDrivenBy(host, [](QWidget* dialog) {
        auto* box = dialog->findChild<QLineEdit*>("txtMaxNum");
        ASSERT_NE(box, nullptr);
        box->setText("6");
        auto* newItem = dialog->findChild<QLineEdit*>("txtNewItem");
        for (const char* item : {"Apple", "Fig", "Pear"}) {
            newItem->setText(item);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdAdd"), Qt::LeftButton);
        }
        auto* items = dialog->findChild<QListWidget*>("lbItems");
        auto* lists = dialog->findChild<QListWidget*>("lbLists");
        ASSERT_EQ(items->count(), 3);
        ASSERT_EQ(lists->count(), 1);
        items->item(1)->setCheckState(Qt::Checked);
        lists->item(0)->setCheckState(Qt::Checked);
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    PressRow(15);
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmList"}));
    EXPECT_EQ(fruit->Items(), (std::vector<std::string>{"Apple", "Fig", "Pear"}));
    EXPECT_EQ(fruit->KOMASelectedItem(), 1);
    EXPECT_EQ(fruit->KOMANumItemsDisplayed(), 6);

    // A popup trigger below, its items from the editor of its popup menu.
    ClickTool(kPopupTriggerTool);
    Drag({40, 260}, {240, 300});
    ASSERT_EQ(Screen().Count(type::PopupTrigger), 1);
    NextDialogDrivenBy(host, [](QWidget* dialog) {
        auto* newItem = dialog->findChild<QLineEdit*>("txtNewItem");
        for (const char* item : {"Small", "Large"}) {
            newItem->setText(item);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdAdd"), Qt::LeftButton);
        }
        auto* items = dialog->findChild<QListWidget*>("lbItems");
        ASSERT_EQ(items->count(), 2);
        items->item(0)->setCheckState(Qt::Checked);
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    host.popupAnswers = {0};
    QTest::mouseClick(Canvas(), Qt::RightButton, {}, {120, 280});
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmList", "frmPopupTrigger"}));

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* line : {"NAME=FRUIT\r\n", "(U)LIST_NUM_RELATED_LIST_OBJECT=1\r\n",
                             "(U)LIST_TOTAL_NUM_ITEMS=3\r\n", "(U)LIST_NUM_ITEMS_ON_DISPLAY=6\r\n",
                             "(B)LIST_TEXTMENT=CENTRE\r\n", "(SH)LIST_SELECTED_ITEM=1\r\n",
                             "(B)LIST_STYLE=LIST_STYLE_2\r\n", "(S)LIST_ITEMS3=Pear\r\n",
                             "(BO)LIST_ATTR.LIST_SET_SCROLL=TRUE\r\n", "(S)CONTROL_TEXT=Small\r\n",
                             "(S)CONTROL_ADD.ITEM1=Large\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::List), 2);
    ASSERT_EQ(Screen().Count(type::PopupTrigger), 1);
    // The links do not come back from the file: the lists are embedded
    // unlinked, and the second save says so.
    std::string expected = saved;
    const auto at = expected.find("(U)LIST_NUM_RELATED_LIST_OBJECT=1\r\n~F4\r\n");
    ASSERT_NE(at, std::string::npos);
    const auto end = expected.find("~F5\r\n", at);
    expected.replace(at, end - at, "(U)LIST_NUM_RELATED_LIST_OBJECT=0\r\n~F4\r\n");
    EXPECT_EQ(SaveDesignAs(dir, "second"), expected);
    EXPECT_EQ(ReadFile(dir / "second.h"), ReadFile(dir / "first.h"));
}

}  // namespace
}  // namespace tolva::testing
