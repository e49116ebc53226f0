// tolva-res render: one picture a form of the device screen as the device
// shows it, compared pixel for pixel with golden pictures that were looked
// at once by a person; each device pixel an N by N square; the device's
// greys; the command line's refusals.
#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <set>

#include "cli/ResProgramFixture.h"

namespace tolva::testing {
namespace {

const fs::path kRenderData = fs::path(TOLVA_TEST_DATA_DIR) / "render";

const std::vector<std::string> kEveryKindForms = {
    "FORM_CONTROLS", "FORM_CHOICES", "FORM_PICTURES", "FORM_PUSH", "FORM_SETTINGS",
    "FORM_ENTRY",    "FORM_LISTS",   "FORM_SHAPES",   "FORM_TABLE"};

QImage Picture(const fs::path& path) {
    return QImage(QString::fromStdString(path.string())).convertToFormat(QImage::Format_Grayscale8);
}

// Where two pictures differ, said in a line; empty when they are the same
// pixel for pixel.
std::string Difference(const QImage& got, const QImage& golden) {
    if (got.isNull()) return "no picture";
    if (got.size() != golden.size())
        return "size " + std::to_string(got.width()) + "x" + std::to_string(got.height()) +
               " instead of " + std::to_string(golden.width()) + "x" +
               std::to_string(golden.height());
    int differing = 0;
    std::string first;
    for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x)
            if (qGray(got.pixel(x, y)) != qGray(golden.pixel(x, y))) {
                if (differing++ == 0)
                    first = " first at " + std::to_string(x) + "," + std::to_string(y) + ": " +
                            std::to_string(qGray(got.pixel(x, y))) + " instead of " +
                            std::to_string(qGray(golden.pixel(x, y)));
            }
    return differing ? std::to_string(differing) + " pixels differ," + first : "";
}

class Render : public ResProgram {
protected:
    // The design and the pictures it names, in the test's directory.
    void CopyDesign(const std::string& design) {
        fs::copy_file(kRenderData / design, dir / design);
        for (const auto& entry : fs::directory_iterator(kRenderData))
            if (entry.path().extension() == ".BMP")
                fs::copy_file(entry.path(), dir / entry.path().filename());
    }
    std::set<std::string> Written(const fs::path& folder) const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.insert(entry.path().filename().string());
        return names;
    }
};

TEST_F(Render, TheWorkedExampleMatchesItsGoldenPicture) {
    CopyDesign("worked_example.txt");
    EXPECT_EQ(Run("render worked_example.txt out"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(Written(dir / "out"), std::set<std::string>{"FORM_1.png"});
    const QImage got = Picture(dir / "out/FORM_1.png");
    EXPECT_EQ(got.size(), QSize(160, 160));
    EXPECT_EQ(Difference(got, Picture(kRenderData / "golden/worked_example/FORM_1.png")), "");
}

TEST_F(Render, EveryFormOfADesignWithEveryKindMatchesItsGoldenPicture) {
    CopyDesign("every_kind.txt");
    EXPECT_EQ(Run("render every_kind.txt out"), 0);
    // The one repeat button without a picture names a file that is not there.
    EXPECT_EQ(err, "Tolva Resource Editor: Bitmap not found\n");
    std::set<std::string> expected;
    for (const std::string& form : kEveryKindForms) expected.insert(form + ".png");
    EXPECT_EQ(Written(dir / "out"), expected);
    for (const std::string& form : kEveryKindForms)
        EXPECT_EQ(Difference(Picture(dir / "out" / (form + ".png")),
                             Picture(kRenderData / "golden/every_kind" / (form + ".png"))),
                  "")
            << form;
    // The comparison sees a difference where there is one.
    EXPECT_NE(Difference(Picture(dir / "out/FORM_LISTS.png"), Picture(dir / "out/FORM_TABLE.png")),
              "");
}

TEST_F(Render, TheDesignWithEveryKindResavesUnchanged) {
    CopyDesign("every_kind.txt");
    EXPECT_EQ(Run("--quiet resave every_kind.txt out.txt out.h"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), ReadFile(kRenderData / "every_kind.txt"));
    EXPECT_EQ(ReadFile(dir / "out.h"), ReadFile(kRenderData / "every_kind.h"));
}

TEST_F(Render, EachDevicePixelIsASquareOfTheScale) {
    CopyDesign("every_kind.txt");
    ASSERT_EQ(Run("--quiet render every_kind.txt one"), 0);
    ASSERT_EQ(Run("--quiet render every_kind.txt three --scale 3"), 0);
    for (const std::string& form : kEveryKindForms) {
        const QImage one = Picture(dir / "one" / (form + ".png"));
        const QImage three = Picture(dir / "three" / (form + ".png"));
        ASSERT_EQ(three.size(), QSize(480, 480)) << form;
        int wrong = 0;
        for (int y = 0; y < 480; ++y)
            for (int x = 0; x < 480; ++x)
                if (qGray(three.pixel(x, y)) != qGray(one.pixel(x / 3, y / 3))) ++wrong;
        EXPECT_EQ(wrong, 0) << form;
    }
}

TEST_F(Render, WithoutPicturesEveryPixelIsOneOfTheFourGreys) {
    // The pictures stay behind: what is left is drawn by the objects alone.
    fs::copy_file(kRenderData / "every_kind.txt", dir / "every_kind.txt");
    ASSERT_EQ(Run("--quiet render every_kind.txt out --scale 2"), 0);
    for (const std::string& form : kEveryKindForms) {
        const QImage got = Picture(dir / "out" / (form + ".png"));
        std::set<int> greys;
        for (int y = 0; y < got.height(); ++y)
            for (int x = 0; x < got.width(); ++x) greys.insert(qGray(got.pixel(x, y)));
        for (int grey : greys) EXPECT_TRUE(grey == 0 || grey == 0x80 || grey == 0xC0 || grey == 0xFF)
                                   << form << ": " << grey;
        EXPECT_GE(greys.size(), 2u) << form;
    }
}

TEST_F(Render, APictureKeepsTheGreysOfItsDepth) {
    CopyDesign("every_kind.txt");
    ASSERT_EQ(Run("--quiet render every_kind.txt out --form FORM_PICTURES"), 0);
    const QImage got = Picture(dir / "out/FORM_PICTURES.png");
    std::set<int> greys;
    for (int y = 0; y < 160; ++y)
        for (int x = 0; x < 160; ++x) greys.insert(qGray(got.pixel(x, y)));
    // The four-bit photograph brings greys of sixteen steps besides the
    // device's four.
    for (int grey : greys)
        EXPECT_TRUE(grey % 17 == 0 || grey == 0x80 || grey == 0xC0) << grey;
    EXPECT_GE(greys.size(), 12u);
    // The two-bit one, left of it, has four only: 12 + 40 by 24 + 40.
    std::set<int> twoBit;
    for (int y = 24; y < 64; ++y)
        for (int x = 12; x < 52; ++x) twoBit.insert(qGray(got.pixel(x, y)));
    EXPECT_LE(twoBit.size(), 4u);
}

TEST_F(Render, FormPaintsOneFormAlone) {
    CopyDesign("every_kind.txt");
    EXPECT_EQ(Run("--quiet render every_kind.txt out --scale 2 --form FORM_LISTS"), 0);
    EXPECT_EQ(Written(dir / "out"), std::set<std::string>{"FORM_LISTS.png"});
    EXPECT_EQ(Picture(dir / "out/FORM_LISTS.png").size(), QSize(320, 320));
    // The options in the other order say the same.
    EXPECT_EQ(Run("--quiet render every_kind.txt again --form FORM_LISTS --scale 2"), 0);
    EXPECT_EQ(Difference(Picture(dir / "again/FORM_LISTS.png"), Picture(dir / "out/FORM_LISTS.png")),
              "");
}

TEST_F(Render, AFormTheDesignLacksIsAWrongCommandLine) {
    CopyDesign("worked_example.txt");
    EXPECT_EQ(Run("render worked_example.txt out --form FORM_9"), 64);
    EXPECT_EQ(err, "tolva-res: no form named FORM_9 in worked_example.txt\n" +
                       err.substr(err.find("usage: ")));
    EXPECT_EQ(err.substr(err.find("usage: ")).rfind("usage: tolva-res [--quiet] check IN.txt", 0), 0u);
    EXPECT_FALSE(fs::exists(dir / "out/FORM_1.png"));
}

TEST_F(Render, WrongArgumentsExitWithTheUsageLine) {
    CopyDesign("worked_example.txt");
    for (const char* wrong :
         {"render", "render worked_example.txt", "render worked_example.txt out --scale",
          "render worked_example.txt out --scale 0", "render worked_example.txt out --scale 33",
          "render worked_example.txt out --scale x", "render worked_example.txt out --scale -2",
          "render worked_example.txt out --scale 2 --scale 2",
          "render worked_example.txt out --form", "render worked_example.txt out --size 2",
          "render worked_example.txt out extra", "--quiet render worked_example.txt"}) {
        EXPECT_EQ(Run(wrong), 64) << wrong;
        EXPECT_EQ(err.rfind("usage: tolva-res [--quiet] check IN.txt", 0), 0u) << wrong << ": " << err;
        EXPECT_NE(err.find("render IN.txt OUTDIR [--scale N] [--form NAME]"), std::string::npos);
    }
    EXPECT_FALSE(fs::exists(dir / "out"));
    // The largest scale is taken.
    EXPECT_EQ(Run("--quiet render worked_example.txt big --scale 32"), 0);
    EXPECT_EQ(Picture(dir / "big/FORM_1.png").size(), QSize(5120, 5120));
}

TEST_F(Render, TheHelpNamesRender) {
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_NE(out.find("tolva-res render IN.txt OUTDIR [--scale N] [--form NAME]"), std::string::npos);
}

TEST_F(Render, AFolderThatCannotBeMadeEndsWithStatusTwo) {
    CopyDesign("worked_example.txt");
    WriteFile(dir / "taken", "a file where the folder would go");
    EXPECT_EQ(Run("--quiet render worked_example.txt taken"), 2);
    EXPECT_NE(err.find("render failed: cannot make the folder taken\n"), std::string::npos) << err;
    // Deeper folders are made.
    EXPECT_EQ(Run("--quiet render worked_example.txt a/b/c"), 0);
    EXPECT_TRUE(fs::exists(dir / "a/b/c/FORM_1.png"));
}

TEST_F(Render, ABrokenDesignPaintsNothing) {
    WriteFile(dir / "bad.txt", "#NOTHING\r\n");
    EXPECT_EQ(Run("render bad.txt out"), 1);
    EXPECT_NE(err.find("Could not load resource file"), std::string::npos);
    EXPECT_FALSE(fs::exists(dir / "out"));
    // A load that a run-time failure ends paints nothing either.
    std::string text = Golden("worked_example.txt");
    text.replace(text.find("(SH)BOUNDS.X=20"), 15, "(SH)BOUNDS.X=x");
    WriteFile(dir / "ended.txt", text);
    EXPECT_EQ(Run("render ended.txt out"), 2);
    EXPECT_NE(err.find("load ended: "), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(dir / "out"));
}

TEST_F(Render, WithoutTheDeviceFontsNothingIsPainted) {
    // The program beside a data folder that lacks the glyph files.
    const fs::path program(TOLVA_RES_PROGRAM);
    fs::create_directories(dir / "bin");
    fs::copy_file(program, dir / "bin/tolva-res");
    for (const auto& entry : fs::directory_iterator(program.parent_path()))
        if (entry.is_regular_file() && (entry.path().extension() == ".txt" ||
                                        entry.path().extension() == ".TXT" ||
                                        entry.path().extension() == ".dat"))
            fs::copy_file(entry.path(), dir / "bin" / entry.path().filename());
    CopyDesign("worked_example.txt");
    const std::string command = "cd '" + dir.string() +
                                "' && ./bin/tolva-res render worked_example.txt out 2>run.stderr";
    const int raw = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(raw));
    EXPECT_EQ(WEXITSTATUS(raw), 1);
    EXPECT_NE(ReadFile(dir / "run.stderr")
                  .find("start failed: the device fonts TolvaSmall.font and TolvaMedium.font are "
                        "missing from "),
              std::string::npos)
        << ReadFile(dir / "run.stderr");
    EXPECT_FALSE(fs::exists(dir / "out"));
    // The same program still checks a design: only pictures need the glyphs.
    EXPECT_EQ(std::system(("cd '" + dir.string() +
                           "' && ./bin/tolva-res --quiet check worked_example.txt")
                              .c_str()),
              0);
}

}  // namespace
}  // namespace tolva::testing
