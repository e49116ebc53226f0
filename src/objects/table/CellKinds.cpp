#include "objects/table/CellKinds.h"

#include "document/ObjectTypes.h"
#include "objects/bitmap/ctlKOMABitmap.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"
#include "objects/pushbutton/ctlKOMAPushButton.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/textbox/ctlKOMATextbox.h"

namespace tolva {

bool IsCellKind(int screenType) {
    switch (screenType) {
        case type::Button:
        case type::String:
        case type::Textbox:
        case type::Field:
        case type::Checkbox:
        case type::Bitmap:
        case type::List:
        case type::PopupTrigger:
        case type::PushButton:
        case type::RepeatButton:
        case type::Scrollbar: return true;
        default: return false;
    }
}

std::string CellTypeWord(int screenType) {
    switch (screenType) {
        case type::Button:
        case type::Checkbox:
        case type::PopupTrigger:
        case type::PushButton:
        case type::RepeatButton: return "CONTROL";
        case type::SchedulerLine: return "SCHLINE";
        default: return ScreenTypeWord(screenType);
    }
}

std::string CellNamePrefix(int screenType) {
    switch (screenType) {
        case type::Button: return "BUTTON_";
        case type::String: return "STRING_";
        case type::Textbox: return "TEXTBOX_";
        case type::Field: return "FIELD_";
        case type::Checkbox: return "CHECKBOX_";
        case type::Bitmap: return "BITMAP_";
        case type::List: return "LIST_";
        case type::PopupTrigger: return "POPUPTRIGGER_";
        case type::PushButton: return "PUSHBUTTON_";
        case type::Scrollbar: return "SCROLLBAR_";
        default: return "TABLEOBJECT_";
    }
}

std::unique_ptr<KomaObject> NewCellObject(int screenType) {
    switch (screenType) {
        case type::Button: return std::make_unique<ctlKOMAButton>();
        case type::String: return std::make_unique<ctlKOMAString>();
        case type::Textbox: return std::make_unique<ctlKOMATextbox>();
        case type::Field: return std::make_unique<ctlKOMAField>();
        case type::Checkbox: return std::make_unique<ctlKOMACheckbox>();
        case type::Bitmap: return std::make_unique<ctlKOMABitmap>();
        case type::List: return std::make_unique<ctlKOMAList>();
        case type::PopupTrigger: return std::make_unique<ctlKOMAPopupTrigger>();
        case type::PushButton: return std::make_unique<ctlKOMAPushButton>();
        case type::RepeatButton: return std::make_unique<ctlKOMARepeatButton>();
        case type::Scrollbar: return std::make_unique<ctlKOMAScrollbar>();
        default: return nullptr;
    }
}

}  // namespace tolva
