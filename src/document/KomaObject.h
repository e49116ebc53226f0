#pragma once
// KomaObject: what every kind of object on the device screen shares.
//
// Model values are device pixels and are stored as the resource text stores
// them (words as text). The object's place on the canvas is kept in screen
// units (Left, Top, Width, Height); the two are kept in step by
// PCTwipsToTolvaPixels, the screen units per device pixel.
//
// Refused values are reported by the object itself through the host's message
// box, under the property's name as title, and the old value stays.
#include <string>
#include <vector>

#include "canvas/DrawElement.h"
#include "document/TextHelpers.h"
#include "inspector/PropertyArray.h"

namespace tolva {

class Host;
class LogSink;
class ObjectOwner;
class ctlKOMAForm;

// The groups of a record as the loader parsed them: one entry per group ~F0,
// ~F1, ..., each the group's values as text.
using ValueGroup = std::vector<std::string>;
using GroupList = std::vector<ValueGroup>;

inline constexpr double kDefaultTwipsPerPixel = 36.59;
inline constexpr int kNotInTable = 65535;
// The mouse buttons of the mouse events, as bits.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

class KomaObject {
public:
    virtual ~KomaObject();
    KomaObject(const KomaObject&) = delete;
    KomaObject& operator=(const KomaObject&) = delete;

    // --- what kind of object ------------------------------------------------
    int ScreenType() const { return screenType_; }

    // --- owner ----------------------------------------------------------------
    void SetOwner(ObjectOwner* owner) { owner_ = owner; }
    ObjectOwner* Owner() const { return owner_; }

    // --- shared members, in their order of declaration ---------------------
    bool LinkedToTable() const { return linkedToTable_; }
    void LinkedToTable(bool value) { linkedToTable_ = value; }
    bool ResizeOK() const { return resizeOK_; }
    void ResizeOK(bool value) { resizeOK_ = value; }
    bool VertResizeOK() const { return vertResizeOK_; }
    void VertResizeOK(bool value) { vertResizeOK_ = value; }
    bool HorizResizeOK() const { return horizResizeOK_; }
    void HorizResizeOK(bool value) { horizResizeOK_ = value; }
    // While False the object keeps no drawn image.
    bool AllowRedraw() const { return allowRedraw_; }
    void AllowRedraw(bool value) { allowRedraw_ = value; }

    // Screen units per device pixel. Only a value above 0 is taken; a good
    // value re-runs the size logic. The text form takes numeric text only.
    double PCTwipsToTolvaPixels() const { return twipsPerPixel_; }
    void PCTwipsToTolvaPixels(double value);
    void PCTwipsToTolvaPixels(const std::string& text);

    const std::string& KOMAName() const { return name_; }
    virtual void KOMAName(const std::string& name);

    int KOMAObjectID() const { return objectId_; }
    virtual void KOMAObjectID(int id);

    long KOMARelatedTableID() const { return relatedTableId_; }
    virtual void KOMARelatedTableID(long id);

    // The device kind, from the stored word.
    virtual int KOMAObjectType();
    // The setter: the class's own kind stores its word; kind 0 shows "Invalid
    // object type" and stores the word all the same; any other kind is passed
    // over.
    void KOMAObjectType(int kind);
    // The stored word ("FORM", "CONTROL", "BITMAP", ...).
    const std::string& KOMAObjectTypeWord() const { return objectTypeWord_; }

    int KOMABoundsX() const { return boundsX_; }
    virtual void KOMABoundsX(int x);
    int KOMABoundsY() const { return boundsY_; }
    virtual void KOMABoundsY(int y);
    int KOMAWidth() const { return width_; }
    virtual void KOMAWidth(int width);
    int KOMAHeight() const { return height_; }
    virtual void KOMAHeight(int height);

    ctlKOMAForm* ParentForm() const { return parentForm_; }
    void ParentForm(ctlKOMAForm* form) { parentForm_ = form; }

    int iIndex() const { return index_; }
    void iIndex(int index) { index_ = index; }

    // Its place in its type's array of the screen, from 1; 0 while in none.
    // Set by the screen as it takes the object in; an object keeps its place
    // for good, since a deletion moves models, not objects.
    int ArrayPlace() const { return arrayPlace_; }
    void ArrayPlace(int place) { arrayPlace_ = place; }

    // --- place on the canvas, screen units ----------------------------------
    double Left() const { return left_; }
    void Left(double value) { left_ = value; }
    double Top() const { return top_; }
    void Top(double value) { top_ = value; }
    double Width() const { return canvasWidth_; }
    void Width(double value);
    double Height() const { return canvasHeight_; }
    void Height(double value);
    // Sets the size in one step, with one resize.
    void SetCanvasSize(double width, double height);

    bool Visible() const { return visible_; }
    void Visible(bool value) { visible_ = value; }
    // 0 brings the object to the front, 1 sends it to the back.
    void ZOrder(int position = 0);
    long long StackStamp() const { return stackStamp_; }
    void SetFocus();
    bool HasFocus() const { return hasFocus_; }
    void ClearFocus() { hasFocus_ = false; }

    // --- the contract --------------------------------------------------------
    // Each kind overrides these with its own rows and record; what stands
    // here is what every kind shares.
    // Number of inspector rows of the class (the shared five by default).
    virtual int PropertyRowCount() const;
    // Fills the array with the current values, one row per property.
    virtual void GetPropertyList(PropertyArray& rows);
    // Applies the array row by row; false when its shape is wrong.
    virtual bool SetPropertyList(const PropertyArray& rows);
    // Appends the object's record to lines; ok is true on success. A kind
    // with no record of its own yet answers false.
    virtual void ReturnResourceFileText(LineList& lines, bool& ok);
    // Applies a loaded record's groups; ok is false when their count or the
    // count of values in a group is not this class's.
    virtual void SetFromResText(const GroupList& groups, bool& ok);
    // The per-type copy of every model property of other (a same-type
    // object), ParentForm included. False when it fails.
    virtual bool CopyModelFrom(const KomaObject& other);
    // The copy by which an object moves into a table cell, out to the
    // editor of a cell's object and back: exactly the members its kind
    // lists, nothing else; name and id stay. False for another kind, and for
    // a kind that cannot stand in a cell.
    virtual bool CopyCellMembersFrom(const KomaObject& other);
    // The copy the design's history keeps: the whole model as CopyModelFrom
    // copies it, and what the object holds besides (its place and size on
    // the canvas, whether it shows, its focus, stacking stamp and index),
    // so that an object made from it cannot be told from the original. The
    // owner stays and the form is the other's (the history maps it). False
    // for another kind.
    virtual bool CopyWholeStateFrom(const KomaObject& other);

    // --- drawing ----------------------------------------------------------------
    // The object laid out into its draw elements, back to front, in screen
    // units relative to its top left corner. A kind with no drawing of its
    // own shows as a plain outlined box with its name.
    virtual DrawElementList GetDrawElements() const;

    // --- events from the canvas ---------------------------------------------
    // A mouse press, move or release on the object (or on a label covering it).
    virtual void MouseDown(int button, int shift, double x, double y);
    virtual void MouseMove(int button, int shift, double x, double y);
    virtual void MouseUp(int button, int shift, double x, double y);
    // A key went down while the object has the focus; 46 is Delete.
    virtual void KeyDown(int keyCode, int shift);

protected:
    KomaObject(int screenType, const std::string& objectTypeWord, int defaultWidth,
               int defaultHeight);

    Host& host() const;
    void Log(const std::string& line) const;
    // A message box through the owner's host; empty title: the application's.
    void Message(const std::string& text, const std::string& title = "") const;

    // Stores KOMAWidth and KOMAHeight as they are, with no range test, for
    // a class whose size is worked out from its contents.
    void StoreSize(int width, int height) {
        width_ = width;
        height_ = height;
    }
    // Stores the related table's ID as it is, for a class whose setter tests
    // something else.
    void StoreRelatedTableID(long id) { relatedTableId_ = id; }

    // The stored object type word; subclasses repair it as their rules say.
    void SetObjectTypeWord(const std::string& word) { objectTypeWord_ = word; }

    // Steps 1 to 5 of SetPropertyList, shared by every class: the shape,
    // the name, X, Y, then the height before the width. False (and nothing
    // changed) when the shape is wrong.
    bool ApplySharedPropertyRows(const PropertyArray& rows);
    // Its parts, for a kind whose rows are not the shared five: the shape
    // (the class's own row count, three columns), the name row, the X and Y
    // rows (each followed by the moved event), the height and width rows.
    bool HasOwnRowShape(const PropertyArray& rows) const;
    // A name that is taken is refused with `refusal`, by default "Object name
    // must be unique", under `refusalTitle` (by default the application's).
    void ApplyNameRow(const PropertyArray& rows, const std::string& refusal = "",
                      const std::string& refusalTitle = "");
    void ApplyPositionRows(const PropertyArray& rows);
    void ApplySizeRows(const PropertyArray& rows);
    // A changed X or Y row, after the setter and before the moved event: a
    // kind that keeps a copy of its position takes it here.
    virtual void AfterRowX() {}
    virtual void AfterRowY() {}
    // Rows 1 to 5 of GetPropertyList: name, X, Y, width, height.
    void FillSharedPropertyRows(PropertyArray& rows) const;

    // A good, changed height or width row: by default the resized event is
    // raised with the new value and the owner sets the size in answer.
    virtual void ApplyRowHeight(int height);
    virtual void ApplyRowWidth(int width);
    // The tests of the size rows; a class may narrow them.
    virtual bool IsGoodWidth(int width) const { return width >= 0 && width <= 160; }
    virtual bool IsGoodHeight(int height) const { return height >= 0 && height <= 160; }

    // Called when the canvas size changed: by default writes KOMAWidth and
    // KOMAHeight back from the canvas size, then lays the object out.
    virtual void OnCanvasResize();
    // Lays the object out again after a change of size, style or text.
    virtual void LayOut() {}

    // Copies the shared model properties (not the canvas place).
    void CopySharedModelFrom(const KomaObject& other);
    // Copies what lies beside the model: the place and size on the canvas,
    // drawing, showing, focus, stacking stamp and index; no event, no layout.
    void CopyCanvasStateFrom(const KomaObject& other);
    // What every kind that may stand in a cell copies of the shared model:
    // X, Y, the related table, width and height.
    void CopyCellPlaceFrom(const KomaObject& other);

    // Raise events to the owner.
    void RaiseMoved();
    void RaiseResized();
    // The resized event with a size of the object's choosing (a picture's):
    // the owner sets the object's size in answer.
    void RaiseResized(int width, int height);
    void RaisePicChanged();

private:
    int screenType_;
    ObjectOwner* owner_ = nullptr;

    bool linkedToTable_ = false;
    bool resizeOK_ = true;
    bool vertResizeOK_ = true;
    bool horizResizeOK_ = true;
    bool allowRedraw_ = true;
    double twipsPerPixel_ = kDefaultTwipsPerPixel;
    std::string name_;
    int objectId_ = 0;
    long relatedTableId_ = kNotInTable;
    std::string objectTypeWord_;
    int boundsX_ = 0;
    int boundsY_ = 0;
    int width_ = 0;
    int height_ = 0;
    ctlKOMAForm* parentForm_ = nullptr;
    int index_ = 0;
    int arrayPlace_ = 0;

    double left_ = 0;
    double top_ = 0;
    double canvasWidth_ = 0;
    double canvasHeight_ = 0;
    bool visible_ = true;
    bool hasFocus_ = false;
    long long stackStamp_ = 0;
};

// IsValidObjectName: a letter or "_" first, then letters, digits and "_".
// Compared by single-byte code, so accented letters fail. The empty text
// throws RuntimeFailure: callers hand in non-empty text.
bool IsValidObjectName(const std::string& name);

}  // namespace tolva
