#include "document/ObjectTypes.h"

#include <gtest/gtest.h>

namespace tolva {
namespace {

TEST(ObjectTypes, WordsOfTheSixteenScreenTypes) {
    const char* words[] = {"BUTTON", "FORM", "STRING", "TEXTBOX", "FIELD", "CHECKBOX",
                           "TABLE", "BITMAP", "LINE", "LIST", "MENU", "POPUP_TRIGGER",
                           "PUSH_BUTTON", "REPEAT_BUTTON", "SCHLINE", "SCROLLBAR"};
    for (int t = 0; t < 16; ++t) EXPECT_EQ(ScreenTypeWord(t), words[t]) << t;
    EXPECT_EQ(ScreenTypeWord(16), "");
    EXPECT_EQ(ScreenTypeWord(-1), "");
}

TEST(ObjectTypes, NamePrefixes) {
    EXPECT_EQ(ScreenTypeNamePrefix(type::Button), "BUTTON_");
    EXPECT_EQ(ScreenTypeNamePrefix(type::Form), "FORM_");
    EXPECT_EQ(ScreenTypeNamePrefix(type::PopupTrigger), "POPUPTRIGGER_");
    EXPECT_EQ(ScreenTypeNamePrefix(type::PushButton), "PUSHBUTTON_");
    EXPECT_EQ(ScreenTypeNamePrefix(type::RepeatButton), "REPEATBUTTON_");
    EXPECT_EQ(ScreenTypeNamePrefix(type::SchedulerLine), "SCHEDULERLINE_");
    EXPECT_EQ(ScreenTypeNamePrefix(type::Menu), "");
    EXPECT_EQ(ScreenTypeNamePrefix(type::None), "");
}

TEST(ObjectTypes, EmbeddedWordIsControlForTheControlFamily) {
    for (int t : {type::Button, type::Checkbox, type::PopupTrigger, type::PushButton,
                  type::RepeatButton})
        EXPECT_EQ(EmbeddedTypeWord(t), "CONTROL") << t;
    EXPECT_EQ(EmbeddedTypeWord(type::SchedulerLine), "SCHLINE");
    EXPECT_EQ(EmbeddedTypeWord(type::Menu), "");
    EXPECT_EQ(EmbeddedTypeWord(type::Form), "");
}

TEST(ObjectTypes, DeviceKindToScreenType) {
    EXPECT_EQ(ScreenTypeFromDeviceKind(1, 0), type::Button);
    EXPECT_EQ(ScreenTypeFromDeviceKind(1, 1), type::RepeatButton);
    EXPECT_EQ(ScreenTypeFromDeviceKind(1, 2), type::PushButton);
    EXPECT_EQ(ScreenTypeFromDeviceKind(1, 3), type::Checkbox);
    EXPECT_EQ(ScreenTypeFromDeviceKind(1, 4), type::PopupTrigger);
    EXPECT_EQ(ScreenTypeFromDeviceKind(1, 5), -1);
    const int expected[] = {-1, -2, 7, 4, 8, 9, 10, 15, 2, 6, 3, 14};
    for (int k = 2; k <= 11; ++k) EXPECT_EQ(ScreenTypeFromDeviceKind(k, 0), expected[k]) << k;
    EXPECT_EQ(ScreenTypeFromDeviceKind(0, 0), -1);
    EXPECT_EQ(ScreenTypeFromDeviceKind(12, 0), -1);
}

}  // namespace
}  // namespace tolva
