// The Popup Trigger Editor driven by its controls' names, opened from a
// popup trigger's popup menu through the registry: its title and texts,
// items added, the duplicate refused under the dialog's title, the tick and
// the top item handed back at OK, and Cancel changing nothing.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "objects/popuptrigger/PopupTriggerEditing.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"
#include "objects/popuptrigger/editors/frmPopupTrigger.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ObjectDialogs.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

void AddItem(QWidget& dialog, const char* text) {
    Find<QLineEdit>(dialog, "txtNewItem")->setText(text);
    Click(dialog, "cmdAdd");
}

class frmPopupTriggerTest : public OwnedObjectFixture<ctlKOMAPopupTrigger> {
protected:
    void SetUp() override {
        OwnedObjectFixture::SetUp();
        RegisterObjectDialogs();
    }
    void EditWith(const std::function<void(QDialog&)>& drive) {
        owner.host.popupAnswers = {0};
        AnswerWithRegisteredDialog(owner.host);
        OnNextModal([drive](QWidget* modal) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            ASSERT_NE(dialog, nullptr);
            drive(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        object.MouseDown(kRightButton, 0, 5, 5);
    }
};

TEST(frmPopupTriggerAlone, ItsNameTitleAndControls) {
    ScriptedHost host;
    PopupTriggerEditing edit(host);
    frmPopupTrigger dialog(edit);
    EXPECT_EQ(dialog.objectName(), "frmPopupTrigger");
    EXPECT_EQ(dialog.windowTitle(), "Popup Trigger Editor");
    for (const auto& [name, text] : std::vector<std::pair<const char*, const char*>>{
             {"lblNewItem", "Item Name"}, {"lblItems", "List"}, {"lblTopItemNum", "Top Item"}}) {
        auto* label = Find<QLabel>(dialog, name);
        ASSERT_NE(label, nullptr) << name;
        EXPECT_EQ(label->text(), text);
    }
    for (const auto& [name, text] : std::vector<std::pair<const char*, const char*>>{
             {"cmdRemove", "Remove"}, {"cmdRemoveAll", "Remove All"}, {"cmdMoveUp", "Move Up"},
             {"cmdMoveDown", "Move Down"}, {"cmdSort", "Sort Alphabetically"}, {"cmdCancel", "Cancel"}}) {
        auto* button = Find<QPushButton>(dialog, name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_EQ(button->text(), text);
    }
    EXPECT_NE(Find<QPushButton>(dialog, "cmdAdd"), nullptr);
    EXPECT_NE(Find<QPushButton>(dialog, "cmdOK"), nullptr);
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtMaxNum"), nullptr);
    EXPECT_EQ(Find<QComboBox>(dialog, "cmbTopItemNum")->currentText(), "0");
}

TEST_F(frmPopupTriggerTest, OkHandsTheItemsTheTickAndTheTopItemBack) {
    EditWith([](QDialog& dialog) {
        AddItem(dialog, "Pear");
        AddItem(dialog, "Apple");
        AddItem(dialog, "Fig");
        AddItem(dialog, "Fig");
        Click(dialog, "cmdSort");
        Find<QListWidget>(dialog, "lbItems")->item(1)->setCheckState(Qt::Checked);
        Find<QComboBox>(dialog, "cmbTopItemNum")->setCurrentIndex(2);
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(owner.host.dialogs, (Lines{"frmPopupTrigger"}));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Popup Trigger Editor: Duplicate items not allowed"}));
    EXPECT_EQ(object.Items(), (Lines{"Apple", "Fig", "Pear"}));
    EXPECT_EQ(object.KOMASelectedItem(), 1);
    EXPECT_EQ(object.KOMATopItemNum(), 2);
    EXPECT_EQ(object.KOMAControlText(), "Fig");
}

TEST_F(frmPopupTriggerTest, CancelChangesNothing) {
    object.SetList({"kept", "too"}, 1, 0);
    QStringList shown;
    EditWith([&](QDialog& dialog) {
        auto* items = Find<QListWidget>(dialog, "lbItems");
        for (int i = 0; i < items->count(); ++i) shown << items->item(i)->text();
        EXPECT_EQ(items->item(1)->checkState(), Qt::Checked);
        Click(dialog, "cmdRemoveAll");
        Click(dialog, "cmdCancel");
    });
    EXPECT_EQ(shown, (QStringList{"kept", "too"}));
    EXPECT_EQ(object.Items(), (Lines{"kept", "too"}));
    EXPECT_EQ(object.KOMAControlText(), "too");
}

}  // namespace
}  // namespace tolva::testing
