#pragma once
// MenuEditing: what the Menu Editor works on: the names and item lists of
// all menus of one form, the menu shown, and a preview of it. The items of
// the shown menu are edited in the shared items part (no check mark, no top
// item) and go back to their menu whenever another is shown. The form takes
// the menus back on OK only.
//
// A name for a new, copied or renamed menu must pass the name rule, and be
// free: no menu of this editor and nothing the screen knows may bear it.
#include <functional>
#include <string>
#include <vector>

#include "objects/ItemsEditing.h"
#include "objects/menu/ctlKOMAMenu.h"

namespace tolva {

class KomaObject;

class MenuEditing : public ItemsEditing {
public:
    static constexpr const char* kDialogName = "frmMenu";
    static constexpr int kItemLimit = 12;
    static constexpr const char* kNamePrefix = "MENU_";

    // `nameTaken` answers whether the screen knows the name already.
    MenuEditing(Host& host, std::function<bool(const std::string&)> nameTaken);
    std::string DialogName() const override { return kDialogName; }

    // "Menu Editor - " and the form's name.
    void Caption(const std::string& formName) { caption_ = "Menu Editor - " + formName; }
    const std::string& Caption() const { return caption_; }

    // Appends a menu; what is shown stays.
    void AddMenu(const std::string& name, const std::vector<std::string>& items);
    // Shows the menu at the position, from 0; any other number shows none.
    void SetMenuSelected(int number);
    // A choice in the list of menus: the shown menu keeps its items, then
    // the chosen one is shown.
    void ChooseMenu(int number);
    int SelectedMenu() const { return shown_; }
    bool HasSelectedMenu() const { return shown_ >= 0; }

    const std::vector<std::string>& Names() const { return names_; }
    // Every menu's items, the shown one's as they stand now.
    std::vector<std::vector<std::string>> ItemLists() const;

    // The three commands on the name: an empty name does nothing, a refused
    // one is told; true when done. New and Copy To New show the new menu.
    bool New(const std::string& name);
    bool CopyToNew(const std::string& name);
    bool Rename(const std::string& name);
    // The shown menu goes; the one before it is shown, or none.
    void Delete();

    // Adds the trimmed text to the shown menu, at most 12 items, none twice.
    bool Add(const std::string& text);

    // The preview of the shown menu, sized to its items as they stand.
    const ctlKOMAMenu& Sample();

    // The picture of the form behind the preview: its objects in stacking
    // order, drawn with the form's top left corner at `left`, `top`, with
    // `devicePixel` screen units to a device pixel.
    struct FormPicture {
        std::vector<const KomaObject*> objects;
        double left = 0;
        double top = 0;
        double devicePixel = kDefaultTwipsPerPixel;
    };
    void SetFormPicture(FormPicture picture) { picture_ = std::move(picture); }
    const FormPicture& Picture() const { return picture_; }

private:
    // The name rule and the two places a name may be taken.
    bool PassesNameTest(const std::string& name);
    void StoreShown();

    std::function<bool(const std::string&)> nameTaken_;
    std::string caption_ = "Menu Editor";
    std::vector<std::string> names_;
    std::vector<std::vector<std::string>> lists_;
    int shown_ = -1;
    ctlKOMAMenu sample_;
    FormPicture picture_;
};

}  // namespace tolva
