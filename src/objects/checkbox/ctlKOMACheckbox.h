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
#include "objects/TwoPictures.h"

namespace tolva {

class ctlKOMACheckbox : public TwoPictures<KomaControl> {
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

    // The checked (1) and unchecked (2) pictures: stored only when the
    // picture loads; the empty path takes the picture away.
    const std::string& KOMABitmap1File() const { return bitmap1_.file; }
    void KOMABitmap1File(const std::string& path);
    const std::string& KOMABitmap2File() const { return bitmap2_.file; }
    void KOMABitmap2File(const std::string& path);

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
    // The members a cell takes (CheckboxCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
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

    int groupId_ = 0;
    std::string valueWord_ = "FALSE";
    std::vector<bool> related_;
    std::vector<std::string> relatedNames_;
};

}  // namespace tolva
