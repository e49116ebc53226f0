// The main window's history of steps: Edit > Undo and Redo, the steps begun
// and ended around every change the user makes, and the window shown again
// after a step is undone or redone.
#include <QAction>
#include <QComboBox>
#include <QTimer>

#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "platform/Cp1252.h"
#include "screen/DesignHistory.h"
#include "screen/DesignSteps.h"
#include "screen/ctlTolvaScreen.h"
#include "shell/RunGuarded.h"
#include "shell/SortedComboBox.h"
#include "shell/frmMain.h"

namespace tolva {

namespace {

// The Table Editor's row, column and object operations take effect at once
// and stay after a Cancel: its closing is a step either way.
bool KeepsChangesOnCancel(const std::string& dialogName) { return dialogName == "frmTable"; }

// A popup entry as a step's name: "Edit Menu..." gives "Edit Menu".
std::string EntryAsStep(std::string text) {
    while (!text.empty() && (text.back() == '.' || text.back() == ' ')) text.pop_back();
    return text;
}

}  // namespace

void frmMain::BeginStep() { steps_->Begin(); }

void frmMain::EndStep() {
    if (steps_->End()) designSaved_ = history_->IsSaved();
    UpdateUndoActions();
}

void frmMain::FreshHistory() {
    history_->Reset();
    UpdateUndoActions();
}

void frmMain::UpdateUndoActions() {
    if (!mnuEditUndo_ || !mnuEditRedo_) return;
    mnuEditUndo_->setText(FromCp1252(history_->UndoText()));
    mnuEditUndo_->setEnabled(history_->CanUndo());
    mnuEditRedo_->setText(FromCp1252(history_->RedoText()));
    mnuEditRedo_->setEnabled(history_->CanRedo());
}

void frmMain::mnuEditUndo_Click() {
    // Not while a gesture or a dialog is under way.
    if (steps_->Open() || !history_->Undo()) return;
    ShowRestoredDesign();
}

void frmMain::mnuEditRedo_Click() {
    if (steps_->Open() || !history_->Redo()) return;
    ShowRestoredDesign();
}

void frmMain::ShowRestoredDesign() {
    ctlTolvaScreen& screen = *screen_;
    formsComboEnabled_ = false;
    objectsComboEnabled_ = false;
    FillFormsCombo();
    if (!screen.CurrentDesignForm().empty()) {
        SetComboText(cmbForms_, screen.CurrentDesignForm());
        UpdateObjectsCombo();
    } else {
        cmbForms_->setCurrentIndex(-1);
        cmbObjects_->clear();
    }
    const int selectedType = screen.SelectedObjectType();
    if (selectedType != type::None && screen.SelectedObjectRef()) {
        SetProperties(selectedType, screen.SelectedObjectName());
    } else {
        ClearPropertiesList();
    }
    formsComboEnabled_ = true;
    objectsComboEnabled_ = true;
    designSaved_ = history_->IsSaved();
    UpdateUndoActions();
    RefreshScreen();
}

// --- what the host tells of the user's answers ------------------------------------------

void frmMain::PopupChosen(const std::string& entryText) {
    const std::string object = screen_->SelectedObjectName();
    steps_->Chose(EntryAsStep(entryText) + (object.empty() ? "" : " " + object));
}

void frmMain::DialogOpening(const std::string&) { BeginStep(); }

void frmMain::DialogClosed(const std::string& dialogName, bool accepted) {
    ctlTolvaScreen& screen = *screen_;
    const std::string name = dialogName == "frmMenu"
                                 ? "Edit Menus of " + screen.CurrentDesignForm()
                                 : "Edit " + screen.SelectedObjectName();
    steps_->DialogClosed(accepted, KeepsChangesOnCancel(dialogName), name);
    // The caller takes the dialog's answer into the design after this: the
    // step ends once it has.
    QTimer::singleShot(0, this, [this] { RunGuarded([this] { EndStep(); }); });
}

}  // namespace tolva
