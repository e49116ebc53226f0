// The form's bookkeeping: embedded list and references, menus, related
// checkboxes and related lists.
#include <gtest/gtest.h>

#include <map>

#include "document/ObjectTypes.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/table/ctlKOMATable.h"
#include "support/RecordingOwner.h"
#include "support/TestStrings.h"

namespace tolva {
namespace {

using testing::RecordingOwner;

class FormEmbedding : public ::testing::Test {
protected:
    RecordingOwner owner;
    ctlKOMAForm form;
    ctlKOMAButton button;
    ctlKOMAString text;
    ctlKOMAList list1;
    ctlKOMAList list2;
    ctlKOMAList list3;

    void SetUp() override {
        testing::EnsureStringsLoaded();
        form.SetOwner(&owner);
        form.KOMAName("FORM_1");
        button.KOMAName("BUTTON_1");
        text.KOMAName("STRING_1");
        list1.KOMAName("LIST_1");
        list2.KOMAName("LIST_2");
        list3.KOMAName("LIST_3");
    }

    std::vector<std::string> EmbeddedNames() const {
        std::vector<std::string> names;
        for (const auto& row : form.GetEmbeddedObjectList()) names.push_back(row.name);
        return names;
    }
    std::vector<std::string> RelatedNames() const {
        std::vector<std::string> names;
        for (const auto& row : form.RelatedLists()) names.push_back(row.name);
        return names;
    }
    void ExpectSquare() const {
        for (const auto& row : form.RelatedLists())
            EXPECT_EQ(row.linked.size(), form.RelatedLists().size()) << row.name;
    }
};

TEST_F(FormEmbedding, FocusFollowsARenamedObject) {
    form.EmbedObject(type::Button, "BUTTON_1", &button);
    form.KOMAFocusedObject("BUTTON_1");
    form.NotifyEmbeddedObjectNameChanged("BUTTON_1", "OK_BUTTON");
    EXPECT_EQ(form.KOMAFocusedObject(), "OK_BUTTON");
    EXPECT_EQ(form.GetEmbeddedObjectList()[0].name, "OK_BUTTON");
    // A rename of another object leaves the focus alone.
    form.EmbedObject(type::String, "STRING_1", &text);
    form.NotifyEmbeddedObjectNameChanged("STRING_1", "TITLE");
    EXPECT_EQ(form.KOMAFocusedObject(), "OK_BUTTON");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormEmbedding, EmbeddingAFormIsRefused) {
    ctlKOMAForm other;
    other.KOMAName("FORM_2");
    EXPECT_FALSE(form.EmbedObject(type::Form, "FORM_2", &other));
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "Tried to embed form in form");
    EXPECT_EQ(owner.host.messages[0].title, "EmbedObject");
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 0);
    EXPECT_TRUE(form.GetEmbeddedObjectReferenceList().empty());
}

TEST_F(FormEmbedding, EmbeddingAddsANameWordAndReference) {
    EXPECT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    EXPECT_TRUE(form.EmbedObject(type::String, "STRING_1", &text));
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 2);
    const auto rows = form.GetEmbeddedObjectList();
    EXPECT_EQ(rows[0].name, "BUTTON_1");
    EXPECT_EQ(rows[0].typeWord, "CONTROL");
    EXPECT_EQ(rows[1].name, "STRING_1");
    EXPECT_EQ(rows[1].typeWord, "STRING");
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(),
              (std::vector<KomaObject*>{&button, &text}));
    EXPECT_EQ(form.GetFirstEmbeddedObjectReference(), &button);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormEmbedding, TypeWordsOfEveryKind) {
    const std::vector<std::pair<int, std::string>> words = {
        {type::Button, "CONTROL"},      {type::Checkbox, "CONTROL"},
        {type::PopupTrigger, "CONTROL"}, {type::PushButton, "CONTROL"},
        {type::RepeatButton, "CONTROL"}, {type::String, "STRING"},
        {type::Textbox, "TEXTBOX"},     {type::Field, "FIELD"},
        {type::Table, "TABLE"},         {type::Bitmap, "BITMAP"},
        {type::Line, "LINE"},           {type::List, "LIST"},
        {type::SchedulerLine, "SCHLINE"}, {type::Scrollbar, "SCROLLBAR"},
        {type::Menu, ""}};
    for (const auto& [t, word] : words) ASSERT_TRUE(form.EmbedObject(t, "X", &button));
    const auto rows = form.GetEmbeddedObjectList();
    ASSERT_EQ(rows.size(), words.size());
    for (size_t i = 0; i < words.size(); ++i) EXPECT_EQ(rows[i].typeWord, words[i].second) << i;
}

TEST_F(FormEmbedding, NoFirstReferenceOfAnEmptyForm) {
    EXPECT_EQ(form.GetFirstEmbeddedObjectReference(), nullptr);
}

TEST_F(FormEmbedding, ListsKeepTheRelatedTableSquare) {
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    ExpectSquare();
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_2", &list2));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_3", &list3));
    EXPECT_EQ(RelatedNames(), (std::vector<std::string>{"LIST_1", "LIST_2", "LIST_3"}));
    ExpectSquare();
    for (const auto& row : form.RelatedLists())
        for (bool flag : row.linked) EXPECT_FALSE(flag);
}

TEST_F(FormEmbedding, DeletionMovesTheLastRowIntoTheHole) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    ASSERT_TRUE(form.EmbedObject(type::String, "STRING_1", &text));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    EXPECT_TRUE(form.NotifyObjectDeleted("BUTTON_1"));
    EXPECT_EQ(EmbeddedNames(), (std::vector<std::string>{"LIST_1", "STRING_1"}));
    EXPECT_EQ(form.GetEmbeddedObjectList()[0].typeWord, "LIST");
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(), (std::vector<KomaObject*>{&list1, &text}));
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 2);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormEmbedding, DeletingTheFocusedObjectClearsTheFocus) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    ASSERT_TRUE(form.EmbedObject(type::String, "STRING_1", &text));
    form.KOMAFocusedObject("STRING_1");
    ASSERT_TRUE(form.NotifyObjectDeleted("BUTTON_1"));
    EXPECT_EQ(form.KOMAFocusedObject(), "STRING_1");
    ASSERT_TRUE(form.NotifyObjectDeleted("STRING_1"));
    EXPECT_EQ(form.KOMAFocusedObject(), "");
}

TEST_F(FormEmbedding, DeletingAListKeepsTheRelatedTableSquareAndAligned) {
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_2", &list2));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_3", &list3));
    // LIST_2 is linked with LIST_3.
    form.SetRelatedListData("LIST_2", {"LIST_1", "LIST_3"}, {false, true});
    form.SetRelatedListData("LIST_3", {"LIST_1", "LIST_2"}, {false, true});
    ASSERT_TRUE(form.NotifyObjectDeleted("LIST_1"));
    EXPECT_EQ(RelatedNames(), (std::vector<std::string>{"LIST_3", "LIST_2"}));
    ExpectSquare();
    std::vector<std::string> names;
    std::vector<bool> linked;
    ASSERT_TRUE(form.GetRelatedListData("LIST_2", names, linked));
    EXPECT_EQ(names, (std::vector<std::string>{"LIST_3"}));
    EXPECT_EQ(linked, (std::vector<bool>{true}));
    ASSERT_TRUE(form.GetRelatedListData("LIST_3", names, linked));
    EXPECT_EQ(names, (std::vector<std::string>{"LIST_2"}));
    EXPECT_EQ(linked, (std::vector<bool>{true}));
}

TEST_F(FormEmbedding, DeletionByTheFormsOwnTextOfTheName) {
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_2", &list2));
    // The name handed in is the form's own row, which the deletion moves.
    ASSERT_TRUE(form.NotifyObjectDeleted(form.RelatedLists()[0].name));
    EXPECT_EQ(EmbeddedNames(), (std::vector<std::string>{"LIST_2"}));
    EXPECT_EQ(RelatedNames(), (std::vector<std::string>{"LIST_2"}));
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(), (std::vector<KomaObject*>{&list2}));
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormEmbedding, DeletingAnUnknownNameAnswersFalse) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    EXPECT_FALSE(form.NotifyObjectDeleted("BUTTON_2"));
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 1);
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList().size(), 1u);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormEmbedding, DeletionWithoutAMatchingReferenceIsReported) {
    // The row's name and the object's own name disagree.
    ASSERT_TRUE(form.EmbedObject(type::Button, "OLD_NAME", &button));
    EXPECT_TRUE(form.NotifyObjectDeleted("OLD_NAME"));
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 0);
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "couldn't find reference");
    EXPECT_EQ(owner.host.messages[0].title, "NotifyObjectDeleted");
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList().size(), 1u);
}

TEST_F(FormEmbedding, RemoveByNumberMatchesOnlyANumericName) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    text.KOMAName("12");
    ASSERT_TRUE(form.EmbedObject(type::String, "12", &text));
    form.RemoveEmbeddedObject(1);
    EXPECT_EQ(form.KOMANumEmbeddedObjects(), 2);
    form.RemoveEmbeddedObject(12);
    EXPECT_EQ(EmbeddedNames(), (std::vector<std::string>{"BUTTON_1"}));
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(), (std::vector<KomaObject*>{&button}));
}

TEST_F(FormEmbedding, RenameReachesTheEmbeddedAndRelatedLists) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    form.NotifyEmbeddedObjectNameChanged("LIST_1", "LIST_COLORS");
    EXPECT_EQ(EmbeddedNames(), (std::vector<std::string>{"BUTTON_1", "LIST_COLORS"}));
    EXPECT_EQ(RelatedNames(), (std::vector<std::string>{"LIST_COLORS"}));
    form.NotifyEmbeddedObjectNameChanged("NOBODY", "SOMEBODY");
    EXPECT_EQ(EmbeddedNames(), (std::vector<std::string>{"BUTTON_1", "LIST_COLORS"}));
}

TEST_F(FormEmbedding, HideAndShowEveryReference) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    ASSERT_TRUE(form.EmbedObject(type::String, "STRING_1", &text));
    form.HideEmbeddedObjects();
    EXPECT_FALSE(button.Visible());
    EXPECT_FALSE(text.Visible());
    EXPECT_TRUE(form.Visible());
    form.ShowEmbeddedObjects();
    EXPECT_TRUE(button.Visible());
    EXPECT_TRUE(text.Visible());
}

TEST_F(FormEmbedding, ReferenceListRebuildsBothLists) {
    ctlKOMAScrollbar bar;
    bar.KOMAName("SCROLLBAR_1");
    ctlKOMATable table;
    table.KOMAName("TABLE_1");
    ASSERT_TRUE(form.EmbedObject(type::String, "STRING_1", &text));
    form.SetEmbeddedObjectReferenceList({&button, &bar, &table});
    const auto rows = form.GetEmbeddedObjectList();
    ASSERT_EQ(form.KOMANumEmbeddedObjects(), 3);
    EXPECT_EQ(rows[0].name, "BUTTON_1");
    EXPECT_EQ(rows[0].typeWord, "CONTROL");
    EXPECT_EQ(rows[1].typeWord, "SCROLLBAR");
    EXPECT_EQ(rows[2].name, "TABLE_1");
    EXPECT_EQ(rows[2].typeWord, "TABLE");
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(),
              (std::vector<KomaObject*>{&button, &bar, &table}));
}

TEST_F(FormEmbedding, UpdateReferenceListReplacesTheObjectOfAName) {
    ctlKOMAButton other;
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    ASSERT_TRUE(form.EmbedObject(type::String, "STRING_1", &text));
    form.UpdateReferenceList("STRING_1", &other);
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(), (std::vector<KomaObject*>{&button, &other}));
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(FormEmbedding, UpdateReferenceListWithoutTheNameIsReported) {
    ASSERT_TRUE(form.EmbedObject(type::Button, "BUTTON_1", &button));
    form.UpdateReferenceList("STRING_1", &text);
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "didn't updat ref list");
    EXPECT_EQ(owner.host.messages[0].title, "UpdateReferenceList");
    EXPECT_EQ(form.GetEmbeddedObjectReferenceList(), (std::vector<KomaObject*>{&button}));
}

// --- menus -----------------------------------------------------------------------------

TEST_F(FormEmbedding, MenusAreReplacedWhole) {
    form.SetMenus({{"Open", "Close"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    form.SetMenuIDs(7);
    EXPECT_EQ(form.GetNumMenus(), 2);
    std::vector<std::vector<std::string>> items;
    std::vector<std::string> names;
    std::vector<int> ids;
    form.GetMenus(items, names, ids);
    EXPECT_EQ(names, (std::vector<std::string>{"MENU_FILE", "MENU_EDIT"}));
    EXPECT_EQ(items, (std::vector<std::vector<std::string>>{{"Open", "Close"}, {"Cut"}}));
    EXPECT_EQ(ids, (std::vector<int>{7, 8}));
    form.SetMenus({{"Help"}}, {"MENU_HELP"});
    form.GetMenus(items, names, ids);
    EXPECT_EQ(names, (std::vector<std::string>{"MENU_HELP"}));
    EXPECT_EQ(ids, (std::vector<int>{0}));
}

TEST_F(FormEmbedding, MenuWithoutItemsKeepsItsName) {
    form.SetMenus({}, {"MENU_EMPTY"});
    ASSERT_EQ(form.GetNumMenus(), 1);
    EXPECT_EQ(form.Menus()[0].name, "MENU_EMPTY");
    EXPECT_TRUE(form.Menus()[0].items.empty());
}

// --- related checkboxes and lists ----------------------------------------------------------

TEST_F(FormEmbedding, CheckboxRenamedChangesTheFirstRowOnly) {
    form.SetRelatedCheckboxes({{"CHECKBOX_1", {false, true, false}},
                               {"CHECKBOX_2", {true, false, false}},
                               {"CHECKBOX_1", {false, false, false}}});
    form.CheckboxRenamed("CHECKBOX_1", "CHECKBOX_RED");
    const auto& rows = form.RelatedCheckboxes();
    EXPECT_EQ(rows[0].name, "CHECKBOX_RED");
    EXPECT_EQ(rows[0].linked, (std::vector<bool>{false, true, false}));
    EXPECT_EQ(rows[1].name, "CHECKBOX_2");
    EXPECT_EQ(rows[2].name, "CHECKBOX_1");
}

TEST_F(FormEmbedding, RelatedListDataSkipsTheListsOwnPosition) {
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_2", &list2));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_3", &list3));
    form.SetRelatedListData("LIST_2", {"LIST_1", "LIST_3"}, {true, false});
    EXPECT_EQ(form.RelatedLists()[1].linked, (std::vector<bool>{true, false, false}));
    std::vector<std::string> names;
    std::vector<bool> linked;
    ASSERT_TRUE(form.GetRelatedListData("LIST_2", names, linked));
    EXPECT_EQ(names, (std::vector<std::string>{"LIST_1", "LIST_3"}));
    EXPECT_EQ(linked, (std::vector<bool>{true, false}));
    ASSERT_TRUE(form.GetRelatedListData("LIST_1", names, linked));
    EXPECT_EQ(names, (std::vector<std::string>{"LIST_2", "LIST_3"}));
    EXPECT_EQ(linked, (std::vector<bool>{false, false}));
}

TEST_F(FormEmbedding, RelatedListDataOfAnUnknownList) {
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    std::vector<std::string> names{"kept"};
    std::vector<bool> linked{true};
    EXPECT_FALSE(form.GetRelatedListData("LIST_9", names, linked));
    EXPECT_EQ(names, (std::vector<std::string>{"kept"}));
    form.SetRelatedListData("LIST_9", {"LIST_1"}, {true});
    EXPECT_EQ(form.RelatedLists()[0].linked, (std::vector<bool>{false}));
}

TEST_F(FormEmbedding, ShortFlagListWritesWhatItHas) {
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_2", &list2));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_3", &list3));
    form.SetRelatedListData("LIST_1", {"LIST_2"}, {true});
    EXPECT_EQ(form.RelatedLists()[0].linked, (std::vector<bool>{false, true, false}));
}

// An owner that knows the ids of a few names.
class IdOwner : public RecordingOwner {
public:
    std::map<std::string, int> ids;
    bool OwnerGetObjectID(const std::string& name, int& id) override {
        const auto it = ids.find(name);
        if (it == ids.end()) return false;
        id = it->second;
        return true;
    }
};

TEST_F(FormEmbedding, RelatedListIdsAreThoseOfTheLinkedLists) {
    IdOwner idOwner;
    idOwner.ids = {{"LIST_1", 11}, {"LIST_2", 12}, {"LIST_3", 13}};
    form.SetOwner(&idOwner);
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_1", &list1));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_2", &list2));
    ASSERT_TRUE(form.EmbedObject(type::List, "LIST_3", &list3));
    form.SetRelatedListData("LIST_2", {"LIST_1", "LIST_3"}, {true, true});
    form.SetRelatedListData("LIST_3", {"LIST_1", "LIST_2"}, {false, true});
    std::vector<int> ids{99};
    form.GetRelatedListIDs("LIST_2", ids);
    EXPECT_EQ(ids, (std::vector<int>{11, 13}));
    form.GetRelatedListIDs("LIST_3", ids);
    EXPECT_EQ(ids, (std::vector<int>{12}));
    form.GetRelatedListIDs("LIST_1", ids);
    EXPECT_TRUE(ids.empty());
    ids = {99};
    form.GetRelatedListIDs("LIST_9", ids);
    EXPECT_TRUE(ids.empty());
    // A renamed list is asked for by its new name.
    form.NotifyEmbeddedObjectNameChanged("LIST_3", "LIST_COLORS");
    idOwner.ids["LIST_COLORS"] = 23;
    form.GetRelatedListIDs("LIST_2", ids);
    EXPECT_EQ(ids, (std::vector<int>{11, 23}));
    form.SetOwner(&owner);
}

}  // namespace
}  // namespace tolva
