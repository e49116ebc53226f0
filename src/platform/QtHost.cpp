#include "platform/QtHost.h"

#include <cstdio>

#include <QApplication>
#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QUrl>

#include "canvas/BmpPicture.h"
#include "document/DialogModel.h"
#include "platform/Cp1252.h"
#include "platform/DialogRegistry.h"
#include "platform/FileFilter.h"

namespace tolva {

QWidget* QtHost::DialogParent() const {
    // A box or dialog opened from a dialog belongs to that dialog.
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (parent_) return parent_.data();
    return QApplication::activeWindow();
}

MessageAnswer QtHost::MessageBox(const std::string& text, const std::string& title,
                                 MessageButtons buttons) {
    const QString shownTitle = FromCp1252(title.empty() ? std::string(kApplicationTitle) : title);
    if (startCheck_) {
        std::fprintf(stderr, "%s: %s\n", shownTitle.toLocal8Bit().constData(), FromCp1252(text).toLocal8Bit().constData());
        return buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::Yes;
    }
    QMessageBox box(DialogParent());
    box.setWindowTitle(shownTitle);
    box.setText(FromCp1252(text));
    switch (buttons) {
    case MessageButtons::OK:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case MessageButtons::YesNo:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case MessageButtons::YesNoCancel:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    const int pressed = box.exec();
    switch (pressed) {
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    default:
        // A box closed by its frame answers as its escape button would.
        if (buttons == MessageButtons::YesNo) return MessageAnswer::No;
        if (buttons == MessageButtons::YesNoCancel) return MessageAnswer::Cancel;
        return MessageAnswer::OK;
    }
}

std::optional<std::string> QtHost::ChooseFile(const FileChooserRequest& request, bool save) {
    QString title = FromCp1252(request.title);
    if (title.isEmpty()) title = save ? QStringLiteral("Save As") : QStringLiteral("Open");
    QFileDialog dialog(DialogParent(), title, QString(),
                       FromCp1252(ToQtFilter(request.filter)));
    // The main window's one file dialog, by the name its controls go by.
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(FromCp1252(DefaultSuffix(request.defaultExtension)));
    if (!request.initialName.empty()) dialog.selectFile(FromLocalPath(request.initialName));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty() || chosen.first().isEmpty()) return std::nullopt;
    return ToLocalPath(chosen.first());
}

std::optional<std::string> QtHost::ChooseOpenFile(const FileChooserRequest& request) {
    return ChooseFile(request, false);
}

std::optional<std::string> QtHost::ChooseSaveFile(const FileChooserRequest& request) {
    return ChooseFile(request, true);
}

std::string QtHost::GetSetting(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& defaultValue) {
    QSettings settings(kSettingsOrganisation, FromCp1252(application));
    const QString path = FromCp1252(section) + "/" + FromCp1252(key);
    if (!settings.contains(path)) return defaultValue;
    return ToCp1252(settings.value(path).toString());
}

void QtHost::SaveSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& value) {
    QSettings settings(kSettingsOrganisation, FromCp1252(application));
    settings.setValue(FromCp1252(section) + "/" + FromCp1252(key), FromCp1252(value));
}

std::optional<PictureSize> QtHost::LoadPicture(const std::string& path) {
    // The program's own reader, as the command-line companion uses it, so
    // that both agree on which pictures load and on their sizes.
    if (path.empty()) return std::nullopt;
    const auto picture = ReadBmpFile(FromLocalPath(path).toLocal8Bit().toStdString());
    if (!picture) return std::nullopt;
    return PictureSize{picture->width, picture->height};
}

std::optional<int> QtHost::PopupMenu(const std::string& title,
                                     const std::vector<PopupEntry>& entries) {
    QMenu menu(DialogParent());
    menu.setTitle(FromCp1252(title));
    // The menu is named after its title, "Set Properties" giving
    // "mnuSetProperties", so that it can be found like every other control.
    menu.setObjectName("mnu" + FromCp1252(title).remove(' '));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].text == "-") {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(FromCp1252(entries[i].text));
        action->setObjectName(QString::fromStdString(entries[i].name));
        action->setData(static_cast<int>(i));
    }
    QAction* chosen = menu.exec(QCursor::pos());
    if (!chosen) return std::nullopt;
    const int index = chosen->data().toInt();
    if (Observer()) Observer()->PopupChosen(entries[static_cast<std::size_t>(index)].text);
    return index;
}

bool QtHost::RunDialog(DialogModel& model) {
    const DialogRunner* runner = FindDialog(model.DialogName());
    if (!runner) return false;
    if (Observer()) Observer()->DialogOpening(model.DialogName());
    const bool accepted = (*runner)(model, DialogParent());
    if (Observer()) Observer()->DialogClosed(model.DialogName(), accepted);
    return accepted;
}

void QtHost::SetCursor(CursorShape shape) {
    // Each cursor belongs to a widget, never to the whole application: the
    // hourglass to the main window (a file chooser opened under it, a window
    // of its own, shows the arrow), the cross and the sizing cursors to the
    // design screen (they show only while the mouse is over it).
    QWidget* window = cursorWindow_ ? cursorWindow_.data() : parent_.data();
    QWidget* canvas = cursorCanvas_ ? cursorCanvas_.data() : window;
    Qt::CursorShape qt = Qt::ArrowCursor;
    switch (shape) {
    case CursorShape::Arrow:
        if (window) window->unsetCursor();
        if (canvas) canvas->unsetCursor();
        return;
    case CursorShape::Hourglass:
        if (window) window->setCursor(Qt::WaitCursor);
        return;
    case CursorShape::Cross:
        qt = Qt::CrossCursor;
        break;
    case CursorShape::SizeNWSE:
        qt = Qt::SizeFDiagCursor;
        break;
    case CursorShape::SizeNS:
        qt = Qt::SizeVerCursor;
        break;
    case CursorShape::SizeNESW:
        qt = Qt::SizeBDiagCursor;
        break;
    case CursorShape::SizeWE:
        qt = Qt::SizeHorCursor;
        break;
    }
    if (canvas) canvas->setCursor(qt);
}

void QtHost::OpenInViewer(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(FromLocalPath(path)));
}

void QtHost::OpenMail(const std::string& address, const std::string&) {
    // The desktop's mail program runs in its own process; the working
    // directory is of no use to it here.
    QDesktopServices::openUrl(QUrl(QStringLiteral("mailto:") + FromCp1252(address)));
}

bool QtHost::FileExists(const std::string& path) {
    if (path.empty()) return false;
    return QFileInfo(FromLocalPath(path)).isFile();
}

std::string QtHost::ProgramDirectory() {
    return ToLocalPath(QCoreApplication::applicationDirPath());
}

int QtHost::LanguageIdFor(QLocale::Language language) {
    switch (language) {
    case QLocale::German:
        return 1031;
    case QLocale::Japanese:
        return 1041;
    default:
        return 1033;
    }
}

int QtHost::LanguageId() { return LanguageIdFor(QLocale().language()); }

}  // namespace tolva
