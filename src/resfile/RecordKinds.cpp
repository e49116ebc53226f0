#include "resfile/RecordKinds.h"

#include "document/ObjectTypes.h"
#include "objects/ControlRecord.h"
#include "objects/FormRecord.h"
#include "objects/modButton.h"
#include "objects/modString.h"

namespace tolva {

namespace {

RecordKinds MakeStandardKinds() {
    RecordKinds kinds;
    // The parsers are plugged in kind by kind; nullptr: not readable yet.
    kinds.sections = {
        {"#FORM", type::Form, ParseFormRecord, "Could not load form object", "Could not create form"},
        {"#BITMAP", type::Bitmap, nullptr, "Could not load bitmap object",
         "Could not create bitmap"},
        {"#FIELD", type::Field, nullptr, "Could not load field object", "Could not create field"},
        {"#LINE", type::Line, nullptr, "Could not load line object", "Could not create line"},
        {"#LIST", type::List, nullptr, "Could not load list object", "Could not create list"},
        {"#MENU", type::Menu, nullptr, "Could not load menu object", "Could not create menu"},
        {"#SCHLINE", type::SchedulerLine, nullptr, "Could not load SchedulerLine object",
         "Could not create scheduler line"},
        {"#SCROLLBAR", type::Scrollbar, nullptr, "Could not load scrollbar object",
         "Could not create scrollbar"},
        {"#STRING", type::String, ParseStringRecord, "Could not load string object",
         "Could not create string"},
        {"#TABLE", type::Table, nullptr, "Could not load table object", "Could not create table"},
        {"#TEXTBOX", type::Textbox, nullptr, "Could not load textbox object",
         "Could not create textbox"},
    };
    kinds.controlHead = {"#CONTROL", type::None, ParseControlRecordHead,
                         "Could not load control object", ""};
    kinds.controlStyles = {
        {"BUTTON", type::Button, ParseButtonRecordTail, "Could not load button object",
         "Could not create button"},
        {"POPUP_TRIGGER", type::PopupTrigger, nullptr, "Could not load popuptrigger object",
         "Could not create popuptrigger"},
        {"PUSH_BUTTON", type::PushButton, nullptr, "Could not load pushbutton object",
         "Could not create pushbutton"},
        {"REPEAT_BUTTON", type::RepeatButton, nullptr, "Could not load repeatbutton object",
         "Could not create repeatbutton"},
        {"CHECKBOX", type::Checkbox, nullptr, "Could not load checkbox object",
         "Could not create checkbox"},
    };
    return kinds;
}

const RecordKind* FindIn(const std::vector<RecordKind>& kinds, const std::string& word) {
    for (const RecordKind& kind : kinds)
        if (kind.word == word) return &kind;
    return nullptr;
}

}  // namespace

const RecordKind* RecordKinds::FindSection(const std::string& word) const {
    return FindIn(sections, word);
}

const RecordKind* RecordKinds::FindControlStyle(const std::string& word) const {
    return FindIn(controlStyles, word);
}

std::string RecordKinds::CreateFailText(int screenType) const {
    for (const auto* list : {&sections, &controlStyles})
        for (const RecordKind& kind : *list)
            if (kind.screenType == screenType) return kind.createFailText;
    return "";
}

bool RecordKinds::SetParser(const std::string& word, RecordParser parser) {
    if (word == controlHead.word) {
        controlHead.parser = parser;
        return true;
    }
    for (auto* list : {&sections, &controlStyles})
        for (RecordKind& kind : *list)
            if (kind.word == word) {
                kind.parser = parser;
                return true;
            }
    return false;
}

const RecordKinds& StandardRecordKinds() {
    static const RecordKinds kinds = MakeStandardKinds();
    return kinds;
}

}  // namespace tolva
