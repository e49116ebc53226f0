#include "screen/ScreenLoadTarget.h"

#include "screen/ctlTolvaScreen.h"

namespace tolva {

void ScreenLoadTarget::ExpectObjects(std::size_t count) { screen_.ExpectObjects(count); }

bool ScreenLoadTarget::CreateObjectFromText(int screenType, const GroupList& record) {
    return screen_.CreateObjectFromText(screenType, record);
}

bool ScreenLoadTarget::CreateObjectInTable(const std::string& tableName, int row, int column,
                                           int screenType, const GroupList& record) {
    return screen_.CreateObjectInTable(tableName, row, column, screenType, record);
}

bool ScreenLoadTarget::CreateNewMenuInForm(const std::string& formName, const GroupList& menu) {
    const std::string name = menu.empty() || menu[0].empty() ? std::string() : menu[0][0];
    const ValueGroup items = menu.size() > 1 ? menu[1] : ValueGroup();
    return screen_.CreateNewMenuInForm(items, name, formName);
}

bool ScreenLoadTarget::EmbedObjectInForm(const std::string& formName,
                                         const std::string& objectName, int screenType) {
    return screen_.EmbedObjectInForm(formName, screenType, objectName);
}

void ScreenLoadTarget::DistributeObjectIds() { screen_.DistributeObjectIds(); }

}  // namespace tolva
