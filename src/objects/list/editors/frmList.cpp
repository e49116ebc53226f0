#include "objects/list/editors/frmList.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

namespace {

QPushButton* Button(QWidget* parent, const char* name, const char* text) {
    auto* button = new QPushButton(QString::fromLatin1(text), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

QLabel* Label(QWidget* parent, const char* name, const char* text, QWidget* buddy) {
    auto* label = new QLabel(QString::fromLatin1(text), parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setBuddy(buddy);
    return label;
}

}  // namespace

frmList::frmList(ListEditing& edit, QWidget* parent) : QDialog(parent), edit_(edit) {
    setObjectName("frmList");
    setWindowTitle("List Editor");
    setModal(true);

    txtNewItem_ = new QLineEdit(this);
    txtNewItem_->setObjectName("txtNewItem");
    auto* cmdAdd = Button(this, "cmdAdd", "Add");
    lbItems_ = new QListWidget(this);
    lbItems_->setObjectName("lbItems");
    auto* cmdRemove = Button(this, "cmdRemove", "Remove");
    auto* cmdRemoveAll = Button(this, "cmdRemoveAll", "Remove All");
    auto* cmdMoveUp = Button(this, "cmdMoveUp", "Move Up");
    auto* cmdMoveDown = Button(this, "cmdMoveDown", "Move Down");
    auto* cmdSort = Button(this, "cmdSort", "Sort Alphabetically");
    cmbTopItemNum_ = new QComboBox(this);
    cmbTopItemNum_->setObjectName("cmbTopItemNum");
    txtMaxNum_ = new QLineEdit(QString::number(ListEditing::kFirstItemLimit), this);
    txtMaxNum_->setObjectName("txtMaxNum");
    lbLists_ = new QListWidget(this);
    lbLists_->setObjectName("lbLists");
    auto* cmdOK = Button(this, "cmdOK", "OK");
    auto* cmdCancel = Button(this, "cmdCancel", "Cancel");

    auto* grid = new QGridLayout(this);
    grid->addWidget(Label(this, "lblNewItem", "Item Name", txtNewItem_), 0, 0);
    grid->addWidget(txtNewItem_, 1, 0);
    grid->addWidget(cmdAdd, 1, 1);
    grid->addWidget(Label(this, "lblItems", "List", lbItems_), 2, 0);
    grid->addWidget(lbItems_, 3, 0, 6, 1);
    grid->addWidget(cmdRemove, 3, 1);
    grid->addWidget(cmdRemoveAll, 4, 1);
    grid->addWidget(cmdMoveUp, 5, 1);
    grid->addWidget(cmdMoveDown, 6, 1);
    grid->addWidget(cmdSort, 7, 1);
    grid->addWidget(Label(this, "lblTopItemNum", "Top Item", cmbTopItemNum_), 9, 0);
    grid->addWidget(cmbTopItemNum_, 10, 0);
    grid->addWidget(Label(this, "lblMaxNum", "Max Num on Display", txtMaxNum_), 11, 0);
    grid->addWidget(txtMaxNum_, 12, 0);
    grid->addWidget(Label(this, "lblLists", "Related Lists", lbLists_), 13, 0);
    grid->addWidget(lbLists_, 14, 0);
    grid->addWidget(cmdOK, 15, 0);
    grid->addWidget(cmdCancel, 15, 1);

    connect(cmdAdd, &QPushButton::clicked, this, &frmList::Add);
    connect(txtNewItem_, &QLineEdit::returnPressed, this, &frmList::Add);
    connect(cmdRemove, &QPushButton::clicked, this, &frmList::Remove);
    connect(cmdRemoveAll, &QPushButton::clicked, this, &frmList::RemoveAll);
    connect(cmdMoveUp, &QPushButton::clicked, this, [this] { Move(true); });
    connect(cmdMoveDown, &QPushButton::clicked, this, [this] { Move(false); });
    connect(cmdSort, &QPushButton::clicked, this, &frmList::Sort);
    connect(lbItems_, &QListWidget::itemChanged, this, &frmList::ItemTicked);
    connect(lbLists_, &QListWidget::itemChanged, this, &frmList::ListTicked);
    connect(cmbTopItemNum_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!filling_ && index >= 0) edit_.ChooseTopItem(index);
    });
    connect(cmdOK, &QPushButton::clicked, this, &frmList::Ok);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    FillItems(-1);
    FillTopItems();
    FillLists();
}

bool frmList::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<ListEditing*>(&model);
    if (!edit) return false;
    frmList dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

void frmList::FillItems(int highlight) {
    filling_ = true;
    lbItems_->clear();
    const auto& items = edit_.Items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        auto* item = new QListWidgetItem(FromCp1252(items[i]), lbItems_);
        item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setCheckState(static_cast<int>(i) == edit_.Selected() ? Qt::Checked : Qt::Unchecked);
    }
    if (highlight >= 0 && highlight < lbItems_->count()) lbItems_->setCurrentRow(highlight);
    filling_ = false;
}

void frmList::FillTopItems() {
    filling_ = true;
    cmbTopItemNum_->clear();
    for (const std::string& choice : edit_.TopItemChoices()) cmbTopItemNum_->addItem(FromCp1252(choice));
    cmbTopItemNum_->setCurrentIndex(edit_.TopItem());
    filling_ = false;
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

void frmList::ItemTicked(QListWidgetItem* item) {
    if (filling_ || !item) return;
    RunGuarded([&] {
        const int row = lbItems_->row(item);
        edit_.Check(row, item->checkState() == Qt::Checked);
        FillItems(row);
    });
}

void frmList::ListTicked(QListWidgetItem* item) {
    if (filling_ || !item) return;
    RunGuarded([&] { edit_.LinkList(lbLists_->row(item), item->checkState() == Qt::Checked); });
}

void frmList::Add() {
    RunGuarded([&] {
        if (!edit_.Add(ToCp1252(txtNewItem_->text()))) return;
        FillItems(static_cast<int>(edit_.Items().size()) - 1);
        FillTopItems();
        txtNewItem_->clear();
    });
}

void frmList::Remove() {
    RunGuarded([&] {
        const int row = lbItems_->currentRow();
        if (row < 0) return;
        edit_.Remove(row);
        FillItems(std::min(row, static_cast<int>(edit_.Items().size()) - 1));
        FillTopItems();
    });
}

void frmList::RemoveAll() {
    RunGuarded([&] {
        edit_.RemoveAll();
        FillItems(-1);
        FillTopItems();
    });
}

void frmList::Move(bool up) {
    RunGuarded([&] {
        const int row = lbItems_->currentRow();
        if (row < 0) return;
        FillItems(up ? edit_.MoveUp(row) : edit_.MoveDown(row));
    });
}

void frmList::Sort() {
    RunGuarded([&] {
        edit_.Sort();
        FillItems(-1);
        FillTopItems();
    });
}

void frmList::Ok() {
    RunGuarded([&] {
        if (edit_.Accept(ToCp1252(txtMaxNum_->text()))) {
            accept();
            return;
        }
        txtMaxNum_->setText("10");
    });
}

}  // namespace tolva
