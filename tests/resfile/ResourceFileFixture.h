#pragma once
// The fixture of the tests of whole files: the screen of the screen tests,
// temporary paths, the bytes of a file and the golden files of tests/data.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "screen/ScreenFiles.h"
#include "screen/ScreenFixture.h"
#include "resfile/FakeRecordObjects.h"

namespace tolva::testing {

inline std::string ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline std::string Golden(const std::string& name) {
    return ReadBytes(std::string(TOLVA_TEST_DATA_DIR) + "/" + name);
}

// The lines of a file's bytes, each ended by CR LF.
inline std::vector<std::string> FileLines(const std::string& bytes) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t end; (end = bytes.find("\r\n", start)) != std::string::npos; start = end + 2)
        lines.push_back(bytes.substr(start, end - start));
    return lines;
}

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

class ResourceFileTest : public ScreenTest {
protected:
    std::string path;

    void SetUp() override {
        ScreenTest::SetUp();
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        path = ::testing::TempDir() + "tolva_" + info->test_suite_name() + "_" + info->name();
    }
    void TearDown() override { std::remove(path.c_str()); }

    // Loads the bytes as Open does, onto a cleared screen and a host with no
    // messages yet; the load's answer.
    bool Reload(const std::string& bytes) {
        WriteBytes(path, bytes);
        screen.ClearScreen();
        host.ClearRecord();
        screen.StartLoading();
        const bool ok = LoadResourceFile(screen, path);
        screen.StopLoading();
        return ok;
    }

    // The text with the first `from` replaced by `to`; a `from` that is not
    // there fails the test.
    static std::string Replaced(std::string text, const std::string& from, const std::string& to) {
        const auto at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        if (at != std::string::npos) text.replace(at, from.size(), to);
        return text;
    }

    FakeRecordForm* AddForm(const std::string& name) {
        return static_cast<FakeRecordForm*>(
            screen.Inject(type::Form, std::make_unique<FakeRecordForm>(name)));
    }
    FakeRecordTable* AddTable(const std::string& name) {
        return static_cast<FakeRecordTable*>(
            screen.Inject(type::Table, std::make_unique<FakeRecordTable>(name)));
    }
    KomaObject* Add(int screenType, const std::string& name) {
        return screen.Inject(screenType, std::make_unique<FakeRecordObject>(screenType, name));
    }

    // Two forms, the first with two menus; a table with a button and a
    // string in its cells; a button and a string on no form.
    void BuildDesignWithMenus() {
        AddForm("FORM_MAIN")->SetMenus({{"Open", "Close // all"}, {}}, {"MENU_FILE", "MENU_EDIT"});
        AddForm("FORM_ABOUT");
        AddTable("TABLE_1")->cells = {{"BUTTON_TABLE_1_CELL_1_1", "40"},
                                      {"STRING_TABLE_1_CELL_1_2", "41"}};
        Add(type::String, "STRING_1");
        Add(type::Button, "BUTTON_OK");
    }
};

}  // namespace tolva::testing
