#pragma once
// ScriptedHost: a Host for tests. It records every call and answers from a
// script: queued answers for message boxes, file choosers and popup menus,
// a settings map, a set of existing files and picture sizes.
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "document/DialogModel.h"
#include "document/Host.h"
#include "document/LogSink.h"

namespace tolva::testing {

struct RecordedMessage {
    std::string text;
    std::string title;  // as given; empty means the application's title
    MessageButtons buttons = MessageButtons::OK;
    MessageAnswer answer = MessageAnswer::OK;
};

class ScriptedHost : public Host {
public:
    // --- script ----------------------------------------------------------------
    // The answers of the next message boxes, in order. With none queued, a box
    // answers OK for OK boxes and Yes for the others.
    std::deque<MessageAnswer> messageAnswers;
    // The next file chooser results; std::nullopt is a cancel. With none
    // queued a chooser is cancelled.
    std::deque<std::optional<std::string>> fileAnswers;
    std::deque<std::optional<int>> popupAnswers;
    // What the next dialogs do: each works on the model and answers true for
    // OK. With none queued a dialog is cancelled untouched.
    std::deque<std::function<bool(DialogModel&)>> dialogAnswers;
    std::map<std::string, std::string> settings;  // "section/key" -> value
    std::map<std::string, PictureSize> pictures;  // path -> size
    std::vector<std::string> existingFiles;       // besides the real file system
    bool useRealFileSystem = true;
    std::string programDirectory = ".";
    int languageId = 1033;

    // --- record ----------------------------------------------------------------
    std::vector<RecordedMessage> messages;
    std::vector<FileChooserRequest> openRequests;
    std::vector<FileChooserRequest> saveRequests;
    std::vector<std::string> viewerOpened;
    std::vector<std::string> mailOpened;
    std::vector<CursorShape> cursors;
    std::vector<std::pair<std::string, std::vector<std::string>>> popups;
    // The entries' names of each popup menu, as the menu's items carry them.
    std::vector<std::vector<std::string>> popupNames;
    // The names of the dialogs run, in order.
    std::vector<std::string> dialogs;

    // The title the box showed: the given one, or the application's title.
    static std::string ShownTitle(const RecordedMessage& m);
    // Messages so far as "title: text" lines, for readable assertions.
    std::vector<std::string> MessageLines() const;
    void ClearRecord();

    // --- Host ----------------------------------------------------------------
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
    bool RunDialog(DialogModel& model) override;
    void OpenInViewer(const std::string& path) override;
    void OpenMail(const std::string& address, const std::string& workingDirectory) override;
    bool FileExists(const std::string& path) override;
    std::string ProgramDirectory() override;
    int LanguageId() override;
};

// A log that keeps every line.
class RecordingLog : public LogSink {
public:
    std::vector<std::string> lines;
    void AddLogLine(const std::string& line) override { lines.push_back(line); }
    // How many lines start with the prefix.
    int CountStartingWith(const std::string& prefix) const;
};

}  // namespace tolva::testing
