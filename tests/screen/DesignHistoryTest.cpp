// The design's history: each kind of step undone gives back the files of
// the design before it byte for byte, redone the files after it; the form
// on show, the selection and every object's rows and drawing come back too;
// images of untouched objects are shared between steps.
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <random>

#include "document/Numbers.h"
#include "inspector/PropertyArray.h"
#include "objects/checkbox/CheckboxRelations.h"
#include "objects/list/ListEditing.h"
#include "objects/table/TableEditing.h"
#include "objects/table/ctlKOMATable.h"
#include "screen/DesignHistory.h"
#include "screen/ScreenFiles.h"
#include "screen/ScreenFixture.h"
#include "support/FileBytes.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

class DesignHistoryTest : public ScreenTest {
protected:
    DesignHistory history{screen};
    fs::path base = fs::path(::testing::TempDir()) / ("tolva-history-" + std::to_string(getpid()));

    void TearDown() override {
        fs::remove(base.string() + ".txt");
        fs::remove(base.string() + ".h");
    }

    // The resource text and the header a save writes.
    std::string Files() {
        SaveResourceFile(screen, base.string() + ".txt");
        SaveHeaderFile(screen, base.string() + ".h");
        return ReadFile(base.string() + ".txt") + "\n=== header ===\n" + ReadFile(base.string() + ".h");
    }

    // What the files do not show: the form on show, the selection, and
    // every object's rows, place on the canvas and drawing.
    std::string State() {
        std::string out = "form " + screen.CurrentDesignForm() + ", selected " +
                          IntToText(screen.SelectedObjectType()) + " " +
                          screen.SelectedObjectName() + "\n";
        for (int t = 0; t < type::Count; ++t)
            for (int i = 1; t != type::Menu && i <= screen.Count(t); ++i) {
                KomaObject& object = *Obj(t, i);
                out += IntToText(t) + "." + IntToText(i) + " " + object.KOMAName() + " id " +
                       IntToText(object.KOMAObjectID()) + " index " + IntToText(object.iIndex()) +
                       " at " + std::to_string(object.Left()) + "," + std::to_string(object.Top()) +
                       " " + std::to_string(object.Width()) + "x" + std::to_string(object.Height()) +
                       (object.Visible() ? " shown" : " hidden") + " stamp " +
                       std::to_string(object.StackStamp()) + " form " +
                       (object.ParentForm() ? object.ParentForm()->KOMAName() : "-") + "\n";
                PropertyArray rows;
                object.GetPropertyList(rows);
                for (int r = 1; r <= rows.Rows(); ++r)
                    out += "  " + rows.Label(r) + "=" + rows.Value(r).Text() + "\n";
                for (const DrawElement& e : object.GetDrawElements())
                    out += "  " + e.name + " " + std::to_string(e.rect.left) + " " +
                           std::to_string(e.rect.width) + " " + e.text + "\n";
                if (t == type::Form) {
                    auto& form = static_cast<ctlKOMAForm&>(object);
                    for (KomaObject* embedded : form.GetEmbeddedObjectReferenceList())
                        out += "  holds " + (embedded ? embedded->KOMAName() : "-") + "\n";
                    // The related check boxes and lists, which the file
                    // writes in its own way.
                    auto flags = [](const std::vector<bool>& linked) {
                        std::string text;
                        for (bool flag : linked) text += flag ? '1' : '0';
                        return text;
                    };
                    for (const auto& row : form.RelatedCheckboxes())
                        out += "  checkbox " + row.name + " " + flags(row.linked) + "\n";
                    for (const auto& row : form.RelatedLists())
                        out += "  list " + row.name + " " + flags(row.linked) + "\n";
                    for (const auto& menu : form.Menus()) {
                        out += "  menu " + menu.name;
                        for (const auto& item : menu.items) out += " " + item;
                        out += "\n";
                    }
                }
            }
        return out;
    }

    void Load(const std::string& file) {
        screen.ClearScreen();
        screen.StartLoading();
        ASSERT_TRUE(LoadResourceFile(screen, std::string(TOLVA_TEST_DATA_DIR) + "/" + file));
        screen.StopLoading();
        history.Reset();
    }

    // Does the step, then checks undo and redo against the files and the
    // state before and after it.
    void CheckStep(const std::string& name, const std::function<void()>& step,
                   bool everything = false) {
        const std::string filesBefore = Files(), stateBefore = State();
        history.BeginStep();
        step();
        history.CommitStep(name, everything);
        const std::string filesAfter = Files(), stateAfter = State();
        EXPECT_TRUE(filesAfter + stateAfter != filesBefore + stateBefore) << name << ": no change";
        ASSERT_TRUE(history.CanUndo());
        EXPECT_EQ(history.UndoText(), "Undo " + name);
        ASSERT_TRUE(history.Undo());
        EXPECT_TRUE(Files() == filesBefore) << name << ": files after undo";
        EXPECT_TRUE(State() == stateBefore) << name << ": state after undo";
        EXPECT_EQ(history.RedoText(), "Redo " + name);
        ASSERT_TRUE(history.Redo());
        EXPECT_TRUE(Files() == filesAfter) << name << ": files after redo";
        EXPECT_TRUE(State() == stateAfter) << name << ": state after redo";
    }

    // The object's popup entry chosen, the dialog it opens answered.
    void EditFromPopup(KomaObject& object, int entry, std::function<bool(DialogModel&)> answer,
                       const std::string& dialog) {
        host.popupAnswers = {entry};
        host.dialogAnswers.push_back(std::move(answer));
        object.MouseDown(kRightButton, 0, 3, 3);
        ASSERT_FALSE(host.dialogs.empty());
        EXPECT_EQ(host.dialogs.back(), dialog);
    }

    bool SetRow(int screenType, const std::string& name, int row, const std::string& value) {
        PropertyArray rows;
        if (!screen.GetObjectPropertiesList(rows, screenType, name)) return false;
        rows.At(3, row) = PropertyCell(value);
        return screen.NotifyObjectOfPropertyChange(screenType, name, rows);
    }
};

TEST_F(DesignHistoryTest, EveryGoldenDesignComesBackWholeFromASnapshot) {
    for (const char* file : {"worked_example.txt", "table_full.txt", "menus_full.txt",
                             "render/every_kind.txt", "list_full.txt", "field_full.txt",
                             "scrollbar_full.txt", "checkbox_full.txt", "popuptrigger_full.txt",
                             "line_full.txt", "bitmap_full.txt", "textbox_full.txt",
                             "pushbutton_full.txt", "repeatbutton_full.txt",
                             "schedulerline_full.txt"}) {
        SCOPED_TRACE(file);
        Load(file);
        const std::string files = Files(), state = State();
        const DesignSnapshot snapshot = screen.TakeSnapshot(nullptr, SnapshotScope{true, {}});
        screen.ClearScreen();
        screen.RestoreSnapshot(snapshot);
        EXPECT_EQ(Files(), files) << file;
        EXPECT_EQ(State(), state) << file;
    }
}

TEST_F(DesignHistoryTest, DrawingAnObject) {
    Load("render/every_kind.txt");
    CheckStep("Draw BUTTON", [&] { ASSERT_TRUE(Draw(type::Button, 30, 100, 40, 14)); });
    CheckStep("Draw FORM", [&] { ASSERT_TRUE(DrawForm()); });
}

TEST_F(DesignHistoryTest, DeletingAnObjectAFormAndATable) {
    Load("render/every_kind.txt");
    // A button of the first form: the last button moves into its place.
    CheckStep("Delete BUTTON_0_0", [&] { ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_0_0")); });
    // A form and everything on it.
    CheckStep("Delete FORM_CHOICES", [&] { ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_CHOICES")); });
    // A table with the objects in its cells.
    CheckStep("Delete TABLE_FRUIT", [&] { ASSERT_TRUE(screen.DeleteObject(type::Table, "TABLE_FRUIT")); });
}

TEST_F(DesignHistoryTest, MovingAndResizingByMouse) {
    Load("render/every_kind.txt");
    KomaObject* button = Obj(type::Button, 2);
    const std::string name = button->KOMAName();
    ASSERT_TRUE(screen.ShowForm(button->ParentForm()->KOMAName()));
    CheckStep("Move " + name,
              [&] { ASSERT_TRUE(screen.MoveObject(type::Button, name, At(50), At(90))); });
    CheckStep("Resize " + name, [&] {
        ASSERT_TRUE(screen.ResizeObject(type::Button, name, At(50), At(90), At(90), At(110)));
    });
}

TEST_F(DesignHistoryTest, ACommittedInspectorRowAndARename) {
    Load("render/every_kind.txt");
    const std::string form = screen.CurrentDesignForm();
    const std::string button = Obj(type::Button, 1)->KOMAName();
    CheckStep("Set X of " + button, [&] { ASSERT_TRUE(SetRow(type::Button, button, 2, "33")); });
    // A new name reaches the form's list of objects and the header.
    CheckStep("Set Name of " + button, [&] { ASSERT_TRUE(SetRow(type::Button, button, 1, "OK_BUTTON")); });
    CheckStep("Set Name of " + form, [&] { ASSERT_TRUE(SetRow(type::Form, form, 1, "FORM_MAIN")); });
}

TEST_F(DesignHistoryTest, AMenuChange) {
    Load("menus_full.txt");
    const std::string form = screen.CurrentDesignForm();
    CheckStep("Edit Menus of " + form, [&] {
        screen.UpdateMenus({{"Open", "Close"}, {"Help"}}, {"MENU_FILE", "MENU_HELP"});
    });
}

// Each dialog's OK from its object's popup menu, and the Table Editor's
// immediate operations kept after its Cancel.
TEST_F(DesignHistoryTest, TheDialogsOfTheObjects) {
    Load("render/every_kind.txt");
    auto show = [&](const char* form) {
        screen.HideForm(screen.CurrentDesignForm());
        ASSERT_TRUE(screen.ShowForm(form));
    };
    auto find = [&](int screenType, const std::string& name) -> KomaObject* {
        for (int i = 1; i <= screen.Count(screenType); ++i)
            if (Obj(screenType, i)->KOMAName() == name) return Obj(screenType, i);
        return nullptr;
    };
    show("FORM_LISTS");
    CheckStep("Edit List PLAIN", [&] {
        EditFromPopup(*find(type::List, "PLAIN"), 0, [](DialogModel& model) {
            auto& edit = dynamic_cast<ListEditing&>(model);
            edit.Add("Five");
            return edit.Accept("5");
        }, "frmList");
    });
    show("FORM_SETTINGS");
    CheckStep("Edit Checkboxes SOUND", [&] {
        EditFromPopup(*find(type::Checkbox, "SOUND"), 4, [](DialogModel& model) {
            auto& relations = dynamic_cast<CheckboxRelations&>(model);
            const std::vector<bool> ticks = relations.OtherTicks();
            if (ticks.empty()) return false;
            relations.Tick(0, !ticks[0]);
            return true;
        }, "frmCheckbox");
    });
    show("FORM_TABLE");
    CheckStep("Edit Table TABLE_FRUIT", [&] {
        EditFromPopup(*find(type::Table, "TABLE_FRUIT"), 1, [](DialogModel& model) {
            auto& edit = dynamic_cast<TableEditing&>(model);
            edit.SelectTableCell(1, 1);
            edit.InsertEditorRow(1);
            // Cancel: the row stays in the table.
            return false;
        }, "frmTable");
    });
}

TEST_F(DesignHistoryTest, ATableGridAndItsCellObjects) {
    Load("table_full.txt");
    auto* table = static_cast<ctlKOMATable*>(Obj(type::Table, 1));
    ASSERT_TRUE(screen.ShowForm(table->ParentForm()->KOMAName()));
    CheckStep("Edit Table " + table->KOMAName(), [&] {
        auto* live = static_cast<ctlKOMATable*>(Obj(type::Table, 1));
        live->InsertRow(1);
        TableProperties properties = live->GetTableProperties();
        properties.rows += 1;
        properties.rowHeights.insert(properties.rowHeights.begin(), 12);
        properties.cells.insert(properties.cells.begin(),
                                static_cast<std::size_t>(properties.columns), TableCell{});
        live->SetTableProperties(properties);
        KomaObject* copied = Obj(type::Button, 1);
        bool ok = false;
        if (copied) live->SetObject(1, 1, copied, ok);
    });
}

TEST_F(DesignHistoryTest, StepsShareTheImagesOfWhatTheyDidNotTouch) {
    Load("render/every_kind.txt");
    const std::size_t start = history.ImageCount();
    int objects = 0;
    for (int t = 0; t < type::Count; ++t) objects += t == type::Menu ? 0 : screen.Count(t);
    EXPECT_EQ(start, static_cast<std::size_t>(objects));
    const std::string name = Obj(type::Button, 1)->KOMAName();
    history.BeginStep();
    ASSERT_TRUE(SetRow(type::Button, name, 2, "31"));
    history.CommitStep("Set X of " + name);
    // The form on show and its objects, no more.
    const std::size_t made = history.ImageCount() - start;
    EXPECT_EQ(made, screen.CurrentFormObjects().size());
    EXPECT_LT(made, static_cast<std::size_t>(objects) / 4);
}

TEST_F(DesignHistoryTest, TheTextsTheSavedMarkAndANewStepAfterUndo) {
    Load("worked_example.txt");
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.UndoText(), "Undo");
    EXPECT_EQ(history.RedoText(), "Redo");
    EXPECT_TRUE(history.IsSaved());
    history.BeginStep();
    ASSERT_TRUE(SetRow(type::Button, "BUTTON_1", 2, "30"));
    history.CommitStep("Set X of BUTTON_1");
    EXPECT_FALSE(history.IsSaved());
    history.MarkSaved();
    history.BeginStep();
    ASSERT_TRUE(SetRow(type::Button, "BUTTON_1", 2, "31"));
    history.CommitStep("Set X of BUTTON_1");
    EXPECT_FALSE(history.IsSaved());
    ASSERT_TRUE(history.Undo());
    EXPECT_TRUE(history.IsSaved());
    ASSERT_TRUE(history.Undo());
    EXPECT_FALSE(history.IsSaved());
    // A new step here drops the two that could be redone, the saved one too.
    history.BeginStep();
    ASSERT_TRUE(SetRow(type::Button, "BUTTON_1", 3, "45"));
    history.CommitStep("Set Y of BUTTON_1");
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.StepCount(), 1u);
    ASSERT_TRUE(history.Undo());
    EXPECT_FALSE(history.IsSaved());
    // A step never begun keeps nothing.
    history.CommitStep("Nothing");
    EXPECT_EQ(history.StepCount(), 1u);
}

// 500 random steps on a design with every kind; undoing them all gives the
// first design's files back, redoing them all the last one's.
TEST_F(DesignHistoryTest, FiveHundredRandomStepsUndoneAndRedone) {
    Load("render/every_kind.txt");
    const std::string first = Files();
    std::mt19937 random(20261125);
    auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const int kinds[] = {type::Button, type::String, type::Textbox, type::Field, type::Checkbox,
                         type::List, type::PopupTrigger, type::PushButton, type::Scrollbar,
                         type::Line, type::Bitmap};
    int steps = 0;
    while (steps < 500) {
        // Now and then another form is shown, as the form list does.
        if (pick(8) == 0 && screen.NumForms() > 0) {
            const std::string next = Form(pick(screen.NumForms()) + 1)->KOMAName();
            screen.HideForm(screen.CurrentDesignForm());
            screen.ShowForm(next);
        }
        if (screen.CurrentDesignForm().empty()) {
            history.BeginStep();
            ASSERT_TRUE(DrawForm());
            history.CommitStep("Draw form");
            ++steps;
            continue;
        }
        const auto objects = screen.CurrentFormObjects();
        const KomaObject* target = objects[static_cast<std::size_t>(pick(static_cast<int>(objects.size())))];
        const int targetType = target->ScreenType();
        const std::string targetName = target->KOMAName();
        history.BeginStep();
        bool everything = false;
        switch (pick(6)) {
            case 0: Draw(kinds[pick(11)], pick(120), 16 + pick(100), 10 + pick(30), 10 + pick(20)); break;
            case 1: screen.DeleteObject(targetType, targetName); break;
            case 2: screen.MoveObject(targetType, targetName, At(pick(130)), At(16 + pick(120))); break;
            case 3: SetRow(targetType, targetName, 2 + pick(2), IntToText(pick(150))); break;
            case 4: SetRow(targetType, targetName, 1, "NAME_" + IntToText(steps)); break;
            case 5: screen.SelectObject(targetType, targetName); break;
        }
        history.CommitStep("Step " + IntToText(steps), everything);
        ++steps;
    }
    const std::string lastState = State();
    const std::string last = Files();
    EXPECT_NE(last, first);
    EXPECT_EQ(history.StepCount(), 500u);
    while (history.Undo()) {
    }
    EXPECT_EQ(Files(), first);
    while (history.Redo()) {
    }
    EXPECT_EQ(State(), lastState);
    EXPECT_EQ(Files(), last);
}

}  // namespace
}  // namespace tolva::testing
