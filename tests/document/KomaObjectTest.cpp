// The contract every kind of object shares, tried on a Button (the plainest
// kind) and on every kind where the rule is per kind.
#include "document/KomaObject.h"

#include <gtest/gtest.h>

#include <memory>

#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/string/ctlKOMAString.h"
#include "support/RecordingOwner.h"
#include "support/TestStrings.h"

namespace tolva {
namespace {

using testing::RecordingOwner;

class KomaObjectTest : public ::testing::Test {
protected:
    void SetUp() override {
        testing::EnsureStringsLoaded();
        button.SetOwner(&owner);
    }

    PropertyArray Rows() {
        PropertyArray rows;
        button.GetPropertyList(rows);
        return rows;
    }

    std::vector<std::string> Messages() const { return owner.host.MessageLines(); }

    RecordingOwner owner;
    ctlKOMAButton button;
};

TEST_F(KomaObjectTest, BoundsX160IsRefusedWidth160IsTaken) {
    button.KOMABoundsX(160);
    EXPECT_EQ(button.KOMABoundsX(), 0);
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "Invalid value");
    EXPECT_EQ(owner.host.messages[0].title, "KOMABoundsX");

    button.KOMAWidth(160);
    EXPECT_EQ(button.KOMAWidth(), 160);
    EXPECT_EQ(owner.host.messages.size(), 1u);

    button.KOMABoundsX(159);
    EXPECT_EQ(button.KOMABoundsX(), 159);
}

TEST_F(KomaObjectTest, BoundsYAndSizeRangesWithTheirTitles) {
    button.KOMABoundsY(-1);
    button.KOMAWidth(161);
    button.KOMAHeight(-1);
    EXPECT_EQ(button.KOMABoundsY(), 0);
    EXPECT_EQ(button.KOMAWidth(), 46);
    EXPECT_EQ(button.KOMAHeight(), 20);
    // The size setters have no title of their own: the box shows the
    // application's title.
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMABoundsY: Invalid value",
                                                    "Tolva Resource Editor: Invalid value",
                                                    "Tolva Resource Editor: Invalid value"}));
}

TEST_F(KomaObjectTest, RelatedTableId65535IsValidAndMeansNoTable) {
    // An object outside the control family refuses a negative ID.
    ctlKOMAString text;
    text.SetOwner(&owner);
    EXPECT_EQ(text.KOMARelatedTableID(), kNotInTable);
    text.KOMARelatedTableID(3);
    text.KOMARelatedTableID(65535);
    EXPECT_EQ(text.KOMARelatedTableID(), 65535);
    EXPECT_TRUE(owner.host.messages.empty());
    text.KOMARelatedTableID(-1);
    EXPECT_EQ(text.KOMARelatedTableID(), 65535);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMARelatedTableID: Invalid value"}));
}

TEST_F(KomaObjectTest, AControlTestsTheRelatedTableItHoldsNotTheNewOne) {
    EXPECT_EQ(button.KOMARelatedTableID(), kNotInTable);
    button.KOMARelatedTableID(-1);  // the held 65535 is fine: -1 is taken
    EXPECT_EQ(button.KOMARelatedTableID(), -1);
    EXPECT_TRUE(owner.host.messages.empty());
    button.KOMARelatedTableID(7);  // now the held value is negative: refused
    EXPECT_EQ(button.KOMARelatedTableID(), -1);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMARelatedTableID: Invalid value"}));
}

TEST_F(KomaObjectTest, NegativeObjectIdIsRefused) {
    button.KOMAObjectID(7);
    button.KOMAObjectID(-1);
    EXPECT_EQ(button.KOMAObjectID(), 7);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAObjectID: Invalid value"}));
}

TEST_F(KomaObjectTest, ArrayWithARowTooFewOrTooManyChangesNothing) {
    for (int rowCount : {4, 6}) {
        PropertyArray rows(rowCount);
        rows.SetRow(1, "Name", 0, "OTHER");
        rows.SetRow(2, "X Pos", 0, "10");
        rows.SetRow(3, "Y Pos", 0, "10");
        rows.SetRow(4, "Width", 0, "10");
        EXPECT_FALSE(button.SetPropertyList(rows));
    }
    PropertyArray twoColumns(5, 2);
    EXPECT_FALSE(button.SetPropertyList(twoColumns));
    EXPECT_EQ(button.KOMAName(), "BUTTON_");
    EXPECT_EQ(button.KOMABoundsX(), 0);
    EXPECT_TRUE(owner.events.empty());
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(KomaObjectTest, OwnNameAgainRunsNoUniquenessTest) {
    button.KOMAName("BUTTON_1");
    PropertyArray rows = Rows();
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(owner.uniquenessChecks, 0);
    EXPECT_TRUE(owner.events.empty());
}

TEST_F(KomaObjectTest, NewFreeNameIsTakenATakenOneRefused) {
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell("OK_BUTTON");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMAName(), "OK_BUTTON");

    owner.takenNames.insert("FORM_1");
    rows = Rows();
    rows.At(3, 1) = PropertyCell("FORM_1");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMAName(), "OK_BUTTON");
    EXPECT_EQ(Messages(),
              (std::vector<std::string>{"Tolva Resource Editor: Object name must be unique"}));
}

TEST_F(KomaObjectTest, NameThatFailsTheRuleIsIgnoredInSilence) {
    for (const char* bad : {"1_", "A B", "", "Caf\xe9"}) {
        PropertyArray rows = Rows();
        rows.At(3, 1) = PropertyCell(bad);
        EXPECT_TRUE(button.SetPropertyList(rows));
        EXPECT_EQ(button.KOMAName(), "BUTTON_") << bad;
    }
    EXPECT_EQ(owner.uniquenessChecks, 0);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST(IsValidObjectName, TheNameRule) {
    EXPECT_TRUE(IsValidObjectName("_1"));
    EXPECT_FALSE(IsValidObjectName("1_"));
    EXPECT_FALSE(IsValidObjectName("A B"));
    EXPECT_TRUE(IsValidObjectName("FORM_1"));
    EXPECT_TRUE(IsValidObjectName("a"));
    EXPECT_TRUE(IsValidObjectName("_"));
    EXPECT_FALSE(IsValidObjectName("A-B"));
    EXPECT_FALSE(IsValidObjectName("\xc4rger"));  // accented letters fail
    EXPECT_TRUE(IsValidObjectName(std::string(300, 'x')));  // no length limit
}

TEST(IsValidObjectName, EmptyTextIsARunTimeFailure) {
    EXPECT_THROW(IsValidObjectName(""), RuntimeFailure);
}

TEST_F(KomaObjectTest, ChangedXOnlyRaisesMovedOnce) {
    PropertyArray rows = Rows();
    rows.At(3, 2) = PropertyCell("12");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMABoundsX(), 12);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Moved 12,0"}));
}

TEST_F(KomaObjectTest, RefusedXStillRaisesMovedWithTheHeldValues) {
    PropertyArray rows = Rows();
    rows.At(3, 2) = PropertyCell("200");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMABoundsX(), 0);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Moved 0,0"}));
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMABoundsX: Invalid value"}));
}

TEST_F(KomaObjectTest, NonNumericXIsIgnoredInSilence) {
    PropertyArray rows = Rows();
    rows.At(3, 2) = PropertyCell("left");
    rows.At(3, 3) = PropertyCell("");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_TRUE(owner.events.empty());
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(KomaObjectTest, FractionalPositionRoundsHalfToEven) {
    PropertyArray rows = Rows();
    rows.At(3, 2) = PropertyCell("2.5");
    rows.At(3, 3) = PropertyCell("3.5");
    button.SetPropertyList(rows);
    EXPECT_EQ(button.KOMABoundsX(), 2);
    EXPECT_EQ(button.KOMABoundsY(), 4);
}

TEST_F(KomaObjectTest, ChangedHeightRaisesResizedEvenWithTheWidthUnchanged) {
    PropertyArray rows = Rows();
    rows.At(3, 5) = PropertyCell("30");
    EXPECT_TRUE(button.SetPropertyList(rows));
    // The owner sets the size in answer; the event carries the new height.
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 46,30"}));
}

TEST_F(KomaObjectTest, HeightIsTakenBeforeWidth) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell("50");
    rows.At(3, 5) = PropertyCell("30");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 46,30", "Resized 50,20"}));
}

TEST_F(KomaObjectTest, SizeRowsOutOfRangeShowTheirMessages) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell("161");
    rows.At(3, 5) = PropertyCell("-1");
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_TRUE(owner.events.empty());
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAHeight: Invalid height value",
                                                    "KOMAWidth: Invalid width value"}));
}

TEST_F(KomaObjectTest, SizeRowThatIsNoNumberIsARunTimeFailure) {
    PropertyArray rows = Rows();
    rows.At(3, 5) = PropertyCell("tall");
    EXPECT_THROW(button.SetPropertyList(rows), RuntimeFailure);
}

TEST_F(KomaObjectTest, TwipsPerPixelZeroOrTextIsRefused) {
    button.PCTwipsToTolvaPixels(0.0);
    EXPECT_DOUBLE_EQ(button.PCTwipsToTolvaPixels(), 36.59);
    button.PCTwipsToTolvaPixels(std::string("wide"));
    EXPECT_DOUBLE_EQ(button.PCTwipsToTolvaPixels(), 36.59);
    button.PCTwipsToTolvaPixels(-3.0);
    EXPECT_DOUBLE_EQ(button.PCTwipsToTolvaPixels(), 36.59);
    EXPECT_EQ(Messages(),
              (std::vector<std::string>(3, "PCTwipsToTolvaPixels: Invalid PCTwipsToTolvaPixels")));
}

TEST_F(KomaObjectTest, GoodTwipsPerPixelWritesTheDeviceSizeBackFromTheCanvas) {
    button.PCTwipsToTolvaPixels(std::string("36.59375"));
    EXPECT_DOUBLE_EQ(button.PCTwipsToTolvaPixels(), 36.59375);
    // The box on the canvas stays; 1683.14 / 36.59375 rounds to 46 again.
    EXPECT_DOUBLE_EQ(button.Width(), 46 * 36.59);
    EXPECT_DOUBLE_EQ(button.Height(), 20 * 36.59);
    EXPECT_EQ(button.KOMAWidth(), 46);
    EXPECT_EQ(button.KOMAHeight(), 20);
    EXPECT_TRUE(owner.host.messages.empty());

    button.SetCanvasSize(400, 300);
    button.PCTwipsToTolvaPixels(10.0);
    EXPECT_DOUBLE_EQ(button.Width(), 400);
    EXPECT_EQ(button.KOMAWidth(), 40);
    EXPECT_EQ(button.KOMAHeight(), 30);
}

TEST_F(KomaObjectTest, CanvasSizeWritesTheDeviceSizeBackHalfToEven) {
    button.PCTwipsToTolvaPixels(10.0);
    button.SetCanvasSize(405, 415);  // 40.5 and 41.5 device pixels
    EXPECT_EQ(button.KOMAWidth(), 40);
    EXPECT_EQ(button.KOMAHeight(), 42);
    button.Width(1600);
    EXPECT_EQ(button.KOMAWidth(), 160);
}

TEST_F(KomaObjectTest, DeleteKeyRaisesDeletedOtherKeysNothing) {
    button.KeyDown(45, 0);
    EXPECT_TRUE(owner.events.empty());
    button.KeyDown(46, 0);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Deleted"}));
}

TEST_F(KomaObjectTest, MouseEventsGoToTheOwnerUnchanged) {
    button.MouseDown(1, 0, 15, 30);
    button.MouseMove(1, 0, 16, 31);
    button.MouseUp(1, 0, 17, 32);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"MouseDown 1,0,15,30", "MouseMove 1,0,16,31",
                                                      "MouseUp 1,0,17,32"}));
}

TEST_F(KomaObjectTest, SharedRowsCarryLabelsKindsAndValues) {
    button.KOMABoundsX(5);
    PropertyArray rows = Rows();
    ASSERT_EQ(rows.Columns(), 3);
    ASSERT_EQ(rows.Rows(), button.PropertyRowCount());
    EXPECT_EQ(rows.Label(1), "Name");
    EXPECT_EQ(rows.Label(2), "X Pos");
    EXPECT_EQ(rows.Label(3), "Y Pos");
    EXPECT_EQ(rows.Label(4), "Width");
    EXPECT_EQ(rows.Label(5), "Height");
    for (int r = 1; r <= 5; ++r) EXPECT_EQ(rows.Kind(r), rowkind::Text);
    EXPECT_EQ(rows.Value(2).Text(), "5");
    EXPECT_EQ(rows.Value(4).Text(), "46");
}

TEST_F(KomaObjectTest, ZOrderStampsFrontAndBack) {
    ctlKOMAButton other;
    other.SetOwner(&owner);
    button.ZOrder(0);
    other.ZOrder(0);
    EXPECT_GT(other.StackStamp(), button.StackStamp());
    other.ZOrder(1);
    EXPECT_LT(other.StackStamp(), button.StackStamp());
}

}  // namespace
}  // namespace tolva
