#pragma once
// RecordingOwner: an ObjectOwner for tests of single objects. It records the
// events an object raises, answers the name check from a set of taken names,
// and shows messages through a ScriptedHost.
#include <set>
#include <string>
#include <vector>

#include "document/KomaObject.h"
#include "document/ObjectOwner.h"
#include "support/ScriptedHost.h"

namespace tolva::testing {

class RecordingOwner : public ObjectOwner {
public:
    ScriptedHost host;
    RecordingLog log;
    std::set<std::string> takenNames;
    int uniquenessChecks = 0;
    // Every event as a line: "Moved 10,20", "Resized 40,14", "PicChanged",
    // "LineResized 1,2,30,40",
    // "Deleted", "Selected", "MouseDown 1,0,15,30"...
    std::vector<std::string> events;
    long long stamp = 0;

    Host& OwnerHost() override { return host; }
    LogSink& OwnerLog() override { return log; }
    bool IsNewNameUnique(const std::string&, const std::string& newName) override {
        ++uniquenessChecks;
        return takenNames.count(newName) == 0;
    }
    bool OwnerGetObjectID(const std::string&, int&) override { return false; }
    void ObjectMouseDown(KomaObject&, int b, int s, double x, double y) override {
        events.push_back(Mouse("MouseDown", b, s, x, y));
    }
    void ObjectMouseMove(KomaObject&, int b, int s, double x, double y) override {
        events.push_back(Mouse("MouseMove", b, s, x, y));
    }
    void ObjectMouseUp(KomaObject&, int b, int s, double x, double y) override {
        events.push_back(Mouse("MouseUp", b, s, x, y));
    }
    void ObjectSelected(KomaObject&) override { events.push_back("Selected"); }
    void ObjectDeleted(KomaObject&) override { events.push_back("Deleted"); }
    void ObjectMoved(KomaObject&, int x, int y) override {
        events.push_back("Moved " + std::to_string(x) + "," + std::to_string(y));
    }
    void ObjectResized(KomaObject&, int w, int h) override {
        events.push_back("Resized " + std::to_string(w) + "," + std::to_string(h));
    }
    void ObjectPicChanged(KomaObject&) override { events.push_back("PicChanged"); }
    void ObjectLineResized(KomaObject&, int startX, int startY, int endX, int endY) override {
        events.push_back("LineResized " + std::to_string(startX) + "," + std::to_string(startY) + "," +
                         std::to_string(endX) + "," + std::to_string(endY));
    }
    long long NextStackStamp(bool toFront) override { return toFront ? ++stamp : -(++stamp); }

private:
    static std::string Mouse(const char* what, int b, int s, double x, double y) {
        return std::string(what) + " " + std::to_string(b) + "," + std::to_string(s) + "," +
               std::to_string(static_cast<long long>(x)) + "," +
               std::to_string(static_cast<long long>(y));
    }
};

}  // namespace tolva::testing
