#pragma once
// The picture section of a "#CONTROL" record, the same lines for the repeat
// button's picture and for each of the check box's two: the picture's
// place, its size and its file line. A control without a picture writes the
// "left blank" comment and then names "form.bmp" all the same.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class Host;
class RecordReader;

// "//0 - 159", X, Y, "//0 - 160", WIDTH, HEIGHT under "(SH)CONTROL_BITMAP.",
// then the "(P)CONTROL_BITMAP.FILE=" line of the depth.
void AppendControlBitmapSection(LineList& lines, Host& host, int x, int y, int width, int height,
                                const std::string& file, int depth);

// Reads the section back: x, y, width and height (16 bits each) and the path
// into values, the depth its file line names (2 or 4) into depth. False,
// after the message of the line that does not fit, on any other line.
bool ReadControlBitmapSection(RecordReader& in, ValueGroup& values, int& depth);

}  // namespace tolva
