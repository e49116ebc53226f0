#pragma once
// QuietHost: a host for the fuzzer. Every box is answered with its first
// button and forgotten, every chooser is cancelled, and nothing reaches the
// desktop. Files are the real ones: the fuzzer works in a directory of its
// own that holds a few pictures, so records that name them load them, with
// the program's own reader, and the picture rules run too.
#include <filesystem>

#include "canvas/BmpPicture.h"
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
    std::optional<PictureSize> LoadPicture(const std::string& path) override {
        const auto picture = ReadBmpFile(path);
        if (!picture) return {};
        return PictureSize{picture->width, picture->height};
    }
    std::optional<int> PopupMenu(const std::string&, const std::vector<PopupEntry>&) override {
        return {};
    }
    void SetCursor(CursorShape) override {}
    bool RunDialog(DialogModel&) override { return false; }
    void OpenInViewer(const std::string&) override {}
    void OpenMail(const std::string&, const std::string&) override {}
    bool FileExists(const std::string& path) override {
        std::error_code error;
        return !path.empty() && std::filesystem::exists(path, error);
    }
    std::string ProgramDirectory() override { return programDirectory_; }
    int LanguageId() override { return 1033; }

private:
    std::string programDirectory_;
};

}  // namespace tolva::fuzz
