#pragma once
// TableCellOwner: what the objects in a table's cells talk to. Their
// messages reach the table's own host; their names are never checked (a
// cell object is named anew when it is saved); of their events only a new
// size counts, which the table cuts to the device's edge. Nothing else of
// a cell object reaches the design screen.
#include "document/ObjectOwner.h"

namespace tolva {

class ctlKOMATable;

class TableCellOwner : public ObjectOwner {
public:
    explicit TableCellOwner(ctlKOMATable& table) : table_(table) {}

    Host& OwnerHost() override;
    LogSink& OwnerLog() override;
    bool IsNewNameUnique(const std::string&, const std::string&) override { return true; }
    bool OwnerGetObjectID(const std::string&, int&) override { return false; }
    void ObjectMouseDown(KomaObject&, int, int, double, double) override {}
    void ObjectMouseMove(KomaObject&, int, int, double, double) override {}
    void ObjectMouseUp(KomaObject&, int, int, double, double) override {}
    void ObjectSelected(KomaObject&) override {}
    void ObjectDeleted(KomaObject&) override {}
    void ObjectMoved(KomaObject&, int, int) override {}
    void ObjectResized(KomaObject& object, int width, int height) override;
    void ObjectPicChanged(KomaObject&) override {}
    long long NextStackStamp(bool) override { return 0; }

private:
    ctlKOMATable& table_;
};

}  // namespace tolva
