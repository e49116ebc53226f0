#pragma once
// The objects' dialogs by name. Each dialog of the Qt layer is registered
// once at start-up under its own name ("frmCheckbox"), and the desktop host
// runs it when the core asks for a dialog of that name.
#include <functional>
#include <string>

class QWidget;

namespace tolva {

class DialogModel;

// Shows the dialog modally on the model, over the parent; true for OK.
using DialogRunner = std::function<bool(DialogModel& model, QWidget* parent)>;

// A second registration under one name replaces the first.
void RegisterDialog(const std::string& name, DialogRunner runner);
// The runner of the name, or none.
const DialogRunner* FindDialog(const std::string& name);

}  // namespace tolva
