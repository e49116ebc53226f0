#pragma once
// The common heads of the records. Head A (the kinds that may stand in a
// table cell) runs from "NAME=" over "(U)RELATED_TABLE_ID=" and the bounds
// to "~F3"; head B (form, menu, scheduler line, table) has no related table
// and ends at "~F2". Each kind's record goes on from there.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// Writes the section word ("#CONTROL", "#STRING", ...) and head A. The
// comment above the width and height is "//0 - 160" but for one kind.
void AppendHeadA(LineList& lines, const KomaObject& object, const std::string& sectionWord,
                 const std::string& sizeComment = "//0 - 160");

// Writes the section word and head B.
void AppendHeadB(LineList& lines, const KomaObject& object, const std::string& sectionWord);

// Reads head A into a fresh record of groupCount groups: group 0 name and
// ID, group 1 x, y, width, height; the type word to kindWord, the related
// table to relatedTableId. False, after the message of the line that does
// not fit, when a line is not the expected one.
bool ParseHeadA(RecordReader& in, LoadedRecord& record, int groupCount);

// Reads head B, "NAME=" to the bounds (the "~F2" after them is left to the
// kind), into a fresh record of groupCount groups: group 0 name and ID,
// group 1 x, y, width, height; the type word to kindWord. The ID is a 32-bit
// number with `wideId` (the scheduler line's), else 16 bits. False, after
// the message of the line that does not fit, when a line is not the expected
// one.
bool ParseHeadB(RecordReader& in, LoadedRecord& record, int groupCount, bool wideId = false);

// Applies a parsed head A: group 0's name, group 1's X and Y, and its width
// and height as the object's screen size. The four numbers are converted
// before anything is applied, so a value that is no 16-bit number throws
// RuntimeFailure with the object unchanged.
void ApplyHeadA(KomaObject& object, const GroupList& groups);

}  // namespace tolva
