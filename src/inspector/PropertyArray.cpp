#include "inspector/PropertyArray.h"

#include <stdexcept>

#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"

namespace tolva {

std::string PropertyCell::Text() const {
    if (const auto* text = std::get_if<std::string>(&value_)) return *text;
    if (const auto* number = std::get_if<long long>(&value_)) return IntToText(*number);
    return std::get<bool>(value_) ? "True" : "False";
}

bool PropertyCell::Bool() const {
    if (const auto* flag = std::get_if<bool>(&value_)) return *flag;
    if (const auto* number = std::get_if<long long>(&value_)) return *number != 0;
    const std::string upper = UpperCase(TrimSpaces(std::get<std::string>(value_)));
    if (upper == "TRUE") return true;
    if (upper == "FALSE") return false;
    return ToReal(upper) != 0;  // throws for text that is no number
}

long long PropertyCell::Number() const {
    if (const auto* number = std::get_if<long long>(&value_)) return *number;
    if (const auto* flag = std::get_if<bool>(&value_)) return *flag ? -1 : 0;
    return ToInt32(std::get<std::string>(value_));
}

PropertyArray::PropertyArray(int rows, int columns)
    : rows_(rows < 0 ? 0 : rows),
      columns_(columns < 0 ? 0 : columns),
      cells_(static_cast<size_t>(rows_) * static_cast<size_t>(columns_)) {}

PropertyCell& PropertyArray::At(int column, int row) {
    if (column < 1 || column > columns_ || row < 1 || row > rows_)
        throw RuntimeFailure("Subscript out of range");
    return cells_[static_cast<size_t>(row - 1) * columns_ + (column - 1)];
}

const PropertyCell& PropertyArray::At(int column, int row) const {
    return const_cast<PropertyArray*>(this)->At(column, row);
}

void PropertyArray::SetRow(int row, const std::string& label, int kind, const PropertyCell& value) {
    At(1, row) = PropertyCell(label);
    At(2, row) = PropertyCell(kind);
    At(3, row) = value;
}

}  // namespace tolva
