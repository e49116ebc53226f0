// MakeObject: the one place where the screen turns a screen type into a new
// object of its class, with that class's defaults.
#include "screen/ctlTolvaScreen.h"
#include "objects/bitmap/ctlKOMABitmap.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/line/ctlKOMALine.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"
#include "objects/pushbutton/ctlKOMAPushButton.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "objects/schedulerline/ctlKOMASchedulerLine.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/textbox/ctlKOMATextbox.h"

namespace tolva {

std::unique_ptr<KomaObject> ctlTolvaScreen::MakeObject(int screenType) {
    switch (screenType) {
        case type::Button: return std::make_unique<ctlKOMAButton>();
        case type::Form: return std::make_unique<ctlKOMAForm>();
        case type::String: return std::make_unique<ctlKOMAString>();
        case type::Textbox: return std::make_unique<ctlKOMATextbox>();
        case type::Field: return std::make_unique<ctlKOMAField>();
        case type::Checkbox: return std::make_unique<ctlKOMACheckbox>();
        case type::Table: return std::make_unique<ctlKOMATable>();
        case type::Bitmap: return std::make_unique<ctlKOMABitmap>();
        case type::Line: return std::make_unique<ctlKOMALine>();
        case type::List: return std::make_unique<ctlKOMAList>();
        case type::PopupTrigger: return std::make_unique<ctlKOMAPopupTrigger>();
        case type::PushButton: return std::make_unique<ctlKOMAPushButton>();
        case type::RepeatButton: return std::make_unique<ctlKOMARepeatButton>();
        case type::SchedulerLine: return std::make_unique<ctlKOMASchedulerLine>();
        case type::Scrollbar: return std::make_unique<ctlKOMAScrollbar>();
        // Menus live in their forms as plain data and never come here.
        default: return nullptr;
    }
}

KomaObject* ctlTolvaScreen::AppendNewObject(int screenType) {
    std::unique_ptr<KomaObject> made = MakeObject(screenType);
    if (!made) return nullptr;
    made->Visible(false);
    return AddToArray(screenType, std::move(made));
}

KomaObject* ctlTolvaScreen::AddToArray(int screenType, std::unique_ptr<KomaObject> made) {
    KomaObject* object = made.get();
    object->SetOwner(this);
    arrays_[screenType].push_back(std::move(made));
    object->iIndex(Count(screenType));
    object->ArrayPlace(Count(screenType));
    names_.Add(object->KOMAName(), screenType, Count(screenType), object);
    if (screenType == type::Form) menuNamesValid_ = false;
    return object;
}

}  // namespace tolva
