#pragma once
// The one small interface through which an object talks upward to whatever
// holds it (the screen, or a test). An object never knows the registry.
#include <string>

namespace tolva {

class Host;
class LogSink;
class KomaObject;

class ObjectOwner {
public:
    virtual ~ObjectOwner() = default;

    virtual Host& OwnerHost() = 0;
    virtual LogSink& OwnerLog() = 0;

    // The name check of every object: is newName free, given the object's
    // current (old) name?
    virtual bool IsNewNameUnique(const std::string& oldName, const std::string& newName) = 0;

    // The id of the object of that name; false leaves id as it was.
    virtual bool OwnerGetObjectID(const std::string& name, int& id) = 0;

    // Events raised by the object. Mouse coordinates are in screen units
    // relative to the object; button 1 is the left one.
    virtual void ObjectMouseDown(KomaObject& object, int button, int shift, double x, double y) = 0;
    virtual void ObjectMouseMove(KomaObject& object, int button, int shift, double x, double y) = 0;
    virtual void ObjectMouseUp(KomaObject& object, int button, int shift, double x, double y) = 0;
    virtual void ObjectSelected(KomaObject& object) = 0;
    virtual void ObjectDeleted(KomaObject& object) = 0;
    virtual void ObjectMoved(KomaObject& object, int x, int y) = 0;
    virtual void ObjectResized(KomaObject& object, int width, int height) = 0;
    virtual void ObjectPicChanged(KomaObject& object) = 0;
    // A line's end points changed (device pixels): the owner sets the line's
    // box from them. Only a line raises it.
    virtual void ObjectLineResized(KomaObject& object, int startX, int startY, int endX,
                                   int endY) {}

    // The object's name changed (by its setter or by a copy of another
    // object's model): a holder that finds objects by name follows it.
    virtual void ObjectRenamed(KomaObject& object, const std::string& oldName) {}
    // A form's menus were replaced: their names count as taken names.
    virtual void ObjectMenusChanged(KomaObject& object) {}

    // Stacking order: a stamp larger than every other for the front, smaller
    // than every other for the back.
    virtual long long NextStackStamp(bool toFront) = 0;
};

}  // namespace tolva
