// tolva-res for build pipelines: the header alone, with the IDs a save
// would give; --quiet keeping standard error to failed runs; the help and
// the usage line naming every command.
#include <gtest/gtest.h>

#include "cli/ResProgramFixture.h"

namespace tolva::testing {
namespace {

using HeaderAndQuiet = ResProgram;

TEST_F(HeaderAndQuiet, TheHeaderAloneIsTheOneASaveWrites) {
    WriteFile(dir / "in.txt", Golden("table_full.txt"));
    WriteFile(dir / "FORM.BMP", BmpBytes(10, 12));
    EXPECT_EQ(Run("header in.txt out.h"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.h"), Golden("table_full.h"));
    EXPECT_FALSE(std::filesystem::exists(dir / "out.txt"));
    WriteFile(dir / "menus.txt", Golden("menus_full.txt"));
    EXPECT_EQ(Run("header menus.txt menus.h"), 0);
    EXPECT_EQ(ReadFile(dir / "menus.h"), Golden("menus_full.h"));
}

TEST_F(HeaderAndQuiet, QuietKeepsTheBoxesOfARunThatGoesWell) {
    WriteFile(dir / "in.txt", Golden("worked_example.txt"));
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "Tolva Resource Editor: Bitmap not found\n");
    EXPECT_EQ(Run("--quiet resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Golden("worked_example.txt"));
    EXPECT_EQ(Run("--quiet header in.txt out.h"), 0);
    EXPECT_EQ(err, "");
}

TEST_F(HeaderAndQuiet, QuietStillSaysAllOfAFailedRun) {
    WriteFile(dir / "in.txt", Golden("menus_full.txt"));
    std::string text = Golden("menus_full.txt");
    const std::string from = "(U)MENU_NUM_ITEMS=12";
    text.replace(text.find(from), from.size(), "(U)MENU_NUM_ITEMS=x");
    WriteFile(dir / "in.txt", text);
    EXPECT_EQ(Run("--quiet check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"x\" is no number\n");
    WriteFile(dir / "bad.txt", "#NOTHING\r\n");
    EXPECT_EQ(Run("--quiet header bad.txt bad.h"), 1);
    EXPECT_NE(err.find("Could not load resource file"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(dir / "bad.h"));
}

TEST_F(HeaderAndQuiet, TheHelpAndTheUsageLineNameEveryCommand) {
    EXPECT_EQ(Run("--help"), 0);
    for (const char* command : {"tolva-res check IN.txt", "tolva-res resave IN.txt OUT.txt [OUT.h]",
                                "tolva-res header IN.txt OUT.h",
                                "tolva-res render IN.txt OUTDIR [--scale N] [--form NAME]", "--quiet"})
        EXPECT_NE(out.find(command), std::string::npos) << command;
    for (const char* wrong : {"header in.txt", "header in.txt a.h b.h", "--quiet", "--quiet --help",
                              "--quiet open in.txt"}) {
        EXPECT_EQ(Run(wrong), 64) << wrong;
        EXPECT_EQ(err.rfind("usage: tolva-res [--quiet] check IN.txt", 0), 0u) << err;
        EXPECT_NE(err.find("tolva-res [--quiet] header IN.txt OUT.h"), std::string::npos);
        EXPECT_NE(err.find("tolva-res [--quiet] render IN.txt OUTDIR [--scale N] [--form NAME]"),
                  std::string::npos);
    }
}

}  // namespace
}  // namespace tolva::testing
