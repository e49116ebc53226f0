#pragma once
// ctlKOMAPopupTrigger: a control that shows its chosen item and opens a list
// of items on the device. Its text follows the selected item each time the
// Popup Trigger Editor's OK hands the items back. Styles 1 and 2 draw alike:
// a frame with a small arrow at the right; style 0 is a plain outlined box.
#include <string>
#include <vector>

#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMAPopupTrigger : public KomaControl {
public:
    static constexpr int kRowCount = 12;

    ctlKOMAPopupTrigger();

    // 0 to 2 "POPUP_TRIGGER_STYLE_0" ...; another number changes nothing.
    int KOMAControlSubType() const;
    void KOMAControlSubType(int style);
    // The corner radius on the device: 0 or more, else "Invalid button
    // radius" titled "KOMARadius".
    long KOMARadius() const { return radius_; }
    void KOMARadius(long radius);
    // The number of items, 0 or more; the selected item, -1 up to the last
    // index; the top item, 0 up to the last index. Other values are left.
    int KOMANumItems() const { return numItems_; }
    void KOMANumItems(int count);
    int KOMASelectedItem() const { return selected_; }
    void KOMASelectedItem(int item);
    int KOMATopItemNum() const { return topItem_; }
    void KOMATopItemNum(int item);

    // The items with the selected and the top item: stored, the number of
    // items set, and the text taken from the selected item.
    void SetList(const std::vector<std::string>& items, int selected, int topItem);
    void GetList(std::vector<std::string>& items, int& selected, int& topItem) const;
    const std::vector<std::string>& Items() const { return items_; }

    // The Popup Trigger Editor on the items; its OK writes them back.
    void EditList();

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (PopupTriggerCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (PopupTriggerRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The text, the frame and the arrow (PopupTriggerDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // The right button opens "Set Properties" with "Edit List...".
    void MouseDown(int button, int shift, double x, double y) override;

protected:
    void ApplySubTypeWord(const std::string& word) override;

private:
    long radius_ = 2;
    int numItems_ = 0;
    int selected_ = -1;
    int topItem_ = 0;
    std::vector<std::string> items_;
};

}  // namespace tolva
