#pragma once
// frmMain: the main window. It owns no design data: it turns toolbar, menu,
// combo and button actions into calls on the screen, and the screen's events
// into refreshes of the combos and the inspector. It alone keeps the saved
// state; the file paths are shared by the program (FilePaths.h).
#include <QMainWindow>
#include <memory>
#include <string>

#include "document/Host.h"
#include "screen/ScreenEvents.h"
#include "shell/frmLog.h"

class QAction;
class QComboBox;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class QToolBar;
class QToolButton;

namespace tolva {

class CanvasWidget;
class DesignHistory;
class DesignSteps;
class frmBusy;
class PropertyArray;
class ctlPropertyView;
class Host;
class SortedComboBox;
class ctlTolvaScreen;

class frmMain : public QMainWindow, public ScreenEvents, public HostObserver {
    Q_OBJECT
public:
    // The host serves every desktop service of the window and of the screen.
    explicit frmMain(Host& host, QWidget* parent = nullptr);
    ~frmMain() override;

    // The loading steps: fields, settings, grid, the log window; then the
    // window is shown unless told otherwise.
    void Load(bool show = true);

    // --- fields ----------------------------------------------------------------
    bool ShowBitmapWarning() const { return showBitmapWarning_; }
    void ShowBitmapWarning(bool value) { showBitmapWarning_ = value; }
    bool FormsComboEnabled() const { return formsComboEnabled_; }
    bool ObjectsComboEnabled() const { return objectsComboEnabled_; }
    bool DesignSaved() const { return designSaved_; }
    void DesignSaved(bool value) { designSaved_ = value; }

    // The grid as read from the settings and handed to the screen.
    int GridInterval() const { return gridInterval_; }
    bool GridVisible() const { return gridVisible_; }

    ctlTolvaScreen& Screen() { return *screen_; }
    // The grid as the options window sets it, shown at once.
    void SetGridFromOptions(int interval, bool visible) { SetGrid(interval, visible); }
    CanvasWidget* ScreenWidget() const { return ctlScreen_; }
    ctlPropertyView* PropertyView() const { return ctlPropView_; }
    frmLog* LogWindow() const { return log_; }
    Host& WindowHost() { return host_; }

    // Hands a log line to the log window, which drops it.
    void AddLogLine(const std::string& line);

    // --- the history of steps (frmMainHistory.cpp) -----------------------------
    DesignHistory& History() { return *history_; }
    QAction* UndoAction() const { return mnuEditUndo_; }
    QAction* RedoAction() const { return mnuEditRedo_; }
    void PopupChosen(const std::string& entryText) override;
    void DialogOpening(const std::string& dialogName) override;
    void DialogClosed(const std::string& dialogName, bool accepted) override;

    // --- toolbar -----------------------------------------------------------
    // A click on toolbar button index (1 to 17).
    void ToolClick(int index);
    // The index of the pressed tool button, 0 when none is.
    int PressedTool() const;
    QAction* ToolAction(int index) const;

    // The refresh of cmbObjects from the form on show.
    void UpdateObjectsCombo();

    // --- events from the screen ----------------------------------------------
    void MouseMove(int button, int shift, double x, double y) override;
    void MouseUp(int button, int shift, double x, double y) override;
    void CreatedObject(const std::string& name, int type) override;
    void DeletedObject(const std::string& name, int type) override;
    void SelectedObject(const std::string& name, int type) override;
    void ChangedObject(const std::string& name, int type) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildControls();
    void BuildToolbar(QWidget* parent);
    void BuildMenus();
    QAction* AddMenuEntry(QMenu* menu, const char* name, const char* text,
                          void (frmMain::*handler)());
    void WatchMouseMoves(QWidget* widget);

    // Reads the three settings.
    void ReadSettings();
    // Hands the grid to the screen.
    void SetGrid(int interval, bool visible);
    void ForwardGridToScreen();
    // Repaints the design screen after a change made outside its own mouse.
    void RefreshScreen();

    // Shows the tool as the only pressed one.
    void PressOnly(int index);
    void ResetToPointer();

    // Sets a combo's shown entry to the text; false when the list lacks it.
    static bool SetComboText(QComboBox* combo, const std::string& text);
    void FillFormsCombo();

    // The inspector steps: empty it; fill it with the rows of an object and
    // the value lists of its type, titled with the selected name.
    void ClearPropertiesList();
    void SetProperties(int type, const std::string& name);
    // A row of the inspector changed: the object takes the whole array.
    void ctlPropView_PropertyChanged(const PropertyArray& values);

    // Handlers of the window's controls.
    void cmbForms_Click();
    void cmbObjects_Click();
    void cmdDelete_Click();
    // The two view buttons and the file commands (frmMainFileCommands.cpp).
    void cmdViewResFile_Click();
    void cmdViewHeaderFile_Click();

    // Menu handlers.
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuExit_Click();
    void mnuEditDelete_Click();
    void mnuEditOptions_Click();
    void mnuEditUndo_Click();
    void mnuEditRedo_Click();

    // A step of the history begins and ends around a user's change; the
    // end keeps it (or drops it when nothing changed) and shows the Undo and
    // Redo entries as they now stand.
    void BeginStep();
    void EndStep();
    // Runs the change as one step, ended even when the change throws.
    template <class Change>
    void AsStep(Change change) {
        BeginStep();
        try {
            change();
        } catch (...) {
            EndStep();
            throw;
        }
        EndStep();
    }
    // A fresh history: after New and Open.
    void FreshHistory();
    void UpdateUndoActions();
    // The window shows the design as Undo or Redo put it back.
    void ShowRestoredDesign();
    void mnuViewResFile_Click();
    void mnuViewHeaderFile_Click();
    void mnuViewObjectList_Click();
    void mnuViewLog_Click();
    void mnuHelpBugs_Click();
    void mnuHelpAbout_Click();

    // The close rule of the window: true when the close may go on.
    bool QueryClose();
    // Writes the three settings.
    void WriteSettings();
    // The warning after a save, when the settings ask for it.
    void ShowBitmapWarningBox();

    Host& host_;
    frmLogSink logSink_;
    std::unique_ptr<ctlTolvaScreen> screen_;
    frmLog* log_ = nullptr;
    // Made at start and never shown.
    frmBusy* busy_ = nullptr;

    bool showBitmapWarning_ = true;
    bool formsComboEnabled_ = false;
    bool objectsComboEnabled_ = false;
    bool designSaved_ = true;
    int gridInterval_ = 55;
    bool gridVisible_ = true;

    QToolBar* tlbrObjects_ = nullptr;
    QAction* tools_[17] = {};
    QLabel* Label2_ = nullptr;
    CanvasWidget* ctlScreen_ = nullptr;
    QLabel* lblForms_ = nullptr;
    QComboBox* cmbForms_ = nullptr;
    QLabel* lblObjects_ = nullptr;
    SortedComboBox* cmbObjects_ = nullptr;
    QPushButton* cmdDelete_ = nullptr;
    ctlPropertyView* ctlPropView_ = nullptr;
    QPushButton* cmdViewResFile_ = nullptr;
    QPushButton* cmdViewHeaderFile_ = nullptr;
    QLabel* Label1_ = nullptr;
    QAction* mnuEditUndo_ = nullptr;
    QAction* mnuEditRedo_ = nullptr;

    std::unique_ptr<DesignHistory> history_;
    std::unique_ptr<DesignSteps> steps_;
};

// The address "Send Comments / Report Bugs" writes to.
inline constexpr const char* kMaintainersAddress = "tolva-editor@example.org";

}  // namespace tolva
