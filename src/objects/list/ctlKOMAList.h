#pragma once
// ctlKOMAList: a column of text items on the device, with a selection, a
// top item and a number on display. Its links to the other lists of its
// form live in the form's table, which the List asks when its editor opens
// and when it writes its record. On the design screen each line shows the
// number of its item.
#include <string>
#include <vector>

#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAList : public KomaObject {
public:
    static constexpr int kRowCount = 15;

    ctlKOMAList();

    // The number of items and the number on display, 0 or more: a negative
    // one is refused with "Invalid value".
    int KOMATotalNumItems() const { return totalNumItems_; }
    void KOMATotalNumItems(int count);
    int KOMANumItemsDisplayed() const { return numDisplayed_; }
    void KOMANumItemsDisplayed(int count);
    // The first item shown and the selected one, from 0; -1 selects none.
    // Any value.
    int KOMATopItemNum() const { return topItem_; }
    void KOMATopItemNum(int item);
    int KOMASelectedItem() const { return selected_; }
    void KOMASelectedItem(int item);
    // 0 "LEFT", 1 "CENTRE", 2 "RIGHT"; another number changes nothing.
    int KOMATextAlignment() const;
    void KOMATextAlignment(int alignment);
    const std::string& KOMATextAlignmentWord() const { return alignmentWord_; }
    // 0 to 7 "LIST_STYLE_0" ...; another number stores the empty word.
    int KOMAListStyle() const;
    void KOMAListStyle(int style);
    const std::string& KOMAListStyleWord() const { return styleWord_; }
    // Colours 0, 7, 11, 15; another number changes nothing.
    int KOMAFontColor() const;
    void KOMAFontColor(int color);
    const std::string& KOMAFontColorWord() const { return fontColorWord_; }
    int KOMABackColor() const;
    void KOMABackColor(int color);
    const std::string& KOMABackColorWord() const { return backColorWord_; }

    // The five flags, held as "TRUE" or "FALSE".
    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = Word(value); }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = Word(value); }
    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = Word(value); }
    bool KOMASetScroll() const { return setScrollWord_ == "TRUE"; }
    void KOMASetScroll(bool value) { setScrollWord_ = Word(value); }
    bool KOMASync() const { return syncWord_ == "TRUE"; }
    void KOMASync(bool value) { syncWord_ = Word(value); }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMASetScrollWord() const { return setScrollWord_; }
    const std::string& KOMASyncWord() const { return syncWord_; }

    // The items with the selection, the number on display and the top item,
    // replaced or copied out at once; the number of items follows.
    void SetList(const std::vector<std::string>& items, int selected, int numDisplayed, int topItem);
    void GetList(std::vector<std::string>& items, int& selected, int& numDisplayed, int& topItem) const;
    const std::vector<std::string>& Items() const { return items_; }
    void AddListItem(const std::string& item);
    // Removes the item at the position, from 0; another position changes
    // nothing.
    void RemoveListItem(int position);

    // The names of the form's other lists, kept as given.
    void UpdateFellowListList(const std::vector<std::string>& names) { fellowLists_ = names; }
    const std::vector<std::string>& FellowLists() const { return fellowLists_; }
    // The editor's links handed to the form, under the list's name; nothing
    // without a form.
    void SetRelatedLists(const std::vector<std::string>& names, const std::vector<bool>& linked);
    // The number of related lists the last record was written with.
    int NumRelatedLists() const { return numRelatedLists_; }

    // The List Editor on the items and the form's links; its OK writes both
    // back.
    void EditList();

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (ListCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (ListRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The frame, the lines of items and the arrows (ListDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // The right button opens "Set Properties" with "Edit List...".
    void MouseDown(int button, int shift, double x, double y) override;

    // The number of lines the height holds, 10 device pixels each below a
    // margin of 120 screen units; 0 while the scale is 0.
    int LineCount() const;

protected:
    void LayOut() override;

private:
    static const char* Word(bool value) { return value ? "TRUE" : "FALSE"; }

    int numRelatedLists_ = 0;
    int totalNumItems_ = 0;
    int numDisplayed_ = 0;
    int topItem_ = 0;
    std::string alignmentWord_ = "LEFT";
    int selected_ = -1;
    std::string styleWord_ = "LIST_STYLE_0";
    std::string fontColorWord_ = "COLOR_BLACK";
    std::string backColorWord_ = "COLOR_WHITE";
    std::vector<std::string> items_;
    std::string enableWord_ = "TRUE";
    std::string visibleWord_ = "TRUE";
    std::string activeWord_ = "TRUE";
    std::string setScrollWord_ = "FALSE";
    std::string syncWord_ = "FALSE";
    std::vector<std::string> fellowLists_;
};

}  // namespace tolva
