// What the screen does with the events its objects raise: the delete key,
// the changes of place and size from the inspector, a changed picture, and
// the mouse.
#include "document/Host.h"
#include "document/ScreenEvents.h"
#include "document/ScreenUnits.h"
#include "document/StringTable.h"
#include "document/ctlTolvaScreen.h"

namespace tolva {

// --- mouse ---------------------------------------------------------------------------
// The full mouse protocol (moving by drag, drawing through a form, node
// drags) belongs to the canvas half. Until it is in, a mouse event of an
// object goes on to the main window as it is, in canvas coordinates.

void ctlTolvaScreen::ObjectMouseDown(KomaObject& object, int button, int shift, double x,
                                     double y) {
    if (events_) events_->MouseDown(button, shift, x + object.Left(), y + object.Top());
}

void ctlTolvaScreen::ObjectMouseMove(KomaObject& object, int button, int shift, double x,
                                     double y) {
    if (events_) events_->MouseMove(button, shift, x + object.Left(), y + object.Top());
}

void ctlTolvaScreen::ObjectMouseUp(KomaObject& object, int button, int shift, double x, double y) {
    if (events_) events_->MouseUp(button, shift, x + object.Left(), y + object.Top());
}

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
    // A line reports its resize by its two end points, not by a size; that
    // path joins here with the line's own event.
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
