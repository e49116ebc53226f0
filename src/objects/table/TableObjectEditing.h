#pragma once
// TableObjectEditing: what the Table Object Editor works on: one object of
// each of the eleven kinds that may stand in a cell, hidden but the one
// shown. The cell's object is copied into the one of its kind on opening,
// and the one shown is handed to the table on OK, each by the cell copy, so
// Cancel loses nothing. Names are never checked here; a size asked for is
// cut to the cell's.
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "document/DialogModel.h"
#include "objects/table/CellObjectOwner.h"
#include "inspector/PropertyArray.h"

namespace tolva {

class Host;
class KomaObject;
class LogSink;
class ctlKOMATable;

class TableObjectEditing : public DialogModel, private CellObjectOwner {
public:
    static constexpr const char* kDialogName = "frmTableObjects";
    static constexpr int kKindCount = 11;

    TableObjectEditing(Host& host, LogSink& log, ctlKOMATable& table, double scale);
    ~TableObjectEditing() override;
    std::string DialogName() const override { return kDialogName; }

    // The words of cmbObjects, in their order: "Button", "PushButton",
    // "Bitmap", "Checkbox", "String", "Field", "List", "PopupTrigger",
    // "RepeatButton", "Scrollbar", "Textbox".
    static const std::vector<std::string>& KindWords();

    // The cell, its size in device pixels, and its object (or none): the
    // object's kind is chosen with a copy of it, else "Button".
    void SetObject(int row, int column, int rowHeight, int columnWidth, KomaObject* object);
    // A word of the list: that kind's object is shown; each keeps what it
    // had. Another word changes nothing.
    void ChooseKind(const std::string& word);
    const std::string& KindWord() const { return kindWord_; }
    KomaObject* Current() const { return current_; }
    KomaObject& Object(const std::string& word) const;

    // The inspector's rows of the object shown, and rows changed there: a
    // refused array says "Could not change object properties" under "Table
    // Object Editor".
    PropertyArray Rows() const;
    void ApplyRows(const PropertyArray& rows);

    // OK: the object shown goes to 0, 0 and into the cell.
    void Ok();

private:
    // --- what the eleven objects talk to ---------------------------------------------
    Host& OwnerHost() override { return host_; }
    LogSink& OwnerLog() override { return log_; }
    void ObjectResized(KomaObject& object, int width, int height) override;

    Host& host_;
    LogSink& log_;
    ctlKOMATable& table_;
    double scale_;
    int row_ = 0;
    int column_ = 0;
    int rowHeight_ = 0;
    int columnWidth_ = 0;
    std::array<std::unique_ptr<KomaObject>, kKindCount> objects_;
    KomaObject* current_ = nullptr;
    std::string kindWord_;
};

}  // namespace tolva
