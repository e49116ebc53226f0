// Makes the device's two pixel fonts, "TolvaSmall" and "TolvaMedium", from a
// desktop sans font drawn without smoothing at a small pixel size, and writes
// them as glyph files with the width files the program reads at start-up.
// Each glyph is cut to its ink, so that the widths and what the screen shows
// come from the same pixels.
//
// Glyph file: "height H" and "ascent A" lines, then per character code
// "glyph CODE WIDTH" and H rows of WIDTH pixels ('#' ink, '.' none), each row
// closed by '|'.
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "platform/Cp1252.h"

namespace {

struct FontSpec {
    const char* name;
    const char* widthFile;
    const char* family;
    int pixelSize;
    int height;
    int ascent;
    bool bold;
};

bool Printable(int code) {
    if (code < 32 || code == 127) return false;
    // Bytes the code page leaves undefined.
    return code != 0x81 && code != 0x8D && code != 0x8F && code != 0x90 && code != 0x9D;
}

void Make(const FontSpec& spec, const std::string& dir) {
    QFont font(spec.family);
    font.setPixelSize(spec.pixelSize);
    font.setBold(spec.bold);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::NoAntialias | QFont::NoSubpixelAntialias));
    font.setHintingPreference(QFont::PreferFullHinting);
    const QFontMetrics metrics(font);

    std::ofstream glyphs(dir + "/" + spec.name + ".font", std::ios::binary);
    std::ofstream widths(dir + "/" + spec.widthFile, std::ios::binary);
    glyphs << "height " << spec.height << "\n" << "ascent " << spec.ascent << "\n";

    for (int code = 0; code < 256; ++code) {
        std::vector<std::string> rows(static_cast<size_t>(spec.height));
        int width = 0;
        if (Printable(code)) {
            const QString text = tolva::FromCp1252(std::string(1, static_cast<char>(code)));
            const int canvas = spec.pixelSize * 3;
            QImage image(canvas, spec.height, QImage::Format_RGB32);
            image.fill(Qt::white);
            {
                QPainter painter(&image);
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.setRenderHint(QPainter::TextAntialiasing, false);
                painter.setFont(font);
                painter.setPen(Qt::black);
                painter.drawText(spec.pixelSize, spec.ascent, text);
            }
            int left = canvas;
            int right = -1;
            for (int y = 0; y < spec.height; ++y)
                for (int x = 0; x < canvas; ++x)
                    if (qGray(image.pixel(x, y)) < 128) {
                        left = std::min(left, x);
                        right = std::max(right, x);
                    }
            if (right < 0) {
                // No ink (the blanks): the advance less the gap behind it.
                width = std::max(1, metrics.horizontalAdvance(text) - 1);
                for (auto& row : rows) row.assign(static_cast<size_t>(width), '.');
            } else {
                width = right - left + 1;
                for (int y = 0; y < spec.height; ++y)
                    for (int x = left; x <= right; ++x)
                        rows[static_cast<size_t>(y)] += qGray(image.pixel(x, y)) < 128 ? '#' : '.';
            }
        }
        glyphs << "glyph " << code << " " << width << "\n";
        for (const auto& row : rows) glyphs << row << "|\n";
        widths << width << ",";
        if (code % 16 == 15) widths << "\r\n";
    }
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    const std::string dir = argc > 1 ? argv[1] : ".";
    Make({"TolvaSmall", "FontSmallWidth.txt", "DejaVu Sans", 9, 11, 9, false}, dir);
    Make({"TolvaMedium", "FontMediumWidth.txt", "DejaVu Sans", 11, 14, 11, true}, dir);
    std::printf("fonts written to %s\n", dir.c_str());
    return 0;
}
