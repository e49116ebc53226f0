#pragma once
// frmList, the List Editor: the items with the check mark of the selection,
// the buttons that add, remove, move and sort them, the top item, the
// number on display and the form's other lists to link. It works on a
// ListEditing, whose rules it follows; OK hands it back accepted.
#include <QDialog>

#include "objects/list/ListEditing.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace tolva {

class DialogModel;

class frmList : public QDialog {
    Q_OBJECT
public:
    frmList(ListEditing& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a ListEditing, true for
    // OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

private:
    void FillItems(int highlight);
    void FillTopItems();
    void FillLists();
    void ItemTicked(QListWidgetItem* item);
    void ListTicked(QListWidgetItem* item);
    void Add();
    void Remove();
    void RemoveAll();
    void Move(bool up);
    void Sort();
    void Ok();

    ListEditing& edit_;
    QLineEdit* txtNewItem_ = nullptr;
    QListWidget* lbItems_ = nullptr;
    QComboBox* cmbTopItemNum_ = nullptr;
    QLineEdit* txtMaxNum_ = nullptr;
    QListWidget* lbLists_ = nullptr;
    bool filling_ = false;
};

}  // namespace tolva
