#pragma once
// ctlTolvaScreen: the design document. It owns every object of the design,
// one array per screen type (counted from 1), knows the form on show and the
// selected object, names and numbers objects, adds and removes them, and
// tells the main window of every change through ScreenEvents.
//
// The class is spread over the Screen*.cpp files beside it, one job each:
// the canvas half (frame, grid, nodes, rubber band and the mouse protocol)
// and the document half (creation, deletion, names, ids, menus, loading).
// It answers the writers of the resource text as their DesignText.
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "canvas/CanvasHit.h"
#include "canvas/CanvasRect.h"
#include "canvas/ScreenCanvasState.h"
#include "document/KomaObject.h"
#include "document/ObjectOwner.h"
#include "document/ObjectTypes.h"
#include "resfile/DesignText.h"
#include "screen/DesignSnapshot.h"
#include "screen/NameIndex.h"

namespace tolva {

class Host;
class LogSink;
class ScreenEvents;
class ctlKOMAForm;

class ctlTolvaScreen : public ObjectOwner, public DesignText {
public:
    // Screen modes.
    static constexpr int ModeIdle = 0;
    static constexpr int ModeDrawing = 1;
    static constexpr int ModeMoving = 2;
    static constexpr int ModeResizing = 3;
    static constexpr int ModeLoading = 5;

    ctlTolvaScreen(Host& host, LogSink& log);
    ~ctlTolvaScreen() override;

    void SetEvents(ScreenEvents* events) { events_ = events; }

    // --- public properties --------------------------------------------------
    bool AllowDrawing() const { return allowDrawing_; }
    void AllowDrawing(bool value) { allowDrawing_ = value; }
    bool AllowDrawingOnObjects() const { return allowDrawingOnObjects_; }
    void AllowDrawingOnObjects(bool value) { allowDrawingOnObjects_ = value; }
    int CreateObjectType() const { return createObjectType_; }
    void CreateObjectType(int type) { createObjectType_ = type; }
    const std::string& CurrentDesignForm() const { return currentDesignForm_; }
    int SelectedObjectType() const { return selectedObjectType_; }
    const std::string& SelectedObjectName() const { return selectedObjectName_; }
    KomaObject* SelectedObjectRef() const { return selectedObjectRef_; }
    ctlKOMAForm* CurrentFormRef() const { return currentFormRef_; }
    int ScreenMode() const { return screenMode_; }

    // The counters.
    int Count(int type) const;
    int NumButtons() const { return Count(type::Button); }
    int NumForms() const { return Count(type::Form); }
    int NumStrings() const { return Count(type::String); }
    int NumTextboxes() const { return Count(type::Textbox); }
    int NumFields() const { return Count(type::Field); }
    int NumCheckboxes() const { return Count(type::Checkbox); }
    int NumTables() const { return Count(type::Table); }
    int NumBitmaps() const { return Count(type::Bitmap); }
    int NumLines() const { return Count(type::Line); }
    int NumLists() const { return Count(type::List); }
    int NumMenus() const { return numMenus_; }
    int NumPopupTriggers() const { return Count(type::PopupTrigger); }
    int NumPushButtons() const { return Count(type::PushButton); }
    int NumRepeatButtons() const { return Count(type::RepeatButton); }
    int NumSchedulerLines() const { return Count(type::SchedulerLine); }
    int NumScrollbars() const { return Count(type::Scrollbar); }

    // The object at index (from 1) of a type's array, or nullptr.
    KomaObject* ObjectAt(int type, int index) const;
    ctlKOMAForm* FormAt(int index) const;

    // Screen units per device pixel, handed to every object.
    double PCTwipsToTolvaPixels() const { return twipsPerPixel_; }
    void SetPCTwipsToTolvaPixels(double value);

    // The band of the last drawing, canvas coordinates; X1, Y1 is the fixed
    // corner. CreateObject sizes the new object by it.
    struct Band {
        int X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    };
    const Band& RubberBand() const { return band_; }
    void SetRubberBand(const Band& band) { band_ = band; }

    // Canvas size in screen units.
    double CanvasWidth() const { return canvasWidth_; }
    double CanvasHeight() const { return canvasHeight_; }
    void SetCanvasSize(double width, double height);

    // --- the canvas half --------------------------------------------------------
    // shpBorder, the frame: the whole canvas. shpScreen, the device area: the
    // canvas less a margin of 200 on every side.
    CanvasRect BorderRect() const;
    CanvasRect DeviceAreaRect() const;

    // The grid. SetGrid takes the show flag; with the flag False it hides
    // the dots and drops the interval, so the snap goes on with the old
    // spacing. ShowGrid(True) runs SetGrid with the current interval,
    // ShowGrid(False) does nothing. Setting GridInterval runs SetGrid with
    // the current GridVisible.
    bool GridVisible() const { return canvas_.gridVisible; }
    int GridInterval() const { return canvas_.gridInterval; }
    void GridInterval(int interval);
    int GridSpacing() const { return canvas_.gridSpacing; }
    void SetGrid(int interval, bool visible);
    void ShowGrid(bool visible);
    // Snaps X and Y to the closest grid point.
    void GetClosestNode(double& x, double& y) const;

    // Nodes, band bars, editor line and dots, for the canvas to paint.
    const ScreenCanvasState& Canvas() const { return canvas_; }

    // What the point (screen units) hits: a visible node, else the topmost
    // visible object whose rectangle holds it, else the bare canvas.
    CanvasHit HitTest(double x, double y) const;
    // True while the object belongs to the screen (in any array).
    bool HoldsObject(const KomaObject* object) const;

    // The canvas's mouse, in screen units: on the bare canvas relative to
    // the canvas, on a node (0 to 9, see canvas/SelectionNodes.h) relative
    // to the node. A press on an object goes to the object's own MouseDown.
    void CanvasMouseDown(int button, int shift, double x, double y);
    void CanvasMouseMove(int button, int shift, double x, double y);
    void CanvasMouseUp(int button, int shift, double x, double y);
    void NodeMouseDown(int nodeNumber, int button, int shift, double x, double y);
    void NodeMouseMove(int nodeNumber, int button, int shift, double x, double y);
    void NodeMouseUp(int nodeNumber, int button, int shift, double x, double y);

    // --- operations ----------------------------------------------------------
    bool CreateObject(int type);
    bool SelectObject(int type, const std::string& name, KomaObject* ref = nullptr);
    bool DeleteObject(int type, const std::string& name, bool notifyParent = true);
    bool DeleteSelectedObject();

    bool ResizeObject(int type, const std::string& name, double x1, double y1, double x2,
                      double y2);
    bool MoveObject(int type, const std::string& name, double left, double top);
    // Puts the selection nodes round the object (the two line nodes when
    // lineFlag is set); they show only once ShowNodes shows them.
    void PlaceNodes(KomaObject& object, bool lineFlag);

    // The file text. GetKOMAResourceText: the record of the named object of
    // the type (false at once for a menu, type 10); GetMenuResourceText: the
    // menu records of all forms; GetTableObjects: the records of the objects
    // in a table's cells, one list per object; GetHeaderFileText: the
    // "#define" lines of the header.
    bool GetKOMAResourceText(LineList& lines, const std::string& name, int type) override;
    bool GetMenuResourceText(LineList& lines) const override;
    bool GetTableObjects(const std::string& tableName, std::vector<LineList>& blocks) override;
    void GetHeaderFileText(LineList& lines) const override;

    bool GetObjectType(const std::string& name, int& type) const;
    bool GetObjectPropertiesList(PropertyArray& rows, int type, const std::string& name);
    bool NotifyObjectOfPropertyChange(int type, const std::string& name, const PropertyArray& rows);
    bool IsNewNameUnique(const std::string& oldName, const std::string& newName) override;
    bool GetObjectID(const std::string& name, int& id) const;

    // Name lists, in array order.
    std::vector<std::string> GetNameList(int type) const override;
    void GetFormNameList(std::vector<std::string>& out) const { out = GetNameList(type::Form); }
    void GetButtonNameList(std::vector<std::string>& out) const { out = GetNameList(type::Button); }
    void GetStringNameList(std::vector<std::string>& out) const { out = GetNameList(type::String); }
    void GetBitmapNameList(std::vector<std::string>& out) const { out = GetNameList(type::Bitmap); }
    void GetCheckboxNameList(std::vector<std::string>& out) const { out = GetNameList(type::Checkbox); }
    void GetPushButtonNameList(std::vector<std::string>& out) const { out = GetNameList(type::PushButton); }
    void GetRepeatButtonNameList(std::vector<std::string>& out) const { out = GetNameList(type::RepeatButton); }
    void GetFieldNameList(std::vector<std::string>& out) const { out = GetNameList(type::Field); }
    void GetTextboxNameList(std::vector<std::string>& out) const { out = GetNameList(type::Textbox); }
    void GetListNameList(std::vector<std::string>& out) const { out = GetNameList(type::List); }
    void GetLineNameList(std::vector<std::string>& out) const { out = GetNameList(type::Line); }
    void GetMenuNameList(std::vector<std::string>& out) const;
    void GetPopupTriggerNameList(std::vector<std::string>& out) const { out = GetNameList(type::PopupTrigger); }
    void GetScrollbarNameList(std::vector<std::string>& out) const { out = GetNameList(type::Scrollbar); }
    void GetSchedulerLineNameList(std::vector<std::string>& out) const { out = GetNameList(type::SchedulerLine); }
    void GetTableNameList(std::vector<std::string>& out) const { out = GetNameList(type::Table); }
    bool GetEmbeddedObjectNamesFromForm(const std::string& formName, std::vector<std::string>& out) const;

    bool HideForm(const std::string& formName);
    bool ShowForm(const std::string& formName);
    bool EmbedObjectInForm(const std::string& formName, int type, const std::string& objectName);
    void DistributeObjectIds() override;

    // Opens the menu editor on the form on show; on OK the form takes the
    // menus back.
    void ShowMenuEditor();
    // Whether a menu of `editing` may not take the name: an object of the
    // screen or a menu of another form bears it.
    bool IsNameTakenForMenu(const ctlKOMAForm& editing, const std::string& name) const;
    void UpdateMenus(const std::vector<std::vector<std::string>>& itemLists,
                     const std::vector<std::string>& names);
    // False when the form is not found.
    bool CreateNewMenuInForm(const std::vector<std::string>& items, const std::string& menuName,
                             const std::string& formName);

    // Loading.
    void StartLoading();
    bool CreateObjectFromText(int type, const GroupList& record);
    // Puts a loaded object of the type into a cell (row and column from 1)
    // of the named table; false when the table or the cell refuses.
    bool CreateObjectInTable(const std::string& tableName, int row, int column, int type,
                             const GroupList& record);
    void StopLoading();
    void UnloadAll();
    void ClearScreen();

    // The objects on show, back to front (the canvas paints and hit-tests
    // in this order).
    std::vector<KomaObject*> VisibleObjectsInStackingOrder() const;
    // For each form in turn, in one pass over the arrays, the objects that
    // may show with it, in array order: the form, its embedded objects and
    // any object of no form.
    std::vector<std::vector<KomaObject*>> ObjectsOfEachForm() const;
    // Those of a list that are on show, back to front: while one form is
    // shown, its list gives the objects VisibleObjectsInStackingOrder gives,
    // in the same order, without passing the other forms' objects.
    static std::vector<KomaObject*> OnShowInStackingOrder(const std::vector<KomaObject*>& objects);

    // --- ObjectOwner ----------------------------------------------------------
    Host& OwnerHost() override { return host_; }
    LogSink& OwnerLog() override { return log_; }
    bool OwnerGetObjectID(const std::string& name, int& id) override { return GetObjectID(name, id); }
    void ObjectMouseDown(KomaObject& object, int button, int shift, double x, double y) override;
    void ObjectMouseMove(KomaObject& object, int button, int shift, double x, double y) override;
    void ObjectMouseUp(KomaObject& object, int button, int shift, double x, double y) override;
    void ObjectSelected(KomaObject& object) override;
    void ObjectDeleted(KomaObject& object) override;
    void ObjectMoved(KomaObject& object, int x, int y) override;
    void ObjectResized(KomaObject& object, int width, int height) override;
    void ObjectLineResized(KomaObject& object, int startX, int startY, int endX,
                           int endY) override;
    void ObjectPicChanged(KomaObject& object) override;
    void ObjectRenamed(KomaObject& object, const std::string& oldName) override;
    void ObjectMenusChanged(KomaObject& object) override;
    long long NextStackStamp(bool toFront) override;

    // --- the design's history (ScreenSnapshot.cpp) -----------------------------
    // The design as it stands. An object outside the scope keeps its image
    // of `previous` when its place, size, name, number, form, showing and
    // stacking are what the image holds.
    DesignSnapshot TakeSnapshot(const DesignSnapshot* previous, const SnapshotScope& scope);
    // Puts the design back exactly as the snapshot holds it: every object
    // made again from its image, the form on show and the selection. With
    // `current`, a snapshot of the design as it stands, an object whose
    // image the two share stays as it is instead.
    void RestoreSnapshot(const DesignSnapshot& snapshot, const DesignSnapshot* current = nullptr);
    // The form on show and its embedded objects (and their cells' tables):
    // what a step on the canvas, in the inspector or in a dialog touches.
    std::vector<const KomaObject*> CurrentFormObjects() const;

    // The number of objects the name index holds: every object of the
    // arrays, once.
    std::size_t IndexedObjectCount() const { return names_.Size(); }
    // A load about to bring this many objects: the name index makes room.
    void ExpectObjects(std::size_t count) { names_.Reserve(names_.Size() + count); }

protected:
    // The band's moving corner at the mouse point: rounded, on the grid and
    // inside the device area.
    void SetBandMovingCorner(double x, double y);

    // FindObject: walks the type's array from 1 comparing names exactly.
    // Logs "Couldn't find requested object: " and the name when not found.
    KomaObject* FindObject(int type, const std::string& name, int* index = nullptr) const;
    // The first object of the name in the walk order of kinds given
    // (each kind in array order); nullptr, and type left alone, when none.
    KomaObject* FirstNamed(const std::string& name, const int* walk, int walkLength,
                           int* foundType) const;
    // True when a menu of any form bears the name.
    bool IsMenuName(const std::string& name) const;
    void DeleteAllEmbededObjectsFromForm(const std::string& formName, int formIndex);
    void Log(const std::string& line) const;
    // Shows or hides the selection nodes: with lineFlag the two line nodes,
    // else the eight round a box; the others are hidden. ShowNodes(false,
    // true) hides them all.
    void ShowNodes(bool show, bool lineFlag);

    // The rubber band: with show, four bars round the rectangle of the two
    // corners or, with lineFlag, the editor line across it; without show
    // both are hidden.
    void DrawBand(bool show, double x1, double y1, double x2, double y2, bool lineFlag);
    // A press on a node: resizing starts with the band of the node.
    void StartNodeDrag(double x1, double y1, double x2, double y2, KomaObject& object);
    // The release of a node: the resize, or its refusal, and the selection.
    void EndNodeDrag();

    // Makes a new object of a screen type (0 to 15 but 10), with its class's
    // defaults; nullptr for the menu and anything else.
    std::unique_ptr<KomaObject> MakeObject(int type);
    // Makes a new object of the type, hidden and owned by the screen, at the
    // end of its array with its iIndex; nullptr when the type has no class.
    KomaObject* AppendNewObject(int type);
    // Puts the object at the end of the type's array, owned by the screen,
    // with its iIndex and in the name index.
    KomaObject* AddToArray(int type, std::unique_ptr<KomaObject> object);

    Host& host_;
    LogSink& log_;
    ScreenEvents* events_ = nullptr;

    std::array<std::vector<std::unique_ptr<KomaObject>>, type::Count> arrays_;
    int numMenus_ = 0;
    // Every object of the arrays by name; the menus' names, counted, made
    // again after any form's menus changed.
    NameIndex names_;
    mutable std::unordered_map<std::string, int> menuNames_;
    mutable bool menuNamesValid_ = false;

    int screenMode_ = ModeIdle;
    bool allowDrawing_ = false;
    bool allowDrawingOnObjects_ = false;
    int createObjectType_ = type::None;
    int selectedObjectType_ = type::None;
    std::string selectedObjectName_;
    KomaObject* selectedObjectRef_ = nullptr;
    std::string currentDesignForm_;
    ctlKOMAForm* currentFormRef_ = nullptr;
    Band band_;
    ScreenCanvasState canvas_;

    double canvasWidth_ = 0;
    double canvasHeight_ = 0;
    double twipsPerPixel_ = kDefaultTwipsPerPixel;

    long long frontStamp_ = 0;
    long long backStamp_ = 0;
    // What the history's images talk to.
    std::shared_ptr<ObjectOwner> imageOwner_;
};

}  // namespace tolva
