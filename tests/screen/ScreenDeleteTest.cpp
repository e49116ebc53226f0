// Deleting objects: the last object moves into the gap, the forms are told,
// a form takes its objects with it.
#include "screen/ScreenFixture.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"

namespace tolva::testing {
namespace {

using ScreenDelete = ScreenTest;

// A button whose copy of another's model fails.
class UncopyableButton : public ctlKOMAButton {
public:
    bool CopyModelFrom(const KomaObject&) override { return false; }
};

// A button that reports a device kind no table knows.
class StrangeKindButton : public ctlKOMAButton {
public:
    int KOMAObjectType() override { return 12; }
};

// A button that reports a control style beyond 4.
class StrangeStyleButton : public ctlKOMAButton {
public:
    int KOMAControlStyle() override { return 5; }
};

// A check box that carries a control style word not its own, which reads as
// 0, a button: the emptying of its form looks for it among the buttons.
class ForeignStyleCheckbox : public ctlKOMACheckbox {
public:
    int KOMAControlStyle() override { return 0; }
};

class ScreenDeleteThree : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        ASSERT_TRUE(DrawForm());
        ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
        ASSERT_TRUE(Draw(type::Button, 10, 40, 30, 15));
        ASSERT_TRUE(Draw(type::Button, 10, 70, 20, 12));
        ClearRecords();
    }
};

TEST_F(ScreenDeleteThree, MiddleButtonGivesWayToTheLast) {
    KomaObject* slot2 = Obj(type::Button, 2);
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_2"));
    EXPECT_EQ(screen.NumButtons(), 2);
    EXPECT_EQ(Names(type::Button), (std::vector<std::string>{"BUTTON_1", "BUTTON_3"}));
    // The object in slot 2 took over the model and the place of the last.
    EXPECT_EQ(Obj(type::Button, 2), slot2);
    EXPECT_EQ(slot2->KOMABoundsY(), 70);
    EXPECT_EQ(slot2->KOMAWidth(), 20);
    EXPECT_EQ(slot2->KOMAHeight(), 12);
    EXPECT_DOUBLE_EQ(slot2->Top(), At(70));
    EXPECT_TRUE(slot2->AllowRedraw());
}

TEST_F(ScreenDeleteThree, IndexOfTheMovedObjectIsNotCorrected) {
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "BUTTON_3");
    EXPECT_EQ(Obj(type::Button, 1)->iIndex(), 3);
}

TEST_F(ScreenDeleteThree, FormIsToldAndItsReferenceFollowsTheMove) {
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    const auto rows = Form(1)->GetEmbeddedObjectList();
    ASSERT_EQ(rows.size(), 2u);
    // The form's own list moved its last row into the hole as well.
    EXPECT_EQ(rows[0].name, "BUTTON_3");
    EXPECT_EQ(rows[1].name, "BUTTON_2");
    const auto refs = Form(1)->GetEmbeddedObjectReferenceList();
    ASSERT_EQ(refs.size(), 2u);
    EXPECT_EQ(refs[0], Obj(type::Button, 1));
    EXPECT_EQ(refs[0]->KOMAName(), "BUTTON_3");
    EXPECT_EQ(refs[1], Obj(type::Button, 2));
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenDeleteThree, EventsLogAndIdsAfterADeletion) {
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_2"));
    ClearRecords();
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"Deleted BUTTON_1,0", "Selected ,16"}));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object IDs distributed",
                                                   "Object deleted: BUTTON_1"}));
    EXPECT_EQ(screen.SelectedObjectType(), type::None);
    EXPECT_EQ(screen.SelectedObjectName(), "");
    EXPECT_EQ(screen.SelectedObjectRef(), nullptr);
    // Ids shift with the array: BUTTON_3 in slot 1 has id 1.
    int id = -1;
    screen.GetObjectID("BUTTON_3", id);
    EXPECT_EQ(id, 1);
    screen.GetObjectID("BUTTON_2", id);
    EXPECT_EQ(id, 2);
}

TEST_F(ScreenDeleteThree, NameGivenByTheObjectItselfIsKept) {
    // The caller hands in the object's own name, which the copy overwrites.
    ASSERT_TRUE(screen.DeleteObject(type::Button, Obj(type::Button, 1)->KOMAName()));
    EXPECT_EQ(events.lines[0], "Deleted BUTTON_1,0");
    EXPECT_EQ(log.lines.back(), "Object deleted: BUTTON_1");
}

TEST_F(ScreenDeleteThree, LastButtonGoesWithoutACopy) {
    KomaObject* first = Obj(type::Button, 1);
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_3"));
    EXPECT_EQ(Names(type::Button), (std::vector<std::string>{"BUTTON_1", "BUTTON_2"}));
    EXPECT_EQ(Obj(type::Button, 1), first);
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 2);
}

TEST_F(ScreenDeleteThree, MovedObjectShowsWhenItsFormIsOnShow) {
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_TRUE(Obj(type::Button, 1)->Visible());
}

TEST_F(ScreenDeleteThree, UnknownNameLeavesEverythingAlone) {
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_2"));
    ClearRecords();
    EXPECT_FALSE(screen.DeleteObject(type::Button, "BUTTON_9"));
    EXPECT_EQ(screen.NumButtons(), 3);
    EXPECT_EQ(screen.SelectedObjectType(), type::Button);
    EXPECT_EQ(screen.SelectedObjectName(), "BUTTON_2");
    EXPECT_EQ(screen.SelectedObjectRef(), Obj(type::Button, 2));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(events.lines.empty());
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Couldn't find requested object: BUTTON_9"}));
}

TEST_F(ScreenDeleteThree, WithoutTellingTheFormItsRowStays) {
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1", false));
    EXPECT_EQ(screen.NumButtons(), 2);
    const auto rows = Form(1)->GetEmbeddedObjectList();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].name, "BUTTON_1");
    // The reference to the object that went now leads to its new place.
    for (KomaObject* ref : Form(1)->GetEmbeddedObjectReferenceList())
        EXPECT_TRUE(ref == Obj(type::Button, 1) || ref == Obj(type::Button, 2));
}

TEST_F(ScreenDeleteThree, WithoutTellingTheFormNoReferenceOutlivesTheLastObject) {
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_3", false));
    EXPECT_EQ(screen.NumButtons(), 2);
    // The row of the object that went stays, with no object behind it.
    const auto rows = Form(1)->GetEmbeddedObjectList();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[2].name, "BUTTON_3");
    EXPECT_EQ(Form(1)->GetEmbeddedObjectReferenceList(),
              (std::vector<KomaObject*>{Obj(type::Button, 1), Obj(type::Button, 2), nullptr}));
    // Hiding and showing the form's objects passes over the empty place.
    ASSERT_TRUE(screen.HideForm("FORM_1"));
    ASSERT_TRUE(screen.ShowForm("FORM_1"));
    EXPECT_TRUE(Obj(type::Button, 2)->Visible());
}

TEST_F(ScreenDeleteThree, DeleteSelectedObjectPassesTheDeviceKindAndFindsNothing) {
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ClearRecords();
    // A button's device kind is 1, the screen type of forms: no form of that
    // name exists, so nothing is deleted.
    EXPECT_TRUE(screen.DeleteSelectedObject());
    EXPECT_EQ(screen.NumButtons(), 3);
    EXPECT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Couldn't find requested object: BUTTON_1"}));
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenDelete, DeleteSelectedObjectWithNothingSelected) {
    ASSERT_TRUE(DrawForm());
    ASSERT_EQ(screen.SelectedObjectType(), type::None);
    ClearRecords();
    EXPECT_FALSE(screen.DeleteSelectedObject());
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(ScreenDelete, DeleteSelectedFormFindsNoButtonOfItsName) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(screen.SelectObject(type::Form, "FORM_1"));
    EXPECT_TRUE(screen.DeleteSelectedObject());
    EXPECT_EQ(screen.NumForms(), 1);
}

TEST_F(ScreenDelete, MovedObjectOfAnotherFormStaysHidden) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));  // BUTTON_1 on FORM_1
    ASSERT_TRUE(screen.HideForm("FORM_1"));
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));  // BUTTON_2 on FORM_2
    ASSERT_TRUE(screen.HideForm("FORM_2"));
    ASSERT_TRUE(screen.ShowForm("FORM_1"));
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    KomaObject* moved = Obj(type::Button, 1);
    EXPECT_EQ(moved->KOMAName(), "BUTTON_2");
    EXPECT_EQ(moved->ParentForm(), Form(2));
    EXPECT_FALSE(moved->Visible());
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 0);
    ASSERT_EQ(Form(2)->GetEmbeddedObjectReferenceList().size(), 1u);
    EXPECT_EQ(Form(2)->GetEmbeddedObjectReferenceList()[0], moved);
}

TEST_F(ScreenDelete, FailedCopyStopsTheDeletion) {
    ASSERT_TRUE(DrawForm());
    KomaObject* first = screen.Inject(type::Button, std::make_unique<UncopyableButton>());
    first->KOMAName("BUTTON_1");
    ASSERT_TRUE(screen.EmbedObjectInForm("FORM_1", type::Button, "BUTTON_1"));
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    ClearRecords();
    EXPECT_FALSE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(screen.NumButtons(), 2);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "BUTTON_1");
    EXPECT_EQ(Obj(type::Button, 2)->KOMAName(), "BUTTON_2");
    // The retained drawing stays off.
    EXPECT_FALSE(first->AllowRedraw());
    EXPECT_TRUE(events.lines.empty());
    EXPECT_FALSE(Logged("Object deleted: BUTTON_1"));
    EXPECT_FALSE(Logged("Object IDs distributed"));
}

TEST_F(ScreenDelete, FormGoesWithAllItsObjects) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Checkbox, 10, 40, 20, 20));
    ASSERT_TRUE(Draw(type::List, 10, 70, 40, 40));
    ClearRecords();
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    EXPECT_EQ(screen.NumForms(), 0);
    EXPECT_EQ(screen.NumButtons(), 0);
    EXPECT_EQ(screen.NumCheckboxes(), 0);
    EXPECT_EQ(screen.NumLists(), 0);
    EXPECT_EQ(screen.CurrentDesignForm(), "");
    EXPECT_EQ(screen.CurrentFormRef(), nullptr);
    EXPECT_EQ(log.CountStartingWith("Object deleted: "), 4);
    // The objects go first, in the order of the form's list, then the form.
    std::vector<std::string> deletions;
    for (const auto& line : log.lines)
        if (line.rfind("Object deleted: ", 0) == 0 || line.rfind("All objects", 0) == 0)
            deletions.push_back(line);
    EXPECT_EQ(deletions, (std::vector<std::string>{
                             "Object deleted: BUTTON_1", "Object deleted: LIST_1",
                             "Object deleted: CHECKBOX_1", "All objects deleted from form: FORM_1",
                             "Object deleted: FORM_1"}));
    EXPECT_EQ(events.lines.back(), "Selected ,16");
    EXPECT_EQ(events.lines[events.lines.size() - 2], "Deleted FORM_1,1");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenDelete, DeletingTheFirstFormMovesTheSecondAndItsObjectsFollow) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));  // on FORM_2
    ctlKOMAForm* slot1 = Form(1);
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    EXPECT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(Form(1), slot1);
    EXPECT_EQ(slot1->KOMAName(), "FORM_2");
    EXPECT_EQ(slot1->KOMANumEmbeddedObjects(), 1);
    EXPECT_EQ(Obj(type::Button, 1)->ParentForm(), slot1);
    // Deleting any form leaves no form on show.
    EXPECT_EQ(screen.CurrentDesignForm(), "");
    // The button can still be told of through its form.
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(slot1->KOMANumEmbeddedObjects(), 0);
}

TEST_F(ScreenDelete, FormInFormStopsTheEmptying) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    // FORM_2 smuggled into FORM_1's list as if it were a button.
    ASSERT_TRUE(Form(1)->EmbedObject(type::Button, "FORM_2", Form(2)));
    ClearRecords();
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Form embedded in form.  Should not have occured");
    EXPECT_EQ(host.messages[0].title, "DeleteAllEmbededObjectsFromForm");
    EXPECT_FALSE(Logged("All objects deleted from form: FORM_1"));
    EXPECT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(Form(1)->KOMAName(), "FORM_2");
}

TEST_F(ScreenDelete, UnknownKindStopsTheEmptying) {
    ASSERT_TRUE(DrawForm());
    StrangeKindButton strange;
    strange.KOMAName("ODD_1");
    ASSERT_TRUE(Form(1)->EmbedObject(type::Button, "ODD_1", &strange));
    ClearRecords();
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Unknown object type");
    EXPECT_EQ(host.messages[0].title, "DeleteAllEmbededObjectsFromForm");
    EXPECT_EQ(screen.NumForms(), 0);
}

TEST_F(ScreenDelete, UnknownControlStyleStopsTheEmptying) {
    ASSERT_TRUE(DrawForm());
    StrangeStyleButton strange;
    strange.KOMAName("ODD_1");
    ASSERT_TRUE(Form(1)->EmbedObject(type::Button, "ODD_1", &strange));
    ClearRecords();
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Unknown control type");
    EXPECT_EQ(host.messages[0].title, "DeleteAllEmbededObjectsFromForm");
}

TEST_F(ScreenDelete, ObjectTheEmptyingMissesLosesTheFormThatWent) {
    ASSERT_TRUE(DrawForm());
    KomaObject* odd = screen.Inject(type::Checkbox, std::make_unique<ForeignStyleCheckbox>());
    odd->KOMAName("CHECKBOX_ODD");
    ASSERT_TRUE(screen.EmbedObjectInForm("FORM_1", type::Checkbox, "CHECKBOX_ODD"));
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    EXPECT_EQ(screen.NumForms(), 0);
    // The check box was looked for among the buttons and stays; it must not
    // keep the form that is gone.
    ASSERT_EQ(screen.NumCheckboxes(), 1);
    EXPECT_EQ(odd->ParentForm(), nullptr);
    // A rename afterwards has no form to tell, and no form is reached.
    PropertyArray rows;
    ASSERT_TRUE(screen.GetObjectPropertiesList(rows, type::Checkbox, "CHECKBOX_ODD"));
    rows.At(3, 1) = PropertyCell("CHECKBOX_LEFT");
    EXPECT_TRUE(screen.NotifyObjectOfPropertyChange(type::Checkbox, "CHECKBOX_ODD", rows));
    EXPECT_EQ(odd->KOMAName(), "CHECKBOX_LEFT");
}

TEST_F(ScreenDelete, ObjectTheEmptyingMissesIsNotHandedToTheFormThatMovesIn) {
    ASSERT_TRUE(DrawForm());
    KomaObject* odd = screen.Inject(type::Checkbox, std::make_unique<ForeignStyleCheckbox>());
    odd->KOMAName("CHECKBOX_ODD");
    ASSERT_TRUE(screen.EmbedObjectInForm("FORM_1", type::Checkbox, "CHECKBOX_ODD"));
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));  // on FORM_2
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    ASSERT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(Form(1)->KOMAName(), "FORM_2");
    // FORM_2 took the slot of FORM_1; its own button follows it there, the
    // check box of FORM_1 does not.
    EXPECT_EQ(Obj(type::Button, 1)->ParentForm(), Form(1));
    EXPECT_EQ(odd->ParentForm(), nullptr);
    std::vector<std::string> names;
    ASSERT_TRUE(screen.GetEmbeddedObjectNamesFromForm("FORM_2", names));
    EXPECT_EQ(names, (std::vector<std::string>{"BUTTON_1"}));
}

TEST_F(ScreenDelete, DeletedTableGivesItsIdToTheNext) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Table, 10, 10, 20, 20));
    ASSERT_TRUE(Draw(type::Table, 40, 10, 20, 20));
    ASSERT_TRUE(Draw(type::Button, 10, 60, 46, 20));
    int id = -1;
    screen.GetObjectID("BUTTON_1", id);
    EXPECT_EQ(id, 3);
    ASSERT_TRUE(screen.DeleteObject(type::Table, "TABLE_1"));
    screen.GetObjectID("TABLE_2", id);
    EXPECT_EQ(id, 1);
    screen.GetObjectID("BUTTON_1", id);
    EXPECT_EQ(id, 2);
}

}  // namespace
}  // namespace tolva::testing
