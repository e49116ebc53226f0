#pragma once
// The events the screen raises to the main window. They are plain
// synchronous calls: a handler runs before the raising call goes on.
#include <string>

namespace tolva {

class ScreenEvents {
public:
    virtual ~ScreenEvents() = default;
    // Mouse on the bare canvas; coordinates in screen units.
    virtual void MouseMove(int button, int shift, double x, double y) {}
    virtual void MouseDown(int button, int shift, double x, double y) {}
    virtual void MouseUp(int button, int shift, double x, double y) {}
    virtual void CreatedObject(const std::string& name, int type) {}
    virtual void DeletedObject(const std::string& name, int type) {}
    virtual void SelectedObject(const std::string& name, int type) {}
    virtual void ChangedObject(const std::string& name, int type) {}
};

}  // namespace tolva
