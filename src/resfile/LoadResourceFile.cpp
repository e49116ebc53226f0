// LoadResourceFile: a resource text read back into the design on the screen.
#include "document/RuntimeFailure.h"
#include "document/ctlTolvaScreen.h"
#include "resfile/LoadTarget.h"
#include "resfile/RecordKinds.h"
#include "resfile/ResourceFiles.h"
#include "resfile/ResourceLoading.h"
#include "resfile/ResourceReader.h"

namespace tolva {

bool LoadResourceText(ResourceReader& reader, const RecordKinds& kinds, LoadTarget& target,
                      Host& host) {
    LoadedDesign design;
    if (!ScanResourceText(reader, host, kinds, design)) return false;
    // Every record is read: the text plays no further part.
    reader.Close();
    return BuildDesign(design, kinds, target, host);
}

bool LoadResourceFile(ctlTolvaScreen& screen, const std::string& path) {
    ResourceReader reader = ResourceReader::FromFile(path);
    if (!reader.IsOpen()) throw RuntimeFailure("File not found: " + path);
    ScreenLoadTarget target(screen);
    return LoadResourceText(reader, StandardRecordKinds(), target, screen.OwnerHost());
}

}  // namespace tolva
