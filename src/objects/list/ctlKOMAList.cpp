#include "objects/list/ctlKOMAList.h"

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/list/ListEditing.h"
#include "objects/list/modList.h"

namespace tolva {

ctlKOMAList::ctlKOMAList() : KomaObject(type::List, "LIST", 24, 12) {}

void ctlKOMAList::KOMATotalNumItems(int count) {
    if (count < 0) return Message("Invalid value");
    totalNumItems_ = count;
}

void ctlKOMAList::KOMANumItemsDisplayed(int count) {
    if (count < 0) return Message("Invalid value");
    numDisplayed_ = count;
}

void ctlKOMAList::KOMATopItemNum(int item) {
    topItem_ = item;
    LayOut();
}

void ctlKOMAList::KOMASelectedItem(int item) {
    selected_ = item;
    LayOut();
}

int ctlKOMAList::KOMATextAlignment() const { return AlignmentFromWord(alignmentWord_); }

void ctlKOMAList::KOMATextAlignment(int alignment) {
    const std::string word = WordFromAlignment(alignment);
    if (word.empty()) return;
    alignmentWord_ = word;
    LayOut();
}

int ctlKOMAList::KOMAListStyle() const { return ListStyleWordToNumber(styleWord_); }

void ctlKOMAList::KOMAListStyle(int style) { styleWord_ = ListStyleNumberToWord(style); }

int ctlKOMAList::KOMAFontColor() const { return ColorFromWord(fontColorWord_); }

void ctlKOMAList::KOMAFontColor(int color) {
    if (IsDeviceColor(color)) fontColorWord_ = WordFromColor(color);
}

int ctlKOMAList::KOMABackColor() const { return ColorFromWord(backColorWord_); }

void ctlKOMAList::KOMABackColor(int color) {
    if (IsDeviceColor(color)) backColorWord_ = WordFromColor(color);
}

// --- the items -------------------------------------------------------------------------------

void ctlKOMAList::SetList(const std::vector<std::string>& items, int selected, int numDisplayed,
                          int topItem) {
    items_ = items;
    topItem_ = topItem;
    KOMANumItemsDisplayed(numDisplayed);
    selected_ = selected;
    KOMATotalNumItems(static_cast<int>(items_.size()));
    LayOut();
}

void ctlKOMAList::GetList(std::vector<std::string>& items, int& selected, int& numDisplayed,
                          int& topItem) const {
    items = items_;
    selected = selected_;
    numDisplayed = numDisplayed_;
    topItem = topItem_;
}

void ctlKOMAList::AddListItem(const std::string& item) {
    items_.push_back(item);
    totalNumItems_ = static_cast<int>(items_.size());
    LayOut();
}

void ctlKOMAList::RemoveListItem(int position) {
    if (position < 0 || position >= static_cast<int>(items_.size())) return;
    items_.erase(items_.begin() + position);
    totalNumItems_ = static_cast<int>(items_.size());
    LayOut();
}

void ctlKOMAList::SetRelatedLists(const std::vector<std::string>& names, const std::vector<bool>& linked) {
    if (ParentForm()) ParentForm()->SetRelatedListData(KOMAName(), names, linked);
}

// --- the editor ------------------------------------------------------------------------------

void ctlKOMAList::EditList() {
    ListEditing edit(host());
    edit.SetList(items_, selected_, numDisplayed_, topItem_);
    if (ParentForm()) {
        std::vector<std::string> names;
        std::vector<bool> linked;
        if (ParentForm()->GetRelatedListData(KOMAName(), names, linked)) edit.SetRelatedLists(names, linked);
    }
    if (!host().RunDialog(edit)) return;
    SetList(edit.Items(), edit.Selected(), edit.ItemLimit(), edit.TopItem());
    SetRelatedLists(edit.RelatedNames(), edit.RelatedFlags());
    // The owner shows the object's new state, as after a new picture.
    RaisePicChanged();
}

void ctlKOMAList::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice =
        host().PopupMenu("Set Properties", {{"mnuEditList", PropertyLabel(1604)}});
    if (choice && *choice == 0) EditList();
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAList::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(110), rowkind::Choice, alignmentWord_);
    rows.SetRow(7, PropertyLabel(1601), rowkind::Choice, styleWord_);
    rows.SetRow(8, PropertyLabel(112), rowkind::Choice, fontColorWord_);
    rows.SetRow(9, PropertyLabel(113), rowkind::Choice, backColorWord_);
    rows.SetRow(10, PropertyLabel(106), rowkind::Choice, enableWord_);
    rows.SetRow(11, PropertyLabel(108), rowkind::Choice, visibleWord_);
    rows.SetRow(12, PropertyLabel(107), rowkind::Choice, activeWord_);
    rows.SetRow(13, PropertyLabel(1602), rowkind::Choice, setScrollWord_);
    rows.SetRow(14, PropertyLabel(1603), rowkind::Choice, syncWord_);
    rows.SetRow(15, PropertyLabel(1604), rowkind::Button, false);
}

bool ctlKOMAList::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    if (rows.Value(15).Bool()) {
        EditList();
        return true;
    }
    ApplyNameRow(rows);
    ApplyPositionRows(rows);
    ApplySizeRows(rows);
    KOMATextAlignment(AlignmentFromWord(rows.Value(6).Text()));
    // The style is one of the eight words, or it is told and left.
    const std::string style = rows.Value(7).Text();
    if (IsListStyleWord(style))
        KOMAListStyle(ListStyleWordToNumber(style));
    else
        Message("Invalid list style");
    KOMAFontColor(ColorFromWord(rows.Value(8).Text()));
    KOMABackColor(ColorFromWord(rows.Value(9).Text()));
    KOMAEnable(BooleanFromWord(rows.Value(10).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(11).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(12).Text()) != 0);
    KOMASetScroll(BooleanFromWord(rows.Value(13).Text()) != 0);
    KOMASync(BooleanFromWord(rows.Value(14).Text()) != 0);
    LayOut();
    return true;
}

bool ctlKOMAList::CopyModelFrom(const KomaObject& other) {
    const auto* list = dynamic_cast<const ctlKOMAList*>(&other);
    if (!list || !KomaObject::CopyModelFrom(other)) return false;
    numRelatedLists_ = list->numRelatedLists_;
    totalNumItems_ = list->totalNumItems_;
    numDisplayed_ = list->numDisplayed_;
    topItem_ = list->topItem_;
    alignmentWord_ = list->alignmentWord_;
    selected_ = list->selected_;
    styleWord_ = list->styleWord_;
    fontColorWord_ = list->fontColorWord_;
    backColorWord_ = list->backColorWord_;
    items_ = list->items_;
    enableWord_ = list->enableWord_;
    visibleWord_ = list->visibleWord_;
    activeWord_ = list->activeWord_;
    setScrollWord_ = list->setScrollWord_;
    syncWord_ = list->syncWord_;
    fellowLists_ = list->fellowLists_;
    return true;
}

}  // namespace tolva
