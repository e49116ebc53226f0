// The Checkbox Editor driven by its controls' names: its title and texts,
// the chosen check box and the others ticked where related, ticks kept on
// both sides, and OK and Cancel as the form sees them when the editor runs
// from the form through the desktop's registry of dialogs.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "objects/checkbox/CheckboxRelations.h"
#include "objects/checkbox/editors/frmCheckbox.h"
#include "objects/form/ctlKOMAForm.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ObjectDialogs.h"
#include "support/RecordingOwner.h"

namespace tolva::testing {
namespace {

using Flags = std::vector<bool>;

CheckboxRelations::Table ThreeUnrelated() {
    return {{"CHECKBOX_A", {false, false, false}},
            {"CHECKBOX_B", {false, false, false}},
            {"CHECKBOX_C", {false, false, false}}};
}

class frmCheckboxTest : public ::testing::Test {
protected:
    CheckboxRelations relations;

    template <typename T>
    static T* Find(QWidget& dialog, const char* name) {
        return dialog.findChild<T*>(QString::fromLatin1(name));
    }
    static QStringList ComboItems(QWidget& dialog) {
        QStringList items;
        auto* combo = Find<QComboBox>(dialog, "cmbCheckbox");
        for (int i = 0; i < combo->count(); ++i) items << combo->itemText(i);
        return items;
    }
    static QStringList ListItems(QWidget& dialog) {
        QStringList items;
        auto* list = Find<QListWidget>(dialog, "lbCheckboxes");
        for (int i = 0; i < list->count(); ++i) items << list->item(i)->text();
        return items;
    }
    static QList<bool> Ticks(QWidget& dialog) {
        QList<bool> ticks;
        auto* list = Find<QListWidget>(dialog, "lbCheckboxes");
        for (int i = 0; i < list->count(); ++i) ticks << (list->item(i)->checkState() == Qt::Checked);
        return ticks;
    }
    // The user picks a check box in the list by keyboard and presses space
    // on an item of the check list.
    static void Choose(QWidget& dialog, int index) {
        Find<QComboBox>(dialog, "cmbCheckbox")->setCurrentIndex(index);
    }
    static void ToggleItem(QWidget& dialog, int row) {
        auto* list = Find<QListWidget>(dialog, "lbCheckboxes");
        list->setFocus();
        list->setCurrentRow(row);
        QTest::keyClick(list, Qt::Key_Space);
    }
};

TEST_F(frmCheckboxTest, ItsNameTitleAndControls) {
    relations.SetRelatedCheckboxes(ThreeUnrelated());
    frmCheckbox dialog(relations);
    EXPECT_EQ(dialog.objectName(), "frmCheckbox");
    EXPECT_EQ(dialog.windowTitle(), "Checkbox Editor");
    EXPECT_TRUE(dialog.isModal());
    ASSERT_NE(Find<QComboBox>(dialog, "cmbCheckbox"), nullptr);
    ASSERT_NE(Find<QListWidget>(dialog, "lbCheckboxes"), nullptr);
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdOK")->text(), "OK");
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdCancel")->text(), "Cancel");
    QStringList labels;
    for (QLabel* label : dialog.findChildren<QLabel*>()) labels << label->text();
    EXPECT_TRUE(labels.contains("Checkbox"));
    EXPECT_TRUE(labels.contains("Related Checkboxes"));
}

TEST_F(frmCheckboxTest, TheFirstIsChosenAndTheOthersOfferedUnticked) {
    relations.SetRelatedCheckboxes(ThreeUnrelated());
    frmCheckbox dialog(relations);
    EXPECT_EQ(ComboItems(dialog), (QStringList{"CHECKBOX_A", "CHECKBOX_B", "CHECKBOX_C"}));
    EXPECT_EQ(Find<QComboBox>(dialog, "cmbCheckbox")->currentText(), "CHECKBOX_A");
    EXPECT_EQ(ListItems(dialog), (QStringList{"CHECKBOX_B", "CHECKBOX_C"}));
    EXPECT_EQ(Ticks(dialog), (QList<bool>{false, false}));
}

TEST_F(frmCheckboxTest, TickingBUnderAShowsATickedUnderB) {
    relations.SetRelatedCheckboxes(ThreeUnrelated());
    frmCheckbox dialog(relations);
    dialog.show();
    ToggleItem(dialog, 0);
    EXPECT_EQ(Ticks(dialog), (QList<bool>{true, false}));
    Choose(dialog, 1);
    EXPECT_EQ(ListItems(dialog), (QStringList{"CHECKBOX_A", "CHECKBOX_C"}));
    EXPECT_EQ(Ticks(dialog), (QList<bool>{true, false}));
    Choose(dialog, 2);
    EXPECT_EQ(Ticks(dialog), (QList<bool>{false, false}));
    // Unticked from the other side, the relation goes on both.
    Choose(dialog, 1);
    ToggleItem(dialog, 0);
    Choose(dialog, 0);
    EXPECT_EQ(Ticks(dialog), (QList<bool>{false, false}));
}

TEST_F(frmCheckboxTest, WithOneCheckboxTheCheckListStaysEmpty) {
    relations.SetRelatedCheckboxes({{"CHECKBOX_1", {false}}});
    frmCheckbox dialog(relations);
    EXPECT_EQ(ComboItems(dialog), (QStringList{"CHECKBOX_1"}));
    EXPECT_TRUE(ListItems(dialog).isEmpty());
}

TEST_F(frmCheckboxTest, WithNoCheckboxBothListsAreEmpty) {
    relations.SetRelatedCheckboxes({});
    frmCheckbox dialog(relations);
    EXPECT_TRUE(ComboItems(dialog).isEmpty());
    EXPECT_TRUE(ListItems(dialog).isEmpty());
    EXPECT_EQ(Find<QComboBox>(dialog, "cmbCheckbox")->currentIndex(), -1);
}

TEST_F(frmCheckboxTest, ANewTableReplacesTheLists) {
    relations.SetRelatedCheckboxes({});
    frmCheckbox dialog(relations);
    dialog.SetRelatedCheckboxes({{"ONE", {false, true}}, {"TWO", {true, false}}});
    EXPECT_EQ(ComboItems(dialog), (QStringList{"ONE", "TWO"}));
    EXPECT_EQ(ListItems(dialog), (QStringList{"TWO"}));
    EXPECT_EQ(Ticks(dialog), (QList<bool>{true}));
}

// The form on a recording owner whose dialogs are the registered ones,
// driven once the editor is up.
class frmCheckboxFromTheForm : public frmCheckboxTest {
protected:
    RecordingOwner owner;
    ctlKOMAForm form;

    void SetUp() override {
        RegisterObjectDialogs();
        form.SetOwner(&owner);
        form.SetRelatedCheckboxes(ThreeUnrelated());
    }

    // Runs the form's editor; `drive` works the dialog once it shows.
    void EditWith(const std::function<void(QDialog&)>& drive) {
        AnswerWithRegisteredDialog(owner.host);
        OnNextModal([drive](QWidget* modal) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), "frmCheckbox");
            drive(*dialog);
        });
        form.EditRelatedCheckboxes();
    }
};

TEST_F(frmCheckboxFromTheForm, OKWritesTheRelationsBackToTheForm) {
    EditWith([](QDialog& dialog) {
        ToggleItem(dialog, 1);  // C under A
        QTest::mouseClick(Find<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
    });
    const auto& table = form.RelatedCheckboxes();
    EXPECT_EQ(table[0].linked, (Flags{false, false, true}));
    EXPECT_EQ(table[1].linked, (Flags{false, false, false}));
    EXPECT_EQ(table[2].linked, (Flags{true, false, false}));
}

TEST_F(frmCheckboxFromTheForm, CancelChangesNothing) {
    EditWith([](QDialog& dialog) {
        ToggleItem(dialog, 0);
        Choose(dialog, 2);
        ToggleItem(dialog, 1);
        QTest::mouseClick(Find<QPushButton>(dialog, "cmdCancel"), Qt::LeftButton);
    });
    for (const auto& row : form.RelatedCheckboxes()) EXPECT_EQ(row.linked, (Flags{false, false, false}));
}

TEST_F(frmCheckboxFromTheForm, TheEditorOpensOnWhatTheFormHolds) {
    form.SetRelatedCheckboxes({{"CHECKBOX_A", {false, true, false}},
                               {"CHECKBOX_B", {true, false, false}},
                               {"CHECKBOX_C", {false, false, false}}});
    QStringList items;
    QList<bool> ticks;
    EditWith([&](QDialog& dialog) {
        Choose(dialog, 1);
        items = ListItems(dialog);
        ticks = Ticks(dialog);
        dialog.reject();
    });
    EXPECT_EQ(items, (QStringList{"CHECKBOX_A", "CHECKBOX_C"}));
    EXPECT_EQ(ticks, (QList<bool>{true, false}));
}

}  // namespace
}  // namespace tolva::testing
