// The boxes of the objects list's refresh, and a choice in it of a name that
// the screen does not know.
#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "shell/MainWindowFixture.h"

namespace tolva::testing {
namespace {

class ComboMessages : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        ASSERT_TRUE(Draw(type::Form));
        ASSERT_TRUE(Draw(type::Button, {900, 900, 2000, 1300}));
        host.ClearRecord();
    }
};

TEST_F(ComboMessages, RefreshSaysSoWhenTheFormOnShowIsGoneAndLeavesTheList) {
    // The form on show no longer answers to the name the screen knows it by.
    Screen().FormAt(1)->KOMAName("RENAMED");
    ASSERT_EQ(Screen().CurrentDesignForm(), "FORM_1");
    const QStringList before = Items(Objects());
    const QString shown = Objects()->currentText();
    window->UpdateObjectsCombo();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Could not get embedded objects list from ctlscreen");
    // No title of its own: the box bears the program's.
    EXPECT_EQ(host.messages[0].title, "");
    EXPECT_EQ(ScriptedHost::ShownTitle(host.messages[0]), "Tolva Resource Editor");
    EXPECT_EQ(host.messages[0].buttons, MessageButtons::OK);
    // Nothing else happens.
    EXPECT_EQ(Items(Objects()), before);
    EXPECT_EQ(Objects()->currentText(), shown);
}

TEST_F(ComboMessages, RefreshWithNoFormLeavesTheListAsItWas) {
    ClickTool(2);  // hides the form: none is on show
    ASSERT_EQ(Screen().CurrentDesignForm(), "");
    const QStringList before = Items(Objects());
    host.ClearRecord();
    window->UpdateObjectsCombo();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "No active form");
    EXPECT_EQ(host.messages[0].title, "UpdateObjectsCombo");
    EXPECT_EQ(Items(Objects()), before);
}

TEST_F(ComboMessages, ANameTheScreenDoesNotKnowRaisesNoBox) {
    // The screen's type lookup always answers yes, leaving the type as it
    // was for a name it does not know, so "Could not find object type" never
    // shows; the choice ends in a selection that finds nothing.
    Objects()->addItem("GHOST_1");
    Choose(Objects(), "GHOST_1");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    EXPECT_EQ(Screen().SelectedObjectType(), type::Button);
}

}  // namespace
}  // namespace tolva::testing
