#pragma once
// DialogModel: what one of the objects' dialogs works on. The core fills a
// model and asks the host to run the dialog it names; the desktop shows that
// dialog modally on the model, the user edits it, and on OK the core reads
// the edited model back and writes it where it belongs. A Cancel leaves the
// model's data where the core never looks at it.
#include <string>

namespace tolva {

class DialogModel {
public:
    virtual ~DialogModel() = default;
    // The dialog's own name, "frmCheckbox", ...: the desktop finds the
    // dialog by it.
    virtual std::string DialogName() const = 0;
};

}  // namespace tolva
