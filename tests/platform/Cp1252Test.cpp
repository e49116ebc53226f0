// Text between Unicode and the core's Windows-1252 bytes.
#include <gtest/gtest.h>

#include "platform/Cp1252.h"

namespace tolva {
namespace {

TEST(Cp1252, PlainAsciiPassesUnchanged) {
    EXPECT_EQ(ToCp1252(QStringLiteral("FORM_1 \"Title\"")), "FORM_1 \"Title\"");
    EXPECT_EQ(FromCp1252("BUTTON_12"), QStringLiteral("BUTTON_12"));
}

TEST(Cp1252, LatinOneCharactersKeepTheirNumber) {
    const std::string bytes = ToCp1252(QString::fromUtf8("Gr\xC3\xBC\xC3\x9F" "e"));  // "Grüße"
    ASSERT_EQ(bytes.size(), 5u);
    EXPECT_EQ(static_cast<unsigned char>(bytes[2]), 0xFC);
    EXPECT_EQ(static_cast<unsigned char>(bytes[3]), 0xDF);
}

TEST(Cp1252, TheHighRowMapsToItsOwnCharacters) {
    // Euro sign, left double quote, trade mark, Y with diaeresis.
    const QString text = QString(QChar(0x20AC)) + QChar(0x201C) + QChar(0x2122) + QChar(0x0178);
    const std::string bytes = ToCp1252(text);
    ASSERT_EQ(bytes.size(), 4u);
    EXPECT_EQ(static_cast<unsigned char>(bytes[0]), 0x80);
    EXPECT_EQ(static_cast<unsigned char>(bytes[1]), 0x93);
    EXPECT_EQ(static_cast<unsigned char>(bytes[2]), 0x99);
    EXPECT_EQ(static_cast<unsigned char>(bytes[3]), 0x9F);
    EXPECT_EQ(FromCp1252(bytes), text);
}

TEST(Cp1252, ACharacterTheCodePageLacksBecomesAQuestionMark) {
    // Greek alpha and a Japanese character.
    EXPECT_EQ(ToCp1252(QString(QChar(0x03B1)) + "x" + QChar(0x65E5)), "?x?");
}

TEST(Cp1252, ACharacterBeyondTheBasicPlaneGivesOneQuestionMark) {
    const QString emoji = QString::fromUcs4(U"a\U0001F600b");
    EXPECT_EQ(ToCp1252(emoji), "a?b");
}

TEST(Cp1252, EveryByteComesBackUnchanged) {
    std::string all;
    for (int b = 1; b < 256; ++b) all.push_back(static_cast<char>(b));
    EXPECT_EQ(ToCp1252(FromCp1252(all)), all);
}

TEST(Cp1252, TheUndefinedBytesBecomeControlCharacters) {
    EXPECT_EQ(FromCp1252("\x81"), QString(QChar(0x81)));
    EXPECT_EQ(FromCp1252("\x9D"), QString(QChar(0x9D)));
}

TEST(Cp1252, PathsKeepTheFileSystemEncoding) {
    const QString path = QString::fromUtf8("/tmp/d\xC3\xA9sign.txt");
    EXPECT_EQ(FromLocalPath(ToLocalPath(path)), path);
}

}  // namespace
}  // namespace tolva
