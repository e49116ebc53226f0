// Check boxes on the screen: drawn with their tool at their own size, sized
// by their pictures and never by hand, and their relations kept by the form
// as check boxes come, go and are renamed, edited through the popup menu's
// editor.
#include <fstream>
#include <memory>

#include "objects/checkbox/CheckboxRelations.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "screen/CanvasFixture.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {
namespace {

using Flags = std::vector<bool>;

class CheckboxOnScreen : public CanvasTest {
protected:
    std::unique_ptr<ShortNamedDirectory> workDir;

    void SetUp() override {
        CanvasTest::SetUp();
        workDir = std::make_unique<ShortNamedDirectory>("k");
        ASSERT_TRUE(workDir->Made());
        ASSERT_TRUE(DrawForm());
        ClearRecords();
    }
    void TearDown() override { workDir.reset(); }

    ctlKOMACheckbox* DrawCheckbox(int x, int y) {
        EXPECT_TRUE(Draw(type::Checkbox, x, y, 30, 30));
        return static_cast<ctlKOMACheckbox*>(Obj(type::Checkbox, static_cast<int>(Names(type::Checkbox).size())));
    }
    const ctlKOMAForm::RelatedCheckboxTable& Table() { return Form(1)->RelatedCheckboxes(); }
    void Rename(ctlKOMACheckbox& box, const std::string& name) {
        PropertyArray rows;
        box.GetPropertyList(rows);
        rows.At(3, 1) = PropertyCell(name);
        const std::string old = box.KOMAName();
        ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(type::Checkbox, old, rows));
    }
    // Opens the editor from the box's popup menu; the dialog ticks item
    // `item` under the first check box and answers OK or Cancel.
    void EditFromPopup(ctlKOMACheckbox& box, int item, bool ok) {
        host.popupAnswers = {4};
        host.dialogAnswers.push_back([item, ok](DialogModel& model) {
            auto& relations = dynamic_cast<CheckboxRelations&>(model);
            relations.Tick(item, true);
            return ok;
        });
        box.MouseDown(2, 0, 5, 5);
    }
};

TEST_F(CheckboxOnScreen, ANewOneHasItsOwnSizeWhateverTheBand) {
    ctlKOMACheckbox* box = DrawCheckbox(10, 20);
    EXPECT_EQ(box->KOMAName(), "CHECKBOX_1");
    EXPECT_EQ(box->KOMABoundsX(), 10);
    EXPECT_EQ(box->KOMABoundsY(), 20);
    EXPECT_EQ(box->KOMAWidth(), 14);
    EXPECT_EQ(box->KOMAHeight(), 14);
}

TEST_F(CheckboxOnScreen, APictureSizesItAndAResizeByHandIsRefused) {
    ctlKOMACheckbox* box = DrawCheckbox(10, 20);
    std::ofstream("ON.BMP") << "BM";
    host.pictures["ON.BMP"] = PictureSize{11, 9};
    box->KOMABitmap1File("ON.BMP");
    EXPECT_EQ(box->KOMAWidth(), 11);
    EXPECT_EQ(box->KOMAHeight(), 9);
    screen.SelectObject(type::Checkbox, box->KOMAName());
    ClearRecords();
    DragNode(2, G(45), G(45));
    EXPECT_EQ(box->KOMAWidth(), 11);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Resize not allowed: Manual resize not allowed for this object"}));
}

TEST_F(CheckboxOnScreen, TheFormKeepsARowAndAColumnForEachCheckbox) {
    DrawCheckbox(10, 20);
    ASSERT_TRUE(Draw(type::Button, 40, 40, 30, 12));
    DrawCheckbox(10, 60);
    ASSERT_EQ(Table().size(), 2u);
    EXPECT_EQ(Table()[0].name, "CHECKBOX_1");
    EXPECT_EQ(Table()[0].linked, (Flags{false, false}));
    EXPECT_EQ(Table()[1].name, "CHECKBOX_2");
    EXPECT_EQ(Table()[1].linked, (Flags{false, false}));
}

TEST_F(CheckboxOnScreen, ThePopupOpensTheEditorAndItsOKWritesTheRelationsBack) {
    ctlKOMACheckbox* first = DrawCheckbox(10, 20);
    DrawCheckbox(10, 60);
    EditFromPopup(*first, 0, true);
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmCheckbox"}));
    EXPECT_EQ(Table()[0].linked, (Flags{false, true}));
    EXPECT_EQ(Table()[1].linked, (Flags{true, false}));
}

TEST_F(CheckboxOnScreen, CancelInTheEditorChangesNothing) {
    ctlKOMACheckbox* first = DrawCheckbox(10, 20);
    DrawCheckbox(10, 60);
    EditFromPopup(*first, 0, false);
    EXPECT_EQ(host.dialogs.size(), 1u);
    EXPECT_EQ(Table()[0].linked, (Flags{false, false}));
    EXPECT_EQ(Table()[1].linked, (Flags{false, false}));
}

TEST_F(CheckboxOnScreen, ARenameByTheInspectorKeepsTheRelations) {
    ctlKOMACheckbox* first = DrawCheckbox(10, 20);
    ctlKOMACheckbox* second = DrawCheckbox(10, 60);
    EditFromPopup(*first, 0, true);
    Rename(*second, "AGREE");
    EXPECT_EQ(second->KOMAName(), "AGREE");
    ASSERT_EQ(Table().size(), 2u);
    EXPECT_EQ(Table()[1].name, "AGREE");
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes(Table());
    EXPECT_EQ(relations.OtherNames(), (std::vector<std::string>{"AGREE"}));
    EXPECT_EQ(relations.OtherTicks(), (Flags{true}));
}

TEST_F(CheckboxOnScreen, ADeletionTakesItsRowAndColumnAndKeepsTheOthersRelations) {
    ctlKOMACheckbox* first = DrawCheckbox(10, 20);
    DrawCheckbox(10, 60);
    DrawCheckbox(10, 100);
    // The first related to the third (item 1 under it).
    EditFromPopup(*first, 1, true);
    ASSERT_TRUE(screen.DeleteObject(type::Checkbox, "CHECKBOX_2"));
    ASSERT_EQ(Table().size(), 2u);
    EXPECT_EQ(Table()[0].name, "CHECKBOX_1");
    EXPECT_EQ(Table()[1].name, "CHECKBOX_3");
    EXPECT_EQ(Table()[0].linked, (Flags{false, true}));
    EXPECT_EQ(Table()[1].linked, (Flags{true, false}));
}

TEST_F(CheckboxOnScreen, WithOneCheckboxTheEditorOpensOnItAlone) {
    ctlKOMACheckbox* only = DrawCheckbox(10, 20);
    std::vector<std::string> names;
    std::vector<std::string> others{"not asked"};
    host.popupAnswers = {4};
    host.dialogAnswers.push_back([&](DialogModel& model) {
        auto& relations = dynamic_cast<CheckboxRelations&>(model);
        names = relations.CheckboxNames();
        others = relations.OtherNames();
        return true;
    });
    only->MouseDown(2, 0, 5, 5);
    EXPECT_EQ(names, (std::vector<std::string>{"CHECKBOX_1"}));
    EXPECT_TRUE(others.empty());
}

TEST_F(CheckboxOnScreen, WithNoCheckboxTheFormsEditorOpensEmpty) {
    bool empty = false;
    host.dialogAnswers.push_back([&](DialogModel& model) {
        auto& relations = dynamic_cast<CheckboxRelations&>(model);
        empty = relations.CheckboxNames().empty() && relations.OtherNames().empty();
        return true;
    });
    Form(1)->EditRelatedCheckboxes();
    EXPECT_TRUE(empty);
    EXPECT_TRUE(Table().empty());
}

}  // namespace
}  // namespace tolva::testing
