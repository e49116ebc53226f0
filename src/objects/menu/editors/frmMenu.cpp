#include "objects/menu/editors/frmMenu.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "objects/menu/editors/MenuPreviewViews.h"
#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

frmMenu::frmMenu(MenuEditing& edit, QWidget* parent)
    : ItemsDialog(edit, "frmMenu", "Menu Editor", parent), edit_(edit) {
    setWindowTitle(FromCp1252(edit.Caption()));
    WithoutMarks();

    cmbMenu_ = new QComboBox(this);
    cmbMenu_->setObjectName("cmbMenu");
    txtNewName_ = new QLineEdit(QString::fromLatin1(MenuEditing::kNamePrefix), this);
    txtNewName_->setObjectName("txtNewName");
    cmdNew_ = MakeButton("cmdNew", "New");
    cmdCopy_ = MakeButton("cmdCopy", "Copy To New");
    cmdRename_ = MakeButton("cmdRename", "Rename");
    cmdDelete_ = MakeButton("cmdDelete", "Delete");

    framrPreview_ = new QGroupBox(QStringLiteral("Preview"), this);
    framrPreview_->setObjectName("framrPreview");
    imgForm_ = new MenuFormPicture(edit.Picture(), framrPreview_);
    // The menu drops down over the form's top left corner.
    ctlSampleMenu_ = new MenuSamplePicture(edit, imgForm_);
    ctlSampleMenu_->move(0, 0);
    auto* frame = new QVBoxLayout(framrPreview_);
    frame->addWidget(imgForm_);
    frame->addStretch();

    auto* grid = new QGridLayout(this);
    grid->addWidget(MakeLabel("lblMenu", "Menu", cmbMenu_), 0, 0);
    grid->addWidget(cmbMenu_, 1, 0);
    grid->addWidget(cmdDelete_, 1, 1);
    grid->addWidget(MakeLabel("lblNewName", "Name", txtNewName_), 2, 0);
    grid->addWidget(txtNewName_, 3, 0);
    auto* names = new QHBoxLayout;
    names->addWidget(cmdNew_);
    names->addWidget(cmdCopy_);
    names->addWidget(cmdRename_);
    grid->addLayout(names, 4, 0, 1, 2);
    LayOutShared(grid, 5, -1, 14);
    grid->addWidget(framrPreview_, 0, 2, 15, 1);

    connect(cmbMenu_, &QComboBox::activated, this, &frmMenu::MenuChosen);
    connect(cmdNew_, &QPushButton::clicked, this, &frmMenu::NewMenu);
    connect(cmdCopy_, &QPushButton::clicked, this, &frmMenu::CopyMenu);
    connect(cmdRename_, &QPushButton::clicked, this, &frmMenu::RenameMenu);
    connect(cmdDelete_, &QPushButton::clicked, this, &frmMenu::DeleteMenu);
    ShowSelected();
}

bool frmMenu::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<MenuEditing*>(&model);
    if (!edit) return false;
    frmMenu dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

void frmMenu::ShowSelected() {
    filling_ = true;
    cmbMenu_->clear();
    for (const std::string& name : edit_.Names()) cmbMenu_->addItem(FromCp1252(name));
    cmbMenu_->setCurrentIndex(edit_.SelectedMenu());
    filling_ = false;
    const bool shown = edit_.HasSelectedMenu();
    cmdCopy_->setEnabled(shown);
    cmdDelete_->setEnabled(shown);
    EnableItems(shown);
    FillAll();
    ItemsChanged();
}

void frmMenu::ItemsChanged() { ctlSampleMenu_->Follow(); }

void frmMenu::MenuChosen(int index) {
    if (filling_) return;
    RunGuarded([&] {
        edit_.ChooseMenu(index);
        ShowSelected();
    });
}

void frmMenu::NewMenu() {
    RunGuarded([&] {
        if (!edit_.New(ToCp1252(txtNewName_->text()))) return;
        txtNewName_->setText(QString::fromLatin1(MenuEditing::kNamePrefix));
        ShowSelected();
    });
}

void frmMenu::CopyMenu() {
    RunGuarded([&] {
        if (edit_.CopyToNew(ToCp1252(txtNewName_->text()))) ShowSelected();
    });
}

void frmMenu::RenameMenu() {
    RunGuarded([&] {
        if (edit_.Rename(ToCp1252(txtNewName_->text()))) ShowSelected();
    });
}

void frmMenu::DeleteMenu() {
    RunGuarded([&] {
        edit_.Delete();
        ShowSelected();
    });
}

}  // namespace tolva
