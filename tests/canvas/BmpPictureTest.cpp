// The program's own BMP reader: every depth and header it takes, both row
// orders, and every kind of file that must fail to load without a crash;
// and the greys of the device at both picture depths.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "canvas/BmpPicture.h"
#include "support/BmpBytes.h"

namespace tolva::testing {
namespace {

// A colour for each place, so that a picture read upside down or shifted
// shows at once.
uint32_t ColourAt(int x, int y) { return static_cast<uint32_t>(0x102030 + x * 0x010000 + y * 0x000100); }

BmpSpec TrueColour(int width, int height, int bits) {
    BmpSpec s;
    s.width = width;
    s.height = height;
    s.bitsPerPixel = bits;
    s.value = [](int x, int y) { return ColourAt(x, y); };
    return s;
}

void ExpectColours(const std::optional<BmpPicture>& p, int width, int height) {
    ASSERT_TRUE(p);
    ASSERT_EQ(p->width, width);
    ASSERT_EQ(p->height, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) EXPECT_EQ(p->At(x, y), ColourAt(x, y)) << x << "," << y;
}

TEST(BmpPicture, TwentyFourBitsBottomUpAndTopDownReadAlike) {
    ExpectColours(DecodeBmp(BmpFile(TrueColour(5, 3, 24))), 5, 3);
    ExpectColours(DecodeBmp(BmpFile(TrueColour(5, -3, 24))), 5, 3);
}

TEST(BmpPicture, ThirtyTwoBitsPlainAndWithMasksInALongHeader) {
    ExpectColours(DecodeBmp(BmpFile(TrueColour(4, 2, 32))), 4, 2);
    BmpSpec masked = TrueColour(4, -2, 32);
    masked.infoSize = 124;
    masked.compression = 3;
    masked.masks = {0x0000FF00, 0x00FF0000, 0xFF000000};
    masked.value = [](int x, int y) {
        const uint32_t c = ColourAt(x, y);
        return ((c >> 16) & 0xFF) << 8 | ((c >> 8) & 0xFF) << 16 | (c & 0xFF) << 24;
    };
    ExpectColours(DecodeBmp(BmpFile(masked)), 4, 2);
}

TEST(BmpPicture, SixteenBitsAreFiveFiveFivePlainAndFiveSixFiveByMasks) {
    BmpSpec plain;
    plain.width = 2;
    plain.bitsPerPixel = 16;
    plain.value = [](int x, int) { return x == 0 ? 0x7C00u : 0x001Fu; };  // red, blue
    auto p = DecodeBmp(BmpFile(plain));
    ASSERT_TRUE(p);
    EXPECT_EQ(p->At(0, 0), 0xFF0000u);
    EXPECT_EQ(p->At(1, 0), 0x0000FFu);

    BmpSpec masked = plain;
    masked.compression = 3;  // masks after the short header
    masked.masks = {0xF800, 0x07E0, 0x001F};
    masked.value = [](int x, int) { return x == 0 ? 0x07E0u : 0xFFFFu; };  // green, white
    p = DecodeBmp(BmpFile(masked));
    ASSERT_TRUE(p);
    EXPECT_EQ(p->At(0, 0), 0x00FF00u);
    EXPECT_EQ(p->At(1, 0), 0xFFFFFFu);
}

TEST(BmpPicture, PaletteDepthsOneFourAndEight) {
    for (int bits : {1, 4, 8}) {
        BmpSpec s;
        s.width = 9;  // not a whole byte of pixels at 1 and 4 bits
        s.height = 2;
        s.bitsPerPixel = bits;
        const int colours = 1 << bits;
        for (int i = 0; i < colours; ++i) s.palette.push_back(static_cast<uint32_t>(i * 0x010203));
        s.value = [colours](int x, int y) { return static_cast<uint32_t>((x + y) % colours); };
        const auto p = DecodeBmp(BmpFile(s));
        ASSERT_TRUE(p) << bits;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 9; ++x)
                EXPECT_EQ(p->At(x, y), static_cast<uint32_t>(((x + y) % colours) * 0x010203))
                    << bits << " bits at " << x << "," << y;
    }
}

TEST(BmpPicture, AShortPaletteShowsBlackPastItsEnd) {
    BmpSpec s;
    s.width = 3;
    s.bitsPerPixel = 8;
    s.palette = {0xFFFFFF, 0x808080};
    s.colorsUsed = 2;
    s.value = [](int x, int) { return static_cast<uint32_t>(x * 1); };
    const auto p = DecodeBmp(BmpFile(s));
    ASSERT_TRUE(p);
    EXPECT_EQ(p->At(0, 0), 0xFFFFFFu);
    EXPECT_EQ(p->At(1, 0), 0x808080u);
    EXPECT_EQ(p->At(2, 0), 0u);
}

TEST(BmpPicture, TheOldCoreHeaderHasThreeBytePaletteEntries) {
    BmpSpec s;
    s.infoSize = 12;
    s.width = 2;
    s.height = 2;
    s.bitsPerPixel = 4;
    for (int i = 0; i < 16; ++i) s.palette.push_back(static_cast<uint32_t>(i * 0x111111));
    s.value = [](int x, int y) { return static_cast<uint32_t>(x + 2 * y + 1); };
    const auto p = DecodeBmp(BmpFile(s));
    ASSERT_TRUE(p);
    EXPECT_EQ(p->At(0, 0), 0x111111u);
    EXPECT_EQ(p->At(1, 1), 0x444444u);
}

TEST(BmpPicture, WhatIsNoReadableBmpFailsToLoad) {
    EXPECT_FALSE(DecodeBmp(""));
    EXPECT_FALSE(DecodeBmp("GIF89a........................................................"));
    const std::string good = BmpBytes(10, 12);
    ASSERT_TRUE(DecodeBmp(good));
    EXPECT_FALSE(DecodeBmp(good.substr(0, 20)));               // cut in the header
    EXPECT_FALSE(DecodeBmp(good.substr(0, good.size() - 1)));  // pixels cut short
    EXPECT_FALSE(DecodeBmp(BmpBytes(0, 12)));
    EXPECT_FALSE(DecodeBmp(BmpBytes(12, 0)));
    EXPECT_FALSE(DecodeBmp(BmpBytes(40000, 1)));
    BmpSpec rle;
    rle.bitsPerPixel = 8;
    rle.compression = 1;
    rle.palette = {0};
    EXPECT_FALSE(DecodeBmp(BmpFile(rle)));
    BmpSpec twoBits;
    twoBits.bitsPerPixel = 2;
    twoBits.palette = {0, 0, 0, 0};
    EXPECT_FALSE(DecodeBmp(BmpFile(twoBits)));
    // A header that promises a picture of more pixels than any device shows.
    std::string huge = BmpBytes(1, 1);
    huge[18] = huge[19] = '\xFF';
    huge[22] = huge[23] = '\x7F';
    huge[20] = huge[24] = 0;
    EXPECT_FALSE(DecodeBmp(huge));
    // A pixel offset past the end of the file.
    std::string farData = good;
    farData[10] = farData[11] = farData[12] = '\x7F';
    EXPECT_FALSE(DecodeBmp(farData));
}

TEST(BmpPicture, AFileIsReadWholeAndAMissingOneFails) {
    const std::string path = ::testing::TempDir() + "bmp-picture-test.bmp";
    std::ofstream(path, std::ios::binary) << BmpBytes(7, -5);
    const auto p = ReadBmpFile(path);
    ASSERT_TRUE(p);
    EXPECT_EQ(p->width, 7);
    EXPECT_EQ(p->height, 5);
    std::remove(path.c_str());
    EXPECT_FALSE(ReadBmpFile(path));
    EXPECT_FALSE(ReadBmpFile(""));
}

TEST(DeviceGreys, TwoBitsGiveTheFourDeviceGreys) {
    EXPECT_EQ(DeviceGrey(0xFFFFFF, 2), 0xFFFFFFu);
    EXPECT_EQ(DeviceGrey(0x000000, 2), 0x000000u);
    EXPECT_EQ(DeviceGrey(0xC8C8C8, 2), 0xC0C0C0u);
    EXPECT_EQ(DeviceGrey(0x777777, 2), 0x808080u);
    // Pure red is dark (0.299 of white): the dark grey.
    EXPECT_EQ(DeviceGrey(0xFF0000, 2), 0x808080u);
    // Pure blue is darker still (0.114): black.
    EXPECT_EQ(DeviceGrey(0x0000FF, 2), 0x000000u);
}

TEST(DeviceGreys, FourBitsGiveSixteenEvenGreys) {
    EXPECT_EQ(DeviceGrey(0xFFFFFF, 4), 0xFFFFFFu);
    EXPECT_EQ(DeviceGrey(0x000000, 4), 0x000000u);
    EXPECT_EQ(DeviceGrey(0x101010, 4), 0x111111u);
    EXPECT_EQ(DeviceGrey(0x7F7F7F, 4), 0x777777u);
    EXPECT_EQ(DeviceGrey(0x808080, 4), 0x888888u);
    // Any depth but 2 is read as 4, as the record writes it.
    EXPECT_EQ(DeviceGrey(0x808080, 0), 0x888888u);
    int levels = 0;
    uint32_t last = 0xFFFFFFFF;
    for (uint32_t v = 0; v < 256; ++v) {
        const uint32_t g = DeviceGrey(v << 16 | v << 8 | v, 4);
        if (g != last) ++levels;
        last = g;
    }
    EXPECT_EQ(levels, 16);
}

TEST(DeviceGreys, APictureTurnsGreyPixelByPixel) {
    const auto p = DecodeBmp(BmpFile(TrueColour(3, 2, 24)));
    ASSERT_TRUE(p);
    const BmpPicture greys = ToDeviceGreys(*p, 2);
    ASSERT_EQ(greys.pixels.size(), p->pixels.size());
    for (std::size_t i = 0; i < greys.pixels.size(); ++i)
        EXPECT_EQ(greys.pixels[i], DeviceGrey(p->pixels[i], 2));
}

}  // namespace
}  // namespace tolva::testing
