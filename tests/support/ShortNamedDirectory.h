#pragma once
// A fresh directory of short name under the system's temporary one, made
// the current directory for as long as the object lives, so that the
// relative picture paths of a test fit the 8.3 rule. The old current
// directory comes back and the directory goes at the end.
#include <filesystem>
#include <random>
#include <string>

namespace tolva::testing {

class ShortNamedDirectory {
public:
    explicit ShortNamedDirectory(const std::string& prefix = "t") {
        previous_ = std::filesystem::current_path();
        std::random_device random;
        for (int attempt = 0; attempt < 100 && root_.empty(); ++attempt) {
            const auto candidate = std::filesystem::temp_directory_path() /
                                   (prefix + std::to_string(random() % 10000000));
            if (std::filesystem::create_directory(candidate)) root_ = candidate;
        }
        if (!root_.empty()) std::filesystem::current_path(root_);
    }
    ~ShortNamedDirectory() {
        std::filesystem::current_path(previous_);
        std::error_code ec;
        if (!root_.empty()) std::filesystem::remove_all(root_, ec);
    }
    ShortNamedDirectory(const ShortNamedDirectory&) = delete;
    ShortNamedDirectory& operator=(const ShortNamedDirectory&) = delete;

    bool Made() const { return !root_.empty(); }

private:
    std::filesystem::path previous_;
    std::filesystem::path root_;
};

}  // namespace tolva::testing
