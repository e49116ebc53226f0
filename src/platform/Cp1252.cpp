#include "platform/Cp1252.h"

#include <QFile>
#include <QStringView>
#include <array>

namespace tolva {

namespace {

// The characters of bytes 0x80 to 0x9F; the rest of the code page is the
// same number in Unicode.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80-87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88-8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90-97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98-9F
};

char ByteOf(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (std::size_t i = 0; i < kHighControls.size(); ++i) {
        if (kHighControls[i] == c) return static_cast<char>(0x80 + i);
    }
    return '?';
}

}  // namespace

std::string ToCp1252(const QString& text) {
    std::string out;
    out.reserve(static_cast<std::size_t>(text.size()));
    // Walk by code point, so that a character beyond the basic plane (two
    // UTF-16 units) gives one "?" and not two.
    for (char32_t c : text.toUcs4()) out.push_back(ByteOf(c));
    return out;
}

QString FromCp1252(const std::string& bytes) {
    QString out;
    out.reserve(static_cast<qsizetype>(bytes.size()));
    for (char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        if (u >= 0x80 && u <= 0x9F) {
            out.append(QChar(static_cast<char16_t>(kHighControls[u - 0x80])));
        } else {
            out.append(QChar(static_cast<char16_t>(u)));
        }
    }
    return out;
}

std::string ToLocalPath(const QString& path) { return QFile::encodeName(path).toStdString(); }

QString FromLocalPath(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

}  // namespace tolva
