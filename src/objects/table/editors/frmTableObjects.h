#pragma once
// frmTableObjects, the Table Object Editor: cmbObjects chooses the kind,
// the object of that kind is drawn at 120, 120 and its rows stand in an
// inspector of its own (ctlPropView). It works on a TableObjectEditing;
// OK hands the object shown to the cell, Cancel nothing.
#include <QDialog>

#include "objects/table/TableObjectEditing.h"

class QComboBox;
class QPushButton;

namespace tolva {

class DialogModel;
class ctlPropertyView;
class TableObjectPicture;

class frmTableObjects : public QDialog {
    Q_OBJECT
public:
    frmTableObjects(TableObjectEditing& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a TableObjectEditing,
    // true for OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

private:
    // The rows of the object shown, titled by its kind's word.
    void ShowRows();

    TableObjectEditing& edit_;
    QComboBox* cmbObjects_ = nullptr;
    ctlPropertyView* ctlPropView_ = nullptr;
    TableObjectPicture* picture_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

}  // namespace tolva
