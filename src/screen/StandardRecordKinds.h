#pragma once
// The record kinds of the program, with every parser that exists: what the
// loader is handed for a real load.
#include "resfile/RecordKinds.h"

namespace tolva {

const RecordKinds& StandardRecordKinds();

}  // namespace tolva
