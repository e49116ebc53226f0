#include "objects/table/editors/frmTableObjects.h"

#include <QComboBox>
#include <QGridLayout>
#include <QPainter>
#include <QPushButton>

#include "canvas/qt/ScreenPainter.h"
#include "document/KomaObject.h"
#include "inspector/ValueLists.h"
#include "inspector/qt/ctlPropertyView.h"
#include "shell/RunGuarded.h"

namespace tolva {

// The object shown, drawn as the canvas draws it, at its place of 120, 120.
class TableObjectPicture : public QWidget {
public:
    TableObjectPicture(TableObjectEditing& edit, QWidget* parent) : QWidget(parent), edit_(edit) {
        setObjectName("picObject");
        setMinimumSize(220, 200);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0xE0, 0xE0, 0xE0));
        if (KomaObject* object = edit_.Current()) painter_.PaintObject(painter, *object);
    }

private:
    TableObjectEditing& edit_;
    ScreenPainter painter_{15.0};
};

frmTableObjects::frmTableObjects(TableObjectEditing& edit, QWidget* parent) : QDialog(parent), edit_(edit) {
    setObjectName("frmTableObjects");
    setWindowTitle("Table Object Editor");
    setModal(true);
    cmbObjects_ = new QComboBox(this);
    cmbObjects_->setObjectName("cmbObjects");
    for (const std::string& word : TableObjectEditing::KindWords())
        cmbObjects_->addItem(QString::fromLatin1(word.c_str()));
    ctlPropView_ = new ctlPropertyView(this);
    ctlPropView_->setObjectName("ctlPropView");
    ctlPropView_->setMinimumSize(300, 320);
    picture_ = new TableObjectPicture(edit, this);
    cmdOK_ = new QPushButton("OK", this);
    cmdOK_->setObjectName("cmdOK");
    cmdCancel_ = new QPushButton("Cancel", this);
    cmdCancel_->setObjectName("cmdCancel");

    auto* layout = new QGridLayout(this);
    layout->addWidget(cmbObjects_, 0, 0);
    layout->addWidget(picture_, 1, 0);
    layout->addWidget(ctlPropView_, 0, 1, 2, 2);
    layout->addWidget(cmdOK_, 2, 1);
    layout->addWidget(cmdCancel_, 2, 2);

    cmbObjects_->setCurrentIndex(cmbObjects_->findText(QString::fromLatin1(edit.KindWord().c_str())));
    connect(cmbObjects_, &QComboBox::currentTextChanged, this, [this](const QString& word) {
        RunGuarded([&] {
            edit_.ChooseKind(word.toStdString());
            ShowRows();
        });
    });
    connect(ctlPropView_, &ctlPropertyView::PropertyChanged, this, [this](const PropertyArray& rows) {
        RunGuarded([&] {
            edit_.ApplyRows(rows);
            ShowRows();
        });
    });
    connect(cmdOK_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
    ShowRows();
}

bool frmTableObjects::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<TableObjectEditing*>(&model);
    if (!edit) return false;
    frmTableObjects dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

void frmTableObjects::ShowRows() {
    KomaObject* object = edit_.Current();
    if (!object) {
        ctlPropView_->ClearPropertiesList();
        picture_->update();
        return;
    }
    ValueLists lists;
    GetValueListsForType(object->ScreenType(), lists);
    ctlPropView_->SetProperties(edit_.Rows(), lists, edit_.KindWord());
    picture_->update();
}

}  // namespace tolva
