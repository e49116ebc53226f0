#pragma once
// The keyboard focus among the objects of a screen: one object at a time.
namespace tolva {

class ctlTolvaScreen;
class KomaObject;

// Takes the focus from every object of the screen and gives it to object.
void GiveFocusTo(const ctlTolvaScreen& screen, KomaObject& object);

}  // namespace tolva
