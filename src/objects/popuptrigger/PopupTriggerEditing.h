#pragma once
// PopupTriggerEditing: what the Popup Trigger Editor works on: the items
// with their one mark and the top item, which the popup trigger takes back
// on OK only. An item already listed is refused under the dialog's title.
#include <string>
#include <vector>

#include "objects/ItemsEditing.h"

namespace tolva {

class PopupTriggerEditing : public ItemsEditing {
public:
    static constexpr const char* kDialogName = "frmPopupTrigger";

    using ItemsEditing::ItemsEditing;
    std::string DialogName() const override { return kDialogName; }

    // The items, the selected item (kept when it names one) and the top item
    // (one of the choices, else 0).
    void SetList(const std::vector<std::string>& items, int selected, int topItem);
    // The choices of the top item: "0", then one number for each further
    // item.
    std::vector<std::string> TopItemChoices() const;
    // Appends the text as it stands, unless an item already listed is the
    // same ("Duplicate items not allowed", "Popup Trigger Editor"). True when
    // added.
    bool Add(const std::string& text);
};

}  // namespace tolva
