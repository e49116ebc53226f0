#pragma once
// ctlKOMAMenu: the Menu Editor's preview of one menu, and the shape of the
// "#MENU" record. Menus themselves are plain data of their form (names, ids
// and item lists); nothing on the design screen is a menu. The preview
// sizes itself from its items, one line of the small device font each.
#include <string>
#include <vector>

#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAMenu : public KomaObject {
public:
    static constexpr int kRowCount = 6;

    ctlKOMAMenu();

    // The items and the selected one (-1 none): replaced at once, and the
    // preview sized to them.
    void SetList(const std::vector<std::string>& items, int selected);
    void GetList(std::vector<std::string>& items, int& selected) const;
    const std::vector<std::string>& Items() const { return items_; }
    void AddListItem(const std::string& item);
    // Removes the item at the position, from 0; another position changes
    // nothing.
    void RemoveListItem(int position);
    int KOMANumItems() const { return static_cast<int>(items_.size()); }
    int KOMASelectedItem() const { return selected_; }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = value ? "TRUE" : "FALSE"; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // A right click offers "Edit Menu..." (the List Editor on the items)
    // and "Clear Menu". Nothing in the editor shows a preview that can be
    // clicked; these serve a preview shown anywhere else.
    void MouseDown(int button, int shift, double x, double y) override;
    // The fuller record, with comments; the file takes the form's own.
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    // The frame and one line for each item (MenuPreview.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void LayOut() override {}

private:
    // The box from the items: the widest item's width in the small font's
    // pixels and 10 pixels a line, with margins of 360 and 160 units.
    void SizeToItems();

    int selected_ = -1;
    std::vector<std::string> items_;
    std::string visibleWord_ = "TRUE";
};

}  // namespace tolva
