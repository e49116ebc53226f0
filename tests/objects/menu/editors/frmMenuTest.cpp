// The Menu Editor driven by its controls' names, opened on the form on show
// of a screen with a button on another form: its caption and texts, the
// controls out of use with no menu, New, Copy To New, Rename and Delete with
// the name test's messages, menus chosen in cmbMenu keeping their items,
// the limit of twelve items, the preview following the items, and what OK
// and Cancel leave in the saved file.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "objects/menu/MenuEditing.h"
#include "objects/menu/editors/frmMenu.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "resfile/ResourceFiles.h"
#include "screen/ScreenFixture.h"
#include "shell/ObjectDialogs.h"
#include "support/FileBytes.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

const char* const kIllegal =
    "Invalid Name: The name you have entered contains illegal characters or starts with a "
    "number.  Names must start with a letter or underscore, and contain only letters, numbers "
    "and underscores";
const char* const kTaken = "Invalid Name: This name is being used by another object.  Please choose another";

void Type(QWidget& dialog, const char* box, const QString& text) {
    auto* edit = Find<QLineEdit>(dialog, box);
    ASSERT_NE(edit, nullptr) << box;
    edit->setText(text);
}

void AddItem(QWidget& dialog, const QString& text) {
    Type(dialog, "txtNewItem", text);
    Click(dialog, "cmdAdd");
}

void ChooseMenu(QWidget& dialog, int index) {
    auto* combo = Find<QComboBox>(dialog, "cmbMenu");
    combo->setCurrentIndex(index);
    emit combo->activated(index);
}

QStringList Items(QWidget& dialog) {
    QStringList items;
    auto* list = Find<QListWidget>(dialog, "lbItems");
    for (int i = 0; i < list->count(); ++i) items << list->item(i)->text();
    return items;
}

QStringList Menus(QWidget& dialog) {
    QStringList names;
    auto* combo = Find<QComboBox>(dialog, "cmbMenu");
    for (int i = 0; i < combo->count(); ++i) names << combo->itemText(i);
    return names;
}

const char* const kMenuControls[] = {"cmdCopy",   "cmdDelete",    "txtNewItem", "lbItems",
                                     "cmdAdd",    "cmdRemove",    "cmdRemoveAll", "cmdSort",
                                     "cmdMoveUp", "cmdMoveDown"};

class frmMenuTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        RegisterObjectDialogs();
        // A button on the first form; the menus are edited on the second.
        ASSERT_TRUE(DrawForm());
        ASSERT_TRUE(Draw(type::Button, 10, 20, 60, 20));
        ASSERT_TRUE(DrawForm());
        host.ClearRecord();
        file = fs::path(::testing::TempDir()) /
               (std::string("tolva_frmMenu_") +
                ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt");
    }
    void TearDown() override { fs::remove(file); }

    // Opens the editor as the toolbar's "Menu" does; `drive` works it once
    // it shows.
    void EditWith(const std::function<void(QDialog&)>& drive) {
        AnswerWithRegisteredDialog(host);
        OnNextModal([drive](QWidget* modal) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            ASSERT_NE(dialog, nullptr);
            drive(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        screen.ShowMenuEditor();
    }
    std::string Saved() {
        SaveResourceFile(screen, file.string());
        return ReadFile(file);
    }
    fs::path file;
};

TEST(frmMenuAlone, ItsNameCaptionAndControls) {
    ScriptedHost host;
    MenuEditing edit(host, nullptr);
    edit.Caption("FORM_MAIN");
    frmMenu dialog(edit);
    EXPECT_EQ(dialog.objectName(), "frmMenu");
    EXPECT_EQ(dialog.windowTitle(), "Menu Editor - FORM_MAIN");
    const std::vector<std::pair<const char*, const char*>> buttons = {
        {"cmdNew", "New"},          {"cmdCopy", "Copy To New"}, {"cmdRename", "Rename"},
        {"cmdDelete", "Delete"},    {"cmdAdd", "Add"},          {"cmdRemove", "Remove"},
        {"cmdRemoveAll", "Remove All"}, {"cmdMoveUp", "Move Up"}, {"cmdMoveDown", "Move Down"},
        {"cmdSort", "Sort Alphabetically"}, {"cmdOK", "OK"},     {"cmdCancel", "Cancel"}};
    for (const auto& [name, text] : buttons) {
        auto* button = Find<QPushButton>(dialog, name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_EQ(button->text(), text);
    }
    EXPECT_NE(Find<QComboBox>(dialog, "cmbMenu"), nullptr);
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtNewName")->text(), "MENU_");
    EXPECT_NE(Find<QLineEdit>(dialog, "txtNewItem"), nullptr);
    EXPECT_NE(Find<QListWidget>(dialog, "lbItems"), nullptr);
    auto* frame = Find<QGroupBox>(dialog, "framrPreview");
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->title(), "Preview");
    auto* form = frame->findChild<QWidget*>("imgForm");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->size(), QSize(320, 320));
    EXPECT_NE(form->findChild<QWidget*>("ctlSampleMenu"), nullptr);
    // A menu has no selected item and no top item to choose.
    EXPECT_FALSE(Find<QComboBox>(dialog, "cmbTopItemNum")->isVisibleTo(&dialog));
}

TEST_F(frmMenuTest, AFormWithNoMenuOpensWithTheItemControlsOutOfUse) {
    std::map<std::string, bool> enabled;
    bool newEnabled = false, renameEnabled = false, sampleShown = true;
    EditWith([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Menu Editor - FORM_2");
        for (const char* name : kMenuControls) enabled[name] = Find<QWidget>(dialog, name)->isEnabled();
        newEnabled = Find<QWidget>(dialog, "cmdNew")->isEnabled();
        renameEnabled = Find<QWidget>(dialog, "cmdRename")->isEnabled();
        sampleShown = Find<QWidget>(dialog, "ctlSampleMenu")->isVisibleTo(&dialog);
        // Rename with no menu does nothing.
        Type(dialog, "txtNewName", "MENU_X");
        Click(dialog, "cmdRename");
        EXPECT_TRUE(Menus(dialog).isEmpty());
    });
    for (const char* name : kMenuControls) EXPECT_FALSE(enabled[name]) << name;
    EXPECT_TRUE(newEnabled);
    EXPECT_TRUE(renameEnabled);
    EXPECT_FALSE(sampleShown);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(frmMenuTest, NewMenusWithItemsGoToTheFormAndTheFileOnOk) {
    QString nameAfterNew;
    std::map<std::string, bool> enabled;
    QSize oneItem, twoItems;
    EditWith([&](QDialog& dialog) {
        Type(dialog, "txtNewName", "MENU_FILE");
        Click(dialog, "cmdNew");
        nameAfterNew = Find<QLineEdit>(dialog, "txtNewName")->text();
        for (const char* name : kMenuControls) enabled[name] = Find<QWidget>(dialog, name)->isEnabled();
        AddItem(dialog, "Open");
        oneItem = Find<QWidget>(dialog, "ctlSampleMenu")->size();
        AddItem(dialog, "Save As");
        twoItems = Find<QWidget>(dialog, "ctlSampleMenu")->size();
        Type(dialog, "txtNewName", "MENU_EDIT");
        Click(dialog, "cmdNew");
        AddItem(dialog, "Cut");
        EXPECT_EQ(Menus(dialog), (QStringList{"MENU_FILE", "MENU_EDIT"}));
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbMenu")->currentText(), "MENU_EDIT");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(host.dialogs, (Lines{"frmMenu"}));
    EXPECT_EQ(nameAfterNew, "MENU_");
    for (const char* name : kMenuControls) EXPECT_TRUE(enabled[name]) << name;
    EXPECT_GT(twoItems.height(), oneItem.height());
    EXPECT_GT(twoItems.width(), oneItem.width());
    EXPECT_TRUE(host.messages.empty());
    const std::string saved = Saved();
    for (const char* line : {"#MENU\r\nNAME=MENU_FILE\r\n", "(U)MENU_NUM_ITEMS=2\r\n",
                             "(S)MENU_ITEMS1=Open\r\n(S)MENU_ITEMS2=Save As\r\n",
                             "NAME=MENU_EDIT\r\n", "(S)MENU_ITEMS1=Cut\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    EXPECT_EQ(Form(1)->GetNumMenus(), 0);
    EXPECT_EQ(Form(2)->GetNumMenus(), 2);
}

TEST_F(frmMenuTest, TheNameTestRefusesWithItsMessages) {
    Form(2)->SetMenus({{"Open"}}, {"MENU_"});
    QStringList menus;
    EditWith([&](QDialog& dialog) {
        // "MENU_" alone is legal, but in use here.
        Click(dialog, "cmdNew");
        Type(dialog, "txtNewName", "2MENU");
        Click(dialog, "cmdNew");
        Type(dialog, "txtNewName", "MENU ONE");
        Click(dialog, "cmdCopy");
        // A button of the other form bears it.
        Type(dialog, "txtNewName", "BUTTON_1");
        Click(dialog, "cmdRename");
        Type(dialog, "txtNewName", "FORM_1");
        Click(dialog, "cmdNew");
        // An empty name does nothing.
        Type(dialog, "txtNewName", "");
        Click(dialog, "cmdNew");
        menus = Menus(dialog);
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(host.MessageLines(), (Lines{kTaken, kIllegal, kIllegal, kTaken, kTaken}));
    EXPECT_EQ(menus, (QStringList{"MENU_"}));
}

TEST_F(frmMenuTest, CopyRenameAndChoosingKeepEachMenusItems) {
    Form(2)->SetMenus({{"Open", "Close"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    QStringList firstShown, copied, backOnFile;
    EditWith([&](QDialog& dialog) {
        firstShown = Items(dialog);
        AddItem(dialog, "Print");
        Type(dialog, "txtNewName", "MENU_FILE2");
        Click(dialog, "cmdCopy");
        copied = Items(dialog);
        Type(dialog, "txtNewName", "MENU_MORE");
        Click(dialog, "cmdRename");
        ChooseMenu(dialog, 1);
        Click(dialog, "cmdRemoveAll");
        ChooseMenu(dialog, 0);
        backOnFile = Items(dialog);
        EXPECT_EQ(Menus(dialog), (QStringList{"MENU_FILE", "MENU_EDIT", "MENU_MORE"}));
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(firstShown, (QStringList{"Open", "Close"}));
    EXPECT_EQ(copied, (QStringList{"Open", "Close", "Print"}));
    EXPECT_EQ(backOnFile, (QStringList{"Open", "Close", "Print"}));
    const std::string saved = Saved();
    EXPECT_NE(saved.find("NAME=MENU_EDIT\r\n"), std::string::npos);
    EXPECT_NE(saved.find("NAME=MENU_MORE\r\n"), std::string::npos);
    EXPECT_EQ(saved.find("MENU_FILE2"), std::string::npos);
    std::vector<std::vector<std::string>> items;
    std::vector<std::string> names;
    std::vector<int> ids;
    Form(2)->GetMenus(items, names, ids);
    EXPECT_EQ(items, (std::vector<Lines>{{"Open", "Close", "Print"}, {}, {"Open", "Close", "Print"}}));
}

TEST_F(frmMenuTest, TheThirteenthItemIsRefused) {
    QStringList items;
    EditWith([&](QDialog& dialog) {
        Click(dialog, "cmdNew");
        for (int i = 1; i <= 13; ++i) AddItem(dialog, QString("Item %1").arg(i));
        AddItem(dialog, "Item 1");
        items = Items(dialog);
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(items.size(), 12);
    EXPECT_EQ(host.MessageLines(), (Lines{"Limit reached: Maximum number of items reached",
                                          "Limit reached: Maximum number of items reached"}));
    host.ClearRecord();
    EditWith([&](QDialog& dialog) {
        Click(dialog, "cmdRemove");  // nothing highlighted: nothing goes
        Find<QListWidget>(dialog, "lbItems")->setCurrentRow(0);
        Click(dialog, "cmdRemove");
        AddItem(dialog, "Item 2");
        AddItem(dialog, "Item 13");
        items = Items(dialog);
    });
    EXPECT_EQ(items.size(), 12);
    EXPECT_EQ(items.back(), "Item 13");
    EXPECT_EQ(host.MessageLines(), (Lines{"List Editor: Duplicate items not allowed"}));
}

TEST_F(frmMenuTest, DeletingAllMenusAndOkLeavesNoneWhileCancelKeepsThem) {
    Form(2)->SetMenus({{"Open"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    const std::string before = Saved();
    EditWith([&](QDialog& dialog) {
        ChooseMenu(dialog, 1);
        Click(dialog, "cmdDelete");
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbMenu")->currentText(), "MENU_FILE");
        Click(dialog, "cmdDelete");
        EXPECT_TRUE(Menus(dialog).isEmpty());
        EXPECT_FALSE(Find<QWidget>(dialog, "cmdDelete")->isEnabled());
        Click(dialog, "cmdCancel");
    });
    EXPECT_EQ(Saved(), before);
    EXPECT_EQ(Form(2)->GetNumMenus(), 2);
    EditWith([&](QDialog& dialog) {
        Click(dialog, "cmdDelete");
        // The first menu has none before it: none is shown.
        EXPECT_EQ(Menus(dialog), (QStringList{"MENU_EDIT"}));
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbMenu")->currentIndex(), -1);
        ChooseMenu(dialog, 0);
        Click(dialog, "cmdDelete");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(Form(2)->GetNumMenus(), 0);
    EXPECT_EQ(Saved().find("#MENU"), std::string::npos);
}

}  // namespace
}  // namespace tolva::testing
