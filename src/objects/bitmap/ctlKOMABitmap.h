#pragma once
// ctlKOMABitmap: a picture on a form. It holds two pictures of one size,
// Bitmap 1 and Bitmap 2, each with its depth; the object's size follows the
// picture loaded last. The screen shows Bitmap 1 only; Bitmap 2 goes to the
// record.
#include "document/KomaObject.h"
#include "objects/PictureFiles.h"
#include "objects/TwoPictures.h"

namespace tolva {

class ctlKOMABitmap : public TwoPictures<KomaObject> {
public:
    static constexpr int kRowCount = 11;

    ctlKOMABitmap();

    // 0 "BITMAP_STYLE_0", 1 "BITMAP_STYLE_1"; another number changes nothing.
    int KOMABitmapStyle() const;
    void KOMABitmapStyle(int style);
    const std::string& KOMABitmapStyleWord() const { return styleWord_; }


    // The picture files: stored only when the picture loads (see
    // LoadBitmapPicture); the empty path takes the picture away.
    const std::string& KOMABitmap1File() const { return bitmap1_.file; }
    void KOMABitmap1File(const std::string& path);
    const std::string& KOMABitmap2File() const { return bitmap2_.file; }
    void KOMABitmap2File(const std::string& path);


    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = value ? "TRUE" : "FALSE"; }
    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = value ? "TRUE" : "FALSE"; }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = value ? "TRUE" : "FALSE"; }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // The popup menu's actions (BitmapPictures.cpp).
    void SetBitmapFromChooser(int which);
    void RemoveBitmap(int which);

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (BitmapCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (BitmapRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // imgBitmap1 shown, imgBitmap2 hidden (BitmapDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // A right press opens the popup menu instead of the mouse-down event.
    void MouseDown(int button, int shift, double x, double y) override;

private:
    // Loads the picture of bitmap 1 or 2 from the path; true when the path
    // may be stored (BitmapPictures.cpp).
    bool LoadBitmapPicture(int which, const std::string& path);
    void SetBitmapFile(int which, const std::string& path);
    // The four place setters share their test: the message names the
    // property, under the object's name.

    std::string styleWord_ = "BITMAP_STYLE_0";
    std::string enableWord_ = "TRUE";
    std::string activeWord_ = "TRUE";
    std::string visibleWord_ = "TRUE";
};

}  // namespace tolva
