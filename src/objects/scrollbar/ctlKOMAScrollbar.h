#pragma once
// ctlKOMAScrollbar: the device's range control, a value between a minimum
// and a maximum with a page size, shown as a bar between two arrow
// pictures (style 0), a framed bar (styles 1 and 2) or a text with a
// position mark (style 3). Every style allows one orientation only: asking
// for the other turns the bar around and says so in the log.
#include <string>

#include "document/KomaObject.h"
#include "objects/PictureFiles.h"

namespace tolva {

class ctlKOMAScrollbar : public KomaObject {
public:
    static constexpr int kRowCount = 18;

    ctlKOMAScrollbar();

    // The range. The maximum may not go below the minimum, nor the minimum
    // above the maximum, and the current value stays between them; each
    // refusal is its own message under the application's title. A new
    // maximum or minimum sets the number of lines and pulls the current
    // value into the range.
    int KOMAScrollbarMax() const { return max_; }
    void KOMAScrollbarMax(int value);
    int KOMAScrollbarMin() const { return min_; }
    void KOMAScrollbarMin(int value);
    int KOMACurrentValue() const { return current_; }
    void KOMACurrentValue(int value);
    // Any value: the device's business, carried to the record.
    int KOMAPageSize() const { return pageSize_; }
    void KOMAPageSize(int value) { pageSize_ = value; }
    int KOMANumLines() const { return numLines_; }
    void KOMANumLines(int value) { numLines_ = value; }

    // 0 "HORIZONTAL", 1 "VERTICAL". The word of the number is stored, then
    // the pair with the style is tested and repaired.
    int KOMAScrollbarType();
    void KOMAScrollbarType(int orientation);
    const std::string& KOMAScrollbarTypeWord() const { return orientationWord_; }
    // 0 to 3 "SCROLLBAR_STYLE_0" ...; the word is stored and the layout
    // redone. Reading the style tests and repairs the orientation.
    int KOMAScrollbarStyle();
    void KOMAScrollbarStyle(int style);
    const std::string& KOMAScrollbarStyleWord() const { return styleWord_; }

    const std::string& KOMAText() const { return text_; }
    void KOMAText(const std::string& text);

    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = Word(value); }
    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = Word(value); }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = Word(value); }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // The arrows, 1 up or left and 2 down or right: places 0 to 159, sizes 0
    // to 160, each refusal "Invalid value"; depths 2 or 4, another number
    // changing nothing. A file is taken only when it is there and loads.
    const ObjectPicture& Arrow(int which) const { return which == 1 ? arrow1_ : arrow2_; }
    void KOMABitmapX(int which, int x);
    void KOMABitmapY(int which, int y);
    void KOMABitmapWidth(int which, int width);
    void KOMABitmapHeight(int which, int height);
    void KOMABitmapDepth(int which, int depth);
    void KOMABitmapFile(int which, const std::string& path);

    // The popup menu's action: the chooser, then the file setter.
    void SetBitmapFromChooser(int which);

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (ScrollbarCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (ScrollbarRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The layout of the style (ScrollbarDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // The right button opens "Set Properties" with the two arrows.
    void MouseDown(int button, int shift, double x, double y) override;

protected:
    // The model's size follows the screen's, and the screen's is then set
    // back to the exact multiple of a device pixel.
    void OnCanvasResize() override;
    void LayOut() override;

private:
    static const char* Word(bool value) { return value ? "TRUE" : "FALSE"; }
    ObjectPicture& Of(int which) { return which == 1 ? arrow1_ : arrow2_; }
    // Turns a pair of style and orientation the style does not allow
    // around, with its log line.
    void RepairOrientation();
    // Loads an arrow's picture: false for an empty path, a file that does
    // not load or a picture larger than the screen (ScrollbarArrows.cpp).
    bool SetScrollbarBitmap(int which, const std::string& path);

    int max_ = 10;
    int min_ = 0;
    int current_ = 0;
    int pageSize_ = 1;
    int numLines_ = 11;
    std::string orientationWord_ = "VERTICAL";
    std::string styleWord_ = "SCROLLBAR_STYLE_0";
    std::string text_ = "Scrollbar Text";
    std::string activeWord_ = "TRUE";
    std::string enableWord_ = "TRUE";
    std::string visibleWord_ = "TRUE";
    ObjectPicture arrow1_{0, 0, 0, 0, "", 4, false, 0, 0};
    ObjectPicture arrow2_{0, 0, 0, 0, "", 4, false, 0, 0};

    // Set while the screen size is set back, so that the nested resize
    // does nothing.
    bool resizing_ = false;

    // The last layout, in screen units.
    bool barShown_ = true;
    CanvasRect bar_;
    CanvasRect image1_;
    CanvasRect image2_;
    CanvasRect label_;
};

}  // namespace tolva
