#include "objects/ControlBitmapSection.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "objects/PictureFiles.h"
#include "resfile/RecordReader.h"

namespace tolva {

namespace {
constexpr const char* kFileKey = "(P)CONTROL_BITMAP.FILE=";
}

void AppendControlBitmapSection(LineList& lines, Host& host, int x, int y, int width, int height,
                                const std::string& file, int depth) {
    lines.push_back("//0 - 159");
    lines.push_back("(SH)CONTROL_BITMAP.X=" + IntToText(x));
    lines.push_back("(SH)CONTROL_BITMAP.Y=" + IntToText(y));
    lines.push_back("//0 - 160");
    lines.push_back("(SH)CONTROL_BITMAP.WIDTH=" + IntToText(width));
    lines.push_back("(SH)CONTROL_BITMAP.HEIGHT=" + IntToText(height));
    if (TrimSpaces(file).empty()) {
        // The comment says blank, and the default file goes out all the same.
        lines.push_back(kNoBitmapComment);
        lines.push_back(std::string(kFileKey) + (depth == 2 ? "Q_TWO_BIT," : "Q_FOUR_BIT,") +
                        "form.bmp");
    } else {
        AppendPictureFileLine(lines, host, kFileKey, depth, file);
    }
}

bool ReadControlBitmapSection(RecordReader& in, ValueGroup& values, int& depth) {
    for (const char* key : {"(SH)CONTROL_BITMAP.X=", "(SH)CONTROL_BITMAP.Y=",
                            "(SH)CONTROL_BITMAP.WIDTH=", "(SH)CONTROL_BITMAP.HEIGHT="}) {
        int value = 0;
        if (!in.Int16Key(key, value)) return false;
        values.push_back(IntToText(value));
    }
    const std::string line = in.Line();
    std::string path;
    if (!ReadPictureFileLine(line, kFileKey, depth, path)) return in.Fail(line);
    values.push_back(path);
    return true;
}

}  // namespace tolva
