#include "objects/field/editors/frmField.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "platform/Cp1252.h"
#include "shell/RunGuarded.h"

namespace tolva {

namespace {

// The Field holds a line break as CR LF, the box as a lone line feed.
QString ShownText(const std::string& text) {
    QString shown = FromCp1252(text);
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return shown;
}

std::string HeldText(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return ToCp1252(text);
}

}  // namespace

frmField::frmField(FieldEditorText& edit, QWidget* parent) : QDialog(parent), edit_(edit) {
    setObjectName("frmField");
    setWindowTitle("Field Editor");
    setModal(true);

    auto* lblFieldText = new QLabel("Field Text", this);
    lblFieldText->setObjectName("lblFieldText");
    txtText_ = new QPlainTextEdit(this);
    txtText_->setObjectName("txtText");
    txtText_->setTabChangesFocus(true);
    txtText_->setPlainText(ShownText(edit_.text));
    lblFieldText->setBuddy(txtText_);

    cmdOk_ = new QPushButton("OK", this);
    cmdOk_->setObjectName("cmdOk");
    cmdCancel_ = new QPushButton("Cancel", this);
    cmdCancel_->setObjectName("cmdCancel");

    auto* grid = new QGridLayout(this);
    grid->addWidget(lblFieldText, 0, 0, 1, 2);
    grid->addWidget(txtText_, 1, 0, 1, 2);
    grid->addWidget(cmdOk_, 2, 0);
    grid->addWidget(cmdCancel_, 2, 1);
    resize(320, 220);

    connect(cmdOk_, &QPushButton::clicked, this, &frmField::Accept);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

bool frmField::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<FieldEditorText*>(&model);
    if (!edit) return false;
    frmField dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

void frmField::Accept() {
    RunGuarded([&] {
        edit_.text = HeldText(txtText_->toPlainText());
        accept();
    });
}

}  // namespace tolva
