#pragma once
// QuietHost: a host for the fuzzer. Every box is answered with its first
// button and forgotten, every chooser is cancelled, no file exists but for
// the program's own data, and nothing reaches the desktop.
#include "document/Host.h"

namespace tolva::fuzz {

class QuietHost : public Host {
public:
    explicit QuietHost(std::string programDirectory) : programDirectory_(std::move(programDirectory)) {}

    int messageCount = 0;

    MessageAnswer MessageBox(const std::string&, const std::string&, MessageButtons buttons) override {
        ++messageCount;
        return buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::Yes;
    }
    std::optional<std::string> ChooseOpenFile(const FileChooserRequest&) override { return {}; }
    std::optional<std::string> ChooseSaveFile(const FileChooserRequest&) override { return {}; }
    std::string GetSetting(const std::string&, const std::string&, const std::string&,
                           const std::string& defaultValue) override {
        return defaultValue;
    }
    void SaveSetting(const std::string&, const std::string&, const std::string&,
                     const std::string&) override {}
    std::optional<PictureSize> LoadPicture(const std::string&) override { return {}; }
    std::optional<int> PopupMenu(const std::string&, const std::vector<std::string>&) override {
        return {};
    }
    void SetCursor(CursorShape) override {}
    void OpenInViewer(const std::string&) override {}
    void OpenMail(const std::string&, const std::string&) override {}
    bool FileExists(const std::string&) override { return false; }
    std::string ProgramDirectory() override { return programDirectory_; }
    int LanguageId() override { return 1033; }

private:
    std::string programDirectory_;
};

}  // namespace tolva::fuzz
