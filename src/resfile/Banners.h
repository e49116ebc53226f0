#pragma once
// The comment lines that decorate the resource text and the header: the
// three lines at the top of each file and the three lines before every
// record. No reader looks at them.
#include <string>
#include <vector>

namespace tolva {

// 91 slashes.
extern const char* const kFileBannerRule;
// "// " and the credit of the program's authors; the third line of both files.
extern const char* const kCreditLine;
// Two slashes and 65 dashes: lines 1 and 3 of a record banner.
extern const char* const kRecordSeparator;

// The three lines that open the resource text.
std::vector<std::string> ResourceFileBanner();
// The three lines that open the header.
std::vector<std::string> HeaderFileBanner();

// Appends the three banner lines of the named object's record: the short
// tail for the records of a "#CONTROL" section, the long one for all others.
void AppendRecordBanner(std::vector<std::string>& lines, const std::string& name, bool shortTail);

}  // namespace tolva
