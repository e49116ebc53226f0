#include "objects/string/ctlKOMAString.h"

#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/string/modString.h"

namespace tolva {

ctlKOMAString::ctlKOMAString() : TextLook(type::String, "STRING", 53, 10) {}

int ctlKOMAString::KOMAStringStyle() const { return StringStyleWordToNumber(styleWord_); }

void ctlKOMAString::KOMAStringStyle(int style) { styleWord_ = StringStyleNumberToWord(style); }

int ctlKOMAString::KOMATextAlignment() const { return AlignmentFromWord(alignmentWord_); }

void ctlKOMAString::KOMATextAlignment(int alignment) {
    if (alignment >= 0 && alignment <= 2) alignmentWord_ = WordFromAlignment(alignment);
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAString::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(2101), rowkind::Choice, styleWord_);
    rows.SetRow(7, PropertyLabel(109), rowkind::Text, text_);
    rows.SetRow(8, PropertyLabel(112), rowkind::Choice, fontColorWord_);
    rows.SetRow(9, PropertyLabel(113), rowkind::Choice, backColorWord_);
    rows.SetRow(10, PropertyLabel(115), rowkind::Choice, fontWord_);
    rows.SetRow(11, PropertyLabel(110), rowkind::Choice, alignmentWord_);
    rows.SetRow(12, PropertyLabel(108), rowkind::Choice, visibleWord_);
}

bool ctlKOMAString::SetPropertyList(const PropertyArray& rows) {
    if (!ApplySharedPropertyRows(rows)) return false;
    KOMAStringStyle(StringStyleWordToNumber(rows.Value(6).Text()));
    KOMAText(rows.Value(7).Text());
    KOMAFontColor(ColorFromWord(rows.Value(8).Text()));
    KOMABackColor(ColorFromWord(rows.Value(9).Text()));
    // Only a font that changed is set: the setter lays the String out, and a
    // new style is to show with the next resize, not with this call.
    const int font = FontFromWord(rows.Value(10).Text());
    if (font != KOMAFont()) KOMAFont(font);
    KOMATextAlignment(AlignmentFromWord(rows.Value(11).Text()));
    KOMAVisible(BooleanFromWord(rows.Value(12).Text()) != 0);
    return true;
}

bool ctlKOMAString::CopyModelFrom(const KomaObject& other) {
    const auto* string = dynamic_cast<const ctlKOMAString*>(&other);
    if (!string || !KomaObject::CopyModelFrom(other)) return false;
    styleWord_ = string->styleWord_;
    text_ = string->text_;
    CopyTextLookFrom(*string);
    alignmentWord_ = string->alignmentWord_;
    visibleWord_ = string->visibleWord_;
    borderVisible_ = string->borderVisible_;
    border_ = string->border_;
    label_ = string->label_;
    return true;
}

}  // namespace tolva
