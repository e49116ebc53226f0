#pragma once
// LoadTarget: what the loader's creation stages ask of the document. The
// screen is the target of a real load (ScreenLoadTarget); a test may stand
// in for it to watch the stages at work on records made by hand.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class ctlTolvaScreen;

class LoadTarget {
public:
    virtual ~LoadTarget() = default;
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

class ScreenLoadTarget : public LoadTarget {
public:
    explicit ScreenLoadTarget(ctlTolvaScreen& screen) : screen_(screen) {}

    bool CreateObjectFromText(int screenType, const GroupList& record) override;
    bool CreateObjectInTable(const std::string& tableName, int row, int column, int screenType,
                             const GroupList& record) override;
    bool CreateNewMenuInForm(const std::string& formName, const GroupList& menu) override;
    bool EmbedObjectInForm(const std::string& formName, const std::string& objectName,
                           int screenType) override;
    void DistributeObjectIds() override;

protected:
    ctlTolvaScreen& screen_;
};

}  // namespace tolva
