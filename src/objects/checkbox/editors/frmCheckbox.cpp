#include "objects/checkbox/editors/frmCheckbox.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

frmCheckbox::frmCheckbox(CheckboxRelations& relations, QWidget* parent)
    : QDialog(parent), relations_(relations) {
    setObjectName("frmCheckbox");
    setWindowTitle("Checkbox Editor");
    setModal(true);

    auto* lblCheckbox = new QLabel("Checkbox", this);
    lblCheckbox->setObjectName("lblCheckbox");
    cmbCheckbox_ = new QComboBox(this);
    cmbCheckbox_->setObjectName("cmbCheckbox");
    lblCheckbox->setBuddy(cmbCheckbox_);

    auto* lblRelated = new QLabel("Related Checkboxes", this);
    lblRelated->setObjectName("lblRelatedCheckboxes");
    lbCheckboxes_ = new QListWidget(this);
    lbCheckboxes_->setObjectName("lbCheckboxes");
    lblRelated->setBuddy(lbCheckboxes_);

    cmdOK_ = new QPushButton("OK", this);
    cmdOK_->setObjectName("cmdOK");
    cmdOK_->setDefault(true);
    cmdCancel_ = new QPushButton("Cancel", this);
    cmdCancel_->setObjectName("cmdCancel");

    auto* grid = new QGridLayout(this);
    grid->addWidget(lblCheckbox, 0, 0, 1, 2);
    grid->addWidget(cmbCheckbox_, 1, 0, 1, 2);
    grid->addWidget(lblRelated, 2, 0, 1, 2);
    grid->addWidget(lbCheckboxes_, 3, 0, 1, 2);
    grid->addWidget(cmdOK_, 4, 0);
    grid->addWidget(cmdCancel_, 4, 1);

    connect(cmbCheckbox_, &QComboBox::currentIndexChanged, this, &frmCheckbox::CheckboxChosen);
    connect(lbCheckboxes_, &QListWidget::itemChanged, this, &frmCheckbox::RelatedTicked);
    connect(cmdOK_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);

    FillCheckboxes();
}

void frmCheckbox::SetRelatedCheckboxes(const CheckboxRelations::Table& table) {
    relations_.SetRelatedCheckboxes(table);
    FillCheckboxes();
}

bool frmCheckbox::Run(DialogModel& model, QWidget* parent) {
    auto* relations = dynamic_cast<CheckboxRelations*>(&model);
    if (!relations) return false;
    frmCheckbox dialog(*relations, parent);
    return dialog.exec() == QDialog::Accepted;
}

void frmCheckbox::FillCheckboxes() {
    {
        const QSignalBlocker quiet(cmbCheckbox_);
        cmbCheckbox_->clear();
        for (const std::string& name : relations_.CheckboxNames())
            cmbCheckbox_->addItem(FromCp1252(name));
        cmbCheckbox_->setCurrentIndex(relations_.CurrentRow());
    }
    FillRelated();
}

void frmCheckbox::FillRelated() {
    filling_ = true;
    lbCheckboxes_->clear();
    const std::vector<std::string> names = relations_.OtherNames();
    const std::vector<bool> ticks = relations_.OtherTicks();
    for (size_t i = 0; i < names.size(); ++i) {
        auto* item = new QListWidgetItem(FromCp1252(names[i]), lbCheckboxes_);
        item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setCheckState(i < ticks.size() && ticks[i] ? Qt::Checked : Qt::Unchecked);
    }
    filling_ = false;
}

void frmCheckbox::CheckboxChosen(int index) {
    RunGuarded([&] {
        relations_.ChooseCheckbox(index);
        FillRelated();
    });
}

void frmCheckbox::RelatedTicked(QListWidgetItem* item) {
    if (filling_ || !item) return;
    RunGuarded([&] { relations_.Tick(lbCheckboxes_->row(item), item->checkState() == Qt::Checked); });
}

}  // namespace tolva
