// Steps named from what happened between their begin and end: a deletion,
// a drawing, a row, a popup entry with or without its dialog, a drag; a
// step that changed nothing is dropped; nested begins end once.
#include "document/Numbers.h"
#include "inspector/PropertyArray.h"
#include "screen/DesignHistory.h"
#include "screen/DesignSteps.h"
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

class DesignStepsTest : public ScreenTest {
protected:
    DesignHistory history{screen};
    DesignSteps steps{screen, history};

    void SetUp() override {
        ScreenTest::SetUp();
        ASSERT_TRUE(DrawForm());
        ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 14));
        history.Reset();
    }
};

TEST_F(DesignStepsTest, ADragIsAMoveOrAResize) {
    steps.Begin();
    ASSERT_TRUE(screen.MoveObject(type::Button, "BUTTON_1", At(30), At(40)));
    EXPECT_TRUE(steps.End());
    EXPECT_EQ(history.UndoText(), "Undo Move BUTTON_1");
    steps.Begin();
    ASSERT_TRUE(screen.ResizeObject(type::Button, "BUTTON_1", At(30), At(40), At(90), At(60)));
    EXPECT_TRUE(steps.End());
    EXPECT_EQ(history.UndoText(), "Undo Resize BUTTON_1");
}

TEST_F(DesignStepsTest, NothingChangedKeepsNothing) {
    steps.Begin();
    screen.SelectObject(type::Button, "BUTTON_1");
    EXPECT_FALSE(steps.End());
    EXPECT_EQ(history.StepCount(), 0u);
    EXPECT_FALSE(history.StepBegun());
}

TEST_F(DesignStepsTest, ADeletionNamesTheStepBeforeAnythingElse) {
    steps.Begin();
    steps.Edited("Set Name of BUTTON_1");
    steps.Deleted("BUTTON_1");
    steps.Deleted("STRING_1");
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_TRUE(steps.End());
    EXPECT_EQ(history.UndoText(), "Undo Delete BUTTON_1");
    ASSERT_TRUE(history.Undo());
    EXPECT_EQ(screen.Count(type::Button), 1);
}

TEST_F(DesignStepsTest, NestedBeginsEndOnce) {
    steps.Begin();
    steps.Begin();
    ASSERT_TRUE(Draw(type::String, 10, 40, 40, 14));
    steps.Created("STRING_1");
    EXPECT_FALSE(steps.End());
    EXPECT_TRUE(steps.Open());
    EXPECT_TRUE(steps.End());
    EXPECT_FALSE(steps.Open());
    EXPECT_EQ(history.UndoText(), "Undo Draw STRING_1");
    // An end without a begin does nothing.
    EXPECT_FALSE(steps.End());
    EXPECT_EQ(history.StepCount(), 1u);
}

TEST_F(DesignStepsTest, APopupEntryNamesItsDialogsStepAndACancelKeepsNone) {
    steps.Begin();
    steps.Chose("Edit List LIST_1");
    steps.DialogClosed(true, false, "Edit LIST_1");
    EXPECT_TRUE(steps.End());
    EXPECT_EQ(history.UndoText(), "Undo Edit List LIST_1");
    // Cancelled: no step.
    steps.Begin();
    steps.Chose("Edit List LIST_1");
    steps.DialogClosed(false, false, "Edit LIST_1");
    EXPECT_FALSE(steps.End());
    // Cancelled, but the dialog's changes stay.
    steps.Begin();
    steps.DialogClosed(false, true, "Edit TABLE_1");
    EXPECT_TRUE(steps.End());
    EXPECT_EQ(history.UndoText(), "Undo Edit TABLE_1");
    // An entry that opens no dialog is a step of its own.
    steps.Begin();
    steps.Chose("Clear Menu BUTTON_1");
    EXPECT_TRUE(steps.End());
    EXPECT_EQ(history.UndoText(), "Undo Clear Menu BUTTON_1");
    EXPECT_EQ(history.StepCount(), 3u);
}

}  // namespace
}  // namespace tolva::testing
