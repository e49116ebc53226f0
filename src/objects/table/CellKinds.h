#pragma once
// The eleven kinds that may stand in a table cell, by their screen type
// numbers: the word a form's record lists them by, the prefix of the name a
// cell object is saved under, and a new object of each.
#include <memory>
#include <string>

namespace tolva {

class KomaObject;

// Button, String, Textbox, Field, Checkbox, Bitmap, List, Popup trigger,
// Push button, Repeat button, Scrollbar.
bool IsCellKind(int screenType);
// "CONTROL" for the five controls, else the kind's own word; "SCHLINE" for
// a scheduler line, which no way leads into a cell.
std::string CellTypeWord(int screenType);
// "BUTTON_", "STRING_", ...; a repeat button, and any kind without a prefix
// of its own, "TABLEOBJECT_".
std::string CellNamePrefix(int screenType);
// A new object of a cell kind with its kind's defaults; nullptr for another
// kind.
std::unique_ptr<KomaObject> NewCellObject(int screenType);

}  // namespace tolva
