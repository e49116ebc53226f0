#include "objects/scrollbar/ctlKOMAScrollbar.h"

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/StringTable.h"
#include "document/Words.h"
#include "objects/scrollbar/modScrollbar.h"

namespace tolva {

ctlKOMAScrollbar::ctlKOMAScrollbar() : KomaObject(type::Scrollbar, "SCROLLBAR", 24, 12) {}

// --- the range -------------------------------------------------------------------------------

void ctlKOMAScrollbar::KOMAScrollbarMax(int value) {
    if (value < min_) {
        Message(LoadResString(msg::InvalidScrollbarMax));
        return;
    }
    max_ = value;
    numLines_ = max_ - min_ + 1;
    if (current_ > max_) current_ = max_;
    LayOut();
}

void ctlKOMAScrollbar::KOMAScrollbarMin(int value) {
    if (value > max_) {
        Message(LoadResString(msg::InvalidScrollbarMin));
        return;
    }
    min_ = value;
    numLines_ = max_ - min_ + 1;
    if (current_ < min_) current_ = min_;
    LayOut();
}

void ctlKOMAScrollbar::KOMACurrentValue(int value) {
    if (value < min_ || value > max_) {
        Message(LoadResString(msg::InvalidScrollbarValue));
        return;
    }
    current_ = value;
    LayOut();
}

// --- orientation and style -------------------------------------------------------------------

int ctlKOMAScrollbar::KOMAScrollbarType() { return OrientationWordToNumber(orientationWord_); }

void ctlKOMAScrollbar::KOMAScrollbarType(int orientation) {
    orientationWord_ = OrientationNumberToWord(orientation);
    RepairOrientation();
    LayOut();
}

int ctlKOMAScrollbar::KOMAScrollbarStyle() {
    RepairOrientation();
    return ScrollbarStyleWordToNumber(styleWord_);
}

// The word only: a pair the new style does not allow is repaired when the
// style is next read (the inspector reads it as soon as the rows are
// applied).
void ctlKOMAScrollbar::KOMAScrollbarStyle(int style) {
    styleWord_ = ScrollbarStyleNumberToWord(style);
    LayOut();
}

void ctlKOMAScrollbar::RepairOrientation() {
    const int orientation = OrientationWordToNumber(orientationWord_);
    if (IsOrientationSupported(ScrollbarStyleWordToNumber(styleWord_), orientation)) return;
    orientationWord_ = orientation == 0 ? "VERTICAL" : "HORIZONTAL";
    // While the object has no name yet, nothing is told.
    if (!KOMAName().empty())
        Log(KOMAName() + ": Changed scrollbar orientation to " + orientationWord_ +
            ".  Since other orientation not supported");
    LayOut();
}

void ctlKOMAScrollbar::KOMAText(const std::string& text) {
    text_ = text;
    LayOut();
}

// --- the arrows' places, sizes and depths ----------------------------------------------------

void ctlKOMAScrollbar::KOMABitmapX(int which, int x) {
    if (x < 0 || x > 159) return Message("Invalid value");
    Of(which).x = x;
}

void ctlKOMAScrollbar::KOMABitmapY(int which, int y) {
    if (y < 0 || y > 159) return Message("Invalid value");
    Of(which).y = y;
}

void ctlKOMAScrollbar::KOMABitmapWidth(int which, int width) {
    if (width < 0 || width > 160) return Message("Invalid value");
    Of(which).width = width;
}

void ctlKOMAScrollbar::KOMABitmapHeight(int which, int height) {
    if (height < 0 || height > 160) return Message("Invalid value");
    Of(which).height = height;
}

void ctlKOMAScrollbar::KOMABitmapDepth(int which, int depth) {
    if (depth == 2 || depth == 4) Of(which).depth = depth;
}

// --- popup menu ------------------------------------------------------------------------------

void ctlKOMAScrollbar::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice =
        host().PopupMenu("Set Properties", {{"mnuSetPropSetBitmap1", "Set Up/Left Bitmap"},
                                            {"mnuSetPropSetBitmap2", "Set Down/Right Bitmap"}});
    if (choice && (*choice == 0 || *choice == 1)) SetBitmapFromChooser(*choice + 1);
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAScrollbar::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    // Reading the style first repairs a pair the style does not allow.
    const std::string style = ScrollbarStyleNumberToWord(KOMAScrollbarStyle());
    (void)style;
    rows.SetRow(6, PropertyLabel(2003), rowkind::Text, max_);
    rows.SetRow(7, PropertyLabel(2005), rowkind::Text, current_);
    rows.SetRow(8, PropertyLabel(2006), rowkind::Text, pageSize_);
    rows.SetRow(9, PropertyLabel(2002), rowkind::Choice, orientationWord_);
    rows.SetRow(10, PropertyLabel(2001), rowkind::Choice, styleWord_);
    rows.SetRow(11, PropertyLabel(109), rowkind::Text, text_);
    rows.SetRow(12, PropertyLabel(107), rowkind::Choice, activeWord_);
    rows.SetRow(13, PropertyLabel(106), rowkind::Choice, enableWord_);
    rows.SetRow(14, PropertyLabel(108), rowkind::Choice, visibleWord_);
    rows.SetRow(15, PropertyLabel(2007), rowkind::Button, false);
    rows.SetRow(16, PropertyLabel(2008), rowkind::Button, false);
    rows.SetRow(17, PropertyLabel(123) + " 1", rowkind::Choice, DepthRowWord(arrow1_.depth));
    rows.SetRow(18, PropertyLabel(123) + " 2", rowkind::Choice, DepthRowWord(arrow2_.depth));
}

bool ctlKOMAScrollbar::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    if (rows.Value(15).Bool()) {
        SetBitmapFromChooser(1);
        return true;
    }
    if (rows.Value(16).Bool()) {
        SetBitmapFromChooser(2);
        return true;
    }
    ApplyNameRow(rows);
    ApplyPositionRows(rows);
    ApplySizeRows(rows);
    KOMAScrollbarStyle(ScrollbarStyleWordToNumber(rows.Value(10).Text()));
    const int orientation = OrientationWordToNumber(rows.Value(9).Text());
    if (orientation != KOMAScrollbarType()) KOMAScrollbarType(orientation);
    KOMAText(rows.Value(11).Text());
    KOMAActive(BooleanFromWord(rows.Value(12).Text()) != 0);
    KOMAEnable(BooleanFromWord(rows.Value(13).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(14).Text()) != 0);
    // The three numbers, each only when it is a number and differs.
    struct NumberRow {
        int row;
        int (ctlKOMAScrollbar::*get)() const;
        void (ctlKOMAScrollbar::*set)(int);
    };
    static constexpr NumberRow kNumbers[] = {
        {6, &ctlKOMAScrollbar::KOMAScrollbarMax, &ctlKOMAScrollbar::KOMAScrollbarMax},
        {7, &ctlKOMAScrollbar::KOMACurrentValue, &ctlKOMAScrollbar::KOMACurrentValue},
        {8, &ctlKOMAScrollbar::KOMAPageSize, &ctlKOMAScrollbar::KOMAPageSize},
    };
    for (const NumberRow& number : kNumbers) {
        const std::string text = rows.Value(number.row).Text();
        if (!IsNumeric(text)) continue;
        const int value = ToInt32(text);
        if (value != (this->*number.get)()) (this->*number.set)(value);
    }
    KOMABitmapDepth(1, DepthFromRowWord(rows.Value(17).Text()));
    KOMABitmapDepth(2, DepthFromRowWord(rows.Value(18).Text()));
    return true;
}

bool ctlKOMAScrollbar::CopyModelFrom(const KomaObject& other) {
    const auto* bar = dynamic_cast<const ctlKOMAScrollbar*>(&other);
    if (!bar || !KomaObject::CopyModelFrom(other)) return false;
    max_ = bar->max_;
    min_ = bar->min_;
    current_ = bar->current_;
    pageSize_ = bar->pageSize_;
    numLines_ = bar->numLines_;
    orientationWord_ = bar->orientationWord_;
    styleWord_ = bar->styleWord_;
    text_ = bar->text_;
    activeWord_ = bar->activeWord_;
    enableWord_ = bar->enableWord_;
    visibleWord_ = bar->visibleWord_;
    arrow1_ = bar->arrow1_;
    arrow2_ = bar->arrow2_;
    barShown_ = bar->barShown_;
    bar_ = bar->bar_;
    image1_ = bar->image1_;
    image2_ = bar->image2_;
    label_ = bar->label_;
    return true;
}

}  // namespace tolva
