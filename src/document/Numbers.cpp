#include "document/Numbers.h"

#include <cmath>
#include <cstdlib>
#include <limits>

#include "document/RuntimeFailure.h"

namespace tolva {

namespace {

// Parses the whole text by the number rule; false when it is no number.
bool ParseNumber(std::string_view text, double& out) {
    size_t i = 0;
    const size_t n = text.size();
    while (i < n && text[i] == ' ') ++i;
    size_t end = n;
    while (end > i && text[end - 1] == ' ') --end;
    if (i >= end) return false;

    std::string digits;
    if (text[i] == '+' || text[i] == '-') {
        if (text[i] == '-') digits.push_back('-');
        ++i;
    }
    bool anyDigit = false;
    while (i < end && text[i] >= '0' && text[i] <= '9') {
        digits.push_back(text[i++]);
        anyDigit = true;
    }
    if (i < end && text[i] == '.') {
        digits.push_back('.');
        ++i;
        while (i < end && text[i] >= '0' && text[i] <= '9') {
            digits.push_back(text[i++]);
            anyDigit = true;
        }
    }
    if (!anyDigit || i != end) return false;
    // Whole numbers of a few digits, nearly every number of a record, are
    // exact in a double and need no strtod.
    if (digits.size() <= 16 && digits.find('.') == std::string::npos) {
        long long whole = 0;
        for (char c : digits)
            if (c != '-') whole = whole * 10 + (c - '0');
        out = digits[0] == '-' ? -static_cast<double>(whole) : static_cast<double>(whole);
        return true;
    }
    out = std::strtod(digits.c_str(), nullptr);
    return std::isfinite(out);
}

long long CheckedRound(double value, long long low, long long high, const char* what) {
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= static_cast<double>(low) && rounded <= static_cast<double>(high)))
        throw RuntimeFailure(std::string("Overflow: ") + what);
    return static_cast<long long>(rounded);
}

}  // namespace

bool IsNumeric(std::string_view text) {
    double ignored = 0;
    return ParseNumber(text, ignored);
}

double ToReal(std::string_view text) {
    double value = 0;
    if (!ParseNumber(text, value))
        throw RuntimeFailure("Type mismatch: \"" + std::string(text) + "\" is no number");
    return value;
}

double RoundHalfEven(double value) {
    if (!std::isfinite(value)) return value;
    const double floor = std::floor(value);
    const double diff = value - floor;
    if (diff < 0.5) return floor;
    if (diff > 0.5) return floor + 1;
    return std::fmod(floor, 2.0) == 0 ? floor : floor + 1;
}

int ToInt16(std::string_view text) { return RealToInt16(ToReal(text)); }

int32_t ToInt32(std::string_view text) { return RealToInt32(ToReal(text)); }

int RealToInt16(double value) {
    return static_cast<int>(CheckedRound(value, -32768, 32767, "16-bit whole number"));
}

int32_t RealToInt32(double value) {
    return static_cast<int32_t>(CheckedRound(value, std::numeric_limits<int32_t>::min(),
                                             std::numeric_limits<int32_t>::max(),
                                             "32-bit whole number"));
}

int RoundToIntSaturating(double value) {
    const double rounded = RoundHalfEven(value);
    if (std::isnan(rounded)) return 0;
    if (rounded > std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
    if (rounded < std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
    return static_cast<int>(rounded);
}

std::string IntToText(long long value) { return std::to_string(value); }

}  // namespace tolva
