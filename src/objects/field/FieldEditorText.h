#pragma once
// FieldEditorText: what the Field Editor works on, the Field's text. Line
// breaks are held as the Field holds them, CR LF; the desktop's dialog
// turns them into its own and back.
#include <string>

#include "document/DialogModel.h"

namespace tolva {

class FieldEditorText : public DialogModel {
public:
    static constexpr const char* kDialogName = "frmField";

    std::string DialogName() const override { return kDialogName; }

    std::string text;
};

}  // namespace tolva
