#include "document/StringTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "document/PropertyLabels.h"

namespace tolva {
namespace {

const std::string kDataFile = std::string(TOLVA_SOURCE_DATA_DIR) + "/Strings.txt";

std::string ReadWhole(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

StringTable LoadDataFile(int language = 1033) {
    StringTable table;
    EXPECT_TRUE(table.LoadFromFile(kDataFile)) << kDataFile;
    table.SetLanguage(language);
    return table;
}

// Every English label, word for word.
const std::vector<std::pair<int, std::string>> kLabels = {
        {101, "Name"},
        {102, "X Pos"},
        {103, "Y Pos"},
        {104, "Height"},
        {105, "Width"},
        {106, "Enabled"},
        {107, "Active"},
        {108, "Visible"},
        {109, "Text"},
        {110, "Text Alignment"},
        {111, "Radius"},
        {112, "Font Color"},
        {113, "Background Color"},
        {114, "Baseline Type"},
        {115, "Font"},
        {116, "Max Num Chars Allowed"},
        {117, "Highlight Start Pos"},
        {118, "Highlight End Pos"},
        {119, "Show Highlight"},
        {120, "Show Insert Point"},
        {121, "Top Line Number"},
        {122, "Properties"},
        {123, "Bitmap Color Depth"},
        {1001, "Form Bitmap"},
        {1002, "Form Style"},
        {1003, "Form Title"},
        {1004, "Focused Object"},
        {1005, "Form"},
        {1101, "Bitmap Style"},
        {1102, "Bitmap 1 (Clicked)"},
        {1103, "Bitmap 2 (Unclicked)"},
        {1201, "Button Style"},
        {1202, "Clicked Color"},
        {1203, "Unclicked Color"},
        {1301, "Checkbox Style"},
        {1302, "Checked Bitmap File"},
        {1303, "Unchecked Bitmap File"},
        {1304, "Initial Value"},
        {1401, "Field Style"},
        {1402, "Cursor Pos"},
        {1403, "Modified Flag"},
        {1404, "Show Scrollbar"},
        {1405, "Full Size In Table Cell"},
        {1406, "Edit Field..."},
        {1501, "Start X"},
        {1502, "Start Y"},
        {1503, "End X"},
        {1504, "End Y"},
        {1505, "Thickness"},
        {1506, "Line Style"},
        {1507, "Line Color"},
        {1601, "List Style"},
        {1602, "Set Scroll"},
        {1603, "Synchronous"},
        {1604, "Edit List..."},
        {1701, "Popup Trigger Style"},
        {1801, "Push Button Style"},
        {1802, "Pushed Color"},
        {1803, "Popped Color"},
        {1901, "Repeat Button Style"},
        {1902, "Bitmap File"},
        {2001, "Scrollbar Style"},
        {2002, "Orientation"},
        {2003, "Max Value"},
        {2004, "Min Value"},
        {2005, "Current Value"},
        {2006, "Page Size"},
        {2007, "Up/Left Bitmap File"},
        {2008, "Down/Right Bitmap File"},
        {2101, "String Style"},
        {2201, "Table Style"},
        {2202, "Scrollbar"},
        {2203, "Highlight Enabled"},
        {2204, "Table Bitmap..."},
        {2205, "Edit Table..."},
        {2301, "Textbox Style"},
        {2302, "Left Char Pos"},
        {2303, "Right Char Pos"},
        {2304, "Insert Point Char Pos"},
        {2305, "Modified Flag"},
        {2306, "Show Highlight"},
        {2307, "Show Insert Point"},
};

// Every message, word for word, double blanks and misprints included.
const std::vector<std::pair<int, std::string>> kMessages = {
        {5001, "Are you sure you want to delete this form and all embedded objects?"},
        {5002, "Confirm Form Delete"},
        {5003, "You must draw a form before you can draw other controls"},
        {5004, "Couldn't Create Object"},
        {5005, "Both bitmaps must be the same size."},
        {5007,
         "This bitmap is larger than 160 in one of its dimensions.  The bitmap "
         "must be less than 160 pixels in width and height."},
        {5008, "Bitmap not found"},
        {5009, "Object name must be unique"},
        {5010, "Could not load resource file"},
        {5011, "Manual resize not allowed for this object"},
        {5012, "Resize not allowed"},
        {5013,
         "This file path is not in 8.3 format.  Please make sure all directory "
         "names and the filename don't have more than 8 chars each so that the "
         "resource compiler will be able to find the file."},
        {5014,
         "Invalid scrollbar min value.  Make sure the min value is between 0 "
         "and the max value\""},
        {5015,
         "Invalid scrollbar max value.  Make sure the min value is greater than "
         "the min value"},
        {5016,
         "Invalid scrollbar value.  Make sure the current value is between the "
         "min and max values"},
        {5017, "The resource file being loaded contains multiple objects with the same ID."},
        {5018, "The resource file being loaded specifies a form being embedded in a form."},
        {5019,
         "The resource file specifies more than one object having the same "
         "name.  The name of the succeeding object has been changed to "},
        {5020, "You did not specify a bitmap so this data has been put here by default"},
        {5021,
         "Make sure you place ALL bitmaps specified in the resource file in the "
         "same directory as the resource file since the resource compiler can't "
         "currently resolve all paths."},
};

// --- the data file -------------------------------------------------------------

TEST(StringTableFile, EveryLineIsWellFormed) {
    const std::string text = ReadWhole(kDataFile);
    ASSERT_FALSE(text.empty()) << kDataFile;
    EXPECT_EQ(text.back(), '\n');
    EXPECT_EQ(text.find('\r'), std::string::npos);

    std::set<std::pair<int, int>> seen;
    std::istringstream lines(text);
    std::string line;
    int lineNumber = 0;
    while (std::getline(lines, line)) {
        ++lineNumber;
        if (!line.empty() && line[0] == '#') continue;
        ASSERT_FALSE(line.empty()) << "line " << lineNumber;
        const size_t tab1 = line.find('\t');
        ASSERT_NE(tab1, std::string::npos) << "line " << lineNumber;
        const size_t tab2 = line.find('\t', tab1 + 1);
        ASSERT_NE(tab2, std::string::npos) << "line " << lineNumber;
        EXPECT_EQ(line.find('\t', tab2 + 1), std::string::npos) << "line " << lineNumber;
        const std::string language = line.substr(0, tab1);
        const std::string number = line.substr(tab1 + 1, tab2 - tab1 - 1);
        EXPECT_TRUE(language == "1033" || language == "1031" || language == "1041")
            << "line " << lineNumber;
        ASSERT_FALSE(number.empty()) << "line " << lineNumber;
        EXPECT_EQ(number.find_first_not_of("0123456789"), std::string::npos)
            << "line " << lineNumber;
        EXPECT_GT(line.size(), tab2 + 1) << "empty text on line " << lineNumber;
        for (unsigned char c : line.substr(tab2 + 1)) {
            EXPECT_TRUE(c >= 32 && c < 127) << "line " << lineNumber;
        }
        EXPECT_TRUE(seen.insert({std::stoi(language), std::stoi(number)}).second)
            << "twice: line " << lineNumber;
    }
}

TEST(StringTableFile, EnglishHoldsExactlyTheLabelsAndMessages) {
    const StringTable table = LoadDataFile();
    std::set<int> expected(PropertyLabelNumbers().begin(), PropertyLabelNumbers().end());
    for (int n = 5001; n <= 5021; ++n) {
        if (n != 5006) expected.insert(n);
    }
    EXPECT_EQ(expected.size(), 82u + 20u);
    for (int n = 0; n <= 6000; ++n) {
        EXPECT_EQ(table.Has(1033, n), expected.count(n) != 0) << n;
    }
}

TEST(StringTableFile, GermanAndJapaneseHoldOnlyTheirStubs) {
    const StringTable table = LoadDataFile();
    const std::set<int> japanese = {101, 102, 103, 104, 105, 1001, 1002, 1003, 1004};
    for (int n = 0; n <= 6000; ++n) {
        EXPECT_EQ(table.Has(1031, n), n == 101) << n;
        EXPECT_EQ(table.Has(1041, n), japanese.count(n) != 0) << n;
    }
}

// --- the texts -----------------------------------------------------------------

TEST(StringTableTexts, EveryLabelInEnglish) {
    const StringTable table = LoadDataFile();
    ASSERT_EQ(kLabels.size(), PropertyLabelNumbers().size());
    for (const auto& [number, text] : kLabels) EXPECT_EQ(table.Get(number), text) << number;
}

TEST(StringTableTexts, EveryMessageInEnglish) {
    const StringTable table = LoadDataFile();
    ASSERT_EQ(kMessages.size(), 20u);
    for (const auto& [number, text] : kMessages) EXPECT_EQ(table.Get(number), text) << number;
}

TEST(StringTableTexts, ThereIsNoMessage5006) {
    const StringTable table = LoadDataFile();
    EXPECT_FALSE(table.Has(1033, 5006));
    EXPECT_EQ(table.Get(5006), "");
}

TEST(StringTableTexts, MisprintsAndOddEndsAreKept) {
    const StringTable table = LoadDataFile();
    const std::string min = table.Get(5014);
    ASSERT_FALSE(min.empty());
    EXPECT_EQ(min.back(), '"');
    EXPECT_NE(table.Get(5015).find("the min value is greater than the min value"),
              std::string::npos);
    // 5019 ends in a blank: the new name follows it.
    EXPECT_EQ(table.Get(5019).back(), ' ');
    // Two blanks after each full stop inside a message.
    EXPECT_NE(table.Get(5013).find("format.  Please"), std::string::npos);
}

TEST(StringTableTexts, MessageNumbersOfTheProgram) {
    const StringTable table = LoadDataFile();
    EXPECT_EQ(table.Get(msg::ConfirmFormDelete),
              "Are you sure you want to delete this form and all embedded objects?");
    EXPECT_EQ(table.Get(msg::ConfirmFormDeleteTitle), "Confirm Form Delete");
    EXPECT_EQ(table.Get(msg::DrawFormFirst),
              "You must draw a form before you can draw other controls");
    EXPECT_EQ(table.Get(msg::CouldNotCreateObject), "Couldn't Create Object");
    EXPECT_EQ(table.Get(msg::BitmapsSameSize), "Both bitmaps must be the same size.");
    EXPECT_EQ(msg::BitmapTooLarge, 5007);
    EXPECT_EQ(table.Get(msg::BitmapNotFound), "Bitmap not found");
    EXPECT_EQ(table.Get(msg::NameMustBeUnique), "Object name must be unique");
    EXPECT_EQ(table.Get(msg::CouldNotLoadResourceFile), "Could not load resource file");
    EXPECT_EQ(table.Get(msg::ManualResizeNotAllowed), "Manual resize not allowed for this object");
    EXPECT_EQ(table.Get(msg::ResizeNotAllowed), "Resize not allowed");
    EXPECT_EQ(msg::PathNotShort, 5013);
    EXPECT_EQ(msg::InvalidScrollbarMin, 5014);
    EXPECT_EQ(msg::InvalidScrollbarMax, 5015);
    EXPECT_EQ(msg::InvalidScrollbarValue, 5016);
    EXPECT_EQ(msg::DuplicateIds, 5017);
    EXPECT_EQ(msg::FormInForm, 5018);
    EXPECT_EQ(msg::DuplicateNames, 5019);
    EXPECT_EQ(table.Get(msg::NoBitmapDefault),
              "You did not specify a bitmap so this data has been put here by default");
    EXPECT_EQ(msg::PlaceAllBitmaps, 5021);
}

// --- languages -----------------------------------------------------------------

TEST(StringTableLanguage, EnglishByDefault) {
    StringTable table;
    table.LoadFromFile(kDataFile);
    EXPECT_EQ(table.Language(), 1033);
    EXPECT_EQ(table.Get(101), "Name");
}

TEST(StringTableLanguage, GermanHasOnlyItsStubAndFallsBackToEnglish) {
    const StringTable table = LoadDataFile(1031);
    EXPECT_EQ(table.Get(101), "Germ");
    EXPECT_EQ(table.Get(102), "X Pos");
    EXPECT_EQ(table.Get(1001), "Form Bitmap");
    EXPECT_EQ(table.Get(5009), "Object name must be unique");
}

TEST(StringTableLanguage, JapaneseHasItsStubsAndFallsBackToEnglish) {
    const StringTable table = LoadDataFile(1041);
    for (int n : {101, 102, 103, 104, 105, 1001, 1002, 1003, 1004}) {
        EXPECT_EQ(table.Get(n), "Jap") << n;
    }
    EXPECT_EQ(table.Get(106), "Enabled");
    EXPECT_EQ(table.Get(1005), "Form");
    EXPECT_EQ(table.Get(5002), "Confirm Form Delete");
}

TEST(StringTableLanguage, UnknownLanguageFallsBackToEnglish) {
    const StringTable table = LoadDataFile(1036);
    EXPECT_EQ(table.Get(101), "Name");
    EXPECT_EQ(table.Get(5012), "Resize not allowed");
}

TEST(StringTableLanguage, NumberInNoLanguageGivesEmptyText) {
    const StringTable table = LoadDataFile(1041);
    EXPECT_EQ(table.Get(100), "");
    EXPECT_EQ(table.Get(9999), "");
    EXPECT_EQ(table.Get(-1), "");
}

// --- reading -------------------------------------------------------------------

TEST(StringTableReading, KeepsBlanksAndAcceptsCarriageReturns) {
    StringTable table;
    table.LoadFromText("# comment\r\n1033\t1\t two  blanks \r\n\r\n1033\t2\tx\ty\n1031\t1\tG");
    EXPECT_EQ(table.Get(1), " two  blanks ");
    EXPECT_EQ(table.Get(2), "x\ty");
    table.SetLanguage(1031);
    EXPECT_EQ(table.Get(1), "G");
    EXPECT_EQ(table.Get(2), "x\ty");
}

TEST(StringTableReading, DamagedLinesArePassedOver) {
    StringTable table;
    table.LoadFromText(
        "1033\t7\tgood\n"
        "no tabs at all\n"
        "1033\tseven\tbad number\n"
        "English\t8\tbad language\n"
        "1033\t9\n"
        "-1033\t10\tsign\n"
        "\t11\tno language\n"
        "1033\t12\t\n");
    EXPECT_EQ(table.Get(7), "good");
    EXPECT_FALSE(table.Has(1033, 8));
    EXPECT_FALSE(table.Has(1033, 9));
    EXPECT_FALSE(table.Has(1033, 10));
    EXPECT_FALSE(table.Has(1033, 11));
    EXPECT_TRUE(table.Has(1033, 12));  // an empty text is still a text
    EXPECT_EQ(table.Get(12), "");
}

TEST(StringTableReading, LoadingReplacesTheTableButKeepsTheLanguage) {
    StringTable table;
    table.SetLanguage(1031);
    table.LoadFromText("1033\t1\tone\n");
    table.LoadFromText("1033\t2\ttwo\n");
    EXPECT_FALSE(table.Has(1033, 1));
    EXPECT_EQ(table.Get(2), "two");
    EXPECT_EQ(table.Language(), 1031);
}

TEST(StringTableReading, MissingFileLeavesTheTableAsItWas) {
    StringTable table;
    table.LoadFromText("1033\t1\tone\n");
    EXPECT_FALSE(table.LoadFromFile(std::string(TOLVA_SOURCE_DATA_DIR) + "/NoSuchFile.txt"));
    EXPECT_EQ(table.Get(1), "one");
}

// --- the program's table ---------------------------------------------------------

TEST(SharedStringTable, ReadsTheFileBesideTheProgram) {
    StringTable& shared = StringTable::Shared();
    const int language = shared.Language();
    shared.SetLanguage(1033);
    EXPECT_EQ(LoadResString(5009), "Object name must be unique");
    EXPECT_EQ(LoadResString(101), "Name");
    shared.SetLanguage(1031);
    EXPECT_EQ(LoadResString(101), "Germ");
    EXPECT_EQ(LoadResString(5009), "Object name must be unique");
    shared.SetLanguage(language);
}

// --- the inspector's labels ------------------------------------------------------

TEST(PropertyLabels, NumbersAreTheLabelsOnly) {
    const std::vector<int>& numbers = PropertyLabelNumbers();
    ASSERT_EQ(numbers.size(), 82u);
    EXPECT_EQ(numbers.front(), 101);
    EXPECT_EQ(numbers.back(), 2307);
    for (size_t i = 1; i < numbers.size(); ++i) EXPECT_LT(numbers[i - 1], numbers[i]);
    for (const auto& [number, text] : kLabels) {
        EXPECT_TRUE(std::binary_search(numbers.begin(), numbers.end(), number)) << number;
    }
}

TEST(PropertyLabels, ReadOnceFromTheTableInItsLanguage) {
    StringTable table = LoadDataFile(1041);
    LoadPropertyLabels(table);
    EXPECT_EQ(PropertyLabel(101), "Jap");
    EXPECT_EQ(PropertyLabel(1004), "Jap");
    EXPECT_EQ(PropertyLabel(1005), "Form");
    EXPECT_EQ(PropertyLabel(2307), "Show Insert Point");

    // A later change of the string table does not reach the labels.
    table.SetLanguage(1033);
    EXPECT_EQ(PropertyLabel(101), "Jap");

    LoadPropertyLabels(table);
    for (const auto& [number, text] : kLabels) EXPECT_EQ(PropertyLabel(number), text) << number;
    LoadPropertyLabels(StringTable::Shared());
}

TEST(PropertyLabels, MessagesAndUnknownNumbersAreNoLabels) {
    LoadPropertyLabels(LoadDataFile());
    EXPECT_EQ(PropertyLabel(5001), "");
    EXPECT_EQ(PropertyLabel(124), "");
    EXPECT_EQ(PropertyLabel(0), "");
    LoadPropertyLabels(StringTable::Shared());
}

}  // namespace
}  // namespace tolva
