#include "document/ObjectTypes.h"

namespace tolva {

namespace {
struct TypeInfo {
    const char* word;
    const char* prefix;
    const char* embeddedWord;
};

// Indexed by screen type 0 to 15.
constexpr TypeInfo kTypes[type::Count] = {
    {"BUTTON", "BUTTON_", "CONTROL"},
    {"FORM", "FORM_", ""},
    {"STRING", "STRING_", "STRING"},
    {"TEXTBOX", "TEXTBOX_", "TEXTBOX"},
    {"FIELD", "FIELD_", "FIELD"},
    {"CHECKBOX", "CHECKBOX_", "CONTROL"},
    {"TABLE", "TABLE_", "TABLE"},
    {"BITMAP", "BITMAP_", "BITMAP"},
    {"LINE", "LINE_", "LINE"},
    {"LIST", "LIST_", "LIST"},
    {"MENU", "", ""},
    {"POPUP_TRIGGER", "POPUPTRIGGER_", "CONTROL"},
    {"PUSH_BUTTON", "PUSHBUTTON_", "CONTROL"},
    {"REPEAT_BUTTON", "REPEATBUTTON_", "CONTROL"},
    {"SCHLINE", "SCHEDULERLINE_", "SCHLINE"},
    {"SCROLLBAR", "SCROLLBAR_", "SCROLLBAR"},
};

bool InRange(int screenType) { return screenType >= 0 && screenType < type::Count; }
}  // namespace

std::string ScreenTypeWord(int screenType) {
    return InRange(screenType) ? kTypes[screenType].word : "";
}

std::string ScreenTypeNamePrefix(int screenType) {
    return InRange(screenType) ? kTypes[screenType].prefix : "";
}

std::string EmbeddedTypeWord(int screenType) {
    return InRange(screenType) ? kTypes[screenType].embeddedWord : "";
}

int ScreenTypeFromDeviceKind(int deviceKind, int controlStyle) {
    switch (deviceKind) {
        case kind::Control:
            switch (controlStyle) {
                case controlstyle::Button: return type::Button;
                case controlstyle::RepeatButton: return type::RepeatButton;
                case controlstyle::PushButton: return type::PushButton;
                case controlstyle::Checkbox: return type::Checkbox;
                case controlstyle::PopupTrigger: return type::PopupTrigger;
                default: return -1;
            }
        case kind::Bitmap: return type::Bitmap;
        case kind::Field: return type::Field;
        case kind::Line: return type::Line;
        case kind::List: return type::List;
        case kind::Menu: return type::Menu;
        case kind::Scrollbar: return type::Scrollbar;
        case kind::String: return type::String;
        case kind::Table: return type::Table;
        case kind::Textbox: return type::Textbox;
        case kind::SchedulerLine: return type::SchedulerLine;
        default: return -1;  // a form, or a kind of 12 or more
    }
}

}  // namespace tolva
