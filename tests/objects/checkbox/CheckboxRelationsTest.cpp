// What the Checkbox Editor works on: the chosen check box, the others in the
// check list with their ticks, and ticks that always land on both rows.
#include <gtest/gtest.h>

#include "objects/checkbox/CheckboxRelations.h"

namespace tolva::testing {
namespace {

using Names = std::vector<std::string>;
using Flags = std::vector<bool>;

CheckboxRelations::Table ThreeUnrelated() {
    return {{"CHECKBOX_A", {false, false, false}},
            {"CHECKBOX_B", {false, false, false}},
            {"CHECKBOX_C", {false, false, false}}};
}

TEST(CheckboxRelations, ANewTableChoosesItsFirstRowAndOffersTheOthers) {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes(ThreeUnrelated());
    EXPECT_EQ(relations.DialogName(), "frmCheckbox");
    EXPECT_EQ(relations.CheckboxNames(), (Names{"CHECKBOX_A", "CHECKBOX_B", "CHECKBOX_C"}));
    EXPECT_EQ(relations.CurrentRow(), 0);
    EXPECT_EQ(relations.OtherNames(), (Names{"CHECKBOX_B", "CHECKBOX_C"}));
    EXPECT_EQ(relations.OtherTicks(), (Flags{false, false}));
}

TEST(CheckboxRelations, TickingBUnderAMakesATickedUnderB) {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes(ThreeUnrelated());
    relations.Tick(0, true);  // B, under A
    relations.ChooseCheckbox(1);
    EXPECT_EQ(relations.OtherNames(), (Names{"CHECKBOX_A", "CHECKBOX_C"}));
    EXPECT_EQ(relations.OtherTicks(), (Flags{true, false}));
    relations.ChooseCheckbox(2);
    EXPECT_EQ(relations.OtherTicks(), (Flags{false, false}));
    const auto& table = relations.RelatedCheckboxes();
    EXPECT_EQ(table[0].linked, (Flags{false, true, false}));
    EXPECT_EQ(table[1].linked, (Flags{true, false, false}));
}

TEST(CheckboxRelations, AnItemStandsForItsRowBeforeTheCurrentOneAndTheNextRowFromThere) {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes(ThreeUnrelated());
    relations.ChooseCheckbox(1);  // B: the list is A, C
    relations.Tick(1, true);      // C
    relations.Tick(0, true);      // A
    relations.Tick(0, false);     // A again
    const auto& table = relations.RelatedCheckboxes();
    EXPECT_EQ(table[1].linked, (Flags{false, false, true}));
    EXPECT_EQ(table[2].linked, (Flags{false, true, false}));
    EXPECT_EQ(table[0].linked, (Flags{false, false, false}));
}

TEST(CheckboxRelations, WithOnlyOneCheckboxTheCheckListStaysEmpty) {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes({{"CHECKBOX_1", {false}}});
    EXPECT_EQ(relations.CheckboxNames(), (Names{"CHECKBOX_1"}));
    EXPECT_EQ(relations.CurrentRow(), 0);
    EXPECT_TRUE(relations.OtherNames().empty());
    EXPECT_TRUE(relations.OtherTicks().empty());
    relations.Tick(0, true);
    EXPECT_EQ(relations.RelatedCheckboxes()[0].linked, (Flags{false}));
}

TEST(CheckboxRelations, WithNoCheckboxBothListsAreEmpty) {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes({});
    EXPECT_TRUE(relations.CheckboxNames().empty());
    EXPECT_EQ(relations.CurrentRow(), -1);
    EXPECT_TRUE(relations.OtherNames().empty());
    relations.ChooseCheckbox(0);
    relations.Tick(0, true);
    EXPECT_EQ(relations.CurrentRow(), -1);
    EXPECT_TRUE(relations.RelatedCheckboxes().empty());
}

TEST(CheckboxRelations, ARowShorterThanTheTableGrowsToKeepItsTick) {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes({{"CHECKBOX_A", {}}, {"CHECKBOX_B", {}}});
    relations.Tick(0, true);
    EXPECT_EQ(relations.RelatedCheckboxes()[0].linked, (Flags{false, true}));
    EXPECT_EQ(relations.RelatedCheckboxes()[1].linked, (Flags{true}));
    EXPECT_EQ(relations.OtherTicks(), (Flags{true}));
}

}  // namespace
}  // namespace tolva::testing
