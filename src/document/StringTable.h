#pragma once
// The string table: inspector labels 101 to 2307 and messages 5001 to 5021,
// in English (1033), German (1031) and Japanese (1041). A lookup takes the
// string in the chosen language and falls back to English.
//
// The table is read from "Strings.txt" in the program's directory. Each line
// is "<language>\t<number>\t<text>"; the text runs to the end of the line and
// keeps its blanks; lines starting with "#" are comments.
#include <map>
#include <string>

namespace tolva {

class StringTable {
public:
    // Loads the table from a file, replacing what it held; false (and the
    // table unchanged) when the file cannot be read.
    bool LoadFromFile(const std::string& path);
    // Loads the table from text in the file's form, replacing what it held.
    // Lines not of that form are passed over. The language stays.
    void LoadFromText(const std::string& text);

    void SetLanguage(int languageId) { language_ = languageId; }
    int Language() const { return language_; }

    // The string in the chosen language, else the English one, else "".
    std::string Get(int number) const;
    bool Has(int language, int number) const;

    // The table of the program. On first use it reads "Strings.txt" beside the
    // running program; the start-up may load it again and sets the language.
    static StringTable& Shared();

private:
    std::map<int, std::map<int, std::string>> strings_;  // language -> number -> text
    int language_ = 1033;
};

// Message numbers of the string table.
namespace msg {
inline constexpr int ConfirmFormDelete = 5001;       // the question
inline constexpr int ConfirmFormDeleteTitle = 5002;  // its title
inline constexpr int DrawFormFirst = 5003;
inline constexpr int CouldNotCreateObject = 5004;
inline constexpr int BitmapsSameSize = 5005;
inline constexpr int BitmapTooLarge = 5007;
inline constexpr int BitmapNotFound = 5008;
inline constexpr int NameMustBeUnique = 5009;
inline constexpr int CouldNotLoadResourceFile = 5010;
inline constexpr int ManualResizeNotAllowed = 5011;
inline constexpr int ResizeNotAllowed = 5012;
inline constexpr int PathNotShort = 5013;
inline constexpr int InvalidScrollbarMin = 5014;
inline constexpr int InvalidScrollbarMax = 5015;
inline constexpr int InvalidScrollbarValue = 5016;
inline constexpr int DuplicateIds = 5017;
inline constexpr int FormInForm = 5018;
inline constexpr int DuplicateNames = 5019;
inline constexpr int NoBitmapDefault = 5020;
inline constexpr int PlaceAllBitmaps = 5021;
}  // namespace msg

// Shorthand for StringTable::Shared().Get(number).
std::string LoadResString(int number);

}  // namespace tolva
