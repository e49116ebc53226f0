#pragma once
// LoadTarget: what the loader's creation stages ask of the document. The
// screen answers for a real load (screen/ScreenLoadTarget.h); a test may
// stand in for it to watch the stages at work on records made by hand.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class LoadTarget {
public:
    virtual ~LoadTarget() = default;
    // Before the first object: how many records the file brought, so that
    // the document can make room for them at once. Only a hint.
    virtual void ExpectObjects(std::size_t /*count*/) {}
    // A new object of the screen type takes the record's groups.
    virtual bool CreateObjectFromText(int screenType, const GroupList& record) = 0;
    // A new object of the screen type in a cell (row and column from 1) of
    // the named table.
    virtual bool CreateObjectInTable(const std::string& tableName, int row, int column,
                                     int screenType, const GroupList& record) = 0;
    // A menu for the named form; the group list is the menu's name, then
    // its item texts.
    virtual bool CreateNewMenuInForm(const std::string& formName, const GroupList& menu) = 0;
    virtual bool EmbedObjectInForm(const std::string& formName, const std::string& objectName,
                                   int screenType) = 0;
    virtual void DistributeObjectIds() = 0;
};

}  // namespace tolva
