// Lines worked by hand in the editor: drawn with the mouse from the toolbar
// in both slopes, each end dragged by its node with the Start and End rows
// following, a refused end point typed, then saved, opened and saved again.
#include "canvas/SelectionNodes.h"
#include "document/ObjectTypes.h"
#include "objects/line/ctlKOMALine.h"
#include "shell/ByHandFixture.h"

namespace tolva::testing {
namespace {

constexpr int kLineTool = 15;

class LinesByHand : public ByHand {
protected:
    ctlKOMALine* LineAt(int index) {
        return static_cast<ctlKOMALine*>(Screen().ObjectAt(type::Line, index));
    }
    // The centre of a node, in the canvas widget's pixels.
    QPoint NodeCentre(int nodeNumber) {
        const CanvasRect& r = Screen().Canvas().nodes[static_cast<std::size_t>(nodeNumber)].rect;
        return CanvasWidget::ToPixels(r.left + r.width / 2, r.top + r.height / 2).toPoint();
    }
    QString Row(int row) {
        QLineEdit* box = Editor<QLineEdit>("txtAnyValue", row);
        return box ? box->text() : QString("(no row)");
    }
    // The four rows of the end points as the inspector shows them, and as
    // the line holds them.
    QStringList EndRows() { return {Row(2), Row(3), Row(4), Row(5)}; }
    static QStringList Ends(const ctlKOMALine& line) {
        return {QString::number(line.KOMAStartX()), QString::number(line.KOMAStartY()),
                QString::number(line.KOMAEndX()), QString::number(line.KOMAEndY())};
    }
};

TEST_F(LinesByHand, DrawnInBothSlopesTheirEndsDraggedSavedOpenedAndSavedAgain) {
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});

    // Up to the right, then down to the right.
    ClickTool(kLineTool);
    Drag({60, 300}, {250, 120});
    ClickTool(kLineTool);
    Drag({60, 160}, {250, 340});
    ASSERT_EQ(Screen().Count(type::Line), 2);
    ctlKOMALine* rising = LineAt(1);
    ctlKOMALine* falling = LineAt(2);
    EXPECT_TRUE(rising->PositiveSlope());
    EXPECT_FALSE(falling->PositiveSlope());
    EXPECT_LT(rising->KOMAStartX(), rising->KOMAEndX());
    EXPECT_GT(rising->KOMAStartY(), rising->KOMAEndY());
    EXPECT_LT(falling->KOMAStartY(), falling->KOMAEndY());
    // The second is selected, its rows shown.
    EXPECT_EQ(EndRows(), Ends(*falling));

    // Its end dragged to the right and up, past its start's height: the
    // line now rises, and the rows follow.
    const QStringList before = EndRows();
    const QPoint end = NodeCentre(node::Line2);
    Drag(end, end + QPoint(40, -250));
    EXPECT_NE(EndRows(), before);
    EXPECT_EQ(EndRows(), Ends(*falling));
    EXPECT_TRUE(falling->PositiveSlope());

    // The first line: its start dragged down and left.
    auto* objects = window->findChild<QComboBox*>("cmbObjects");
    const int index = objects->findText(QString::fromStdString(rising->KOMAName()));
    ASSERT_GE(index, 0);
    objects->setCurrentIndex(index);
    emit objects->activated(index);
    ASSERT_EQ(Screen().SelectedObjectName(), rising->KOMAName());
    const QStringList risingBefore = Ends(*rising);
    const QPoint start = NodeCentre(node::Line1);
    Drag(start, start + QPoint(-20, 30));
    EXPECT_EQ(EndRows(), Ends(*rising));
    EXPECT_NE(Ends(*rising)[0], risingBefore[0]);
    EXPECT_NE(Ends(*rising)[1], risingBefore[1]);
    // The other end stays, but for the snap of the band to the grid.
    EXPECT_NEAR(Ends(*rising)[2].toInt(), risingBefore[2].toInt(), 1);
    EXPECT_NEAR(Ends(*rising)[3].toInt(), risingBefore[3].toInt(), 1);

    // Typed end points: one refused, one taken.
    host.ClearRecord();
    Enter(4, "160");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"Tolva Resource Editor: Invalid EndX value: 160"}));
    EXPECT_EQ(Row(4), QString::number(rising->KOMAEndX()));
    host.ClearRecord();
    Enter(4, "150");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(rising->KOMAEndX(), 150);
    EXPECT_EQ(Row(4), "150");
    ChooseRow(6, "COLOR_GREY1");
    Enter(8, "2");
    EXPECT_EQ(rising->KOMAColorWord(), "COLOR_GREY1");
    EXPECT_EQ(rising->KOMAThick(), 2);

    const std::string saved = SaveDesignAs(dir, "first");
    EXPECT_NE(saved.find("(SH)LINE_ENDPT_X=150\r\n"), std::string::npos);
    EXPECT_NE(saved.find("(U)LINE_THICK=2\r\n"), std::string::npos);

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::Line), 2);
    EXPECT_EQ(SaveDesignAs(dir, "second"), saved);
    EXPECT_EQ(ReadFile(dir / "second.h"), ReadFile(dir / "first.h"));
}

}  // namespace
}  // namespace tolva::testing
