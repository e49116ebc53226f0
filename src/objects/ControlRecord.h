#pragma once
// The head of a "#CONTROL" record, shared by the five control kinds: read
// from the line after "#CONTROL" up to and including
// "(BO)CONTROL_ATTR.VISIBLE=". The style word picks the kind's tail parser.
namespace tolva {

class RecordReader;
struct LoadedRecord;

// Fills groups 0 to 5 of the record: 0 name and ID; 1 x, y, width, height;
// 2 the subtype word; 3 the text; 4 the alignment word; 5 the enable, active
// and visible words. The style word goes to kindWord, the related table's
// ID to relatedTableId. False, after the message of the line that does not
// fit, when a line is not the expected one.
bool ParseControlRecordHead(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
