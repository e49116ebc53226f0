#pragma once
// ctlKOMAForm: the page of the device. It keeps the list of its embedded
// objects (by name and by reference; it owns none of them), its menus as
// plain data, its title, style and title-bar bitmap, and the related lists
// and related checkboxes.
#include <string>
#include <vector>

#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAForm : public KomaObject {
public:
    static constexpr int kRowCount = 10;

    ctlKOMAForm();

    // --- the form's own properties -----------------------------------------
    int KOMAFormStyle() const;  // 0 to 3 from the stored word
    void KOMAFormStyle(int style);
    const std::string& KOMAFormStyleWord() const { return styleWord_; }
    int KOMAObjectType() override;
    // The device kind of a form is 0: any other number is reported and the
    // word "FORM" is kept all the same.
    void KOMAObjectType(int kind);
    void KOMAName(const std::string& name) override;
    using KomaObject::KOMAName;
    const std::string& KOMAFormTitle() const { return title_; }
    void KOMAFormTitle(const std::string& title);
    const std::string& KOMAFocusedObject() const { return focusedObject_; }
    void KOMAFocusedObject(const std::string& name);
    int KOMABitmapX() const { return bitmapX_; }
    void KOMABitmapX(int value) { bitmapX_ = value; }
    int KOMABitmapY() const { return bitmapY_; }
    void KOMABitmapY(int value) { bitmapY_ = value; }
    int KOMABitmapWidth() const { return bitmapWidth_; }
    void KOMABitmapWidth(int value) { bitmapWidth_ = value; }
    int KOMABitmapHeight() const { return bitmapHeight_; }
    void KOMABitmapHeight(int value) { bitmapHeight_ = value; }
    const std::string& KOMABitmapFile() const { return bitmapFile_; }
    void KOMABitmapFile(const std::string& path);
    int KOMANumEmbeddedObjects() const { return static_cast<int>(embedded_.size()); }
    // Sets the length of the embedded list: a negative count is refused with
    // a message; rows beyond the count are cut, new rows are empty.
    void KOMANumEmbeddedObjects(int count);
    int KOMABitmapDepth() const { return bitmapDepth_; }
    void KOMABitmapDepth(int depth);

    // The picture of the title bar as loaded: its size in pixels.
    bool HasPicture() const { return hasPicture_; }
    int PictureWidth() const { return pictureWidth_; }
    int PictureHeight() const { return pictureHeight_; }
    // The popup's "Set Form Bitmap..." (also the bitmap row's button) and
    // "Remove Form Bitmap".
    void ChooseFormBitmap();
    void RemoveFormBitmap();

    // --- embedded objects ----------------------------------------------------
    struct EmbeddedRow {
        std::string name;
        std::string typeWord;  // "CONTROL", "STRING", ... or empty
    };
    void NotifyEmbeddedObjectNameChanged(const std::string& oldName, const std::string& newName);
    std::vector<EmbeddedRow> GetEmbeddedObjectList() const { return embedded_; }
    // The choices of the focused-object row: "(None)", then the names of the
    // embedded list in its order.
    std::vector<std::string> FocusedObjectChoices() const;
    // Adds a row to both lists; false (and a message) for a form.
    bool EmbedObject(int type, const std::string& name, KomaObject* object);
    void RemoveEmbeddedObject(int number);
    bool NotifyObjectDeleted(const std::string& name);
    void HideEmbeddedObjects();
    void ShowEmbeddedObjects();
    std::vector<KomaObject*> GetEmbeddedObjectReferenceList() const { return references_; }
    KomaObject* GetFirstEmbeddedObjectReference() const;
    void SetEmbeddedObjectReferenceList(const std::vector<KomaObject*>& objects);
    void UpdateReferenceList(const std::string& name, KomaObject* newReference);
    // Every reference to `object` becomes `replacement` (which may be none),
    // whatever the names say: the screen's guard before an object goes.
    void ReplaceReference(const KomaObject* object, KomaObject* replacement);
    // The references alone set again, the list of names left as it is: the
    // design's history puts back the objects a form held.
    void RestoreReferenceList(const std::vector<KomaObject*>& objects) { references_ = objects; }

    // --- menus -----------------------------------------------------------------
    struct MenuData {
        std::string name;
        int id = 0;
        std::vector<std::string> items;
    };
    void SetMenus(const std::vector<std::vector<std::string>>& itemLists,
                  const std::vector<std::string>& names);
    void GetMenus(std::vector<std::vector<std::string>>& itemLists, std::vector<std::string>& names,
                  std::vector<int>& ids) const;
    const std::vector<MenuData>& Menus() const { return menus_; }
    int GetNumMenus() const { return static_cast<int>(menus_.size()); }
    // Gives the menus the ids from firstId upward, in order.
    void SetMenuIDs(int firstId);

    // --- related checkboxes and lists -------------------------------------------
    // One row per check box of the form: its name and one flag per check
    // box of the form by position, true where the two are related. It grows
    // and shrinks with the check boxes embedded and deleted, like the
    // related lists.
    struct RelatedCheckbox {
        std::string name;
        std::vector<bool> linked;
    };
    using RelatedCheckboxTable = std::vector<RelatedCheckbox>;
    // The first row of the old name takes the new one.
    void CheckboxRenamed(const std::string& oldName, const std::string& newName);
    // The table replaced, row by row, by one of the editor's shape.
    void SetRelatedCheckboxes(const RelatedCheckboxTable& rows) { relatedCheckboxes_ = rows; }
    const RelatedCheckboxTable& RelatedCheckboxes() const { return relatedCheckboxes_; }
    // The Checkbox Editor on the table, modal; its OK writes the table back.
    void EditRelatedCheckboxes();

    struct RelatedList {
        std::string name;
        std::vector<bool> linked;  // one per row of the related-lists list
    };
    const std::vector<RelatedList>& RelatedLists() const { return relatedLists_; }
    bool GetRelatedListData(const std::string& listName, std::vector<std::string>& names,
                            std::vector<bool>& linked) const;
    void SetRelatedListData(const std::string& listName, const std::vector<std::string>& names,
                            const std::vector<bool>& linked);
    // The ids, asked of the owner, of the lists linked to this one, in the
    // order of the table; empty for a list the table does not hold.
    void GetRelatedListIDs(const std::string& listName, std::vector<int>& ids) const;

    // --- the contract -------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The form's record, and a loaded record applied (FormRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;

    // --- drawing and the popup menu (FormDrawing.cpp) ------------------------
    // Frame, title bar, title and bitmap of the style, on the form's surface.
    DrawElementList GetDrawElements() const override;
    // The size of the title-bar image part now, in device pixels: the
    // picture's own size once chosen, the stored bitmap size after a layout.
    int ImageWidth() const { return imageWidth_; }
    int ImageHeight() const { return imageHeight_; }
    // A right press opens the popup "Set Properties" instead of raising
    // mouse down; any other press goes on as for every object.
    void MouseDown(int button, int shift, double x, double y) override;

protected:
    // Sizes the image part by the stored bitmap size.
    void LayOut() override;
    // A size row sets the size on the canvas first, then raises resized.
    void ApplyRowHeight(int height) override;
    void ApplyRowWidth(int width) override;

private:
    std::string styleWord_ = "NORMAL";
    std::string title_ = "Form Title";
    std::string focusedObject_;
    int bitmapX_ = 7;
    int bitmapY_ = 3;
    int bitmapWidth_ = 10;
    int bitmapHeight_ = 12;
    std::string bitmapFile_;
    int bitmapDepth_ = 4;
    bool hasPicture_ = false;
    int pictureWidth_ = 0;
    int pictureHeight_ = 0;
    int imageWidth_ = 10;
    int imageHeight_ = 12;

    std::vector<EmbeddedRow> embedded_;
    std::vector<KomaObject*> references_;
    std::vector<MenuData> menus_;
    RelatedCheckboxTable relatedCheckboxes_;
    std::vector<RelatedList> relatedLists_;
};

}  // namespace tolva
