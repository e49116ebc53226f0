#pragma once
// ctlKOMARepeatButton: a repeat button, a control that shows one picture and
// repeats its action while held. Its size follows its picture; a button
// without one is a light-blue block. Its text and alignment go to the record
// only.
//
// The record keeps the picture's place and size of its own. The place
// follows the object's when a picture loads, when the X Pos and Y Pos rows
// change it and when a record is read, but not when the object is dragged:
// after a drag the record holds the old place until one of those happens.
#include "objects/KomaControl.h"
#include "objects/PictureFiles.h"

namespace tolva {

class ctlKOMARepeatButton : public KomaControl {
public:
    static constexpr int kRowCount = 9;

    ctlKOMARepeatButton();

    // The subtype: 0 "REPEATBUTTON_STYLE_0", the only style; any other
    // number stores the empty word.
    int KOMAControlSubType() const;
    void KOMAControlSubType(int style);

    // The picture's place (0 to 159) and size (0 to 160) as the record
    // holds them.
    int KOMABitmapX() const { return picture_.x; }
    void KOMABitmapX(int x);
    int KOMABitmapY() const { return picture_.y; }
    void KOMABitmapY(int y);
    int KOMABitmapWidth() const { return picture_.width; }
    void KOMABitmapWidth(int width);
    int KOMABitmapHeight() const { return picture_.height; }
    void KOMABitmapHeight(int height);
    // The picture file: stored only when its picture loads; the empty path
    // takes the picture away and leaves the size as it is.
    const std::string& KOMABitmapFile() const { return picture_.file; }
    void KOMABitmapFile(const std::string& path);
    // Bits per pixel, 2 or 4; another number changes nothing.
    int KOMABitmapDepth() const { return picture_.depth; }
    void KOMABitmapDepth(int depth);

    // The popup menu's actions (RepeatButtonPicture.cpp).
    void SetBitmapFromChooser();
    void RemoveBitmap();

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (RepeatButtonCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (RepeatButtonRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The light-blue background and imgBitmap (RepeatButtonDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // A right press opens the popup menu instead of the mouse-down event.
    void MouseDown(int button, int shift, double x, double y) override;

protected:
    void ApplySubTypeWord(const std::string& word) override;
    // The X Pos and Y Pos rows take the picture's place along.
    void AfterRowX() override;
    void AfterRowY() override;

private:
    // Loads the picture of the path; true when the path may be stored
    // (RepeatButtonPicture.cpp).
    bool LoadPicture(const std::string& path);

    ObjectPicture picture_;
};

}  // namespace tolva
