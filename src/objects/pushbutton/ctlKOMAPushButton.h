#pragma once
// ctlKOMAPushButton: a push button, a control with two states, pushed and
// popped, one of a group of push buttons. Four styles; its look shows the
// initial value, the state the device starts it in.
//
// The look is worked out when the object is redrawn (a change of size, text,
// style, alignment or colour) and kept until the next redraw: a new initial
// value shows only then. Style 3 keeps the fill its frame had under the
// style before it.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMAPushButton : public KomaControl {
public:
    static constexpr int kRowCount = 16;

    ctlKOMAPushButton();

    // The subtype: 0 to 3 "PUSHBUTTON_STYLE_0" to "_3"; any other number
    // stores the empty word. The object is redrawn either way.
    int KOMAControlSubType() const;
    void KOMAControlSubType(int style);
    // The corner radius on the device: 0 or more.
    long KOMARadius() const { return radius_; }
    void KOMARadius(long radius);
    // Colours by number, 0, 7, 11, 15: the pushed (on) and popped (off)
    // colour. Any other number changes nothing.
    int KOMAOnColor() const;
    void KOMAOnColor(int color);
    const std::string& KOMAOnColorWord() const { return onColorWord_; }
    int KOMAOffColor() const;
    void KOMAOffColor(int color);
    const std::string& KOMAOffColorWord() const { return offColorWord_; }
    // The group of the button: 0 or more.
    int KOMAGroupID() const { return groupId_; }
    void KOMAGroupID(int id);
    // The initial state: true is pushed. Stored only; the look follows at
    // the next redraw.
    bool KOMAControlValue() const { return valueWord_ == "TRUE"; }
    void KOMAControlValue(bool pushed) { valueWord_ = pushed ? "TRUE" : "FALSE"; }
    const std::string& KOMAControlValueWord() const { return valueWord_; }

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (PushButtonCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (PushButtonRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The look of the last redraw (PushButtonDrawing.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void ApplySubTypeWord(const std::string& word) override;
    // The redraw: the look of the style with the state colour of now.
    void LayOut() override;

private:
    // What the last redraw worked out, in screen units.
    struct Look {
        bool objectOutline = true;
        bool borderShown = false;
        bool borderRounded = false;
        CanvasRect border;
        bool borderFilled = true;
        DrawColor borderFill = kWhite;
        bool bottomShown = false;
        CanvasRect bottom;
        bool bottomOutline = false;
        CanvasRect label;
        DrawColor labelBack = kWhite;
        DrawColor labelFore = kBlack;
    };

    long radius_ = 2;
    std::string onColorWord_ = "COLOR_BLACK";
    std::string offColorWord_ = "COLOR_WHITE";
    int groupId_ = 0;
    std::string valueWord_ = "FALSE";
    Look look_;
};

}  // namespace tolva
