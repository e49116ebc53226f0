#include "screen/ScreenFiles.h"

#include "screen/ScreenLoadTarget.h"
#include "screen/StandardRecordKinds.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

bool LoadResourceFile(ctlTolvaScreen& screen, const std::string& path) {
    ScreenLoadTarget target(screen);
    return LoadResourceFile(path, StandardRecordKinds(), target, screen.OwnerHost());
}

}  // namespace tolva
