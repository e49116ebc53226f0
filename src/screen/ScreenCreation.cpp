// CreateObject: a drawn object comes into being. It gets the lowest free
// name of its kind, its size from the rubber band (or its own default size
// when it cannot be resized), fresh ids for the whole design, and its place
// in the form on show.
#include <algorithm>

#include "document/Host.h"
#include "screen/ScreenEvents.h"
#include "screen/ScreenFocus.h"
#include "screen/ScreenUnits.h"
#include "document/StringTable.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

namespace {

// The lowest i for which prefix + i is a free name.
std::string LowestFreeName(ctlTolvaScreen& screen, const std::string& prefix) {
    for (long long i = 1;; ++i) {
        const std::string candidate = prefix + std::to_string(i);
        if (screen.IsNewNameUnique("", candidate)) return candidate;
    }
}

}  // namespace

bool ctlTolvaScreen::CreateObject(int screenType) {
    // 1. Everything but a form needs a form to stand on.
    if (currentDesignForm_.empty() && screenType != type::Form) {
        host_.MessageBox(LoadResString(msg::DrawFormFirst),
                         LoadResString(msg::CouldNotCreateObject));
        return false;
    }

    // 2. A new object at the end of its array. Menus come into being through
    //    the menu editor only.
    if (screenType == type::Menu) {
        host_.MessageBox("Menu object created - shouldn't have happened", "CreateObject");
        return false;
    }
    KomaObject* object = AppendNewObject(screenType);
    if (!object) return false;

    // 3. Its form and its scale.
    if (screenType != type::Form) object->ParentForm(currentFormRef_);
    object->PCTwipsToTolvaPixels(twipsPerPixel_);

    // 4. The lowest free number, not the counter: after deleting "BUTTON_2"
    //    of three the next button is "BUTTON_2" again.
    const std::string name = LowestFreeName(*this, ScreenTypeNamePrefix(screenType));
    object->KOMAName(name);

    // 5. Geometry.
    if (object->ResizeOK()) {
        ResizeObject(screenType, name, band_.X1, band_.Y1, band_.X2, band_.Y2);
    } else {
        // The default size stays; the band gives only the top left corner.
        object->Left(std::min(band_.X1, band_.X2));
        object->Top(std::min(band_.Y1, band_.Y2));
        object->KOMABoundsX(
            ClampPixel(PixelFromScreenPosition(object->Left(), canvasWidth_), 0, 159));
        object->KOMABoundsY(
            ClampPixel(PixelFromScreenPosition(object->Top(), canvasHeight_), 0, 159));
        // The device size follows the canvas size by the class's own rule.
        object->SetCanvasSize(object->Width(), object->Height());
        if (object->KOMABoundsX() + object->KOMAWidth() > 160) {
            object->KOMABoundsX(160 - object->KOMAWidth());
            object->Left(canvasWidth_ - 200 - twipsPerPixel_ * object->KOMAWidth());
        }
        if (object->KOMABoundsY() + object->KOMAHeight() > 160) {
            object->KOMABoundsY(160 - object->KOMAHeight());
            object->Top(canvasHeight_ - 200 - twipsPerPixel_ * object->KOMAHeight());
        }
    }

    // 6. Ids for everything, the new object included.
    DistributeObjectIds();

    // 7. A form becomes the form on show; anything else joins it.
    if (screenType == type::Form) {
        currentDesignForm_ = name;
        currentFormRef_ = static_cast<ctlKOMAForm*>(object);
    } else if (currentFormRef_) {
        currentFormRef_->EmbedObject(screenType, name, object);
    }

    // 8. Shown, on top.
    object->Visible(true);
    object->ZOrder(0);

    // 9. The main window hears of it with the object complete.
    if (screenMode_ != ModeLoading) {
        if (events_) events_->CreatedObject(name, screenType);
        GiveFocusTo(*this, *object);
    }

    // 10.
    Log("Object created: " + name);
    return true;
}

}  // namespace tolva
