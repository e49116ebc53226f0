#pragma once
// CheckboxRelations: what the Checkbox Editor works on. It holds a copy of
// a form's related-checkbox table, the check box chosen in the editor's
// list, and the other check boxes with their ticks as the check list shows
// them. A tick is set on both rows at once, so the relation stays
// symmetric; the form gets the table back only on OK.
#include <string>
#include <vector>

#include "document/DialogModel.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

class CheckboxRelations : public DialogModel {
public:
    using Table = ctlKOMAForm::RelatedCheckboxTable;
    static constexpr const char* kDialogName = "frmCheckbox";

    std::string DialogName() const override { return kDialogName; }

    // Copies the table, and makes its first row the current one if it has
    // any.
    void SetRelatedCheckboxes(const Table& table);
    const Table& RelatedCheckboxes() const { return table_; }

    // The names of the check box list, in table order.
    std::vector<std::string> CheckboxNames() const;
    // The row chosen, from 0; -1 while the table is empty.
    int CurrentRow() const { return current_; }
    // Makes a row current; a row the table lacks changes nothing.
    void ChooseCheckbox(int row);

    // The check list: every name but the current one's, in table order, and
    // whether the current check box is related to it.
    std::vector<std::string> OtherNames() const;
    std::vector<bool> OtherTicks() const;
    // Ticks or unticks item i (from 0) of the check list: item i stands for
    // row i before the current row and for row i + 1 from it on. Both rows
    // get the flag of the other.
    void Tick(int item, bool ticked);

private:
    // The row item i of the check list stands for, or -1.
    int RowOfItem(int item) const;
    bool Flag(int row, int column) const;
    void SetFlag(int row, int column, bool value);

    Table table_;
    int current_ = -1;
};

}  // namespace tolva
