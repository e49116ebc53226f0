#include "objects/list/editors/frmList.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

frmList::frmList(ListEditing& edit, QWidget* parent)
    : ItemsDialog(edit, "frmList", "List Editor", parent), edit_(edit) {
    txtMaxNum_ = new QLineEdit(QString::number(ListEditing::kFirstItemLimit), this);
    txtMaxNum_->setObjectName("txtMaxNum");
    lbLists_ = new QListWidget(this);
    lbLists_->setObjectName("lbLists");

    auto* grid = new QGridLayout(this);
    LayOutShared(grid, 0, 9, 15);
    grid->addWidget(MakeLabel("lblMaxNum", "Max Num on Display", txtMaxNum_), 11, 0);
    grid->addWidget(txtMaxNum_, 12, 0);
    grid->addWidget(MakeLabel("lblLists", "Related Lists", lbLists_), 13, 0);
    grid->addWidget(lbLists_, 14, 0);

    connect(lbLists_, &QListWidget::itemChanged, this, &frmList::ListTicked);
    FillAll();
    FillLists();
}

bool frmList::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<ListEditing*>(&model);
    if (!edit) return false;
    frmList dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

void frmList::FillLists() {
    filling_ = true;
    lbLists_->clear();
    const auto& names = edit_.RelatedNames();
    const auto& flags = edit_.RelatedFlags();
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto* item = new QListWidgetItem(FromCp1252(names[i]), lbLists_);
        item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setCheckState(flags[i] ? Qt::Checked : Qt::Unchecked);
    }
    filling_ = false;
}

void frmList::ListTicked(QListWidgetItem* item) {
    if (filling_ || !item) return;
    RunGuarded([&] { edit_.LinkList(lbLists_->row(item), item->checkState() == Qt::Checked); });
}

// The number on display must pass before the dialog closes; a refused one
// puts "10" back in its box.
void frmList::Ok() {
    if (edit_.Accept(ToCp1252(txtMaxNum_->text()))) {
        accept();
        return;
    }
    txtMaxNum_->setText("10");
}

}  // namespace tolva
