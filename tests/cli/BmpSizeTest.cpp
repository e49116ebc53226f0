// The picture size the command-line companion reads from a BMP's header.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "cli/BmpSize.h"
#include "BmpBytes.h"

namespace tolva {
namespace {

TEST(BmpSize, TheInfoHeaderGivesWidthAndHeight) {
    const auto size = BmpSizeFromBytes(testing::BmpBytes(10, 12));
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 10);
    EXPECT_EQ(size->height, 12);
}

TEST(BmpSize, APictureStoredTopDownHasItsHeightWithoutTheSign) {
    const auto size = BmpSizeFromBytes(testing::BmpBytes(20, -14));
    ASSERT_TRUE(size);
    EXPECT_EQ(size->height, 14);
}

TEST(BmpSize, TheOldCoreHeaderHasSixteenBitSizes) {
    std::string bytes = "BM" + std::string(12, '\0');
    bytes += std::string("\x0C\0\0\0", 4);  // header size 12
    bytes += std::string("\x21\x00\x07\x00", 4);  // 33 by 7
    bytes += std::string("\x01\x00\x01\x00", 4);
    const auto size = BmpSizeFromBytes(bytes);
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 33);
    EXPECT_EQ(size->height, 7);
}

TEST(BmpSize, WhatIsNoBmpGivesNoSize) {
    EXPECT_FALSE(BmpSizeFromBytes(""));
    EXPECT_FALSE(BmpSizeFromBytes("GIF89a...................."));
    std::string bytes = testing::BmpBytes(10, 12);
    EXPECT_FALSE(BmpSizeFromBytes(bytes.substr(0, 20)));  // cut inside the header
    bytes[14] = static_cast<char>(200);                      // an unknown header size
    EXPECT_FALSE(BmpSizeFromBytes(bytes));
    EXPECT_FALSE(BmpSizeFromBytes(testing::BmpBytes(0, 12)));
    EXPECT_FALSE(BmpSizeFromBytes(testing::BmpBytes(40000, 12)));
}

TEST(BmpSize, AFileIsReadByItsHeader) {
    const std::string path = ::testing::TempDir() + "tolva_bmp_size.bmp";
    std::ofstream(path, std::ios::binary) << testing::BmpBytes(7, 9);
    const auto size = BmpSizeOfFile(path);
    std::remove(path.c_str());
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 7);
    EXPECT_FALSE(BmpSizeOfFile(path));
}

}  // namespace
}  // namespace tolva
