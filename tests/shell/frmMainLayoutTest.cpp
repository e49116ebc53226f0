// The main window's title, controls, toolbar and menus.
#include <QFontMetrics>
#include <QLabel>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "shell/MainWindowFixture.h"
#include "shell/ToolbarIcons.h"

namespace tolva::testing {
namespace {

using Layout = MainWindowTest;

TEST_F(Layout, TitleIsTheApplicationsName) {
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tolva Resource Editor"));
    EXPECT_EQ(window->objectName(), QStringLiteral("frmMain"));
}

struct ControlPlace {
    const char* name;
    int left, top, width, height;  // screen units
};

// Places in screen units, from the window's client area.
const ControlPlace kPlaces[] = {
    {"tlbrObjects", 0, 0, 12105, 450},       {"Label2", 120, 600, 975, 255},
    {"ctlScreen", 120, 960, 6255, 6255},     {"lblForms", 6480, 600, 420, 195},
    {"cmbForms", 6480, 960, 2415, 315},      {"lblObjects", 9000, 600, 1350, 195},
    {"cmbObjects", 9000, 960, 3015, 315},    {"cmdDelete", 6000, 480, 375, 375},
    {"ctlPropView", 6480, 1440, 5535, 5775}, {"cmdViewResFile", 120, 7320, 1695, 375},
    {"cmdViewHeaderFile", 1920, 7320, 1695, 375}, {"Label1", 3840, 7320, 2055, 435},
};

TEST_F(Layout, EveryControlStandsAtItsPlaceInTheClientArea) {
    for (const auto& place : kPlaces) {
        auto* widget = Find<QWidget>(place.name);
        ASSERT_NE(widget, nullptr) << place.name;
        EXPECT_EQ(widget->parentWidget(), window->centralWidget()) << place.name;
        // 15 screen units to a logical pixel.
        EXPECT_EQ(widget->geometry(), QRect(place.left / 15, place.top / 15, place.width / 15,
                                            place.height / 15))
            << place.name;
    }
}

TEST_F(Layout, LabelsAndButtonsCarryTheirTexts) {
    EXPECT_EQ(Find<QLabel>("Label2")->text(), QStringLiteral("Tolva Screen"));
    EXPECT_EQ(Find<QLabel>("lblForms")->text(), QStringLiteral("Forms"));
    EXPECT_EQ(Find<QLabel>("lblObjects")->text(), QStringLiteral("Embedded Objects"));
    EXPECT_EQ(Find<QLabel>("Label1")->text(), QStringLiteral("Beta Version"));
    EXPECT_EQ(Find<QPushButton>("cmdViewResFile")->text(), QStringLiteral("View Resource File"));
    EXPECT_EQ(Find<QPushButton>("cmdViewHeaderFile")->text(), QStringLiteral("View Header File"));
}

TEST_F(Layout, LabelTextsFitTheirPlaces) {
    for (const char* name : {"Label2", "lblForms", "lblObjects", "Label1"}) {
        auto* label = Find<QLabel>(name);
        EXPECT_LE(QFontMetrics(label->font()).horizontalAdvance(label->text()), label->width())
            << name;
    }
    for (const char* name : {"cmdViewResFile", "cmdViewHeaderFile"}) {
        auto* button = Find<QPushButton>(name);
        EXPECT_LT(QFontMetrics(button->font()).horizontalAdvance(button->text()), button->width())
            << name;
    }
}

TEST_F(Layout, DeleteButtonShowsAThirteenPixelPicture) {
    auto* button = Find<QPushButton>("cmdDelete");
    EXPECT_TRUE(button->text().isEmpty());
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(button->iconSize(), QSize(13, 13));
}

TEST_F(Layout, CombosAreDropDownListsAndStartEmpty) {
    EXPECT_FALSE(Forms()->isEditable());
    EXPECT_FALSE(Objects()->isEditable());
    EXPECT_EQ(Forms()->count(), 0);
    EXPECT_EQ(Objects()->count(), 0);
}

const char* const kToolNames[] = {
    "Pointer", "Form",  "Button",    "Repeat Button", "Push Button", "Textbox",
    "Field",   "Checkbox", "Popup Trigger", "Menu",   "List",        "Scrollbar",
    "String",  "Bitmap", "Line",     "Scheduler Line", "Table",
};

TEST_F(Layout, ToolbarHoldsTheSeventeenToolsInOrder) {
    auto* toolbar = Find<QToolBar>("tlbrObjects");
    ASSERT_NE(toolbar, nullptr);
    const auto actions = toolbar->actions();
    ASSERT_EQ(actions.size(), 17);
    for (int i = 0; i < 17; ++i) {
        const QString name = QString::fromLatin1(kToolNames[i]);
        EXPECT_EQ(actions[i]->text(), name);
        EXPECT_EQ(actions[i]->toolTip(), name);
        EXPECT_EQ(actions[i]->property("index").toInt(), i + 1) << kToolNames[i];
        EXPECT_TRUE(actions[i]->isCheckable());
        EXPECT_EQ(actions[i], window->ToolAction(i + 1));
        EXPECT_TRUE(actions[i]->shortcut().isEmpty());
    }
}

TEST_F(Layout, PointerStartsPressedAlone) {
    EXPECT_EQ(window->PressedTool(), 1);
    int pressed = 0;
    for (int i = 1; i <= 17; ++i) pressed += window->ToolAction(i)->isChecked() ? 1 : 0;
    EXPECT_EQ(pressed, 1);
}

QImage Picture(const QIcon& icon) {
    return icon.pixmap(QSize(kToolIconSize, kToolIconSize), 1.0).toImage();
}

TEST_F(Layout, EveryToolHasAPictureOfItsOwn) {
    for (int i = 1; i <= 17; ++i) {
        const QImage image = Picture(window->ToolAction(i)->icon());
        ASSERT_FALSE(image.isNull()) << i;
        // Something is drawn.
        bool inked = false;
        for (int y = 0; y < image.height() && !inked; ++y)
            for (int x = 0; x < image.width() && !inked; ++x)
                inked = qAlpha(image.pixel(x, y)) > 0;
        EXPECT_TRUE(inked) << kToolNames[i - 1];
        for (int j = 1; j < i; ++j) {
            EXPECT_NE(image, Picture(window->ToolAction(j)->icon()))
                << kToolNames[i - 1] << " looks like " << kToolNames[j - 1];
        }
    }
}

struct MenuEntry {
    const char* name;
    const char* text;
    const char* shortcuts = "";  // as QKeySequence::listToString gives them
};

void ExpectMenu(QMenuBar* bar, const char* title, std::vector<MenuEntry> entries) {
    QMenu* menu = nullptr;
    for (QAction* top : bar->actions()) {
        if (top->text() == QString::fromLatin1(title)) menu = top->menu();
    }
    ASSERT_NE(menu, nullptr) << title;
    QList<QAction*> actions;
    for (QAction* action : menu->actions()) {
        if (!action->isSeparator()) actions << action;
    }
    ASSERT_EQ(actions.size(), static_cast<qsizetype>(entries.size())) << title;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(actions[i]->objectName(), QString::fromLatin1(entries[i].name));
        EXPECT_EQ(actions[i]->text(), QString::fromLatin1(entries[i].text));
        EXPECT_EQ(QKeySequence::listToString(actions[i]->shortcuts()),
                  QString::fromLatin1(entries[i].shortcuts))
            << entries[i].name;
    }
}

TEST_F(Layout, MenusHoldTheirEntriesInOrder) {
    QMenuBar* bar = window->menuBar();
    QStringList titles;
    for (QAction* top : bar->actions()) titles << top->text();
    EXPECT_EQ(titles, (QStringList{"File", "Edit", "View", "Help"}));
    ExpectMenu(bar, "File",
               {{"mnuFileNew", "New"}, {"mnuFileOpen", "Open..."}, {"mnuFileSave", "Save"},
                {"mnuFileSaveAs", "Save As..."}, {"mnuExit", "Exit"}});
    // Undo and Redo come after the editor's own two entries.
    ExpectMenu(bar, "Edit",
               {{"mnuEditDelete", "Delete"},
                {"mnuEditOptions", "Options"},
                {"mnuEditUndo", "Undo", "Ctrl+Z"},
                {"mnuEditRedo", "Redo", "Ctrl+Shift+Z; Ctrl+Y"}});
    ExpectMenu(bar, "View",
               {{"mnuViewResFile", "Resource File"}, {"mnuViewHeaderFile", "Header File"},
                {"mnuViewObjectList", "Object List"}, {"mnuViewLog", "Log Window"}});
    ExpectMenu(bar, "Help",
               {{"mnuHelpBugs", "Send Comments / Report Bugs"}, {"mnuHelpAbout", "About..."}});
}

TEST_F(Layout, OnlyObjectListIsDisabled) {
    for (const char* name :
         {"mnuFileNew", "mnuFileOpen", "mnuFileSave", "mnuFileSaveAs", "mnuExit", "mnuEditDelete",
          "mnuEditOptions", "mnuViewResFile", "mnuViewHeaderFile", "mnuViewLog", "mnuHelpBugs",
          "mnuHelpAbout"}) {
        EXPECT_TRUE(Find<QAction>(name)->isEnabled()) << name;
    }
    EXPECT_FALSE(Find<QAction>("mnuViewObjectList")->isEnabled());
    // Nothing to undo or redo yet.
    EXPECT_FALSE(Find<QAction>("mnuEditUndo")->isEnabled());
    EXPECT_FALSE(Find<QAction>("mnuEditRedo")->isEnabled());
}

TEST_F(Layout, ObjectListStaysDisabledAfterWork) {
    Draw(1);
    ClickTool(3);
    window->DeletedObject("", 16);
    EXPECT_FALSE(Find<QAction>("mnuViewObjectList")->isEnabled());
}

}  // namespace
}  // namespace tolva::testing
