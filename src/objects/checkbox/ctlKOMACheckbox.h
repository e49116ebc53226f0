#pragma once
// ctlKOMACheckbox: a check box, a control with two pictures, Bitmap 1 shown
// while it is checked and Bitmap 2 while it is not. Its size follows its
// pictures, which must be of one size and no larger than the screen. Its
// text and alignment go to the record only; the check boxes it is related
// to are kept by its form.
#include <string>
#include <vector>

#include "objects/KomaControl.h"
#include "objects/PictureFiles.h"

namespace tolva {

class ctlKOMACheckbox : public KomaControl {
public:
    static constexpr int kRowCount = 14;

    ctlKOMACheckbox();

    // The subtype: 0 "CHECKBOX_STYLE_0", the only style; any other number
    // stores the empty word.
    int KOMAControlSubType() const;
    void KOMAControlSubType(int style);
    // Written to the record; nothing in the editor changes it. 0 or more.
    int KOMAGroupID() const { return groupId_; }
    void KOMAGroupID(int id);
    // The initial state: any number but 0 is checked.
    bool KOMAControlValue() const { return valueWord_ == "TRUE"; }
    void KOMAControlValue(int value);
    const std::string& KOMAControlValueWord() const { return valueWord_; }

    // Places and sizes of the two pictures as the record holds them: X and
    // Y 0 to 159, width and height 0 to 160.
    int KOMABitmap1X() const { return bitmap1_.x; }
    void KOMABitmap1X(int x);
    int KOMABitmap1Y() const { return bitmap1_.y; }
    void KOMABitmap1Y(int y);
    int KOMABitmap1Width() const { return bitmap1_.width; }
    void KOMABitmap1Width(int width);
    int KOMABitmap1Height() const { return bitmap1_.height; }
    void KOMABitmap1Height(int height);
    int KOMABitmap2X() const { return bitmap2_.x; }
    void KOMABitmap2X(int x);
    int KOMABitmap2Y() const { return bitmap2_.y; }
    void KOMABitmap2Y(int y);
    int KOMABitmap2Width() const { return bitmap2_.width; }
    void KOMABitmap2Width(int width);
    int KOMABitmap2Height() const { return bitmap2_.height; }
    void KOMABitmap2Height(int height);
    // The checked (1) and unchecked (2) pictures: stored only when the
    // picture loads; the empty path takes the picture away.
    const std::string& KOMABitmap1File() const { return bitmap1_.file; }
    void KOMABitmap1File(const std::string& path);
    const std::string& KOMABitmap2File() const { return bitmap2_.file; }
    void KOMABitmap2File(const std::string& path);
    // Bits per pixel, 2 or 4; another number changes nothing.
    int KOMABitmap1Depth() const { return bitmap1_.depth; }
    void KOMABitmap1Depth(int depth);
    int KOMABitmap2Depth() const { return bitmap2_.depth; }
    void KOMABitmap2Depth(int depth);

    // The popup menu's choosers (CheckboxPictures.cpp).
    void SetBitmapFromChooser(int which);

    // A copy of relations handed to the check box itself: the names and
    // flags, kept as given. The form's table is the one that counts; the
    // editor and the record never read this one.
    void SetRelatedCheckboxes(const std::vector<bool>& related, const std::vector<std::string>& names) {
        related_ = related;
        relatedNames_ = names;
    }
    const std::vector<bool>& RelatedFlags() const { return related_; }
    const std::vector<std::string>& RelatedNames() const { return relatedNames_; }

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The record and a loaded record applied (CheckboxRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The white background and the picture of the state
    // (CheckboxDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // A right press opens the popup menu instead of the mouse-down event.
    void MouseDown(int button, int shift, double x, double y) override;

protected:
    void ApplySubTypeWord(const std::string& word) override;

private:
    // Loads the picture of bitmap 1 or 2; true when the path may be stored
    // (CheckboxPictures.cpp).
    bool LoadCheckboxPicture(int which, const std::string& path);
    void SetBitmapFile(int which, const std::string& path);
    ObjectPicture& Of(int which) { return which == 1 ? bitmap1_ : bitmap2_; }
    bool InRange(int value, int high, const char* what);

    int groupId_ = 0;
    std::string valueWord_ = "FALSE";
    ObjectPicture bitmap1_;
    ObjectPicture bitmap2_;
    std::vector<bool> related_;
    std::vector<std::string> relatedNames_;
};

}  // namespace tolva
