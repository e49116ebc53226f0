#include "objects/table/editors/frmTable.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

#include "document/Host.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/table/editors/TableGridView.h"
#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

namespace {

const std::vector<std::string> kColors = {"COLOR_BLACK", "COLOR_GREY2", "COLOR_GREY1", "COLOR_WHITE"};
const std::vector<std::string> kFlags = {"TRUE", "FALSE"};

}  // namespace

frmTable::frmTable(TableEditing& edit, QWidget* parent) : QDialog(parent), edit_(edit) {
    setObjectName("frmTable");
    setWindowTitle("Table Editor");
    setModal(true);

    Frame1_ = new QGroupBox("Table Properties", this);
    Frame1_->setObjectName("Frame1");
    txtNumRows_ = MakeBox("txtNumRows");
    txtNumCols_ = MakeBox("txtNumCols");
    txtRowHeight_ = MakeBox("txtRowHeight");
    txtColumnWidth_ = MakeBox("txtColumnWidth");
    lblTableSize_ = new QLabel(Frame1_);
    lblTableSize_->setObjectName("lblTableSize");
    lblSelected_ = new QLabel(Frame1_);
    lblSelected_->setObjectName("lblSelected");
    cmbDataType_ = MakeList("cmbDataType", {"TABLE_TEXT", "TABLE_VALUE", "TABLE_UI_OBJECT"});
    cmbFont_ = MakeList("cmbFont", {"MEDIUM_FONT", "SMALL_FONT"});
    txtValue_ = MakeBox("txtValue");
    txtValue_->setText("0");
    cmbAlignment_ = MakeList("cmbAlignment", {"CENTRE", "LEFT", "RIGHT"});
    cmbFontColor_ = MakeList("cmbFontColor", kColors);
    cmbBackColor_ = MakeList("cmbBackColor", kColors);
    cmbHighlight_ = MakeList("cmbHighlight", kFlags);
    cmbHasBitmap_ = MakeList("cmbHasBitmap", kFlags);
    txtText_ = MakeBox("txtText");

    auto* fields = new QGridLayout(Frame1_);
    const std::vector<std::tuple<const char*, const char*, QWidget*>> rows = {
        {"lblNumRows", "Num Rows", txtNumRows_},       {"lblNumCols", "Num Cols", txtNumCols_},
        {"lblRowHeight", "Row Height", txtRowHeight_}, {"lblColumnWidth", "Column Width", txtColumnWidth_},
        {"lblDataType", "Data Type", cmbDataType_},    {"lblFont", "Font", cmbFont_},
        {"lblValue", "Value", txtValue_},              {"lblAlignment", "Alignment", cmbAlignment_},
        {"lblFontColor", "Font Color", cmbFontColor_}, {"lblBackColor", "Back Color", cmbBackColor_},
        {"lblHighlight", "Highlight", cmbHighlight_},  {"lblHasBitmap", "Has Bitmap", cmbHasBitmap_},
        {"lblText", "Text", txtText_}};
    int at = 0;
    for (const auto& [name, text, control] : rows) {
        auto* label = new QLabel(QString::fromLatin1(text), Frame1_);
        label->setObjectName(QString::fromLatin1(name));
        label->setBuddy(control);
        fields->addWidget(label, at, 0);
        fields->addWidget(control, at, 1);
        ++at;
        if (control == txtColumnWidth_) {
            fields->addWidget(lblTableSize_, at++, 0, 1, 2);
            fields->addWidget(lblSelected_, at++, 0, 1, 2);
        }
    }

    Frame2_ = new QGroupBox("Table", this);
    Frame2_->setObjectName("Frame2");
    grid_ = new TableGridView(edit, Frame2_);
    sclRows_ = new QScrollBar(Qt::Vertical, Frame2_);
    sclRows_->setObjectName("sclRows");
    sclCols_ = new QScrollBar(Qt::Horizontal, Frame2_);
    sclCols_->setObjectName("sclCols");
    auto* preview = new QGridLayout(Frame2_);
    preview->addWidget(grid_, 0, 0);
    preview->addWidget(sclRows_, 0, 1);
    preview->addWidget(sclCols_, 1, 0);

    auto makeButton = [this](const char* name, const char* text) {
        auto* button = new QPushButton(QString::fromLatin1(text), this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        return button;
    };
    cmdApply_ = makeButton("cmdApply", "Apply");
    cmdOK_ = makeButton("cmdOK", "Done");
    cmdCancel_ = makeButton("cmdCancel", "Cancel");
    auto* layout = new QGridLayout(this);
    layout->addWidget(Frame1_, 0, 0);
    layout->addWidget(Frame2_, 0, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdApply_);
    buttons->addWidget(cmdOK_);
    buttons->addWidget(cmdCancel_);
    layout->addLayout(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    resize(900, 560);

    MakeCellMenu();

    // A word picked goes into the copy at once; a data type also applies.
    const std::vector<std::pair<QComboBox*, TableEditing::Field>> lists = {
        {cmbFont_, TableEditing::Field::Font},           {cmbAlignment_, TableEditing::Field::Alignment},
        {cmbFontColor_, TableEditing::Field::FontColor}, {cmbBackColor_, TableEditing::Field::BackColor},
        {cmbHighlight_, TableEditing::Field::Highlight}, {cmbHasBitmap_, TableEditing::Field::HasBitmap}};
    for (const auto& [combo, field] : lists)
        connect(combo, &QComboBox::activated, this, [this, combo = combo, field = field](int) {
            if (filling_) return;
            RunGuarded([&] {
                edit_.Choose(field, ToCp1252(combo->currentText()));
                grid_->update();
            });
        });
    connect(cmbDataType_, &QComboBox::activated, this, [this](int) {
        if (filling_) return;
        RunGuarded([&] {
            TableEditing::Fields boxes = Boxes();
            edit_.ChooseDataType(ToCp1252(cmbDataType_->currentText()), boxes);
            PutBoxes(boxes);
            ShowAll();
        });
    });
    connect(cmdApply_, &QPushButton::clicked, this, [this] { RunGuarded([this] { ApplyBoxes(); }); });
    connect(cmdOK_, &QPushButton::clicked, this, [this] {
        RunGuarded([this] {
            edit_.Done();
            accept();
        });
    });
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
    connect(grid_, &TableGridView::CellPressed, this, &frmTable::CellPressed);
    connect(grid_, &TableGridView::SizeDragged, this, [this] { ShowAll(); });
    connect(grid_, &TableGridView::ViewResized, this, [this] { ShowScrollBars(); });
    connect(sclRows_, &QScrollBar::valueChanged, this, [this](int value) {
        if (filling_) return;
        grid_->ScrollTo(value, grid_->LeftColumn());
        ShowAll();
    });
    connect(sclCols_, &QScrollBar::valueChanged, this, [this](int value) {
        if (filling_) return;
        grid_->ScrollTo(grid_->TopRow(), value);
        ShowAll();
    });
    ShowAll();
}

bool frmTable::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<TableEditing*>(&model);
    if (!edit) return false;
    frmTable dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

QComboBox* frmTable::MakeList(const char* name, const std::vector<std::string>& words) {
    auto* combo = new QComboBox(Frame1_);
    combo->setObjectName(QString::fromLatin1(name));
    for (const std::string& word : words) combo->addItem(QString::fromLatin1(word.c_str()));
    return combo;
}

QLineEdit* frmTable::MakeBox(const char* name) {
    auto* box = new QLineEdit(Frame1_);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

void frmTable::MakeCellMenu() {
    mnuCellMenu_ = new QMenu("Cell Menu", this);
    mnuCellMenu_->setObjectName("mnuCellMenu");
    auto action = [this](QMenu* menu, const char* name, const char* text, auto slot) {
        QAction* made = menu->addAction(QString::fromLatin1(text));
        made->setObjectName(QString::fromLatin1(name));
        connect(made, &QAction::triggered, this, [this, slot] { RunGuarded([&] { slot(); }); });
        return made;
    };
    auto submenu = [this](const char* name, const char* text) {
        QMenu* menu = mnuCellMenu_->addMenu(QString::fromLatin1(text));
        menu->setObjectName(QString::fromLatin1(name));
        menu->menuAction()->setObjectName(QString::fromLatin1(name));
        return menu;
    };
    QMenu* rows = submenu("mnuInsertRow", "Insert Row");
    action(rows, "mnuInsertRowBefore", "Before", [this] {
        edit_.InsertEditorRow(edit_.SelectedRow());
        ShowAll();
    });
    action(rows, "mnuInsertRowAfter", "After", [this] {
        edit_.InsertEditorRow(edit_.SelectedRow() + 1);
        ShowAll();
    });
    QMenu* columns = submenu("mnuInsertColumn", "Insert Column");
    action(columns, "mnuInsertColBefore", "Before", [this] {
        edit_.InsertEditorColumn(edit_.SelectedColumn());
        ShowAll();
    });
    action(columns, "mnuInsertColAfter", "After", [this] {
        edit_.InsertEditorColumn(edit_.SelectedColumn() + 1);
        ShowAll();
    });
    action(mnuCellMenu_, "mnuDeleteRow", "Delete Row", [this] {
        edit_.DeleteEditorRow();
        ShowAll();
    });
    action(mnuCellMenu_, "mnuDeleteColumn", "Delete Column", [this] {
        edit_.DeleteEditorColumn();
        ShowAll();
    });
    action(mnuCellMenu_, "mnuInsertObject", "Edit KOMA Object...", [this] { EditObject(); });
    action(mnuCellMenu_, "mnuRemoveObject", "Remove KOMA Object", [this] {
        edit_.RemoveObject();
        ShowAll();
    });
}

void frmTable::ShowAll() {
    filling_ = true;
    lblTableSize_->setText(QString::fromLatin1(edit_.TableSizeText().c_str()));
    lblSelected_->setText(QString::fromLatin1(edit_.SelectedText().c_str()));
    txtNumRows_->setText(QString::number(edit_.Rows()));
    txtNumCols_->setText(QString::number(edit_.Columns()));
    filling_ = false;
    ShowScrollBars();
    FillBoxes();
    grid_->update();
}

void frmTable::ShowScrollBars() {
    filling_ = true;
    // The scroll bars show only while some rows or columns lie beyond the
    // frame.
    const int rowsShown = grid_->VisibleRows();
    const int columnsShown = grid_->VisibleColumns();
    sclRows_->setVisible(rowsShown != edit_.Rows());
    sclCols_->setVisible(columnsShown != edit_.Columns());
    sclRows_->setRange(1, std::max(1, edit_.Rows() - rowsShown + 1));
    sclCols_->setRange(1, std::max(1, edit_.Columns() - columnsShown + 1));
    sclRows_->setValue(grid_->TopRow());
    sclCols_->setValue(grid_->LeftColumn());
    filling_ = false;
}

void frmTable::FillBoxes() { PutBoxes(edit_.SelectedFields()); }

void frmTable::PutBoxes(const TableEditing::Fields& boxes) {
    filling_ = true;
    txtRowHeight_->setText(QString::fromLatin1(boxes.rowHeight.c_str()));
    txtColumnWidth_->setText(QString::fromLatin1(boxes.columnWidth.c_str()));
    const std::vector<std::pair<QComboBox*, const std::string*>> lists = {
        {cmbDataType_, &boxes.dataType},   {cmbFont_, &boxes.font},         {cmbAlignment_, &boxes.alignment},
        {cmbFontColor_, &boxes.fontColor}, {cmbBackColor_, &boxes.backColor}, {cmbHighlight_, &boxes.highlight},
        {cmbHasBitmap_, &boxes.hasBitmap}};
    for (const auto& [combo, word] : lists) combo->setCurrentIndex(combo->findText(FromCp1252(*word)));
    txtValue_->setText(FromCp1252(boxes.value));
    txtText_->setText(FromCp1252(boxes.text));
    filling_ = false;
}

TableEditing::Fields frmTable::Boxes() const {
    TableEditing::Fields boxes;
    boxes.rowHeight = ToCp1252(txtRowHeight_->text());
    boxes.columnWidth = ToCp1252(txtColumnWidth_->text());
    boxes.dataType = ToCp1252(cmbDataType_->currentText());
    boxes.font = ToCp1252(cmbFont_->currentText());
    boxes.value = ToCp1252(txtValue_->text());
    boxes.alignment = ToCp1252(cmbAlignment_->currentText());
    boxes.fontColor = ToCp1252(cmbFontColor_->currentText());
    boxes.backColor = ToCp1252(cmbBackColor_->currentText());
    boxes.highlight = ToCp1252(cmbHighlight_->currentText());
    boxes.hasBitmap = ToCp1252(cmbHasBitmap_->currentText());
    boxes.text = ToCp1252(txtText_->text());
    return boxes;
}

void frmTable::ApplyBoxes() {
    TableEditing::Fields boxes = Boxes();
    edit_.Apply(boxes);
    // The sizes as corrected; the rest of the boxes stay as typed.
    txtRowHeight_->setText(QString::fromLatin1(boxes.rowHeight.c_str()));
    txtColumnWidth_->setText(QString::fromLatin1(boxes.columnWidth.c_str()));
    filling_ = true;
    lblTableSize_->setText(QString::fromLatin1(edit_.TableSizeText().c_str()));
    filling_ = false;
    grid_->update();
}

void frmTable::CellPressed(int row, int column, bool menu) {
    RunGuarded([&] {
        edit_.SelectTableCell(row, column);
        ShowAll();
    });
    if (menu) mnuCellMenu_->popup(QCursor::pos());
}

void frmTable::EditObject() {
    edit_.PrepareObjectEditing();
    filling_ = true;
    cmbDataType_->setCurrentIndex(cmbDataType_->findText("TABLE_UI_OBJECT"));
    filling_ = false;
    // The Table Object Editor works on the cell while this dialog waits;
    // however it closes, Apply's steps follow.
    setEnabled(false);
    edit_.EditCellObject();
    setEnabled(true);
    DoneEditingObject();
    grid_->update();
}

}  // namespace tolva
