// The desktop services as Qt gives them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "platform/Cp1252.h"
#include "platform/QtHost.h"
#include "platform/DialogRegistry.h"
#include "document/DialogModel.h"
#include "platform/ModalDriver.h"

namespace tolva {
namespace {

using testing::OnNextModal;
using testing::OnNextPopup;

TEST(QtHost, APopupMenuAndItsItemsCarryTheirNames) {
    QtHost host;
    QString menuName, title;
    QStringList names, texts;
    OnNextPopup([&](QMenu* menu) {
        menuName = menu->objectName();
        title = menu->title();
        for (QAction* action : menu->actions()) {
            names << action->objectName();
            texts << action->text();
        }
        // The user picks the item by its name.
        menu->setActiveAction(menu->findChild<QAction*>("mnuRemoveRepeatButtonBitmap"));
        QTest::keyClick(menu, Qt::Key_Return);
    });
    const auto choice = host.PopupMenu(
        "Set Properties", {{"mnuSetRepeatButtonBitmap", "Set Repeat-Button Bitmap"},
                           {"", "-"},
                           {"mnuRemoveRepeatButtonBitmap", "Remove Repeat-Button Bitmap"}});
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(*choice, 2);
    EXPECT_EQ(menuName, QStringLiteral("mnuSetProperties"));
    EXPECT_EQ(title, QStringLiteral("Set Properties"));
    EXPECT_EQ(names, (QStringList{"mnuSetRepeatButtonBitmap", "", "mnuRemoveRepeatButtonBitmap"}));
    EXPECT_EQ(texts, (QStringList{"Set Repeat-Button Bitmap", "", "Remove Repeat-Button Bitmap"}));
}

TEST(QtHost, AClosedPopupMenuChoosesNothing) {
    QtHost host;
    OnNextPopup([](QMenu* menu) { menu->close(); });
    EXPECT_FALSE(host.PopupMenu("Set Properties", {{"mnuA", "A"}}).has_value());
}

TEST(QtHost, MessageBoxWithEmptyTitleShowsTheApplicationsTitle) {
    QtHost host;
    QString title, text;
    OnNextModal([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(host.MessageBox("Object already embedded in a form.", "", MessageButtons::OK),
              MessageAnswer::OK);
    EXPECT_EQ(title, QStringLiteral("Tolva Resource Editor"));
    EXPECT_EQ(text, QStringLiteral("Object already embedded in a form."));
}

TEST(QtHost, MessageBoxKeepsTextAndTitleExactly) {
    QtHost host;
    QString title, text;
    OnNextModal([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        box->button(QMessageBox::Ok)->click();
    });
    host.MessageBox("Form embedded in form.  Should not have occured",
                    "DeleteAllEmbededObjectsFromForm", MessageButtons::OK);
    EXPECT_EQ(title, QStringLiteral("DeleteAllEmbededObjectsFromForm"));
    EXPECT_EQ(text, QStringLiteral("Form embedded in form.  Should not have occured"));
}

TEST(QtHost, YesNoBoxHasTwoButtonsAndGivesTheAnswer) {
    QtHost host;
    QMessageBox::StandardButtons buttons;
    OnNextModal([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        buttons = box->standardButtons();
        box->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(host.MessageBox("Sure?", "Confirm", MessageButtons::YesNo), MessageAnswer::No);
    EXPECT_EQ(buttons, QMessageBox::Yes | QMessageBox::No);
}

TEST(QtHost, YesNoCancelBoxGivesCancel) {
    QtHost host;
    QMessageBox::StandardButtons buttons;
    OnNextModal([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        buttons = box->standardButtons();
        box->button(QMessageBox::Cancel)->click();
    });
    EXPECT_EQ(host.MessageBox("Save?", "Quit", MessageButtons::YesNoCancel),
              MessageAnswer::Cancel);
    EXPECT_EQ(buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

TEST(QtHost, MessageTextIsConvertedFromTheCodePage) {
    QtHost host;
    QString text;
    OnNextModal([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        text = box->text();
        box->button(QMessageBox::Ok)->click();
    });
    host.MessageBox("Gr\xFC\xDF" "e \x80", "t", MessageButtons::OK);
    EXPECT_EQ(text, QString::fromUtf8("Gr\xC3\xBC\xC3\x9F" "e \xE2\x82\xAC"));
}

TEST(QtHost, SaveChooserUsesFilterAndDefaultSuffix) {
    QTemporaryDir dir;
    QtHost host;
    QStringList filters;
    QString suffix;
    const QString target = dir.path() + "/design.txt";
    OnNextModal([&](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        filters = dialog->nameFilters();
        suffix = dialog->defaultSuffix();
        dialog->selectFile(target);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    const auto chosen =
        host.ChooseSaveFile({"", "*.txt", "Resource Files (*.txt)|*.txt|", ""});
    EXPECT_EQ(filters, QStringList{QStringLiteral("Resource Files (*.txt)")});
    EXPECT_EQ(suffix, QStringLiteral("txt"));
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(FromLocalPath(*chosen), target);
}

TEST(QtHost, CancelledChooserGivesNothing) {
    QtHost host;
    OnNextModal([&](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->reject();
    });
    EXPECT_FALSE(host.ChooseOpenFile({"", "*.h", "Header Files (*.h)|*.h|", ""}).has_value());
}

TEST(QtHost, FileChoosersAreTheWindowsCommonDialog) {
    QtHost host;
    QString openName, saveName;
    OnNextModal([&](QWidget* w) {
        openName = w->objectName();
        qobject_cast<QDialog*>(w)->reject();
    });
    host.ChooseOpenFile({"", "*.txt", "Resource Files (*.txt)|*.txt|", ""});
    OnNextModal([&](QWidget* w) {
        saveName = w->objectName();
        qobject_cast<QDialog*>(w)->reject();
    });
    host.ChooseSaveFile({"", "*.h", "Header Files (*.h)|*.h|", ""});
    EXPECT_EQ(openName, QStringLiteral("CommonDialog1"));
    EXPECT_EQ(saveName, QStringLiteral("CommonDialog1"));
}

class QtHostSettings : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir_.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir_.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir_.path());
    }
    QTemporaryDir dir_;
};

TEST_F(QtHostSettings, MissingKeyGivesTheDefault) {
    QtHost host;
    EXPECT_EQ(host.GetSetting("TolvaDesignerTest", "Settings", "GridInterval", "55"), "55");
}

TEST_F(QtHostSettings, SavedValueIsReadBack) {
    QtHost host;
    host.SaveSetting("TolvaDesignerTest", "Settings", "ShowGrid", "0");
    EXPECT_EQ(host.GetSetting("TolvaDesignerTest", "Settings", "ShowGrid", "1"), "0");
    // Sections keep their keys apart.
    EXPECT_EQ(host.GetSetting("TolvaDesignerTest", "Other", "ShowGrid", "1"), "1");
}

TEST(QtHost, LoadPictureGivesTheBitmapsSize) {
    QTemporaryDir dir;
    const QString path = dir.path() + "/pic.bmp";
    QImage image(23, 11, QImage::Format_RGB32);
    image.fill(Qt::white);
    ASSERT_TRUE(image.save(path, "BMP"));
    QtHost host;
    const auto size = host.LoadPicture(ToLocalPath(path));
    ASSERT_TRUE(size.has_value());
    EXPECT_EQ(size->width, 23);
    EXPECT_EQ(size->height, 11);
}

TEST(QtHost, LoadPictureOfBrokenOrMissingFileFails) {
    QTemporaryDir dir;
    const QString path = dir.path() + "/broken.bmp";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("BM not a picture");
    file.close();
    QtHost host;
    EXPECT_FALSE(host.LoadPicture(ToLocalPath(path)).has_value());
    EXPECT_FALSE(host.LoadPicture(ToLocalPath(dir.path() + "/none.bmp")).has_value());
    EXPECT_FALSE(host.LoadPicture("").has_value());
}

TEST(QtHost, FileExistsOnlyForFiles) {
    QTemporaryDir dir;
    const QString path = dir.path() + "/a.txt";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    QtHost host;
    EXPECT_TRUE(host.FileExists(ToLocalPath(path)));
    EXPECT_FALSE(host.FileExists(ToLocalPath(dir.path() + "/b.txt")));
    EXPECT_FALSE(host.FileExists(ToLocalPath(dir.path())));
    EXPECT_FALSE(host.FileExists(""));
}

TEST(QtHost, ProgramDirectoryIsTheApplicationsDirectory) {
    QtHost host;
    EXPECT_EQ(FromLocalPath(host.ProgramDirectory()), QCoreApplication::applicationDirPath());
}

TEST(QtHost, LanguageIds) {
    EXPECT_EQ(QtHost::LanguageIdFor(QLocale::English), 1033);
    EXPECT_EQ(QtHost::LanguageIdFor(QLocale::German), 1031);
    EXPECT_EQ(QtHost::LanguageIdFor(QLocale::Japanese), 1041);
    EXPECT_EQ(QtHost::LanguageIdFor(QLocale::French), 1033);
}

TEST(QtHost, LanguageIdFollowsTheDefaultLocale) {
    const QLocale saved;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QtHost host;
    EXPECT_EQ(host.LanguageId(), 1031);
    QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
    EXPECT_EQ(host.LanguageId(), 1041);
    QLocale::setDefault(saved);
}

TEST(QtHost, EachCursorGoesOntoItsWidgetAndNeverOntoTheApplication) {
    QtHost host;
    QWidget window;
    auto* canvas = new QWidget(&window);
    auto* inspector = new QWidget(&window);
    host.SetCursorWidgets(&window, canvas);

    // The hourglass: the main window, so that a chooser of its own shows
    // the arrow.
    host.SetCursor(CursorShape::Hourglass);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    QWidget chooser;
    EXPECT_EQ(chooser.cursor().shape(), Qt::ArrowCursor);

    // The cross and the sizing cursors: the design screen alone.
    host.SetCursor(CursorShape::Cross);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(canvas->cursor().shape(), Qt::CrossCursor);
    EXPECT_FALSE(inspector->testAttribute(Qt::WA_SetCursor));
    host.SetCursor(CursorShape::SizeWE);
    EXPECT_EQ(canvas->cursor().shape(), Qt::SizeHorCursor);
    host.SetCursor(CursorShape::SizeNWSE);
    EXPECT_EQ(canvas->cursor().shape(), Qt::SizeFDiagCursor);
    host.SetCursor(CursorShape::SizeNS);
    EXPECT_EQ(canvas->cursor().shape(), Qt::SizeVerCursor);
    host.SetCursor(CursorShape::SizeNESW);
    EXPECT_EQ(canvas->cursor().shape(), Qt::SizeBDiagCursor);

    // The arrow takes both back.
    host.SetCursor(CursorShape::Arrow);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(canvas->testAttribute(Qt::WA_SetCursor));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtHost, WithoutCursorWidgetsTheParentTakesTheCursors) {
    QtHost host;
    QWidget window;
    host.SetParentWidget(&window);
    host.SetCursor(CursorShape::Cross);
    EXPECT_EQ(window.cursor().shape(), Qt::CrossCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    host.SetCursor(CursorShape::Arrow);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace tolva

namespace tolva {
namespace {

struct NamedModel : DialogModel {
    std::string name;
    std::string DialogName() const override { return name; }
};

TEST(QtHost, ADialogRunsByItsNameAndAnUnknownOneIsCancelled) {
    QtHost host;
    NamedModel model;
    model.name = "frmNoSuchDialog";
    EXPECT_FALSE(host.RunDialog(model));
    // The registry outlives the test: the count it keeps is static.
    static int runs = 0;
    runs = 0;
    RegisterDialog("frmHostTestDialog", [](DialogModel& m, QWidget*) {
        ++runs;
        return m.DialogName() == "frmHostTestDialog";
    });
    model.name = "frmHostTestDialog";
    EXPECT_TRUE(host.RunDialog(model));
    EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace tolva

namespace tolva::testing {
namespace {

// The settings live in the user's configuration folder; the test points it
// at a fresh folder of its own.
class QtHostSettingsFile : public ::testing::Test {
protected:
    void SetUp() override {
        // Tests run side by side: each has a folder of its own.
        folder = std::filesystem::path(::testing::TempDir()) /
                 ("tolva_settings_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
                  "_" + std::to_string(QCoreApplication::applicationPid()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder / "Tolva");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString(folder.string()));
    }
    void TearDown() override { std::filesystem::remove_all(folder); }
    std::filesystem::path File() const { return folder / "Tolva" / "TolvaDesigner.conf"; }
    std::filesystem::path folder;
    QtHost host;
};

TEST_F(QtHostSettingsFile, ValuesGoToTheUsersConfigurationFolderAndComeBack) {
    host.SaveSetting("TolvaDesigner", "Settings", "GridInterval", "40");
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "GridInterval", "55"), "40");
    EXPECT_TRUE(std::filesystem::exists(File()));
    std::ifstream in(File());
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_NE(text.find("[Settings]"), std::string::npos);
    EXPECT_NE(text.find("GridInterval=40"), std::string::npos);
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "ShowGrid", "1"), "1");
}

TEST_F(QtHostSettingsFile, AFileOfNonsenseGivesTheDefaultsAndIsWrittenAnew) {
    std::ofstream(File(), std::ios::binary) << "\x01\x02[[[Settings\nGridInterval==\xff\xfe\n\x00garbage";
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "GridInterval", "55"), "55");
    host.SaveSetting("TolvaDesigner", "Settings", "GridInterval", "40");
    host.SaveSetting("TolvaDesigner", "Settings", "ShowGrid", "0");
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "GridInterval", "55"), "40");
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "ShowGrid", "1"), "0");
}

TEST_F(QtHostSettingsFile, AFileThatCannotBeReadGivesTheDefaults) {
    std::filesystem::create_directories(File());  // a folder where the file should be
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "ShowBitmapWarning", "1"), "1");
    host.SaveSetting("TolvaDesigner", "Settings", "ShowBitmapWarning", "0");
}

}  // namespace
}  // namespace tolva::testing
