#pragma once
// frmCheckbox, the Checkbox Editor: the check boxes of one form in a list,
// and under it the others, ticked where they are related to the chosen one.
// It works on the relations the form handed over; OK closes it accepted,
// and the form takes the table back, Cancel closes it with nothing kept.
#include <QDialog>

#include "objects/checkbox/CheckboxRelations.h"

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace tolva {

class DialogModel;

class frmCheckbox : public QDialog {
    Q_OBJECT
public:
    frmCheckbox(CheckboxRelations& relations, QWidget* parent = nullptr);

    // A new table: the list of check boxes filled, the first chosen.
    void SetRelatedCheckboxes(const CheckboxRelations::Table& table);

    // The dialog for the host's registry: modal on a CheckboxRelations,
    // true for OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

private:
    void FillCheckboxes();
    void FillRelated();
    void CheckboxChosen(int index);
    void RelatedTicked(QListWidgetItem* item);

    CheckboxRelations& relations_;
    QComboBox* cmbCheckbox_ = nullptr;
    QListWidget* lbCheckboxes_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
    bool filling_ = false;
};

}  // namespace tolva
