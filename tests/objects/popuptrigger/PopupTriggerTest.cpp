// The Popup trigger: its items with the text that follows the selected one,
// its setters, the 12 rows with the radius refusal, styles 1 and 2 alike on
// the screen, the editor from the popup menu, and its record with the items
// indexed from 0, written line by line and read strictly.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "objects/popuptrigger/PopupTriggerEditing.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"
#include "objects/popuptrigger/modPopuptrigger.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

class PopupTriggerTest : public OwnedObjectFixture<ctlKOMAPopupTrigger> {
protected:
    ctlKOMAPopupTrigger& trigger = object;
};

TEST_F(PopupTriggerTest, ANewPopupTriggerHasNoItems) {
    EXPECT_EQ(trigger.KOMAControlStyleWord(), "POPUP_TRIGGER");
    EXPECT_EQ(trigger.KOMAObjectTypeWord(), "CONTROL");
    EXPECT_EQ(trigger.KOMAWidth(), 53);
    EXPECT_EQ(trigger.KOMAHeight(), 23);
    EXPECT_EQ(trigger.KOMAControlSubTypeWord(), "POPUP_TRIGGER_STYLE_0");
    EXPECT_EQ(trigger.KOMAControlText(), "");
    EXPECT_EQ(trigger.KOMATextAlignmentWord(), "LEFT");
    EXPECT_EQ(trigger.KOMARadius(), 2);
    EXPECT_EQ(trigger.KOMANumItems(), 0);
    EXPECT_EQ(trigger.KOMASelectedItem(), -1);
    EXPECT_EQ(trigger.KOMATopItemNum(), 0);
}

TEST_F(PopupTriggerTest, TheTextFollowsTheSelectedItem) {
    trigger.SetList({"Apple", "Fig", "Pear"}, 1, 2);
    EXPECT_EQ(trigger.KOMAControlText(), "Fig");
    EXPECT_EQ(trigger.KOMANumItems(), 3);
    trigger.SetList({"Apple"}, -1, 0);
    EXPECT_EQ(trigger.KOMAControlText(), "");
}

TEST_F(PopupTriggerTest, SettersKeepTheirValuesOutsideTheirRanges) {
    trigger.SetList({"a", "b"}, 0, 0);
    trigger.KOMASelectedItem(2);
    trigger.KOMASelectedItem(-2);
    EXPECT_EQ(trigger.KOMASelectedItem(), 0);
    trigger.KOMASelectedItem(-1);
    EXPECT_EQ(trigger.KOMASelectedItem(), -1);
    trigger.KOMATopItemNum(2);
    trigger.KOMATopItemNum(1);
    EXPECT_EQ(trigger.KOMATopItemNum(), 1);
    trigger.KOMANumItems(-1);
    EXPECT_EQ(trigger.KOMANumItems(), 2);
    trigger.KOMAControlSubType(3);
    EXPECT_EQ(trigger.KOMAControlSubTypeWord(), "POPUP_TRIGGER_STYLE_0");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(PopupTriggerTest, RadiusZeroIsRefusedInTheInspector) {
    PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 12);
    const Lines labels = {"Name", "X Pos", "Y Pos", "Width", "Height", "Text Alignment",
                          "Popup Trigger Style", "Enabled", "Active", "Visible", "Radius", "Edit List..."};
    for (int i = 1; i <= 12; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    rows.At(3, 11) = PropertyCell(std::string("0"));
    rows.At(3, 7) = PropertyCell(std::string("POPUP_TRIGGER_STYLE_1"));
    ASSERT_TRUE(trigger.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"KOMARadius: Invalid button radius"}));
    EXPECT_EQ(trigger.KOMARadius(), 2);
    EXPECT_EQ(trigger.KOMAControlSubTypeWord(), "POPUP_TRIGGER_STYLE_1");
    ValueLists lists;
    FillPopupTriggerValueLists(lists);
    EXPECT_EQ(lists[6], (Lines{"POPUP_TRIGGER_STYLE_0", "POPUP_TRIGGER_STYLE_1", "POPUP_TRIGGER_STYLE_2"}));
    EXPECT_FALSE(trigger.SetPropertyList(PropertyArray(11)));
}

TEST_F(PopupTriggerTest, StylesOneAndTwoLookTheSameAndStyleZeroIsAnOutline) {
    trigger.SetCanvasSize(2000, 600);
    const DrawElementList plain = trigger.GetDrawElements();
    EXPECT_TRUE(Named(plain, "shpOutline").visible);
    EXPECT_FALSE(Named(plain, "shpBorder").visible);
    EXPECT_FALSE(Named(plain, "imgArrow.row(0)").visible);
    trigger.KOMAControlSubType(1);
    const DrawElementList one = trigger.GetDrawElements();
    trigger.KOMAControlSubType(2);
    const DrawElementList two = trigger.GetDrawElements();
    ASSERT_EQ(one.size(), two.size());
    for (std::size_t i = 0; i < one.size(); ++i) {
        EXPECT_EQ(one[i].rect, two[i].rect) << one[i].name;
        EXPECT_EQ(one[i].visible, two[i].visible) << one[i].name;
        EXPECT_EQ(one[i].x1, two[i].x1) << one[i].name;
    }
    EXPECT_EQ(Named(two, "shpBorder").rect, (CanvasRect{10, 10, 1990, 590}));
    const DrawElement arrowTop = Named(two, "imgArrow.row(0)");
    EXPECT_TRUE(arrowTop.visible);
    EXPECT_DOUBLE_EQ(arrowTop.x2 - arrowTop.x1, 7 * 36.59);
    EXPECT_DOUBLE_EQ(arrowTop.x1, 2000 - 11 * 36.59);
}

TEST_F(PopupTriggerTest, ThePopupMenuOpensTheEditorAndOkWritesTheItemsBack) {
    owner.host.popupAnswers = {0};
    owner.host.dialogAnswers.push_back([](DialogModel& model) {
        auto& edit = dynamic_cast<PopupTriggerEditing&>(model);
        edit.Add("Pear");
        edit.Add("Apple");
        edit.Sort();
        edit.Check(1, true);
        return true;
    });
    trigger.MouseDown(kRightButton, 0, 3, 3);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popupNames[0], (Lines{"mnuSetPropEditList"}));
    EXPECT_EQ(owner.host.popups[0].second, (Lines{"Edit List..."}));
    EXPECT_EQ(owner.host.dialogs, (Lines{"frmPopupTrigger"}));
    EXPECT_EQ(trigger.Items(), (Lines{"Apple", "Pear"}));
    EXPECT_EQ(trigger.KOMAControlText(), "Pear");
    // Cancel keeps them.
    owner.host.dialogAnswers.push_back([](DialogModel& model) {
        dynamic_cast<PopupTriggerEditing&>(model).RemoveAll();
        return false;
    });
    trigger.EditList();
    EXPECT_EQ(trigger.Items(), (Lines{"Apple", "Pear"}));
}

TEST(PopupTriggerEditingTest, AddingTheSameTextTwiceIsRefusedUnderTheDialogsTitle) {
    ScriptedHost host;
    PopupTriggerEditing edit(host);
    edit.SetList({"One"}, 0, 0);
    EXPECT_EQ(edit.TopItemChoices(), (Lines{"0"}));
    EXPECT_FALSE(edit.Add("One"));
    EXPECT_EQ(host.MessageLines(), (Lines{"Popup Trigger Editor: Duplicate items not allowed"}));
    EXPECT_TRUE(edit.Add("Two"));
    EXPECT_EQ(edit.TopItemChoices(), (Lines{"0", "1"}));
    edit.Check(1, true);
    EXPECT_EQ(edit.Selected(), 1);
    edit.Check(0, true);
    EXPECT_EQ(edit.Selected(), 0);
}

// --- record ----------------------------------------------------------------------------------

class PopupTriggerRecordTest : public ResourceFileTest {
protected:
    ctlKOMAPopupTrigger* First() { return static_cast<ctlKOMAPopupTrigger*>(Obj(type::PopupTrigger, 1)); }
};

TEST_F(PopupTriggerRecordTest, AnEmptyListIsWrittenWithItsCommentAndNoItemLines) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::PopupTrigger, 10, 20, 60, 14));
    LineList lines;
    bool ok = false;
    First()->ReturnResourceFileText(lines, ok);
    ASSERT_TRUE(ok);
    const Lines tail(lines.end() - 8, lines.end());
    const Lines expectedTail = {"(BO)CONTROL_ATTR.VISIBLE=TRUE", "~F8", "(U)CONTROL_ADD.RADIUS=2",
                                "(U)CONTROL_ADD.NUM_OF_OBJECTS=0", "(SH)CONTROL_ADD.SELECTED_ITEM=-1",
                                "(U)CONTROL_ADD.TOP_ITEM_NUM=0", "//any text", "#END_CONTROL"};
    EXPECT_EQ(tail, expectedTail);
    const Lines head(lines.begin() + 18, lines.begin() + 26);
    EXPECT_EQ(head, (Lines{"~F3", "(B)CONTROL_STYLE=POPUP_TRIGGER", "~F4",
                           "//POPUP_TRIGGER_STYLE_0,POPUP_TRIGGER_STYLE_1,POPUP_TRIGGER_STYLE_2, ...",
                           "(B)CONTROL_SUBTYPE=POPUP_TRIGGER_STYLE_0", "~F5", "(S)CONTROL_TEXT=", "~F6"}));
}

TEST_F(PopupTriggerRecordTest, ItemsGoThroughSaveAndLoadIndexedFromZero) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::PopupTrigger, 10, 20, 60, 14));
    First()->SetList({"Apple", "Fig"}, 1, 1);
    First()->KOMARadius(0);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    EXPECT_NE(first.find("(S)CONTROL_ADD.ITEM0=Apple\r\n(S)CONTROL_ADD.ITEM1=Fig\r\n"), std::string::npos);
    ASSERT_TRUE(Reload(first));
    EXPECT_EQ(First()->Items(), (Lines{"Apple", "Fig"}));
    EXPECT_EQ(First()->KOMAControlText(), "Fig");
    EXPECT_EQ(First()->KOMARadius(), 0);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(PopupTriggerRecordTest, MoreItemsCountedThanWrittenFailAtTheLineAfterTheLast) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::PopupTrigger, 10, 20, 60, 14));
    First()->SetList({"Apple", "Fig"}, 1, 1);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    Reload(Replaced(ReadBytes(path), "NUM_OF_OBJECTS=2", "NUM_OF_OBJECTS=3"));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_NE(messages[0].find(":  #END_CONTROL"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load popuptrigger object");
}

}  // namespace
}  // namespace tolva::testing
