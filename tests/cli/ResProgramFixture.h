#pragma once
// The fixtures of the tests that run tolva-res as a script runs it: in a
// directory of its own, with its exit status and the lines it writes to
// standard error; and one kind's golden design through resave.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "support/BmpBytes.h"
#include "support/FileBytes.h"

namespace tolva::testing {

namespace fs = std::filesystem;

inline std::string Golden(const std::string& name) {
    return ReadFile(fs::path(TOLVA_TEST_DATA_DIR) / name);
}

class ResProgram : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        // Suites may share a test's name: both names make the directory.
        dir = fs::path(::testing::TempDir()) /
              (std::string("tolva_res_") + info->test_suite_name() + "_" + info->name());
        fs::remove_all(dir);
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }

    // Runs the program in the test's directory; its standard error lands in
    // err, its status is the answer.
    int Run(const std::string& arguments) {
        const std::string command = "cd '" + dir.string() + "' && '" TOLVA_RES_PROGRAM "' " +
                                    arguments + " >run.stdout 2>run.stderr";
        const int raw = std::system(command.c_str());
        err = ReadFile(dir / "run.stderr");
        out = ReadFile(dir / "run.stdout");
        return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    }

    // The lines of a record text joined with CR LF.
    static std::string Text(std::initializer_list<const char*> lines) {
        std::string text;
        for (const char* line : lines) text += std::string(line) + "\r\n";
        return text;
    }

    // The worked example's form with one line replaced.
    static std::string FormWith(const std::string& from, const std::string& to) {
        std::string text = Golden("worked_example_form.txt");
        const auto at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
        return text;
    }

    // What a load says of a record that fails at a line, the rest of the
    // file then read as lines between records.
    static std::string FailedRecord(int line, const std::string& text, const std::string& kind) {
        return "Tolva Resource Editor: Error on line " + std::to_string(line) + ":  " + text +
               "\n"
               "Load Error: Could not load " + kind + " object\n"
               "Load Error: Invalid/unsupported resource object\n"
               "Tolva Resource Editor: Could not load resource file\n";
    }

    fs::path dir;
    std::string err;
    std::string out;
};

// The fixture of one kind's golden design, "<stem>.txt" with its header
// "<stem>.h": the form's picture beside it, the design with one piece of
// its text replaced, and the design through resave.
class FullRecordResave : public ResProgram {
protected:
    explicit FullRecordResave(std::string stem) : stem_(std::move(stem)) {}
    void SetUp() override {
        ResProgram::SetUp();
        WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    }
    std::string Full() const { return Golden(stem_ + ".txt"); }
    std::string FullWith(const std::string& from, const std::string& to) const {
        std::string text = Full();
        const auto at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        if (at != std::string::npos) text.replace(at, from.size(), to);
        return text;
    }
    // Both files of a resave equal the golden ones, and nothing is said.
    void ExpectResavedUnchanged() {
        WriteFile(dir / "in.txt", Full());
        EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
        EXPECT_EQ(err, "");
        EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
        EXPECT_EQ(ReadFile(dir / "out.h"), Golden(stem_ + ".h"));
    }

private:
    std::string stem_;
};

}  // namespace tolva::testing
