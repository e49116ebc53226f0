#pragma once
// frmField, the Field Editor: the Field's text in a box of many lines, where
// Enter makes a line break. OK hands the text back, Cancel closes with
// nothing changed.
#include <QDialog>

#include "objects/field/FieldEditorText.h"

class QPlainTextEdit;
class QPushButton;

namespace tolva {

class DialogModel;

class frmField : public QDialog {
    Q_OBJECT
public:
    frmField(FieldEditorText& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a FieldEditorText, true
    // for OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

private:
    void Accept();

    FieldEditorText& edit_;
    QPlainTextEdit* txtText_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

}  // namespace tolva
