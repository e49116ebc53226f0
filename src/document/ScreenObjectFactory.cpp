// MakeObject: the one place where the screen turns a screen type into a new
// object of its class, with that class's defaults.
#include "document/ctlTolvaScreen.h"
#include "objects/ctlKOMABitmap.h"
#include "objects/ctlKOMAButton.h"
#include "objects/ctlKOMACheckbox.h"
#include "objects/ctlKOMAField.h"
#include "objects/ctlKOMAForm.h"
#include "objects/ctlKOMALine.h"
#include "objects/ctlKOMAList.h"
#include "objects/ctlKOMAPopupTrigger.h"
#include "objects/ctlKOMAPushButton.h"
#include "objects/ctlKOMARepeatButton.h"
#include "objects/ctlKOMASchedulerLine.h"
#include "objects/ctlKOMAScrollbar.h"
#include "objects/ctlKOMAString.h"
#include "objects/ctlKOMATable.h"
#include "objects/ctlKOMATextbox.h"

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
    KomaObject* object = made.get();
    object->SetOwner(this);
    object->Visible(false);
    arrays_[screenType].push_back(std::move(made));
    object->iIndex(Count(screenType));
    return object;
}

}  // namespace tolva
