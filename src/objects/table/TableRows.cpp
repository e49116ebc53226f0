// The Table's inspector rows, its popup menu and the opening of its editor.
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/table/TableEditing.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/table/modTable.h"

namespace tolva {

void ctlKOMATable::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    rows.SetRow(1, PropertyLabel(101), rowkind::Text, KOMAName());
    rows.SetRow(2, PropertyLabel(102), rowkind::Text, KOMABoundsX());
    rows.SetRow(3, PropertyLabel(103), rowkind::Text, KOMABoundsY());
    rows.SetRow(4, PropertyLabel(2201), rowkind::Choice, styleWord_);
    rows.SetRow(5, PropertyLabel(113), rowkind::Choice, backColorWord_);
    rows.SetRow(6, PropertyLabel(106), rowkind::Choice, enableWord_);
    rows.SetRow(7, PropertyLabel(2202), rowkind::Choice, scrollbarWord_);
    rows.SetRow(8, PropertyLabel(107), rowkind::Choice, activeWord_);
    // The general "Show Highlight", not the table's own "Highlight Enabled".
    rows.SetRow(9, PropertyLabel(119), rowkind::Choice, highlightWord_);
    rows.SetRow(10, PropertyLabel(108), rowkind::Choice, visibleWord_);
    rows.SetRow(11, PropertyLabel(2205), rowkind::Button, false);
}

bool ctlKOMATable::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    // 1. The button row opens the editor and nothing else is applied.
    if (rows.Value(11).Bool()) {
        EditTable();
        return true;
    }
    // 2. The name, refused under the table's own name.
    ApplyNameRow(rows, "", KOMAName());
    // 3. X, then Y, each followed by the moved event.
    const std::string xText = rows.Value(2).Text();
    if (IsNumeric(xText) && ToInt16(xText) != KOMABoundsX()) {
        KOMABoundsX(ToInt16(xText));
        RaiseMoved();
    }
    const std::string yText = rows.Value(3).Text();
    if (IsNumeric(yText) && ToInt16(yText) != KOMABoundsY()) {
        KOMABoundsY(ToInt16(yText));
        RaiseMoved();
    }
    // 4. The style and the background colour.
    KOMATableStyle(TableStyleWordToNumber(rows.Value(4).Text()));
    KOMABackColor(ColorFromWord(rows.Value(5).Text()));
    // 5. The flags, in this order.
    KOMAVisible(BooleanFromWord(rows.Value(10).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(8).Text()) != 0);
    KOMAScrollbar(BooleanFromWord(rows.Value(7).Text()) != 0);
    KOMAEnable(BooleanFromWord(rows.Value(6).Text()) != 0);
    KOMAHighlightEnable(BooleanFromWord(rows.Value(9).Text()) != 0);
    return true;
}

// --- the popup menu ---------------------------------------------------------------------

void ctlKOMATable::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice = host().PopupMenu(
        "Set Properties",
        {{"mnuSetPropSetBitmap", "Set Bitmap..."}, {"mnuEditTable", PropertyLabel(2205)}});
    if (!choice) return;
    if (*choice == 0) SetBitmapFromChooser();
    if (*choice == 1) EditTable();
}

void ctlKOMATable::EditTable() {
    // The editor writes its copy back itself at Done; what it did to rows,
    // columns and objects has gone to the table already.
    TableEditing edit(host(), *this);
    host().RunDialog(edit);
    RaisePicChanged();
}

}  // namespace tolva
