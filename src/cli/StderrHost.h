#pragma once
// The host of the command-line companion: every message box becomes one
// line "TITLE: TEXT" on the error stream and is answered with its first
// button; files are the real file system, relative names taken from the
// current directory; no setting is kept, no chooser, menu or dialog is ever answered.
#include <ostream>
#include <string>

#include "document/Host.h"

namespace tolva {

class StderrHost : public Host {
public:
    explicit StderrHost(std::ostream& err) : err_(err) {}

    MessageAnswer MessageBox(const std::string& text, const std::string& title,
                             MessageButtons buttons) override;
    std::optional<std::string> ChooseOpenFile(const FileChooserRequest&) override {
        return std::nullopt;
    }
    std::optional<std::string> ChooseSaveFile(const FileChooserRequest&) override {
        return std::nullopt;
    }
    std::string GetSetting(const std::string&, const std::string&, const std::string&,
                           const std::string& defaultValue) override {
        return defaultValue;
    }
    void SaveSetting(const std::string&, const std::string&, const std::string&,
                     const std::string&) override {}
    std::optional<PictureSize> LoadPicture(const std::string& path) override;
    std::optional<int> PopupMenu(const std::string&, const std::vector<PopupEntry>&) override {
        return std::nullopt;
    }
    void SetCursor(CursorShape) override {}
    // The command line shows no dialog: each is cancelled.
    bool RunDialog(DialogModel&) override { return false; }
    void OpenInViewer(const std::string&) override {}
    void OpenMail(const std::string&, const std::string&) override {}
    bool FileExists(const std::string& path) override;
    std::string ProgramDirectory() override;
    int LanguageId() override { return 1033; }

    // The line a box shows: its title (the application's when it has none),
    // a colon, a blank and its text.
    static std::string BoxLine(const std::string& text, const std::string& title);

private:
    std::ostream& err_;
};

}  // namespace tolva
