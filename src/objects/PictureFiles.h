#pragma once
// What the kinds that show pictures share: the checks a picture file passes
// before an object takes it, the chooser that asks for one, and the file
// line of a picture in a record.
#include <optional>
#include <string>
#include <vector>

#include "document/Host.h"
#include "document/TextHelpers.h"

namespace tolva {

inline constexpr const char* kNoBitmapComment =
    "//You did not specify a bitmap so this section has been left blank";
inline constexpr const char* kMissingBitmapComment =
    "//Could not find this bitmap - make sure it is in the specified path before compiling";

// A picture an object holds: its place and size as the record keeps them
// (which the picture itself does not change), its file and depth, and the
// size in pixels of the picture the screen shows, once it has loaded.
struct ObjectPicture {
    int x = 0;
    int y = 0;
    int width = 10;
    int height = 10;
    std::string file;
    int depth = 4;
    bool loaded = false;
    int pixelWidth = 0;
    int pixelHeight = 0;
};

// The refusal of a picture's place or size setter, told under the object's
// name: "Invalid Bitmap1X value: 160".
std::string PicturePlaceRefusal(const char* what, int value);

// A non-empty path an object is asked to take: a file that is not there
// shows "Bitmap not found" under notFoundTitle (empty: the application's
// title); a path that is not its own 8.3 short form the path message under
// "Couldn't set bitmap"; a file that holds no picture the program can read
// counts as not found. The picture's size in pixels when it passes.
std::optional<PictureSize> CheckedPicture(Host& host, const std::string& path,
                                          const std::string& notFoundTitle);

// The open chooser for a ".bmp" file ("Bitmaps (*.bmp)|*.bmp"); nothing when
// it was cancelled.
std::optional<std::string> ChoosePictureFile(Host& host, const std::string& title,
                                             const std::string& initialName);

// "KEY" + "Q_TWO_BIT," for depth 2, "Q_FOUR_BIT," for any other, + the file's
// name without its directory, after the comment of a file that is missing
// now. keyStart is the key with "=" ("(P)BITMAP1_BITMAP.FILE=").
void AppendPictureFileLine(LineList& lines, Host& host, const std::string& keyStart, int depth,
                           const std::string& path);

// A file line read back: true when the line is keyStart + "Q_TWO_BIT," (depth
// 2) or + "Q_FOUR_BIT," (depth 4); path is the rest of the line.
bool ReadPictureFileLine(const std::string& line, const std::string& keyStart, int& depth,
                         std::string& path);

// The depth rows of the inspector: "4 Bit" for a depth of 4, "2 Bit" for any
// other; back, "2 Bit" gives 2 and any other text 4.
std::string DepthRowWord(int depth);
int DepthFromRowWord(const std::string& word);
const std::vector<std::string>& DepthRowWords();

}  // namespace tolva
