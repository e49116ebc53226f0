#include "objects/field/ctlKOMAField.h"

#include <algorithm>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/field/FieldEditorText.h"
#include "objects/field/modField.h"

namespace tolva {

ctlKOMAField::ctlKOMAField() : EntryState(type::Field, "FIELD", 50, 46) { LayOut(); }

void ctlKOMAField::KOMAText(const std::string& text) {
    text_ = text;
    LayOut();
}

int ctlKOMAField::KOMAFieldStyle() const { return FieldStyleWordToNumber(styleWord_); }

void ctlKOMAField::KOMAFieldStyle(int style) {
    if (style != 0 && style != 1) return;
    styleWord_ = "FIELD_STYLE_" + std::to_string(style);
    LayOut();
}

int ctlKOMAField::KOMABackline() const { return BaseLineFromWord(backlineWord_); }

void ctlKOMAField::KOMABackline(int line) {
    const std::string word = WordFromBaseLine(line);
    if (word.empty()) return;
    backlineWord_ = word;
    LayOut();
}

int ctlKOMAField::KOMATextAlignment() const { return AlignmentFromWord(alignmentWord_); }

void ctlKOMAField::KOMATextAlignment(int alignment) {
    const std::string word = WordFromAlignment(alignment);
    if (word.empty()) return;
    alignmentWord_ = word;
    LayOut();
}

void ctlKOMAField::KOMATopLineNum(int line) {
    topLineNum_ = line;
    LayOut();
}

std::size_t ctlKOMAField::FirstShownLine() const {
    // A negative top line, which the device never makes, shows from the
    // first line.
    return static_cast<std::size_t>(std::max(0, topLineNum_));
}

std::vector<std::string> ctlKOMAField::ShownLines() const {
    const std::size_t first = FirstShownLine();
    if (first >= lines_.size()) return {};
    return {lines_.begin() + static_cast<std::ptrdiff_t>(first), lines_.end()};
}

void ctlKOMAField::EditField() {
    FieldEditorText edit;
    edit.text = text_;
    if (!host().RunDialog(edit)) return;
    KOMAText(edit.text);
    // The owner shows the object's new state, as after a new picture.
    RaisePicChanged();
}

void ctlKOMAField::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice =
        host().PopupMenu("Set Properties", {{"mnuSetPropEditField", PropertyLabel(1406)}});
    if (choice && *choice == 0) EditField();
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAField::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(1401), rowkind::Choice, styleWord_);
    rows.SetRow(7, PropertyLabel(109), rowkind::Text, text_);
    rows.SetRow(8, PropertyLabel(114), rowkind::Choice, backlineWord_);
    rows.SetRow(9, PropertyLabel(112), rowkind::Choice, fontColorWord_);
    rows.SetRow(10, PropertyLabel(113), rowkind::Choice, backColorWord_);
    rows.SetRow(11, PropertyLabel(115), rowkind::Choice, fontWord_);
    rows.SetRow(12, PropertyLabel(110), rowkind::Choice, alignmentWord_);
    rows.SetRow(13, PropertyLabel(116), rowkind::Text, maxNumChars_);
    rows.SetRow(14, PropertyLabel(121), rowkind::Text, topLineNum_);
    rows.SetRow(15, PropertyLabel(1402), rowkind::Text, insertPointCharPos_);
    rows.SetRow(16, PropertyLabel(117), rowkind::Text, highlightStart_);
    rows.SetRow(17, PropertyLabel(118), rowkind::Text, highlightEnd_);
    rows.SetRow(18, PropertyLabel(107), rowkind::Choice, activeWord_);
    rows.SetRow(19, PropertyLabel(106), rowkind::Choice, enableWord_);
    rows.SetRow(20, PropertyLabel(1403), rowkind::Choice, dirtyWord_);
    rows.SetRow(21, PropertyLabel(119), rowkind::Choice, highlightWord_);
    rows.SetRow(22, PropertyLabel(120), rowkind::Choice, insertPointVisibleWord_);
    // The row reads "Scrollbar", the word the Table's row uses.
    rows.SetRow(23, PropertyLabel(2202), rowkind::Choice, scrollbarWord_);
    rows.SetRow(24, PropertyLabel(1405), rowkind::Choice, fullSizeWord_);
    rows.SetRow(25, PropertyLabel(108), rowkind::Choice, visibleWord_);
}

bool ctlKOMAField::SetPropertyList(const PropertyArray& rows) {
    if (!ApplySharedPropertyRows(rows)) return false;
    KOMAFieldStyle(FieldStyleWordToNumber(rows.Value(6).Text()));
    const std::string text = rows.Value(7).Text();
    if (text != text_) KOMAText(text);
    KOMABackline(BaseLineFromWord(rows.Value(8).Text()));
    KOMAFontColor(ColorFromWord(rows.Value(9).Text()));
    KOMABackColor(ColorFromWord(rows.Value(10).Text()));
    KOMAFont(FontFromWord(rows.Value(11).Text()));
    KOMATextAlignment(AlignmentFromWord(rows.Value(12).Text()));
    // The five numbers, each only when it is a number and differs.
    struct NumberRow {
        int row;
        int (ctlKOMAField::*get)() const;
        void (ctlKOMAField::*set)(int);
    };
    static constexpr NumberRow kNumbers[] = {
        {13, &ctlKOMAField::KOMAMaxNumChars, &ctlKOMAField::KOMAMaxNumChars},
        {14, &ctlKOMAField::KOMATopLineNum, &ctlKOMAField::KOMATopLineNum},
        {15, &ctlKOMAField::KOMAInsertPointCharPos, &ctlKOMAField::KOMAInsertPointCharPos},
        {16, &ctlKOMAField::KOMAHighlightStartCharPos, &ctlKOMAField::KOMAHighlightStartCharPos},
        {17, &ctlKOMAField::KOMAHighlightEndCharPos, &ctlKOMAField::KOMAHighlightEndCharPos},
    };
    for (const NumberRow& number : kNumbers) {
        const std::string value = rows.Value(number.row).Text();
        if (!IsNumeric(value)) continue;
        const int n = ToInt32(value);
        if (n != (this->*number.get)()) (this->*number.set)(n);
    }
    KOMAVisible(BooleanFromWord(rows.Value(25).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(18).Text()) != 0);
    KOMAEnable(BooleanFromWord(rows.Value(19).Text()) != 0);
    KOMADirty(BooleanFromWord(rows.Value(20).Text()) != 0);
    KOMAHighlight(BooleanFromWord(rows.Value(21).Text()) != 0);
    KOMAInsertPointVisible(BooleanFromWord(rows.Value(22).Text()) != 0);
    KOMAScrollbar(BooleanFromWord(rows.Value(23).Text()) != 0);
    // Row 24, "Full Size In Table Cell", is not applied: only a record
    // sets it.
    return true;
}

bool ctlKOMAField::CopyModelFrom(const KomaObject& other) {
    const auto* field = dynamic_cast<const ctlKOMAField*>(&other);
    if (!field || !KomaObject::CopyModelFrom(other)) return false;
    text_ = field->text_;
    styleWord_ = field->styleWord_;
    CopyTextLookFrom(*field);
    backlineWord_ = field->backlineWord_;
    alignmentWord_ = field->alignmentWord_;
    topLineNum_ = field->topLineNum_;
    CopyEntryStateFrom(*field);
    scrollbarWord_ = field->scrollbarWord_;
    fullSizeWord_ = field->fullSizeWord_;
    availableWidth_ = field->availableWidth_;
    lines_ = field->lines_;
    return true;
}

}  // namespace tolva
