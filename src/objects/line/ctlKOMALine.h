#pragma once
// ctlKOMALine: a line between two points; its box is the rectangle of the two.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMALine : public KomaObject {
public:
    ctlKOMALine();

    // True: the line runs from the lower left to the upper right of its box.
    bool PositiveSlope() const { return positiveSlope_; }
    void PositiveSlope(bool value) { positiveSlope_ = value; }

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

    // The end points from the box: the X values from its left and right
    // sides, the Y values from its bottom and top (start at the bottom with
    // a positive slope, at the top without), each held to 0..159. A box
    // under 40 screen units high makes the line horizontal, under 40 wide
    // vertical.
    void SetEndsFromBox();

    // Asks the owner to set the box from the end points held.
    void RaiseLineResized();

    bool CopyModelFrom(const KomaObject& other) override;

private:
    bool positiveSlope_ = false;
    int startX_ = 0;
    int startY_ = 0;
    int endX_ = 24;
    int endY_ = 0;
};

}  // namespace tolva
