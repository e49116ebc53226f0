#pragma once
// frmMenu, the Menu Editor: the form's menus in cmbMenu, the name box with
// New, Copy To New, Rename and Delete, the shared item controls (no check
// mark, no top item) on the menu shown, and the preview of it over the
// form. It works on a MenuEditing; OK hands every menu back, Cancel nothing.
#include "objects/editors/ItemsDialog.h"
#include "objects/menu/MenuEditing.h"

class QGroupBox;

namespace tolva {

class DialogModel;
class MenuFormPicture;
class MenuSamplePicture;

class frmMenu : public ItemsDialog {
    Q_OBJECT
public:
    frmMenu(MenuEditing& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a MenuEditing, true for
    // OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

protected:
    bool AddItem(const std::string& text) override { return edit_.Add(text); }
    std::vector<std::string> TopItemChoices() const override { return {}; }
    void ItemsChanged() override;

private:
    // cmbMenu from the names, the menu shown, its items, the controls in use
    // and the preview.
    void ShowSelected();
    void MenuChosen(int index);
    void NewMenu();
    void CopyMenu();
    void RenameMenu();
    void DeleteMenu();

    MenuEditing& edit_;
    QComboBox* cmbMenu_ = nullptr;
    QLineEdit* txtNewName_ = nullptr;
    QPushButton* cmdNew_ = nullptr;
    QPushButton* cmdCopy_ = nullptr;
    QPushButton* cmdRename_ = nullptr;
    QPushButton* cmdDelete_ = nullptr;
    QGroupBox* framrPreview_ = nullptr;
    MenuFormPicture* imgForm_ = nullptr;
    MenuSamplePicture* ctlSampleMenu_ = nullptr;
};

}  // namespace tolva
