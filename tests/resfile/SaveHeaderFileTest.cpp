// The header of object IDs as a whole file.
#include "document/RuntimeFailure.h"
#include "resfile/ResourceFileFixture.h"
#include "resfile/ResourceFiles.h"

namespace tolva::testing {
namespace {

using SaveHeaderFileTest = ResourceFileTest;

TEST_F(SaveHeaderFileTest, AnEmptyDocumentHasOneEmptyLineWhereTheDefinitionsStand) {
    EXPECT_TRUE(SaveHeaderFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("empty_header.h"));
}

TEST_F(SaveHeaderFileTest, ADesignIsWrittenByteForByteWithTheIdsOfTheSaveBeforeIt) {
    BuildDesignWithMenus();
    const std::string textPath = path + ".txt";
    ASSERT_TRUE(SaveResourceFile(screen, textPath));
    EXPECT_TRUE(SaveHeaderFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("design_with_menus.h"));
    std::remove(textPath.c_str());
}

TEST_F(SaveHeaderFileTest, TheHeaderGivesOutNoIdsItself) {
    Add(type::Button, "BUTTON_1")->KOMAObjectID(12);
    ClearRecords();
    ASSERT_TRUE(SaveHeaderFile(screen, path));
    EXPECT_FALSE(Logged("Object IDs distributed"));
    EXPECT_NE(ReadBytes(path).find("\r\n#define BUTTON_1 12\r\n\r\n#endif\r\n"), std::string::npos);
}

TEST_F(SaveHeaderFileTest, AnObjectsNameGoesIntoTheLineAsItStands) {
    // The name rule is what keeps the header valid C; the header itself
    // takes any name.
    Add(type::String, "Not a C name!");
    ASSERT_TRUE(SaveHeaderFile(screen, path));
    EXPECT_NE(ReadBytes(path).find("\r\n#define Not a C name! 0\r\n"), std::string::npos);
}

TEST_F(SaveHeaderFileTest, APathThatCannotBeWrittenIsARunTimeFailure) {
    EXPECT_THROW(SaveHeaderFile(screen, ::testing::TempDir() + "no_such_dir/x.h"), RuntimeFailure);
}

}  // namespace
}  // namespace tolva::testing
