#pragma once
// The two numberings of object kinds.
//
// Screen object type: the number used by the screen, the toolbar, the loader
// and every event (0 to 15; 16 means no object).
// Device object kind: what KOMAObjectType of an object gives, the kind on the
// device, a different numbering.
#include <string>

namespace tolva {

namespace type {
inline constexpr int Button = 0;
inline constexpr int Form = 1;
inline constexpr int String = 2;
inline constexpr int Textbox = 3;
inline constexpr int Field = 4;
inline constexpr int Checkbox = 5;
inline constexpr int Table = 6;
inline constexpr int Bitmap = 7;
inline constexpr int Line = 8;
inline constexpr int List = 9;
inline constexpr int Menu = 10;
inline constexpr int PopupTrigger = 11;
inline constexpr int PushButton = 12;
inline constexpr int RepeatButton = 13;
inline constexpr int SchedulerLine = 14;
inline constexpr int Scrollbar = 15;
inline constexpr int None = 16;
inline constexpr int Count = 16;  // the sixteen kinds 0 to 15
}  // namespace type

namespace kind {
inline constexpr int Form = 0;
inline constexpr int Control = 1;
inline constexpr int Bitmap = 2;
inline constexpr int Field = 3;
inline constexpr int Line = 4;
inline constexpr int List = 5;
inline constexpr int Menu = 6;
inline constexpr int Scrollbar = 7;
inline constexpr int String = 8;
inline constexpr int Table = 9;
inline constexpr int Textbox = 10;
inline constexpr int SchedulerLine = 11;
}  // namespace kind

// The control styles of the control family (device kind 1).
namespace controlstyle {
inline constexpr int Button = 0;
inline constexpr int RepeatButton = 1;
inline constexpr int PushButton = 2;
inline constexpr int Checkbox = 3;
inline constexpr int PopupTrigger = 4;
}  // namespace controlstyle

// The word of a screen type in the resource text ("BUTTON", ..., "SCROLLBAR");
// empty for 16 and anything outside 0 to 15.
std::string ScreenTypeWord(int screenType);

// The name prefix of a screen type ("BUTTON_", "FORM_", "POPUPTRIGGER_"...);
// empty for the menu, for 16 and anything outside.
std::string ScreenTypeNamePrefix(int screenType);

// The word of a device kind as a form's embedded list writes it: "CONTROL"
// for the control family, "STRING", "TEXTBOX", "FIELD", "TABLE", "BITMAP",
// "LINE", "LIST", "SCHLINE", "SCROLLBAR"; empty for any other kind (a form, a
// menu).
std::string EmbeddedTypeWord(int screenType);

// Device kind (and control style for kind 1) to screen type. Gives -1 for a
// form (kind 0), for a kind of 12 or more and for a control style beyond 4.
int ScreenTypeFromDeviceKind(int deviceKind, int controlStyle);

}  // namespace tolva
