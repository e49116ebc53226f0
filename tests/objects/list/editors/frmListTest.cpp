// The List Editor driven by its controls' names, opened from a list on a
// form with a second list: its title and texts, items typed and added, the
// check mark, the limit and the duplicate rule with their messages, the
// number on display checked at OK, the related lists, and what OK and
// Cancel leave on the list and the form.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "objects/list/ListEditing.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/list/editors/frmList.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "screen/ScreenFixture.h"
#include "shell/ObjectDialogs.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

void AddItem(QWidget& dialog, const QString& text) {
    auto* box = Find<QLineEdit>(dialog, "txtNewItem");
    box->setText(text);
    Click(dialog, "cmdAdd");
}

QStringList Items(QWidget& dialog) {
    QStringList items;
    auto* list = Find<QListWidget>(dialog, "lbItems");
    for (int i = 0; i < list->count(); ++i) items << list->item(i)->text();
    return items;
}

class frmListTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        ListEditing::EditorItemLimit() = ListEditing::kFirstItemLimit;
        RegisterObjectDialogs();
        ASSERT_TRUE(DrawForm());
        ASSERT_TRUE(Draw(type::List, 10, 20, 60, 40));
        ASSERT_TRUE(Draw(type::List, 80, 20, 60, 40));
        list = static_cast<ctlKOMAList*>(Obj(type::List, 1));
        list->SetList({}, -1, 10, 0);
        host.ClearRecord();
    }
    void TearDown() override { ListEditing::EditorItemLimit() = ListEditing::kFirstItemLimit; }
    // Runs the list's editor from its popup menu; `drive` works the dialog
    // once it shows.
    void EditWith(const std::function<void(QDialog&)>& drive) {
        host.popupAnswers = {0};
        AnswerWithRegisteredDialog(host);
        OnNextModal([drive](QWidget* modal) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            ASSERT_NE(dialog, nullptr);
            drive(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        list->MouseDown(kRightButton, 0, 5, 5);
    }
    ctlKOMAList* list = nullptr;
};

TEST(frmListAlone, ItsNameTitleAndControls) {
    ScriptedHost host;
    ListEditing edit(host);
    frmList dialog(edit);
    EXPECT_EQ(dialog.objectName(), "frmList");
    EXPECT_EQ(dialog.windowTitle(), "List Editor");
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"lblNewItem", "Item Name"}, {"lblItems", "List"}, {"lblTopItemNum", "Top Item"},
        {"lblMaxNum", "Max Num on Display"}, {"lblLists", "Related Lists"}};
    for (const auto& [name, text] : labels) {
        auto* label = Find<QLabel>(dialog, name);
        ASSERT_NE(label, nullptr) << name;
        EXPECT_EQ(label->text(), text);
    }
    const std::vector<std::pair<const char*, const char*>> buttons = {
        {"cmdAdd", "Add"}, {"cmdRemove", "Remove"}, {"cmdRemoveAll", "Remove All"},
        {"cmdMoveUp", "Move Up"}, {"cmdMoveDown", "Move Down"}, {"cmdSort", "Sort Alphabetically"},
        {"cmdOK", "OK"}, {"cmdCancel", "Cancel"}};
    for (const auto& [name, text] : buttons) {
        auto* button = Find<QPushButton>(dialog, name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_EQ(button->text(), text);
    }
    EXPECT_NE(Find<QLineEdit>(dialog, "txtNewItem"), nullptr);
    EXPECT_NE(Find<QListWidget>(dialog, "lbItems"), nullptr);
    EXPECT_NE(Find<QListWidget>(dialog, "lbLists"), nullptr);
    EXPECT_EQ(Find<QComboBox>(dialog, "cmbTopItemNum")->currentText(), "0");
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtMaxNum")->text(), "10");
}

TEST_F(frmListTest, OkWritesItemsSelectionTopItemNumberAndLinksBack) {
    QStringList relatedShown;
    EditWith([&](QDialog& dialog) {
        for (const char* item : {"Pear", "Apple", "Fig"}) AddItem(dialog, item);
        Click(dialog, "cmdSort");
        EXPECT_EQ(Items(dialog), (QStringList{"Apple", "Fig", "Pear"}));
        auto* items = Find<QListWidget>(dialog, "lbItems");
        items->item(2)->setCheckState(Qt::Checked);
        items->item(1)->setCheckState(Qt::Checked);
        EXPECT_EQ(items->item(2)->checkState(), Qt::Unchecked);
        items->setCurrentRow(1);
        Click(dialog, "cmdMoveUp");
        EXPECT_EQ(Items(dialog), (QStringList{"Fig", "Apple", "Pear"}));
        Find<QComboBox>(dialog, "cmbTopItemNum")->setCurrentIndex(1);
        auto* lists = Find<QListWidget>(dialog, "lbLists");
        for (int i = 0; i < lists->count(); ++i) relatedShown << lists->item(i)->text();
        lists->item(0)->setCheckState(Qt::Checked);
        Find<QLineEdit>(dialog, "txtMaxNum")->setText("4");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(host.dialogs, (Lines{"frmList"}));
    EXPECT_EQ(relatedShown, (QStringList{"LIST_2"}));
    EXPECT_EQ(list->Items(), (Lines{"Fig", "Apple", "Pear"}));
    EXPECT_EQ(list->KOMASelectedItem(), 0);
    EXPECT_EQ(list->KOMATopItemNum(), 1);
    EXPECT_EQ(list->KOMANumItemsDisplayed(), 4);
    std::vector<int> ids;
    Form(1)->GetRelatedListIDs("LIST_1", ids);
    EXPECT_EQ(ids, (std::vector<int>{Obj(type::List, 2)->KOMAObjectID()}));
    LineList lines;
    bool ok = false;
    list->ReturnResourceFileText(lines, ok);
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(S)LIST_ITEMS1=Fig"), lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(U)LIST_NUM_RELATED_LIST_OBJECT=1"), lines.end());
}

TEST_F(frmListTest, TheEleventhItemAndADuplicateAreRefusedWithTheirMessages) {
    QStringList items;
    EditWith([&](QDialog& dialog) {
        AddItem(dialog, "A");
        AddItem(dialog, "A ");
        for (int i = 1; i < 10; ++i) AddItem(dialog, QString("Item %1").arg(i));
        AddItem(dialog, "Eleven");
        items = Items(dialog);
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(items.size(), 10);
    EXPECT_EQ(host.MessageLines(), (Lines{"List Editor: Duplicate items not allowed",
                                          "Limit reached: Maximum number of items reached"}));
    EXPECT_EQ(list->KOMATotalNumItems(), 10);
}

TEST_F(frmListTest, ANumberOnDisplayBeyond65534IsRefusedAndTheDialogStays) {
    QString afterRefusal;
    bool stayed = false;
    EditWith([&](QDialog& dialog) {
        auto* box = Find<QLineEdit>(dialog, "txtMaxNum");
        box->setText("65535");
        Click(dialog, "cmdOK");
        stayed = dialog.isVisible();
        afterRefusal = box->text();
        box->setText("65534");
        Click(dialog, "cmdOK");
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(afterRefusal, "10");
    EXPECT_EQ(host.MessageLines(), (Lines{"Invalid value: You must enter a number between 0 and 65534"}));
    EXPECT_EQ(list->KOMANumItemsDisplayed(), 65534);
}

TEST_F(frmListTest, WithZeroOnDisplayNoItemCanBeAddedOnTheNextOpening) {
    EditWith([&](QDialog& dialog) {
        Find<QLineEdit>(dialog, "txtMaxNum")->setText("0");
        Click(dialog, "cmdOK");
    });
    QStringList items;
    EditWith([&](QDialog& dialog) {
        AddItem(dialog, "A");
        items = Items(dialog);
    });
    EXPECT_TRUE(items.isEmpty());
    EXPECT_EQ(host.MessageLines(), (Lines{"Limit reached: Maximum number of items reached"}));
}

TEST_F(frmListTest, RemoveRemoveAllAndCancelChangeNothingOnTheList) {
    list->SetList({"a", "b", "c"}, 2, 10, 3);
    QStringList afterRemove;
    QStringList topChoices;
    EditWith([&](QDialog& dialog) {
        EXPECT_EQ(Find<QListWidget>(dialog, "lbItems")->item(2)->checkState(), Qt::Checked);
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbTopItemNum")->currentText(), "3");
        Find<QListWidget>(dialog, "lbItems")->setCurrentRow(0);
        Click(dialog, "cmdRemove");
        afterRemove = Items(dialog);
        Click(dialog, "cmdRemoveAll");
        auto* top = Find<QComboBox>(dialog, "cmbTopItemNum");
        for (int i = 0; i < top->count(); ++i) topChoices << top->itemText(i);
        Click(dialog, "cmdCancel");
    });
    EXPECT_EQ(afterRemove, (QStringList{"b", "c"}));
    EXPECT_EQ(topChoices, (QStringList{"0"}));
    EXPECT_EQ(list->Items(), (Lines{"a", "b", "c"}));
    EXPECT_EQ(list->KOMASelectedItem(), 2);
}

}  // namespace
}  // namespace tolva::testing
