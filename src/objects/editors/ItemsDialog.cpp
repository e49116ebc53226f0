#include "objects/editors/ItemsDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

ItemsDialog::ItemsDialog(ItemsEditing& edit, const char* name, const char* title, QWidget* parent)
    : QDialog(parent), edit_(edit) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(QString::fromLatin1(title));
    setModal(true);

    txtNewItem_ = new QLineEdit(this);
    txtNewItem_->setObjectName("txtNewItem");
    cmdAdd_ = MakeButton("cmdAdd", "Add");
    lbItems_ = new QListWidget(this);
    lbItems_->setObjectName("lbItems");
    cmdRemove_ = MakeButton("cmdRemove", "Remove");
    cmdRemoveAll_ = MakeButton("cmdRemoveAll", "Remove All");
    cmdMoveUp_ = MakeButton("cmdMoveUp", "Move Up");
    cmdMoveDown_ = MakeButton("cmdMoveDown", "Move Down");
    cmdSort_ = MakeButton("cmdSort", "Sort Alphabetically");
    cmbTopItemNum_ = new QComboBox(this);
    cmbTopItemNum_->setObjectName("cmbTopItemNum");
    cmdOK_ = MakeButton("cmdOK", "OK");
    cmdCancel_ = MakeButton("cmdCancel", "Cancel");

    connect(cmdAdd_, &QPushButton::clicked, this, &ItemsDialog::Add);
    connect(txtNewItem_, &QLineEdit::returnPressed, this, &ItemsDialog::Add);
    connect(cmdRemove_, &QPushButton::clicked, this, &ItemsDialog::Remove);
    connect(cmdRemoveAll_, &QPushButton::clicked, this, &ItemsDialog::RemoveAll);
    connect(cmdMoveUp_, &QPushButton::clicked, this, [this] { Move(true); });
    connect(cmdMoveDown_, &QPushButton::clicked, this, [this] { Move(false); });
    connect(cmdSort_, &QPushButton::clicked, this, &ItemsDialog::Sort);
    connect(lbItems_, &QListWidget::itemChanged, this, &ItemsDialog::ItemTicked);
    connect(cmbTopItemNum_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!filling_ && index >= 0) edit_.ChooseTopItem(index);
    });
    connect(cmdOK_, &QPushButton::clicked, this, [this] { RunGuarded([this] { Ok(); }); });
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

QPushButton* ItemsDialog::MakeButton(const char* name, const char* text) {
    auto* button = new QPushButton(QString::fromLatin1(text), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

QLabel* ItemsDialog::MakeLabel(const char* name, const char* text, QWidget* buddy) {
    auto* label = new QLabel(QString::fromLatin1(text), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setBuddy(buddy);
    return label;
}

void ItemsDialog::LayOutShared(QGridLayout* grid, int firstRow, int topRow, int buttonRow) {
    const int r = firstRow;
    grid->addWidget(MakeLabel("lblNewItem", "Item Name", txtNewItem_), r, 0);
    grid->addWidget(txtNewItem_, r + 1, 0);
    grid->addWidget(cmdAdd_, r + 1, 1);
    grid->addWidget(MakeLabel("lblItems", "List", lbItems_), r + 2, 0);
    grid->addWidget(lbItems_, r + 3, 0, 6, 1);
    grid->addWidget(cmdRemove_, r + 3, 1);
    grid->addWidget(cmdRemoveAll_, r + 4, 1);
    grid->addWidget(cmdMoveUp_, r + 5, 1);
    grid->addWidget(cmdMoveDown_, r + 6, 1);
    grid->addWidget(cmdSort_, r + 7, 1);
    if (topRow >= 0) {
        grid->addWidget(MakeLabel("lblTopItemNum", "Top Item", cmbTopItemNum_), topRow, 0);
        grid->addWidget(cmbTopItemNum_, topRow + 1, 0);
    } else {
        cmbTopItemNum_->hide();
    }
    grid->addWidget(cmdOK_, buttonRow, 0);
    grid->addWidget(cmdCancel_, buttonRow, 1);
}

void ItemsDialog::EnableItems(bool on) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             txtNewItem_, lbItems_, cmdAdd_, cmdRemove_, cmdRemoveAll_, cmdSort_, cmdMoveUp_, cmdMoveDown_})
        control->setEnabled(on);
}

void ItemsDialog::FillAll() {
    FillItems(-1);
    FillTopItems();
}

void ItemsDialog::FillItems(int highlight) {
    filling_ = true;
    lbItems_->clear();
    const auto& items = edit_.Items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        auto* item = new QListWidgetItem(FromCp1252(items[i]), lbItems_);
        if (marks_) {
            item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            item->setCheckState(static_cast<int>(i) == edit_.Selected() ? Qt::Checked : Qt::Unchecked);
        }
    }
    if (highlight >= 0 && highlight < lbItems_->count()) lbItems_->setCurrentRow(highlight);
    filling_ = false;
}

void ItemsDialog::FillTopItems() {
    filling_ = true;
    cmbTopItemNum_->clear();
    for (const std::string& choice : TopItemChoices()) cmbTopItemNum_->addItem(FromCp1252(choice));
    cmbTopItemNum_->setCurrentIndex(edit_.TopItem());
    filling_ = false;
}

void ItemsDialog::ItemTicked(QListWidgetItem* item) {
    if (filling_ || !item) return;
    RunGuarded([&] {
        const int row = lbItems_->row(item);
        edit_.Check(row, item->checkState() == Qt::Checked);
        FillItems(row);
    });
}

void ItemsDialog::Add() {
    RunGuarded([&] {
        if (!AddItem(ToCp1252(txtNewItem_->text()))) return;
        FillItems(static_cast<int>(edit_.Items().size()) - 1);
        FillTopItems();
        txtNewItem_->clear();
        ItemsChanged();
    });
}

void ItemsDialog::Remove() {
    RunGuarded([&] {
        const int row = lbItems_->currentRow();
        if (row < 0) return;
        edit_.Remove(row);
        FillItems(std::min(row, static_cast<int>(edit_.Items().size()) - 1));
        FillTopItems();
        ItemsChanged();
    });
}

void ItemsDialog::RemoveAll() {
    RunGuarded([&] {
        edit_.RemoveAll();
        FillAll();
        ItemsChanged();
    });
}

void ItemsDialog::Move(bool up) {
    RunGuarded([&] {
        const int row = lbItems_->currentRow();
        if (row < 0) return;
        FillItems(up ? edit_.MoveUp(row) : edit_.MoveDown(row));
        ItemsChanged();
    });
}

void ItemsDialog::Sort() {
    RunGuarded([&] {
        edit_.Sort();
        FillAll();
        ItemsChanged();
    });
}

}  // namespace tolva
