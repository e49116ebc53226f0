// The form's own properties: defaults, setter rules, the bitmap file, the
// inspector rows and how SetPropertyList applies them.
#include <gtest/gtest.h>

#include <memory>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "objects/form/FormStyles.h"
#include "objects/form/ctlKOMAForm.h"
#include "support/RecordingOwner.h"
#include "support/ShortNamedDirectory.h"
#include "support/TestStrings.h"

namespace tolva {
namespace {

namespace fs = std::filesystem;
using testing::RecordingOwner;

class FormPropertiesTest : public ::testing::Test {
protected:
    void SetUp() override {
        testing::EnsureStringsLoaded();
        form.SetOwner(&owner);
        owner.host.useRealFileSystem = true;
    }

    PropertyArray Rows() {
        PropertyArray rows;
        form.GetPropertyList(rows);
        return rows;
    }

    std::vector<std::string> Messages() const { return owner.host.MessageLines(); }

    RecordingOwner owner;
    ctlKOMAForm form;
};

// --- defaults -------------------------------------------------------------------------

TEST_F(FormPropertiesTest, NewFormDefaults) {
    EXPECT_EQ(form.KOMAName(), "FORM_");
    EXPECT_EQ(form.KOMAFormStyle(), 0);
    EXPECT_EQ(form.KOMAFormStyleWord(), "NORMAL");
    EXPECT_EQ(form.KOMAObjectTypeWord(), "FORM");
    EXPECT_EQ(form.KOMAObjectType(), kind::Form);
    EXPECT_EQ(form.KOMAFormTitle(), "Form Title");
    EXPECT_EQ(form.KOMAObjectID(), 0);
    EXPECT_EQ(form.KOMABoundsX(), 0);
    EXPECT_EQ(form.KOMABoundsY(), 0);
    EXPECT_EQ(form.KOMAWidth(), 160);
    EXPECT_EQ(form.KOMAHeight(), 160);
    EXPECT_EQ(form.KOMAFocusedObject(), "");
    EXPECT_EQ(form.KOMABitmapX(), 7);
    EXPECT_EQ(form.KOMABitmapY(), 3);
    EXPECT_EQ(form.KOMABitmapWidth(), 10);
    EXPECT_EQ(form.KOMABitmapHeight(), 12);
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 0);
    EXPECT_EQ(form.KOMABitmapDepth(), 4);
    EXPECT_TRUE(form.ResizeOK());
    EXPECT_TRUE(form.VertResizeOK());
    EXPECT_TRUE(form.HorizResizeOK());
    EXPECT_FALSE(form.LinkedToTable());
    EXPECT_DOUBLE_EQ(form.PCTwipsToTolvaPixels(), 36.59);
    EXPECT_EQ(form.ParentForm(), nullptr);
    EXPECT_TRUE(owner.host.messages.empty());
}

// --- setters --------------------------------------------------------------------------

TEST_F(FormPropertiesTest, StyleNumberStoresItsWord) {
    const char* words[] = {"NORMAL", "BACKGROUND", "BITMAP_DIALOG", "NON_BITMAP_DIALOG"};
    for (int style = 3; style >= 0; --style) {
        form.KOMAFormStyle(style);
        EXPECT_EQ(form.KOMAFormStyleWord(), words[style]);
        EXPECT_EQ(form.KOMAFormStyle(), style);
    }
    form.KOMAFormStyle(2);
    form.KOMAFormStyle(4);
    form.KOMAFormStyle(-1);
    EXPECT_EQ(form.KOMAFormStyleWord(), "BITMAP_DIALOG");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, ObjectTypeOtherThanFormIsReportedAndFormKept) {
    form.KOMAObjectType(kind::Form);
    EXPECT_TRUE(owner.host.messages.empty());
    form.KOMAObjectType(kind::Control);
    EXPECT_EQ(form.KOMAObjectTypeWord(), "FORM");
    EXPECT_EQ(form.KOMAObjectType(), kind::Form);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Form - KOMAObjectType: Invalid object type"}));
}

TEST_F(FormPropertiesTest, BlankNameIsRefusedWithItsMessage) {
    form.KOMAName("FORM_1");
    form.KOMAName("   ");
    form.KOMAName("");
    EXPECT_EQ(form.KOMAName(), "FORM_1");
    EXPECT_EQ(Messages(), (std::vector<std::string>(2, "KOMAName: Invalid name")));
}

TEST_F(FormPropertiesTest, TitleTakesAnyText) {
    form.KOMAFormTitle("");
    EXPECT_EQ(form.KOMAFormTitle(), "");
    form.KOMAFormTitle("  My // title  ");
    EXPECT_EQ(form.KOMAFormTitle(), "  My // title  ");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, SizeAndPlaceRanges) {
    form.KOMAWidth(161);
    form.KOMAHeight(-1);
    form.KOMABoundsX(160);
    form.KOMABoundsY(-1);
    form.KOMAObjectID(-1);
    EXPECT_EQ(form.KOMAWidth(), 160);
    EXPECT_EQ(form.KOMAHeight(), 160);
    EXPECT_EQ(form.KOMABoundsX(), 0);
    EXPECT_EQ(form.KOMABoundsY(), 0);
    EXPECT_EQ(form.KOMAObjectID(), 0);
    EXPECT_EQ(Messages(), (std::vector<std::string>{
                              "Tolva Resource Editor: Invalid value",
                              "Tolva Resource Editor: Invalid value", "KOMABoundsX: Invalid value",
                              "KOMABoundsY: Invalid value", "KOMAObjectID: Invalid value"}));
    form.KOMAWidth(0);
    form.KOMABoundsX(159);
    EXPECT_EQ(form.KOMAWidth(), 0);
    EXPECT_EQ(form.KOMABoundsX(), 159);
}

TEST_F(FormPropertiesTest, FocusedObjectMustBeEmbedded) {
    // Nothing is embedded yet: no name is on the list, and only the empty
    // text is taken.
    form.KOMAFocusedObject("BUTTON_1");
    EXPECT_EQ(form.KOMAFocusedObject(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAFocusedObject: Invalid value"}));
    form.KOMAFocusedObject("");
    EXPECT_EQ(form.KOMAFocusedObject(), "");
    EXPECT_EQ(owner.host.messages.size(), 1u);
}

TEST_F(FormPropertiesTest, NegativeNumberOfEmbeddedObjectsIsRefused) {
    form.KOMANumEmbeddedObjects(-1);
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 0);
    EXPECT_EQ(Messages(), (std::vector<std::string>{
                              "KOMANumEmbeddedObjects: Invalid number of embedded objects"}));
}

TEST_F(FormPropertiesTest, NumberOfEmbeddedObjectsSizesBothLists) {
    form.KOMANumEmbeddedObjects(2);
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 2);
    EXPECT_EQ(form.GetEmbeddedObjectList().size(), 2u);
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(), (std::vector<KomaObject*>{nullptr, nullptr}));
    form.KOMANumEmbeddedObjects(0);
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 0);
    EXPECT_TRUE(form.GetEmbeddedObjectReferenceList().empty());
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, DepthThreeIsIgnoredSilently) {
    form.KOMABitmapDepth(2);
    EXPECT_EQ(form.KOMABitmapDepth(), 2);
    form.KOMABitmapDepth(3);
    form.KOMABitmapDepth(0);
    form.KOMABitmapDepth(8);
    EXPECT_EQ(form.KOMABitmapDepth(), 2);
    form.KOMABitmapDepth(4);
    EXPECT_EQ(form.KOMABitmapDepth(), 4);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, TwipsPerPixelLaysTheFormOutAgain) {
    form.PCTwipsToTolvaPixels(0.0);
    EXPECT_DOUBLE_EQ(form.PCTwipsToTolvaPixels(), 36.59);
    EXPECT_EQ(Messages(),
              (std::vector<std::string>{"PCTwipsToTolvaPixels: Invalid PCTwipsToTolvaPixels"}));
    // The form's box stays and its device size is written back from it.
    form.SetCanvasSize(2000, 1000);
    form.PCTwipsToTolvaPixels(20.0);
    EXPECT_DOUBLE_EQ(form.Width(), 2000);
    EXPECT_DOUBLE_EQ(form.Height(), 1000);
    EXPECT_EQ(form.KOMAWidth(), 100);
    EXPECT_EQ(form.KOMAHeight(), 50);
}

// --- inspector rows -------------------------------------------------------------------

TEST_F(FormPropertiesTest, TenRowsWithLabelsKindsAndValues) {
    form.KOMAName("FORM_1");
    form.KOMABoundsX(3);
    PropertyArray rows = Rows();
    ASSERT_EQ(rows.Columns(), 3);
    ASSERT_EQ(rows.Rows(), 10);
    const char* labels[] = {"Name",           "X Pos",      "Y Pos",      "Width",
                            "Height",         "Focused Object", "Form Style", "Form Title",
                            "Form Bitmap",    "Bitmap Color Depth"};
    const int kinds[] = {rowkind::Text,   rowkind::Text,   rowkind::Text, rowkind::Text,
                         rowkind::Text,   rowkind::Choice, rowkind::Choice, rowkind::Text,
                         rowkind::Button, rowkind::Choice};
    for (int r = 1; r <= 10; ++r) {
        EXPECT_EQ(rows.Label(r), labels[r - 1]) << r;
        EXPECT_EQ(rows.Kind(r), kinds[r - 1]) << r;
    }
    EXPECT_EQ(rows.Value(1).Text(), "FORM_1");
    EXPECT_EQ(rows.Value(2).Text(), "3");
    EXPECT_EQ(rows.Value(3).Text(), "0");
    EXPECT_EQ(rows.Value(4).Text(), "160");
    EXPECT_EQ(rows.Value(5).Text(), "160");
    EXPECT_EQ(rows.Value(6).Text(), "(None)");
    EXPECT_EQ(rows.Value(7).Text(), "NORMAL");
    EXPECT_EQ(rows.Value(8).Text(), "Form Title");
    EXPECT_TRUE(rows.Value(9).IsBool());
    EXPECT_FALSE(rows.Value(9).Bool());
    EXPECT_EQ(rows.Value(10).Text(), "4 Bit");
}

TEST_F(FormPropertiesTest, RowsShowStyleAndTwoBitDepth) {
    form.KOMAFormStyle(3);
    form.KOMABitmapDepth(2);
    PropertyArray rows = Rows();
    EXPECT_EQ(rows.Value(7).Text(), "NON_BITMAP_DIALOG");
    EXPECT_EQ(rows.Value(10).Text(), "2 Bit");
}

TEST_F(FormPropertiesTest, ValueListsOfTheTenRows) {
    ValueLists lists;
    FillFormValueLists(lists);
    ASSERT_EQ(lists.size(), 10u);
    for (int r : {1, 2, 3, 4, 5, 8, 9}) EXPECT_TRUE(lists[r - 1].empty()) << r;
    EXPECT_EQ(lists[5], (std::vector<std::string>{"(None)"}));
    EXPECT_EQ(lists[6], (std::vector<std::string>{"NORMAL", "BACKGROUND", "BITMAP_DIALOG",
                                                  "NON_BITMAP_DIALOG"}));
    EXPECT_EQ(lists[9], (std::vector<std::string>{"2 Bit", "4 Bit"}));
    EXPECT_EQ(form.FocusedObjectChoices(), (std::vector<std::string>{"(None)"}));
    // Every choice row's value stands in its list.
    const PropertyArray rows = Rows();
    for (int r : {6, 7, 10}) {
        EXPECT_NE(std::find(lists[r - 1].begin(), lists[r - 1].end(), rows.Value(r).Text()),
                  lists[r - 1].end())
            << r;
    }
}

TEST_F(FormPropertiesTest, UnchangedRowsChangeNothing) {
    PropertyArray rows = Rows();
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_TRUE(owner.events.empty());
    EXPECT_TRUE(owner.host.messages.empty());
    EXPECT_TRUE(owner.host.openRequests.empty());
    EXPECT_EQ(owner.uniquenessChecks, 0);
}

TEST_F(FormPropertiesTest, WrongShapeChangesNothing) {
    PropertyArray nine(9);
    EXPECT_FALSE(form.SetPropertyList(nine));
    PropertyArray eleven(11);
    EXPECT_FALSE(form.SetPropertyList(eleven));
    PropertyArray fiveOfABaseObject(5);
    EXPECT_FALSE(form.SetPropertyList(fiveOfABaseObject));
    EXPECT_EQ(form.KOMAName(), "FORM_");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, NameRowAsksTheOwnerAndRefusesATakenName) {
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell("MainForm");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMAName(), "MainForm");
    EXPECT_EQ(owner.uniquenessChecks, 1);

    owner.takenNames.insert("FORM_2");
    rows = Rows();
    rows.At(3, 1) = PropertyCell("FORM_2");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMAName(), "MainForm");
    EXPECT_EQ(Messages(),
              (std::vector<std::string>{"Tolva Resource Editor: Object name must be unique"}));
}

TEST_F(FormPropertiesTest, PositionRowsRaiseMovedWithTheNewPosition) {
    PropertyArray rows = Rows();
    rows.At(3, 2) = PropertyCell("10");
    rows.At(3, 3) = PropertyCell("20");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMABoundsX(), 10);
    EXPECT_EQ(form.KOMABoundsY(), 20);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Moved 10,0", "Moved 10,20"}));
}

TEST_F(FormPropertiesTest, SizeRowsSetTheSizeOnTheScreenThenRaiseResized) {
    form.SetCanvasSize(1600, 1600);
    form.PCTwipsToTolvaPixels(10.0);
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell("100");
    rows.At(3, 5) = PropertyCell("80");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMAWidth(), 100);
    EXPECT_EQ(form.KOMAHeight(), 80);
    EXPECT_DOUBLE_EQ(form.Width(), 1000);
    EXPECT_DOUBLE_EQ(form.Height(), 800);
    // The height row is taken first.
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 160,80", "Resized 100,80"}));
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, Width161InTheInspectorIsRefused) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell("161");
    rows.At(3, 5) = PropertyCell("-1");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMAWidth(), 160);
    EXPECT_EQ(form.KOMAHeight(), 160);
    EXPECT_TRUE(owner.events.empty());
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAHeight: Invalid height value",
                                                    "KOMAWidth: Invalid width value"}));
}

TEST_F(FormPropertiesTest, FocusRowNoneOrEmptyClearsAnotherNameIsRefused) {
    PropertyArray rows = Rows();
    rows.At(3, 6) = PropertyCell("(None)");
    EXPECT_TRUE(form.SetPropertyList(rows));
    rows.At(3, 6) = PropertyCell("");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMAFocusedObject(), "");
    EXPECT_TRUE(owner.host.messages.empty());

    rows.At(3, 6) = PropertyCell("BUTTON_9");
    EXPECT_TRUE(form.SetPropertyList(rows));
    EXPECT_EQ(form.KOMAFocusedObject(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAFocusedObject: Invalid focus object"}));
}

TEST_F(FormPropertiesTest, StyleRowGoesThroughTheStyleConversion) {
    PropertyArray rows = Rows();
    rows.At(3, 7) = PropertyCell("BITMAP_DIALOG");
    form.SetPropertyList(rows);
    EXPECT_EQ(form.KOMAFormStyle(), 2);
    rows = Rows();
    rows.At(3, 7) = PropertyCell("background");
    form.SetPropertyList(rows);
    EXPECT_EQ(form.KOMAFormStyle(), 1);
    // A word that is no style gives style 0.
    rows = Rows();
    rows.At(3, 7) = PropertyCell("DIALOG");
    form.SetPropertyList(rows);
    EXPECT_EQ(form.KOMAFormStyleWord(), "NORMAL");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormPropertiesTest, TitleRowSetsTheTitle) {
    PropertyArray rows = Rows();
    rows.At(3, 8) = PropertyCell("Settings");
    form.SetPropertyList(rows);
    EXPECT_EQ(form.KOMAFormTitle(), "Settings");
}

TEST_F(FormPropertiesTest, DepthRowTwoBitOrElseFour) {
    PropertyArray rows = Rows();
    rows.At(3, 10) = PropertyCell("2 Bit");
    form.SetPropertyList(rows);
    EXPECT_EQ(form.KOMABitmapDepth(), 2);
    rows = Rows();
    rows.At(3, 10) = PropertyCell("3 Bit");
    form.SetPropertyList(rows);
    EXPECT_EQ(form.KOMABitmapDepth(), 4);
}

TEST_F(FormPropertiesTest, BitmapRowOpensTheChooserLikeThePopupEntry) {
    PropertyArray rows = Rows();
    rows.At(3, 9) = PropertyCell(true);
    EXPECT_TRUE(form.SetPropertyList(rows));  // the chooser is cancelled
    ASSERT_EQ(owner.host.openRequests.size(), 1u);
    EXPECT_EQ(owner.host.openRequests[0].title, "Select Form Bitmap");
    EXPECT_EQ(owner.host.openRequests[0].filter, "Bitmaps (*.bmp)|*.bmp|");
    EXPECT_EQ(owner.host.openRequests[0].defaultExtension, "*.bmp");
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_TRUE(owner.events.empty());
    EXPECT_TRUE(owner.host.messages.empty());
}

// --- the bitmap file ----------------------------------------------------------------

// Works in a fresh directory of short name, made the current one, so that the
// relative paths of the tests fit the 8.3 rule.
class FormBitmapTest : public FormPropertiesTest {
protected:
    void SetUp() override {
        FormPropertiesTest::SetUp();
        workDir_ = std::make_unique<testing::ShortNamedDirectory>("f");
        ASSERT_TRUE(workDir_->Made());
    }

    void TearDown() override { workDir_.reset(); }

    // A picture file on disk, with the size the host gives for it.
    void MakePicture(const std::string& path, int width, int height) {
        std::ofstream(path) << "BM";
        owner.host.pictures[path] = PictureSize{width, height};
    }

    std::unique_ptr<testing::ShortNamedDirectory> workDir_;
};

TEST_F(FormBitmapTest, GoodFileIsLoadedStoredAndRaisesPicChanged) {
    MakePicture("LOGO.BMP", 12, 9);
    form.KOMABitmapFile("LOGO.BMP");
    EXPECT_EQ(form.KOMABitmapFile(), "LOGO.BMP");
    EXPECT_TRUE(form.HasPicture());
    EXPECT_EQ(form.PictureWidth(), 12);
    EXPECT_EQ(form.PictureHeight(), 9);
    // The numbers of the record stay as they were.
    EXPECT_EQ(form.KOMABitmapWidth(), 10);
    EXPECT_EQ(form.KOMABitmapHeight(), 12);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"PicChanged"}));
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormBitmapTest, AbsentFileShowsBitmapNotFoundAndChangesNothing) {
    MakePicture("LOGO.BMP", 12, 9);
    form.KOMABitmapFile("LOGO.BMP");
    owner.events.clear();
    form.KOMABitmapFile("FORM.BMP");
    EXPECT_EQ(form.KOMABitmapFile(), "LOGO.BMP");
    EXPECT_TRUE(form.HasPicture());
    EXPECT_TRUE(owner.events.empty());
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"}));
}

TEST_F(FormBitmapTest, FileThatIsNoPictureIsReportedAsNotFound) {
    std::ofstream("NOTE.BMP") << "not a picture";
    form.KOMABitmapFile("NOTE.BMP");
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_FALSE(form.HasPicture());
    EXPECT_TRUE(owner.events.empty());
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"}));
}

TEST_F(FormBitmapTest, PathNotIn83FormIsRefused) {
    MakePicture("LongPictureName.bmp", 12, 9);
    form.KOMABitmapFile("LongPictureName.bmp");
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_FALSE(form.HasPicture());
    EXPECT_TRUE(owner.events.empty());
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].title, "Couldn't set bitmap");
    EXPECT_EQ(owner.host.messages[0].text,
              "This file path is not in 8.3 format.  Please make sure all directory names and "
              "the filename don't have more than 8 chars each so that the resource compiler "
              "will be able to find the file.");
}

TEST_F(FormBitmapTest, EmptyFileClearsThePicture) {
    MakePicture("LOGO.BMP", 12, 9);
    form.KOMABitmapFile("LOGO.BMP");
    owner.events.clear();
    form.KOMABitmapFile("");
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_FALSE(form.HasPicture());
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormBitmapTest, RemoveFormBitmapClearsAndRaisesPicChanged) {
    MakePicture("LOGO.BMP", 12, 9);
    form.KOMABitmapFile("LOGO.BMP");
    owner.events.clear();
    form.RemoveFormBitmap();
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_FALSE(form.HasPicture());
    EXPECT_EQ(owner.events, (std::vector<std::string>{"PicChanged"}));
}

TEST_F(FormBitmapTest, ChooserPicksTheFileCancelLeavesAll) {
    MakePicture("LOGO.BMP", 12, 9);
    owner.host.fileAnswers.push_back(std::string("LOGO.BMP"));
    form.ChooseFormBitmap();
    EXPECT_EQ(form.KOMABitmapFile(), "LOGO.BMP");
    owner.events.clear();
    form.ChooseFormBitmap();  // nothing queued: cancelled
    EXPECT_EQ(form.KOMABitmapFile(), "LOGO.BMP");
    EXPECT_TRUE(owner.events.empty());
    EXPECT_EQ(owner.host.openRequests.size(), 2u);
}

}  // namespace
}  // namespace tolva
