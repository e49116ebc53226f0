#pragma once
// The number rule, used wherever text becomes a whole number (an inspector
// row, a value of a record) and wherever a real becomes a whole number.
//
// Accepted text: optional blanks, an optional sign, decimal digits with an
// optional fraction, optional blanks. A fraction is rounded to the nearest
// whole number, halves to the even one ("2.5" gives 2, "3.5" gives 4).
// Text that is no number, or a number out of range, throws RuntimeFailure.
#include <cstdint>
#include <string>
#include <string_view>

namespace tolva {

// True when the text holds a decimal number by the rule above.
bool IsNumeric(std::string_view text);

// The real number the text holds; throws RuntimeFailure when it is none.
double ToReal(std::string_view text);

// Rounds half to even.
double RoundHalfEven(double value);

// Text to a signed 16-bit (-32768 to 32767) or 32-bit whole number.
// Throws RuntimeFailure for text that is no number or out of range.
int ToInt16(std::string_view text);
int32_t ToInt32(std::string_view text);

// A real to a whole number, rounded half to even, in the 16-bit or 32-bit
// range; throws RuntimeFailure out of range.
int RealToInt16(double value);
int32_t RealToInt32(double value);

// A real rounded half to even and held to the int range: for values that
// go on to a setter which refuses what is out of its own range.
int RoundToIntSaturating(double value);

// Whole number to text: plain decimal, minus sign where negative.
std::string IntToText(long long value);

}  // namespace tolva
