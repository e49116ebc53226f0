#pragma once
// ListEditing: what the List Editor works on, and its rules. It holds a
// copy of the items with the one check mark of the selection, the top item,
// the item limit, and the form's other lists with their link flags. The
// object takes all of it back on OK only. Refusals are told through the
// host, with their own titles.
//
// The item limit belongs to the editor, not to a list: it is 10 when the
// program starts, and the number on display accepted at an OK becomes the
// limit of every later opening, of any list. So a list cannot have more
// items than the last number on display, at the moment of adding.
#include <string>
#include <vector>

#include "objects/ItemsEditing.h"

namespace tolva {

class Host;

class ListEditing : public ItemsEditing {
public:
    static constexpr const char* kDialogName = "frmList";
    static constexpr int kFirstItemLimit = 10;

    explicit ListEditing(Host& host) : ItemsEditing(host), limit_(EditorItemLimit()) {}

    // The limit the next opening starts with.
    static int& EditorItemLimit();
    std::string DialogName() const override { return kDialogName; }

    // The items, the selected position (kept only when it names an item),
    // the number on display (which the editor does not show: its box starts
    // at "10") and the top item (shown as 0 when it lies outside the list).
    void SetList(const std::vector<std::string>& items, int selected, int numDisplayed, int topItem);
    // The names and flags of the other lists, kept when both have one entry
    // each.
    void SetRelatedLists(const std::vector<std::string>& names, const std::vector<bool>& flags);

    int ItemLimit() const { return limit_; }
    void LinkList(int position, bool on);
    const std::vector<std::string>& RelatedNames() const { return names_; }
    const std::vector<bool>& RelatedFlags() const { return flags_; }
    // The choices of the top item: "0" and one more for each item.
    std::vector<std::string> TopItemChoices() const;

    // Adds the trimmed text: refused at the limit ("Maximum number of items
    // reached", "Limit reached") and for an item already listed ("Duplicate
    // items not allowed", "List Editor"); an empty text does nothing. True
    // when added.
    bool Add(const std::string& text);

    // The text of "Max Num on Display" at OK: a number from 0 to 65534
    // becomes the limit, here and for the openings to come, and the answer
    // is true; anything else is told ("You must enter a number between 0
    // and 65534", "Invalid value") and the dialog stays open.
    bool Accept(const std::string& maxNumText);

private:
    int limit_;
    std::vector<std::string> names_;
    std::vector<bool> flags_;
};

}  // namespace tolva
