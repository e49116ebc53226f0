// The head of a "#CONTROL" record on the program's own parsers: the style
// word chooses the tail only when the head read it. A head that fails
// before "(B)CONTROL_STYLE=" leaves no style, whatever its type word says,
// and the scan goes on at the line after the failing one.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "resfile/ResourceLoading.h"
#include "resfile/ResourceReader.h"
#include "screen/StandardRecordKinds.h"
#include "support/ScriptedHost.h"
#include "support/TestStrings.h"

namespace tolva::testing {
namespace {

class ControlHead : public ::testing::Test {
protected:
    ScriptedHost host;
    LoadedDesign design;

    void SetUp() override { EnsureStringsLoaded(); }

    // A button record of the worked example with the type word given and
    // the line `broken` put in place of line `at` (counted from 1 at
    // "#CONTROL").
    static std::string Button(const std::string& typeWord, int at, const std::string& broken) {
        std::vector<std::string> lines = {
            "#CONTROL", "NAME=BUTTON_1", "ID=1", "~F0", "(B)OBJECT.TYPE=" + typeWord, "~F1",
            "(U)RELATED_TABLE_ID=65535", "~F2", "(SH)BOUNDS.X=20", "(SH)BOUNDS.Y=40",
            "(SH)BOUNDS.WIDTH=40", "(SH)BOUNDS.HEIGHT=14", "~F3", "(B)CONTROL_STYLE=BUTTON",
            "~F4", "(B)CONTROL_SUBTYPE=BUTTON_STYLE_0", "~F5", "(S)CONTROL_TEXT=OK", "~F6",
            "(B)TEXTMENT=CENTRE", "~F7", "(BO)CONTROL_ATTR.ENABLE=TRUE",
            "(BO)CONTROL_ATTR.ACTIVE=TRUE", "(BO)CONTROL_ATTR.VISIBLE=TRUE", "~F8",
            "(SH)CONTROL_ADD.RADIUS=3", "(B)CONTROL_ADD.COLOR_ON=COLOR_BLACK",
            "(B)CONTROL_ADD.COLOR_OFF=COLOR_WHITE", "#END_CONTROL"};
        if (at > 0) lines[at - 1] = broken;
        std::string text;
        for (const auto& line : lines) text += line + "\r\n";
        return text;
    }

    bool Scan(const std::string& text) {
        ResourceReader reader = ResourceReader::FromText(text);
        return ScanResourceText(reader, host, StandardRecordKinds(), design);
    }
};

TEST_F(ControlHead, AWholeButtonRecordIsRead) {
    EXPECT_TRUE(Scan(Button("CONTROL", 0, "")));
    EXPECT_TRUE(host.MessageLines().empty());
    ASSERT_EQ(design.Store(type::Button).size(), 1u);
    EXPECT_EQ(design.Store(type::Button)[0].kindWord, "BUTTON");
}

TEST_F(ControlHead, ATypeWordOfAStyleDoesNotChooseTheTailWhenTheHeadBreaksBeforeItsStyle) {
    // The related table's line does not fit: the head fails before its
    // style. The type word "BUTTON" must not stand in for the style: no
    // button tail runs, and the scan goes on at "~F2", which ends it.
    EXPECT_FALSE(Scan(Button("BUTTON", 7, "(U)RELATED_TABLE=65535")));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "Tolva Resource Editor: Error on line 7:  (U)RELATED_TABLE=65535",
                  "Load Error: Could not load control object",
                  "Load Error: Invalid/unsupported resource object"}));
    EXPECT_TRUE(design.Store(type::Button).empty());
}

TEST_F(ControlHead, ATypeWordOfZeroDoesNotEndTheLoadAsAStyleOfZeroWould) {
    EXPECT_FALSE(Scan(Button("0", 7, "(U)RELATED_TABLE=65535")));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "Tolva Resource Editor: Error on line 7:  (U)RELATED_TABLE=65535",
                  "Load Error: Could not load control object",
                  "Load Error: Invalid/unsupported resource object"}));
}

TEST_F(ControlHead, AHeadBrokenAfterItsStyleStillChoosesTheTail) {
    // "(S)CONTROL_TEXT=" is missing: the head fails after its style word,
    // the button's tail reads on from the next line ("~F6") and fails too;
    // the scan then meets "(B)TEXTMENT=CENTRE" as a top-level line.
    EXPECT_FALSE(Scan(Button("CONTROL", 18, "(S)CONTROL_WORDS=OK")));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "Tolva Resource Editor: Error on line 18:  (S)CONTROL_WORDS=OK",
                  "Load Error: Could not load control object",
                  "Tolva Resource Editor: Error on line 19:  ~F6",
                  "Load Error: Could not load button object",
                  "Load Error: Invalid/unsupported resource object"}));
}

TEST_F(ControlHead, AStyleOfZeroEndsTheLoad) {
    EXPECT_FALSE(Scan(Button("CONTROL", 14, "(B)CONTROL_STYLE=0")));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{
                  "Load Error: Invalid control format.  Could not load resource file"});
}

}  // namespace
}  // namespace tolva::testing
