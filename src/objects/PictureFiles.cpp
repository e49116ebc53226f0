#include "objects/PictureFiles.h"

#include "document/Paths.h"
#include "document/StringTable.h"
#include "resfile/RecordReader.h"

namespace tolva {

std::optional<PictureSize> CheckedPicture(Host& host, const std::string& path,
                                          const std::string& notFoundTitle) {
    if (!host.FileExists(path)) {
        host.MessageBox(LoadResString(msg::BitmapNotFound), notFoundTitle);
        return std::nullopt;
    }
    if (!IsShortPath(path)) {
        host.MessageBox(LoadResString(msg::PathNotShort), "Couldn't set bitmap");
        return std::nullopt;
    }
    const auto size = host.LoadPicture(path);
    if (!size) host.MessageBox(LoadResString(msg::BitmapNotFound), notFoundTitle);
    return size;
}

std::optional<std::string> ChoosePictureFile(Host& host, const std::string& title,
                                             const std::string& initialName) {
    FileChooserRequest request;
    request.title = title;
    request.filter = "Bitmaps (*.bmp)|*.bmp";
    request.defaultExtension = "*.bmp";
    request.initialName = initialName;
    auto choice = host.ChooseOpenFile(request);
    if (choice && choice->empty()) return std::nullopt;
    return choice;
}

void AppendPictureFileLine(LineList& lines, Host& host, const std::string& keyStart, int depth,
                           const std::string& path) {
    if (!host.FileExists(path)) lines.push_back(kMissingBitmapComment);
    lines.push_back(keyStart + (depth == 2 ? "Q_TWO_BIT," : "Q_FOUR_BIT,") +
                    SplitPath(path, kPathFileName));
}

bool ReadPictureFileLine(const std::string& line, const std::string& keyStart, int& depth,
                         std::string& path) {
    if (LineHasKey(line, (keyStart + "Q_TWO_BIT,").c_str(), path)) {
        depth = 2;
        return true;
    }
    if (LineHasKey(line, (keyStart + "Q_FOUR_BIT,").c_str(), path)) {
        depth = 4;
        return true;
    }
    return false;
}

std::string PicturePlaceRefusal(const char* what, int value) {
    return std::string("Invalid ") + what + " value: " + std::to_string(value);
}

std::string DepthRowWord(int depth) { return depth == 4 ? "4 Bit" : "2 Bit"; }

int DepthFromRowWord(const std::string& word) { return word == "2 Bit" ? 2 : 4; }

const std::vector<std::string>& DepthRowWords() {
    static const std::vector<std::string> words = {"2 Bit", "4 Bit"};
    return words;
}

}  // namespace tolva
