#pragma once
// ctlKOMALine: a straight line between two end points on a form. Unlike
// every other object it is addressed by its end points: its box, and the
// direction in which the line crosses it, follow from them. A line too thin
// for a diagonal (under 40 screen units either way) is exactly level or
// upright, and shows as a black bar.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class ctlKOMALine : public KomaObject {
public:
    static constexpr int kRowCount = 9;

    ctlKOMALine();

    // True: the line runs from the lower left to the upper right of its box.
    bool PositiveSlope() const { return positiveSlope_; }
    void PositiveSlope(bool value) { positiveSlope_ = value; }

    // The box's size as any object's, but a value of 160 to 164 is taken as
    // 159: a line's box never reaches 160.
    using KomaObject::KOMAWidth;
    using KomaObject::KOMAHeight;
    void KOMAWidth(int width) override;
    void KOMAHeight(int height) override;

    // The two end points, device pixels 0 to 159. The start takes 160 to 164
    // as 159; anything else out of range is refused with a message and the
    // old value stays.
    int KOMAStartX() const { return startX_; }
    void KOMAStartX(int x);
    int KOMAStartY() const { return startY_; }
    void KOMAStartY(int y);
    int KOMAEndX() const { return endX_; }
    void KOMAEndX(int x);
    int KOMAEndY() const { return endY_; }
    void KOMAEndY(int y);

    // Colours 0, 7, 11, 15; another number changes nothing.
    int KOMAColor() const;
    void KOMAColor(int color);
    const std::string& KOMAColorWord() const { return colorWord_; }
    // 0 to 2 "LINE_STYLE_0" ... "LINE_STYLE_2"; another number changes
    // nothing.
    int KOMALineStyle() const;
    void KOMALineStyle(int style);
    const std::string& KOMALineStyleWord() const { return styleWord_; }
    // Thickness in pixels, 0 or more: a negative one is refused with
    // "Invalid value" titled "KOMAThick".
    int KOMAThick() const { return thick_; }
    void KOMAThick(int thick);
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = value ? "TRUE" : "FALSE"; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // The end points from the box: the X values from its left and right
    // sides, the Y values from its bottom and top (start at the bottom with
    // a positive slope, at the top without), each held to 0..159. A box
    // under 40 screen units high makes the line horizontal, under 40 wide
    // vertical.
    void SetEndsFromBox();
    // The slope from the end points: positive when the end lies higher on
    // the screen than the start for an X to the right, or lower for an X to
    // the left. With no X span it stays as it is.
    void WorkOutSlope();

    // Asks the owner to set the box from the end points held.
    void RaiseLineResized();

    // True while the box is wide and high enough for a diagonal: the line
    // crosses it. Otherwise the box itself, black, is the line.
    bool IsDiagonal() const;

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The record and a loaded record applied (LineRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The background and lnLine, or the black bar (LineDrawing.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void LayOut() override;

private:
    bool positiveSlope_ = false;
    int startX_ = 0;
    int startY_ = 0;
    int endX_ = 24;
    int endY_ = 0;
    std::string colorWord_ = "COLOR_BLACK";
    std::string styleWord_ = "LINE_STYLE_1";
    int thick_ = 1;
    std::string visibleWord_ = "TRUE";
};

}  // namespace tolva
