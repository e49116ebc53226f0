// The table of record kinds of this program: every section word and control
// style with its texts, and the parser of each kind that can be read. A new
// kind plugs its parser in here.
#include "screen/StandardRecordKinds.h"

#include "document/ObjectTypes.h"
#include "objects/ControlRecord.h"
#include "objects/bitmap/modBitmap.h"
#include "objects/button/modButton.h"
#include "objects/checkbox/modCheckbox.h"
#include "objects/form/FormRecord.h"
#include "objects/popuptrigger/modPopuptrigger.h"
#include "objects/pushbutton/modPushbutton.h"
#include "objects/repeatbutton/modRepeatbutton.h"
#include "objects/string/modString.h"
#include "objects/field/modField.h"
#include "objects/line/modLine.h"
#include "objects/list/modList.h"
#include "objects/menu/modMenu.h"
#include "objects/schedulerline/modSchline.h"
#include "objects/scrollbar/modScrollbar.h"
#include "objects/table/modTable.h"
#include "objects/textbox/modTextbox.h"

namespace tolva {

namespace {

RecordKinds MakeStandardKinds() {
    RecordKinds kinds;
    // The parsers are plugged in kind by kind; nullptr: not readable yet.
    kinds.sections = {
        {"#FORM", type::Form, ParseFormRecord, "Could not load form object", "Could not create form"},
        {"#BITMAP", type::Bitmap, ParseBitmapRecord, "Could not load bitmap object",
         "Could not create bitmap"},
        {"#FIELD", type::Field, ParseFieldRecord, "Could not load field object", "Could not create field"},
        {"#LINE", type::Line, ParseLineRecord, "Could not load line object", "Could not create line"},
        {"#LIST", type::List, ParseListRecord, "Could not load list object", "Could not create list"},
        {"#MENU", type::Menu, ParseMenuRecord, "Could not load menu object", "Could not create menu"},
        {"#SCHLINE", type::SchedulerLine, ParseSchlineRecord, "Could not load SchedulerLine object",
         "Could not create scheduler line"},
        {"#SCROLLBAR", type::Scrollbar, ParseScrollbarRecord, "Could not load scrollbar object",
         "Could not create scrollbar"},
        {"#STRING", type::String, ParseStringRecord, "Could not load string object",
         "Could not create string"},
        {"#TABLE", type::Table, ParseTableRecord, "Could not load table object", "Could not create table"},
        {"#TEXTBOX", type::Textbox, ParseTextboxRecord, "Could not load textbox object",
         "Could not create textbox"},
    };
    kinds.controlHead = {"#CONTROL", type::None, ParseControlRecordHead,
                         "Could not load control object", ""};
    kinds.controlStyles = {
        {"BUTTON", type::Button, ParseButtonRecordTail, "Could not load button object",
         "Could not create button"},
        {"POPUP_TRIGGER", type::PopupTrigger, ParsePopupTriggerRecordTail, "Could not load popuptrigger object",
         "Could not create popuptrigger"},
        {"PUSH_BUTTON", type::PushButton, ParsePushButtonRecordTail, "Could not load pushbutton object",
         "Could not create pushbutton"},
        {"REPEAT_BUTTON", type::RepeatButton, ParseRepeatButtonRecordTail, "Could not load repeatbutton object",
         "Could not create repeatbutton"},
        {"CHECKBOX", type::Checkbox, ParseCheckboxRecordTail, "Could not load checkbox object",
         "Could not create checkbox"},
    };
    return kinds;
}

}  // namespace

const RecordKinds& StandardRecordKinds() {
    static const RecordKinds kinds = MakeStandardKinds();
    return kinds;
}

}  // namespace tolva
