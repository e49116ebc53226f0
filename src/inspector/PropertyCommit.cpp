#include "inspector/PropertyCommit.h"

namespace tolva {

namespace {

bool HasRow(const PropertyArray& values, int row) {
    return values.Columns() >= 3 && row >= 1 && row <= values.Rows();
}

}  // namespace

bool CommitRowText(PropertyArray& values, int row, const std::string& editorText) {
    if (!HasRow(values, row)) return false;
    if (values.At(3, row).Text() == editorText) return false;
    values.At(3, row) = PropertyCell(editorText);
    return true;
}

bool PressButtonRow(PropertyArray& values, int row) {
    if (!HasRow(values, row)) return false;
    values.At(3, row) = PropertyCell(true);
    return true;
}

std::string RowValueText(const PropertyArray& values, int row) {
    if (!HasRow(values, row)) return "";
    return values.At(3, row).Text();
}

}  // namespace tolva
