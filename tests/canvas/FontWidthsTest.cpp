// The device's width tables: the reading rule of the width files, the
// width of a text, and the agreement of the shipped tables with the glyphs
// the canvas draws.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "canvas/DeviceFont.h"
#include "canvas/FontWidths.h"
#include "document/RuntimeFailure.h"
#include "support/ScriptedHost.h"

namespace tolva {
namespace {

std::string DataFile(const std::string& name) {
    std::ifstream in(std::string(TOLVA_SOURCE_DATA_DIR) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(FontWidths, AnEmptyFileLeavesEveryWidthZeroSoACharacterIsOnePixelWide) {
    const FontWidthTable table = ReadFontWidths("");
    for (int16_t w : table) EXPECT_EQ(w, 0);
    EXPECT_EQ(TextWidth("A", table), 1);
}

TEST(FontWidths, FiveSixGivesCodesZeroAndOneAndTheRestZero) {
    const FontWidthTable table = ReadFontWidths("5,6,");
    EXPECT_EQ(table[0], 5);
    EXPECT_EQ(table[1], 6);
    for (std::size_t i = 2; i < table.size(); ++i) EXPECT_EQ(table[i], 0) << i;
}

TEST(FontWidths, LineEndsAndOtherMarksMakeNoDifferenceEvenInsideANumber) {
    EXPECT_EQ(ReadFontWidths("5,\r\n6,\n 7 ,"), ReadFontWidths("5,6,7,"));
    EXPECT_EQ(ReadFontWidths("1\r\n2,x3;,")[0], 12);
    EXPECT_EQ(ReadFontWidths("1\r\n2,x3;,")[1], 3);
}

TEST(FontWidths, ANumberBehindTheLastCommaIsDropped) {
    const FontWidthTable table = ReadFontWidths("4,9");
    EXPECT_EQ(table[0], 4);
    EXPECT_EQ(table[1], 0);
}

TEST(FontWidths, ACommaWithNoDigitBeforeItIsARunTimeFailure) {
    EXPECT_THROW(ReadFontWidths("5,,"), RuntimeFailure);
    EXPECT_THROW(ReadFontWidths(","), RuntimeFailure);
}

TEST(FontWidths, TheTwoHundredFiftySeventhCommaIsARunTimeFailure) {
    std::string text;
    for (int i = 0; i < 256; ++i) text += "1,";
    EXPECT_NO_THROW(ReadFontWidths(text));
    EXPECT_THROW(ReadFontWidths(text + "1,"), RuntimeFailure);
}

TEST(FontWidths, AWidthBeyondSixteenBitsIsARunTimeFailure) {
    EXPECT_THROW(ReadFontWidths("40000,"), RuntimeFailure);
}

TEST(FontWidths, TextOfNCharactersOfWidthWIsNTimesWPlusOne) {
    FontWidthTable table{};
    table['a'] = 4;
    EXPECT_EQ(TextWidth("aaaaa", table), 5 * (4 + 1));
    EXPECT_EQ(TextWidth("", table), 0);
    // Bytes above 127 index the table as codes 128 to 255.
    table[0xE9] = 3;
    EXPECT_EQ(TextWidth("\xE9", table), 4);
}

TEST(FontWidths, BothFilesAreLookedForBeforeEitherIsRead) {
    testing::ScriptedHost host;
    host.useRealFileSystem = false;
    host.programDirectory = "/prog";
    host.existingFiles = {"/prog/FontSmallWidth.txt"};
    FontSmallWidth().fill(7);
    EXPECT_FALSE(LoadFontWidths(host));
    EXPECT_EQ(FontSmallWidth()[0], 7);  // nothing half done
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Files missing: Font definition files missing.  Cannot "
                                       "continue.  Please reinstall Tolva Resource Editor."});
    FontSmallWidth().fill(0);
}

TEST(FontWidths, TheProgramsFilesAreReadFromItsDirectory) {
    testing::ScriptedHost host;
    host.programDirectory = TOLVA_SOURCE_DATA_DIR;
    ASSERT_TRUE(LoadFontWidths(host));
    EXPECT_EQ(FontSmallWidth(), ReadFontWidths(DataFile("FontSmallWidth.txt")));
    EXPECT_EQ(FontMediumWidth(), ReadFontWidths(DataFile("FontMediumWidth.txt")));
    EXPECT_TRUE(host.messages.empty());
}

// --- the glyphs and the tables agree --------------------------------------------------------

class ShippedFont : public ::testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(ShippedFont, EveryCharactersWidthIsThatOfItsGlyph) {
    const auto [fontFile, widthFile] = GetParam();
    const auto font = ReadDeviceFont(DataFile(fontFile));
    ASSERT_TRUE(font.has_value()) << fontFile;
    const FontWidthTable table = ReadFontWidths(DataFile(widthFile));
    for (int code = 0; code < 256; ++code) {
        const DeviceGlyph& glyph = font->glyphs[static_cast<std::size_t>(code)];
        EXPECT_EQ(glyph.width, table[static_cast<std::size_t>(code)]) << "code " << code;
        EXPECT_EQ(glyph.rows.size(), static_cast<std::size_t>(font->height)) << "code " << code;
    }
    // Every printable character of the code page has a glyph with some width.
    for (int code = 32; code < 256; ++code) {
        if (code == 127 || code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 ||
            code == 0x9D)
            continue;
        EXPECT_GT(table[static_cast<std::size_t>(code)], 0) << "code " << code;
    }
    // Letters carry ink.
    bool ink = false;
    for (int y = 0; y < font->height; ++y)
        for (int x = 0; x < font->Glyph('A').width; ++x) ink = ink || font->Glyph('A').Ink(x, y);
    EXPECT_TRUE(ink);
}

INSTANTIATE_TEST_SUITE_P(BothFonts, ShippedFont,
                         ::testing::Values(std::make_pair("TolvaSmall.font", "FontSmallWidth.txt"),
                                           std::make_pair("TolvaMedium.font",
                                                          "FontMediumWidth.txt")));

TEST(DeviceFontFile, TheSmallFontIsElevenPixelsHighAndTheMediumOneLarger) {
    const auto small = ReadDeviceFont(DataFile("TolvaSmall.font"));
    const auto medium = ReadDeviceFont(DataFile("TolvaMedium.font"));
    ASSERT_TRUE(small && medium);
    EXPECT_EQ(small->height, 11);
    EXPECT_GT(medium->height, small->height);
    EXPECT_GT(medium->TextWidth("Hello"), small->TextWidth("Hello"));
}

TEST(DeviceFontFile, ABrokenFileIsNoFont) {
    EXPECT_FALSE(ReadDeviceFont(""));
    EXPECT_FALSE(ReadDeviceFont("height 2\nascent 1\nglyph 65 2\n##|\n"));      // a row short
    EXPECT_FALSE(ReadDeviceFont("height 2\nascent 1\nglyph 65 2\n##|\n#|\n"));  // a row narrow
    EXPECT_FALSE(ReadDeviceFont("height 2\nascent 1\nglyph 300 1\n#|\n#|\n"));
    const auto good = ReadDeviceFont("height 2\nascent 1\nglyph 65 2\n#.|\n.#|\nglyph 32 0\n|\n|\n");
    ASSERT_TRUE(good);
    EXPECT_TRUE(good->Glyph('A').Ink(0, 0));
    EXPECT_FALSE(good->Glyph('A').Ink(1, 0));
    EXPECT_FALSE(good->Glyph('A').Ink(5, 5));
    EXPECT_EQ(good->TextWidth("A A"), 3 + 1 + 3);
}

}  // namespace
}  // namespace tolva
