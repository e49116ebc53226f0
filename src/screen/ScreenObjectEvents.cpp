// What the screen does with the events its objects raise: the delete key,
// the changes of place and size from the inspector and a changed picture.
// The mouse is in ScreenMouse.cpp.
#include "document/Host.h"
#include "screen/ScreenEvents.h"
#include "screen/ScreenUnits.h"
#include "document/StringTable.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

// --- selection and deletion -------------------------------------------------------------

void ctlTolvaScreen::ObjectSelected(KomaObject& object) {
    // No object raises this today; the handler is kept for when one does.
    const std::string name = object.KOMAName();
    const int screenType = object.ScreenType();
    SelectObject(screenType, name, &object);
    if (screenType == type::Form && screenMode_ != ModeLoading && events_)
        events_->SelectedObject(name, type::Form);
}

void ctlTolvaScreen::ObjectDeleted(KomaObject& object) {
    const std::string name = object.KOMAName();
    if (object.ScreenType() == type::Form) {
        const MessageAnswer answer =
            host_.MessageBox(LoadResString(msg::ConfirmFormDelete),
                             LoadResString(msg::ConfirmFormDeleteTitle), MessageButtons::YesNo);
        if (answer == MessageAnswer::Yes) DeleteObject(type::Form, name);
        return;
    }
    DeleteObject(object.ScreenType(), name);
}

// --- changes from the inspector ----------------------------------------------------------

void ctlTolvaScreen::ObjectMoved(KomaObject& object, int x, int y) {
    const int screenType = object.ScreenType();
    const bool line = screenType == type::Line;
    if (!line) {
        // Pull the object back onto the device screen.
        if (object.KOMAWidth() + x >= 161) x = 160 - object.KOMAWidth();
        if (object.KOMAHeight() + y >= 161) y = 160 - object.KOMAHeight();
    }
    MoveObject(screenType, object.KOMAName(), ScreenPositionFromPixel(x, twipsPerPixel_),
               ScreenPositionFromPixel(y, twipsPerPixel_));
    PlaceNodes(object, line);
}

void ctlTolvaScreen::ObjectResized(KomaObject& object, int width, int height) {
    // A line reports its resize by its two end points instead, through
    // ObjectLineResized (ScreenLine.cpp).
    if (object.KOMABoundsX() + width >= 161) width = 160 - object.KOMABoundsX();
    if (object.KOMABoundsY() + height >= 161) height = 160 - object.KOMABoundsY();
    object.Width(ScreenLengthFromPixel(width, twipsPerPixel_));
    object.Height(ScreenLengthFromPixel(height, twipsPerPixel_));
    PlaceNodes(object, object.ScreenType() == type::Line);
}

void ctlTolvaScreen::ObjectPicChanged(KomaObject& object) {
    if (screenMode_ != ModeLoading && events_)
        events_->ChangedObject(object.KOMAName(), object.ScreenType());
}

}  // namespace tolva
