#pragma once
// DesignText: what the two writers ask of a design. The screen answers for
// a real design; the writers know the order of the sections and the fixed
// lines, the design gives every record and definition.
#include <string>
#include <vector>

#include "document/KomaObject.h"

namespace tolva {

class DesignText {
public:
    virtual ~DesignText() = default;
    // Gives every object its ID afresh.
    virtual void DistributeObjectIds() = 0;
    // The names of a screen type's objects in array order.
    virtual std::vector<std::string> GetNameList(int screenType) const = 0;
    // The record of the named object of the type.
    virtual bool GetKOMAResourceText(LineList& lines, const std::string& name,
                                     int screenType) = 0;
    // The records of the objects in a table's cells, one list per object.
    virtual bool GetTableObjects(const std::string& tableName, std::vector<LineList>& blocks) = 0;
    // The menu records of every form.
    virtual bool GetMenuResourceText(LineList& lines) const = 0;
    // The "#define" lines of the header.
    virtual void GetHeaderFileText(LineList& lines) const = 0;
};

}  // namespace tolva
