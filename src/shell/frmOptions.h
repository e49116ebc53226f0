#pragma once
// frmOptions, "Options": the grid's interval and visibility and the bitmap
// warning after a save. Shown without blocking the main window; OK sets the
// grid as the choice asks (or leaves it), Cancel changes nothing.
#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;

namespace tolva {

class SortedComboBox;
class frmMain;

class frmOptions : public QDialog {
    Q_OBJECT
public:
    explicit frmOptions(frmMain& main);

    bool OldGridVisible() const { return oldGridVisible_; }
    int OldGridInterval() const { return oldGridInterval_; }

private:
    void Ok();

    frmMain& main_;
    bool oldGridVisible_ = false;
    int oldGridInterval_ = 0;
    QLabel* Label1_ = nullptr;
    SortedComboBox* cmbGridInterval_ = nullptr;
    QCheckBox* chkShowGrid_ = nullptr;
    QCheckBox* chkShowBitmapWarning_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

// frmAbout, "About Tolva Resource File Editor": the program's name, the
// device's system version and OK. Shown without blocking.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent);
};

// frmBusy: a "Please wait..." window the program makes and never shows.
class frmBusy : public QDialog {
    Q_OBJECT
public:
    explicit frmBusy(QWidget* parent);
};

}  // namespace tolva
