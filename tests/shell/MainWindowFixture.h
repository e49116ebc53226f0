#pragma once
// A loaded main window on a scripted host, for the window tests.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <memory>

#include "screen/ctlTolvaScreen.h"
#include "shell/frmMain.h"
#include "support/ScriptedHost.h"
#include "support/TestStrings.h"

namespace tolva::testing {

class MainWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        EnsureStringsLoaded();
        Open();
    }

    // Makes and loads the window with the host's current settings.
    void Open() {
        window.reset();
        window = std::make_unique<frmMain>(host);
        window->Load(true);
    }

    template <typename T>
    T* Find(const char* name) {
        return window->findChild<T*>(QString::fromLatin1(name));
    }
    QComboBox* Forms() { return Find<QComboBox>("cmbForms"); }
    QComboBox* Objects() { return Find<QComboBox>("cmbObjects"); }
    ctlTolvaScreen& Screen() { return window->Screen(); }

    QStringList Items(QComboBox* combo) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i) items << combo->itemText(i);
        return items;
    }

    // A click with the mouse on toolbar button index (1 to 17).
    void ClickTool(int index) {
        auto* toolbar = Find<QToolBar>("tlbrObjects");
        auto* button = qobject_cast<QToolButton*>(toolbar->widgetForAction(window->ToolAction(index)));
        ASSERT_NE(button, nullptr);
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void TriggerMenu(const char* name) {
        auto* action = Find<QAction>(name);
        ASSERT_NE(action, nullptr) << name;
        action->trigger();
    }

    // The user picks the entry of a combo.
    void Choose(QComboBox* combo, const QString& text) {
        const int index = combo->findText(text);
        ASSERT_GE(index, 0) << text.toStdString();
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }

    // Draws an object of the type through the screen, as the canvas does at
    // the end of a rubber band.
    bool Draw(int type, ctlTolvaScreen::Band band = {600, 600, 3000, 2400}) {
        Screen().CreateObjectType(type);
        Screen().SetRubberBand(band);
        return Screen().CreateObject(type);
    }

    ScriptedHost host;
    std::unique_ptr<frmMain> window;
};

}  // namespace tolva::testing
