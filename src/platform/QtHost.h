#pragma once
// QtHost: the desktop's services for the core, made of Qt's message boxes,
// file dialogs, settings, image loader, popup menus, cursors and desktop
// services. Text crosses here between Unicode and the core's Windows-1252.
#include <QLocale>
#include <QPointer>
#include <QWidget>

#include "document/Host.h"

namespace tolva {

class QtHost : public Host {
public:
    QtHost() = default;

    // A start check (an installer's test that the program starts): every
    // message box is written to standard error and answered at once.
    void SetStartCheck(bool on) { startCheck_ = on; }

    // The window that owns the dialogs; without one, the active window.
    void SetParentWidget(QWidget* parent) { parent_ = parent; }
    // Where the cursors go: the hourglass onto the window, the cross and
    // the sizing cursors onto the design screen. Without them, both go onto
    // the parent widget.
    void SetCursorWidgets(QWidget* window, QWidget* canvas) {
        cursorWindow_ = window;
        cursorCanvas_ = canvas;
    }

    MessageAnswer MessageBox(const std::string& text, const std::string& title,
                             MessageButtons buttons) override;
    std::optional<std::string> ChooseOpenFile(const FileChooserRequest& request) override;
    std::optional<std::string> ChooseSaveFile(const FileChooserRequest& request) override;
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& defaultValue) override;
    void SaveSetting(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) override;
    std::optional<PictureSize> LoadPicture(const std::string& path) override;
    std::optional<int> PopupMenu(const std::string& title,
                                 const std::vector<PopupEntry>& entries) override;
    void SetCursor(CursorShape shape) override;
    // Runs the dialog registered under the model's name (DialogRegistry.h).
    bool RunDialog(DialogModel& model) override;
    void OpenInViewer(const std::string& path) override;
    void OpenMail(const std::string& address, const std::string& workingDirectory) override;
    bool FileExists(const std::string& path) override;
    std::string ProgramDirectory() override;
    int LanguageId() override;

    // The Windows language id of a language: English 1033, German 1031,
    // Japanese 1041; any other gives English.
    static int LanguageIdFor(QLocale::Language language);
    // The organisation under which the settings are kept.
    static constexpr const char* kSettingsOrganisation = "Tolva";

private:
    QWidget* DialogParent() const;
    std::optional<std::string> ChooseFile(const FileChooserRequest& request, bool save);

    QPointer<QWidget> parent_;
    QPointer<QWidget> cursorWindow_;
    QPointer<QWidget> cursorCanvas_;
    bool startCheck_ = false;
};

}  // namespace tolva
