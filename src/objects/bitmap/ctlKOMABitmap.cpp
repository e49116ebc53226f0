#include "objects/bitmap/ctlKOMABitmap.h"

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/bitmap/modBitmap.h"

namespace tolva {

ctlKOMABitmap::ctlKOMABitmap() : TwoPictures(type::Bitmap, "BITMAP", 33, 33) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
}

// --- setters ----------------------------------------------------------------------------

int ctlKOMABitmap::KOMABitmapStyle() const { return BitmapStyleWordToNumber(styleWord_); }

void ctlKOMABitmap::KOMABitmapStyle(int style) {
    const std::string word = BitmapStyleNumberToWord(style);
    if (!word.empty()) styleWord_ = word;
}

void ctlKOMABitmap::KOMABitmap1File(const std::string& path) { SetBitmapFile(1, path); }
void ctlKOMABitmap::KOMABitmap2File(const std::string& path) { SetBitmapFile(2, path); }

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMABitmap::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    rows.SetRow(1, PropertyLabel(101), rowkind::Text, KOMAName());
    rows.SetRow(2, PropertyLabel(102), rowkind::Text, KOMABoundsX());
    rows.SetRow(3, PropertyLabel(103), rowkind::Text, KOMABoundsY());
    rows.SetRow(4, PropertyLabel(1101), rowkind::Choice, styleWord_);
    rows.SetRow(5, PropertyLabel(106), rowkind::Choice, enableWord_);
    // Visible before Active, unlike the other kinds.
    rows.SetRow(6, PropertyLabel(108), rowkind::Choice, visibleWord_);
    rows.SetRow(7, PropertyLabel(107), rowkind::Choice, activeWord_);
    rows.SetRow(8, PropertyLabel(1103), rowkind::Button, false);
    rows.SetRow(9, PropertyLabel(1102), rowkind::Button, false);
    rows.SetRow(10, PropertyLabel(123) + " 1", rowkind::Choice, DepthRowWord(bitmap1_.depth));
    rows.SetRow(11, PropertyLabel(123) + " 2", rowkind::Choice, DepthRowWord(bitmap2_.depth));
}

bool ctlKOMABitmap::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    // The row labelled Bitmap 2 sets Bitmap 1 and the other way round: the
    // labels name what the device shows in each state.
    if (rows.Value(8).Bool()) {
        SetBitmapFromChooser(1);
        return true;
    }
    if (rows.Value(9).Bool()) {
        SetBitmapFromChooser(2);
        return true;
    }
    ApplyNameRow(rows);
    ApplyPositionRows(rows);
    KOMABitmapStyle(BitmapStyleWordToNumber(rows.Value(4).Text()));
    KOMAEnable(BooleanFromWord(rows.Value(5).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(7).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(6).Text()) != 0);
    KOMABitmap1Depth(DepthFromRowWord(rows.Value(10).Text()));
    KOMABitmap2Depth(DepthFromRowWord(rows.Value(11).Text()));
    return true;
}

bool ctlKOMABitmap::CopyModelFrom(const KomaObject& other) {
    const auto* bitmap = dynamic_cast<const ctlKOMABitmap*>(&other);
    if (!bitmap || !KomaObject::CopyModelFrom(other)) return false;
    styleWord_ = bitmap->styleWord_;
    bitmap1_ = bitmap->bitmap1_;
    bitmap2_ = bitmap->bitmap2_;
    enableWord_ = bitmap->enableWord_;
    activeWord_ = bitmap->activeWord_;
    visibleWord_ = bitmap->visibleWord_;
    return true;
}

}  // namespace tolva
