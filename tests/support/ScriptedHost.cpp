#include "support/ScriptedHost.h"

#include <algorithm>
#include <filesystem>

namespace tolva::testing {

std::string ScriptedHost::ShownTitle(const RecordedMessage& m) {
    return m.title.empty() ? std::string(kApplicationTitle) : m.title;
}

std::vector<std::string> ScriptedHost::MessageLines() const {
    std::vector<std::string> out;
    for (const auto& m : messages) out.push_back(ShownTitle(m) + ": " + m.text);
    return out;
}

void ScriptedHost::ClearRecord() {
    messages.clear();
    openRequests.clear();
    saveRequests.clear();
    viewerOpened.clear();
    mailOpened.clear();
    cursors.clear();
    popups.clear();
    popupNames.clear();
    dialogs.clear();
}

MessageAnswer ScriptedHost::MessageBox(const std::string& text, const std::string& title,
                                       MessageButtons buttons) {
    MessageAnswer answer = buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::Yes;
    if (!messageAnswers.empty()) {
        answer = messageAnswers.front();
        messageAnswers.pop_front();
    }
    messages.push_back({text, title, buttons, answer});
    return answer;
}

std::optional<std::string> ScriptedHost::ChooseOpenFile(const FileChooserRequest& request) {
    openRequests.push_back(request);
    if (fileAnswers.empty()) return std::nullopt;
    auto answer = fileAnswers.front();
    fileAnswers.pop_front();
    return answer;
}

std::optional<std::string> ScriptedHost::ChooseSaveFile(const FileChooserRequest& request) {
    saveRequests.push_back(request);
    if (fileAnswers.empty()) return std::nullopt;
    auto answer = fileAnswers.front();
    fileAnswers.pop_front();
    return answer;
}

std::string ScriptedHost::GetSetting(const std::string&, const std::string& section,
                                     const std::string& key, const std::string& defaultValue) {
    auto it = settings.find(section + "/" + key);
    return it == settings.end() ? defaultValue : it->second;
}

void ScriptedHost::SaveSetting(const std::string&, const std::string& section,
                               const std::string& key, const std::string& value) {
    settings[section + "/" + key] = value;
}

std::optional<PictureSize> ScriptedHost::LoadPicture(const std::string& path) {
    auto it = pictures.find(path);
    if (it == pictures.end()) return std::nullopt;
    return it->second;
}

std::optional<int> ScriptedHost::PopupMenu(const std::string& title,
                                           const std::vector<PopupEntry>& entries) {
    std::vector<std::string> texts;
    std::vector<std::string> names;
    for (const PopupEntry& entry : entries) {
        texts.push_back(entry.text);
        names.push_back(entry.name);
    }
    popups.emplace_back(title, texts);
    popupNames.push_back(names);
    if (popupAnswers.empty()) return std::nullopt;
    auto answer = popupAnswers.front();
    popupAnswers.pop_front();
    // Told as the desktop host tells it: an entry was chosen.
    if (answer && *answer >= 0 && static_cast<std::size_t>(*answer) < entries.size() && Observer())
        Observer()->PopupChosen(entries[static_cast<std::size_t>(*answer)].text);
    return answer;
}

void ScriptedHost::SetCursor(CursorShape shape) { cursors.push_back(shape); }

bool ScriptedHost::RunDialog(DialogModel& model) {
    dialogs.push_back(model.DialogName());
    if (dialogAnswers.empty()) return false;
    auto answer = std::move(dialogAnswers.front());
    dialogAnswers.pop_front();
    // Told as the desktop host tells it: the dialog opened and closed.
    if (Observer()) Observer()->DialogOpening(model.DialogName());
    const bool accepted = answer(model);
    if (Observer()) Observer()->DialogClosed(model.DialogName(), accepted);
    return accepted;
}
void ScriptedHost::OpenInViewer(const std::string& path) { viewerOpened.push_back(path); }
void ScriptedHost::OpenMail(const std::string& address, const std::string&) {
    mailOpened.push_back(address);
}

bool ScriptedHost::FileExists(const std::string& path) {
    if (std::find(existingFiles.begin(), existingFiles.end(), path) != existingFiles.end())
        return true;
    if (pictures.count(path)) return true;
    if (!useRealFileSystem) return false;
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

std::string ScriptedHost::ProgramDirectory() { return programDirectory; }
int ScriptedHost::LanguageId() { return languageId; }

int RecordingLog::CountStartingWith(const std::string& prefix) const {
    return static_cast<int>(std::count_if(lines.begin(), lines.end(), [&](const std::string& l) {
        return l.rfind(prefix, 0) == 0;
    }));
}

}  // namespace tolva::testing
