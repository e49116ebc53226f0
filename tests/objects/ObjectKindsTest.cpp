// The sixteen kinds: each with its own defaults.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "document/ObjectTypes.h"
#include "objects/bitmap/ctlKOMABitmap.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/line/ctlKOMALine.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/KomaControl.h"
#include "objects/menu/ctlKOMAMenu.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"
#include "objects/pushbutton/ctlKOMAPushButton.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "objects/schedulerline/ctlKOMASchedulerLine.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/textbox/ctlKOMATextbox.h"
#include "support/RecordingOwner.h"

namespace tolva {
namespace {

struct KindDefaults {
    std::function<std::unique_ptr<KomaObject>()> make;
    int screenType;
    const char* name;
    const char* typeWord;
    int deviceKind;
    int width, height;
    bool resizable;
};

std::vector<KindDefaults> AllKinds() {
    auto mk = [](auto tag) {
        return [] { return std::unique_ptr<KomaObject>(new typename decltype(tag)::type()); };
    };
    return {
        {mk(std::type_identity<ctlKOMAButton>{}), type::Button, "BUTTON_", "CONTROL", 1, 46, 20, true},
        {mk(std::type_identity<ctlKOMAForm>{}), type::Form, "FORM_", "FORM", 0, 160, 160, true},
        {mk(std::type_identity<ctlKOMAString>{}), type::String, "STRING_", "STRING", 8, 53, 10, true},
        {mk(std::type_identity<ctlKOMATextbox>{}), type::Textbox, "TEXTBOX_", "TEXTBOX", 10, 43, 36, true},
        {mk(std::type_identity<ctlKOMAField>{}), type::Field, "FIELD_", "FIELD", 3, 50, 46, true},
        {mk(std::type_identity<ctlKOMACheckbox>{}), type::Checkbox, "CHECKBOX_", "CONTROL", 1, 14, 14, false},
        {mk(std::type_identity<ctlKOMATable>{}), type::Table, "TABLE_", "TABLE", 9, 0, 0, false},
        {mk(std::type_identity<ctlKOMABitmap>{}), type::Bitmap, "BITMAP_", "BITMAP", 2, 33, 33, false},
        {mk(std::type_identity<ctlKOMALine>{}), type::Line, "LINE_", "LINE", 4, 46, 30, true},
        {mk(std::type_identity<ctlKOMAList>{}), type::List, "LIST_", "LIST", 5, 24, 12, true},
        {mk(std::type_identity<ctlKOMAMenu>{}), type::Menu, "MENU_", "MENU", 6, 24, 12, true},
        {mk(std::type_identity<ctlKOMAPopupTrigger>{}), type::PopupTrigger, "POPUPTRIGGER_", "CONTROL", 1, 53, 23, true},
        {mk(std::type_identity<ctlKOMAPushButton>{}), type::PushButton, "PUSHBUTTON_", "CONTROL", 1, 40, 36, true},
        {mk(std::type_identity<ctlKOMARepeatButton>{}), type::RepeatButton, "REPEATBUTTON_", "CONTROL", 1, 33, 33, false},
        {mk(std::type_identity<ctlKOMASchedulerLine>{}), type::SchedulerLine, "SCHEDULERLINE_", "SCHLINE", 11, 40, 40, true},
        {mk(std::type_identity<ctlKOMAScrollbar>{}), type::Scrollbar, "SCROLLBAR_", "SCROLLBAR", 7, 24, 12, true},
    };
}

TEST(ObjectKinds, EachKindHasItsOwnDefaults) {
    for (const auto& k : AllKinds()) {
        auto object = k.make();
        SCOPED_TRACE(k.typeWord + std::string(" ") + std::to_string(k.screenType));
        EXPECT_EQ(object->ScreenType(), k.screenType);
        EXPECT_EQ(object->KOMAName(), k.name);
        EXPECT_EQ(object->KOMAObjectTypeWord(), k.typeWord);
        EXPECT_EQ(object->KOMAObjectType(), k.deviceKind);
        EXPECT_EQ(object->KOMAWidth(), k.width);
        EXPECT_EQ(object->KOMAHeight(), k.height);
        EXPECT_EQ(object->ResizeOK(), k.resizable);
        EXPECT_EQ(object->VertResizeOK(), k.resizable);
        EXPECT_EQ(object->HorizResizeOK(), k.resizable);
        EXPECT_FALSE(object->LinkedToTable());
        EXPECT_DOUBLE_EQ(object->PCTwipsToTolvaPixels(), 36.59);
        EXPECT_EQ(object->KOMAObjectID(), 0);
        EXPECT_EQ(object->KOMARelatedTableID(), 65535);
        EXPECT_EQ(object->KOMABoundsX(), 0);
        EXPECT_EQ(object->KOMABoundsY(), 0);
        EXPECT_EQ(object->ParentForm(), nullptr);
    }
}

TEST(ObjectKinds, DeviceKindMapsBackToTheScreenType) {
    for (const auto& k : AllKinds()) {
        if (k.screenType == type::Form) continue;
        auto object = k.make();
        int style = 0;
        if (auto* control = dynamic_cast<KomaControl*>(object.get())) style = control->KOMAControlStyle();
        EXPECT_EQ(ScreenTypeFromDeviceKind(object->KOMAObjectType(), style), k.screenType)
            << k.typeWord;
    }
}

TEST(ObjectKinds, ControlStyleWordsOfTheControlFamily) {
    EXPECT_EQ(ctlKOMAButton().KOMAControlStyleWord(), "BUTTON");
    EXPECT_EQ(ctlKOMARepeatButton().KOMAControlStyleWord(), "REPEAT_BUTTON");
    EXPECT_EQ(ctlKOMAPushButton().KOMAControlStyleWord(), "PUSH_BUTTON");
    EXPECT_EQ(ctlKOMACheckbox().KOMAControlStyleWord(), "CHECKBOX");
    EXPECT_EQ(ctlKOMAPopupTrigger().KOMAControlStyleWord(), "POPUP_TRIGGER");
}

TEST(ObjectKinds, TableKeepsItsFixedBoxAndNoDeviceSize) {
    ctlKOMATable table;
    EXPECT_DOUBLE_EQ(table.Width(), 855);
    EXPECT_DOUBLE_EQ(table.Height(), 855);
    EXPECT_EQ(table.KOMAWidth(), 0);
}

TEST(ObjectKinds, TableKeepsItsBoxWhenGivenTheScreensScale) {
    testing::RecordingOwner owner;
    ctlKOMATable table;
    table.SetOwner(&owner);
    table.PCTwipsToTolvaPixels(36.59375);
    EXPECT_DOUBLE_EQ(table.Width(), 855);
    EXPECT_DOUBLE_EQ(table.Height(), 855);
    EXPECT_EQ(table.KOMAWidth(), 0);
    EXPECT_EQ(table.KOMAHeight(), 0);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST(ObjectKinds, EveryKindKeepsItsDefaultSizeAtTheScreensScale) {
    for (const auto& k : AllKinds()) {
        testing::RecordingOwner owner;
        auto object = k.make();
        object->SetOwner(&owner);
        object->PCTwipsToTolvaPixels(36.59375);
        EXPECT_EQ(object->KOMAWidth(), k.width) << k.name;
        EXPECT_EQ(object->KOMAHeight(), k.height) << k.name;
        EXPECT_TRUE(owner.host.messages.empty()) << k.name;
    }
}

TEST(ObjectKinds, CopyModelFromTakesEveryPropertyOfTheSameKind) {
    testing::RecordingOwner owner;
    ctlKOMAButton a, b;
    a.SetOwner(&owner);
    b.SetOwner(&owner);
    ctlKOMAForm form;
    b.KOMAName("BUTTON_3");
    b.KOMABoundsX(20);
    b.KOMABoundsY(40);
    b.KOMAObjectID(9);
    b.ParentForm(&form);
    EXPECT_TRUE(a.CopyModelFrom(b));
    EXPECT_EQ(a.KOMAName(), "BUTTON_3");
    EXPECT_EQ(a.KOMABoundsX(), 20);
    EXPECT_EQ(a.KOMABoundsY(), 40);
    EXPECT_EQ(a.KOMAObjectID(), 9);
    EXPECT_EQ(a.ParentForm(), &form);
    ctlKOMAString s;
    EXPECT_FALSE(a.CopyModelFrom(s));
}

}  // namespace
}  // namespace tolva
