// The PNG writer of the pictures of the forms: what it writes reads back,
// through the common PNG reader, as the greys it was given.
#include <gtest/gtest.h>

#include <QByteArray>
#include <QImage>
#include <vector>

#include "cli/GreyPng.h"

namespace tolva::testing {
namespace {

TEST(GreyPng, ReadsBackAsTheGreysItWasGiven) {
    // 5 by 3, rows 8 bytes apart, the bytes beyond the width not written.
    const int width = 5, height = 3, stride = 8;
    std::vector<uint8_t> pixels(stride * height, 0x55);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) pixels[y * stride + x] = static_cast<uint8_t>(x * 60 + y);
    const std::string png = GreyPng(pixels.data(), width, height, stride);
    ASSERT_EQ(png.substr(0, 8), std::string("\x89PNG\r\n\x1a\n", 8));
    QImage image;
    ASSERT_TRUE(image.loadFromData(QByteArray(png.data(), static_cast<qsizetype>(png.size())), "PNG"));
    ASSERT_EQ(image.format(), QImage::Format_Grayscale8);
    ASSERT_EQ(image.size(), QSize(width, height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            EXPECT_EQ(qGray(image.pixel(x, y)), x * 60 + y) << x << "," << y;
}

TEST(GreyPng, NothingForAnEmptyPicture) {
    const uint8_t pixel = 0;
    EXPECT_EQ(GreyPng(&pixel, 0, 1, 1), "");
    EXPECT_EQ(GreyPng(&pixel, 1, 0, 1), "");
}

}  // namespace
}  // namespace tolva::testing
