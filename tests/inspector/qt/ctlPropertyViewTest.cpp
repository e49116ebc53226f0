// The inspector widget, offscreen: its rows, its layout, the divider, the
// scroll bar and the commit rules.
#include "inspector/qt/ctlPropertyView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <cmath>
#include <memory>

#include "support/TestStrings.h"

namespace tolva {
namespace {

// The inspector of the main window is 5535 by 5775 units: 369 by 385 pixels.
constexpr int kWidthPixels = 369;
constexpr int kHeightPixels = 385;

// Screen units to pixels, to the nearest one.
int Px(double units) { return static_cast<int>(std::lround(units / 15.0)); }

class PropertyViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        testing::EnsureStringsLoaded();
        view = std::make_unique<ctlPropertyView>();
        view->resize(kWidthPixels, kHeightPixels);
        view->show();
        view->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
        QObject::connect(view.get(), &ctlPropertyView::PropertyChanged,
                         [this](const PropertyArray& values) { raised.push_back(values); });
    }

    // A form-like list: text rows, a choice row, a button row.
    static PropertyArray FormRows() {
        PropertyArray rows(6);
        rows.SetRow(1, "Name", rowkind::Text, "FORM_1");
        rows.SetRow(2, "X Pos", rowkind::Text, 0);
        rows.SetRow(3, "Y Pos", rowkind::Text, 0);
        rows.SetRow(4, "Form Style", rowkind::Choice, "NORMAL");
        rows.SetRow(5, "Form Bitmap", rowkind::Button, false);
        rows.SetRow(6, "Form Title", rowkind::Text, "Form Title");
        return rows;
    }
    static ValueLists FormLists() {
        ValueLists lists(6);
        lists[3] = {"NORMAL", "BACKGROUND", "BITMAP_DIALOG", "NON_BITMAP_DIALOG"};
        return lists;
    }
    static PropertyArray ManyRows(int count) {
        PropertyArray rows(count);
        for (int row = 1; row <= count; ++row)
            rows.SetRow(row, "Row " + std::to_string(row), rowkind::Text, row);
        return rows;
    }

    bool ShowForm() { return view->SetProperties(FormRows(), FormLists(), "FORM_1"); }

    template <typename T>
    T* Editor(const char* name, int index) {
        for (T* widget : view->findChildren<T*>(QString::fromLatin1(name))) {
            if (widget->property("index").toInt() == index) return widget;
        }
        return nullptr;
    }
    QLineEdit* Text(int row) { return Editor<QLineEdit>("txtAnyValue", row); }
    QComboBox* Choice(int row) { return Editor<QComboBox>("cmbOnlyValue", row); }
    QPushButton* Button(int row) { return Editor<QPushButton>("cmdButton", row); }
    QLabel* Label(int row) { return Editor<QLabel>("lblPropertyName", row); }
    QLabel* Title() { return view->findChild<QLabel*>("lblTitle"); }
    QScrollBar* ScrollBar() { return view->findChild<QScrollBar*>("VScroll1"); }
    QWidget* Divider() { return view->findChild<QWidget*>("picSlidingDivider"); }

    // The user clicks into a box and types.
    void TypeInto(int row, const QString& text) {
        QLineEdit* box = Text(row);
        box->setFocus(Qt::MouseFocusReason);
        box->selectAll();
        QTest::keyClicks(box, text);
    }

    // A move of the mouse over the divider, x pixels from its left edge.
    void MoveOverDivider(int x, Qt::MouseButtons buttons = Qt::LeftButton) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, 5), Divider()->mapToGlobal(QPointF(x, 5)),
                         Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(Divider(), &move);
    }

    std::unique_ptr<ctlPropertyView> view;
    std::vector<PropertyArray> raised;
};

// --- empty and full ------------------------------------------------------------------

TEST_F(PropertyViewTest, EmptyAfterCreation) {
    EXPECT_EQ(view->objectName(), "ctlPropView");
    EXPECT_EQ(Title()->text(), "Properties");
    EXPECT_EQ(view->NumProperties(), 0);
    EXPECT_EQ(view->CurrentRow(), 0);
    EXPECT_EQ(view->NameColumnWidth(), 2900);
    EXPECT_EQ(view->NameRowHeight(), 315);
    EXPECT_EQ(view->ValueColumnWidth(), 1935);
    EXPECT_EQ(view->ValueRowHeight(), 315);
    EXPECT_FALSE(view->DividerDragging());
    EXPECT_FALSE(ScrollBar()->isVisible());
    for (auto* box : view->findChildren<QLineEdit*>("txtAnyValue")) EXPECT_FALSE(box->isVisible());
}

TEST_F(PropertyViewTest, TheTemplateRowIsIndexZeroAndHidden) {
    ASSERT_NE(Text(0), nullptr);
    ASSERT_NE(Choice(0), nullptr);
    ASSERT_NE(Button(0), nullptr);
    ASSERT_NE(Label(0), nullptr);
    ASSERT_TRUE(ShowForm());
    EXPECT_FALSE(Text(0)->isVisible());
    EXPECT_FALSE(Label(0)->isVisible());
}

TEST_F(PropertyViewTest, SetPropertiesShowsEachRowWithTheEditorOfItsKind) {
    ASSERT_TRUE(ShowForm());
    EXPECT_EQ(Title()->text(), "FORM_1 - Properties");
    EXPECT_EQ(view->NumProperties(), 6);
    EXPECT_EQ(Label(1)->text(), "Name");
    EXPECT_EQ(Text(1)->text(), "FORM_1");
    EXPECT_EQ(Text(2)->text(), "0");
    EXPECT_TRUE(Text(1)->isVisible());
    EXPECT_FALSE(Choice(1)->isVisible());
    EXPECT_FALSE(Button(1)->isVisible());

    EXPECT_TRUE(Choice(4)->isVisible());
    EXPECT_FALSE(Text(4)->isVisible());
    EXPECT_EQ(Choice(4)->currentText(), "NORMAL");
    EXPECT_EQ(Choice(4)->count(), 4);
    EXPECT_TRUE(view->RowHasList(4));
    EXPECT_FALSE(view->RowHasList(1));

    EXPECT_TRUE(Button(5)->isVisible());
    EXPECT_EQ(Button(5)->text(), "Form Bitmap");
    EXPECT_EQ(Label(5)->text(), "Form Bitmap");
    EXPECT_FALSE(Text(5)->isVisible());
}

TEST_F(PropertyViewTest, AChoiceShowsTheValueEvenWhenItIsNotInTheList) {
    ValueLists lists = FormLists();
    lists[3] = {"BACKGROUND"};
    PropertyArray rows = FormRows();
    ASSERT_TRUE(view->SetProperties(rows, lists, "FORM_1"));
    EXPECT_EQ(Choice(4)->currentIndex(), -1);
    EXPECT_EQ(Choice(4)->placeholderText(), "NORMAL");
}

TEST_F(PropertyViewTest, AnArrayWithoutThreeColumnsLeavesTheViewEmpty) {
    ASSERT_TRUE(ShowForm());
    EXPECT_FALSE(view->SetProperties(PropertyArray(4, 2), {}, "X"));
    EXPECT_EQ(view->NumProperties(), 0);
    EXPECT_EQ(Title()->text(), "Properties");
    EXPECT_FALSE(Text(1)->isVisible());
}

TEST_F(PropertyViewTest, ClearPropertiesListHidesAndEmptiesEveryRow) {
    ASSERT_TRUE(ShowForm());
    view->ClearPropertiesList();
    EXPECT_EQ(view->NumProperties(), 0);
    EXPECT_EQ(view->PropertyValues().Rows(), 0);
    EXPECT_TRUE(view->PropertyLists().empty());
    EXPECT_EQ(Title()->text(), "Properties");
    EXPECT_EQ(view->CurrentRow(), 0);
    for (int row = 1; row <= 6; ++row) {
        EXPECT_FALSE(Label(row)->isVisible()) << row;
        EXPECT_TRUE(Text(row)->text().isEmpty()) << row;
        EXPECT_EQ(Choice(row)->count(), 0) << row;
    }
    EXPECT_FALSE(ScrollBar()->isVisible());
}

TEST_F(PropertyViewTest, RowsAreMadeForAllThatFitEvenWhenTheListIsShorter) {
    // A resize counted 16 rows; the list has 6.
    ASSERT_TRUE(ShowForm());
    EXPECT_EQ(view->RowsMade(), 16);
    EXPECT_FALSE(Text(7)->isVisible());
    EXPECT_TRUE(Text(7)->text().isEmpty());
}

TEST_F(PropertyViewTest, RowsOnceMadeAreReused) {
    ASSERT_TRUE(view->SetProperties(ManyRows(20), {}, "A"));
    const int made = view->RowsMade();
    EXPECT_GE(made, 20);
    ASSERT_TRUE(ShowForm());
    ASSERT_TRUE(view->SetProperties(ManyRows(20), {}, "A"));
    EXPECT_EQ(view->RowsMade(), made);
    EXPECT_EQ(view->findChildren<QLineEdit*>("txtAnyValue").size(), made + 1);
}

// --- layout and the scroll bar ---------------------------------------------------------

TEST_F(PropertyViewTest, ManyRowsShowTheScrollBarWithRangeOneToNLessVisibleRows) {
    ASSERT_TRUE(view->SetProperties(ManyRows(20), {}, "A"));
    EXPECT_EQ(view->NumVisibleRows(), 15);  // (5775 - 500) / 315 - 2, rounded
    EXPECT_TRUE(ScrollBar()->isVisible());
    EXPECT_TRUE(ScrollBar()->isEnabled());
    EXPECT_EQ(ScrollBar()->minimum(), 1);
    EXPECT_EQ(ScrollBar()->maximum(), 20 - 15);
    EXPECT_EQ(ScrollBar()->width(), Px(255));
    EXPECT_EQ(view->FirstVisibleRow(), 1);
    EXPECT_EQ(view->LastVisibleRow(), 16);
    EXPECT_TRUE(Text(16)->isVisible());
    EXPECT_FALSE(Text(17)->isVisible());
}

TEST_F(PropertyViewTest, FewRowsShowNoScrollBarAndWiderEditors) {
    ASSERT_TRUE(view->SetProperties(ManyRows(20), {}, "A"));
    const int narrow = Text(1)->width();
    ASSERT_TRUE(ShowForm());
    EXPECT_FALSE(ScrollBar()->isVisible());
    EXPECT_EQ(view->FirstVisibleRow(), 1);
    EXPECT_EQ(view->LastVisibleRow(), 6);
    const int wide = Text(1)->width();
    EXPECT_GT(wide, narrow);
    // Editor left 2915 + 65 = 2980 units; widths 5535 - 2980 - 30 and 5265 - 2980 - 30.
    EXPECT_EQ(Text(1)->x(), Px(2980));
    EXPECT_EQ(wide, Px(2525));
    EXPECT_EQ(narrow, Px(2255));
}

TEST_F(PropertyViewTest, TheScrollBarIsZeroWideWhileHiddenAnd255WhenShownAgain) {
    ASSERT_TRUE(ShowForm());
    EXPECT_EQ(ScrollBar()->width(), 0);
    ASSERT_TRUE(view->SetProperties(ManyRows(20), {}, "A"));
    EXPECT_EQ(ScrollBar()->width(), Px(255));
    EXPECT_EQ(ScrollBar()->x(), Px(5265));
    EXPECT_EQ(ScrollBar()->y(), Px(515));
}

TEST_F(PropertyViewTest, ScrollingShowsTheRowsFromTheScrollValue) {
    ASSERT_TRUE(view->SetProperties(ManyRows(20), {}, "A"));
    ScrollBar()->setValue(3);
    EXPECT_EQ(view->FirstVisibleRow(), 3);
    EXPECT_EQ(view->LastVisibleRow(), 18);
    EXPECT_FALSE(Text(2)->isVisible());
    EXPECT_TRUE(Text(3)->isVisible());
    EXPECT_EQ(Text(3)->y(), Px(515));
    EXPECT_TRUE(Text(18)->isVisible());
    EXPECT_FALSE(Text(19)->isVisible());
    EXPECT_EQ(Text(4)->y(), Px(515 + 315));
}

TEST_F(PropertyViewTest, AResizeCountsOneRowMoreUntilTheNextSet) {
    ASSERT_TRUE(ShowForm());
    EXPECT_EQ(view->NumVisibleRows(), 15);
    view->resize(kWidthPixels + 1, kHeightPixels);
    view->resize(kWidthPixels, kHeightPixels);
    EXPECT_EQ(view->NumVisibleRows(), 16);
    ASSERT_TRUE(ShowForm());
    EXPECT_EQ(view->NumVisibleRows(), 15);
}

TEST_F(PropertyViewTest, AResizePlacesTheTitleTheScrollBarAndTheDivider) {
    EXPECT_EQ(Title()->geometry(), QRect(Px(15), Px(15), Px(5505), Px(500)));
    EXPECT_EQ(ScrollBar()->x(), Px(5265));
    EXPECT_EQ(view->ScrollBarLeft(), 5265);
    EXPECT_EQ(view->DividerLeft(), 2915);
    EXPECT_EQ(Divider()->x(), Px(2915));
    EXPECT_EQ(Divider()->width(), Px(50));
}

// --- the divider --------------------------------------------------------------------

TEST_F(PropertyViewTest, DraggingTheDividerMovesTheColumns) {
    ASSERT_TRUE(ShowForm());
    QTest::mousePress(Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 5));
    EXPECT_TRUE(view->DividerDragging());
    MoveOverDivider(10);  // 150 units
    EXPECT_EQ(view->DividerLeft(), 2915 + 150);
    EXPECT_EQ(Label(1)->width(), Px(2915 + 150 - 15));
    EXPECT_EQ(Text(1)->x(), Px(2915 + 150 + 65));
    QTest::mouseRelease(Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 5));
    EXPECT_FALSE(view->DividerDragging());
    MoveOverDivider(10, Qt::NoButton);
    EXPECT_EQ(view->DividerLeft(), 2915 + 150);
}

TEST_F(PropertyViewTest, TheDividerStopsAtSevenHundred) {
    QTest::mousePress(Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 5));
    MoveOverDivider(-300);
    EXPECT_EQ(view->DividerLeft(), 700);
    MoveOverDivider(-1);
    EXPECT_EQ(view->DividerLeft(), 700);
    QTest::mouseRelease(Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 5));
}

TEST_F(PropertyViewTest, TheDividerStopsAtTheWidthLess1065) {
    QTest::mousePress(Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 5));
    MoveOverDivider(300);
    EXPECT_EQ(view->DividerLeft(), 5535 - 1065);
    MoveOverDivider(1);
    EXPECT_EQ(view->DividerLeft(), 5535 - 1065);
    QTest::mouseRelease(Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 5));
}

TEST_F(PropertyViewTest, OnlyTheLeftButtonDragsTheDivider) {
    QTest::mousePress(Divider(), Qt::RightButton, Qt::NoModifier, QPoint(0, 5));
    EXPECT_FALSE(view->DividerDragging());
    MoveOverDivider(10, Qt::RightButton);
    EXPECT_EQ(view->DividerLeft(), 2915);
}

// --- commits ------------------------------------------------------------------------

TEST_F(PropertyViewTest, TypedTextWithEnterRaisesOnce) {
    ASSERT_TRUE(ShowForm());
    TypeInto(1, "MAIN");
    EXPECT_TRUE(raised.empty());
    QTest::keyClick(Text(1), Qt::Key_Return);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(raised[0].Rows(), 6);
    EXPECT_EQ(raised[0].Value(1).Text(), "MAIN");
    EXPECT_EQ(raised[0].Value(6).Text(), "Form Title");
    EXPECT_EQ(view->PropertyValues().Value(1).Text(), "MAIN");
    EXPECT_EQ(view->CurrentRow(), 1);
}

TEST_F(PropertyViewTest, TheKeypadEnterCommitsToo) {
    ASSERT_TRUE(ShowForm());
    TypeInto(2, "12");
    QTest::keyClick(Text(2), Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(raised[0].Value(2).Text(), "12");
    EXPECT_EQ(view->CurrentRow(), 2);
}

TEST_F(PropertyViewTest, LeavingTheBoxAfterEnterRaisesNothing) {
    ASSERT_TRUE(ShowForm());
    TypeInto(1, "MAIN");
    QTest::keyClick(Text(1), Qt::Key_Return);
    ASSERT_EQ(raised.size(), 1u);
    Text(6)->setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(Text(1)->hasFocus());
    EXPECT_EQ(raised.size(), 1u);
}

TEST_F(PropertyViewTest, EscapeRestoresTheTextAndRaisesNothing) {
    ASSERT_TRUE(ShowForm());
    TypeInto(1, "MAIN");
    QTest::keyClick(Text(1), Qt::Key_Escape);
    EXPECT_EQ(Text(1)->text(), "FORM_1");
    EXPECT_TRUE(raised.empty());
    // Nothing is left to commit when the box is left afterwards.
    Text(6)->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(raised.empty());
    EXPECT_EQ(view->PropertyValues().Value(1).Text(), "FORM_1");
}

TEST_F(PropertyViewTest, LeavingTheBoxAfterTypingRaisesOnce) {
    ASSERT_TRUE(ShowForm());
    TypeInto(2, "40");
    Text(3)->setFocus(Qt::TabFocusReason);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(raised[0].Value(2).Text(), "40");
    EXPECT_EQ(view->CurrentRow(), 2);
}

TEST_F(PropertyViewTest, TwoUnchangedTextRowsNeverRaise) {
    ASSERT_TRUE(ShowForm());
    Text(2)->setFocus(Qt::MouseFocusReason);
    QTest::mouseClick(Text(2), Qt::LeftButton);
    QTest::keyClick(Text(2), Qt::Key_Return);
    Text(3)->setFocus(Qt::TabFocusReason);
    QTest::mouseClick(Text(3), Qt::LeftButton);
    QTest::keyClick(Text(3), Qt::Key_Return);
    Text(2)->setFocus(Qt::TabFocusReason);
    // The same text typed again is no change either.
    TypeInto(3, "0");
    QTest::keyClick(Text(3), Qt::Key_Return);
    Text(2)->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(raised.empty());
    EXPECT_EQ(Text(2)->text(), "0");
    EXPECT_EQ(Text(3)->text(), "0");
}

TEST_F(PropertyViewTest, AClickInTheBoxCommitsTheTypedText) {
    ASSERT_TRUE(ShowForm());
    TypeInto(6, "Hello");
    QTest::mouseClick(Text(6), Qt::LeftButton);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(raised[0].Value(6).Text(), "Hello");
}

TEST_F(PropertyViewTest, ABoxThatHidesWithAnEmptiedViewRaisesNothing) {
    ASSERT_TRUE(ShowForm());
    TypeInto(1, "MAIN");
    view->ClearPropertiesList();
    EXPECT_FALSE(Text(1)->hasFocus());
    EXPECT_TRUE(raised.empty());
}

TEST_F(PropertyViewTest, LosingTheWindowKeepsTheTypedText) {
    ASSERT_TRUE(ShowForm());
    TypeInto(1, "MAIN");
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(Text(1), &out);
    EXPECT_TRUE(raised.empty());
    EXPECT_EQ(Text(1)->text(), "MAIN");
}

TEST_F(PropertyViewTest, ChoosingAnEntryRaisesWithTheWord) {
    ASSERT_TRUE(ShowForm());
    QComboBox* combo = Choice(4);
    combo->setCurrentIndex(2);
    emit combo->activated(2);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(raised[0].Value(4).Text(), "BITMAP_DIALOG");
    EXPECT_EQ(view->CurrentRow(), 4);
}

TEST_F(PropertyViewTest, ChoosingTheSameEntryRaisesNothing) {
    ASSERT_TRUE(ShowForm());
    QComboBox* combo = Choice(4);
    combo->setCurrentIndex(0);
    emit combo->activated(0);
    EXPECT_TRUE(raised.empty());
}

TEST_F(PropertyViewTest, AButtonRowRaisesWithTrue) {
    ASSERT_TRUE(ShowForm());
    QTest::mouseClick(Button(5), Qt::LeftButton);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(raised[0].Value(5), PropertyCell(true));
    EXPECT_EQ(view->CurrentRow(), 5);
}

TEST_F(PropertyViewTest, AButtonRowRaisesEvenWhenAlreadyTrue) {
    PropertyArray rows = FormRows();
    rows.SetRow(5, "Form Bitmap", rowkind::Button, true);
    ASSERT_TRUE(view->SetProperties(rows, FormLists(), "FORM_1"));
    QTest::mouseClick(Button(5), Qt::LeftButton);
    QTest::mouseClick(Button(5), Qt::LeftButton);
    ASSERT_EQ(raised.size(), 2u);
    EXPECT_EQ(raised[1].Value(5), PropertyCell(true));
}

TEST_F(PropertyViewTest, TheReceiverMayRefreshTheViewWhileHandlingTheChange) {
    ASSERT_TRUE(ShowForm());
    QObject::connect(view.get(), &ctlPropertyView::PropertyChanged, view.get(),
                     [this](const PropertyArray& values) {
                         PropertyArray fresh = values;
                         view->SetProperties(fresh, FormLists(), values.Value(1).Text());
                     });
    TypeInto(1, "MAIN");
    QTest::keyClick(Text(1), Qt::Key_Return);
    ASSERT_EQ(raised.size(), 1u);
    EXPECT_EQ(Title()->text(), "MAIN - Properties");
    EXPECT_EQ(Text(1)->text(), "MAIN");
    Text(6)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(raised.size(), 1u);
}

}  // namespace
}  // namespace tolva
