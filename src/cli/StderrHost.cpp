#include "cli/StderrHost.h"

#include <filesystem>

#include "canvas/BmpPicture.h"

namespace tolva {

namespace fs = std::filesystem;

std::string StderrHost::BoxLine(const std::string& text, const std::string& title) {
    return (title.empty() ? std::string(kApplicationTitle) : title) + ": " + text;
}

MessageAnswer StderrHost::MessageBox(const std::string& text, const std::string& title,
                                     MessageButtons buttons) {
    err_ << BoxLine(text, title) << '\n';
    err_.flush();
    // The first button of the box.
    return buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::Yes;
}

std::optional<PictureSize> StderrHost::LoadPicture(const std::string& path) {
    const auto picture = ReadBmpFile(path);
    if (!picture) return std::nullopt;
    return PictureSize{picture->width, picture->height};
}

bool StderrHost::FileExists(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) return false;
    std::error_code ec;
    return fs::is_regular_file(fs::path(path), ec);
}

std::string StderrHost::ProgramDirectory() {
    std::error_code ec;
    const fs::path self = fs::read_symlink("/proc/self/exe", ec);
    if (ec || self.empty()) return ".";
    return self.parent_path().string();
}

}  // namespace tolva
