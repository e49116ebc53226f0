#pragma once
// ctlKOMAString: a fixed text on a form, in one of the device's two fonts,
// with a font colour, a background colour, an alignment and, in style 1, a
// frame. Its layout is redone on a resize and on a change of font only: a
// new style shows with the next resize, and styles 2 to 5 keep the layout
// of the style before them.
#include "document/KomaObject.h"
#include "objects/TextLook.h"

namespace tolva {

class ctlKOMAString : public TextLook<KomaObject> {
public:
    static constexpr int kRowCount = 12;

    ctlKOMAString();

    // 0 to 5 store "STRING_STYLE_0" ... "STRING_STYLE_5"; any other number
    // the empty word. Only the word is stored.
    int KOMAStringStyle() const;
    void KOMAStringStyle(int style);
    const std::string& KOMAStringStyleWord() const { return styleWord_; }
    const std::string& KOMAText() const { return text_; }
    void KOMAText(const std::string& text) { text_ = text; }
    // 0 "LEFT", 1 "CENTRE", 2 "RIGHT"; any other number changes nothing.
    int KOMATextAlignment() const;
    void KOMATextAlignment(int alignment);
    const std::string& KOMATextAlignmentWord() const { return alignmentWord_; }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = value ? "TRUE" : "FALSE"; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (StringCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (StringRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The background, lblString and shpBorder as last laid out
    // (StringDrawing.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void LayOut() override;

private:
    std::string styleWord_ = "STRING_STYLE_0";
    std::string text_ = "String Text";
    std::string alignmentWord_ = "LEFT";
    std::string visibleWord_ = "TRUE";

    // The last layout, in screen units.
    bool borderVisible_ = false;
    CanvasRect border_;
    CanvasRect label_{0, 0, 0, 25 * 14};
};

}  // namespace tolva
