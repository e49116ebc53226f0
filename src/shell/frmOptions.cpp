#include "shell/frmOptions.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "canvas/GridOptions.h"
#include "screen/ctlTolvaScreen.h"
#include "shell/FitText.h"
#include "shell/SortedComboBox.h"
#include "shell/WindowUnits.h"
#include "shell/frmMain.h"

namespace tolva {

frmOptions::frmOptions(frmMain& main) : QDialog(&main), main_(main) {
    setObjectName("frmOptions");
    setWindowTitle("Options");
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(UnitsToPixels(4800), UnitsToPixels(2880));
    setFont(WindowFont());

    Label1_ = new QLabel("Grid Interval", this);
    Label1_->setObjectName("Label1");
    Label1_->setGeometry(UnitsRect(120, 120, 855, 195));
    cmbGridInterval_ = new SortedComboBox(this);
    cmbGridInterval_->setObjectName("cmbGridInterval");
    cmbGridInterval_->setGeometry(UnitsRect(120, 360, 2295, 315));
    for (const char* entry : {"30", "35", "40", "45", "50", "55"}) cmbGridInterval_->AddSorted(entry);
    chkShowGrid_ = new QCheckBox("Show Grid", this);
    chkShowGrid_->setObjectName("chkShowGrid");
    chkShowGrid_->setGeometry(UnitsRect(120, 840, 1095, 255));
    chkShowBitmapWarning_ = new QCheckBox("Show bitmap warning on save", this);
    chkShowBitmapWarning_->setObjectName("chkShowBitmapWarning");
    chkShowBitmapWarning_->setGeometry(UnitsRect(120, 1200, 2775, 195));
    cmdOK_ = new QPushButton("OK", this);
    cmdOK_->setObjectName("cmdOK");
    cmdOK_->setGeometry(UnitsRect(2280, 2040, 1095, 375));
    cmdCancel_ = new QPushButton("Cancel", this);
    cmdCancel_->setObjectName("cmdCancel");
    cmdCancel_->setGeometry(UnitsRect(3480, 2040, 1095, 375));

    // The places are those of a narrow desktop font: a wider one is made
    // smaller until each text fits its place.
    FitTextToWidth(Label1_, Label1_->text());
    constexpr int kCheckMark = 22;
    FitTextToWidth(chkShowGrid_, chkShowGrid_->text(), kCheckMark);
    FitTextToWidth(chkShowBitmapWarning_, chkShowBitmapWarning_->text(), kCheckMark);

    // The state found on opening.
    const ctlTolvaScreen& screen = main.Screen();
    oldGridVisible_ = screen.GridVisible();
    chkShowGrid_->setChecked(oldGridVisible_);
    cmbGridInterval_->setCurrentIndex(cmbGridInterval_->findText("30"));
    const int current = cmbGridInterval_->findText(QString::number(screen.GridInterval()));
    if (current >= 0) {
        cmbGridInterval_->setCurrentIndex(current);
        oldGridInterval_ = screen.GridInterval();
    }
    chkShowBitmapWarning_->setChecked(main.ShowBitmapWarning());

    connect(cmdOK_, &QPushButton::clicked, this, &frmOptions::Ok);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::close);
}

void frmOptions::Ok() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const int chosen = cmbGridInterval_->currentText().toInt();
    if (const auto call = GridCallOnOk(oldGridVisible_, oldGridInterval_, chosen, chkShowGrid_->isChecked()))
        main_.SetGridFromOptions(call->interval, call->visible);
    main_.ShowBitmapWarning(chkShowBitmapWarning_->isChecked());
    QApplication::restoreOverrideCursor();
    close();
}

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName("frmAbout");
    setWindowTitle("About Tolva Resource File Editor");
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(UnitsToPixels(4800), UnitsToPixels(2400));
    setFont(WindowFont());
    auto* lblInfo = new QLabel("Tolva Resource File Editor", this);
    lblInfo->setObjectName("lblInfo");
    lblInfo->setGeometry(UnitsRect(240, 240, 4200, 300));
    auto* lblInfo2 = new QLabel("KOMA Version: 1.3", this);
    lblInfo2->setObjectName("lblInfo2");
    lblInfo2->setGeometry(UnitsRect(240, 720, 4200, 300));
    auto* cmdOK = new QPushButton("OK", this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setGeometry(UnitsRect(1860, 1560, 1095, 375));
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::close);
}

frmBusy::frmBusy(QWidget* parent) : QDialog(parent) {
    setObjectName("frmBusy");
    auto* lblState = new QLabel("Please wait...", this);
    lblState->setObjectName("lblState");
    lblState->setGeometry(UnitsRect(240, 240, 3000, 300));
}

}  // namespace tolva
