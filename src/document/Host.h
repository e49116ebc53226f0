#pragma once
// Host: every service of the desktop that the core needs, behind one
// interface. The window layer provides QtHost; the tests a ScriptedHost that
// records each call and answers from a script; the command-line companion a
// host that writes messages to standard error.
#include <optional>
#include <string>
#include <vector>

namespace tolva {

class DialogModel;

// The application's title, shown by a message box whose title is empty.
inline constexpr const char* kApplicationTitle = "Tolva Resource Editor";

enum class MessageButtons { OK, YesNo, YesNoCancel };
enum class MessageAnswer { OK, Yes, No, Cancel };

enum class CursorShape {
    Arrow,
    Hourglass,
    Cross,
    SizeNWSE,  // north-west to south-east
    SizeNS,    // north to south
    SizeNESW,  // north-east to south-west
    SizeWE     // west to east
};

struct FileChooserRequest {
    std::string title;             // empty: the host's own title
    std::string defaultExtension;  // "*.txt", "*.h", "*.bmp"
    std::string filter;            // "Resource Files (*.txt)|*.txt|"
    std::string initialName;       // empty or a file name
};

struct PictureSize {
    int width = 0;   // pixels
    int height = 0;  // pixels
};

// An entry of a popup menu: the name its item carries, so that it can be
// found like any other control, and its text.
struct PopupEntry {
    std::string name;
    std::string text;
};

// Told of the user's answers that may change the design, as they come: an
// entry chosen in an object's popup menu, a dialog opened and closed. The
// main window keeps its history of steps by them.
class HostObserver {
public:
    virtual ~HostObserver() = default;
    virtual void PopupChosen(const std::string& entryText) {}
    virtual void DialogOpening(const std::string& dialogName) {}
    virtual void DialogClosed(const std::string& dialogName, bool accepted) {}
};

class Host {
public:
    virtual ~Host() = default;

    // The observer of the answers, or none.
    void SetObserver(HostObserver* observer) { observer_ = observer; }
    HostObserver* Observer() const { return observer_; }

    // A message box. An empty title shows kApplicationTitle.
    virtual MessageAnswer MessageBox(const std::string& text, const std::string& title = "",
                                     MessageButtons buttons = MessageButtons::OK) = 0;

    // File choosers. A cancel gives no value.
    virtual std::optional<std::string> ChooseOpenFile(const FileChooserRequest& request) = 0;
    virtual std::optional<std::string> ChooseSaveFile(const FileChooserRequest& request) = 0;

    // Settings store: application, section, key.
    virtual std::string GetSetting(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& defaultValue) = 0;
    virtual void SaveSetting(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) = 0;

    // Loads a ".bmp" picture: its size in pixels, or nothing on failure.
    virtual std::optional<PictureSize> LoadPicture(const std::string& path) = 0;

    // A popup menu with a title and its entries; the index (from 0) of the
    // chosen entry, or nothing. An entry's text "-" is a separator.
    virtual std::optional<int> PopupMenu(const std::string& title,
                                         const std::vector<PopupEntry>& entries) = 0;

    virtual void SetCursor(CursorShape shape) = 0;

    // Runs the dialog the model names, modally, on the model; true when it
    // was closed with OK. A host with no such dialog answers false at once.
    virtual bool RunDialog(DialogModel& model) = 0;

    // Opens a saved file in the desktop's viewer for text.
    virtual void OpenInViewer(const std::string& path) = 0;
    // Opens a new mail message to the address, with the working directory.
    virtual void OpenMail(const std::string& address, const std::string& workingDirectory) = 0;

    virtual bool FileExists(const std::string& path) = 0;
    // The directory of the running program, with no final separator.
    virtual std::string ProgramDirectory() = 0;

    // The desktop's language as a Windows language id (1033 English,
    // 1031 German, 1041 Japanese, ...).
    virtual int LanguageId() = 0;

private:
    HostObserver* observer_ = nullptr;
};

}  // namespace tolva
