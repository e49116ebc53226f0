// LoadResourceFile: a resource text read back into a design, through the
// parsers of the kinds and the load stages.
#include "document/RuntimeFailure.h"
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

bool LoadResourceFile(const std::string& path, const RecordKinds& kinds, LoadTarget& target,
                      Host& host) {
    ResourceReader reader = ResourceReader::FromFile(path);
    if (!reader.IsOpen()) throw RuntimeFailure("File not found: " + path);
    return LoadResourceText(reader, kinds, target, host);
}

}  // namespace tolva
