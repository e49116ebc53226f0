#include "document/KomaObject.h"

#include <cmath>
#include <limits>

#include "document/Host.h"
#include "document/LogSink.h"
#include "document/Numbers.h"
#include "document/ObjectOwner.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/RuntimeFailure.h"
#include "document/StringTable.h"

namespace tolva {

bool IsValidObjectName(const std::string& name) {
    if (name.empty()) throw RuntimeFailure("Invalid procedure call: an empty object name");
    auto isLetter = [](unsigned char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    auto isDigit = [](unsigned char c) { return c >= '0' && c <= '9'; };
    const unsigned char first = static_cast<unsigned char>(name[0]);
    if (!isLetter(first) && first != '_') return false;
    for (size_t i = 1; i < name.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(name[i]);
        if (!isLetter(c) && !isDigit(c) && c != '_') return false;
    }
    return true;
}

KomaObject::KomaObject(int screenType, const std::string& objectTypeWord, int defaultWidth,
                       int defaultHeight)
    : screenType_(screenType),
      name_(ScreenTypeNamePrefix(screenType)),
      objectTypeWord_(objectTypeWord),
      width_(defaultWidth),
      height_(defaultHeight),
      canvasWidth_(defaultWidth * kDefaultTwipsPerPixel),
      canvasHeight_(defaultHeight * kDefaultTwipsPerPixel) {}

KomaObject::~KomaObject() = default;

// --- services -----------------------------------------------------------------

Host& KomaObject::host() const {
    if (!owner_) throw RuntimeFailure("Object has no owner: " + name_);
    return owner_->OwnerHost();
}

void KomaObject::Log(const std::string& line) const {
    if (owner_) owner_->OwnerLog().AddLogLine(line);
}

void KomaObject::Message(const std::string& text, const std::string& title) const {
    if (owner_) owner_->OwnerHost().MessageBox(text, title, MessageButtons::OK);
}

// --- shared members -------------------------------------------------------------

void KomaObject::PCTwipsToTolvaPixels(double value) {
    if (!(value > 0) || !std::isfinite(value)) {
        Message("Invalid PCTwipsToTolvaPixels", "PCTwipsToTolvaPixels");
        return;
    }
    twipsPerPixel_ = value;
    // The object sizes itself again at the new scale: its box on the canvas
    // stays where and as large as it is, the device size is written back from
    // it and the object is laid out. A kind whose box does not follow its
    // device size (the table's fixed box) thus keeps its box.
    OnCanvasResize();
}

void KomaObject::PCTwipsToTolvaPixels(const std::string& text) {
    if (!IsNumeric(text)) {
        Message("Invalid PCTwipsToTolvaPixels", "PCTwipsToTolvaPixels");
        return;
    }
    PCTwipsToTolvaPixels(ToReal(text));
}

void KomaObject::KOMAName(const std::string& name) {
    if (name == name_) return;
    const std::string oldName = name_;
    name_ = name;
    if (owner_) owner_->ObjectRenamed(*this, oldName);
}

void KomaObject::KOMAObjectID(int id) {
    if (id < 0) {
        Message("Invalid value", "KOMAObjectID");
        return;
    }
    objectId_ = id;
}

void KomaObject::KOMARelatedTableID(long id) {
    if (id < 0) {
        Message("Invalid value", "KOMARelatedTableID");
        return;
    }
    relatedTableId_ = id;
}

namespace {

// The device kind of a screen type.
int OwnKind(int screenType) {
    switch (screenType) {
        case type::Form: return kind::Form;
        case type::Button:
        case type::RepeatButton:
        case type::PushButton:
        case type::Checkbox:
        case type::PopupTrigger: return kind::Control;
        case type::Bitmap: return kind::Bitmap;
        case type::Field: return kind::Field;
        case type::Line: return kind::Line;
        case type::List: return kind::List;
        case type::Menu: return kind::Menu;
        case type::Scrollbar: return kind::Scrollbar;
        case type::String: return kind::String;
        case type::Table: return kind::Table;
        case type::Textbox: return kind::Textbox;
        case type::SchedulerLine: return kind::SchedulerLine;
        default: return 0;
    }
}

// The object type word of a screen type.
std::string ClassWord(int screenType) {
    switch (OwnKind(screenType)) {
        case kind::Form: return "FORM";
        case kind::Control: return "CONTROL";
        default: return ScreenTypeWord(screenType);
    }
}

}  // namespace

int KomaObject::KOMAObjectType() {
    // The kind number of this class's own word; a word "0" is repaired.
    const int own = OwnKind(screenType_);
    const std::string classWord = ClassWord(screenType_);
    if (objectTypeWord_ == classWord) return own;
    if (objectTypeWord_ == "0") {
        Message("Invalid object type", "KOMAObjectType");
        objectTypeWord_ = classWord;
        return own;
    }
    return 0;
}

void KomaObject::KOMAObjectType(int kind) {
    if (kind == 0) {
        Message("Invalid object type", "KOMAObjectType");
    } else if (kind != OwnKind(screenType_)) {
        return;
    }
    objectTypeWord_ = ClassWord(screenType_);
}

void KomaObject::KOMABoundsX(int x) {
    if (x < 0 || x > 159) {
        Message("Invalid value", "KOMABoundsX");
        return;
    }
    boundsX_ = x;
}

void KomaObject::KOMABoundsY(int y) {
    if (y < 0 || y > 159) {
        Message("Invalid value", "KOMABoundsY");
        return;
    }
    boundsY_ = y;
}

void KomaObject::KOMAWidth(int width) {
    if (width < 0 || width > 160) {
        Message("Invalid value");
        return;
    }
    width_ = width;
}

void KomaObject::KOMAHeight(int height) {
    if (height < 0 || height > 160) {
        Message("Invalid value");
        return;
    }
    height_ = height;
}

// --- canvas --------------------------------------------------------------------

void KomaObject::Width(double value) {
    if (value == canvasWidth_) return;
    canvasWidth_ = value;
    OnCanvasResize();
}

void KomaObject::Height(double value) {
    if (value == canvasHeight_) return;
    canvasHeight_ = value;
    OnCanvasResize();
}

void KomaObject::SetCanvasSize(double width, double height) {
    canvasWidth_ = width;
    canvasHeight_ = height;
    OnCanvasResize();
}

void KomaObject::ZOrder(int position) {
    const bool toFront = position == 0;
    if (owner_) {
        stackStamp_ = owner_->NextStackStamp(toFront);
    } else {
        stackStamp_ += toFront ? 1 : -1;
    }
}

void KomaObject::SetFocus() { hasFocus_ = true; }

void KomaObject::OnCanvasResize() {
    if (twipsPerPixel_ != 0) {
        KOMAWidth(RoundToIntSaturating(canvasWidth_ / twipsPerPixel_));
        KOMAHeight(RoundToIntSaturating(canvasHeight_ / twipsPerPixel_));
    }
    LayOut();
}

// --- contract: the shared rows ------------------------------------------------------

int KomaObject::PropertyRowCount() const { return 5; }

void KomaObject::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(PropertyRowCount());
    FillSharedPropertyRows(rows);
}

bool KomaObject::SetPropertyList(const PropertyArray& rows) { return ApplySharedPropertyRows(rows); }

void KomaObject::ReturnResourceFileText(LineList&, bool& ok) { ok = false; }

void KomaObject::SetFromResText(const GroupList&, bool& ok) { ok = false; }

void KomaObject::FillSharedPropertyRows(PropertyArray& rows) const {
    rows.SetRow(1, PropertyLabel(101), rowkind::Text, name_);
    rows.SetRow(2, PropertyLabel(102), rowkind::Text, boundsX_);
    rows.SetRow(3, PropertyLabel(103), rowkind::Text, boundsY_);
    rows.SetRow(4, PropertyLabel(105), rowkind::Text, width_);
    rows.SetRow(5, PropertyLabel(104), rowkind::Text, height_);
}

bool KomaObject::ApplySharedPropertyRows(const PropertyArray& rows) {
    // 1. The shape.
    if (!HasOwnRowShape(rows)) return false;
    ApplyNameRow(rows);
    ApplyPositionRows(rows);
    ApplySizeRows(rows);
    return true;
}

bool KomaObject::HasOwnRowShape(const PropertyArray& rows) const {
    return rows.Columns() == 3 && rows.Rows() == PropertyRowCount();
}

void KomaObject::ApplyNameRow(const PropertyArray& rows, const std::string& refusal,
                              const std::string& refusalTitle) {
    // 2. The name: it must pass the name rule and differ; then it must be free.
    // A name row the user emptied is no name at all: it is passed over like
    // any other text that fails the rule, and the old name stays.
    const std::string newName = rows.Value(1).Text();
    if (!newName.empty() && IsValidObjectName(newName) && newName != name_) {
        if (!owner_ || owner_->IsNewNameUnique(name_, newName)) {
            KOMAName(newName);
        } else {
            Message(refusal.empty() ? LoadResString(msg::NameMustBeUnique) : refusal, refusalTitle);
        }
    }
}

void KomaObject::ApplyPositionRows(const PropertyArray& rows) {
    // 3. and 4. The position: numeric text that differs goes to the setter, and
    // the moved event follows with the values now held, even when refused.
    const std::string xText = rows.Value(2).Text();
    if (IsNumeric(xText)) {
        const int x = ToInt16(xText);
        if (x != boundsX_) {
            KOMABoundsX(x);
            AfterRowX();
            RaiseMoved();
        }
    }
    const std::string yText = rows.Value(3).Text();
    if (IsNumeric(yText)) {
        const int y = ToInt16(yText);
        if (y != boundsY_) {
            KOMABoundsY(y);
            AfterRowY();
            RaiseMoved();
        }
    }
}

void KomaObject::ApplySizeRows(const PropertyArray& rows) {
    // 5. The height before the width. The text is converted first (text that
    // is no number is a run-time failure of the whole call), then tested.
    const int height = ToInt16(rows.Value(5).Text());
    if (height != height_) {
        if (IsGoodHeight(height)) {
            ApplyRowHeight(height);
        } else {
            Message("Invalid height value", "KOMAHeight");
        }
    }
    const int width = ToInt16(rows.Value(4).Text());
    if (width != width_) {
        if (IsGoodWidth(width)) {
            ApplyRowWidth(width);
        } else {
            Message("Invalid width value", "KOMAWidth");
        }
    }
}

void KomaObject::ApplyRowHeight(int height) {
    if (owner_) owner_->ObjectResized(*this, width_, height);
}

void KomaObject::ApplyRowWidth(int width) {
    if (owner_) owner_->ObjectResized(*this, width, height_);
}

// --- copy ----------------------------------------------------------------------------

bool KomaObject::CopyModelFrom(const KomaObject& other) {
    if (other.screenType_ != screenType_) return false;
    CopySharedModelFrom(other);
    return true;
}

bool KomaObject::CopyCellMembersFrom(const KomaObject&) { return false; }

bool KomaObject::CopyWholeStateFrom(const KomaObject& other) {
    if (!CopyModelFrom(other)) return false;
    CopyCanvasStateFrom(other);
    // The layout is made from the model and the size alone: made again, it
    // is the other's.
    LayOut();
    return true;
}

void KomaObject::CopyCanvasStateFrom(const KomaObject& other) {
    allowRedraw_ = other.allowRedraw_;
    parentForm_ = other.parentForm_;
    index_ = other.index_;
    left_ = other.left_;
    top_ = other.top_;
    canvasWidth_ = other.canvasWidth_;
    canvasHeight_ = other.canvasHeight_;
    visible_ = other.visible_;
    hasFocus_ = other.hasFocus_;
    stackStamp_ = other.stackStamp_;
}

void KomaObject::CopyCellPlaceFrom(const KomaObject& other) {
    boundsX_ = other.boundsX_;
    boundsY_ = other.boundsY_;
    relatedTableId_ = other.relatedTableId_;
    width_ = other.width_;
    height_ = other.height_;
}

void KomaObject::CopySharedModelFrom(const KomaObject& other) {
    const std::string oldName = name_;
    linkedToTable_ = other.linkedToTable_;
    resizeOK_ = other.resizeOK_;
    vertResizeOK_ = other.vertResizeOK_;
    horizResizeOK_ = other.horizResizeOK_;
    twipsPerPixel_ = other.twipsPerPixel_;
    name_ = other.name_;
    objectId_ = other.objectId_;
    relatedTableId_ = other.relatedTableId_;
    objectTypeWord_ = other.objectTypeWord_;
    boundsX_ = other.boundsX_;
    boundsY_ = other.boundsY_;
    width_ = other.width_;
    height_ = other.height_;
    parentForm_ = other.parentForm_;
    if (owner_ && name_ != oldName) owner_->ObjectRenamed(*this, oldName);
}

// --- events ----------------------------------------------------------------------------

void KomaObject::MouseDown(int button, int shift, double x, double y) {
    if (owner_) owner_->ObjectMouseDown(*this, button, shift, x, y);
}

void KomaObject::MouseMove(int button, int shift, double x, double y) {
    if (owner_) owner_->ObjectMouseMove(*this, button, shift, x, y);
}

void KomaObject::MouseUp(int button, int shift, double x, double y) {
    if (owner_) owner_->ObjectMouseUp(*this, button, shift, x, y);
}

void KomaObject::KeyDown(int keyCode, int) {
    if (keyCode == 46 && owner_) owner_->ObjectDeleted(*this);
}

void KomaObject::RaiseMoved() {
    if (owner_) owner_->ObjectMoved(*this, boundsX_, boundsY_);
}

void KomaObject::RaiseResized() {
    if (owner_) owner_->ObjectResized(*this, width_, height_);
}

void KomaObject::RaiseResized(int width, int height) {
    if (owner_) owner_->ObjectResized(*this, width, height);
}

void KomaObject::RaisePicChanged() {
    if (owner_) owner_->ObjectPicChanged(*this);
}

}  // namespace tolva
