#pragma once
// The toolbar's tools in button order (index 1 to 17): the name each button
// shows and the screen type its click arms. "Menu" arms nothing: it opens the
// menu editor of the form on show.
#include <array>

#include "document/ObjectTypes.h"

namespace tolva {

struct ToolEntry {
    const char* name;
    int createObjectType;  // -1 for "Menu"
};

inline constexpr int kToolCount = 17;
inline constexpr int kPointerTool = 1;
inline constexpr int kFormTool = 2;
inline constexpr int kMenuTool = 10;

inline constexpr std::array<ToolEntry, kToolCount> kTools = {{
    {"Pointer", type::None},
    {"Form", type::Form},
    {"Button", type::Button},
    {"Repeat Button", type::RepeatButton},
    {"Push Button", type::PushButton},
    {"Textbox", type::Textbox},
    {"Field", type::Field},
    {"Checkbox", type::Checkbox},
    {"Popup Trigger", type::PopupTrigger},
    {"Menu", -1},
    {"List", type::List},
    {"Scrollbar", type::Scrollbar},
    {"String", type::String},
    {"Bitmap", type::Bitmap},
    {"Line", type::Line},
    {"Scheduler Line", type::SchedulerLine},
    {"Table", type::Table},
}};

// The tool of a button index from 1; index out of range gives the pointer.
inline const ToolEntry& Tool(int index) {
    return (index >= 1 && index <= kToolCount) ? kTools[index - 1] : kTools[0];
}

}  // namespace tolva
