#include "shell/frmMain.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include "canvas/qt/CanvasWidget.h"
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "document/StringTable.h"
#include "screen/DesignHistory.h"
#include "screen/DesignSteps.h"
#include "screen/ctlTolvaScreen.h"
#include "inspector/PropertyArray.h"
#include "inspector/ValueLists.h"
#include "inspector/qt/ctlPropertyView.h"
#include "objects/form/ctlKOMAForm.h"
#include "platform/Cp1252.h"
#include "shell/FilePaths.h"
#include "shell/FitText.h"
#include "shell/RunGuarded.h"
#include "shell/WindowUnits.h"
#include "shell/SettingsKeys.h"
#include "shell/frmOptions.h"
#include "shell/SortedComboBox.h"
#include "shell/ToolTable.h"
#include "shell/ToolbarIcons.h"

namespace tolva {

namespace {

constexpr const char* kFormEntry = "(Form)";

// The client area, in screen units.
constexpr int kClientWidth = 12105;
constexpr int kClientHeight = 7815;

// Room a push button keeps round its text, in pixels.
constexpr int kButtonTextMargin = 8;

// The design screen's canvas, in screen units.
constexpr double kCanvasSize = 6255;

// The form's focused-object row offers "(None)" and the names of the
// objects on that very form, which the lists kept per type cannot know.
void UseFocusedObjectChoices(const ctlTolvaScreen& screen, const std::string& formName,
                             ValueLists& lists) {
    constexpr size_t kFocusedObjectRow = 6;
    if (lists.size() < kFocusedObjectRow) return;
    for (int index = 1; index <= screen.NumForms(); ++index) {
        const ctlKOMAForm* form = screen.FormAt(index);
        if (form && form->KOMAName() == formName) {
            lists[kFocusedObjectRow - 1] = form->FocusedObjectChoices();
            return;
        }
    }
}

}  // namespace

frmMain::frmMain(Host& host, QWidget* parent) : QMainWindow(parent), host_(host) {
    setObjectName("frmMain");
    setWindowTitle(kApplicationTitle);
    screen_ = std::make_unique<ctlTolvaScreen>(host_, logSink_);
    screen_->SetEvents(this);
    screen_->SetCanvasSize(kCanvasSize, kCanvasSize);
    history_ = std::make_unique<DesignHistory>(*screen_);
    steps_ = std::make_unique<DesignSteps>(*screen_, *history_);
    BuildControls();
    BuildMenus();
    ctlScreen_->SetGestureHooks([this] { BeginStep(); }, [this] { EndStep(); });
    host_.SetObserver(this);
    FreshHistory();
}

frmMain::~frmMain() {
    if (host_.Observer() == this) host_.SetObserver(nullptr);
    if (screen_) screen_->SetEvents(nullptr);
}

// --- building the window -------------------------------------------------------

void frmMain::BuildControls() {
    setFont(WindowFont());
    auto* client = new QWidget(this);
    client->setObjectName("frmMainClient");
    client->setFixedSize(UnitsToPixels(kClientWidth), UnitsToPixels(kClientHeight));
    setCentralWidget(client);
    WatchMouseMoves(client);

    BuildToolbar(client);

    Label2_ = new QLabel("Tolva Screen", client);
    Label2_->setObjectName("Label2");
    Label2_->setGeometry(UnitsRect(120, 600, 975, 255));

    ctlScreen_ = new CanvasWidget(*screen_, client);
    ctlScreen_->setGeometry(UnitsRect(120, 960, 6255, 6255));

    lblForms_ = new QLabel("Forms", client);
    lblForms_->setObjectName("lblForms");
    lblForms_->setGeometry(UnitsRect(6480, 600, 420, 195));

    cmbForms_ = new QComboBox(client);
    cmbForms_->setObjectName("cmbForms");
    cmbForms_->setGeometry(UnitsRect(6480, 960, 2415, 315));
    connect(cmbForms_, &QComboBox::activated, this, [this](int) {
        RunGuarded([this] { cmbForms_Click(); });
    });

    lblObjects_ = new QLabel("Embedded Objects", client);
    lblObjects_->setObjectName("lblObjects");
    lblObjects_->setGeometry(UnitsRect(9000, 600, 1350, 195));

    cmbObjects_ = new SortedComboBox(client);
    cmbObjects_->setObjectName("cmbObjects");
    cmbObjects_->setGeometry(UnitsRect(9000, 960, 3015, 315));
    connect(cmbObjects_, &QComboBox::activated, this, [this](int) {
        RunGuarded([this] { cmbObjects_Click(); });
    });

    cmdDelete_ = new QPushButton(client);
    cmdDelete_->setObjectName("cmdDelete");
    cmdDelete_->setIcon(DeleteIcon());
    cmdDelete_->setIconSize(QSize(kDeleteIconSize, kDeleteIconSize));
    cmdDelete_->setGeometry(UnitsRect(6000, 480, 375, 375));
    connect(cmdDelete_, &QPushButton::clicked, this,
            [this] { RunGuarded([this] { cmdDelete_Click(); }); });

    ctlPropView_ = new ctlPropertyView(client);
    ctlPropView_->setGeometry(UnitsRect(6480, 1440, 5535, 5775));
    connect(ctlPropView_, &ctlPropertyView::PropertyChanged, this,
            [this](const PropertyArray& values) {
                RunGuarded([this, &values] { ctlPropView_PropertyChanged(values); });
            });

    cmdViewResFile_ = new QPushButton("View Resource File", client);
    cmdViewResFile_->setObjectName("cmdViewResFile");
    cmdViewResFile_->setGeometry(UnitsRect(120, 7320, 1695, 375));
    connect(cmdViewResFile_, &QPushButton::clicked, this,
            [this] { RunGuarded([this] { cmdViewResFile_Click(); }); });

    cmdViewHeaderFile_ = new QPushButton("View Header File", client);
    cmdViewHeaderFile_->setObjectName("cmdViewHeaderFile");
    cmdViewHeaderFile_->setGeometry(UnitsRect(1920, 7320, 1695, 375));
    connect(cmdViewHeaderFile_, &QPushButton::clicked, this,
            [this] { RunGuarded([this] { cmdViewHeaderFile_Click(); }); });

    Label1_ = new QLabel("Beta Version", client);
    Label1_->setObjectName("Label1");
    Label1_->setGeometry(UnitsRect(3840, 7320, 2055, 435));

    for (QLabel* label : {Label2_, lblForms_, lblObjects_, Label1_}) {
        FitTextToWidth(label, label->text());
    }
    for (QPushButton* button : {cmdViewResFile_, cmdViewHeaderFile_}) {
        FitTextToWidth(button, button->text(), kButtonTextMargin);
    }
}

void frmMain::BuildToolbar(QWidget* parent) {
    tlbrObjects_ = new QToolBar(parent);
    tlbrObjects_->setObjectName("tlbrObjects");
    tlbrObjects_->setMovable(false);
    tlbrObjects_->setFloatable(false);
    tlbrObjects_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    tlbrObjects_->setIconSize(QSize(kToolIconSize, kToolIconSize));
    tlbrObjects_->setGeometry(UnitsRect(0, 0, 12105, 450));
    WatchMouseMoves(tlbrObjects_);
    for (int index = 1; index <= kToolCount; ++index) {
        const QString name = QString::fromLatin1(Tool(index).name);
        QAction* action = tlbrObjects_->addAction(ToolIcon(index), name);
        action->setObjectName(QStringLiteral("tool%1").arg(index));
        action->setToolTip(name);
        action->setCheckable(true);
        action->setProperty("index", index);
        connect(action, &QAction::triggered, this,
                [this, index] { RunGuarded([this, index] { ToolClick(index); }); });
        tools_[index - 1] = action;
        if (QWidget* button = tlbrObjects_->widgetForAction(action)) WatchMouseMoves(button);
    }
    tools_[kPointerTool - 1]->setChecked(true);
}

QAction* frmMain::AddMenuEntry(QMenu* menu, const char* name, const char* text,
                               void (frmMain::*handler)()) {
    QAction* action = menu->addAction(QString::fromLatin1(text));
    action->setObjectName(name);
    connect(action, &QAction::triggered, this,
            [this, handler] { RunGuarded([this, handler] { (this->*handler)(); }); });
    return action;
}

void frmMain::BuildMenus() {
    QMenu* file = menuBar()->addMenu("File");
    file->setObjectName("mnuFile");
    AddMenuEntry(file, "mnuFileNew", "New", &frmMain::mnuFileNew_Click);
    AddMenuEntry(file, "mnuFileOpen", "Open...", &frmMain::mnuFileOpen_Click);
    AddMenuEntry(file, "mnuFileSave", "Save", &frmMain::mnuFileSave_Click);
    AddMenuEntry(file, "mnuFileSaveAs", "Save As...", &frmMain::mnuFileSaveAs_Click);
    AddMenuEntry(file, "mnuExit", "Exit", &frmMain::mnuExit_Click);

    QMenu* edit = menuBar()->addMenu("Edit");
    edit->setObjectName("mnuEdit");
    AddMenuEntry(edit, "mnuEditDelete", "Delete", &frmMain::mnuEditDelete_Click);
    AddMenuEntry(edit, "mnuEditOptions", "Options", &frmMain::mnuEditOptions_Click);
    edit->addSeparator();
    mnuEditUndo_ = AddMenuEntry(edit, "mnuEditUndo", "Undo", &frmMain::mnuEditUndo_Click);
    mnuEditUndo_->setShortcut(QKeySequence::Undo);
    mnuEditRedo_ = AddMenuEntry(edit, "mnuEditRedo", "Redo", &frmMain::mnuEditRedo_Click);
    mnuEditRedo_->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                                QKeySequence(Qt::CTRL | Qt::Key_Y)});
    // The shortcuts work wherever the window has the keyboard.
    addAction(mnuEditUndo_);
    addAction(mnuEditRedo_);

    QMenu* view = menuBar()->addMenu("View");
    view->setObjectName("mnuView");
    AddMenuEntry(view, "mnuViewResFile", "Resource File", &frmMain::mnuViewResFile_Click);
    AddMenuEntry(view, "mnuViewHeaderFile", "Header File", &frmMain::mnuViewHeaderFile_Click);
    QAction* objectList =
        AddMenuEntry(view, "mnuViewObjectList", "Object List", &frmMain::mnuViewObjectList_Click);
    objectList->setEnabled(false);
    AddMenuEntry(view, "mnuViewLog", "Log Window", &frmMain::mnuViewLog_Click);

    QMenu* help = menuBar()->addMenu("Help");
    help->setObjectName("mnuHelp");
    AddMenuEntry(help, "mnuHelpBugs", "Send Comments / Report Bugs", &frmMain::mnuHelpBugs_Click);
    AddMenuEntry(help, "mnuHelpAbout", "About...", &frmMain::mnuHelpAbout_Click);
}

void frmMain::WatchMouseMoves(QWidget* widget) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

// --- loading ---------------------------------------------------------------------

void frmMain::Load(bool show) {
    formsComboEnabled_ = false;
    objectsComboEnabled_ = false;
    designSaved_ = true;
    ResourceFilePath.clear();

    ReadSettings();
    SetGrid(gridInterval_, gridVisible_);

    if (!log_) {
        log_ = new frmLog(this);
        logSink_.SetWindow(log_);
    }
    if (!busy_) busy_ = new frmBusy(this);

    if (show) this->show();
}

void frmMain::ReadSettings() {
    gridVisible_ = host_.GetSetting(kSettingsApplication, kSettingsSection, "ShowGrid", "1") == "1";

    // A value that is no number (set by hand in the store) keeps the default.
    const std::string interval =
        host_.GetSetting(kSettingsApplication, kSettingsSection, "GridInterval", "55");
    gridInterval_ = 55;
    if (IsNumeric(interval)) {
        try {
            gridInterval_ = ToInt16(interval);
        } catch (const RuntimeFailure&) {
            gridInterval_ = 55;
        }
    }

    showBitmapWarning_ =
        host_.GetSetting(kSettingsApplication, kSettingsSection, "ShowBitmapWarning", "1") != "0";
}

void frmMain::SetGrid(int interval, bool visible) {
    gridInterval_ = interval;
    gridVisible_ = visible;
    ForwardGridToScreen();
}

void frmMain::ForwardGridToScreen() {
    screen_->SetGrid(gridInterval_, gridVisible_);
    RefreshScreen();
}

void frmMain::RefreshScreen() {
    if (ctlScreen_) ctlScreen_->update();
}

void frmMain::AddLogLine(const std::string& line) {
    if (log_) log_->AddLogLine(line);
}

// --- toolbar ---------------------------------------------------------------------

QAction* frmMain::ToolAction(int index) const {
    if (index < 1 || index > kToolCount) return nullptr;
    return tools_[index - 1];
}

int frmMain::PressedTool() const {
    for (int index = 1; index <= kToolCount; ++index) {
        if (tools_[index - 1]->isChecked()) return index;
    }
    return 0;
}

void frmMain::PressOnly(int index) {
    for (int i = 1; i <= kToolCount; ++i) tools_[i - 1]->setChecked(i == index);
    tlbrObjects_->update();
}

void frmMain::ToolClick(int index) {
    RefreshScreen();
    if (index < 1 || index > kToolCount) return;
    PressOnly(index);
    ctlTolvaScreen& screen = *screen_;
    if (index == kPointerTool) {
        screen.CreateObjectType(type::None);
        screen.AllowDrawing(false);
        screen.AllowDrawingOnObjects(false);
    } else if (index == kFormTool) {
        // A new form is drawn on an empty screen.
        screen.CreateObjectType(type::Form);
        const std::string current = screen.CurrentDesignForm();
        screen.HideForm(current);
        screen.SelectObject(type::None, "");
        ClearPropertiesList();
        screen.AllowDrawingOnObjects(false);
        screen.AllowDrawing(true);
    } else if (index == kMenuTool) {
        // "Menu" arms nothing: no tool stays pressed, the armed type stays.
        screen.AllowDrawing(false);
        screen.AllowDrawingOnObjects(false);
        tools_[kMenuTool - 1]->setChecked(false);
        tlbrObjects_->update();
        AsStep([&] { screen.ShowMenuEditor(); });
    } else {
        screen.CreateObjectType(Tool(index).createObjectType);
        screen.AllowDrawing(true);
        screen.AllowDrawingOnObjects(true);
    }
}

void frmMain::ResetToPointer() {
    PressOnly(kPointerTool);
    screen_->CreateObjectType(type::None);
    screen_->AllowDrawing(false);
}

// --- events from the screen --------------------------------------------------------

void frmMain::MouseMove(int, int, double, double) {
    host_.SetCursor(tools_[kPointerTool - 1]->isChecked() ? CursorShape::Arrow
                                                           : CursorShape::Cross);
}

void frmMain::MouseUp(int, int, double, double) { ResetToPointer(); }

void frmMain::CreatedObject(const std::string& name, int objectType) {
    steps_->Created(name);
    RefreshScreen();
    formsComboEnabled_ = false;
    objectsComboEnabled_ = false;
    ctlTolvaScreen& screen = *screen_;
    screen.AllowDrawingOnObjects(false);
    if (objectType == type::Form) {
        FillFormsCombo();
        SetComboText(cmbForms_, name);
    }
    screen.SelectObject(objectType, name);
    UpdateObjectsCombo();
    SetProperties(objectType, name);
    designSaved_ = false;
    formsComboEnabled_ = true;
    objectsComboEnabled_ = true;
}

void frmMain::ChangedObject(const std::string& name, int objectType) {
    RefreshScreen();
    formsComboEnabled_ = false;
    objectsComboEnabled_ = false;
    ctlTolvaScreen& screen = *screen_;
    if (objectType == type::Form) {
        FillFormsCombo();
        SetComboText(cmbForms_, screen.CurrentDesignForm());
    }
    screen.SelectObject(objectType, name);
    UpdateObjectsCombo();
    SetProperties(objectType, name);
    designSaved_ = false;
    formsComboEnabled_ = true;
    objectsComboEnabled_ = true;
}

void frmMain::DeletedObject(const std::string& name, int objectType) {
    steps_->Deleted(name);
    RefreshScreen();
    formsComboEnabled_ = false;
    objectsComboEnabled_ = false;
    ctlTolvaScreen& screen = *screen_;
    if (objectType == type::Form) FillFormsCombo();
    ClearPropertiesList();
    if (!screen.CurrentDesignForm().empty()) {
        SetComboText(cmbForms_, screen.CurrentDesignForm());
        UpdateObjectsCombo();
    } else {
        cmbObjects_->clear();
    }
    designSaved_ = false;
    formsComboEnabled_ = true;
    objectsComboEnabled_ = true;
}

void frmMain::SelectedObject(const std::string& name, int objectType) {
    RefreshScreen();
    if (objectType == type::Form) {
        if (ToCp1252(cmbForms_->currentText()) != name) SetComboText(cmbForms_, name);
    } else if (objectType == type::None) {
        // The form stays on the screen with nothing chosen in cmbObjects.
        ClearPropertiesList();
        cmbObjects_->clear();
    }
}

// --- the combos ----------------------------------------------------------------------

bool frmMain::SetComboText(QComboBox* combo, const std::string& text) {
    const int index = combo->findText(FromCp1252(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) return false;
    combo->setCurrentIndex(index);
    return true;
}

void frmMain::FillFormsCombo() {
    std::vector<std::string> names;
    screen_->GetFormNameList(names);
    cmbForms_->clear();
    for (const auto& name : names) cmbForms_->addItem(FromCp1252(name));
    cmbForms_->setCurrentIndex(-1);
}

void frmMain::UpdateObjectsCombo() {
    ctlTolvaScreen& screen = *screen_;
    const std::string form = screen.CurrentDesignForm();
    if (form.empty()) {
        host_.MessageBox("No active form", "UpdateObjectsCombo");
        return;
    }
    std::vector<std::string> names;
    if (!screen.GetEmbeddedObjectNamesFromForm(form, names)) {
        host_.MessageBox("Could not get embedded objects list from ctlscreen");
        return;
    }
    cmbObjects_->clear();
    cmbObjects_->AddSorted(kFormEntry);
    for (const auto& name : names) cmbObjects_->AddSorted(FromCp1252(name));
    cmbObjects_->setCurrentIndex(-1);

    const int selectedType = screen.SelectedObjectType();
    const std::string text = (selectedType == type::Form || selectedType == type::None)
                                 ? std::string(kFormEntry)
                                 : screen.SelectedObjectName();
    if (!SetComboText(cmbObjects_, text)) {
        host_.MessageBox("Error setting cmbObjects", "UpdateObjectsCombo");
    }
}

void frmMain::cmbForms_Click() {
    RefreshScreen();
    if (!formsComboEnabled_) return;
    ctlTolvaScreen& screen = *screen_;
    const std::string chosen = ToCp1252(cmbForms_->currentText());
    if (chosen == screen.CurrentDesignForm()) return;
    const std::string current = screen.CurrentDesignForm();
    screen.HideForm(current);
    screen.ShowForm(chosen);
    ChangedObject(chosen, type::Form);
    screen.SelectObject(type::Form, chosen);
    ToolClick(kPointerTool);
    UpdateObjectsCombo();
    // The selected object has the focus, and the screen the keyboard.
    ctlScreen_->setFocus(Qt::OtherFocusReason);
}

void frmMain::cmbObjects_Click() {
    RefreshScreen();
    if (!objectsComboEnabled_) return;
    ctlTolvaScreen& screen = *screen_;
    const std::string chosen = ToCp1252(cmbObjects_->currentText());
    if (chosen == kFormEntry) {
        const std::string form = ToCp1252(cmbForms_->currentText());
        ChangedObject(form, type::Form);
        screen.SelectObject(type::Form, form);
        ctlScreen_->setFocus(Qt::OtherFocusReason);
        return;
    }
    // The lookup leaves the type as it was for a name it does not know and
    // answers yes all the same, so the box below is a safeguard that does
    // not show today.
    int objectType = 0;
    if (!screen.GetObjectType(chosen, objectType)) {
        host_.MessageBox("Could not find object type", "cmbObjects_Click");
        return;
    }
    if (chosen != screen.SelectedObjectName()) ChangedObject(chosen, objectType);
    screen.SelectObject(objectType, chosen);
    // The selected object has the focus, and the screen the keyboard.
    ctlScreen_->setFocus(Qt::OtherFocusReason);
}

// --- buttons -------------------------------------------------------------------------

void frmMain::cmdDelete_Click() {
    RefreshScreen();
    ctlTolvaScreen& screen = *screen_;
    const int selectedType = screen.SelectedObjectType();
    const std::string selectedName = screen.SelectedObjectName();
    if (selectedType == type::Form) {
        const MessageAnswer answer =
            host_.MessageBox(LoadResString(msg::ConfirmFormDelete),
                             LoadResString(msg::ConfirmFormDeleteTitle), MessageButtons::YesNo);
        if (answer == MessageAnswer::No) return;
    }
    AsStep([&] { screen.DeleteObject(selectedType, selectedName); });
    if (screen.CurrentDesignForm().empty()) cmbObjects_->clear();
    designSaved_ = false;
}

// --- the inspector --------------------------------------------------------------------

void frmMain::ClearPropertiesList() { ctlPropView_->ClearPropertiesList(); }

void frmMain::SetProperties(int objectType, const std::string& name) {
    ctlTolvaScreen& screen = *screen_;
    PropertyArray rows;
    screen.GetObjectPropertiesList(rows, objectType, name);
    ValueLists lists;
    GetValueListsForType(objectType, lists);
    if (objectType == type::Form) UseFocusedObjectChoices(screen, name, lists);
    ctlPropView_->SetProperties(rows, lists, screen.SelectedObjectName());
}

void frmMain::ctlPropView_PropertyChanged(const PropertyArray& values) {
    ctlTolvaScreen& screen = *screen_;
    const int selectedType = screen.SelectedObjectType();
    const std::string selectedName = screen.SelectedObjectName();
    // A row the object took is a step, named by the first row that changed;
    // a refused value changes no row and makes none.
    PropertyArray before;
    screen.GetObjectPropertiesList(before, selectedType, selectedName);
    KomaObject* object = screen.SelectedObjectRef();
    AsStep([&] {
        screen.NotifyObjectOfPropertyChange(selectedType, selectedName, values);
        if (!object || !screen.HoldsObject(object)) return;
        PropertyArray after;
        object->GetPropertyList(after);
        for (int row = 1; row <= after.Rows(); ++row)
            if (row > before.Rows() || after.Value(row).Text() != before.Value(row).Text()) {
                steps_->Edited("Set " + after.Label(row) + " of " + selectedName);
                break;
            }
    });
}

// --- menus ----------------------------------------------------------------------------

void frmMain::mnuExit_Click() { close(); }

void frmMain::mnuEditDelete_Click() {
    RefreshScreen();
    // Deletes at once, with no question even for a form; the saved state is
    // left to the events the deletion raises.
    ctlTolvaScreen& screen = *screen_;
    const int selectedType = screen.SelectedObjectType();
    const std::string selectedName = screen.SelectedObjectName();
    AsStep([&] { screen.DeleteObject(selectedType, selectedName); });
}

void frmMain::mnuEditOptions_Click() {
    // Not modal: the main window stays live while it is open.
    auto* options = new frmOptions(*this);
    options->show();
}

void frmMain::mnuViewObjectList_Click() {
    // Disabled for good: never runs.
}

void frmMain::mnuViewLog_Click() {
    if (log_) log_->ShowModal();
}

void frmMain::mnuHelpBugs_Click() { host_.OpenMail(kMaintainersAddress, host_.ProgramDirectory()); }

void frmMain::mnuHelpAbout_Click() {
    auto* about = new frmAbout(this);
    about->show();
}

// --- window events --------------------------------------------------------------------

void frmMain::closeEvent(QCloseEvent* event) {
    bool goOn = true;
    RunGuarded([&] { goOn = QueryClose(); });
    if (goOn) {
        event->accept();
    } else {
        event->ignore();
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        // A move over the window itself or over the toolbar shows the arrow.
        RunGuarded([this] { host_.SetCursor(CursorShape::Arrow); });
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace tolva
