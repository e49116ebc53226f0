// The main window's file commands: New, Open, Save, Save As, the two view
// commands and the close of the window with its question about unsaved
// changes. The single design lives in the screen and in the two paths.
#include <QApplication>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "screen/ctlTolvaScreen.h"
#include "screen/ScreenFiles.h"
#include "shell/FilePaths.h"
#include "shell/SettingsKeys.h"
#include "shell/SortedComboBox.h"
#include "shell/frmMain.h"

#include "screen/DesignHistory.h"

#include <QComboBox>

namespace tolva {

namespace {

constexpr const char* kBitmapWarning =
    "Make sure you place ALL bitmaps specified in the resource file in the same directory as "
    "the resource file since the resource compiler can't currently resolve all paths.";

FileChooserRequest ResourceFileRequest() {
    FileChooserRequest request;
    request.defaultExtension = "*.txt";
    request.filter = "Resource Files (*.txt)|*.txt|";
    return request;
}

FileChooserRequest HeaderFileRequest() {
    FileChooserRequest request;
    request.defaultExtension = "*.h";
    request.filter = "Header Files (*.h)|*.h|";
    return request;
}

}  // namespace

// --- view ----------------------------------------------------------------------------------

// The saved file itself goes to the desktop's viewer for text; with no path,
// or a path that has gone, nothing happens.
void frmMain::cmdViewResFile_Click() {
    if (!ResourceFilePath.empty() && host_.FileExists(ResourceFilePath))
        host_.OpenInViewer(ResourceFilePath);
}

void frmMain::cmdViewHeaderFile_Click() {
    if (!HeaderFilePath.empty() && host_.FileExists(HeaderFilePath))
        host_.OpenInViewer(HeaderFilePath);
}

void frmMain::mnuViewResFile_Click() { cmdViewResFile_Click(); }

void frmMain::mnuViewHeaderFile_Click() { cmdViewHeaderFile_Click(); }

// --- new and open --------------------------------------------------------------------------

// Unsaved changes are dropped without a question; the header path stays.
void frmMain::mnuFileNew_Click() {
    screen_->ClearScreen();
    ClearPropertiesList();
    ResourceFilePath.clear();
    designSaved_ = true;
    cmbForms_->clear();
    cmbObjects_->clear();
    FreshHistory();
    RefreshScreen();
}

void frmMain::mnuFileOpen_Click() {
    ctlTolvaScreen& screen = *screen_;
    // What the handler of the whole routine does: a cancelled chooser and a
    // load ended by a run-time failure both come here.
    auto handler = [&] {
        screen.StopLoading();
        setEnabled(true);
        RefreshScreen();
    };

    host_.SetCursor(CursorShape::Hourglass);
    setEnabled(false);
    const std::optional<std::string> path = host_.ChooseOpenFile(ResourceFileRequest());
    if (!path) {
        // The hourglass stays until the next mouse move over the window.
        handler();
        return;
    }
    try {
        screen.ClearScreen();
        screen.SelectObject(type::None, "");
        screen.StartLoading();
        if (!LoadResourceFile(screen, *path)) {
            host_.MessageBox(kCouldNotLoadResourceFile, "", MessageButtons::OK);
            screen.StopLoading();
            setEnabled(true);
            ResourceFilePath.clear();
            screen.ClearScreen();
            cmbForms_->clear();
            cmbObjects_->clear();
            ClearPropertiesList();
            host_.SetCursor(CursorShape::Arrow);
            FreshHistory();
            RefreshScreen();
            return;
        }
        ResourceFilePath = *path;
        screen.StopLoading();
        host_.SetCursor(CursorShape::Arrow);
        setEnabled(true);
        designSaved_ = true;
        FreshHistory();
        RefreshScreen();
    } catch (const RuntimeFailure&) {
        handler();
    }
}

// --- save ----------------------------------------------------------------------------------

// With both paths known the design is written to them; a write error here has
// no handler of its own and ends the program through the top-level guard.
void frmMain::mnuFileSave_Click() {
    if (ResourceFilePath.empty() || HeaderFilePath.empty()) {
        mnuFileSaveAs_Click();
        return;
    }
    SaveResourceFile(*screen_, ResourceFilePath);
    SaveHeaderFile(*screen_, HeaderFilePath);
    ShowBitmapWarningBox();
    designSaved_ = true;
    history_->MarkSaved();
}

// Two choosers, the resource file's and the header's. A cancel of the first
// changes nothing; a cancel of the second leaves the resource file saved
// under its new path. A write error ends the command without a word.
void frmMain::mnuFileSaveAs_Click() {
    try {
        const std::optional<std::string> resourcePath = host_.ChooseSaveFile(ResourceFileRequest());
        if (!resourcePath) return;
        ResourceFilePath = *resourcePath;
        SaveResourceFile(*screen_, ResourceFilePath);

        const std::optional<std::string> headerPath = host_.ChooseSaveFile(HeaderFileRequest());
        if (!headerPath) return;
        HeaderFilePath = *headerPath;
        SaveHeaderFile(*screen_, HeaderFilePath);

        ShowBitmapWarningBox();
        designSaved_ = true;
        history_->MarkSaved();
    } catch (const RuntimeFailure&) {
        // Nothing is said; what was written stays.
    }
}

void frmMain::ShowBitmapWarningBox() {
    if (showBitmapWarning_) host_.MessageBox(kBitmapWarning, "", MessageButtons::OK);
}

// --- the close of the window ---------------------------------------------------------------

bool frmMain::QueryClose() {
    if (!designSaved_) {
        const MessageAnswer answer =
            host_.MessageBox("Do you want to save your changes before exiting?",
                             "Save Before Quitting?", MessageButtons::YesNoCancel);
        if (answer == MessageAnswer::Yes) {
            mnuFileSave_Click();
            // A save that was cancelled keeps the window, and no setting is written.
            if (!designSaved_) return false;
        } else if (answer == MessageAnswer::Cancel) {
            WriteSettings();
            return false;
        }
    }
    WriteSettings();
    // The program ends with all its windows.
    if (log_) log_->close();
    return true;
}

void frmMain::WriteSettings() {
    host_.SaveSetting(kSettingsApplication, kSettingsSection, "ShowBitmapWarning",
                      showBitmapWarning_ ? "1" : "0");
    // The grid as the screen holds it now, not as it was read at start: a
    // hidden grid keeps the interval it had before.
    host_.SaveSetting(kSettingsApplication, kSettingsSection, "ShowGrid",
                      screen_->GridVisible() ? "1" : "0");
    host_.SaveSetting(kSettingsApplication, kSettingsSection, "GridInterval",
                      IntToText(screen_->GridInterval()));
}

}  // namespace tolva
