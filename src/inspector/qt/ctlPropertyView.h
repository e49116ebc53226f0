#pragma once
// ctlPropertyView: the inspector. A titled, scrolling table of two columns,
// the property names left of a divider the user can drag and one editor per
// row at its right. It knows nothing of KOMA objects: it shows one property
// array with one list of allowed words per row and hands the whole array
// back, by PropertyChanged, each time one row has changed.
//
// Measures are kept in screen units (15 to a desktop pixel) and turned into
// pixels only when a control is placed.
#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

#include "inspector/PropertyArray.h"

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace tolva {

class ctlPropertyView : public QWidget {
    Q_OBJECT
public:
    explicit ctlPropertyView(QWidget* parent = nullptr);

    // Empties the view: no rows, no lists, every row hidden and emptied, the
    // scroll bar hidden, the title "Properties", CurrentRow 0.
    void ClearPropertiesList();

    // Shows the rows of an object: its property array (3 columns by N rows),
    // the value lists of its type and its name for the title. False, with an
    // empty view, for an array that has not 3 columns.
    bool SetProperties(const PropertyArray& values, const ValueLists& lists,
                       const std::string& name);

    // --- fields --------------------------------------------------------------
    const PropertyArray& PropertyValues() const { return propertyValues_; }
    const ValueLists& PropertyLists() const { return propertyLists_; }
    bool RowHasList(int row) const;
    int NumProperties() const { return numProperties_; }
    int NumVisibleRows() const { return numVisibleRows_; }
    int NameColumnWidth() const { return nameColumnWidth_; }
    int NameRowHeight() const { return nameRowHeight_; }
    int ValueColumnWidth() const { return valueColumnWidth_; }
    int ValueRowHeight() const { return valueRowHeight_; }
    bool DividerDragging() const { return dividerDragging_; }
    int CurrentRow() const { return currentRow_; }
    int FirstVisibleRow() const { return firstVisibleRow_; }
    int LastVisibleRow() const { return lastVisibleRow_; }

    // The Left of picSlidingDivider and of VScroll1, in screen units.
    int DividerLeft() const { return dividerLeft_; }
    double ScrollBarLeft() const { return scrollLeft_; }
    // The rows made so far, the template not counted.
    int RowsMade() const { return static_cast<int>(rows_.size()) - 1; }

signals:
    // A row was committed; the argument is every row, the changed one with
    // its new value.
    void PropertyChanged(const tolva::PropertyArray& values);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        QLabel* lblPropertyName = nullptr;
        QLineEdit* txtAnyValue = nullptr;
        QComboBox* cmbOnlyValue = nullptr;
        QPushButton* cmdButton = nullptr;
    };

    Row MakeRow(int index);
    void MakeRowsUpTo(int count);
    static void HideRow(Row& row);
    static void EmptyRow(Row& row);

    // Places the rows on show, hides the others.
    void LayOut();
    // Places the fixed parts for the view's size; guarded against re-entry.
    void ApplyResize();
    // Runs ApplyResize when the size changed since it last ran.
    void EnsureResized();

    double ViewWidth() const;
    double ViewHeight() const;
    void Place(QWidget* widget, double left, double top, double width, double height);
    void PlaceDivider();

    int RowOf(QObject* editor) const;
    int RowKind(int row) const;
    void SetChoiceText(QComboBox* combo, const std::string& word);

    // The commit rules.
    // focusAfter: the widget that is to have the keyboard once the refresh
    // that answers the commit is done (the box itself, or the editor that
    // Tab or a click is moving to); nullptr leaves the focus alone.
    void CommitText(int row, QWidget* focusAfter);
    void EnterText(int row);
    void EscapeText(int row);
    void ChooseEntry(int row);
    void PressButton(int row);
    void RaisePropertyChanged(QWidget* focusAfter);

    void DragDivider(double mouseX);

    PropertyArray propertyValues_{0};
    ValueLists propertyLists_;
    std::vector<bool> rowHasList_;
    int numProperties_ = 0;
    int numVisibleRows_ = 0;
    int nameColumnWidth_;
    int nameRowHeight_;
    int valueColumnWidth_;
    int valueRowHeight_;
    bool dividerDragging_ = false;
    int currentRow_ = 0;
    int firstVisibleRow_ = 1;
    int lastVisibleRow_ = 0;

    double titleHeight_;
    int dividerLeft_;
    double dividerTop_ = 0;
    double dividerHeight_ = 0;
    double scrollLeft_ = 0;
    double scrollTop_ = 0;
    double scrollHeight_ = 0;
    double scrollWidth_;
    bool scrollShown_ = false;
    bool resizing_ = false;
    QSize resizedFor_;

    QLabel* lblTitle_ = nullptr;
    QFrame* shpBorder_ = nullptr;
    QFrame* lnPropertyDivider_ = nullptr;
    QFrame* picSlidingDivider_ = nullptr;
    QScrollBar* VScroll1_ = nullptr;
    // Index 0 is the template; rows 1 upward are made from it when needed.
    std::vector<Row> rows_;
};

}  // namespace tolva
