#pragma once
// The form's record in the resource text: the parser of a "#FORM" section.
// The form writes its own record (ctlKOMAForm::ReturnResourceFileText) and
// applies a loaded one (ctlKOMAForm::SetFromResText); both live in
// FormRecord.cpp beside the parser, so the three stay in step.
namespace tolva {

class RecordReader;
struct LoadedRecord;

// Reads from the line after "#FORM" up to and including "#END_FORM". The
// record's groups are the eight the form applies: 0 name and ID; 1 x, y,
// width, height; 2 the focused object's ID (not used); 3 style word; 4 title;
// 5 bitmap x, y, width, height, file; 6 number of objects; 7 depth (0 when
// the record has no bitmap block). False, after the message of the line that
// does not fit, when a line is not the expected one.
bool ParseFormRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
