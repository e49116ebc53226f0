#pragma once
// The folder a benchmark on the load and save benchmark's design works in:
// made in the temporary folder, holding that design at each size asked for
// (OBJECTS.txt, written by `load_save_bench --write`) and the two pictures
// it names (FORM.BMP, ICON.BMP), and entered; on leaving, the benchmark goes
// back beside its program and the folder is removed.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tolva::testing {

class DesignBenchFolder {
public:
    DesignBenchFolder(const std::string& name, const std::string& loadSaveBench,
                      const std::vector<int>& objectCounts, const std::string& pictureBytes)
        : program_(std::filesystem::canonical("/proc/self/exe")),
          folder_(std::filesystem::temp_directory_path() / (name + "-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(folder_);
        ok_ = true;
        for (int objects : objectCounts) {
            const std::string command = "'" + loadSaveBench + "' --write " + std::to_string(objects) +
                                        " '" + (folder_ / DesignFile(objects)).string() + "'";
            ok_ = ok_ && std::system(command.c_str()) == 0;
        }
        std::ofstream(folder_ / "FORM.BMP", std::ios::binary) << pictureBytes;
        std::ofstream(folder_ / "ICON.BMP", std::ios::binary) << pictureBytes;
        std::filesystem::current_path(folder_);
    }
    ~DesignBenchFolder() {
        std::filesystem::current_path(program_.parent_path());
        std::filesystem::remove_all(folder_);
    }
    DesignBenchFolder(const DesignBenchFolder&) = delete;
    DesignBenchFolder& operator=(const DesignBenchFolder&) = delete;

    // Every design was written.
    bool Ok() const { return ok_; }
    // The folder the benchmark's program stands in.
    std::filesystem::path ProgramFolder() const { return program_.parent_path(); }
    static std::string DesignFile(int objects) { return std::to_string(objects) + ".txt"; }

private:
    std::filesystem::path program_;
    std::filesystem::path folder_;
    bool ok_ = false;
};

}  // namespace tolva::testing
