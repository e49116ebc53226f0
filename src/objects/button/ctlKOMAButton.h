#pragma once
// ctlKOMAButton: a button, a rectangle with a text on the device screen, in
// two styles: a plain filled box (BUTTON_STYLE_0) or a rounded, outlined one
// (BUTTON_STYLE_1). Its radius, clicked colour and attributes go to the
// record only; the unclicked colour fills the box.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMAButton : public KomaControl {
public:
    static constexpr int kRowCount = 14;

    ctlKOMAButton();

    // The subtype: 0 "BUTTON_STYLE_0", 1 "BUTTON_STYLE_1"; any other number
    // stores the empty word. The layout is redone either way.
    int KOMAControlSubType() const;
    void KOMAControlSubType(int style);
    long KOMARadius() const { return radius_; }
    void KOMARadius(long radius);
    // Colours by number: 0, 7, 11, 15; any other number changes nothing.
    int KOMAOnColor() const;
    void KOMAOnColor(int color);
    const std::string& KOMAOnColorWord() const { return onColorWord_; }
    int KOMAOffColor() const;
    void KOMAOffColor(int color);
    const std::string& KOMAOffColorWord() const { return offColorWord_; }

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (ButtonCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (ButtonRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // shpButton and lblText of the style (ButtonDrawing.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void ApplySubTypeWord(const std::string& word) override;

private:
    long radius_ = 2;
    std::string onColorWord_ = "COLOR_BLACK";
    std::string offColorWord_ = "COLOR_WHITE";
};

}  // namespace tolva
