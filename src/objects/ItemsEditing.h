#pragma once
// ItemsEditing: what the editors of a list of items share (the List Editor,
// the Popup Trigger Editor): a copy of the items with at most one check
// mark, the selection, the top item and its choices, and the operations
// that remove, move and sort items. Each editor adds its own rule of adding
// an item.
#include <string>
#include <vector>

#include "document/DialogModel.h"

namespace tolva {

class Host;

class ItemsEditing : public DialogModel {
public:
    explicit ItemsEditing(Host& host) : host_(host) {}

    const std::vector<std::string>& Items() const { return items_; }
    int Selected() const { return selected_; }
    int TopItem() const { return topItem_; }

    // A mark set on an item takes it from every other; taken off, nothing is
    // selected.
    void Check(int position, bool on);
    void ChooseTopItem(int topItem) { topItem_ = topItem; }

    // Removes the item; the mark stays with its item, and the top item's
    // last choice goes.
    void Remove(int position);
    void RemoveAll();
    // Swap the item with its neighbour; the answer is where it is now.
    int MoveUp(int position);
    int MoveDown(int position);
    // Sorts the items; the mark stays at its position.
    void Sort();

protected:
    // The items and selection (kept only when it names an item) and the top
    // item (0 when it lies outside the choices).
    void SetItems(const std::vector<std::string>& items, int selected, int topItem, int lastTopChoice);
    Host& host() { return host_; }
    // Adds the trimmed text: refused at the limit (a negative one has none:
    // "Maximum number of items reached", "Limit reached") and for an item
    // already listed ("Duplicate items not allowed", "List Editor"); an empty
    // text does nothing. True when added.
    bool AddWithinLimit(const std::string& text, int limit);
    std::vector<std::string> items_;
    int selected_ = -1;
    int topItem_ = 0;

private:
    Host& host_;
};

}  // namespace tolva
