// The screen's name index: every lookup by name (FindObject, GetObjectID,
// GetObjectType, the name check) answers as a walk of the arrays would,
// after renames, deletions, loads and a cleared screen.
#include <fstream>

#include "document/Numbers.h"
#include "inspector/PropertyArray.h"
#include "screen/ScreenFiles.h"
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

class ScreenNameIndex : public ScreenTest {
protected:
    // Renames an object through the inspector's way in.
    void Rename(int screenType, const std::string& name, const std::string& newName) {
        PropertyArray rows;
        ASSERT_TRUE(screen.GetObjectPropertiesList(rows, screenType, name));
        rows.At(3, 1) = PropertyCell(newName);
        ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(screenType, name, rows));
    }

    // What the lookups say of a name: the type found, the id and whether
    // FindObject of that type finds it.
    std::string LookUp(const std::string& name) {
        int foundType = -1;
        int id = -1;
        screen.GetObjectType(name, foundType);
        screen.GetObjectID(name, id);
        const bool found = foundType >= 0 && screen.FindObject(foundType, name) != nullptr;
        return IntToText(foundType) + "/" + IntToText(id) + (found ? "/found" : "/none");
    }

    int CountObjects() {
        int n = 0;
        for (int t = 0; t < type::Count; ++t)
            if (t != type::Menu) n += screen.Count(t);
        return n;
    }
};

TEST_F(ScreenNameIndex, ARenamedObjectIsFoundByItsNewNameOnly) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    Rename(type::Button, "BUTTON_1", "OK_BUTTON");
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "OK_BUTTON");
    EXPECT_EQ(screen.FindObject(type::Button, "OK_BUTTON"), Obj(type::Button, 1));
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_1"), nullptr);
    EXPECT_EQ(LookUp("OK_BUTTON"), "0/1/found");
    EXPECT_EQ(LookUp("BUTTON_1"), "-1/-1/none");
    // The old name is free again, the new one taken.
    EXPECT_TRUE(screen.IsNewNameUnique("", "BUTTON_1"));
    EXPECT_FALSE(screen.IsNewNameUnique("", "OK_BUTTON"));
    // The next button drawn takes the freed name.
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    EXPECT_EQ(Obj(type::Button, 2)->KOMAName(), "BUTTON_1");
}

TEST_F(ScreenNameIndex, ARefusedRenameLeavesTheIndexAsItWas) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    Rename(type::Button, "BUTTON_2", "BUTTON_1");
    EXPECT_EQ(Obj(type::Button, 2)->KOMAName(), "BUTTON_2");
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_2"), Obj(type::Button, 2));
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_1"), Obj(type::Button, 1));
    EXPECT_EQ(screen.IndexedObjectCount(), 3u);
}

TEST_F(ScreenNameIndex, DeletingTheMiddleOfThreeKeepsEveryNameOnItsObject) {
    ASSERT_TRUE(DrawForm());
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(Draw(type::Button, 10, 10 + 30 * i, 46, 20));
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_2"));
    // The third moved into the second slot, under its own name.
    EXPECT_EQ(Names(type::Button), (std::vector<std::string>{"BUTTON_1", "BUTTON_3"}));
    int index = 0;
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_3", &index), Obj(type::Button, 2));
    EXPECT_EQ(index, 2);
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_2"), nullptr);
    EXPECT_EQ(LookUp("BUTTON_3"), "0/2/found");
    EXPECT_TRUE(screen.IsNewNameUnique("", "BUTTON_2"));
    EXPECT_EQ(screen.IndexedObjectCount(), 3u);
    // The last one deleted leaves nothing behind.
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_3"));
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_3"), nullptr);
    EXPECT_EQ(screen.IndexedObjectCount(), 2u);
}

TEST_F(ScreenNameIndex, DeletingAFormTakesItsObjectsAndItsMenusOutOfTheIndex) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    screen.UpdateMenus({{"Open"}}, {"MENU_FILE"});
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_FALSE(screen.IsNewNameUnique("", "MENU_FILE"));
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    EXPECT_EQ(Names(type::Form), std::vector<std::string>{"FORM_2"});
    EXPECT_EQ(screen.FindObject(type::Form, "FORM_2"), Form(1));
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_2"), Obj(type::Button, 1));
    EXPECT_EQ(screen.FindObject(type::Button, "BUTTON_1"), nullptr);
    EXPECT_TRUE(screen.IsNewNameUnique("", "MENU_FILE"));
    EXPECT_TRUE(screen.IsNewNameUnique("", "FORM_1"));
    EXPECT_EQ(screen.IndexedObjectCount(), 2u);
}

TEST_F(ScreenNameIndex, MenusSetOnAFormAreTakenNames) {
    ASSERT_TRUE(DrawForm());
    EXPECT_TRUE(screen.IsNewNameUnique("", "MENU_A"));
    Form(1)->SetMenus({{}}, {"MENU_A"});
    EXPECT_FALSE(screen.IsNewNameUnique("", "MENU_A"));
    Form(1)->SetMenus({}, {});
    EXPECT_TRUE(screen.IsNewNameUnique("", "MENU_A"));
}

TEST_F(ScreenNameIndex, ClearScreenEmptiesTheIndex) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    screen.UpdateMenus({{"Open"}}, {"MENU_FILE"});
    screen.ClearScreen();
    EXPECT_EQ(screen.IndexedObjectCount(), 0u);
    EXPECT_EQ(screen.FindObject(type::Form, "FORM_1"), nullptr);
    EXPECT_EQ(LookUp("BUTTON_1"), "-1/-1/none");
    EXPECT_TRUE(screen.IsNewNameUnique("", "FORM_1"));
    EXPECT_TRUE(screen.IsNewNameUnique("", "MENU_FILE"));
    // A new design names from 1 again.
    ASSERT_TRUE(DrawForm());
    EXPECT_EQ(Form(1)->KOMAName(), "FORM_1");
    EXPECT_EQ(screen.FindObject(type::Form, "FORM_1"), Form(1));
}

TEST_F(ScreenNameIndex, ALoadedDesignIsFoundObjectByObject) {
    screen.ClearScreen();
    screen.StartLoading();
    ASSERT_TRUE(LoadResourceFile(screen, std::string(TOLVA_TEST_DATA_DIR) + "/worked_example.txt"));
    screen.StopLoading();
    EXPECT_EQ(screen.IndexedObjectCount(), static_cast<std::size_t>(CountObjects()));
    for (int t = 0; t < type::Count; ++t)
        for (int i = 1; t != type::Menu && i <= screen.Count(t); ++i) {
            const std::string name = Obj(t, i)->KOMAName();
            int index = 0;
            EXPECT_EQ(screen.FindObject(t, name, &index), Obj(t, i)) << name;
            EXPECT_EQ(index, i) << name;
            int id = -1;
            screen.GetObjectID(name, id);
            EXPECT_EQ(id, Obj(t, i)->KOMAObjectID()) << name;
        }
}

TEST_F(ScreenNameIndex, TwoObjectsOfOneNameAnswerInArrayOrder) {
    // A load may bring two objects of one name (the first with ID 0 is not
    // checked); each lookup finds the first in its own order.
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    ASSERT_TRUE(Draw(type::String, 10, 70, 46, 20));
    // The plain setter, as a record's name reaches it, asks nothing.
    for (KomaObject* object : {Obj(type::String, 1), Obj(type::Button, 1), Obj(type::String, 2)})
        object->KOMAName("SAME");
    screen.DistributeObjectIds();
    // Ids: the form, then buttons before strings.
    EXPECT_EQ(Obj(type::Button, 1)->KOMAObjectID(), 1);
    EXPECT_EQ(Obj(type::String, 1)->KOMAObjectID(), 2);
    // GetObjectType walks buttons before strings, and so does GetObjectID.
    EXPECT_EQ(LookUp("SAME"), "0/1/found");
    EXPECT_EQ(screen.FindObject(type::String, "SAME"), Obj(type::String, 1));
    EXPECT_EQ(screen.IndexedObjectCount(), 4u);
    ASSERT_TRUE(screen.DeleteObject(type::String, "SAME"));
    EXPECT_EQ(screen.FindObject(type::String, "SAME"), Obj(type::String, 1));
    EXPECT_EQ(screen.Count(type::String), 1);
    EXPECT_EQ(screen.IndexedObjectCount(), 3u);
}

}  // namespace
}  // namespace tolva::testing
