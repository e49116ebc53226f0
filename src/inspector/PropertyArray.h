#pragma once
// The property array: the one currency between objects and the inspector.
// Three columns (label, row kind, value) by N rows, both counted from 1.
// A cell holds a text, a number or a boolean.
#include <string>
#include <variant>
#include <vector>

namespace tolva {

// Row kinds (column 2).
namespace rowkind {
inline constexpr int Text = 0;    // a one-line text box
inline constexpr int Choice = 1;  // a drop-down list of the row's words
inline constexpr int Button = 2;  // a push button; the value is a boolean
}  // namespace rowkind

class PropertyCell {
public:
    PropertyCell() : value_(std::string()) {}
    PropertyCell(const std::string& text) : value_(text) {}
    PropertyCell(const char* text) : value_(std::string(text)) {}
    PropertyCell(int number) : value_(static_cast<long long>(number)) {}
    PropertyCell(long long number) : value_(number) {}
    PropertyCell(bool flag) : value_(flag) {}

    bool IsText() const { return std::holds_alternative<std::string>(value_); }
    bool IsNumber() const { return std::holds_alternative<long long>(value_); }
    bool IsBool() const { return std::holds_alternative<bool>(value_); }

    // The cell as text: numbers in plain decimal, booleans "True"/"False".
    std::string Text() const;
    // The cell as a boolean: a boolean as it is, a number not 0, the text
    // "True" (any case) or a non-zero number.
    bool Bool() const;
    // The cell as a number: a number as it is, a boolean -1 or 0, a text by
    // the number rule (throws RuntimeFailure when it is none).
    long long Number() const;

    bool operator==(const PropertyCell& other) const { return value_ == other.value_; }

private:
    std::variant<std::string, long long, bool> value_;
};

class PropertyArray {
public:
    PropertyArray() = default;
    // An array of the given shape; columns is 3 for a well-formed array.
    explicit PropertyArray(int rows, int columns = 3);

    int Columns() const { return columns_; }
    int Rows() const { return rows_; }

    // Cells are addressed (column, row), both from 1.
    PropertyCell& At(int column, int row);
    const PropertyCell& At(int column, int row) const;

    // Fills one row: label, kind, value.
    void SetRow(int row, const std::string& label, int kind, const PropertyCell& value);

    const std::string Label(int row) const { return At(1, row).Text(); }
    int Kind(int row) const { return static_cast<int>(At(2, row).Number()); }
    const PropertyCell& Value(int row) const { return At(3, row); }

private:
    int rows_ = 0;
    int columns_ = 3;
    std::vector<PropertyCell> cells_;
};

// Value lists: one list of allowed words per row, index 1 to N; an empty
// list means the row has none. Entry 0 of the outer vector is row 1.
using ValueLists = std::vector<std::vector<std::string>>;

}  // namespace tolva
