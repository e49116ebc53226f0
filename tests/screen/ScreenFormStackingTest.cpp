// The objects of one form back to front, found from the form alone: the
// same list as every object on show while that form is shown, so that a
// picture of the form shows what the canvas shows.
#include <algorithm>

#include "screen/ScreenFiles.h"
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

using ScreenFormStacking = ScreenTest;

TEST_F(ScreenFormStacking, EachFormOfALoadedDesignListsWhatTheCanvasShows) {
    screen.ClearScreen();
    screen.StartLoading();
    ASSERT_TRUE(LoadResourceFile(screen, std::string(TOLVA_TEST_DATA_DIR) + "/render/every_kind.txt"));
    screen.StopLoading();
    ASSERT_EQ(screen.NumForms(), 9);
    const auto lists = screen.ObjectsOfEachForm();
    ASSERT_EQ(lists.size(), 9u);
    for (int i = 1; i <= screen.NumForms(); ++i) {
        const std::string name = Form(i)->KOMAName();
        screen.HideForm(screen.CurrentDesignForm());
        ASSERT_TRUE(screen.ShowForm(name));
        const std::vector<KomaObject*> shown = screen.VisibleObjectsInStackingOrder();
        // Loaded objects share one stamp: the array order decides.
        EXPECT_EQ(ctlTolvaScreen::OnShowInStackingOrder(lists[i - 1]), shown) << name;
        // The form at the back, then as many objects as it holds.
        ASSERT_FALSE(shown.empty());
        EXPECT_EQ(shown.front(), Form(i));
        EXPECT_EQ(shown.size(), Form(i)->GetEmbeddedObjectReferenceList().size() + 1) << name;
    }
}

TEST_F(ScreenFormStacking, AnObjectOfNoFormShowsWithEveryForm) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 14));
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 30, 40, 14));
    Obj(type::Button, 1)->ParentForm(nullptr);
    const auto lists = screen.ObjectsOfEachForm();
    ASSERT_EQ(lists.size(), 2u);
    for (const auto& list : lists)
        EXPECT_NE(std::find(list.begin(), list.end(), Obj(type::Button, 1)), list.end());
    EXPECT_EQ(std::find(lists[0].begin(), lists[0].end(), Obj(type::String, 1)), lists[0].end());
    EXPECT_EQ(std::find(lists[0].begin(), lists[0].end(), Form(2)), lists[0].end());
}

TEST_F(ScreenFormStacking, TheLastSelectedObjectComesToTheFront) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 14));
    ASSERT_TRUE(Draw(type::String, 20, 12, 40, 14));
    auto onShow = [&] { return ctlTolvaScreen::OnShowInStackingOrder(screen.ObjectsOfEachForm()[0]); };
    std::vector<KomaObject*> list = onShow();
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list.back(), Obj(type::String, 1));
    screen.SelectObject(type::Button, Obj(type::Button, 1)->KOMAName());
    list = onShow();
    EXPECT_EQ(list, screen.VisibleObjectsInStackingOrder());
    EXPECT_EQ(list.back(), Obj(type::Button, 1));
    EXPECT_EQ(list.front(), Form(1));
}

}  // namespace
}  // namespace tolva::testing
