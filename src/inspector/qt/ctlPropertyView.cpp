#include "inspector/qt/ctlPropertyView.h"

#include <QComboBox>
#include <QApplication>
#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>

#include "document/PropertyLabels.h"
#include "document/RuntimeFailure.h"
#include "inspector/PropertyCommit.h"
#include "inspector/PropertyViewLayout.h"
#include "platform/Cp1252.h"
#include "shell/WindowUnits.h"

namespace tolva {

namespace {

constexpr int kPropertiesLabel = 122;
constexpr const char* kIndexProperty = "index";

QString PropertiesTitle() { return FromCp1252(PropertyLabel(kPropertiesLabel)); }

}  // namespace

ctlPropertyView::ctlPropertyView(QWidget* parent)
    : QWidget(parent),
      nameColumnWidth_(propview::kNameColumnWidth),
      nameRowHeight_(propview::kNameRowHeight),
      valueColumnWidth_(propview::kValueColumnWidth),
      valueRowHeight_(propview::kValueRowHeight),
      titleHeight_(propview::kTitleHeight),
      dividerLeft_(propview::kNameColumnWidth + propview::kMargin),
      scrollWidth_(propview::kScrollBarWidth) {
    setObjectName("ctlPropView");

    shpBorder_ = new QFrame(this);
    shpBorder_->setObjectName("shpBorder");
    shpBorder_->setFrameShape(QFrame::Box);
    shpBorder_->setAttribute(Qt::WA_TransparentForMouseEvents);

    lblTitle_ = new QLabel(PropertiesTitle(), this);
    lblTitle_->setObjectName("lblTitle");
    lblTitle_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont titleFont = lblTitle_->font();
    titleFont.setBold(true);
    lblTitle_->setFont(titleFont);

    lnPropertyDivider_ = new QFrame(this);
    lnPropertyDivider_->setObjectName("lnPropertyDivider");
    lnPropertyDivider_->setFrameShape(QFrame::VLine);
    lnPropertyDivider_->setAttribute(Qt::WA_TransparentForMouseEvents);

    picSlidingDivider_ = new QFrame(this);
    picSlidingDivider_->setObjectName("picSlidingDivider");
    picSlidingDivider_->setCursor(Qt::SplitHCursor);
    picSlidingDivider_->setMouseTracking(true);
    picSlidingDivider_->installEventFilter(this);

    VScroll1_ = new QScrollBar(Qt::Vertical, this);
    VScroll1_->setObjectName("VScroll1");
    VScroll1_->setRange(1, 1);
    VScroll1_->hide();
    connect(VScroll1_, &QScrollBar::valueChanged, this, [this](int) { LayOut(); });

    rows_.push_back(MakeRow(0));
    shpBorder_->lower();
    ApplyResize();
}

// --- rows -------------------------------------------------------------------------

ctlPropertyView::Row ctlPropertyView::MakeRow(int index) {
    Row row;
    row.lblPropertyName = new QLabel(this);
    row.lblPropertyName->setObjectName("lblPropertyName");

    row.txtAnyValue = new QLineEdit(this);
    row.txtAnyValue->setObjectName("txtAnyValue");
    row.txtAnyValue->installEventFilter(this);

    row.cmbOnlyValue = new QComboBox(this);
    row.cmbOnlyValue->setObjectName("cmbOnlyValue");
    // The wheel gives no focus: over a row that has none it scrolls the
    // view (see eventFilter).
    row.cmbOnlyValue->setFocusPolicy(Qt::StrongFocus);
    row.cmbOnlyValue->installEventFilter(this);
    connect(row.cmbOnlyValue, &QComboBox::activated, this, [this, index](int) {
        ChooseEntry(index);
    });

    row.cmdButton = new QPushButton(this);
    row.cmdButton->setObjectName("cmdButton");
    connect(row.cmdButton, &QPushButton::clicked, this, [this, index] { PressButton(index); });

    for (QWidget* widget : std::initializer_list<QWidget*>{
             row.lblPropertyName, row.txtAnyValue, row.cmbOnlyValue, row.cmdButton}) {
        widget->setProperty(kIndexProperty, index);
        widget->hide();
    }
    // Rows stand in front of the border, behind the divider.
    picSlidingDivider_->raise();
    return row;
}

void ctlPropertyView::MakeRowsUpTo(int count) {
    while (RowsMade() < count) rows_.push_back(MakeRow(RowsMade() + 1));
}

void ctlPropertyView::HideRow(Row& row) {
    row.lblPropertyName->hide();
    row.txtAnyValue->hide();
    row.cmbOnlyValue->hide();
    row.cmdButton->hide();
}

void ctlPropertyView::EmptyRow(Row& row) {
    row.lblPropertyName->clear();
    row.txtAnyValue->clear();
    row.cmbOnlyValue->clear();
    row.cmbOnlyValue->setPlaceholderText(QString());
    row.cmdButton->setText(QString());
}

bool ctlPropertyView::RowHasList(int row) const {
    if (row < 1 || row > static_cast<int>(rowHasList_.size())) return false;
    return rowHasList_[static_cast<size_t>(row - 1)];
}

int ctlPropertyView::RowOf(QObject* editor) const {
    const QVariant index = editor->property(kIndexProperty);
    return index.isValid() ? index.toInt() : 0;
}

int ctlPropertyView::RowKind(int row) const {
    // A kind that is no number is shown as free text.
    try {
        return propertyValues_.Kind(row);
    } catch (const RuntimeFailure&) {
        return rowkind::Text;
    }
}

void ctlPropertyView::SetChoiceText(QComboBox* combo, const std::string& word) {
    const int index = combo->findText(FromCp1252(word), Qt::MatchExactly | Qt::MatchCaseSensitive);
    combo->setCurrentIndex(index);
    // A word that is not in the list is shown all the same, chosen by none.
    combo->setPlaceholderText(index < 0 ? FromCp1252(word) : QString());
}

// --- the interface --------------------------------------------------------------------

void ctlPropertyView::ClearPropertiesList() {
    // The count goes first: a box that loses the focus as it hides commits
    // nothing while the view is empty.
    numProperties_ = 0;
    propertyValues_ = PropertyArray(0);
    propertyLists_.clear();
    rowHasList_.clear();
    for (size_t i = 1; i < rows_.size(); ++i) {
        HideRow(rows_[i]);
        EmptyRow(rows_[i]);
    }
    VScroll1_->hide();
    scrollShown_ = false;
    lblTitle_->setText(PropertiesTitle());
    currentRow_ = 0;
}

bool ctlPropertyView::SetProperties(const PropertyArray& values, const ValueLists& lists,
                                    const std::string& name) {
    ClearPropertiesList();
    if (values.Columns() != 3) return false;
    EnsureResized();

    const int count = values.Rows();
    propertyLists_.assign(static_cast<size_t>(count), {});
    rowHasList_.assign(static_cast<size_t>(count), false);
    MakeRowsUpTo(std::max(numVisibleRows_, count));

    for (int row = 1; row <= count; ++row) {
        const size_t at = static_cast<size_t>(row - 1);
        if (at < lists.size()) propertyLists_[at] = lists[at];
        QComboBox* combo = rows_[row].cmbOnlyValue;
        if (!propertyLists_[at].empty()) {
            rowHasList_[at] = true;
            for (const std::string& word : propertyLists_[at]) combo->addItem(FromCp1252(word));
            combo->setCurrentIndex(0);
        }
    }

    propertyValues_ = PropertyArray(count);
    for (int row = 1; row <= count; ++row) {
        for (int column = 1; column <= 3; ++column)
            propertyValues_.At(column, row) = values.At(column, row);
        Row& widgets = rows_[row];
        const QString label = FromCp1252(propertyValues_.At(1, row).Text());
        const QString value = FromCp1252(propertyValues_.At(3, row).Text());
        switch (RowKind(row)) {
            case rowkind::Choice:
                SetChoiceText(widgets.cmbOnlyValue, propertyValues_.At(3, row).Text());
                break;
            case rowkind::Button:
                widgets.cmdButton->setText(label);
                break;
            default:
                widgets.txtAnyValue->setText(value);
                widgets.txtAnyValue->setCursorPosition(0);
                break;
        }
        widgets.lblPropertyName->setText(label);
    }
    numProperties_ = count;
    if (currentRow_ > count) currentRow_ = 1;

    numVisibleRows_ = propview::VisibleRowsAfterSet(ViewHeight(), titleHeight_, nameRowHeight_);

    const propview::ScrollBarSetting bar = propview::ScrollBarFor(count, numVisibleRows_);
    scrollWidth_ = bar.width;
    scrollShown_ = bar.shown;
    {
        const QSignalBlocker quiet(VScroll1_);
        VScroll1_->setEnabled(bar.shown);
        VScroll1_->setRange(bar.minimum, bar.maximum);
    }
    // The width changes, the left edge stays where the last resize put it.
    Place(VScroll1_, scrollLeft_, scrollTop_, scrollWidth_, scrollHeight_);
    VScroll1_->setVisible(bar.shown);

    LayOut();
    lblTitle_->setText(FromCp1252(name) + " - " + PropertiesTitle());
    return true;
}

// --- layout --------------------------------------------------------------------------

double ctlPropertyView::ViewWidth() const { return width() * kUnitsPerPixel; }
double ctlPropertyView::ViewHeight() const { return height() * kUnitsPerPixel; }

void ctlPropertyView::Place(QWidget* widget, double left, double top, double width,
                            double height) {
    widget->setGeometry(UnitsToPixels(left), UnitsToPixels(top),
                        std::max(0, UnitsToPixels(width)), std::max(0, UnitsToPixels(height)));
}

void ctlPropertyView::PlaceDivider() {
    Place(picSlidingDivider_, dividerLeft_, dividerTop_, propview::kDividerWidth, dividerHeight_);
    // The drawn line runs down the middle of the sliding part.
    Place(lnPropertyDivider_, dividerLeft_ + propview::kDividerWidth / 2.0 - kUnitsPerPixel / 2,
          dividerTop_, kUnitsPerPixel, dividerHeight_);
}

void ctlPropertyView::LayOut() {
    const propview::VisibleRows visible =
        propview::RowsOnShow(numProperties_, numVisibleRows_, VScroll1_->value());
    firstVisibleRow_ = visible.first;
    lastVisibleRow_ = visible.last;

    const propview::RowColumns columns =
        propview::PlaceRowColumns(dividerLeft_, ViewWidth(), scrollShown_, scrollLeft_);
    for (int row = 1; row <= RowsMade(); ++row) {
        Row& widgets = rows_[static_cast<size_t>(row)];
        if (row < firstVisibleRow_ || row > lastVisibleRow_ || row > numProperties_) {
            HideRow(widgets);
            continue;
        }
        const double top =
            propview::RowTop(row, firstVisibleRow_, titleHeight_, valueRowHeight_);
        Place(widgets.lblPropertyName, columns.labelLeft, top, columns.labelWidth,
              nameRowHeight_);
        widgets.lblPropertyName->show();

        const int kind = RowKind(row);
        QWidget* editors[3] = {widgets.txtAnyValue, widgets.cmbOnlyValue, widgets.cmdButton};
        QWidget* shown = kind == rowkind::Choice   ? widgets.cmbOnlyValue
                         : kind == rowkind::Button ? static_cast<QWidget*>(widgets.cmdButton)
                                                   : widgets.txtAnyValue;
        for (QWidget* editor : editors) {
            if (editor != shown) editor->hide();
        }
        Place(shown, columns.editorLeft, top, columns.editorWidth, valueRowHeight_);
        shown->show();
    }
}

void ctlPropertyView::ApplyResize() {
    if (resizing_) return;
    resizing_ = true;
    const propview::ResizeGeometry g = propview::ResizedGeometry(
        ViewWidth(), ViewHeight(), scrollWidth_, nameColumnWidth_, nameRowHeight_);
    titleHeight_ = g.title.height;
    Place(lblTitle_, g.title.left, g.title.top, g.title.width, g.title.height);
    Place(shpBorder_, g.border.left, g.border.top, g.border.width, g.border.height);
    scrollLeft_ = g.scrollBar.left;
    scrollTop_ = g.scrollBar.top;
    scrollHeight_ = g.scrollBar.height;
    Place(VScroll1_, g.scrollBar.left, g.scrollBar.top, g.scrollBar.width, g.scrollBar.height);
    dividerLeft_ = static_cast<int>(g.divider.left);
    dividerTop_ = g.divider.top;
    dividerHeight_ = g.divider.height;
    PlaceDivider();
    numVisibleRows_ = g.numVisibleRows;
    resizedFor_ = size();
    resizing_ = false;
}

void ctlPropertyView::EnsureResized() {
    if (size() != resizedFor_) ApplyResize();
}

void ctlPropertyView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ApplyResize();
}

// --- the divider -----------------------------------------------------------------------

void ctlPropertyView::DragDivider(double mouseX) {
    const int left = propview::DraggedDividerLeft(dividerLeft_, mouseX, ViewWidth());
    if (left == dividerLeft_) return;
    dividerLeft_ = left;
    PlaceDivider();
    LayOut();
}

// --- commits ----------------------------------------------------------------------------

void ctlPropertyView::RaisePropertyChanged(QWidget* focusAfter) {
    // A copy: the receiver may refresh the view, which empties its own array.
    const PropertyArray values = propertyValues_;
    const QPointer<QWidget> keep = focusAfter;
    emit PropertyChanged(values);
    // The refresh hid the rows, and the keyboard went on to whatever came
    // next in the window. It comes back to the row that was committed (or
    // the one Tab or a click was moving to), when that row still shows.
    if (keep && isAncestorOf(keep) && keep->isVisible() && keep->isEnabled())
        keep->setFocus(Qt::OtherFocusReason);
}

void ctlPropertyView::CommitText(int row, QWidget* focusAfter) {
    if (row < 1 || row > numProperties_) return;
    currentRow_ = row;
    const std::string text = ToCp1252(rows_[static_cast<size_t>(row)].txtAnyValue->text());
    if (CommitRowText(propertyValues_, row, text)) RaisePropertyChanged(focusAfter);
}

void ctlPropertyView::EnterText(int row) {
    if (row < 1 || row > numProperties_) return;
    currentRow_ = row;
    QLineEdit* box = rows_[static_cast<size_t>(row)].txtAnyValue;
    if (CommitRowText(propertyValues_, row, ToCp1252(box->text()))) {
        RaisePropertyChanged(box);
    } else {
        box->setText(FromCp1252(RowValueText(propertyValues_, row)));
    }
}

void ctlPropertyView::EscapeText(int row) {
    if (row < 1 || row > numProperties_) return;
    rows_[static_cast<size_t>(row)].txtAnyValue->setText(
        FromCp1252(RowValueText(propertyValues_, row)));
}

void ctlPropertyView::ChooseEntry(int row) {
    if (row < 1 || row > numProperties_) return;
    currentRow_ = row;
    QComboBox* combo = rows_[static_cast<size_t>(row)].cmbOnlyValue;
    const std::string word = ToCp1252(combo->currentText());
    if (CommitRowText(propertyValues_, row, word)) RaisePropertyChanged(combo);
}

void ctlPropertyView::PressButton(int row) {
    if (row < 1 || row > numProperties_) return;
    currentRow_ = row;
    if (PressButtonRow(propertyValues_, row))
        RaisePropertyChanged(rows_[static_cast<size_t>(row)].cmdButton);
}

// --- events of the editors and the divider ---------------------------------------------

bool ctlPropertyView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == picSlidingDivider_) {
        // Only mouse events may be seen as QMouseEvent; everything else passes on.
        switch (event->type()) {
            case QEvent::MouseButtonPress:
                if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) dividerDragging_ = true;
                return true;
            case QEvent::MouseButtonRelease:
                dividerDragging_ = false;
                return true;
            case QEvent::MouseMove:
                if (dividerDragging_)
                    DragDivider(static_cast<QMouseEvent*>(event)->position().x() * kUnitsPerPixel);
                return true;
            default:
                return QWidget::eventFilter(watched, event);
        }
    }

    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched) &&
        watched->objectName() == "cmbOnlyValue") {
        // The wheel over a choice row scrolls the inspector; it changes the
        // row only while the row has the keyboard.
        if (static_cast<QWidget*>(watched)->hasFocus()) return QWidget::eventFilter(watched, event);
        if (VScroll1_->isVisible() && VScroll1_->isEnabled())
            QApplication::sendEvent(VScroll1_, event);
        return true;
    }

    if (qobject_cast<QLineEdit*>(watched) && watched->objectName() == "txtAnyValue") {
        const int row = RowOf(watched);
        switch (event->type()) {
            case QEvent::KeyPress: {
                const int key = static_cast<QKeyEvent*>(event)->key();
                if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                    EnterText(row);
                    return true;
                }
                if (key == Qt::Key_Escape) {
                    EscapeText(row);
                    return true;
                }
                break;
            }
            case QEvent::FocusOut: {
                // Leaving the box for another part of the program commits; the
                // window losing the focus to another one, or to a popup, does not.
                const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
                if (numProperties_ > 0 && reason != Qt::ActiveWindowFocusReason &&
                    reason != Qt::PopupFocusReason)
                    CommitText(row, QApplication::focusWidget());
                break;
            }
            case QEvent::MouseButtonRelease:
                CommitText(row, static_cast<QWidget*>(watched));
                break;
            default:
                break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace tolva
