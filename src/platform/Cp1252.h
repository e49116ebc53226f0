#pragma once
// Text at the edge between the windows and the core. The core keeps text as
// single-byte Windows-1252, the code page of the resource files; the windows
// speak Unicode. A character the code page lacks becomes "?".
#include <QString>
#include <string>

namespace tolva {

// Unicode to Windows-1252 bytes; any character outside the code page is "?".
std::string ToCp1252(const QString& text);

// Windows-1252 bytes to Unicode. The five bytes the code page leaves free
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) become the control characters of the same
// number, so every byte comes back unchanged through ToCp1252.
QString FromCp1252(const std::string& bytes);

// File-system paths are not text of the document: they keep the encoding of
// the file system so that the core can open them as they are.
std::string ToLocalPath(const QString& path);
QString FromLocalPath(const std::string& path);

}  // namespace tolva
