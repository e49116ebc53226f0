#include "objects/repeatbutton/modRepeatbutton.h"

#include "objects/ControlBitmapSection.h"
#include "objects/PictureFiles.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillRepeatButtonValueLists(ValueLists& lists) {
    lists.assign(9, {});
    const std::vector<std::string> booleans = {"TRUE", "FALSE"};
    lists[4 - 1] = {"REPEATBUTTON_STYLE_0"};
    lists[5 - 1] = booleans;
    lists[6 - 1] = booleans;
    lists[7 - 1] = booleans;
    lists[9 - 1] = DepthRowWords();
}

int RepeatButtonStyleWordToNumber(const std::string&) {
    // There is one style: "REPEATBUTTON_STYLE_0", in any case, is style 0,
    // and so is any other word.
    return 0;
}

std::string RepeatButtonStyleNumberToWord(int number) {
    return number == 0 ? "REPEATBUTTON_STYLE_0" : "";
}

bool ParseRepeatButtonRecordTail(RecordReader& in, LoadedRecord& record) {
    if (!in.Word("~F8")) return false;
    ValueGroup picture;
    // The depth is read to know the line, and then has nowhere to go.
    int depth = 0;
    if (!ReadControlBitmapSection(in, picture, depth)) return false;
    if (!in.Word("#END_CONTROL")) return false;
    record.groups.resize(7);
    record.groups[6] = std::move(picture);
    return true;
}

}  // namespace tolva
