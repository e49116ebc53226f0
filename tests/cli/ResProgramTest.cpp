// tolva-res run as a script runs it: in a directory of its own, with its
// exit status and the lines it writes to standard error.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "cli/ResCommand.h"
#include "cli/ResProgramFixture.h"
#include "support/BmpBytes.h"

namespace tolva::testing {
namespace {

TEST_F(ResProgram, TheWorkedExamplesFormGoesThroughResaveUnchangedWithItsHeader) {
    WriteFile(dir / "in.txt", Golden("worked_example_form.txt"));
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    // No FORM.BMP stands beside it: the form is told so, and keeps no bitmap.
    EXPECT_EQ(err, "Tolva Resource Editor: Bitmap not found\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("worked_example_form.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("worked_example_form.h"));
}

TEST_F(ResProgram, TheWholeWorkedExampleWithItsButtonGoesThroughResaveUnchanged) {
    WriteFile(dir / "in.txt", Golden("worked_example.txt"));
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Bitmap not found\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("worked_example.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("worked_example.h"));
}

TEST_F(ResProgram, WithFormBmpBesideItTheBitmapIsTheFormsOwnFromThenOn) {
    WriteFile(dir / "in.txt", Golden("worked_example_form.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    // The default's comment is gone: the file was found and chosen.
    const std::string comment =
        "//You did not specify a bitmap so this data has been put here by default\r\n";
    std::string expected = Golden("worked_example_form.txt");
    expected.erase(expected.find(comment), comment.size());
    EXPECT_EQ(ReadFile(dir / "out.txt"), expected);
    EXPECT_FALSE(fs::exists(dir / "out.h"));
}

TEST_F(ResProgram, CheckLoadsAndWritesNothing) {
    WriteFile(dir / "in.txt", Golden("worked_example_form.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("check in.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 4);
}

TEST_F(ResProgram, AnEmptyFileIsAnEmptyDesign) {
    WriteFile(dir / "in.txt", "");
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("empty_design.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("empty_header.h"));
}

TEST_F(ResProgram, ABlankLineBetweenRecordsStopsTheLoadWithItsMessage) {
    WriteFile(dir / "in.txt", Golden("worked_example_form.txt") + "\r\n" +
                                  Golden("worked_example_form.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("resave in.txt out.txt"), 1);
    EXPECT_EQ(err,
              "Load Error: Invalid/unsupported resource object\n"
              "Tolva Resource Editor: Could not load resource file\n");
    EXPECT_FALSE(fs::exists(dir / "out.txt"));
}

TEST_F(ResProgram, AnIdAboveSixteenBitsEndsTheLoadSilently) {
    WriteFile(dir / "in.txt", FormWith("ID=0\r\n", "ID=40000\r\n"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err.rfind("load ended: ", 0), 0u) << err;
    // No box: Open's handler of a run-time failure shows none.
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1);
    EXPECT_EQ(err.find("Could not load resource file"), std::string::npos);
}

TEST_F(ResProgram, AFileEndingInACommentEndsTheLoadSilently) {
    WriteFile(dir / "in.txt", Golden("worked_example_form.txt") + "//the end\r\n");
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err.rfind("load ended: ", 0), 0u) << err;
}

TEST_F(ResProgram, AMissingInputEndsTheLoad) {
    EXPECT_EQ(Run("check nothing.txt"), 2);
    EXPECT_EQ(err.rfind("load ended: ", 0), 0u) << err;
}

TEST_F(ResProgram, ABrokenFormLineIsToldWithItsNumberAndTheFormCannotBeLoaded) {
    WriteFile(dir / "in.txt", FormWith("~F3\r\n", "~F4\r\n"));
    EXPECT_EQ(Run("check in.txt"), 1);
    // Line 21 of the file: the count takes in the banners' comment lines.
    EXPECT_EQ(err.substr(0, err.find('\n')), "Tolva Resource Editor: Error on line 21:  ~F4");
    EXPECT_NE(err.find("Load Error: Could not load form object\n"), std::string::npos) << err;
    // The last line is the Open command's own box.
    const std::string last = "Tolva Resource Editor: Could not load resource file\n";
    ASSERT_GE(err.size(), last.size());
    EXPECT_EQ(err.substr(err.size() - last.size()), last);
}

TEST_F(ResProgram, TwoObjectsOfOneNameAreRenamedAndTheLoadGoesOn) {
    WriteFile(dir / "in.txt", FormWith("ID=0\r\n", "ID=3\r\n") + FormWith("ID=0\r\n", "ID=4\r\n"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err,
              "Tolva Resource Editor: The resource file specifies more than one object having "
              "the same name.  The name of the succeeding object has been changed to "
              "OBJECTSAMENAME_3\n");
    EXPECT_NE(ReadFile(dir / "out.h").find("#define OBJECTSAMENAME_3 1\r\n"), std::string::npos);
}

TEST_F(ResProgram, AnOutputThatCannotBeWrittenIsASaveFailure) {
    WriteFile(dir / "in.txt", "");
    EXPECT_EQ(Run("resave in.txt no/such/dir/out.txt"), 2);
    EXPECT_EQ(err.rfind("save failed: ", 0), 0u) << err;
}

TEST_F(ResProgram, AWrongCommandLineIsStatus64) {
    EXPECT_EQ(Run(""), 64);
    EXPECT_NE(err.find("usage: tolva-res"), std::string::npos);
    EXPECT_EQ(Run("check"), 64);
    EXPECT_EQ(Run("check a.txt b.txt"), 64);
    EXPECT_EQ(Run("resave a.txt"), 64);
    EXPECT_EQ(Run("resave a.txt b.txt c.h d"), 64);
    EXPECT_EQ(Run("open a.txt"), 64);
}

TEST_F(ResProgram, HelpSaysHowAndTheExitStatuses) {
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_NE(out.find("tolva-res check IN.txt"), std::string::npos);
    EXPECT_NE(out.find("tolva-res resave IN.txt OUT.txt [OUT.h]"), std::string::npos);
    EXPECT_NE(out.find("TITLE: TEXT"), std::string::npos);
    EXPECT_NE(out.find("64"), std::string::npos);
    EXPECT_EQ(err, "");
    EXPECT_EQ(Run("-h"), 0);
}

// --- in process ---------------------------------------------------------------------------------

TEST(ResCommand, TheCommandLineIsCheckedBeforeAnythingIsRead) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(RunResCommand({}, out, err), kResUsage);
    EXPECT_EQ(RunResCommand({"--help", "x"}, out, err), kResUsage);
    EXPECT_EQ(RunResCommand({"--help"}, out, err), kResLoaded);
    EXPECT_NE(out.str().find("Exit status"), std::string::npos);
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A form holding a Bitmap whose every field is away from its default; the
// two pictures stand beside the design.
class BitmapResave : public ResProgram {
protected:
    void WritePictures() {
        WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
        BmpSpec icon;
        icon.width = 16;
        icon.height = 12;
        WriteFile(dir / "ICON1.BMP", BmpFile(icon));
        icon.height = -12;  // the second stored top down
        WriteFile(dir / "ICON2.BMP", BmpFile(icon));
    }
};

TEST_F(BitmapResave, AFullRecordGoesThroughByteForByte) {
    WriteFile(dir / "in.txt", Golden("bitmap_full.txt"));
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("bitmap_full.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("bitmap_full.h"));
}

TEST_F(BitmapResave, MissingPicturesAreReportedAndTheirSectionsWrittenBlank) {
    WriteFile(dir / "in.txt", Golden("bitmap_full.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "LOGO: Bitmap not found\nLOGO: Bitmap not found\n");
    const std::string out = ReadFile(dir / "out.txt");
    const std::string blank = "~F4\r\n//You did not specify a bitmap so this section has been left blank\r\n"
                              "~F5\r\n//You did not specify a bitmap so this section has been left blank\r\n"
                              "~F6\r\n";
    EXPECT_NE(out.find(blank), std::string::npos);
    EXPECT_EQ(out.find("ICON1.BMP"), std::string::npos);
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A form holding a Repeat button whose every field that a load keeps is away
// from its default; its picture and the form's stand beside the design.
class RepeatButtonResave : public ResProgram {
protected:
    void WritePictures() {
        WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
        WriteFile(dir / "ARROW.BMP", BmpBytes(16, 12));
    }
    static std::string FullWith(const std::string& from, const std::string& to) {
        std::string text = Golden("repeatbutton_full.txt");
        const auto at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
        return text;
    }
};

TEST_F(RepeatButtonResave, AFullRecordGoesThroughByteForByte) {
    WriteFile(dir / "in.txt", Golden("repeatbutton_full.txt"));
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("repeatbutton_full.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("repeatbutton_full.h"));
}

TEST_F(RepeatButtonResave, AMissingPictureIsToldAndWrittenBackLeftBlankWithFormBmp) {
    WriteFile(dir / "in.txt", Golden("repeatbutton_full.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Bitmap not found\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"),
              FullWith("(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,ARROW.BMP\r\n",
                       "//You did not specify a bitmap so this section has been left blank\r\n"
                       "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp\r\n"));
}

TEST_F(RepeatButtonResave, ADepthOfTwoIsReadAndWrittenBackAsFour) {
    WriteFile(dir / "in.txt", FullWith("Q_FOUR_BIT,ARROW.BMP", "Q_TWO_BIT,ARROW.BMP"));
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("repeatbutton_full.txt"));
}

TEST_F(RepeatButtonResave, AStalePlaceOfTheBitmapGivesWayToTheObjectsWhenThePictureLoads) {
    WriteFile(dir / "in.txt", FullWith("(SH)CONTROL_BITMAP.X=20", "(SH)CONTROL_BITMAP.X=3"));
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("repeatbutton_full.txt"));
}

TEST_F(RepeatButtonResave, AFileLineWithAnotherDepthEndsTheRecordAndTheLoad) {
    WriteFile(dir / "in.txt", FullWith("Q_FOUR_BIT,ARROW.BMP", "Q_EIGHT_BIT,ARROW.BMP"));
    WritePictures();
    EXPECT_EQ(Run("check in.txt"), 1);
    // The closing word that follows is then read as a line between records.
    EXPECT_EQ(err, FailedRecord(83, "(P)CONTROL_BITMAP.FILE=Q_EIGHT_BIT,ARROW.BMP", "repeatbutton"));
}

TEST_F(RepeatButtonResave, APlaceOutOfRangeEndsTheLoadSilently) {
    WriteFile(dir / "in.txt", FullWith("(SH)CONTROL_BITMAP.Y=30", "(SH)CONTROL_BITMAP.Y=99999"));
    WritePictures();
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err.rfind("load ended: ", 0), 0u) << err;
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

using PushButtonResave = ResProgram;

// A Push button whose every field that a load keeps is away from its
// default; its group is 0, as a load always makes it.
TEST_F(PushButtonResave, AFullRecordGoesThroughByteForByte) {
    WriteFile(dir / "in.txt", Golden("pushbutton_full.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("pushbutton_full.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("pushbutton_full.h"));
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A Checkbox with both pictures, checked, with every field a load keeps
// away from its default. The places and sizes of its pictures and its group
// are those a load leaves: a load reads them and keeps the defaults.
class CheckboxResave : public ResProgram {
protected:
    void WritePictures() {
        WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
        WriteFile(dir / "ON.BMP", BmpBytes(12, 10));
        WriteFile(dir / "OFF.BMP", BmpBytes(12, 10));
    }
    static std::string FullWith(const std::string& from, const std::string& to) {
        std::string text = Golden("checkbox_full.txt");
        const auto at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
        return text;
    }
};

TEST_F(CheckboxResave, AFullRecordGoesThroughByteForByte) {
    WriteFile(dir / "in.txt", Golden("checkbox_full.txt"));
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("checkbox_full.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("checkbox_full.h"));
}

TEST_F(CheckboxResave, AGroupOfFiveComesBackOutAsZero) {
    WriteFile(dir / "in.txt", FullWith("(U)CONTROL_ADD.GROUP_ID=0", "(U)CONTROL_ADD.GROUP_ID=5"));
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("checkbox_full.txt"));
}

TEST_F(CheckboxResave, ThePlacesAndSizesOfThePicturesAreReadAndLeftAtTheirDefaults) {
    std::string text = FullWith("(SH)CONTROL_BITMAP.X=0", "(SH)CONTROL_BITMAP.X=20");
    const auto at = text.find("(SH)CONTROL_BITMAP.HEIGHT=10", text.find("~F9"));
    text.replace(at, 28, "(SH)CONTROL_BITMAP.HEIGHT=12");
    WriteFile(dir / "in.txt", text);
    WritePictures();
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("checkbox_full.txt"));
}

TEST_F(CheckboxResave, AMissingPictureIsToldUnderTheCheckboxsNameAndWrittenLeftBlank) {
    WriteFile(dir / "in.txt", Golden("checkbox_full.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    WriteFile(dir / "ON.BMP", BmpBytes(12, 10));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "AGREE: Bitmap not found\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"),
              FullWith("(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,OFF.BMP\r\n",
                       "//You did not specify a bitmap so this section has been left blank\r\n"
                       "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp\r\n"));
}

TEST_F(CheckboxResave, PicturesOfTwoSizesAreToldAndTheSecondIsNotKept) {
    WriteFile(dir / "in.txt", Golden("checkbox_full.txt"));
    WritePictures();
    WriteFile(dir / "OFF.BMP", BmpBytes(14, 10));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "AGREE: Both bitmaps must be the same size.\n");
    EXPECT_NE(ReadFile(dir / "out.txt").find("left blank\r\n(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp\r\n#END_CONTROL"),
              std::string::npos);
}

TEST_F(CheckboxResave, ALineOutOfOrderInTheTailEndsTheRecordAndTheLoad) {
    // A picture's place where the group stands.
    WriteFile(dir / "in.txt", FullWith("(U)CONTROL_ADD.GROUP_ID=0", "(SH)CONTROL_BITMAP.X=0"));
    WritePictures();
    EXPECT_EQ(Run("check in.txt"), 1);
    // The closing word that follows is then read as a line between records.
    EXPECT_EQ(err, FailedRecord(78, "(SH)CONTROL_BITMAP.X=0", "checkbox"));
}

TEST_F(CheckboxResave, AFileLineWithAnotherDepthFailsTheRecord) {
    WriteFile(dir / "in.txt", FullWith("Q_FOUR_BIT,OFF.BMP", "Q_ONE_BIT,OFF.BMP"));
    WritePictures();
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err.rfind("Tolva Resource Editor: Error on line 95:  (P)CONTROL_BITMAP.FILE=Q_ONE_BIT,OFF.BMP\n"
                        "Load Error: Could not load checkbox object\n", 0),
              0u)
        << err;
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A Textbox with every field away from its default: its device state
// (positions, highlight, insert point) goes through as it was given.
class TextboxResave : public FullRecordResave {
protected:
    TextboxResave() : FullRecordResave("textbox_full") {}
};

TEST_F(TextboxResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

TEST_F(TextboxResave, AMarkerOutOfPlaceIsReportedAndTheLoadEnds) {
    WriteFile(dir / "in.txt", FullWith("~F12\r\n", "~F21\r\n"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(83, "~F21", "textbox"));
}

TEST_F(TextboxResave, AWordWhereANumberBelongsEndsTheLoad) {
    WriteFile(dir / "in.txt", FullWith("TEXTBOX_MAX_NUM_CHARS=40", "TEXTBOX_MAX_NUM_CHARS=forty"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"forty\" is no number\n");
}

// A negative maximum is refused as in the inspector; the rest of the record
// stands and the default maximum is written back.
TEST_F(TextboxResave, ANegativeMaximumIsRefusedAndTheDefaultWrittenBack) {
    WriteFile(dir / "in.txt", FullWith("TEXTBOX_MAX_NUM_CHARS=40", "TEXTBOX_MAX_NUM_CHARS=-4"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Invalid value\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"),
              FullWith("TEXTBOX_MAX_NUM_CHARS=40", "TEXTBOX_MAX_NUM_CHARS=256"));
}

TEST_F(TextboxResave, AStyleWordOutOfTheListIsReadAsTheFirstStyle) {
    WriteFile(dir / "in.txt", FullWith("=TEXTBOX_STYLE_2", "=textbox_style_9"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), FullWith("=TEXTBOX_STYLE_2", "=TEXTBOX_STYLE_0"));
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A Field with every field away from its default, its text holding "/r"
// as a load leaves it, and its top line on the second of its lines.
class FieldResave : public FullRecordResave {
protected:
    FieldResave() : FullRecordResave("field_full") {}
};

TEST_F(FieldResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

// The text wraps into seven lines in the medium font on 80 pixels less
// the margins: a top line of 40 comes back as the last, 6.
TEST_F(FieldResave, ATopLineBeyondTheLastLineIsWrittenBackAsTheLast) {
    WriteFile(dir / "in.txt", FullWith("FIELD_TOP_LINE_NUM=1", "FIELD_TOP_LINE_NUM=40"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), FullWith("FIELD_TOP_LINE_NUM=1", "FIELD_TOP_LINE_NUM=6"));
}

TEST_F(FieldResave, AKeyOutOfPlaceIsReportedAndTheLoadEnds) {
    WriteFile(dir / "in.txt", FullWith("(B)FIELD_TEXTMENT=RIGHT", "(B)TEXTMENT=RIGHT"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(80, "(B)TEXTMENT=RIGHT", "field"));
}

TEST_F(FieldResave, AWordWhereANumberBelongsEndsTheLoad) {
    WriteFile(dir / "in.txt", FullWith("FIELD_HIGHLIGHT_END=8", "FIELD_HIGHLIGHT_END=x8"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"x8\" is no number\n");
}

TEST_F(FieldResave, WordsOutOfTheirListsAreReadAsTheFirstOrLeaveTheDefault) {
    std::string text = FullWith("=FIELD_STYLE_1", "=FIELD_STYLE_2");
    const auto at = text.find("(B)FIELD_TEXTMENT=RIGHT");
    text.replace(at, 23, "(B)FIELD_TEXTMENT=MIDDLE");
    WriteFile(dir / "in.txt", text);
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    std::string expected = FullWith("=FIELD_STYLE_1", "=FIELD_STYLE_0");
    const auto was = expected.find("(B)FIELD_TEXTMENT=RIGHT");
    expected.replace(was, 23, "(B)FIELD_TEXTMENT=LEFT");
    EXPECT_EQ(ReadFile(dir / "out.txt"), expected);
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A Line with every field away from its default, rising to the right: its
// bounds hold the start point, the box follows from the two end points.
class LineResave : public FullRecordResave {
protected:
    LineResave() : FullRecordResave("line_full") {}
};

TEST_F(LineResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

// The box's size in the record is worked out anew from the end points.
TEST_F(LineResave, AStaleBoxSizeGivesWayToTheEndPoints) {
    WriteFile(dir / "in.txt", FullWith("(SH)BOUNDS.WIDTH=100", "(SH)BOUNDS.WIDTH=162"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

TEST_F(LineResave, AnEndPointOf160IsRefusedAndTheDefaultKept) {
    WriteFile(dir / "in.txt", FullWith("(SH)LINE_ENDPT_X=120", "(SH)LINE_ENDPT_X=160"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Invalid EndX value: 160\n");
    // The end stays at 24: the box runs from 20 to 24.
    std::string expected = FullWith("(SH)LINE_ENDPT_X=120", "(SH)LINE_ENDPT_X=24");
    expected.replace(expected.find("(SH)BOUNDS.WIDTH=100"), 20, "(SH)BOUNDS.WIDTH=4");
    EXPECT_EQ(ReadFile(dir / "out.txt"), expected);
}

TEST_F(LineResave, ANegativeThicknessIsRefused) {
    WriteFile(dir / "in.txt", FullWith("(U)LINE_THICK=3", "(U)LINE_THICK=-2"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "KOMAThick: Invalid value\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"), FullWith("(U)LINE_THICK=3", "(U)LINE_THICK=1"));
}

TEST_F(LineResave, AWordWhereANumberBelongsEndsTheLoad) {
    WriteFile(dir / "in.txt", FullWith("(SH)LINE_ENDPT_Y=30", "(SH)LINE_ENDPT_Y=3x"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"3x\" is no number\n");
}

TEST_F(LineResave, AMarkerOutOfPlaceIsReportedAndTheLoadEnds) {
    WriteFile(dir / "in.txt", FullWith("~F6\r\n(SH)LINE_ENDPT_X", "~F5\r\n(SH)LINE_ENDPT_X"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(68, "~F5", "line"));
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A Scheduler line with its three flags away from their defaults.
class SchedulerLineResave : public FullRecordResave {
protected:
    SchedulerLineResave() : FullRecordResave("schedulerline_full") {}
};

TEST_F(SchedulerLineResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

TEST_F(SchedulerLineResave, AMarkerOutOfPlaceIsReportedAndTheLoadEnds) {
    WriteFile(dir / "in.txt", FullWith("~F2\r\n//TRUE", "~F3\r\n//TRUE"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(57, "~F3", "SchedulerLine"));
}

TEST_F(SchedulerLineResave, AWidthBeyondTheScreenIsRefusedAndTheLoadGoesOn) {
    WriteFile(dir / "in.txt", FullWith("(SH)BOUNDS.WIDTH=154", "(SH)BOUNDS.WIDTH=170"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Invalid value\n");
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A level Scrollbar of style 1 with both arrows, every field away from its
// default; the arrows' sizes are their pictures'.
class ScrollbarResave : public FullRecordResave {
protected:
    ScrollbarResave() : FullRecordResave("scrollbar_full") {}
    void SetUp() override {
        FullRecordResave::SetUp();
        WriteFile(dir / "LEFT.BMP", BmpBytes(6, 8));
        WriteFile(dir / "RIGHT.BMP", BmpBytes(6, 8));
    }
};

TEST_F(ScrollbarResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

TEST_F(ScrollbarResave, TheOtherPageSizeKeyComesBackAsTheFirst) {
    WriteFile(dir / "in.txt", FullWith("(W)SCROLLBAR_PAGESIZE=4", "(W)SCROLLBAR_PAGE_SIZE=4"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

TEST_F(ScrollbarResave, ACurrentValueOutsideTheRangeIsKept) {
    const std::string text = FullWith("(W)SCROLLBAR_CURRENT_VALUE=5", "(W)SCROLLBAR_CURRENT_VALUE=50");
    WriteFile(dir / "in.txt", text);
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), text);
}

// The style allows only the level bar: the file's upright one is turned.
TEST_F(ScrollbarResave, AnOrientationTheStyleDoesNotAllowIsTurnedAround) {
    WriteFile(dir / "in.txt", FullWith("(B)SCROLLBAR_STYLE=HORIZONTAL", "(B)SCROLLBAR_STYLE=VERTICAL"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

TEST_F(ScrollbarResave, AMissingArrowIsToldAndWrittenBackAsTheDefaultFile) {
    WriteFile(dir / "in.txt", FullWith("Q_TWO_BIT,LEFT.BMP", "Q_TWO_BIT,GONE.BMP"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Bitmap not found\n");
    EXPECT_EQ(ReadFile(dir / "out.txt"),
              FullWith("(P)SCROLLBAR_ARROW1_BITMAP.FILE=Q_TWO_BIT,LEFT.BMP",
                       "//You did not specify a bitmap so this section has been left blank\r\n"
                       "(P)SCROLLBAR_ARROW1_BITMAP.FILE=Q_TWO_BIT,ScrollUp.bmp"));
}

TEST_F(ScrollbarResave, ARangeBeyondSixteenBitsIsAnErrorOfTheRecord) {
    WriteFile(dir / "in.txt", FullWith("(W)SCROLLBAR_MAX=20", "(W)SCROLLBAR_MAX=70000"));
    EXPECT_EQ(Run("check in.txt"), 0);
    EXPECT_EQ(err.rfind("Error: Scrollbar - SetFromResText\n", 0), 0u) << err;
}

TEST_F(ScrollbarResave, AnArrowFileOfAnotherDepthIsReportedAndTheLoadEnds) {
    WriteFile(dir / "in.txt", FullWith("Q_FOUR_BIT,RIGHT.BMP", "Q_EIGHT_BIT,RIGHT.BMP"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(87, "(P)SCROLLBAR_ARROW2_BITMAP.FILE=Q_EIGHT_BIT,RIGHT.BMP", "scrollbar"));
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// Two lists: one with items, a selection, a top item and every word away
// from its default; one empty with no selection.
class ListResave : public FullRecordResave {
protected:
    ListResave() : FullRecordResave("list_full") {}
};

TEST_F(ListResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

// A count of related lists that the lines do not bear out fails the record
// at the marker where a related line was wanted.
TEST_F(ListResave, ARelatedCountWithoutItsLinesFailsAtTheMarker) {
    WriteFile(dir / "in.txt", FullWith("(U)LIST_NUM_RELATED_LIST_OBJECT=0", "(U)LIST_NUM_RELATED_LIST_OBJECT=1"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(66, "~F5", "list"));
}

TEST_F(ListResave, AnItemLineOutOfItsPlaceFailsTheRecord) {
    WriteFile(dir / "in.txt", FullWith("(S)LIST_ITEMS2=Fig", "(S)LIST_ITEMS3=Fig"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err.rfind("Tolva Resource Editor: Error on line 89:  (S)LIST_ITEMS3=Fig\n", 0), 0u) << err;
}

TEST_F(ListResave, AWordWhereTheTotalBelongsEndsTheLoad) {
    WriteFile(dir / "in.txt", FullWith("(U)LIST_TOTAL_NUM_ITEMS=3", "(U)LIST_TOTAL_NUM_ITEMS=x3"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"x3\" is no number\n");
}

TEST_F(ListResave, NoSelectionAsAWordComesBackAsMinusOne) {
    WriteFile(dir / "in.txt", FullWith("(SH)LIST_SELECTED_ITEM=-1", "(SH)LIST_SELECTED_ITEM=NO_SELECTION"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

// A Popup trigger of style 2 with three items, the second selected, every
// field away from its default.
class PopupTriggerResave : public FullRecordResave {
protected:
    PopupTriggerResave() : FullRecordResave("popuptrigger_full") {}
};

TEST_F(PopupTriggerResave, AFullRecordGoesThroughByteForByte) { ExpectResavedUnchanged(); }

// One item more counted than written: the record fails at the line after
// the last item, and the load goes on without the object.
TEST_F(PopupTriggerResave, MoreItemsCountedThanWrittenFailTheRecordAtItsEnd) {
    WriteFile(dir / "in.txt", FullWith("NUM_OF_OBJECTS=3", "NUM_OF_OBJECTS=4"));
    EXPECT_EQ(Run("check in.txt"), 0);
    EXPECT_EQ(err,
              "Tolva Resource Editor: Error on line 84:  #END_CONTROL\n"
              "Load Error: Could not load popuptrigger object\n"
              "Tolva Resource Editor: Could not embed in form\n");
}

// The rest of the record is then read as lines between records, and the
// load fails.
TEST_F(PopupTriggerResave, AnItemIndexedFromOneIsOutOfPlace) {
    WriteFile(dir / "in.txt", FullWith("(S)CONTROL_ADD.ITEM0=Apple", "(S)CONTROL_ADD.ITEM1=Apple"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err.rfind("Tolva Resource Editor: Error on line 81:  (S)CONTROL_ADD.ITEM1=Apple\n", 0), 0u) << err;
}

}  // namespace
}  // namespace tolva::testing
