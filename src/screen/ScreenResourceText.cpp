// The screen's part of the resource text: the record of one object, the
// records of the objects in a table's cells, and the menu records, which the
// screen writes itself from the data of the forms.
#include "document/Numbers.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/table/ctlKOMATable.h"
#include "resfile/Banners.h"

namespace tolva {

bool ctlTolvaScreen::GetKOMAResourceText(LineList& lines, const std::string& name, int screenType) {
    lines.clear();
    // Menus are data of their forms and have no object to ask.
    if (screenType == type::Menu) return false;
    KomaObject* object = FindObject(screenType, name);
    if (!object) return false;
    bool ok = false;
    object->ReturnResourceFileText(lines, ok);
    return ok;
}

bool ctlTolvaScreen::GetTableObjects(const std::string& tableName, std::vector<LineList>& blocks) {
    blocks.clear();
    auto* table = static_cast<ctlKOMATable*>(FindObject(type::Table, tableName));
    if (table) table->GetTableObjectText(blocks);
    return true;
}

namespace {

// The record of one menu as the file carries it: place, size, selection and
// visibility are fixed, whatever the menu looks like, and no comment stands
// in it but the banner.
void AppendMenuRecord(LineList& lines, const std::string& name, int id,
                      const std::vector<std::string>& items) {
    AppendRecordBanner(lines, name, false);
    lines.push_back("#MENU");
    lines.push_back("NAME=" + name);
    lines.push_back("ID=" + IntToText(id));
    lines.push_back("~F0");
    lines.push_back("(B)OBJECT.TYPE=MENU");
    lines.push_back("~F1");
    lines.push_back("(SH)BOUNDS.X=0");
    lines.push_back("(SH)BOUNDS.Y=0");
    lines.push_back("(SH)BOUNDS.WIDTH=10");
    lines.push_back("(SH)BOUNDS.HEIGHT=10");
    lines.push_back("~F2");
    lines.push_back("(U)MENU_NUM_ITEMS=" + IntToText(static_cast<long long>(items.size())));
    lines.push_back("~F3");
    lines.push_back("(SH)MENU_SELECTED_ITEM=-1");
    lines.push_back("~F4");
    for (size_t i = 0; i < items.size(); ++i)
        lines.push_back("(S)MENU_ITEMS" + IntToText(static_cast<long long>(i + 1)) + "=" +
                        items[i]);
    lines.push_back("~F5");
    lines.push_back("(BO)MENU_VISIBLE=TRUE");
    lines.push_back("#END_MENU");
}

}  // namespace

bool ctlTolvaScreen::GetMenuResourceText(LineList& lines) const {
    lines.clear();
    for (const auto& object : arrays_[type::Form])
        for (const auto& menu : static_cast<const ctlKOMAForm&>(*object).Menus())
            AppendMenuRecord(lines, menu.name, menu.id, menu.items);
    return true;
}

}  // namespace tolva
