// Matching keys, markers and closing words, and the message of a line that
// does not fit.
#include <gtest/gtest.h>

#include "document/RuntimeFailure.h"
#include "resfile/RecordReader.h"
#include "support/ScriptedHost.h"

namespace tolva {
namespace {

using testing::ScriptedHost;

struct Fixture {
    explicit Fixture(const std::string& text) : input(ResourceReader::FromText(text)) {}
    ScriptedHost host;
    ResourceReader input;
    RecordReader in{input, host};
};

TEST(RecordReader, AWrongLineIsReportedWithItsNumberAndTwoBlanks) {
    Fixture f("//banner\r\n\r\n(SH)BOUNDS.Y=4\r\n");
    int x = 0;
    EXPECT_FALSE(f.in.Int16Key("(SH)BOUNDS.X=", x));
    ASSERT_EQ(f.host.messages.size(), 1u);
    EXPECT_EQ(f.host.messages[0].text, "Error on line 2:  ");
    EXPECT_EQ(f.host.messages[0].title, "");
    EXPECT_EQ(ScriptedHost::ShownTitle(f.host.messages[0]), kApplicationTitle);
}

TEST(RecordReader, TheMessageShowsTheLineAsRead) {
    Fixture f("(SH)BOUNDS.Y=4 // y\r\n");
    std::string value;
    EXPECT_FALSE(f.in.Key("(SH)BOUNDS.X=", value));
    EXPECT_EQ(f.host.messages.at(0).text, "Error on line 1:  (SH)BOUNDS.Y=4");
}

TEST(RecordReader, KeysMatchExactlyAndCaseSensitively) {
    Fixture f("name=A\r\nNAME =A\r\nNAME=A B \r\n");
    std::string value;
    EXPECT_FALSE(f.in.Key("NAME=", value));
    EXPECT_FALSE(f.in.Key("NAME=", value));
    EXPECT_TRUE(f.in.Key("NAME=", value));
    EXPECT_EQ(value, "A B");
    EXPECT_EQ(f.host.messages.size(), 2u);
}

TEST(RecordReader, WordsMatchTheWholeTrimmedLine) {
    Fixture f("  ~F3 //style\r\n~F30\r\n#END_FORM\r\n");
    EXPECT_TRUE(f.in.Word("~F3"));
    EXPECT_FALSE(f.in.Word("~F3"));
    EXPECT_TRUE(f.in.Word("#END_FORM"));
}

TEST(RecordReader, NumbersFollowTheNumberRule) {
    Fixture f("(SH)BOUNDS.X=-5\r\n(SH)BOUNDS.Y=2.5\r\n(U)RELATED_TABLE_ID=65535\r\n");
    int x = 0, y = 0, table = 0;
    EXPECT_TRUE(f.in.Int16Key("(SH)BOUNDS.X=", x));
    EXPECT_TRUE(f.in.Int16Key("(SH)BOUNDS.Y=", y));
    EXPECT_TRUE(f.in.Int32Key("(U)RELATED_TABLE_ID=", table));
    EXPECT_EQ(x, -5);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(table, 65535);
}

TEST(RecordReader, AnIdAbove16BitsIsARunTimeFailure) {
    Fixture f("ID=40000\r\n");
    int id = 0;
    EXPECT_THROW(f.in.Int16Key("ID=", id), RuntimeFailure);
    EXPECT_TRUE(f.host.messages.empty());
}

TEST(RecordReader, AValueThatIsNoNumberIsARunTimeFailure) {
    Fixture f("(SH)BOUNDS.X=five\r\n");
    int x = 0;
    EXPECT_THROW(f.in.Int16Key("(SH)BOUNDS.X=", x), RuntimeFailure);
}

TEST(RecordReader, TheEndOfTheTextInsideARecordIsARunTimeFailure) {
    Fixture f("NAME=A\r\n");
    std::string value;
    EXPECT_TRUE(f.in.Key("NAME=", value));
    EXPECT_THROW(f.in.Word("~F0"), RuntimeFailure);
}

}  // namespace
}  // namespace tolva
