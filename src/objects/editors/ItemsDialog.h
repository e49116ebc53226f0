#pragma once
// ItemsDialog: the part of the dialogs that edit a list of items (the List
// Editor, the Popup Trigger Editor) that both show alike: the new item's box
// with Add, the items with their one check mark, Remove, Remove All, Move
// Up, Move Down, Sort Alphabetically, the top item, OK and Cancel. Each
// dialog names itself, lays these out with its own controls, and says how an
// item is added, which top items are offered, and what OK does.
#include <QDialog>
#include <string>
#include <vector>

#include "objects/ItemsEditing.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace tolva {

class ItemsDialog : public QDialog {
    Q_OBJECT
protected:
    ItemsDialog(ItemsEditing& edit, const char* name, const char* title, QWidget* parent);

    // The kind's rules.
    virtual bool AddItem(const std::string& text) = 0;
    virtual std::vector<std::string> TopItemChoices() const = 0;
    virtual void Ok() { accept(); }

    // Lays the shared controls out in the grid from row `firstRow`, and the
    // top item at `topRow` (none when it is negative); OK and Cancel go at
    // `buttonRow`.
    void LayOutShared(QGridLayout* grid, int firstRow, int topRow, int buttonRow);
    // Fills the items and the top item's choices from the editing.
    void FillAll();
    // Items without a check mark, for an editor with no selected item.
    void WithoutMarks() { marks_ = false; }
    // The item controls taken in or out of use together.
    void EnableItems(bool on);
    // Told after every change of the items made here.
    virtual void ItemsChanged() {}

    QPushButton* MakeButton(const char* name, const char* text);
    QLabel* MakeLabel(const char* name, const char* text, QWidget* buddy);

    bool filling_ = false;

private:
    bool marks_ = true;
    void FillItems(int highlight);
    void FillTopItems();
    void ItemTicked(QListWidgetItem* item);
    void Add();
    void Remove();
    void RemoveAll();
    void Move(bool up);
    void Sort();

    ItemsEditing& edit_;
    QLineEdit* txtNewItem_ = nullptr;
    QPushButton* cmdAdd_ = nullptr;
    QListWidget* lbItems_ = nullptr;
    QPushButton* cmdRemove_ = nullptr;
    QPushButton* cmdRemoveAll_ = nullptr;
    QPushButton* cmdMoveUp_ = nullptr;
    QPushButton* cmdMoveDown_ = nullptr;
    QPushButton* cmdSort_ = nullptr;
    QComboBox* cmbTopItemNum_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

}  // namespace tolva
