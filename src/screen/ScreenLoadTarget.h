#pragma once
// ScreenLoadTarget: the load's creation stages done on the screen.
#include <string>

#include "resfile/LoadTarget.h"

namespace tolva {

class ctlTolvaScreen;

class ScreenLoadTarget : public LoadTarget {
public:
    explicit ScreenLoadTarget(ctlTolvaScreen& screen) : screen_(screen) {}

    void ExpectObjects(std::size_t count) override;
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
