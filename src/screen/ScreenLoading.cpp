// Loading and emptying the document. During a load (ScreenMode 5) objects
// come in from their records with no names made, no ids given and no events
// raised; the loader embeds them afterwards.
#include "screen/ScreenEvents.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

void ctlTolvaScreen::StartLoading() { screenMode_ = ModeLoading; }

bool ctlTolvaScreen::CreateObjectFromText(int screenType, const GroupList& record) {
    // A loaded object stays hidden until its form is shown.
    KomaObject* object = AppendNewObject(screenType);
    if (!object) return false;
    object->PCTwipsToTolvaPixels(twipsPerPixel_);
    bool ok = false;
    object->SetFromResText(record, ok);
    return true;
}

bool ctlTolvaScreen::CreateObjectInTable(const std::string& tableName, int row, int column,
                                         int screenType, const GroupList& record) {
    auto* table = static_cast<ctlKOMATable*>(FindObject(type::Table, tableName));
    if (!table) return false;
    bool ok = false;
    table->CreateObjectInTable(row, column, screenType, record, ok);
    return ok;
}

void ctlTolvaScreen::StopLoading() {
    screenMode_ = ModeIdle;
    if (NumForms() < 1) return;
    ctlKOMAForm* first = FormAt(1);
    const std::string name = first->KOMAName();
    ShowForm(name);
    SelectObject(type::Form, name, first);
    if (events_) events_->ChangedObject(name, type::Form);
}

void ctlTolvaScreen::UnloadAll() {
    // References into the arrays go before the objects they point at.
    selectedObjectRef_ = nullptr;
    currentFormRef_ = nullptr;
    constexpr int kOrder[] = {type::Form,         type::Button,       type::RepeatButton,
                              type::String,       type::Bitmap,       type::Checkbox,
                              type::PushButton,   type::Textbox,      type::Line,
                              type::List,         type::Field,        type::PopupTrigger,
                              type::Scrollbar,    type::SchedulerLine, type::Table};
    for (int t : kOrder) arrays_[t].clear();
    for (auto& array : arrays_) array.clear();
    names_.Clear();
    menuNames_.clear();
    menuNamesValid_ = false;
    numMenus_ = 0;
}

void ctlTolvaScreen::ClearScreen() {
    ShowNodes(false, true);
    SelectObject(type::None, "");
    UnloadAll();
    selectedObjectRef_ = nullptr;
    currentFormRef_ = nullptr;
    selectedObjectType_ = type::None;
    selectedObjectName_.clear();
    currentDesignForm_.clear();
    Log("Editor cleared");
}

}  // namespace tolva
