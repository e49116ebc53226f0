#include "objects/repeatbutton/ctlKOMARepeatButton.h"

#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/repeatbutton/modRepeatbutton.h"

namespace tolva {

ctlKOMARepeatButton::ctlKOMARepeatButton()
    : KomaControl(type::RepeatButton, controlstyle::RepeatButton, "REPEAT_BUTTON", 33, 33) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
    SetControlSubTypeWord("REPEATBUTTON_STYLE_0");
    SetTextAlignmentWord("LEFT");
    KOMAControlText("Button Text");
}

// --- setters ----------------------------------------------------------------------------

int ctlKOMARepeatButton::KOMAControlSubType() const {
    return RepeatButtonStyleWordToNumber(KOMAControlSubTypeWord());
}

void ctlKOMARepeatButton::KOMAControlSubType(int style) {
    SetControlSubTypeWord(RepeatButtonStyleNumberToWord(style));
}

void ctlKOMARepeatButton::ApplySubTypeWord(const std::string& word) {
    KOMAControlSubType(RepeatButtonStyleWordToNumber(word));
}

void ctlKOMARepeatButton::KOMABitmapX(int x) {
    if (x < 0 || x > 159) {
        Message("Invalid value", "KOMABitmapX");
        return;
    }
    picture_.x = x;
}

void ctlKOMARepeatButton::KOMABitmapY(int y) {
    if (y < 0 || y > 159) {
        Message("Invalid value", "KOMABitmapY");
        return;
    }
    picture_.y = y;
}

// The size setters say so under the application's title, as the object's
// own size setters do.
void ctlKOMARepeatButton::KOMABitmapWidth(int width) {
    if (width < 0 || width > 160) {
        Message("Invalid value");
        return;
    }
    picture_.width = width;
}

void ctlKOMARepeatButton::KOMABitmapHeight(int height) {
    if (height < 0 || height > 160) {
        Message("Invalid value");
        return;
    }
    picture_.height = height;
}

void ctlKOMARepeatButton::KOMABitmapDepth(int depth) {
    if (depth == 2 || depth == 4) picture_.depth = depth;
}

void ctlKOMARepeatButton::KOMABitmapFile(const std::string& path) {
    if (LoadPicture(path)) picture_.file = path;
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMARepeatButton::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    rows.SetRow(1, PropertyLabel(101), rowkind::Text, KOMAName());
    rows.SetRow(2, PropertyLabel(102), rowkind::Text, KOMABoundsX());
    rows.SetRow(3, PropertyLabel(103), rowkind::Text, KOMABoundsY());
    rows.SetRow(4, PropertyLabel(1901), rowkind::Choice, KOMAControlSubTypeWord());
    rows.SetRow(5, PropertyLabel(106), rowkind::Choice, KOMAEnableWord());
    rows.SetRow(6, PropertyLabel(107), rowkind::Choice, KOMAActiveWord());
    rows.SetRow(7, PropertyLabel(108), rowkind::Choice, KOMAVisibleWord());
    rows.SetRow(8, PropertyLabel(1902), rowkind::Button, false);
    rows.SetRow(9, PropertyLabel(123) + " 1", rowkind::Choice, DepthRowWord(picture_.depth));
}

bool ctlKOMARepeatButton::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    // The Bitmap File row chooses a picture and does nothing else.
    if (rows.Value(8).Bool()) {
        SetBitmapFromChooser();
        return true;
    }
    ApplyNameRow(rows);
    ApplyPositionRows(rows);
    KOMAControlSubType(RepeatButtonStyleWordToNumber(rows.Value(4).Text()));
    KOMAEnable(BooleanFromWord(rows.Value(5).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(6).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(7).Text()) != 0);
    KOMABitmapDepth(DepthFromRowWord(rows.Value(9).Text()));
    return true;
}

void ctlKOMARepeatButton::AfterRowX() { KOMABitmapX(KOMABoundsX()); }

void ctlKOMARepeatButton::AfterRowY() { KOMABitmapY(KOMABoundsY()); }

bool ctlKOMARepeatButton::CopyModelFrom(const KomaObject& other) {
    const auto* button = dynamic_cast<const ctlKOMARepeatButton*>(&other);
    if (!button || !KomaControl::CopyModelFrom(other)) return false;
    picture_ = button->picture_;
    return true;
}

}  // namespace tolva
