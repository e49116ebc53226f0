#include "objects/textbox/ctlKOMATextbox.h"

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/textbox/modTextbox.h"

namespace tolva {

ctlKOMATextbox::ctlKOMATextbox() : EntryState(type::Textbox, "TEXTBOX", 43, 36) {}

int ctlKOMATextbox::KOMATextboxStyle() const { return TextboxStyleWordToNumber(styleWord_); }

void ctlKOMATextbox::KOMATextboxStyle(int style) {
    if (style >= 0 && style <= 2) styleWord_ = "TEXTBOX_STYLE_" + std::to_string(style);
}

int ctlKOMATextbox::KOMABackline() const { return BaseLineFromWord(backlineWord_); }

void ctlKOMATextbox::KOMABackline(int line) {
    const std::string word = WordFromBaseLine(line);
    if (!word.empty()) backlineWord_ = word;
}

std::string ctlKOMATextbox::ShownText() const { return text_ + std::string(100, '.'); }

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMATextbox::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(109), rowkind::Text, text_);
    rows.SetRow(7, PropertyLabel(2301), rowkind::Choice, styleWord_);
    rows.SetRow(8, PropertyLabel(114), rowkind::Choice, backlineWord_);
    rows.SetRow(9, PropertyLabel(115), rowkind::Choice, fontWord_);
    rows.SetRow(10, PropertyLabel(112), rowkind::Choice, fontColorWord_);
    rows.SetRow(11, PropertyLabel(113), rowkind::Choice, backColorWord_);
    rows.SetRow(12, PropertyLabel(116), rowkind::Text, maxNumChars_);
    rows.SetRow(13, PropertyLabel(2302), rowkind::Text, leftCharPos_);
    rows.SetRow(14, PropertyLabel(2303), rowkind::Text, rightCharPos_);
    rows.SetRow(15, PropertyLabel(2304), rowkind::Text, insertPointCharPos_);
    rows.SetRow(16, PropertyLabel(117), rowkind::Text, highlightStart_);
    rows.SetRow(17, PropertyLabel(118), rowkind::Text, highlightEnd_);
    rows.SetRow(18, PropertyLabel(107), rowkind::Choice, activeWord_);
    rows.SetRow(19, PropertyLabel(106), rowkind::Choice, enableWord_);
    rows.SetRow(20, PropertyLabel(2305), rowkind::Choice, dirtyWord_);
    rows.SetRow(21, PropertyLabel(2306), rowkind::Choice, highlightWord_);
    rows.SetRow(22, PropertyLabel(2307), rowkind::Choice, insertPointVisibleWord_);
    rows.SetRow(23, PropertyLabel(108), rowkind::Choice, visibleWord_);
}

bool ctlKOMATextbox::SetPropertyList(const PropertyArray& rows) {
    if (!ApplySharedPropertyRows(rows)) return false;
    KOMATextboxStyle(TextboxStyleWordToNumber(rows.Value(7).Text()));
    KOMAText(rows.Value(6).Text());
    KOMABackline(BaseLineFromWord(rows.Value(8).Text()));
    KOMAFontColor(ColorFromWord(rows.Value(10).Text()));
    KOMABackColor(ColorFromWord(rows.Value(11).Text()));
    KOMAFont(FontFromWord(rows.Value(9).Text()));
    // The six numbers, each only when it is a number and differs.
    struct NumberRow {
        int row;
        int (ctlKOMATextbox::*get)() const;
        void (ctlKOMATextbox::*set)(int);
    };
    static constexpr NumberRow kNumbers[] = {
        {12, &ctlKOMATextbox::KOMAMaxNumChars, &ctlKOMATextbox::KOMAMaxNumChars},
        {13, &ctlKOMATextbox::KOMALeftCharPos, &ctlKOMATextbox::KOMALeftCharPos},
        {14, &ctlKOMATextbox::KOMARightCharPos, &ctlKOMATextbox::KOMARightCharPos},
        {15, &ctlKOMATextbox::KOMAInsertPointCharPos, &ctlKOMATextbox::KOMAInsertPointCharPos},
        {16, &ctlKOMATextbox::KOMAHighlightStartCharPos, &ctlKOMATextbox::KOMAHighlightStartCharPos},
        {17, &ctlKOMATextbox::KOMAHighlightEndCharPos, &ctlKOMATextbox::KOMAHighlightEndCharPos},
    };
    for (const NumberRow& number : kNumbers) {
        const std::string text = rows.Value(number.row).Text();
        if (!IsNumeric(text)) continue;
        const int value = ToInt32(text);
        if (value != (this->*number.get)()) (this->*number.set)(value);
    }
    KOMAVisible(BooleanFromWord(rows.Value(23).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(18).Text()) != 0);
    KOMAEnable(BooleanFromWord(rows.Value(19).Text()) != 0);
    KOMADirty(BooleanFromWord(rows.Value(20).Text()) != 0);
    KOMAHighlight(BooleanFromWord(rows.Value(21).Text()) != 0);
    // Row 22, "Show Insert Point", is not applied: only a record sets it.
    return true;
}

bool ctlKOMATextbox::CopyModelFrom(const KomaObject& other) {
    const auto* box = dynamic_cast<const ctlKOMATextbox*>(&other);
    if (!box || !KomaObject::CopyModelFrom(other)) return false;
    text_ = box->text_;
    styleWord_ = box->styleWord_;
    backlineWord_ = box->backlineWord_;
    CopyTextLookFrom(*box);
    CopyEntryStateFrom(*box);
    leftCharPos_ = box->leftCharPos_;
    rightCharPos_ = box->rightCharPos_;
    shadowShown_ = box->shadowShown_;
    shadow_ = box->shadow_;
    borderShown_ = box->borderShown_;
    border_ = box->border_;
    label_ = box->label_;
    return true;
}

}  // namespace tolva
