// Menus made by hand: two forms drawn with the mouse, each given two menus
// in the Menu Editor opened from the toolbar's "Menu" button (a name of the
// other form refused on the way), then saved, opened and saved again.
#include <QListWidget>
#include <functional>

#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"
#include "shell/ToolTable.h"

namespace tolva::testing {
namespace {

struct MenuByHand {
    const char* name;
    std::vector<const char*> items;
};

// The next Menu Editor makes the menus; a name in `refused` is tried first.
void NextMenuEditorMakes(ScriptedHost& host, std::vector<MenuByHand> menus, QString refused,
                         QString* caption) {
    AnswerWithRegisteredDialog(host);
    OnNextModal([menus, refused, caption](QWidget* dialog) {
        *caption = dialog->windowTitle();
        auto* name = dialog->findChild<QLineEdit*>("txtNewName");
        auto* newItem = dialog->findChild<QLineEdit*>("txtNewItem");
        auto click = [dialog](const char* button) {
            QTest::mouseClick(dialog->findChild<QPushButton*>(button), Qt::LeftButton);
        };
        if (!refused.isEmpty()) {
            name->setText(refused);
            click("cmdNew");
        }
        for (const MenuByHand& menu : menus) {
            name->setText(menu.name);
            click("cmdNew");
            for (const char* item : menu.items) {
                newItem->setText(item);
                click("cmdAdd");
            }
        }
        click("cmdOK");
    });
}

TEST_F(ByHand, TwoFormsWithTwoMenusEachSavedOpenedAndSavedAgain) {
    RegisterObjectDialogs();
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    QString caption;
    NextMenuEditorMakes(host, {{"MENU_FILE", {"New", "Open", "Save As..."}}, {"MENU_EDIT", {"Cut", "Copy"}}},
                        "", &caption);
    ClickTool(kMenuTool);
    EXPECT_EQ(caption, "Menu Editor - FORM_1");
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmMenu"}));
    EXPECT_EQ(Screen().CurrentFormRef()->GetNumMenus(), 2);

    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ASSERT_EQ(Screen().Count(type::Form), 2);
    NextMenuEditorMakes(host, {{"MENU_VIEW", {"Day", "Week"}}, {"MENU_HELP", {"About"}}}, "MENU_FILE",
                        &caption);
    ClickTool(kMenuTool);
    EXPECT_EQ(caption, "Menu Editor - FORM_2");
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "Invalid Name: This name is being used by another object.  Please choose another"}));
    host.ClearRecord();
    EXPECT_EQ(Screen().CurrentFormRef()->GetNumMenus(), 2);

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* menu : {"MENU_FILE", "MENU_EDIT", "MENU_VIEW", "MENU_HELP"})
        EXPECT_NE(saved.find(std::string("#MENU\r\nNAME=") + menu + "\r\n"), std::string::npos) << menu;
    const std::string header = ReadFile(dir / "first.h");
    for (const char* menu : {"MENU_FILE", "MENU_EDIT", "MENU_VIEW", "MENU_HELP"})
        EXPECT_NE(header.find(std::string("#define ") + menu), std::string::npos) << menu;

    OpenAnew(dir / "first.txt");
    // Each form without a picture names FORM.BMP, which is not here.
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>(2, "Tolva Resource Editor: Bitmap not found")));
    ASSERT_EQ(Screen().Count(type::Form), 2);
    EXPECT_EQ(SaveDesignAs(dir, "second"), saved);
    EXPECT_EQ(ReadFile(dir / "second.h"), header);
}

}  // namespace
}  // namespace tolva::testing
