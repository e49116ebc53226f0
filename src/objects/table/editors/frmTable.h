#pragma once
// frmTable, the Table Editor: the cell's fields in "Table Properties", the
// preview of the grid in "Table" with its scroll bars, and the cell menu of
// rows, columns and the cell's object. It works on a TableEditing: fields
// and sizes on its copy (Done writes it back), rows, columns and objects on
// the table at once.
#include <QDialog>

#include "objects/table/TableEditing.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QScrollBar;

namespace tolva {

class DialogModel;
class TableGridView;

class frmTable : public QDialog {
    Q_OBJECT
public:
    frmTable(TableEditing& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a TableEditing, true for
    // Done. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

    QMenu* CellMenu() const { return mnuCellMenu_; }
    // The steps of Apply, when the Table Object Editor closes.
    void DoneEditingObject() { ApplyBoxes(); }

private:
    QComboBox* MakeList(const char* name, const std::vector<std::string>& words);
    QLineEdit* MakeBox(const char* name);
    void MakeCellMenu();
    // Everything shown from the copy: labels, boxes of the selected cell,
    // preview and scroll bars.
    void ShowAll();
    void ShowScrollBars();
    void FillBoxes();
    TableEditing::Fields Boxes() const;
    void PutBoxes(const TableEditing::Fields& boxes);
    void ApplyBoxes();
    void CellPressed(int row, int column, bool menu);
    void EditObject();

    TableEditing& edit_;
    QGroupBox* Frame1_ = nullptr;
    QGroupBox* Frame2_ = nullptr;
    QLineEdit* txtNumRows_ = nullptr;
    QLineEdit* txtNumCols_ = nullptr;
    QLineEdit* txtRowHeight_ = nullptr;
    QLineEdit* txtColumnWidth_ = nullptr;
    QLabel* lblTableSize_ = nullptr;
    QLabel* lblSelected_ = nullptr;
    QComboBox* cmbDataType_ = nullptr;
    QComboBox* cmbFont_ = nullptr;
    QLineEdit* txtValue_ = nullptr;
    QComboBox* cmbAlignment_ = nullptr;
    QComboBox* cmbFontColor_ = nullptr;
    QComboBox* cmbBackColor_ = nullptr;
    QComboBox* cmbHighlight_ = nullptr;
    QComboBox* cmbHasBitmap_ = nullptr;
    QLineEdit* txtText_ = nullptr;
    QPushButton* cmdApply_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
    TableGridView* grid_ = nullptr;
    QScrollBar* sclRows_ = nullptr;
    QScrollBar* sclCols_ = nullptr;
    QMenu* mnuCellMenu_ = nullptr;
    bool filling_ = false;
};

}  // namespace tolva
